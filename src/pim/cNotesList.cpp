// The note list on screen, in search results and as an HTML page.
#include <array>

#include "config/clsConfigDiary.h"
#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "pim/cNotes.h"
#include "screen/HtmlHeader.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kHidden = "<hide>";

struct HeadingColumn {
    const char* heading;  ///< in capitals
    std::string cNote::*caption;
};

// The note list's columns in order, each with its heading and the field of
// gNoteHeadings that holds its caption.
constexpr std::array<HeadingColumn, 8> kHeadingColumns = {{{"ID", &cNote::ID},
                                                           {"CREATED", &cNote::DateCreated},
                                                           {"MODIFIED", &cNote::DateModified},
                                                           {"REFERENCE", &cNote::Reference},
                                                           {"COLOR", &cNote::Color},
                                                           {"CATEGORY", &cNote::Category},
                                                           {"FILENAME", &cNote::Filename},
                                                           {"TITLE", &cNote::title}}};

}  // namespace

std::optional<cNote> cNotes::GetFromList(const ListItem* listItem) {
    if (listItem == nullptr) return std::nullopt;
    return FindByID(Left(listItem->Tag(), 13));
}

void cNotes::Search(ListView& lvResults, const std::string& keyword, bool caseSensitive) {
    // The note's line of the list is searched (its title, category, colour, reference and
    // file name), not the text in its body file.
    for (long i = 0; i <= Count(); ++i) {
        const std::string& line = table_.Item(i);
        if (Trim(line).empty()) continue;
        if ((caseSensitive ? InStr(line, keyword) : InStrText(1, line, keyword)) == 0) continue;
        cNote note;
        note.CreateNoteFromTextLine(line, kFieldDelimiter);
        AddToSearchResults(lvResults, note);
    }
}

void cNotes::AddToSearchResults(ListView& listControl, const cNote& note) {
    ListItem& item = listControl.ListItems.Add("- Note -");
    item.Tag = note.FormatRecordAsCSV(kFieldDelimiter, "");
    for (const std::string& text :
         {std::string(" "), std::string(" "), std::string("Note"), note.title, std::string("note")})
        item.ListSubItems.Add(text);
    std::string colourName = note.Color;
    const OleColor colour = static_cast<OleColor>(glbConfig.GetColorFromString(colourName, false));
    for (long k = 1; k <= item.ListSubItems.Count(); ++k) item.ListSubItems(k).ForeColor = colour;
}

void cNotes::InitNoteList(ListView& listControl) {
    listControl.Visible = false;
    gNoteHeadings = cNote();
    gNoteHeadings.title = "Title";
    listControl.ColumnHeaders.Clear();
    listControl.ColumnHeaders.Add(" ", 0);  // the row's text, which is empty
    for (const HeadingColumn& column : kHeadingColumns) {
        std::string& caption = gNoteHeadings.*column.caption;
        if (caption.empty()) caption = kHidden;
        if (caption != kHidden) listControl.ColumnHeaders.Add(caption);
    }
    listControl.ColumnHeaders(listControl.ColumnHeaders.Count()).Width = 3540;
    listControl.Visible = true;
}

void cNotes::AddHeadingIfVisible(ListItem& listItem, const std::string& value, const std::string& heading) {
    const std::string upper = UCase(heading);
    for (const HeadingColumn& column : kHeadingColumns) {
        if (upper != column.heading) continue;
        if (gNoteHeadings.*column.caption != kHidden) listItem.ListSubItems.Add(value);
        return;
    }
}

void cNotes::DisplayInListView(ListView& listControl) {
    listControl.ListItems.Clear();
    InitNoteList(listControl);
    for (long i = 0; i <= Count(); ++i) {
        const std::string& line = table_.Item(i);
        if (Trim(line).empty()) continue;
        cNote note;
        note.CreateNoteFromTextLine(line, kFieldDelimiter);
        note.AddToListView(listControl, line);
    }
    MainForm().status.Panels(1).Text = CStr(Count()) + " Notes";
}

// The text column stays empty: the lines do not hold the texts.  Line 0 is left out.
void cNotes::ExportToFile(std::string fileName) {
    if (fileName.empty()) fileName = platform().ProgramFolder() + "\\note.htm";
    std::string page = GetHtmlHeader("List of unfinished notes") +
                       "<BODY><H1>List of unfinished notes</h1></body></html>\r\n" +
                       "<TABLE width=95% align=center border=1><TR>    \r\n";
    for (long i = 1; i <= Count(); ++i) {
        const std::string& line = table_.Item(i);
        if (Trim(line).empty()) continue;
        cNote note;
        note.CreateNoteFromTextLine(line, kFieldDelimiter);
        page +=
            "<TR><TD width=15%>" + note.DateCreated + "\r\n</td><TD width=85%>" + note.details + "\r\n</td></tr>\r\n";
    }
    page += "</table>\r\n</BODY></HTML>\r\n";
    WriteWholeFile(fileName, page);
}

}  // namespace orbidex
