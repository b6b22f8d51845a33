// The mouse on the views: clicks and double clicks on the time grid and the lists.
#include "config/clsConfigDiary.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cMessages.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kMultipleQuestion =
    "There are multiple events displayed in this timeslot.\r\n"
    "To edit them you need to view them as a list.\r\n"
    "\r\n"
    "Click 'Yes' to view in list mode\r\n"
    "Click 'No' to add another appointment to this timeslot\r\n"
    "Click 'Cancel' to do nothing and return to the Diary";

}  // namespace

void clsDiaryCommand::enableEventEntries(bool menuBarToo) {
    const bool selected = gintcur >= 0;
    for (Menu* entry : {&form_->mnuPopupGridEdit, &form_->mnuPopupGridDelete, &form_->mnuPopupGridReschedule})
        form_->EnableEntry(*entry, selected);
    if (!menuBarToo) return;
    for (Menu* entry : {&form_->mnuAppEdit, &form_->mnuAppDelete, &form_->mnuAppReschedule})
        form_->EnableEntry(*entry, selected);
}

void clsDiaryCommand::MouseGridClicked(FlexGrid& grid) {
    if (form_ == nullptr) return;
    const std::string text = grid.Text;
    if (glbScreen.Mode() == "CALENDAR") {
        glbEvents.GetEventFromGrid(grid, form_->MonthView1, form_->status);
        grid.ToolTipText = text;
        enableEventEntries(false);
        return;
    }
    // The staff grid: the text of a cell, and whether the time is taken.
    std::string tip = "Blank Timeslot";
    if (!Trim(text).empty()) {
        tip = text;
        form_->status.Panels(2).Text = " " + text;
    }
    if (grid.CellBackColor == SettingColour(glbConfig.spanning_BackColor)) tip += " BUSY";
    grid.ToolTipText = tip;
}

void clsDiaryCommand::MouseGridDbleClicked(FlexGrid& grid) {
    if (form_ == nullptr) return;
    if (glbScreen.Mode() == "STAFF") {
        BookMeeting(form_->MonthView1.Value, "");
        return;
    }
    glbLog.log(" grd_DblClick : gintcur=" + CStr(gintcur), 3);
    const std::string slotTime = CalendarTimeSlots().hhmmGet(grid.Row);
    if (Trim(grid.Text).empty()) {
        EventAdd(selectedCellDate(), slotTime);
    } else if (grid.CellBackColor == SettingColour(glbConfig.multi_BackColor)) {
        const int answer = platform().MsgBox(kMultipleQuestion, vbYesNoCancel, "Multiple Events in this Timeslot");
        if (answer == vbYes) {
            // The list is shown at once: the same mode without force would not be redrawn.
            glbConfig.GridOrList = "LIST";
            glbScreen.SwitchMode(glbScreen.Mode(), true);
        } else if (answer == vbNo) {
            EventAdd(selectedCellDate(), slotTime);
        }
    } else {
        EventEdit();
    }
}

std::string clsDiaryCommand::listKind(const ListView& list) const {
    std::string mode = glbScreen.Mode();
    if (mode == "TASKS") mode = "TASK";
    if (mode == "DIARY") mode = "CALENDAR";
    if (mode == "CALENDAR" && &list == &form_->lvCat) return "TASK";
    return mode;
}

void clsDiaryCommand::MouseListClicked(ListView& list) {
    if (form_ == nullptr) return;
    const std::string mode = listKind(list);
    ListItem* item = list.SelectedItem();
    if (mode == "CALENDAR") {
        if (item == nullptr) return;
        gintcur = AsCurrentIndex(glbEvents.SelectDiaryRecordFromID(item->Key));
        enableEventEntries(true);
    } else if (mode == "TASK") {
        selectTask(item);
    } else if (mode == "NOTE") {
        selectNote(item);
    } else if (mode == "MESSAGE") {
        if (item != nullptr) form_->status.Panels(1).Text = "Message = " + item->ToolTipText();
    } else {
        platform().MsgBox("MouseListClicked not setup for this data type yet", vbOKOnly, "");
    }
}

void clsDiaryCommand::MouseListDbleClicked(ListView& list) {
    if (form_ == nullptr) return;
    const std::string mode = listKind(list);
    const VbDate date = form_->MonthView1.Value;
    const bool empty = list.ListItems.Count() == 0;
    // The row double-clicked is the one to open, however it was chosen.
    if (mode == "TASK") {
        if (empty) {
            TaskAdd(date);
        } else {
            selectTask(list.SelectedItem());
            TaskEdit();
        }
    } else if (mode == "CALENDAR") {
        if (empty)
            EventAdd(date, "");
        else
            EventEdit();
        glbEvents.DiaryTopLevelDisplay(form_->MonthView1.Value);
    } else if (mode == "NOTE") {
        if (empty) {
            NoteAdd();
        } else {
            selectNote(list.SelectedItem());
            NoteEdit();
        }
    } else if (mode == "MESSAGE") {
        // The line that says there are none opens nothing.
        if (const ListItem* item = list.SelectedItem(); item != nullptr && item->Key != "NULL")
            glbMessages.ShowMessageFromList(*item);
    } else {
        platform().MsgBox("MouseListDbleClicked not setup for this data type yet", vbOKOnly, "");
    }
}

}  // namespace orbidex
