// The menu dispatch of the main window: what each entry calls, its shortcut key,
// and the entries that stay disabled because the program has no operation for them.
#include <set>

#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// Entries (by name, or name and index for entry arrays) and tool bar keys with no
// operation in this version of the program.
const std::set<std::string>& entriesWithoutOperation() {
    static const std::set<std::string> names = {
    };
    return names;
}

const std::set<std::string>& keysWithoutOperation() {
    static const std::set<std::string> keys = {
    };
    return keys;
}

// The modes in which the tool bar's "new" button adds something; in the others it
// does nothing yet and is disabled.
bool newAddsIn(const std::string& mode) {
    return mode == "HOME" || mode == "CALENDAR" || mode == "TASK" || mode == "NOTE" || mode == "STAFF";
}

// The modes in which the tool bar's "delete" button deletes the selected item.
bool deleteActsIn(const std::string& mode) {
    return mode == "CALENDAR" || mode == "TASK" || mode == "NOTE";
}

}  // namespace

bool frmClientDiaryMain::HasOperation(const Menu& entry) {
    const auto& names = entriesWithoutOperation();
    if (names.count(entry.Name()) != 0) return false;
    return names.count(entry.Name() + "(" + CStr(entry.Index()) + ")") == 0;
}

bool frmClientDiaryMain::HasOperation(const Button& button, const std::string& mode) {
    if (button.Key == "new") return newAddsIn(mode);
    if (button.Key == "delete") return deleteActsIn(mode);
    return keysWithoutOperation().count(button.Key) == 0;
}

bool frmClientDiaryMain::HasOperation(const ButtonMenu& entry) {
    return keysWithoutOperation().count(entry.Key) == 0;
}

void frmClientDiaryMain::EnableEntry(Menu& entry, bool enabled) {
    entry.Enabled = enabled && HasOperation(entry);
}

void frmClientDiaryMain::disableEntriesWithoutOperation() {
    for (Control* control : Controls())
        if (auto* entry = dynamic_cast<Menu*>(control)) EnableEntry(*entry, true);
}

void frmClientDiaryMain::bindMenus() {
    mnuFileImport.onClick = [] { glbCmd.ImportAppointments(); };
    mnuFileExport.onClick = [] { glbCmd.ExportAppointments(); };
    mnuFileImportICal.onClick = [] { glbCmd.ImportICalendar(); };
    mnuFileExportICal.onClick = [] { glbCmd.ExportICalendar(); };
    mnuFilePrint.Shortcut = "Ctrl+P";
    mnuFilePrint.onClick = [] { glbCmd.CommandPrint(); };
    mnuFileExit.onClick = [] { glbCmd.CommandExit(); };

    mnuAppAdd.Shortcut = "Ctrl+N";
    mnuAppAdd.onClick = [] { glbCmd.EventAdd(0, ""); };
    mnuAppEdit.onClick = [] { glbCmd.EventEdit(); };
    mnuAppDelete.onClick = [] { glbCmd.EventDelete(); };
    mnuAppReschedule.onClick = [] {
        glbCmd.EventReschedule();
        glbScreen.resize();
    };
    mnuAppRecurring.onClick = [] { glbCmd.EventAddMultidayEvent(); };
    mnuAppPlanMeeting.onClick = [this] { glbCmd.BookMeeting(MonthView1.Value, ""); };

    mnuTaskMenu[0].Shortcut = "Ctrl+T";
    for (int i = 0; i < static_cast<int>(mnuTaskMenu.size()); ++i) {
        mnuTaskMenu[i].SetIndex(i);
        mnuTaskMenu[i].onClick = [i] {
            if (i == 0) glbCmd.TaskAdd(0);
            if (i == 1) glbCmd.TaskEdit();
            if (i == 2) glbCmd.TaskDelete();
            glbScreen.resize();
        };
    }
    mnuTaskHeadings.onClick = [] {
        glbScreen.SwitchMode("TASK");
        glbCmd.ShowOptions();
    };
    mnuNotesMenu[0].Shortcut = "Ctrl+M";
    for (int i = 0; i < static_cast<int>(mnuNotesMenu.size()); ++i) {
        mnuNotesMenu[i].SetIndex(i);
        mnuNotesMenu[i].onClick = [i] {
            if (i == 0) glbCmd.NoteAdd();
            if (i == 1) glbCmd.NoteEdit();
            if (i == 2) glbCmd.NoteDelete();
            if (i == 3) glbCmd.ShowHeadings("NoteHeadings");
            if (i == 4) glbCmd.RecreateNotes(false);
            if (i == 5) glbCmd.RecreateNotes(true);
            glbScreen.resize();
        };
    }
    mnuSearchQuick.Shortcut = "Ctrl+F";
    mnuSearchQuick.onClick = [] { glbCmd.Search(); };

    bindViewMenus();

    mnuToolsCalendar.onClick = [] { glbCmd.ViewYear(); };
    mnuOptScrapPaper.onClick = [] { glbCmd.ShowScratchPad(); };
    mnuToolsTobrin.onClick = [] { glbCmd.StartCompanionTool("tobrin.exe"); };
    mnuToolsQuickAdd.onClick = [] { glbCmd.StartCompanionTool("sulvane.exe"); };
    mnuToolsTimesheet.onClick = [] { glbCmd.StartCompanionTool("kestrop.exe"); };
    mnuViewSetup.onClick = [] { glbCmd.ShowOptions(); };
    mnuOptionsDisplay.onClick = [] { glbCmd.ShowColours(); };
    mnuOptionsListView.onClick = [] { glbCmd.ShowHeadings("ListViewHeadings"); };
    mnuOptionsTaskHeadings.onClick = [] { glbCmd.ShowHeadings("TaskHeadings"); };
    mnuPingServer.onClick = [] { glbCmd.serverPing(); };
    mnuServerMessages.onClick = [] { glbScreen.SwitchMode("MESSAGE"); };
    mnuServerChat.onClick = [] { glbCmd.CommandChat(); };
    mnuServerCheck.onClick = [] { glbCmd.serverCheckForWork(); };
    mnuServerLoggon.onClick = [] { glbComms.Logon(); };
    mnuServerLogoff.onClick = [] { glbComms.Logoff(); };

    mnuBetaServerEnforce.onClick = [] { glbCmd.ToggleServerEnforce(); };
    mnuBetaTestLog.onClick = [] { glbCmd.ToggleDetailedLogging(); };
    mnuBetaReindexTask.onClick = [] { glbCmd.ReIndexTasks(); };
    mnuBetaRestart.onClick = [] { glbCmd.RestartProgram(); };
    for (int i = 0; i < static_cast<int>(mnuBetaTest.size()); ++i) mnuBetaTest[i].SetIndex(i);
    mnuBetaTest[0].onClick = [] { glbCmd.ViewEventsInBrowser(); };
    mnuBetaTest[1].onClick = [] { glbCmd.ShowTasksInBrowser(); };
    mnuBetaTest[2].onClick = [] { glbCmd.ShowViewTotals(); };
    mnuBetaTest[3].onClick = [] { glbCmd.ShowEventCount(); };

    mnuHelpContents.Shortcut = "F1";
    mnuHelpContents.onClick = [] { glbCmd.OpenHelpContents(); };
    mnuHelpAbout.onClick = [] { glbCmd.ShowAbout(); };
    mnuHelpShowcase.onClick = [] { glbCmd.OpenMakersPage(clsDiaryCommand::MakersPage::Showcase); };
    mnuHelpSuggest.onClick = [] { glbCmd.OpenMakersPage(clsDiaryCommand::MakersPage::Suggestion); };
    mnuHelpBugReport.onClick = [] { glbCmd.OpenMakersPage(clsDiaryCommand::MakersPage::BugReport); };

    mnuPopupGridAdd.onClick = [] { glbCmd.EventAdd(0, ""); };
    mnuPopupGridEdit.onClick = [] { glbCmd.EventEdit(); };
    mnuPopupGridDelete.onClick = [] { glbCmd.EventDelete(); };
    mnuPopupGridReschedule.onClick = [] { glbCmd.RescheduleCurrentEvent(); };
}

void frmClientDiaryMain::bindViewMenus() {
    static const char* const kModes[] = {"HOME", "CALENDAR", "TASK", "NOTE", "CONTACT", "STAFF", "HISTORY"};
    for (int i = 0; i < static_cast<int>(mnuViewMode.size()); ++i) {
        mnuViewMode[i].SetIndex(i);
        mnuViewMode[i].onClick = [i] { glbScreen.SwitchMode(kModes[i]); };
    }
    mnuViewMode[0].Shortcut = "Ctrl+Shift+H";
    mnuViewMode[1].Shortcut = "Ctrl+Shift+C";
    mnuViewMode[2].Shortcut = "Ctrl+Shift+T";
    mnuViewMode[3].Shortcut = "Ctrl+Shift+N";

    static const char* const kLengthKeys[] = {"Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4"};
    for (int i = 0; i < static_cast<int>(mnuViewType.size()); ++i) {
        mnuViewType[i].SetIndex(i);
        mnuViewType[i].Shortcut = kLengthKeys[i];
        mnuViewType[i].onClick = [this, i] {
            if (i == 0) glbCmd.ViewDay();
            if (i == 1) glbCmd.ViewWeek();
            if (i == 2) glbCmd.ViewFortnight();
            if (i == 3) glbCmd.ViewMonth();
            MonthView1_DateClick(MonthView1.Value);
        };
    }
    mnuViewGrid.Shortcut = "Ctrl+G";
    mnuViewGrid.onClick = [] { glbCmd.ViewGrid(); };
    mnuViewList.Shortcut = "Ctrl+L";
    mnuViewList.onClick = [] { glbCmd.ViewList(); };
    mnuViewBrowser.onClick = [] { glbCmd.viewBrowser(); };
    mnuViewRefresh.Shortcut = "F5";
    mnuViewRefresh.onClick = [] { glbCmd.viewRefresh(); };
}

}  // namespace orbidex
