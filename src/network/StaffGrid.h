#pragma once
// The staff planner's grid: one row for each ticked user, the day's time slots
// across, one day or several side by side, filled from the local copy of the last
// results file.  Rows 0 and 1 are the hour and minute headings, the last row the
// totals of each slot, the last column the totals of each user.

#include <string>
#include <vector>

#include "foundation/VbDate.h"

namespace orbidex {

class FlexGrid;
class ListView;
class cDiaryRecord;
class frmClientDiaryMain;

/// The identifier of the event in each cell of the staff grid, in a table of the
/// grid's shape: a click finds the event by it.
extern std::vector<std::vector<std::string>> glbStaffCellIds;
/// The identifier kept for a cell; "" for none.
std::string StaffCellId(long row, long col);

/// The time ("hhmm") of the slot of the grid's chosen column; "" outside the slots.
std::string StaffChosenSlot(const FlexGrid& grid);
/// The day of the grid's chosen column in a planner whose first day is `firstDay`.
VbDate StaffChosenDay(const FlexGrid& grid, VbDate firstDay);

/// The names of the ticked rows of the list (their tags), in order, at most 99.
std::vector<std::string> TickedStaff(const ListView& userList);

/// Columns, headings and one row for each ticked user of `userList`, for `days`
/// days from `date`.
void GridInitStaff(frmClientDiaryMain& mainWindow, FlexGrid& grid, VbDate date, int days, const ListView& userList);
/// Places the events of `date` from the results file into the grid, then the totals.
void GridFillOneDay(const ListView& userList, FlexGrid& grid, VbDate date, bool showLocation, bool showDetails,
                    bool showPCUsage);
/// The same for `days` days from `date`, each event in the columns of its day.
void GridFillManyDays(const ListView& userList, FlexGrid& grid, VbDate date, int days, bool showLocation,
                      bool showDetails, bool showPCUsage);
/// Places one event in the grid's current row, in the columns of day `day` (from
/// 0) of a view of several days, or of the one day with `oneDayOnly`.  Gives the
/// column of its start; one at or beyond the last column is not drawn.
long GridPlaceEvent(const cDiaryRecord& record, FlexGrid& grid, int day, bool showLocation, bool showDetails,
                    bool oneDayOnly);
/// GridPlaceEvent in a view of several days.
long GridPlaceEventInDay(const cDiaryRecord& record, FlexGrid& grid, int day, bool showLocation, bool showDetails);
/// With Autosize on, the slots share the grid's width; they are never made narrower
/// than they are, so that a narrow window scrolls instead.
void GridWidenSlots(FlexGrid& grid);
/// Gives the slots nobody has taken a shade of their own.
void GridShadeEmptyCells(FlexGrid& grid);
/// Heads the last row "TOTAL".
void GridFillTotalRowHeading(FlexGrid& grid);

}  // namespace orbidex
