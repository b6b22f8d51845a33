// The command layer: the end of the program, the view commands and the mouse on the
// views.
#include "screen/clsDiaryCommand.h"

#include <algorithm>
#include <limits>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

clsDiaryCommand glbCmd;

namespace {

// gintcur is 16 bits: an event beyond its reach counts as none.
int16_t toIndex(long index) {
    return index < 0 || index > std::numeric_limits<int16_t>::max() ? int16_t{-1} : static_cast<int16_t>(index);
}

}  // namespace

void clsDiaryCommand::CommandExit() {
    glbComms.Logoff();
    if (form_ != nullptr) glbConfig.SaveFormSettings(*form_, gStrIniFile);
    platform().EndProgram(0);
}

void clsDiaryCommand::timerOn(bool on) {
    if (form_ != nullptr) form_->timerSecond.Enabled = on;
}

void clsDiaryCommand::setViewLength(int days, int menuIndex) {
    glbConfig.DayWeekMonth = static_cast<int16_t>(days);
    glbNumDaysToDisplay = static_cast<int16_t>(days);
    if (form_ == nullptr) return;
    for (Menu& entry : form_->mnuViewType) entry.Checked = entry.Index() == menuIndex;
    glbScreen.PressViewButton();
}

void clsDiaryCommand::ViewDay() {
    setViewLength(1, 0);
}
void clsDiaryCommand::ViewWeek() {
    setViewLength(7, 1);
}
void clsDiaryCommand::ViewFortnight() {
    setViewLength(14, 2);
}
void clsDiaryCommand::ViewMonth() {
    setViewLength(31, 3);
}

void clsDiaryCommand::redrawView() {
    if (form_ == nullptr) return;
    form_->MonthView1_DateClick(form_->MonthView1.Value);
    glbScreen.resize();
}

void clsDiaryCommand::ViewGrid() {
    glbConfig.GridOrList = "GRID";
    glbConfig.SaveAllSettings();
    if (form_ == nullptr) return;
    form_->gridDays.Visible = true;
    form_->lvDiary.Visible = false;
    redrawView();
}

void clsDiaryCommand::ViewList() {
    glbConfig.GridOrList = "LIST";
    glbConfig.SaveAllSettings();
    if (form_ == nullptr) return;
    form_->gridDays.Visible = false;
    form_->lvDiary.Visible = true;
    redrawView();
}

void clsDiaryCommand::ViewToday() {
    if (form_ == nullptr) return;
    form_->MonthView1.Value = Today();
    const std::string& mode = glbScreen.Mode();
    if (mode == "CALENDAR") glbEvents.CalendarDateClicked(*form_, Today());
    if (mode == "HOME") glbScreen.SwitchMode("HOME");
}

void clsDiaryCommand::viewRefresh() {
    timerOn(false);
    if (glbScreen.Mode() != "STAFF") {
        if (Val(glbConfig.runLocalModeOnly) == 0) serverPing();
        glbScreen.SwitchMode(glbScreen.Mode(), true);
    } else {
        serverRefreshStaffData();
    }
    timerOn(true);
}

void clsDiaryCommand::viewBrowser() {
    if (form_ == nullptr) return;
    Menu& entry = form_->mnuViewBrowser;
    entry.Checked = !entry.Checked;
    if (entry.Checked) {
        form_->web.Navigate2(platform().ProgramFolder() + "\\__view.html");
        form_->web.Visible = true;
    } else {
        form_->web.Visible = false;
    }
    glbScreen.resize();
}

void clsDiaryCommand::serverPing() {
    if (form_ == nullptr) return;
    timerOn(false);
    form_->status.Panels(1).Text = "Pinging Server....";
    Button& server = form_->Toolbar1.Buttons("refresh");
    if (!glbServerAlive) {
        server.Image = "disconnect";
        form_->status.Panels(1).Text = "Orbidex - Local mode (server unavailable)";
    } else {
        server.Image = "server";
        form_->Caption = "Orbidex - Network mode.  Your username = " + glbMyUserName;
        form_->status.Panels(1).Text = "Orbidex - connected to server as " + glbMyUserName;
    }
    timerOn(true);
}

void clsDiaryCommand::MouseGridClicked(FlexGrid& grid) {
    if (form_ == nullptr) return;
    const std::string text = grid.Text;
    if (glbScreen.Mode() == "CALENDAR") {
        glbEvents.GetEventFromGrid(grid, form_->MonthView1, form_->status);
        grid.ToolTipText = text;
        const bool selected = gintcur >= 0;
        form_->EnableEntry(form_->mnuPopupGridEdit, selected);
        form_->EnableEntry(form_->mnuPopupGridDelete, selected);
        form_->EnableEntry(form_->mnuPopupGridReschedule, selected);
        return;
    }
    // The staff grid: the text of a cell, and whether the time is taken.
    std::string tip = "Blank Timeslot";
    if (!Trim(text).empty()) {
        tip = text;
        form_->status.Panels(2).Text = " " + text;
    }
    if (grid.CellBackColor == static_cast<OleColor>(glbConfig.spanning_BackColor)) tip += " BUSY";
    grid.ToolTipText = tip;
}

void clsDiaryCommand::MouseListClicked(ListView& list) {
    if (form_ == nullptr) return;
    const std::string& mode = glbScreen.Mode();
    ListItem* item = list.SelectedItem();
    if (mode == "CALENDAR") {
        if (item == nullptr) return;
        gintcur = toIndex(glbEvents.SelectDiaryRecordFromID(item->Key));
        const bool selected = gintcur >= 0;
        for (Menu* entry : {&form_->mnuAppEdit, &form_->mnuAppDelete, &form_->mnuAppReschedule,
                            &form_->mnuPopupGridEdit, &form_->mnuPopupGridDelete, &form_->mnuPopupGridReschedule})
            form_->EnableEntry(*entry, selected);
    } else if (mode == "MESSAGE") {
        if (item != nullptr) form_->status.Panels(1).Text = "Message = " + item->ToolTipText();
    } else if (mode != "TASK" && mode != "NOTE") {
        platform().MsgBox("MouseListClicked not setup for this data type yet", vbOKOnly, "");
    }
}

void clsDiaryCommand::unavailable(const std::string& what) {
    const std::string text = "Not available yet: " + what;
    glbLog.log(text, 3);
    if (form_ != nullptr) form_->status.Panels(1).Text = text;
}

void clsDiaryCommand::EventAdd(VbDate, const std::string&) {
    unavailable("adding an event");
}
void clsDiaryCommand::EventEdit() {
    unavailable("editing an event");
}
void clsDiaryCommand::EventDelete() {
    unavailable("deleting an event");
}
void clsDiaryCommand::EventReschedule() {
    unavailable("rescheduling an event");
}
void clsDiaryCommand::EventAddMultidayEvent() {
    unavailable("events of several days");
}
void clsDiaryCommand::TaskAdd(VbDate) {
    unavailable("adding a task");
}
void clsDiaryCommand::TaskEdit() {
    unavailable("editing a task");
}
void clsDiaryCommand::TaskDelete() {
    unavailable("deleting a task");
}
void clsDiaryCommand::NoteAdd() {
    unavailable("adding a note");
}
void clsDiaryCommand::NoteEdit() {
    unavailable("editing a note");
}
void clsDiaryCommand::NoteDelete() {
    unavailable("deleting a note");
}
void clsDiaryCommand::BookMeeting(VbDate, const std::string&) {
    unavailable("booking a meeting");
}
void clsDiaryCommand::Search() {
    unavailable("searching");
}
void clsDiaryCommand::ShowOptions() {
    unavailable("the options");
}
void clsDiaryCommand::ViewYear() {
    unavailable("the annual calendar");
}
void clsDiaryCommand::serverRefreshStaffData() {
    unavailable("the staff planner's data");
}

}  // namespace orbidex
