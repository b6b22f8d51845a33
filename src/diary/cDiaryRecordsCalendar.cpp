// The calendar side of the event store: the one entry that draws the view, the move
// of the calendar to a date with the loads it needs, and the events of one day.
#include "config/clsConfigDiary.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

/// The heading over the view of `days` days from `start`; "" for a length that
/// has no view.
std::string viewHeading(int days, VbDate start) {
    if (days == 1) return "  Events for " + FormatDate(start, "DDDD, d-MMM-yyyy");
    if (days == 7) return "  Events for Week beginning " + FormatDate(start, "d-MMM-yyyy");
    if (days >= 11) return "  Events for Month of " + FormatDate(start, "MMM-yyyy");
    return "";
}

/// The days the event list shows for a view: a fortnight shows as a month.
int listDays(int days) {
    if (days == 1 || days == 7) return days;
    return days >= 11 ? 31 : 0;
}

/// The loads and the statistics read the view's length from glbNumDaysToDisplay.
void followViewLength() {
    glbNumDaysToDisplay = glbConfig.DayWeekMonth;
}

}  // namespace

VbDate cDiaryRecords::GetDisplayStartDate(VbDate date) {
    const int days = glbConfig.DayWeekMonth;
    if (days == 1) return date;
    if (days == 7) return MondayOnOrBefore(date);
    if (days >= 11) return DateSerial(Year(date), Month(date), 1);
    return 0;
}

void cDiaryRecords::DiaryTopLevelInitDisplay(frmClientDiaryMain& form) {
    if (glbConfig.GridOrList == "GRID")
        InitGridForTimedSchedule(CalendarTimeSlots(), form.gridDays, GetDisplayStartDate(form.MonthView1.Value),
                                 glbConfig.DayWeekMonth, form);
    else
        InitListViewForTimedSchedule(CalendarTimeSlots(), gListViewHeadings, form.lvDiary);
}

void cDiaryRecords::DiaryTopLevelDisplay(VbDate date) {
    frmClientDiaryMain& form = MainForm();
    followViewLength();
    platform().SetBusyCursor(true);
    DiaryTopLevelInitDisplay(form);
    platform().DoEvents();
    clearViewCounters();

    const VbDate start = GetDisplayStartDate(date);
    const int days = glbConfig.DayWeekMonth;
    const std::string heading = viewHeading(days, start);
    if (glbConfig.GridOrList == "GRID") {
        if (days == 1) {
            DisplayScheduleInGrid(CalendarTimeSlots(), form.gridDays, form.MonthView1.Value, 1, false, nullptr);
            form.lblHeading.Caption = heading;
        } else if (!heading.empty()) {
            form.lblHeading.Caption = heading;
            DisplayScheduleInGrid(CalendarTimeSlots(), form.gridDays, start, days, false, nullptr);
        }
    } else {
        form.lvDiary.Visible = false;
        if (!heading.empty()) {
            form.lblHeading.Caption = heading;
            DisplayScheduleInListView(form.lvDiary, start, listDays(days), gListViewHeadings);
        }
        form.lvDiary.Visible = true;
        platform().DoEvents();
    }

    DisplayStats(form, form.status, start);
    platform().DoEvents();
    glbScreen.resize();
    platform().SetBusyCursor(false);
}

void cDiaryRecords::CalendarDateClicked(frmClientDiaryMain& form, VbDate date) {
    followViewLength();
    gintcur = -1;
    form.MonthView1.Value = date;
    platform().SetBusyCursor(true);
    reloadMonthIfNeeded(date);

    // A view that crosses a month end needs the month next to this one as well.
    const int days = glbConfig.DayWeekMonth;
    if (days > 2 && days < 16) {
        if (Month(date - days) != Month(date)) {
            glbLog.log(
                "User clicked FIRST calendar date in  week mode" + FormatDate(date, "ddddd") + " - now loading data",
                3);
            LoadDiaryData(date);
        } else if (Month(date + days) != Month(date)) {
            glbLog.log(
                "User clicked LAST calendar date in  week mode" + FormatDate(date, "ddddd") + " - now loading data", 3);
            LoadDiaryData(date);
        }
    }

    shownMonth_ = Month(date);
    DiaryTopLevelDisplay(form.MonthView1.Value);
    platform().SetBusyCursor(false);
    glbRefreshNeeded = false;
    if (form.mnuViewBrowser.Checked) showPageInBrowser(form, date);
}

void cDiaryRecords::reloadMonthIfNeeded(VbDate date) {
    if (FormatDate(date, "yyyymm") != FormatDate(gLngWhichMonthIsLoaded, "yyyymm")) {
        LoadDiaryData(date);
    } else if (stampOf(gStrDiaryDataFile) != fileStamp_) {
        glbLog.log("Auto reloading datafile ... disk version changed", 0);
        LoadDiaryData(date);
    }
}

void cDiaryRecords::showPageInBrowser(frmClientDiaryMain& form, VbDate date) {
    const std::string page = gStrDataPath + "D" + FormatDate(date, "yyyymm") + ".html";
    std::vector<cDiaryRecord> dayEvents;
    const long count = FilterEventsFromArray(form.MonthView1.Value, dayEvents, true, "");
    ConvertEventsToHTML(dayEvents, count, page, date, "", true);
    platform().DoEvents();
    form.web.Navigate2(page + "#day" + FormatDate(date, "yyyymmdd"));
}

long cDiaryRecords::FilterEventsFromArray(VbDate date, std::vector<cDiaryRecord>& events, bool hideFileEvents,
                                          const std::string& keyword) {
    events.clear();
    const std::string day = FormatDate(date, "yyyymmdd");
    const std::string word = Trim(keyword);
    for (long i = 0; i <= totEvents(); ++i) {
        if (IsEmptySlot(i)) {
            // The top slot is empty by design; only a slot emptied inside the array is news.
            if (i < totEvents())
                glbLog.log("Event #" + CStr(i) + " of " + CStr(gIntTotalEvents) + " is set to nothing", 0);
            continue;
        }
        const cDiaryRecord& event = *slots_[static_cast<size_t>(i)];
        if (event.DateEvent != day) continue;
        if (hideFileEvents && (event.IsFileUsage() || event.IsDiaryEventAfileAccess() || event.IsDiaryEventPCUsage()))
            continue;
        if (!word.empty() && InStrText(1, event.details, word) == 0) continue;
        events.emplace_back().AssignRecord(event);
    }
    return static_cast<long>(events.size());
}

long cDiaryRecords::GetMonthsEvents(VbDate date, std::vector<std::string>& lines) {
    lines.clear();
    std::string bytes;
    ReadWholeFile(diaryFileName(date), bytes);
    const std::string fileEventMarker = std::string(kFieldDelimiter) + "PCFile" + std::string(kFieldDelimiter);
    for (const std::string& line : SplitLines(bytes))
        if (InStr(line, fileEventMarker) == 0) lines.push_back(line);
    return static_cast<long>(lines.size());
}

}  // namespace orbidex
