// Printing: the present view is written as an HTML page into the data folder and
// opened in the desktop's browser, from which the user prints it.
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
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

}  // namespace

void clsDiaryCommand::CommandPrint() {
    if (form_ == nullptr) return;
    const std::string& mode = glbScreen.Mode();
    std::string file;
    if (mode == "HOME" || mode == "OVERVIEW") {
        const std::string& page = form_->web.LocationURL();
        if (!page.empty() && page != "about:blank") platform().OpenDocument(page);
        return;
    }
    if (mode == "CALENDAR") {
        file = gStrDataPath + "Diary Events.htm";
        if (glbConfig.GridOrList == "GRID")
            ConvertGridToHtml(form_->gridDays, file);
        else
            ConvertListViewToHtml(form_->lvDiary, file);
    } else if (mode == "TASK" || mode == "NOTE") {
        file = gStrDataPath + userName() + (mode == "TASK" ? " Tasks.htm" : " Notes.htm");
        ConvertListViewToHtml(form_->lvCat, file);
    } else if (mode == "STAFF") {
        file = gStrDataPath + "Staff.htm";
        ConvertGridToHtml(form_->gridDays, file);
    } else {
        platform().MsgBox("Printing this view is not yet implemented", vbOKOnly, "");
        return;
    }
    platform().OpenDocument(file);
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
