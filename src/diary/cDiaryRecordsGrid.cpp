// The time grid: one row per time slot, one column per day, the events of each day
// placed in the row of their time, and the way back from a clicked cell to its event.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListBox.h"
#include "controls/MonthView.h"
#include "controls/StatusBar.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

/// More events than this in one day are shown only when the user agrees.
constexpr long kCrowdedDay = 50;
/// The day view's column fills the window; a narrow window still leaves it this wide.
constexpr long kNarrowestDayColumn = 1500;
/// Views of more days than this head each column with the day before its events.
constexpr int kDaysWithShiftedHeading = 10;

/// The heading cell of day `n` (from 1) and what its column holds.
void layOutDayColumn(FlexGrid& grid, const frmClientDiaryMain& form, VbDate start, int days, int n) {
    const long col = n + 1;
    const VbDate day = start + n - 1;
    grid.Row = 0;
    grid.Col = col;
    grid.CellFontBold = true;
    if (days == 1) {
        grid.SetColData(col, day);
        grid.SetColWidth(col, std::max(form.InsideWidth() - grid.Left - grid.CellLeft, kNarrowestDayColumn));
        grid.Text = "Details for " + FormatDate(day, "DDD-d-MMM-yyyy");
        grid.SetRowHeight(0, 0);  // lblHeading names the day instead
    } else if (days == 7) {
        grid.SetColData(col, day);
        grid.CellFontSize = 10;
        grid.SetColWidth(col, 1500);
        grid.SetColWidth(7, 1150);  // Saturday and Sunday
        grid.SetColWidth(8, 1150);
        grid.CellAlignment = flexAlignLeftTop;
        grid.Text = FormatDate(day, "DDD-d");
    } else if (days > kDaysWithShiftedHeading) {
        // The heading and the date a blank cell reports are those of the day before
        // the column's events; it has always been so.
        grid.SetColData(col, day - 1);
        grid.CellFontSize = 8;
        grid.CellFontName = "Arial Narrow";
        grid.CellFontBold = false;
        grid.SetColWidth(col, 351);
        grid.Text = FormatDate(day - 1, "d");
    }
}

/// Weekend columns are shaded top to bottom; today's heading stands out.
void colourDayColumn(FlexGrid& grid, VbDate day) {
    const std::string dayName = FormatDate(day, "DDD");
    if (dayName == "Sat" || dayName == "Sun") {
        grid.CellForeColor = vbGrayText;
        for (long r = 1; r < grid.Rows; ++r) {
            grid.Row = r;
            grid.CellBackColor = SettingColour(glbConfig.weekend_BackColor);
            grid.CellForeColor = SettingColour(glbConfig.weekend_ForeColor);
        }
        grid.Row = 0;
    } else {
        grid.CellForeColor = SettingColour(glbConfig.heading_ForeColor);
        grid.CellBackColor = SettingColour(glbConfig.heading_BackColor);
    }
    if (DateOnly(day) == Today()) grid.CellForeColor = SettingColour(glbConfig.today_ForeColor);
}

/// The two fixed columns: the hour, merged down over its slots, and the minutes.
void layOutTimeRows(FlexGrid& grid, const clsTimeSlots& slots, double hourFontSize) {
    for (long r = 1; r <= slots.totSlots; ++r) {
        grid.SetRowHeight(r, glbConfig.RowHeightMin);
        const std::string label = slots.tmeGet(r);
        grid.Row = r;
        grid.Col = 0;
        if (InStrText(1, label, "m") > 0) {
            grid.Text = Left(label, Len(label) - 2);
            grid.CellForeColor = vbBlack;
            grid.CellFontName = "Arial Black";
            grid.CellFontBold = true;
            grid.CellFontSize = hourFontSize;
            grid.CellAlignment = flexAlignRightTop;
            grid.Col = 1;
            grid.CellAlignment = flexAlignLeftTop;
            grid.Text = Right(Trim(label), 2);
            grid.CellForeColor = vbBlack;
            grid.CellFontName = "Arial";
            grid.CellFontBold = true;
            grid.CellFontSize = 8;
        } else {
            grid.Text = grid.TextMatrix(r - 1, 0);
            grid.Col = 1;
            grid.CellAlignment = flexAlignLeftTop;
            grid.Text = Right(Trim(slots.hhmmGet(r)), 2);
            grid.CellFontName = "Arial";
            grid.CellFontBold = false;
            grid.CellForeColor = vbGrayText;
            grid.CellFontSize = 8;
        }
    }
    grid.MergeCells = flexMergeFree;
    grid.SetMergeCol(0, true);
}

/// Asks whether a day of `count` events, more than a day normally holds, is drawn.
bool userWantsCrowdedDay(long count, VbDate day) {
    const std::string dayText = FormatDate(day, "DDD, d-mmm-yy");
    glbLog.log("WARNING - DisplayScheduleInGrid has more than 50 events in a single day - " + dayText, 0);
    const int answer =
        platform().MsgBox("WARNING - DisplayScheduleInGrid has " + CStr(count) + " events in a single day - " +
                              dayText + "\r\nDo you want to display them ?",
                          vbOKCancel, "Check date files");
    return answer != vbCancel;
}

/// The slot of the event's time, kept within the time rows.
long rowOfEvent(const cDiaryRecord& event, const clsTimeSlots& slots) {
    long hour = static_cast<long>(RoundHalfEven(std::clamp(Val(Left(event.TimeEvent, 2)), -1e6, 1e6)));
    const double minute = Val(Right(event.TimeEvent, 2));
    const long slot = slots.FindTimeSlot(hour, minute);
    return std::clamp(slot, 1L, static_cast<long>(slots.totSlots));
}

/// Colours the cells below `row` that the event's length reaches into.
void shadeSpan(FlexGrid& grid, long row, const cDiaryRecord& event, const clsTimeSlots& slots) {
    const double minutesPerSlot = 60.0 / std::max<int>(slots.numSlotsPerHour, 1);
    const double span = RoundHalfEven(Val(event.length) / minutesPerSlot);
    for (long k = 1; k <= span - 1 && row + k < grid.Rows; ++k) {
        grid.Row = row + k;
        grid.CellBackColor = SettingColour(glbConfig.spanning_BackColor);
    }
    grid.Row = row;
}

/// The event takes the cell alone.
void placeAlone(FlexGrid& grid, long row, const cDiaryRecord& event, const clsTimeSlots& slots, int32_t idNumber) {
    grid.Tag = event.ID;
    grid.Text = Trim(event.details);
    grid.SetRowData(row, idNumber);
    if (!event.DateRemind.empty()) grid.CellFontBold = true;
    grid.CellForeColor = SettingColour(glbConfig.normal_ForeColor);
    grid.CellBackColor = SettingColour(glbConfig.normal_BackColor);
    if (event.DateEvent == FormatDate(Today(), "yyyymmdd"))
        grid.CellForeColor = SettingColour(glbConfig.today_ForeColor);
    if (event.isDiaryRecordMeeting()) grid.CellForeColor = vbRed;
    shadeSpan(grid, row, event, slots);
}

/// The event joins the events already in the cell.  The row no longer names one
/// event, so a click finds the event by the cell's text.
void placeWithOthers(FlexGrid& grid, long row, const cDiaryRecord& event) {
    grid.Tag = event.ID;
    grid.CellForeColor = SettingColour(glbConfig.multi_ForeColor);
    grid.SetRowData(row, 0);
    const std::string before = grid.Text;
    grid.Text = before + " (" + event.TimeEvent + ")" + event.details;
    grid.CellBackColor = SettingColour(glbConfig.multi_BackColor);
}

/// With word wrap and autosize on, outside the month views, the row grows to the
/// lines its cell needs; the last event placed in the row decides.
void fitRowHeight(FlexGrid& grid, long row, long col, int days) {
    if (glbConfig.Wordwrap != 1 || days >= 10 || glbConfig.Autosize != 1) return;
    const double charsPerLine = static_cast<double>(grid.ColWidth(col)) / 7;
    const std::string text = grid.Text;
    double lines = charsPerLine > 0 ? RoundHalfEven(grid.CellFontSize * Len(text) / charsPerLine) : 20;
    lines = std::clamp(lines, 1.0, 20.0);
    const double wanted = lines > 1 ? (lines + 1.5) * 255 : glbConfig.RowHeightMin;
    if (wanted <= glbConfig.RowHeightMin)
        grid.SetRowHeight(row, glbConfig.RowHeightMin);
    else if (wanted < glbConfig.RowHeightMax + 255)
        grid.SetRowHeight(row, static_cast<long>(RoundHalfEven(wanted)));
    else
        grid.SetRowHeight(row, glbConfig.RowHeightMax);
}

bool isPrivate(const cDiaryRecord& event) {
    return event.status == "Private";
}

/// The day whose events column `col` shows: its data is the day before in views of
/// many days.
VbDate eventsDayOfColumn(const FlexGrid& grid, long col) {
    const VbDate data = grid.ColData(col);
    return grid.Cols - 2 > kDaysWithShiftedHeading ? data + 1 : data;
}

}  // namespace

void cDiaryRecords::InitGridForTimedSchedule(clsTimeSlots& slots, FlexGrid& grid, VbDate startDate, int days,
                                             frmClientDiaryMain& form) {
    grid.Visible = false;
    grid.Clear();
    grid.BackColor = SettingColour(glbConfig.normal_BackColor);
    grid.BackColorFixed = SettingColour(glbConfig.heading_BackColor);
    grid.ForeColor = SettingColour(glbConfig.normal_ForeColor);
    grid.ForeColorFixed = SettingColour(glbConfig.heading_ForeColor);
    grid.WordWrap = glbConfig.Wordwrap == 1;

    grid.Cols = 3;
    grid.Rows = 3;
    grid.Cols = days + 2;
    grid.Rows = slots.totSlots + 2;

    // Hour rows are low with one slot an hour: they get more height and a smaller hour.
    double hourFontSize = 12;
    if (slots.numSlotsPerHour < 2 && glbConfig.RowHeightMin < 401) {
        glbConfig.RowHeightMin = 400;
        hourFontSize = 10;
    }

    grid.SetColWidth(0, 600);
    grid.SetColWidth(1, 351);
    grid.FixedRows = 1;
    grid.FixedCols = 2;
    grid.MergeCells = flexMergeFree;
    grid.SetRowHeight(0, 500);
    grid.FontName = "MS Sans Serif";

    for (int n = 1; n <= days; ++n) {
        layOutDayColumn(grid, form, startDate, days, n);
        colourDayColumn(grid, startDate + n - 1);
    }
    layOutTimeRows(grid, slots, hourFontSize);
    grid.Rows = grid.Rows - 1;
}

void cDiaryRecords::DisplayScheduleInGrid(clsTimeSlots& slots, FlexGrid& grid, VbDate date, int days,
                                          bool showFileEvents, ListBox* fileList) {
    grid.Visible = false;
    clearViewCounters();
    InitGridForTimedSchedule(slots, grid, date, days, MainForm());

    std::vector<cDiaryRecord> dayEvents;
    for (long col = 2; col <= days + 1; ++col) {
        const VbDate day = date + col - 2;
        const long count = FilterEventsFromArray(day, dayEvents, true, "");
        // Cancel leaves the grid hidden: the next drawing brings it back.
        if (count > kCrowdedDay && !userWantsCrowdedDay(count, day)) return;
        for (const cDiaryRecord& event : dayEvents) {
            if (setAsideFileEvent(event, showFileEvents, fileList)) continue;
            ++eventsShown_;
            AddMinutes(totTime_, event.length);
            placeEventInGrid(event, slots, grid, col, days);
        }
    }
    grid.Visible = true;
}

bool cDiaryRecords::setAsideFileEvent(const cDiaryRecord& event, bool showFileEvents, ListBox* fileList) {
    if (showFileEvents || !IsGridFileEvent(event)) return false;
    const int16_t shown = glbConfig.DisplayFileEvents;
    if ((shown == 2 && event.Action == "Usage") || (shown == 1 && event.Action == "PCFile")) return true;

    std::string text = event.details;
    if (event.Action != "Usage" && !event.URL.empty() && shown == 2) text = event.URL;
    ++usageEvents_;
    AddMinutes(usageTime_, event.length);
    if (fileList != nullptr) {
        const std::string when =
            glbConfig.DayWeekMonth != 1 ? event.DateEvent + " " + event.TimeEvent : event.TimeEvent;
        fileList->AddItem(when + " " + text);
    }
    return true;
}

void cDiaryRecords::placeEventInGrid(const cDiaryRecord& event, clsTimeSlots& slots, FlexGrid& grid, long col,
                                     int days) {
    if (slots.totSlots < 1) return;  // a grid without time rows shows the heading only
    const long row = rowOfEvent(event, slots);
    grid.Row = row;
    grid.Col = col;
    grid.FillStyle = flexFillSingle;

    if (Trim(grid.Text).empty())
        placeAlone(grid, row, event, slots, IdConvertToLong(event.ID));
    else
        placeWithOthers(grid, row, event);
    if (isPrivate(event)) grid.CellForeColor = vbGrayText;

    fitRowHeight(grid, row, col, days);
    if (event.Reference == "PCFile" || event.Reference == "View" || event.Reference == "Edit") {
        grid.CellForeColor = SettingColour(glbConfig.PCFile_ForeColor);
        grid.CellBackColor = SettingColour(glbConfig.PCFile_BackColor);
    }
    if (isPrivate(event)) grid.CellForeColor = vbGrayText;
}

long cDiaryRecords::SelectDiaryRecordFromDayViewRow(const FlexGrid& grid, long row, long col) {
    // The row keeps only the identifier's last eight digits and the view gives the
    // year, so an event entered in another year than its own names some other event.
    const VbDate day = grid.ColData(col);
    const long index = SelectDiaryRecordFromID(IdConvertToString(day, grid.RowData(row)));
    if (index < 0) return -1;
    const cDiaryRecord& event = events(index);
    if (event.DateEvent != FormatDate(day, "yyyymmdd") || Trim(event.details) != Trim(grid.TextMatrix(row, col)))
        return -1;
    return index;
}

bool cDiaryRecords::GetEventFromGrid(FlexGrid& grid, MonthView& calendar, StatusBar& statusBar) {
    glbLog.log("GetEventFromGrid BEFORE: gintcur=" + CStr(gintcur), 3);
    const long row = grid.Row;
    const long col = grid.Col;
    const bool dayView = glbConfig.DayWeekMonth == 1;
    const std::string cellDate = FormatDate(dayView ? calendar.Value() : grid.ColData(col), "d-MMM-yyyy");
    const std::string slotTime = CalendarTimeSlots().hhmmGet(row);
    const std::string text = grid.Text;
    Panel& panel = statusBar.Panels(1);

    bool blank = false;
    if (Trim(text).empty()) {
        panel.Text = "Blank Timeslot on " + cellDate + " at " + slotTime;
        blank = true;
    } else {
        long index = -1;
        // In day view the row names its event; a cell of several events names none.
        if (dayView) index = SelectDiaryRecordFromDayViewRow(grid, row, col);
        if (index < 0) index = SelectDiaryRecordIndex(eventsDayOfColumn(grid, col), slotTime, text);
        index = AsCurrentIndex(index);
        if (index >= 0) {
            currentGridRow_ = row;
            currentGridCol_ = col;
        }
        gintcur = static_cast<int16_t>(index);
        gCurrentEvent.AssignRecord(index >= 0 ? &events(index) : nullptr);

        if (gintcur < 0) {
            panel.Text = "Multiple Events selected";
        } else {
            glbLog.log("User selected ID in grid : ID# " + gCurrentEvent.ID, 3);
            const std::string spent = gCurrentEvent.length.empty() ? std::string(" worked on '")
                                                                   : " spent " + gCurrentEvent.length + " minutes on '";
            panel.Text = "At " + gCurrentEvent.TimeEvent + " on " + gCurrentEvent.DateEvent + spent + "'" +
                         gCurrentEvent.details + "'";
        }
        if (grid.CellBackColor == SettingColour(glbConfig.multi_BackColor) &&
            grid.CellForeColor == SettingColour(glbConfig.multi_ForeColor))
            panel.Text = "Multiple Events for " + cellDate + " at " + slotTime;
    }
    glbLog.log("GetEventFromGrid AFTER: gintcur=" + CStr(gintcur), 3);
    return blank;
}

}  // namespace orbidex
