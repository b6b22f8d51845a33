// The running totals of the view and of a search, and the sentences made of them.
#include "config/clsConfigDiary.h"
#include "controls/StatusBar.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/cTasks.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void cDiaryRecords::clearViewCounters() {
    eventsShown_ = 0;
    usageEvents_ = 0;
    totTime_ = 0;
    usageTime_ = 0;
}

void cDiaryRecords::ClearTotals() {
    totTime_ = 0;
    totEventsFound_ = 0;
}

void cDiaryRecords::DisplayStats(frmClientDiaryMain& form, StatusBar& statusBar, VbDate date) {
    platform().DoEvents();
    const std::string spent = FormatMinutes(totTime_) + " spent on " + CStr(eventsShown_) + " events  ";
    std::string viewing;
    if (glbNumDaysToDisplay == 1)
        viewing = "Viewing " + FormatDate(date, "d-MMM-yy") + " ";
    else if (glbNumDaysToDisplay == 7)
        viewing = "Viewing Week beginning " + FormatDate(MondayOnOrBefore(date), "d-MMM-yy");
    else if (glbNumDaysToDisplay > 10)
        viewing = "Viewing " + FormatDate(date, "MMMM-yyyy");
    if (!viewing.empty()) {
        statusBar.Panels(1).Text = viewing;
        statusBar.Panels(2).Text = spent;
    }

    form.Label1.Caption = " PC Usage - " + FormatMinutes(usageTime_) + " on " + CStr(usageEvents_) + " logged events";
    form.Label2.Caption =
        " Tasks - " + CStr(glbTasks.CountActive()) + "  [approx: " + FormatMinutes(glbConfig.taskMinutes) + " ]";
}

std::string cDiaryRecords::ShowStats(const std::string& what, const std::string& searchText, long days,
                                     const std::string& fromDate, const std::string& toDate) {
    const std::string kind = UCase(what);
    std::string result;
    if (kind == "TOTEVENTS") {
        result = "Found " + FormatNumber(totEventsFound_, "###,###") + " events containing '" + searchText + "'  in " +
                 CStr(days) + " days (searched from " + fromDate + " to " + toDate + " )";
    } else if (kind == "TOTTIME") {
        // Averages over no days are those of one day.
        const double perDay = days < 1 ? 1.0 : static_cast<double>(days);
        const long averageMinutes = static_cast<long>(RoundHalfEven(totTime_ / perDay));
        result = "Total Time = " + FormatMinutes(totTime_) + " Avg Time/day= " + FormatMinutes(averageMinutes) +
                 " num events/day= " + FormatNumber(totEventsFound_ / perDay, "###.##");
    }
    glbLog.log("showStats=" + result, 3);
    return result;
}

}  // namespace orbidex
