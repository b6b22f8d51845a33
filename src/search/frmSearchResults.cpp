#include "search/frmSearchResults.h"

#include <algorithm>
#include <memory>

#include "controls/KeyCodes.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

std::unique_ptr<frmSearchResults> gSearchResults;

struct SaveKind {
    const char* delimiter;
    const char* fileName;
};
const SaveKind kSaveKinds[] = {{",", "\\search.csv"}, {"\t", "\\search.txt"}, {"", "\\search.dat"}};

const std::string kHyphens(76, '-');

constexpr long kDetailsColumn = 5;
constexpr long kDetailsWidth = 3870;
constexpr long kScrollBarRoom = 360;  ///< the list's vertical scroll bar and borders, in twips

/// True for a real day written "yyyymmdd".
bool isDayText(const std::string& text) {
    return text.size() == 8 && FormatDate(DateFromYYYYMMDD(text), "yyyymmdd") == text;
}

/// The month "yyyymm" of a row's event: that of its date, which names the monthly
/// file the event is in, or, for a row without a date, that of its identifier.
std::string monthOfRow(const ListItem& row) {
    const std::string date = row.SubItems(1);
    if (isDayText(date)) return Left(date, 6);
    return Mid(row.Tag(), 2, 6);
}

/// A row of this user's own diary; rows of other users found through the server
/// name them, and their identifiers mean nothing here.
bool isOwnRow(const ListItem& row) {
    return row.Text().empty() || EqualsText(row.Text(), glbComms.GetMyUserName());
}

}  // namespace

frmSearchResults::frmSearchResults() : Form("frmSearchResults") {
    Caption = "Search Results";
    Width = 10500;
    Height = 5400;
    lvResults.View = lvwReport;
    lvResults.FullRowSelect = true;
    lvResults.HideSelection = false;
    lvResults.onDblClick = [this] { lvResults_DblClick(); };
    lvResults.onKeyDown = [this](int& keyCode, int shift) { lvResults_KeyDown(keyCode, shift); };
    lvResults.onColumnClick = [this](ColumnHeader& column) { lvResults_ColumnClick(column); };
    status.Panels(1).AutoSize = sbrSpring;
    status.Panels.Add().Width = 2400;
    for (int kind = 0; kind < static_cast<int>(mnuResultsSaveAs.size()); ++kind) {
        mnuResultsSaveAs[kind].SetIndex(kind);
        mnuResultsSaveAs[kind].onClick = [this, kind] { mnuResultsSaveAs_Click(kind); };
    }
    mnuResultsSaveAs[0].Shortcut = "Ctrl+S";
    mnuResultsClear.onClick = [this] { mnuResultsClear_Click(); };
    mnuResultsExit.onClick = [this] { mnuResultsExit_Click(); };
}

void frmSearchResults::Form_Load() {
    Form_Resize();
}

void frmSearchResults::Form_Resize() {
    const long below = status.Visible ? status.Height() : 0;
    lvResults.Move(0, 0, std::max(0L, ScaleWidth()), std::max(0L, ScaleHeight() - below));
    FitDetailsColumn();
}

void frmSearchResults::FitDetailsColumn() {
    ColumnHeader* details = lvResults.ColumnHeaders.Item(kDetailsColumn);
    if (details == nullptr) return;
    long others = 0;
    for (long i = 1; i <= lvResults.ColumnHeaders.Count(); ++i)
        if (i != kDetailsColumn) others += lvResults.ColumnHeaders(i).Width;
    details->Width = std::max(kDetailsWidth, lvResults.Width - others - kScrollBarRoom);
}

void frmSearchResults::lvResults_DblClick() {
    ListItem* row = lvResults.SelectedItem();
    if (row == nullptr) return;
    if (row->Text() == "- Note -") {
        if (std::optional<cNote> note = glbNotes.GetFromList(row)) {
            gCurrentNote = *note;
            glbNotes.Edit();
        }
        return;
    }
    if (row->Text() == "- Task -") {
        if (std::optional<cTask> task = glbTasks.GetFromList(row)) {
            gCurrentTask = *task;
            glbTasks.Edit();
        }
        return;
    }
    if (row->Tag().empty() || !isOwnRow(*row)) {
        tellNoMoreInformation(*row);
        return;
    }
    const long index = glbEvents.SelectDiaryRecordFromIDInMonth(row->Tag, monthOfRow(*row));
    if (index < 0) {
        ViewRecordInSearchResults(*row);
        return;
    }
    gintcur = AsCurrentIndex(index);
    glbCmd.EventEdit();
}

void frmSearchResults::lvResults_KeyDown(int& keyCode, int) {
    if (keyCode != vbKeyReturn) return;
    keyCode = 0;
    lvResults_DblClick();
}

void frmSearchResults::lvResults_ColumnClick(ColumnHeader& column) {
    const long key = column.Index() - 1;
    if (lvResults.Sorted && lvResults.SortKey == key) {
        lvResults.SortOrder = lvResults.SortOrder == lvwAscending ? lvwDescending : lvwAscending;
    } else {
        lvResults.SortKey = key;
        lvResults.SortOrder = lvwAscending;
        lvResults.Sorted = true;
    }
}

void frmSearchResults::mnuResultsClear_Click() {
    lvResults.ListItems.Clear();
}

void frmSearchResults::mnuResultsExit_Click() {
    lvResults.ListItems.Clear();
    Unload();
}

void frmSearchResults::mnuResultsSaveAs_Click(int kind) {
    const SaveKind& save = kSaveKinds[kind];
    const std::string file = platform().InputBox("Enter the filename to save this list to", "Saving List",
                                                 platform().ProgramFolder() + save.fileName);
    if (!file.empty()) SaveResults(ToStoredPath(file), save.delimiter);
}

void frmSearchResults::ViewRecordInSearchResults(ListItem& row) {
    if (EqualsText(platform().ExeName(), "Garvish")) {
        platform().MsgBox(row.SubItems(row.ListSubItems.Count()), vbOKOnly, "");
        return;
    }
    const std::string id = row.Tag();
    const std::string month = monthOfRow(row);
    const VbDate date = isDayText(row.SubItems(1)) ? DateFromYYYYMMDD(row.SubItems(1)) : DateFromYYYYMMDD(month + "01");
    const bool inMemory = glbEvents.SelectDiaryRecordFromIDInMonth(id, month) >= 0;
    if (!inMemory) glbEvents.LoadDiaryData(date);
    if (glbEvents.SelectDiaryRecordFromIDInMonth(id, month) < 0) {
        // The calendar keeps its month, and the memory with it.
        if (!inMemory) glbEvents.LoadDiaryData(MainForm().MonthView1.Value);
        tellNoMoreInformation(row);
        return;
    }
    // The diary moves to the event's day, in whatever year, and opens it there.
    if (glbScreen.Mode() != "CALENDAR") glbScreen.SwitchMode("CALENDAR");
    glbEvents.CalendarDateClicked(MainForm(), date);
    gintcur = AsCurrentIndex(glbEvents.SelectDiaryRecordFromIDInMonth(id, month));
    glbCmd.EventEdit();
}

void frmSearchResults::SaveResults(const std::string& file, const std::string& delimiter) {
    std::string text = "Search Results from " + status.Panels(1).Text() + " created " +
                       FormatDate(Now(), "d-MMM-yyyy hh:mm:ss") + "\r\n";
    text += kHyphens + "\r\n";
    text += status.Panels(1).Text() + "\r\n" + status.Panels(2).Text() + "\r\n";
    text += kHyphens + "\r\n";
    for (long i = 1; i <= lvResults.ListItems.Count(); ++i) {
        const ListItem& row = lvResults.ListItems(i);
        std::string line = row.Text();
        const long cells = row.ListSubItems.Count();
        if (cells > 0) line += delimiter;
        for (long k = 1; k <= cells; ++k) line += row.SubItems(k) + (k < cells ? delimiter : "");
        text += line + "\r\n";
    }
    FileError error;
    if (!WriteWholeFile(file, text, &error)) ShowFileError("SaveResults saving " + file, error);
}

void frmSearchResults::tellNoMoreInformation(const ListItem& row) {
    platform().MsgBox("This event is from " + row.Text() + "\r\nThere is no more information on this event", vbOKOnly,
                      "");
}

frmSearchResults& SearchResultsForm() {
    if (!gSearchResults) gSearchResults = std::make_unique<frmSearchResults>();
    return *gSearchResults;
}

void ResetSearchResultsForm() {
    gSearchResults.reset();
}

}  // namespace orbidex
