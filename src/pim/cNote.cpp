#include "pim/cNote.h"

#include <array>

#include "config/clsConfigDiary.h"
#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/PimSupport.h"
#include "pim/cNotes.h"

namespace orbidex {

cNote gCurrentNote;
cNote gNoteHeadings;

namespace {

using Field = std::string cNote::*;

// The fields of the note line, in line order.
constexpr std::array<Field, 8> kLineFields = {&cNote::ID,        &cNote::DateCreated, &cNote::DateModified,
                                              &cNote::Reference, &cNote::Color,       &cNote::Category,
                                              &cNote::Filename,  &cNote::title};

struct ListCell {
    Field field;
    const char* heading;
};

// The cells a note offers to the note list, in the order they are offered.
constexpr std::array<ListCell, 8> kListCells = {{{&cNote::ID, "ID"},
                                                 {&cNote::DateCreated, "Created"},
                                                 {&cNote::DateModified, "Modified"},
                                                 {&cNote::Reference, "Reference"},
                                                 {&cNote::Color, "Color"},
                                                 {&cNote::Category, "Category"},
                                                 {&cNote::Filename, "Filename"},
                                                 {&cNote::title, "title"}}};

}  // namespace

std::string NotesFolder() {
    return gStrDataPath + "notes\\";
}

std::string cNote::BodyFile() const {
    return NotesFolder() + Filename;
}

void cNote::SetDefault() {
    ID.clear();
    DateCreated = FormatDate(Now(), "yyyymmdd");
    Reference.clear();
    Category.clear();
    title.clear();
    details.clear();
    UserCreated = MyUserName();
    UserOwner = UserCreated;
    ContactID.clear();
}

void cNote::CreateNewFileName() {
    if (!Filename.empty()) return;
    // Two notes of the same title keep two bodies.
    Filename = FreeBodyName(ReplaceLineBreaks(title.empty() ? FormatDate(Now(), "yyyymmdd-hhmmss") : Left(title, 80)) +
                            ".txt");
}

std::string cNote::FreeBodyName(const std::string& wanted) {
    const auto taken = [](const std::string& name) {
        return FileExists(NotesFolder() + name) || FolderExists(NotesFolder() + name);
    };
    if (!taken(wanted)) return wanted;
    const long dot = InStrRev(wanted, ".");
    const std::string stem = dot > 0 ? Left(wanted, dot - 1) : wanted;
    const std::string extension = dot > 0 ? Mid(wanted, dot) : "";
    std::string name;
    for (long n = 2; name.empty() || taken(name); ++n) name = stem + " (" + CStr(n) + ")" + extension;
    return name;
}

bool cNote::SaveDetails(const std::string& text) {
    if (Filename.empty()) CreateNewFileName();
    if (!FolderExists(NotesFolder())) MakeFolder(NotesFolder());
    if (!WriteWholeFile(BodyFile(), text + "\r\n")) {
        ReportDataError("cNote.SaveDetails", kPathFileAccess);
        return false;
    }
    return true;
}

std::string cNote::LoadDetails() {
    // A new note has no body yet: its text is empty, and nothing is said.
    if (Filename.empty()) return "";
    std::string bytes;
    if (FileExists(BodyFile()) && ReadWholeFile(BodyFile(), bytes)) return bytes;
    ReportDataError("cNote.LoadDetails", FolderExists(BodyFile()) ? kPathFileAccess : kFileNotFound);
    return "";
}

void cNote::Add(const std::string& newTitle) {
    title = newTitle;
    CreateNewFileName();
}

std::string cNote::FormatRecordAsCSV(std::string_view delimiter, std::string_view) const {
    std::string line;
    for (Field f : kLineFields) line.append(this->*f).append(delimiter);
    return line;
}

bool cNote::ReadTextLine(const std::string& line, std::string_view delimiter) {
    if (line.empty()) return true;
    size_t start = line.compare(0, delimiter.size(), delimiter) == 0 ? delimiter.size() : 0;
    for (Field f : kLineFields) {
        const size_t found = line.find(delimiter, start);
        if (found == std::string::npos) return false;
        (this->*f).assign(line, start, found - start);
        start = found + delimiter.size();
    }
    return true;
}

bool cNote::CreateNoteFromTextLine(const std::string& line, std::string_view delimiter) {
    if (ReadTextLine(line, delimiter)) return true;
    ReportDataError("cNote.CreateNoteFromTextLine", kInvalidArgument);
    return false;
}

void cNote::AddToListView(ListView& listControl, const std::string& listLine) const {
    if (Trim(ID).empty()) return;
    ListItem& item = listControl.ListItems.Add("");
    item.Tag = listLine;
    for (const ListCell& cell : kListCells) cNotes::AddHeadingIfVisible(item, this->*cell.field, cell.heading);
    std::string colourName = Color;
    const OleColor colour = static_cast<OleColor>(glbConfig.GetColorFromString(colourName, false));
    item.ForeColor = colour;
    for (long k = 1; k <= item.ListSubItems.Count(); ++k) item.ListSubItems(k).ForeColor = colour;
}

}  // namespace orbidex
