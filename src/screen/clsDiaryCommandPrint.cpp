// Printing: the present view is written as an HTML page into the data folder, as it
// always was, and shown in a print preview, from which the user prints it or saves
// it as PDF.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"
#include "screen/HtmlHeader.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kTableStart = "<TABLE border=0 width=100% align=center valign=top>\r\n";
const char* const kPageEnd = "</TABLE>\r\n</BODY></HTML>\r\n";

// The four font colours of a printed page, by how light the cell's text colour is:
// dark text (and the desktop's own colours) print black, pale text stays pale.
std::string fontTagFor(OleColor colour) {
    if (IsSystemColor(colour)) return "<FONT COLOR=Black>";
    const double light = (0.299 * RedOf(colour) + 0.587 * GreenOf(colour) + 0.114 * BlueOf(colour)) / 255.0;
    if (light >= 0.99) return "<FONT COLOR=White>";
    if (light >= 0.95) return "<FONT COLOR=Ivory>";
    if (light >= 0.9) return "<FONT COLOR=CornSilk>";
    return "<FONT COLOR=Black>";
}

std::string userName() {
    return glbMyUserName.empty() ? platform().UserName() : glbMyUserName;
}

// The days a calendar view of `days` days from `start` covers: a fortnight and a
// month show the whole month.
std::string viewDates(VbDate start, int days) {
    if (start == 0) return "";
    const VbDate last = days >= 11 ? DateSerial(Year(start), Month(start), DaysInMonth(Year(start), Month(start)))
                                   : DateAdd("d", std::max(days, 1) - 1, start);
    if (last == start) return FormatDate(start, "dddd, d mmmm yyyy");
    return FormatDate(start, "dddd, d mmmm yyyy") + " to " + FormatDate(last, "dddd, d mmmm yyyy");
}

// Colours as they print: the desktop's own colours as black text on white paper.
PrintCell printCell(const CellStyle& style, bool showText) {
    PrintCell cell;
    if (showText) cell.text = style.text;
    cell.foreColor = IsSystemColor(style.foreColor) ? 0x000000 : style.foreColor;
    cell.backColor = IsSystemColor(style.backColor) ? 0xFFFFFF : style.backColor;
    cell.bold = style.fontBold;
    return cell;
}

// The grid's visible cells; the text of merged cells once, in the first of them.
void printGrid(const FlexGrid& grid, PrintDocument& document) {
    std::vector<long> columns;
    for (long c = 0; c < grid.Cols; ++c)
        if (grid.DrawnColWidth(c) > 0) columns.push_back(c);
    for (long c : columns) document.columnWidths.push_back(grid.DrawnColWidth(c));
    document.headingRows = grid.FixedRows;
    for (long r = 0; r < grid.Rows; ++r) {
        if (grid.DrawnRowHeight(r) <= 0) continue;
        std::vector<PrintCell>& row = document.rows.emplace_back();
        for (long c : columns) {
            const CellRange merged = grid.MergedRange(r, c);
            row.push_back(printCell(grid.EffectiveStyle(r, c), merged.row1 == r && merged.col1 == c));
        }
    }
}

void printList(ListView& list, PrintDocument& document) {
    std::vector<PrintCell>& headings = document.rows.emplace_back();
    for (long c = 1; c <= list.ColumnHeaders.Count(); ++c) {
        document.columnWidths.push_back(list.ColumnHeaders(c).Width());
        headings.push_back({list.ColumnHeaders(c).Text(), 0x000000, 0xE0E0E0, true});
    }
    for (long i = 1; i <= list.ListItems.Count(); ++i) {
        ListItem& item = list.ListItems(i);
        std::vector<PrintCell>& row = document.rows.emplace_back();
        row.push_back({item.Text()});
        for (long s = 1; s < list.ColumnHeaders.Count(); ++s) row.push_back({item.SubItems(s)});
    }
}

}  // namespace

void clsDiaryCommand::CommandPrint() {
    if (form_ == nullptr) return;
    const std::string& mode = glbScreen.Mode();
    if (mode == "HOME" || mode == "OVERVIEW") {
        const std::string& page = form_->web.LocationURL();
        if (!page.empty() && page != "about:blank") platform().PrintPreview(PrintDocumentOfView());
        return;
    }
    if (mode == "CALENDAR") {
        const std::string file = gStrDataPath + "Diary Events.htm";
        if (glbConfig.GridOrList == "GRID")
            ConvertGridToHtml(form_->gridDays, file);
        else
            ConvertListViewToHtml(form_->lvDiary, file);
    } else if (mode == "TASK" || mode == "NOTE") {
        ConvertListViewToHtml(form_->lvCat, gStrDataPath + userName() + (mode == "TASK" ? " Tasks.htm" : " Notes.htm"));
    } else if (mode == "STAFF") {
        ConvertGridToHtml(form_->gridDays, gStrDataPath + "Staff.htm");
    } else {
        platform().MsgBox("Printing this view is not yet implemented", vbOKOnly, "");
        return;
    }
    platform().PrintPreview(PrintDocumentOfView());
}

PrintDocument clsDiaryCommand::PrintDocumentOfView() {
    PrintDocument document;
    if (form_ == nullptr) return document;
    const std::string& mode = glbScreen.Mode();
    document.heading = Trim(form_->lblHeading.Caption);
    document.dates = "Printed on " + FormatDate(Now(), "d mmmm yyyy");
    if (mode == "HOME" || mode == "OVERVIEW") {
        document.htmlFile = form_->web.LocationURL();
    } else if (mode == "CALENDAR") {
        document.dates = viewDates(glbEvents.GetDisplayStartDate(form_->MonthView1.Value), glbConfig.DayWeekMonth);
        if (glbConfig.GridOrList == "GRID")
            printGrid(form_->gridDays, document);
        else
            printList(form_->lvDiary, document);
    } else if (mode == "TASK" || mode == "NOTE") {
        printList(form_->lvCat, document);
    } else if (mode == "STAFF") {
        printGrid(form_->gridDays, document);
    }
    // More than a week's columns lie across the page, where each has room for its words.
    document.landscape = document.columnWidths.size() > 9;
    return document;
}

void clsDiaryCommand::ConvertListViewToHtml(ListView& list, const std::string& file) {
    const std::string heading = form_ != nullptr ? Trim(form_->lblHeading.Caption) : "";
    std::string page = GetHtmlHeader(heading) + kTableStart + "<TR>";
    for (long c = 1; c <= list.ColumnHeaders.Count(); ++c)
        page += "<B><TD>" + list.ColumnHeaders(c).Text() + "</B></TD>";
    page += "<td></td><TR>\r\n";
    for (long i = 1; i <= list.ListItems.Count(); ++i) {
        ListItem& item = list.ListItems(i);
        page += "<TR><TD>" + item.Text() + "</TD>";
        for (long s = 1; s <= item.ListSubItems.Count(); ++s) page += "<TD>" + item.SubItems(s) + "</TD>";
        page += "\r\n";
    }
    WriteWholeFile(file, page + kPageEnd);
}

void clsDiaryCommand::ConvertGridToHtml(FlexGrid& grid, const std::string& file) {
    const std::string heading = form_ != nullptr ? Trim(form_->lblHeading.Caption) : "";
    const long days = std::max(1L, static_cast<long>(grid.Cols) - 2);
    // The two columns of the hour and the minute keep a tenth of the width.
    const std::string dayCell = "<TD valign=top align=left width=" + CStr(90 / days) + "%>";
    std::string page = GetHtmlHeader(heading) + kTableStart;
    for (long r = 0; r < grid.Rows; ++r) {
        page += "<TR>";
        for (long c = 0; c < grid.Cols; ++c) {
            const CellStyle cell = grid.EffectiveStyle(r, c);
            page += c >= 2 ? dayCell : "<TD valign=top align=left>";
            if (Trim(cell.text).empty())
                page += "&nbsp;";
            else
                page += fontTagFor(cell.foreColor) + cell.text + "</FONT>";
            page += "</TD>";
        }
        page += "\r\n";
    }
    WriteWholeFile(file, page + kPageEnd);
}

}  // namespace orbidex
