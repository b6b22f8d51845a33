// The modes of the main window: the one-time set-up, the change of mode and what
// each mode shows.
#include "screen/clsDiaryScreen.h"

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/cMessages.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "platform/Platform.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

clsDiaryScreen glbScreen;

namespace {

constexpr OleColor kGridBackColor = 0xF0F4F4;

void showAll(std::initializer_list<Control*> controls, bool visible) {
    for (Control* control : controls) control->Visible = visible;
}

}  // namespace

void clsDiaryScreen::drawForm(frmClientDiaryMain& form) {
    form_ = &form;
    drawTree();
    drawShortcuts();
    // The program that runs alone has no staff planner and no one to meet.
    const bool hasStaff = NETWORK_STRING != "LOCAL";
    form.mnuAppPlanMeeting.Visible = hasStaff;
    form.mnuViewMode[5].Visible = hasStaff;  // "&Staff Planner"
    CreateToolbarButtons(glbConfig.ShowToolbarText == "1");
    drawStatusBar();
    glbConfig.GetFormSettings(form, gStrIniFile, true);
    InitDiaryScreen();
}

void clsDiaryScreen::InitDiaryScreen() {
    if (form_ == nullptr) return;
    glbEvents.DiaryTopLevelInitDisplay(*form_);
    form_->lblHeading.Caption = FormatDate(Today(), "DDDD, d-MMM-yyyy");
    glbNumDaysToDisplay = glbConfig.DayWeekMonth;
    glbEvents.CalendarDateClicked(*form_, Today());
}

void clsDiaryScreen::SwitchMode(const std::string& mode, bool force) {
    const std::string upper = UCase(mode);
    if (upper == mode_ && !force) {
        glbLog.log("user clicked on listview, but it is the same one", 3);
        return;
    }
    mode_ = upper;
    glbComms.glbPollFrequently("False");
    if (form_ == nullptr) return;
    frmClientDiaryMain& form = *form_;

    showBars();
    form.lvUsers.ListItems.Clear();
    form.lvCat.ListItems.Clear();
    form.lvCat.Sorted = false;  // each mode's list starts in its own order
    form.status.Panels(2).Text = mode_;

    // History and contacts only say so: the prior view stays as it is.
    if (mode_ == "HISTORY") {
        platform().MsgBox("History is not yet implemented", vbOKOnly, "");
        return;
    }
    if (mode_ == "CONTACT") {
        platform().MsgBox("Contacts are not yet implemented", vbOKOnly, "");
        return;
    }
    setUpMode(mode_);
    glbRefreshNeeded = false;  // the view now shows what has arrived

    selectTreeNode(mode_);
    resize();
    form.Toolbar1.Visible = glbConfig.ShowToolbar == "1";
    platform().SetBusyCursor(false);
    showStatus();
}

// The tree, the shortcut bar and the tool bar, as the settings want them.
void clsDiaryScreen::showBars() {
    frmClientDiaryMain& form = *form_;
    if (glbConfig.ShowFolders == "1") {
        form.tv.Width = 2500;
        form.tv.Visible = true;
    } else {
        form.tv.Visible = false;
        form.tv.Width = 0;
    }
    if (glbConfig.ShowShortCut == "1") {
        form.lvView.Width = 1005;
        form.lvView.Visible = true;
        form.tv.Left = form.lvView.Width + 10;
    } else {
        form.lvView.Visible = false;
        form.lvView.Width = 0;
        form.tv.Left = 0;
    }
    form.lvView.View = glbConfig.ShortCutSmallIcon == "1" ? lvwList : lvwIcon;
    if (glbConfig.ShowToolbar == "1") {
        form.Toolbar1.Visible = true;
        CreateToolbarButtons(glbConfig.ShowToolbarText == "1");
    } else {
        form.Toolbar1.Visible = false;
    }
}

void clsDiaryScreen::setUpMode(const std::string& mode) {
    frmClientDiaryMain& form = *form_;
    if (mode == "HOME") {
        setUpHome();
    } else if (mode == "CALENDAR") {
        setUpCalendar();
    } else if (mode == "TASK") {
        setUpTasks();
    } else if (mode == "NOTE") {
        setUpNotes();
    } else if (mode == "MEETING" || mode == "STAFF") {
        setUpStaff();
    } else if (mode == "MESSAGE" || mode == "MAIL") {
        setUpMessages();
    } else if (mode == "WEB") {
        form.lblHeading.Caption = "  WEB ";
    } else if (mode == "MONEY") {
        setUpMoney();
    } else if (mode == "FILE") {
        setUpFiles();
    } else if (mode == "DRAWING - PICS") {
        platform().MsgBox("TODO", vbOKOnly, "");
    }
}

// The overview page in the browser pane, alone beside the navigation.
void clsDiaryScreen::setUpHome() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Home - Brindlewick Software's Orbidex";
    showAll({&form.lblHeading, &form.lvCat, &form.gridDays, &form.MonthView1, &form.lvUsers, &form.lblUsers,
             &form.lvDiary, &form.Label1, &form.Label2},
            false);
    form.web.Visible = true;
    toolbarForMode("HOME");
    showOverview();
}

void clsDiaryScreen::setUpCalendar() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Events - Brindlewick Software's Orbidex";
    const VbDate date = form.MonthView1.Value == 0 ? Today() : static_cast<VbDate>(form.MonthView1.Value);
    form.lblHeading.Caption = "  Events for " + FormatDate(date, "DDDD, d-MMM-yyyy");
    const bool grid = glbConfig.GridOrList == "GRID";
    showAll({&form.lblHeading, &form.lvCat, &form.MonthView1, &form.Label1, &form.Label2}, true);
    form.gridDays.Visible = grid;
    form.lvDiary.Visible = !grid;
    showAll({&form.lvUsers, &form.lblUsers, &form.web}, false);
    form.mnuViewBrowser.Checked = false;
    form.lvCat.BackColor = vbWhite;
    form.lvCat.Tag = "TASK";
    toolbarForMode("CALENDAR");

    form.MonthView1.MonthRows = glbConfig.rows;
    form.MonthView1.MonthColumns = glbConfig.cols;
    FlexGrid& days = form.gridDays;
    days.BackColor = kGridBackColor;
    days.Rows = 1;
    days.Cols = 1;
    days.Rows = 10;
    days.RowHeightMin = 450;
    days.Cols = 3;
    days.SelectionMode = flexSelectionFree;
    days.RowHeightMin = 255;

    selectTreeNode("CALENDAR");
    form.lvView.SetSelectedItem(form.lvView.ListItems.Item("CALENDAR"));
    glbNumDaysToDisplay = glbConfig.DayWeekMonth;
    glbEvents.CalendarDateClicked(form, date);
    ResizeGridColumns(days);
    glbTasks.DisplayInListView(form.lvCat, true);
}

// The task list fills the main area.
void clsDiaryScreen::setUpTasks() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Tasks - Brindlewick Software's Orbidex";
    form.lblHeading.Caption = "  Tasks";
    showAll({&form.lblHeading, &form.lvCat}, true);
    showAll({&form.gridDays, &form.MonthView1, &form.lvUsers, &form.lblUsers, &form.lvDiary, &form.web, &form.Label1,
             &form.Label2},
            false);
    form.lvCat.Tag = "TASK";
    for (Menu& entry : form.mnuTaskMenu) form.EnableEntry(entry, true);
    toolbarForMode("TASK");
    glbTasks.DisplayInListView(form.lvCat, true);  // and the count in the status bar
}

// The note list fills the main area.
void clsDiaryScreen::setUpNotes() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Notes - Brindlewick Software's Orbidex";
    form.lblHeading.Caption = "  Notes";
    showAll({&form.lblHeading, &form.lvCat}, true);
    showAll({&form.gridDays, &form.MonthView1, &form.lvUsers, &form.lblUsers, &form.lvDiary, &form.web, &form.Label1,
             &form.Label2},
            false);
    form.lvCat.Tag = "NOTE";
    toolbarForMode("NOTE");
    glbNotes.DisplayInListView(form.lvCat);  // and the count in the status bar
}

// The staff grid beside the calendar and the list of users.
void clsDiaryScreen::setUpStaff() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Staff Planner - Brindlewick Software's Orbidex";
    form.lblHeading.Caption = "  Staff Planner";
    showAll({&form.lblHeading, &form.gridDays, &form.MonthView1, &form.lvUsers, &form.lblUsers}, true);
    showAll({&form.lvDiary, &form.lvCat, &form.web, &form.Label1, &form.Label2}, false);
    toolbarForMode("STAFF");
    glbComms.ListUsers(form.lvUsers, true);
    glbTickedUsers = glbComms.GetTickedListOfUsers(form.lvUsers);
    bool force = false;
    glbDiaryComms.GetStaffEvents(form.MonthView1.Value, force);
    DisplayStaffEvents();
}

// The message list fills the main area under its four columns.
void clsDiaryScreen::setUpMessages() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Messages - Brindlewick Softwares Orbidex";
    form.lblHeading.Caption = "  Messages";
    showAll({&form.lblHeading, &form.lvCat}, true);
    showAll({&form.gridDays, &form.MonthView1, &form.lvUsers, &form.lblUsers, &form.lvDiary, &form.web, &form.Label1,
             &form.Label2},
            false);
    form.lvCat.Tag = "MESSAGE";
    form.lvCat.View = lvwReport;
    form.lvCat.ColumnHeaders.Clear();
    for (const char* caption : {"Date", "To", "type", "Details"}) form.lvCat.ColumnHeaders.Add(caption);
    // The list of the calendar's date takes the whole width of the main area.
    resize();
    glbMessages.DisplayMessages(glbMessages.fname(), form.lvCat, 1);
    const long shown =
        form.lvCat.ListItems.Count() == 1 && form.lvCat.ListItems(1).Key() == "NULL" ? 0 : form.lvCat.ListItems.Count();
    form.status.Panels(1).Text = CStr(shown) + " Messages";
}

void clsDiaryScreen::setUpFiles() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "My Files - Orbidex";
    form.lblHeading.Caption = "  My Files";
}

void clsDiaryScreen::setUpMoney() {
    frmClientDiaryMain& form = *form_;
    form.Caption = "Money - Brindlewick Software's Orbidex";
    form.lblHeading.Caption = "  Money";
}

void clsDiaryScreen::selectTreeNode(const std::string& key) {
    if (Node* node = form_->tv.Nodes.Item(key)) form_->tv.SetSelectedItem(node);
    // The shortcut bar marks the mode on screen too, however it was chosen.
    if (ListItem* shortcut = form_->lvView.ListItems.Item(key)) form_->lvView.SetSelectedItem(shortcut);
}

}  // namespace orbidex
