// The event commands: add, edit, delete, reschedule, and one event on many dates.
// Each keeps timerSecond off while its dialog is open and draws the view after.
#include "config/clsConfigDiary.h"
#include "dialogs/frmEventMultiple.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "network/StaffGrid.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

VbDate clsDiaryCommand::selectedCellDate() const {
    const FlexGrid& grid = form_->gridDays;
    if (glbConfig.DayWeekMonth == 1) return form_->MonthView1.Value;
    return static_cast<VbDate>(grid.ColData(grid.Col));
}

void clsDiaryCommand::redrawCalendar() {
    if (glbScreen.Mode() == "CALENDAR") glbEvents.DiaryTopLevelDisplay(form_->MonthView1.Value);
}

void clsDiaryCommand::EventAdd(VbDate date, const std::string& time) {
    if (form_ == nullptr) return;
    timerOn(false);
    const FlexGrid& grid = form_->gridDays;
    // The staff planner's grid holds users and slots: the event goes on its chosen
    // day, at its chosen slot (at the present time outside the slots).
    const bool planner = glbScreen.Mode() == "STAFF";
    std::string slotTime = time;
    if (slotTime.empty()) slotTime = planner ? StaffChosenSlot(grid) : CalendarTimeSlots().hhmmGet(grid.Row);
    // An unset date shows by its year, so a real date of another year is replaced too.
    if (Year(date) != Year(Now())) {
        date = planner ? StaffChosenDay(grid, form_->MonthView1.Value) : selectedCellDate();
        if (date == 0) date = form_->MonthView1.Value;
    }
    glbEvents.DiaryEventAdd(date, slotTime, "");
    redrawCalendar();
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    timerOn(true);
}

void clsDiaryCommand::EventEdit() {
    if (form_ == nullptr) return;
    timerOn(false);
    glbEvents.DiaryEventEdit();
    redrawCalendar();
    timerOn(true);
}

void clsDiaryCommand::EventDelete() {
    if (form_ == nullptr) return;
    timerOn(false);
    glbEvents.DiaryEventDelete(false);
    redrawCalendar();
    timerOn(true);
}

void clsDiaryCommand::EventReschedule() {
    if (form_ == nullptr) return;
    if (glbConfig.GridOrList == "GRID") {
        // The event is the one under the selected cell.  In the day view the row names
        // it when that is the cell's event; otherwise (and in the other views, where a
        // row's number is that of the last event placed in any of its days) the event
        // is the one the click on this cell found.
        const FlexGrid& grid = form_->gridDays;
        const long named =
            glbConfig.DayWeekMonth == 1 ? glbEvents.SelectDiaryRecordFromDayViewRow(grid, grid.Row, grid.Col) : -1;
        if (named >= 0) {
            gintcur = AsCurrentIndex(named);
        } else if (grid.Row != glbEvents.currentGridRow() || grid.Col != glbEvents.currentGridCol()) {
            gintcur = -1;
        }
    }
    if (!glbEvents.HasSelectedEvent()) {
        platform().MsgBox("Selected an Appointment to reschedule", vbOKOnly, "");
        return;
    }
    RescheduleCurrentEvent();
}

void clsDiaryCommand::RescheduleCurrentEvent() {
    if (form_ == nullptr) return;
    timerOn(false);
    glbEvents.DiaryEventReschedule();
    glbEvents.DiaryTopLevelDisplay(form_->MonthView1.Value);
    timerOn(true);
}

void clsDiaryCommand::EventAddMultidayEvent() {
    if (form_ == nullptr) return;
    timerOn(false);
    {
        frmEventMultiple dialog;
        dialog.Show(true);
    }
    glbScreen.SwitchMode("CALENDAR");
    glbEvents.DiaryTopLevelDisplay(form_->MonthView1.Value);
    timerOn(true);
}

}  // namespace orbidex
