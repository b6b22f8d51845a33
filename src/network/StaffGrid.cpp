#include "network/StaffGrid.h"

#include <algorithm>

#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListView.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"

namespace orbidex {

std::vector<std::vector<std::string>> glbStaffCellIds;

namespace {

constexpr size_t kMostStaff = 99;
constexpr long kFirstUserRow = 2;
constexpr long kSlotWidth = 390;
/// A day alone has room for the texts of its events.
constexpr long kDaySlotWidth = 600;
/// Twips left for the grid's scroll bar when the slots share its width.
constexpr long kScrollBarRoom = 300;
/// Twips a character of a name or a total takes, for the widths of those columns.
constexpr long kCharWidth = 110;
/// Pixels a character takes, for the lines a long text needs in its row.
constexpr long kCharPixels = 7;
constexpr long kTwipsPerPixel = 15;
constexpr long kLineHeight = 255;
constexpr long kHourRowHeight = 360;
constexpr long kMostLines = 20;
constexpr OleColor kPrivateText = 0x80000011;
constexpr OleColor kTotalsText = 0x808080;

// The minutes in each cell, beside the identifiers: a slot taken twice with neither
// details nor location shows the sum.
std::vector<std::vector<long>> cellMinutes;

template <typename T>
T* cellOf(std::vector<std::vector<T>>& table, long row, long col) {
    if (row < 0 || col < 0 || static_cast<size_t>(row) >= table.size()) return nullptr;
    std::vector<T>& cells = table[static_cast<size_t>(row)];
    return static_cast<size_t>(col) < cells.size() ? &cells[static_cast<size_t>(col)] : nullptr;
}

long columnsOf(int days) {
    const long perDay = CalendarTimeSlots().totSlots + 1;
    return perDay * days + (days > 1 ? 2 : 1);
}

// The widths of the name and total columns by the slots an hour; wider where a
// name or a total would not fit.
long fixedColumnWidth() {
    const int perHour = CalendarTimeSlots().numSlotsPerHour;
    return perHour <= 1 ? 700 : perHour == 2 ? 600 : 590;
}

// A "." marks a cell as taken without showing anything: it takes the cell's back
// colour.
void setHiddenOrShown(FlexGrid& grid, const std::string& text) {
    grid.Text = text;
    if (text == ".") grid.CellForeColor = grid.CellBackColor;
}

/// Event counts and minutes by column and by row.
struct Totals {
    std::vector<long> colCount, colMinutes, rowCount, rowMinutes;
    Totals(long rows, long cols)
        : colCount(static_cast<size_t>(cols)),
          colMinutes(static_cast<size_t>(cols)),
          rowCount(static_cast<size_t>(rows)),
          rowMinutes(static_cast<size_t>(rows)) {}
    void add(long row, long col, long totalsRow, long minutes) {
        colCount[static_cast<size_t>(col)] += 1;
        colMinutes[static_cast<size_t>(col)] += minutes;
        for (long r : {row, totalsRow}) {
            rowCount[static_cast<size_t>(r)] += 1;
            rowMinutes[static_cast<size_t>(r)] += minutes;
        }
    }
};

void writeTotals(FlexGrid& grid, const Totals& totals) {
    const long lastRow = grid.Rows - 1;
    const long lastCol = grid.Cols - 1;
    const bool shown = glbConfig.ShowTotals == 1;
    grid.Row = lastRow;
    for (long col = 1; col < lastCol; ++col) {
        const long count = totals.colCount[static_cast<size_t>(col)];
        if (count == 0) continue;
        grid.Col = col;
        setHiddenOrShown(grid, shown ? FormatNumber(totals.colMinutes[static_cast<size_t>(col)], "###,###") + " min (" +
                                           FormatNumber(count, "###,###") + " events)"
                                     : ".");
    }
    grid.Col = lastCol;
    for (long row = kFirstUserRow; row <= lastRow; ++row) {
        grid.Row = row;
        const long count = totals.rowCount[static_cast<size_t>(row)];
        grid.CellBackColor = vbWhite;
        grid.CellForeColor = kTotalsText;
        setHiddenOrShown(grid, count > 0 && shown ? FormatNumber(totals.rowMinutes[static_cast<size_t>(row)], "###") +
                                                        " min in " + FormatNumber(count, "###") + " events"
                                                  : ".");
    }
}

// Only the date field is looked at before a line is read whole: most lines of the
// window lie on other days.  A line of fewer fields is read whole, as the reader
// fills its date from the fields before.
std::string_view dateFieldOf(std::string_view line) {
    const size_t first = line.find('\x1F');
    if (first == std::string_view::npos) return {};
    const size_t second = line.find('\x1F', first + 1);
    if (second == std::string_view::npos) return {};
    return line.substr(first + 1, second - first - 1);
}

// The events of `days` days from `date` in the results file, in the rows of their
// users and the columns of their days and times.
void fillDays(const ListView& userList, FlexGrid& grid, VbDate date, int days, bool showLocation, bool showDetails,
              bool showPCUsage) {
    const std::vector<std::string> staff = TickedStaff(userList);
    std::vector<std::string> dayTexts;
    for (int d = 0; d < days; ++d) dayTexts.push_back(FormatDate(date + d, "yyyymmdd"));
    const long lastCol = grid.Cols - 1;
    const long totalsRow = grid.Rows - 1;
    Totals totals(grid.Rows, grid.Cols);

    std::string bytes;
    ReadWholeFile(glbResultsFile, bytes);
    std::string user;
    bool userKnown = false;
    long row = 0;
    cDiaryRecord record;
    for (const std::string& line : SplitLines(bytes)) {
        if (StartsWith(line, ";")) {
            user = glbComms.GetUserNameFromResultsLine(line);
            const auto at =
                std::find_if(staff.begin(), staff.end(), [&](const auto& s) { return EqualsText(s, user); });
            userKnown = at != staff.end();
            row = kFirstUserRow + (at - staff.begin());
            continue;
        }
        if (user.empty() || Trim(line).empty()) continue;
        const std::string_view dateField = dateFieldOf(line);
        if (!dateField.empty() && std::find(dayTexts.begin(), dayTexts.end(), dateField) == dayTexts.end()) continue;
        record.GetDiaryRecordFromText(line);
        if (record.IsDiaryEventPCUsage() && !showPCUsage) continue;
        const auto day = std::find(dayTexts.begin(), dayTexts.end(), record.DateEvent);
        if (day == dayTexts.end()) continue;
        if (!userKnown) {
            glbLog.log("Unknown user in results.txt - '" + user + "'", 0);
            continue;
        }
        grid.Row = row;
        const long col = GridPlaceEvent(record, grid, static_cast<int>(day - dayTexts.begin()), showLocation,
                                        showDetails, days == 1);
        if (col >= 1 && col < lastCol) totals.add(row, col, totalsRow, static_cast<long>(Val(record.length)));
    }
    writeTotals(grid, totals);
}

// A bar: the further slots the event's length reaches into, to the end of its day.
// They carry the event's text, so that the grid draws the bar as one cell.
void paintBar(FlexGrid& grid, const cDiaryRecord& record, long col, long dayEnd, OleColor back, OleColor fore) {
    const clsTimeSlots& slots = CalendarTimeSlots();
    const long perSlot = 60 / std::max<long>(slots.numSlotsPerHour, 1);
    const long count = static_cast<long>(Val(record.length)) / perSlot;
    const std::string text = grid.Text;
    const long row = grid.Row;
    for (long c = col + 1; c < col + count && c <= dayEnd; ++c) {
        grid.Col = c;
        grid.CellBackColor = back;
        grid.CellForeColor = fore;
        if (!Trim(grid.Text).empty()) continue;
        if (std::string* id = cellOf(glbStaffCellIds, row, c)) *id = record.ID;
        setHiddenOrShown(grid, text);
    }
    grid.Col = col;
}

std::string cellText(const cDiaryRecord& record, bool showLocation, bool showDetails) {
    std::string where = record.URL;
    if (showLocation && where.empty()) where = record.IsDiaryEventPCUsage() ? "At Desk" : record.ActionToPerform;
    std::string text = ".";
    // A part the owner does not share is left out, not shown as a lone ": ".
    if (showDetails && showLocation)
        text = Trim(where).empty() || Trim(record.details).empty() ? Trim(where) + Trim(record.details)
                                                                   : where + ": " + Trim(record.details);
    else if (showDetails)
        text = Trim(record.details);
    else if (showLocation)
        text = Trim(where);
    // A cell that shows nothing still counts as taken.
    return Trim(text).empty() ? "." : text;
}

void placeBeside(FlexGrid& grid, const cDiaryRecord& record, bool showLocation, bool showDetails) {
    grid.CellBackColor = SettingColour(glbConfig.multi_BackColor);
    grid.CellForeColor = SettingColour(glbConfig.multi_ForeColor);
    if (showDetails) {
        grid.Text = grid.Text() + "\r\n" + record.TimeEvent + "   (" + record.details + ")";
    } else if (showLocation) {
        grid.Text = "Multiple Events";
    } else {
        long* minutes = cellOf(cellMinutes, grid.Row, grid.Col);
        const long sum = (minutes != nullptr ? *minutes : 0) + static_cast<long>(Val(record.length));
        if (minutes != nullptr) *minutes = sum;
        grid.Text = CStr(sum);
    }
}

// The bar of the event already in the cell keeps showing what the cell shows, so
// that it stays one cell on screen.
void placeInTakenCell(FlexGrid& grid, const cDiaryRecord& record, bool showLocation, bool showDetails) {
    const std::string before = grid.Text;
    const long col = grid.Col;
    placeBeside(grid, record, showLocation, showDetails);
    const std::string after = grid.Text;
    const OleColor back = grid.CellBackColor;
    const OleColor fore = grid.CellForeColor;
    for (long c = col + 1; c < grid.Cols - 1 && grid.TextMatrix(grid.Row, c) == before; ++c) {
        grid.Col = c;
        grid.Text = after;
        grid.CellBackColor = back;
        grid.CellForeColor = fore;
    }
    grid.Col = col;
}

// With details and location both shown, the row grows to the lines the text needs
// in the width of its bar.
void growRow(FlexGrid& grid) {
    const CellRange bar = grid.MergedRange(grid.Row, grid.Col);
    long width = 0;
    for (long c = bar.col1; c <= bar.col2; ++c) width += grid.ColWidth(c);
    const long pixels = std::max<long>(width / kTwipsPerPixel, 1);
    const long lines = std::min((Len(grid.Text) * kCharPixels + pixels - 1) / pixels, kMostLines);
    const long height = kLineHeight * std::max(lines, 1L);
    if (height > grid.RowHeight(grid.Row)) grid.SetRowHeight(grid.Row, height);
}

}  // namespace

std::string StaffCellId(long row, long col) {
    const std::string* id = cellOf(glbStaffCellIds, row, col);
    return id != nullptr ? *id : "";
}

std::string StaffChosenSlot(const FlexGrid& grid) {
    const clsTimeSlots& slots = CalendarTimeSlots();
    const long perDay = slots.totSlots + 1;
    const long col = grid.Col;
    if (col >= 1 && col < grid.Cols - 1 && col % perDay != 0) return slots.hhmmGet(col % perDay);
    return "";
}

VbDate StaffChosenDay(const FlexGrid& grid, VbDate firstDay) {
    const long perDay = CalendarTimeSlots().totSlots + 1;
    const long offset = grid.Col >= 1 && grid.Col < grid.Cols - 1 ? grid.Col / perDay : 0;
    return DateOnly(firstDay) + static_cast<double>(offset);
}

std::vector<std::string> TickedStaff(const ListView& userList) {
    std::vector<std::string> staff;
    for (const auto& item : userList.ListItems.Rows())
        if (item->Checked && staff.size() < kMostStaff) staff.push_back(item->Tag());
    return staff;
}

void GridInitStaff(frmClientDiaryMain&, FlexGrid& grid, VbDate date, int days, const ListView& userList) {
    const clsTimeSlots& slots = CalendarTimeSlots();
    const std::vector<std::string> staff = TickedStaff(userList);
    days = std::max(days, 1);
    grid.Clear();
    grid.Rows = kFirstUserRow + static_cast<long>(staff.size()) + 1;
    grid.Cols = columnsOf(days);
    grid.FixedRows = 2;
    grid.FixedCols = 1;
    grid.BackColor = SettingColour(glbConfig.normal_BackColor);
    grid.BackColorFixed = SettingColour(glbConfig.heading_BackColor);
    grid.WordWrap = true;
    grid.MergeCells = flexMergeFree;
    // The calendar's day view hides its heading row and grows its rows: each row
    // starts anew here.
    for (long row = 0; row < grid.Rows; ++row)
        grid.SetRowHeight(row, row == 0 ? kHourRowHeight : std::max<long>(glbConfig.RowHeightMin, kLineHeight));
    glbStaffCellIds.assign(static_cast<size_t>(grid.Rows()),
                           std::vector<std::string>(static_cast<size_t>(grid.Cols())));
    cellMinutes.assign(static_cast<size_t>(grid.Rows()), std::vector<long>(static_cast<size_t>(grid.Cols())));

    const double hourSize = slots.numSlotsPerHour < 2 && glbConfig.RowHeightMin < 401 ? 10 : 12;
    const long perDay = slots.totSlots + 1;
    for (int d = 0; d < days; ++d) {
        for (long s = 1; s <= slots.totSlots; ++s) {
            const long col = perDay * d + s;
            grid.SetColWidth(col, days == 1 ? kDaySlotWidth : kSlotWidth);
            const std::string label = slots.tmeGet(s);
            grid.Col = col;
            grid.Row = 0;
            if (days > 1 && s == 1) {
                grid.Text = FormatDate(date + d, "MMM-d");
                grid.CellFontBold = true;
            } else if (InStrText(1, label, "m") > 0) {
                grid.Text = Trim(Left(label, Len(label) - 2));
                grid.CellFontName = "Arial Black";
                grid.CellFontSize = hourSize;
            }
            grid.Row = 1;
            grid.Text = Right(slots.hhmmGet(s), 2);
            grid.CellFontName = "Arial";
            grid.CellFontSize = 8;
        }
        if (days > 1) grid.SetColWidth(perDay * (d + 1), kSlotWidth);
    }

    size_t longestName = 0;
    for (size_t i = 0; i < staff.size(); ++i) {
        const long row = kFirstUserRow + static_cast<long>(i);
        grid.SetTextMatrix(row, 0, staff[i]);
        grid.SetMergeRow(row, true);
        longestName = std::max(longestName, staff[i].size());
    }
    const long lastCol = grid.Cols - 1;
    grid.SetColWidth(0, std::max(fixedColumnWidth(), static_cast<long>(longestName + 2) * kCharWidth));
    // The widest total a row shows: "### min in ### events".
    grid.SetColWidth(lastCol, std::max(fixedColumnWidth(), (glbConfig.ShowTotals == 1 ? 22L : 1L) * kCharWidth));
    grid.SetTextMatrix(0, lastCol, "Total");
    grid.SetTextMatrix(0, 0, FormatDate(date, "DDD"));
    grid.SetTextMatrix(1, 0, FormatDate(date, "d"));
    GridFillTotalRowHeading(grid);
}

void GridFillOneDay(const ListView& userList, FlexGrid& grid, VbDate date, bool showLocation, bool showDetails,
                    bool showPCUsage) {
    grid.SetTextMatrix(0, 0, FormatDate(date, "DDD"));
    grid.SetTextMatrix(1, 0, FormatDate(date, "d"));
    fillDays(userList, grid, date, 1, showLocation, showDetails, showPCUsage);
}

void GridFillManyDays(const ListView& userList, FlexGrid& grid, VbDate date, int days, bool showLocation,
                      bool showDetails, bool showPCUsage) {
    const long perDay = CalendarTimeSlots().totSlots + 1;
    for (int d = 1; d <= days; ++d)
        for (long row = kFirstUserRow; row < grid.Rows - 1; ++row) grid.SetTextMatrix(row, perDay * d, "-----");
    fillDays(userList, grid, date, days, showLocation, showDetails, showPCUsage);
}

long GridPlaceEvent(const cDiaryRecord& record, FlexGrid& grid, int day, bool showLocation, bool showDetails,
                    bool oneDayOnly) {
    const clsTimeSlots& slots = CalendarTimeSlots();
    const long lastCol = grid.Cols - 1;
    if (slots.totSlots < 1) return lastCol;
    long hour = static_cast<long>(RoundHalfEven(std::clamp(Val(Left(record.TimeEvent, 2)), -1e6, 1e6)));
    const double minute = Val(Right(record.TimeEvent, 2));
    const long slot = std::clamp<long>(slots.FindTimeSlot(hour, minute), 1, slots.totSlots);
    const long dayStart = oneDayOnly ? 0 : (slots.totSlots + 1) * day;
    const long col = dayStart + slot;
    if (col >= lastCol) return col;

    grid.Col = col;
    const bool empty = Trim(grid.Text).empty();
    OleColor back = SettingColour(glbConfig.spanning_BackColor);
    OleColor fore = SettingColour(glbConfig.spanning_ForeColor);
    if (record.IsDiaryEventPCUsage() && empty) {
        back = SettingColour(glbConfig.PCFile_BackColor);
        fore = SettingColour(glbConfig.PCFile_ForeColor);
    }
    grid.CellBackColor = back;
    grid.CellForeColor = fore;
    if (std::string* id = cellOf(glbStaffCellIds, grid.Row, col)) *id = record.ID;
    if (empty) {
        if (long* minutes = cellOf(cellMinutes, grid.Row, col)) *minutes = static_cast<long>(Val(record.length));
        setHiddenOrShown(grid, cellText(record, showLocation, showDetails));
        grid.SetColData(col, glbEvents.IdConvertToLong(record.ID));
        paintBar(grid, record, col, std::min(dayStart + slots.totSlots, lastCol - 1), back, fore);
    } else {
        placeInTakenCell(grid, record, showLocation, showDetails);
    }
    if (record.status == "Private") grid.CellForeColor = kPrivateText;
    if (showDetails && showLocation) growRow(grid);
    return col;
}

long GridPlaceEventInDay(const cDiaryRecord& record, FlexGrid& grid, int day, bool showLocation, bool showDetails) {
    return GridPlaceEvent(record, grid, day, showLocation, showDetails, false);
}

void GridWidenSlots(FlexGrid& grid) {
    if (glbConfig.Autosize != 1) return;
    const long perDay = CalendarTimeSlots().totSlots + 1;
    const long last = grid.Cols - 1;
    long others = 0;
    long slotCount = 0;
    for (long col = 0; col <= last; ++col) {
        const bool slot = col > 0 && col < last && col % perDay != 0;
        if (slot)
            ++slotCount;
        else
            others += grid.ColWidth(col);
    }
    if (slotCount == 0) return;
    const long share = (static_cast<long>(grid.Width) - others - kScrollBarRoom) / slotCount;
    if (share <= grid.ColWidth(1)) return;
    for (long col = 1; col < last; ++col)
        if (col % perDay != 0) grid.SetColWidth(col, share);
}

void GridShadeEmptyCells(FlexGrid& grid) {
    const OleColor shade = SettingColour(glbConfig.weekend_BackColor);
    for (long row = kFirstUserRow; row < grid.Rows - 1; ++row) {
        grid.Row = row;
        for (long col = 1; col < grid.Cols - 1; ++col) {
            grid.Col = col;
            if (Trim(grid.Text).empty()) grid.CellBackColor = shade;
        }
    }
}

void GridFillTotalRowHeading(FlexGrid& grid) {
    grid.SetTextMatrix(grid.Rows - 1, 0, "TOTAL");
}

}  // namespace orbidex
