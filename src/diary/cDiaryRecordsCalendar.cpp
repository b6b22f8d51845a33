// The calendar side of the event store: the time grid, the event list and the
// view's statistics.  (Being written: these operations draw nothing yet.)
#include "diary/cDiaryRecords.h"

namespace orbidex {

void cDiaryRecords::DiaryTopLevelInitDisplay(frmClientDiaryMain&) {}
void cDiaryRecords::InitGridForTimedSchedule(clsTimeSlots&, FlexGrid&, VbDate, int, frmClientDiaryMain&) {}
void cDiaryRecords::DiaryTopLevelDisplay(VbDate) {}
void cDiaryRecords::DisplayScheduleInGrid(clsTimeSlots&, FlexGrid&, VbDate, int, bool, ListBox*) {}
long cDiaryRecords::FilterEventsFromArray(VbDate, std::vector<cDiaryRecord>&, bool, const std::string&) { return 0; }
bool cDiaryRecords::GetEventFromGrid(FlexGrid&, MonthView&, StatusBar&) { return true; }
void cDiaryRecords::CalendarDateClicked(frmClientDiaryMain&, VbDate) {}
long cDiaryRecords::GetMonthsEvents(VbDate, std::vector<std::string>&) { return 0; }
VbDate cDiaryRecords::GetDisplayStartDate(VbDate date) { return date; }
void cDiaryRecords::InitListViewForTimedSchedule(clsTimeSlots&, const cDiaryRecord&, ListView&) {}
void cDiaryRecords::DisplayScheduleInListView(ListView&, VbDate, int, const cDiaryRecord&) {}
void cDiaryRecords::SetListViewColumnsColour(ListItem&, long, OleColor) {}
void cDiaryRecords::ClearTotals() {}
void cDiaryRecords::DisplayStats(frmClientDiaryMain&, StatusBar&, VbDate) {}
std::string cDiaryRecords::ShowStats(const std::string&, const std::string&, long, const std::string&,
                                     const std::string&) {
    return "";
}

}  // namespace orbidex
