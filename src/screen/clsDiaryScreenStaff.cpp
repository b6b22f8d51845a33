// The staff planner on the main window: the grid of the ticked users' events, the
// list of users beside it and the day's messages.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/StaffGrid.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/cMessages.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void clsDiaryScreen::DisplayStaffEvents() {
    if (form_ == nullptr || drawingStaff_) return;
    drawingStaff_ = true;
    frmClientDiaryMain& form = *form_;
    platform().SetBusyCursor(true);
    FlexGrid& grid = form.gridDays;
    // Hidden while it is filled, so that it does not flicker.
    grid.Visible = false;

    const VbDate date = DateOnly(form.MonthView1.Value);
    // A range chosen in the calendar gives the days; otherwise the view's setting.
    const bool range = DateOnly(form.MonthView1.SelStart) == date;
    const long selected = range ? static_cast<long>(DateOnly(form.MonthView1.SelEnd) - date) : 0;
    int days = selected > 0 ? static_cast<int>(selected) : glbConfig.DayWeekMonth;
    if (days <= 0) days = 1;

    form.Caption = "Staff Planner - Brindlewick Softwares Orbidex";
    form.lblHeading.Caption =
        "  Staff Events for " + FormatDate(date, "DDDD,  d-MMM-yyyy") + (days > 1 ? " (" + CStr(days) + " days)" : "") +
        (glbDiaryComms.StaffServerSilent() ? "   (the server did not answer: its last answer is shown)" : "");
    const bool location = glbConfig.ShowLocation == 1;
    const bool details = glbConfig.ShowDetails == 1;
    GridInitStaff(form, grid, date, days, form.lvUsers);
    if (days > 1)
        GridFillManyDays(form.lvUsers, grid, date, days, location, details, false);
    else
        GridFillOneDay(form.lvUsers, grid, date, location, details, false);
    GridWidenSlots(grid);
    // The day is shown from its first slot, the first user's cell chosen.
    grid.Row = std::min<long>(2, grid.Rows - 1);
    grid.Col = 1;
    grid.LeftCol = 1;

    glbMessages.DisplayMessages(glbMessages.fname(), form.lvCat, 1);
    if (glbConfig.ShowShaded == 1) GridShadeEmptyCells(grid);
    form.lblUsers.Caption = CStr(static_cast<long>(TickedStaff(form.lvUsers).size())) + " of " +
                            CStr(form.lvUsers.ListItems.Count()) + " Staff displayed";
    grid.Visible = true;
    // While the planner stands, work from the server is looked for every second.
    glbComms.glbPollFrequently("True");
    showStatus();
    platform().SetBusyCursor(false);
    drawingStaff_ = false;
}

}  // namespace orbidex
