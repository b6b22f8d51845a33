// The options dialog's window: its tabs and controls, and what its buttons, lists
// and tabs do.  The settings it reads and writes are in frmOptionsSettings.cpp.
#include "config/frmOptions.h"

#include <initializer_list>
#include <utility>

#include "config/clsConfigDiary.h"
#include "config/frmDiaryPickFields.h"
#include "dialogs/EditorSupport.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

// The tabs and their tool tips, in order.
const char* const kTabs[][2] = {{"Data Files", "Location of your Data Files and the Network Datapath"},
                                {"Display", "Display Options"},
                                {"Calendar", "Calendar Options"},
                                {"Task", "Task Options"},
                                {"Notes", "Notes Options"},
                                {"Staff", "Staff Options"},
                                {"Security", "Change your password and choose privacy options"},
                                {"Advanced", "Advanced Options"}};
constexpr long kStaffTab = 6;
constexpr long kSecurityTab = 7;

// The page of each tab, in twips.
constexpr long kTabWidth = 7800;
constexpr long kTabHeight = 3480;
constexpr long kRowHeight = 315;
constexpr long kRowStep = 420;

const char* const kMonthsMessage =
    "The maximum number of months which can be displayed on the Calendar is 12.\r\n"
    "You need to make sure the Rows * Columns is less than or equal to 12";

void place(Control& control, Frame& tab, long left, long top, long width, long height = kRowHeight) {
    control.SetContainer(&tab);
    control.Move(left, top, width, height);
}

/// A page of tick boxes, one under the other.
void placeTicks(Frame& tab, std::initializer_list<std::pair<CheckBox*, const char*>> ticks) {
    long top = 165;
    for (const auto& [tick, text] : ticks) {
        tick->Caption = text;
        place(*tick, tab, 120, top, kTabWidth - 240);
        top += kRowStep;
    }
}

}  // namespace

frmOptions::frmOptions() : Form("frmOptions") {
    Caption = "Diary Options";
    Width = 8100;
    Height = 4440;
    placeControls();
    fillLists();
    bindEvents();
}

void frmOptions::placeControls() {
    tabOpt.Move(60, 30, kTabWidth + 60, 330);
    for (const auto& [caption, tip] : kTabs) tabOpt.Tabs.Add(caption).ToolTipText = tip;
    for (int i = 0; i < static_cast<int>(std::size(kTabs)); ++i) frameOpt(i).Move(90, 360, kTabWidth, kTabHeight);
    placeDataFilesTab(frameOpt(0));
    placeTicks(frameOpt(1), {{&chkShowToolbar, "Show the tool bar"},
                             {&chkShowToolbarText, "Show the captions under the tool bar's buttons"},
                             {&chkShowShortCut, "Show the shortcut bar"},
                             {&chkShortCutSmallIcon, "Small icons in the shortcut bar"},
                             {&chkShowFolders, "Show the folder tree"}});
    placeCalendarTab(frameOpt(2));
    placeHeadingsTab(frameOpt(3), cmdTaskHeadings, "Task Headings...", "The columns of the task list",
                     "Choose the columns of the task list and the heading of each. The choice is kept at once, "
                     "whichever button closes this window.");
    placeHeadingsTab(frameOpt(4), cmdNoteHeadings, "Note Headings...", "The fields of a note and their headings",
                     "Choose the fields of a note and the heading of each; the note list itself shows the title of "
                     "each note. The choice is kept at once, whichever button closes this window.");
    placeTicks(frameOpt(5), {{&chkShowShaded, "Shade the times when the others are busy"},
                             {&chkShowLocation, "Show where each event is"},
                             {&chkShowDetails, "Show the text of each event"},
                             {&chkShowTotals, "Show the totals of each user"},
                             {&chkAlwaysRefresh, "Always read the others' diaries again from the server"}});
    placeSecurityTab(frameOpt(6));
    placeAdvancedTab(frameOpt(7));

    const long top = 360 + kTabHeight + 90;
    cmdDefault.Caption = "Reset All Options...";
    cmdDefault.ToolTipText = "Put every option back to the way it was when the diary was new";
    cmdDefault.Move(90, top, 2100, 375);
    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Move(kTabWidth - 2190, top, 1080, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(kTabWidth - 990, top, 1080, 375);
}

// Captions of the pages come from the label array, in the order they are placed.
Label& frmOptions::caption(Frame& tab, const std::string& text, long left, long top, long width, long height) {
    Label& label = lblOpt(nextLabel_++);
    label.Caption = text;
    label.WordWrap = height > 255;
    place(label, tab, left, top, width, height);
    return label;
}

void frmOptions::placeDataFilesTab(Frame& tab) {
    const long full = kTabWidth - 240;
    caption(tab, "Local Datapath - the folder that holds your diary files", 120, 165, full);
    caption(tab, "Network Datapath - your folder on the diary server", 120, 1545, full);
    for (int i = 0; i < 2; ++i) {
        const long top = i == 0 ? 450 : 1830;
        place(Text1(i), tab, 120, top, 5280);
        place(cmdDataPath(i), tab, 5460, top - 15, 480, 345);
        cmdDataPath(i).Caption = "...";
        cmdDataPath(i).ToolTipText = "Choose the folder";
    }
    place(cmdDefaultLocalPath, tab, 6000, 435, 1680, 345);
    cmdDefaultLocalPath.Caption = "Default Path";
    cmdDefaultLocalPath.ToolTipText = "The data folder beside the program";
    place(chkRunLocal, tab, 120, 960, full);
    chkRunLocal.Caption = "Run in Local Mode only (no diary server)";
    place(cmdAutomapClient, tab, 6000, 1815, 1680, 345);
    cmdAutomapClient.Caption = "Find Server Path";
    cmdAutomapClient.ToolTipText = "Ask the path finder beside the program for your folder on the server";
    caption(tab,
            "Changing a datapath moves no files: the diary reads its files from the new folder, and the old "
            "folder keeps what it holds.",
            120, 2460, full, 600);
}

void frmOptions::placeCalendarTab(Frame& tab) {
    // Two columns of a caption and its field.
    const auto row = [this, &tab](Control& field, const std::string& text, long column, long line) {
        const long left = column == 0 ? 120 : 3960;
        const long labelWidth = column == 0 ? 1500 : 1620;
        caption(tab, text, left, 165 + line * kRowStep + 45, labelWidth);
        place(field, tab, left + labelWidth + 60, 165 + line * kRowStep, column == 0 ? 1980 : 2040);
    };
    row(cmbGridOrList, "Show events in", 0, 0);
    row(cmbDayWeekMonth, "Days shown", 0, 1);
    row(cmbCal(0), "Months down", 0, 2);
    row(cmbCal(1), "Months across", 0, 3);
    row(cmbFileEvents, "Usage and files", 0, 4);
    place(chkShowCalendar, tab, 120, 165 + 5 * kRowStep, 3540);
    chkShowCalendar.Caption = "Show the month calendar";

    row(cmbStartTime, "First hour", 1, 0);
    row(cmbStopTime, "Last hour", 1, 1);
    row(cmbSlots, "Each row lasts", 1, 2);
    place(chkWordwrap, tab, 3960, 165 + 3 * kRowStep, 3720);
    chkWordwrap.Caption = "Wrap the text of events";
    place(chkAutosize, tab, 3960, 165 + 4 * kRowStep, 3720);
    chkAutosize.Caption = "Fit the rows to their events";
    for (int i = 0; i < 2; ++i) {
        Label& label = i == 0 ? lblHeightMin : lblHeightMax;
        ScrollBar& bar = i == 0 ? VScroll1 : VScroll2;
        const long top = 165 + (5 + i) * kRowStep;
        place(label, tab, 3960, top + 45, 1620, 255);
        place(bar, tab, 5640, top + 30, 2040, 255);
        bar.Vertical = false;
        bar.Min = 0;
        bar.Max = 3000;
        bar.SmallChange = 15;
        bar.LargeChange = 150;
        bar.ToolTipText = i == 0 ? "The least height of a row, in twips" : "The most height of a row, in twips";
    }
    place(cmdCalendarHeadings, tab, 120, 165 + 6 * kRowStep + 30, 2400, 375);
    cmdCalendarHeadings.Caption = "Event List Headings...";
    cmdCalendarHeadings.ToolTipText = "The columns of the list of events";
}

void frmOptions::placeHeadingsTab(Frame& tab, CommandButton& button, const std::string& buttonCaption,
                                  const std::string& tip, const std::string& text) {
    caption(tab, text, 120, 165, kTabWidth - 240, 600);
    place(button, tab, 120, 900, 2400, 375);
    button.Caption = buttonCaption;
    button.ToolTipText = tip;
}

void frmOptions::placeSecurityTab(Frame& tab) {
    caption(tab, "Share your diary with the other users at this level:", 120, 165, kTabWidth - 240);
    place(lstSecurity, tab, 120, 450, kTabWidth - 240, 1500);
    caption(tab, "Password", 120, 2205, 1200);
    place(txtPassword, tab, 1380, 2160, 2400);
    txtPassword.PasswordChar = "*";
    txtPassword.Enabled = false;
    caption(tab, "The diary asks for no password yet.", 3900, 2205, 3780);
}

void frmOptions::placeAdvancedTab(Frame& tab) {
    const long full = kTabWidth - 240;
    caption(tab, "Seconds to wait for the server (1 to 20)", 120, 210, 3600);
    place(txtTimeOut, tab, 3780, 165, 720);
    place(chkShowPopupMessages, tab, 120, 165 + kRowStep, full);
    chkShowPopupMessages.Caption = "Show messages from the server as they arrive";
    place(chkRetryAfterOutage, tab, 120, 165 + 2 * kRowStep, full);
    chkRetryAfterOutage.Caption = "Look for a lost server only when the staff planner is refreshed, not every minute";
    caption(tab, "Folder of the server's tools", 120, 165 + 3 * kRowStep + 120, full);
    place(txtToolsPath, tab, 120, 165 + 4 * kRowStep + 60, full);
}

void frmOptions::bindEvents() {
    tabOpt.onClick = [this] { tabOpt_Click(); };
    for (int i = 0; i < 2; ++i) cmdDataPath(i).onClick = [this, i] { cmdDataPath_Click(i); };
    for (int i = 0; i < 2; ++i) cmbCal(i).onClick = [this, i] { cmbCal_Click(i); };
    cmdDefaultLocalPath.onClick = [this] { cmdDefaultLocalPath_Click(); };
    cmdAutomapClient.onClick = [this] { cmdAutomapClient_Click(); };
    cmdDefault.onClick = [this] { cmdDefault_Click(); };
    VScroll1.onChange = [this] { VScroll1_Change(); };
    VScroll2.onChange = [this] { VScroll2_Change(); };
    cmdCalendarHeadings.onClick = [this] { cmdCalendarHeadings_Click(); };
    cmdTaskHeadings.onClick = [this] { cmdTaskHeadings_Click(); };
    cmdNoteHeadings.onClick = [this] { cmdNoteHeadings_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmOptions::Form_Load() {
    LoadMainForm();
    ShowFirstTab(tabOpt, frameOpt);
    shownTab_ = 1;
}

void frmOptions::OpenOnTab(const std::string& caption) {
    for (long i = 1; i <= tabOpt.Tabs.Count(); ++i) {
        const bool closedByLocalMode = chkRunLocal.Value == vbChecked && (i == kStaffTab || i == kSecurityTab);
        if (tabOpt.Tabs(i).Caption() == caption && !closedByLocalMode) tabOpt.Tabs(i).Selected = true;
    }
}

void frmOptions::tabOpt_Click() {
    const Tab* tab = tabOpt.SelectedItem();
    if (tab == nullptr) return;
    if (chkRunLocal.Value == vbChecked && (tab->Index() == kStaffTab || tab->Index() == kSecurityTab)) {
        const std::string what = tab->Index() == kStaffTab ? "staff" : "security";
        platform().MsgBox("You cant change any " + what + " options as you have chosen 'Run in Local Mode only",
                          vbOKOnly, "Diary is set to Local Mode Only");
        tabOpt.Tabs(shownTab_).Selected = true;  // the page of the tab that was up stays
        return;
    }
    shownTab_ = tab->Index();
    ShowSelectedTab(tabOpt, frameOpt);
}

void frmOptions::cmdDataPath_Click(int index) {
    TextBox& box = Text1(index);
    const std::string current = ToStoredPath(box.Text());
    const std::string start = FolderExists(current) ? current : std::string();
    const std::string picked = platform().PickFolder("Select a Folder", start);
    if (!picked.empty()) box.Text = ShownPath(picked);
    const std::string defaultPath = platform().ProgramFolder() + "\\data\\";
    if (index == 0 && box.Text().empty()) {
        const int answer = platform().MsgBox(
            "There is no datapath specified \r\nDo you want to use the default path ?\r\nClick <Yes> to use default "
            "path of " +
                defaultPath +
                "\r\nClick <No> to leave the datapath blank\r\nClick <Cancel> to return to options "
                "screen to choose another path",
            vbYesNoCancel, "No Diary Datapath specified");
        if (answer != vbYes) return;
        box.Text = ShownPath(defaultPath);
    } else if (picked.empty()) {
        return;  // nothing chosen: the box keeps its path, and nothing is written
    }
    std::string folder = ToStoredPath(box.Text());
    if (EndsWith(folder, "\\")) folder.pop_back();
    if (!FolderExists(folder)) {
        platform().MsgBox("Data path does not exist", vbOKOnly, "");
        return;
    }
    // A folder chosen here is stored at once.
    folder += "\\";
    if (index == 0) {
        glbConfig.SetVal("diary", "dataPath", folder);
    } else {
        glbConfig.SetVal("Network", "dataPath", folder);
        glbConfig.SetVal("Network", "userPath", folder);
    }
}

void frmOptions::cmdDefaultLocalPath_Click() {
    Text1(0).Text = ShownPath(platform().ProgramFolder() + "\\data\\");
}

void frmOptions::cmdAutomapClient_Click() {
    const std::string found = glbConfig.DetectNetworkPath();
    if (!found.empty()) Text1(1).Text = ShownPath(found);
}

// The headings are written when their dialog closes; the caller of the options reads
// every setting again after.
void frmOptions::cmdCalendarHeadings_Click() {
    frmDiaryPickFields("ListViewHeadings").Show(true);
}

void frmOptions::cmdTaskHeadings_Click() {
    frmDiaryPickFields("TaskHeadings").Show(true);
}

void frmOptions::cmdNoteHeadings_Click() {
    frmDiaryPickFields("NoteHeadings").Show(true);
}

void frmOptions::cmdDefault_Click() {
    const int answer = platform().MsgBox(
        "WARNING - this will reset all options to the default configuration.\r\nDo you want to continue?", vbYesNo,
        "Reset All Options ?");
    if (answer == vbYes) RestoreDefaultDiarySettings();
}

bool frmOptions::calendarFits() {
    const auto months = [this](int index) {
        const ComboBox& list = cmbCal(index);
        return list.ListIndex >= 0 ? list.ItemData(list.ListIndex) : 1;
    };
    return months(0) * months(1) < 13;
}

void frmOptions::cmbCal_Click(int) {
    if (!loading_ && !calendarFits()) platform().MsgBox(kMonthsMessage, vbOKOnly, "");
}

void frmOptions::cmdOK_Click() {
    if (!calendarFits()) {
        platform().MsgBox(kMonthsMessage, vbOKOnly, "");
        return;
    }
    // Paths that are refused keep the dialog open, so that they can be put right.
    if (SaveAllDiarySettings()) Unload();
}

void frmOptions::cmdCancel_Click() {
    Unload();
}

}  // namespace orbidex
