// The main window's handlers: loading, resizing and closing the window, the clicks on
// its controls, and the two splitters.
#include "screen/frmClientDiaryMain.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "config/clsConfigDiary.h"
#include "controls/KeyCodes.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "network/cMessages.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"

namespace orbidex {

namespace {

std::unique_ptr<frmClientDiaryMain> gMainForm;

// A click on a column's heading sorts by it, ascending; a second click on the same
// heading turns the order round.
void sortByColumn(ListView& list, const ColumnHeader& column) {
    const long key = column.Index() - 1;
    if (list.Sorted && list.SortKey == key)
        list.SortOrder = list.SortOrder == lvwAscending ? lvwDescending : lvwAscending;
    else
        list.SortOrder = lvwAscending;
    list.SortKey = key;
    list.Sorted = true;
}

}  // namespace

frmClientDiaryMain::frmClientDiaryMain() : Form("frmClientDiaryMain") {
    Caption = "Brindlewick Software's Orbidex";
    Move(0, 0, 9600, 7200);  // the design size; the settings give the real place
    placeControls();
    bindControls();
    bindDrops();
    bindMenus();
    disableEntriesWithoutOperation();
}

// The look of the controls and their place before the first layout.
void frmClientDiaryMain::placeControls() {
    mnuPopupGrid.Visible = false;
    lvView.View = lvwIcon;
    lvView.Visible = false;
    tv.Visible = false;
    lvCat.View = lvwReport;
    lvCat.FullRowSelect = true;
    lvCat.LastColumnFills = true;  // the task's text or the note's title
    lvDiary.View = lvwReport;
    lvDiary.FullRowSelect = true;
    lvUsers.View = lvwReport;
    lvUsers.Checkboxes = true;
    lvUsers.Visible = false;
    lblUsers.Visible = false;
    lblHeading.FontName = "Arial";
    lblHeading.FontSize = 12;
    lblHeading.FontBold = true;
    lblHeading.Move(4800, 0, 6000, 375);
    for (Label* splitter : {&imgSplitter, &imgVert}) splitter->BackColor = vbButtonShadow;
    imgVert.Visible = false;
    web.Visible = false;
    lstTasks.Visible = false;
    MonthView1.Move(0, 0, 3600, 2700);
    lvCat.Move(0, 2760, 3600, 3000);
    gridDays.Move(4800, 375, 6000, 5000);
    lvDiary.Move(4800, 375, 6000, 5000);
    lvDiary.Visible = false;
    timerSecond.Interval = 500;  // often enough that no second is missed
}

void frmClientDiaryMain::bindControls() {
    tv.onNodeClick = [this](Node& node) { tv_NodeClick(node); };
    lvView.onItemClick = [this](ListItem& item) { lvView_ItemClick(item); };
    Toolbar1.onButtonClick = [this](Button& button) { Toolbar1_ButtonClick(button); };
    Toolbar1.onButtonMenuClick = [this](ButtonMenu& entry) { Toolbar1_ButtonMenuClick(entry); };
    MonthView1.onDateClick = [this](VbDate day) { MonthView1_DateClick(day); };
    gridDays.onClick = [this] { gridDays_Click(); };
    gridDays.onDblClick = [this] { gridDays_DblClick(); };
    gridDays.onMouseUp = [this](int button, int shift, long x, long y) { gridDays_MouseUp(button, shift, x, y); };
    gridDays.onKeyDown = [this](int& keyCode, int shift) { gridDays_KeyDown(keyCode, shift); };
    gridDays.onKeyUp = [this](int& keyCode, int shift) { gridDays_KeyUp(keyCode, shift); };
    lvDiary.onItemClick = [this](ListItem& item) { lvDiary_ItemClick(item); };
    lvDiary.onDblClick = [this] { lvDiary_DblClick(); };
    lvDiary.onColumnClick = [this](ColumnHeader& column) { lvDiary_ColumnClick(column); };
    lvCat.onItemClick = [this](ListItem& item) { lvCat_ItemClick(item); };
    lvCat.onDblClick = [this] { lvCat_DblClick(); };
    lvCat.onKeyDown = [this](int& keyCode, int shift) { lvCat_KeyDown(keyCode, shift); };
    lvCat.onColumnClick = [this](ColumnHeader& column) { lvCat_ColumnClick(column); };
    lvUsers.onItemCheck = [](ListItem&) { glbCmd.StaffUsersTicked(); };
    lvUsers.onDblClick = [this] { glbMessages.EnterChatMode(*this, ""); };
    imgSplitter.onMouseDown = [this](int b, int s, long x, long y) { imgSplitter_MouseDown(b, s, x, y); };
    imgSplitter.onMouseMove = [this](int b, int s, long x, long y) { imgSplitter_MouseMove(b, s, x, y); };
    imgSplitter.onMouseUp = [this](int b, int s, long x, long y) { imgSplitter_MouseUp(b, s, x, y); };
    imgVert.onMouseDown = [this](int b, int s, long x, long y) { imgVert_MouseDown(b, s, x, y); };
    imgVert.onMouseMove = [this](int b, int s, long x, long y) { imgVert_MouseMove(b, s, x, y); };
    imgVert.onMouseUp = [this](int b, int s, long x, long y) { imgVert_MouseUp(b, s, x, y); };
    timerSecond.onTimer = [this] { timerSecond_Timer(); };
}

void frmClientDiaryMain::Form_Load() {
    web.Navigate2("about:blank");
    timerSecond.Enabled = false;  // no tick before the start-up is over
    MonthView1.Value = Today();
    MonthView1_DateClick(Today());
}

void frmClientDiaryMain::Form_Resize() {
    glbScreen.resize();
    ResizeGridColumns();
}

void frmClientDiaryMain::Form_Unload(int& cancel) {
    cancel = 1;
    glbCmd.CommandExit();
}

void frmClientDiaryMain::ResizeGridColumns() {
    if (glbConfig.GetValue("appointments", "AutosizeWidth") == "1") glbScreen.ResizeGridColumns(gridDays);
}

void frmClientDiaryMain::timerSecond_Timer() {
    // One time of day for the whole body: the second that started it decides whether
    // this is the full minute, so a minute's work never runs twice.
    const VbDate now = Now();
    const std::string second = FormatDate(now, "hh:mm:ss");
    if (second == lastSecond_) return;
    lastSecond_ = second;
    timerSecond.Enabled = false;
    const bool client = NETWORK_STRING == "CLIENT";
    const bool serverWanted = client && Val(glbConfig.runLocalModeOnly) == 0;
    if (serverWanted) glbComms.UpdateServerWithChangedFiles(gStrDataPath);
    if (client && (glbChatMode || glbComms.glbPollFrequently() == "True")) glbComms.CheckForServerRequests();
    if (Second(now) != 0) {
        timerSecond.Enabled = true;
        return;
    }

    if (serverWanted) {
        if (glbConfig.RetryAfterOutage == 0 && !glbServerAlive) {
            glbLog.log("Server is down - checking to see if its alive", 0);
            glbDiaryComms.PingClient();
        }
        glbComms.CheckForServerRequests();
        if (glbRefreshNeeded) {
            glbCmd.viewRefresh();
            timerSecond.Enabled = false;  // the refresh turns the timer back on
        }
    }
    platform().DoEvents();
    glbScreen.CheckReminders();
    glbScreen.RefreshOverviewIfStale();
    timerSecond.Enabled = true;
}

void frmClientDiaryMain::tv_NodeClick(Node& node) {
    glbCmd.NavigationClicked(node.Key(), node.Text);
}

void frmClientDiaryMain::lvView_ItemClick(ListItem& item) {
    glbScreen.SwitchMode(item.Key);
}

void frmClientDiaryMain::Toolbar1_ButtonClick(Button& button) {
    glbCmd.ToolbarClicked(button.Key);
}

void frmClientDiaryMain::Toolbar1_ButtonMenuClick(ButtonMenu& entry) {
    glbCmd.ToolbarClicked(entry.Key);
}

void frmClientDiaryMain::MonthView1_DateClick(VbDate day) {
    glbNumDaysToDisplay = glbConfig.DayWeekMonth;
    // The staff planner draws its own day; everywhere else the calendar moves.
    if (glbScreen.Mode() == "STAFF") {
        bool force = false;
        glbDiaryComms.GetStaffEvents(day, force);
        glbScreen.DisplayStaffEvents();
        return;
    }
    glbEvents.CalendarDateClicked(*this, day);
}

void frmClientDiaryMain::gridDays_Click() {
    glbCmd.MouseGridClicked(gridDays);
}

void frmClientDiaryMain::gridDays_DblClick() {
    glbCmd.MouseGridDbleClicked(gridDays);
}

void frmClientDiaryMain::gridDays_MouseUp(int button, int, long, long) {
    if (button == vbRightButton && glbScreen.Mode() == "CALENDAR") PopupMenu(mnuPopupGrid);
}

void frmClientDiaryMain::gridDays_KeyDown(int& keyCode, int) {
    if (keyCode == vbKeyReturn) {
        keyCode = 0;
        gridDays_DblClick();
    } else if (keyCode == vbKeyDelete && glbScreen.Mode() == "CALENDAR") {
        keyCode = 0;
        glbCmd.EventDelete();
    }
}

void frmClientDiaryMain::gridDays_KeyUp(int& keyCode, int) {
    // The keys that move the current cell: the grid has moved it when the key comes up.
    static constexpr int kMovingKeys[] = {vbKeyLeft, vbKeyUp,  vbKeyRight,  vbKeyDown,
                                          vbKeyHome, vbKeyEnd, vbKeyPageUp, vbKeyPageDown};
    if (std::find(std::begin(kMovingKeys), std::end(kMovingKeys), keyCode) != std::end(kMovingKeys)) gridDays_Click();
}

void frmClientDiaryMain::lvDiary_ItemClick(ListItem&) {
    glbCmd.MouseListClicked(lvDiary);
}

void frmClientDiaryMain::lvDiary_DblClick() {
    glbCmd.MouseListDbleClicked(lvDiary);
}

void frmClientDiaryMain::lvDiary_ColumnClick(ColumnHeader& column) {
    sortByColumn(lvDiary, column);
}

void frmClientDiaryMain::lvCat_ItemClick(ListItem&) {
    glbCmd.MouseListClicked(lvCat);
}

void frmClientDiaryMain::lvCat_DblClick() {
    glbCmd.MouseListDbleClicked(lvCat);
}

void frmClientDiaryMain::lvCat_KeyDown(int& keyCode, int) {
    const std::string& mode = glbScreen.Mode();
    if (keyCode == vbKeyReturn && (mode == "TASK" || mode == "NOTE" || mode == "CALENDAR" || mode == "MESSAGE")) {
        keyCode = 0;
        lvCat_DblClick();
    } else if (keyCode == vbKeyDelete && (mode == "TASK" || mode == "NOTE" || mode == "MESSAGE")) {
        keyCode = 0;
        if (mode == "TASK")
            glbCmd.TaskDelete();
        else if (mode == "NOTE")
            glbCmd.NoteDelete();
        else
            glbMessages.DeleteMessages();
    }
}

void frmClientDiaryMain::lvCat_ColumnClick(ColumnHeader& column) {
    sortByColumn(lvCat, column);
}

void frmClientDiaryMain::imgSplitter_MouseDown(int button, int, long x, long) {
    movingSplitter_ = button == vbLeftButton;
    grabbedAt_ = x;
}

void frmClientDiaryMain::imgSplitter_MouseMove(int button, int, long x, long) {
    if (!movingSplitter_ || (button & vbLeftButton) == 0) return;
    const long columnLeft = MonthView1.Visible ? static_cast<long>(MonthView1.Left) : static_cast<long>(lvUsers.Left);
    glbScreen.SetColumnWidth(imgSplitter.Left + x - grabbedAt_ - columnLeft);
    glbScreen.resize();
}

void frmClientDiaryMain::imgSplitter_MouseUp(int, int, long, long) {
    if (!movingSplitter_) return;
    movingSplitter_ = false;
    ResizeGridColumns();
}

void frmClientDiaryMain::imgVert_MouseDown(int button, int, long, long y) {
    movingVert_ = button == vbLeftButton;
    grabbedAt_ = y;
}

void frmClientDiaryMain::imgVert_MouseMove(int button, int, long, long y) {
    if (!movingVert_ || (button & vbLeftButton) == 0) return;
    const long paneBottom = web.Top + web.Height;
    glbScreen.SetBrowserHeight(paneBottom - (imgVert.Top + y - grabbedAt_) - imgVert.Height);
    glbScreen.resize();
}

void frmClientDiaryMain::imgVert_MouseUp(int, int, long, long) {
    movingVert_ = false;
}

frmClientDiaryMain& MainForm() {
    if (!gMainForm) {
        gMainForm = std::make_unique<frmClientDiaryMain>();
        gMainForm->Load();
    }
    return *gMainForm;
}

void ResetMainForm() {
    gMainForm.reset();
}

}  // namespace orbidex
