// The diary search: every monthly file of the data folder (all years, not only the
// month in memory) read as raw lines, where the text is looked for before any line is
// parsed; the search of other users' diaries through the server; and the rows of the
// result list.
#include <algorithm>

#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "screen/frmClientDiaryMain.h"
#include "search/RawLineFinder.h"
#include "search/frmSearchResults.h"

namespace orbidex {

namespace {

constexpr OleColor kUsageGrey = 0x808080;
constexpr OleColor kFileGreen = 0x004000;
constexpr OleColor kTaskBlue = 0xFF0000;  // RGB 0, 0, 255
constexpr OleColor kNoteRed = 0x0000FF;   // RGB 255, 0, 0
constexpr OleColor kContactGreen = 0x008000;

/// The window gets its turn at these rows, and at every 300th: often enough to show
/// the first rows at once, seldom enough not to slow a long list down.
bool isTurnForWindow(long row) {
    return row == 10 || row == 50 || row == 100 || row == 200 || row % 300 == 0;
}

/// "D" + yyyymm + ".dat" of a month of the diary's years: not the task file, not the
/// dump D000101.DAT.
bool isMonthlyFileName(const std::string& name) {
    const std::string upper = UCase(name);
    if (upper.size() != 11 || upper[0] != 'D' || !EndsWith(upper, ".DAT")) return false;
    const std::string month = upper.substr(1, 6);
    if (!std::all_of(month.begin(), month.end(), [](char c) { return c >= '0' && c <= '9'; })) return false;
    const int year = std::stoi(month.substr(0, 4)), monthOfYear = std::stoi(month.substr(4));
    return year >= kFirstDiaryYear && monthOfYear >= 1 && monthOfYear <= 12;
}

/// The lines of `files` that `finder` finds and `keep` accepts.  The window gets a
/// turn at each file.  A file that cannot be read ends the search there.
template <typename Keep>
std::vector<std::string> searchFiles(const std::vector<std::string>& files, const RawLineFinder& finder, Keep keep) {
    std::vector<std::string> found;
    std::string bytes;
    for (const std::string& file : files) {
        if (file.empty()) continue;
        if (!ReadWholeFile(file, bytes)) {
            glbLog.log("The search could not read " + file + " - it ends there", 0);
            break;
        }
        platform().DoEvents();
        finder.ForEachLine(bytes, [&](std::string_view line) {
            std::string text(line);
            if (keep(text)) found.push_back(std::move(text));
        });
    }
    return found;
}

/// Colours the row's text and every cell.
void colourRow(ListItem& row, OleColor colour) {
    row.ForeColor = colour;
    for (long k = 1; k <= row.ListSubItems.Count(); ++k) row.ListSubItems(k).ForeColor = colour;
}

void boldRow(ListItem& row) {
    row.Bold = true;
    for (long k = 1; k <= row.ListSubItems.Count(); ++k) row.ListSubItems(k).Bold = true;
}

}  // namespace

void cDiaryRecords::SearchForEvent(frmSearchResults& form, VbDate, const std::string& text,
                                   const std::string& dateStart, const std::string& dateEnd, bool includePCUsage,
                                   bool includeFileUsage, bool caseSensitive) {
    form.status.Panels(1).Text = "Searching LOCAL events containing " + text;
    form.status.Panels(2).Text = "please wait...";
    std::vector<std::string> files;
    CreateDiaryDataFileList(DateSerial(1900, 1, 1), DateSerial(2999, 12, 31), files, true);
    std::erase_if(files, [](const std::string& file) { return !isMonthlyFileName(GetFileNameOnly(file)); });
    long count = 0;
    const std::vector<std::string> lines =
        SearchListOfDiaryFiles(caseSensitive, files, dateEnd, dateStart, text, count, includeFileUsage, includePCUsage);
    ClearTotals();

    const std::string user = glbComms.GetMyUserName();
    long row = 0;
    for (const std::string& line : lines) {
        if (Trim(line).empty()) continue;
        cDiaryRecord record;
        record.GetDiaryRecordFromText(line);
        AddDiaryRecordToSearchResult(record, form.lvResults, user);
        if (isTurnForWindow(++row)) platform().DoEvents();
    }
    form.status.Panels(2).Text = "Found " + CStr(totEventsFound_) + " events";
    platform().SetBusyCursor(false);
}

std::vector<std::string> cDiaryRecords::SearchListOfDiaryFiles(bool caseSensitive,
                                                               const std::vector<std::string>& fileList,
                                                               const std::string& dateEnd, const std::string& dateStart,
                                                               const std::string& text, long& found,
                                                               bool includeFileUsage, bool includePCUsage) {
    const RawLineFinder finder(text, caseSensitive);
    cDiaryRecord record;
    std::vector<std::string> lines = searchFiles(fileList, finder, [&](const std::string& line) {
        record.GetDiaryRecordFromText(line);
        if (record.DateEvent < dateStart || record.DateEvent > dateEnd) return false;
        if (record.IsDiaryEventAfileAccess() && !includeFileUsage) return false;
        return !(record.IsDiaryEventPCUsage() && !includePCUsage);
    });
    found = static_cast<long>(lines.size());
    return lines;
}

std::vector<std::string> cDiaryRecords::grepDiaryFilesForString(const std::string& text, long& found,
                                                                const std::string& dateStart,
                                                                const std::string& dateEnd) {
    glbLog.log("DEBUG - entering  grepDiaryFilesForString with txt=" + text, 3);
    if (gStrDataPath.empty()) InitDiary(mainForm_, "");
    std::vector<std::string> names = ListFolder(gStrDataPath + "D*.dat", false);
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return UCase(a) < UCase(b); });
    std::vector<std::string> files;
    for (const std::string& name : names) files.push_back(gStrDataPath + name);

    const RawLineFinder finder(UCase(text), false);
    const std::string usageMark = std::string(kFieldDelimiter) + "PCFILE" + std::string(kFieldDelimiter);
    cDiaryRecord record;
    std::vector<std::string> lines = searchFiles(files, finder, [&](const std::string& line) {
        if (InStr(UCase(line), usageMark) > 0) return false;
        record.GetDiaryRecordFromText(line);
        return record.DateEvent >= dateStart && record.DateEvent <= dateEnd;
    });
    found = static_cast<long>(lines.size());
    return lines;
}

void cDiaryRecords::SearchForNetworkEvents(frmSearchResults& form, const std::string& text, const std::string& users,
                                           const std::string& dateStart, const std::string& dateEnd) {
    if (Trim(users).empty()) {
        platform().MsgBox("You didnt select any users to do a network search", vbOKOnly, "");
        return;
    }
    ClearTotals();
    platform().SetBusyCursor(true);
    form.Show(false);
    platform().DoEvents();

    // The server takes a single blank for all events.
    const std::string answer = glbComms.ClientDiaryRequest(text.empty() ? " " : text, users, dateStart, dateEnd);
    if (answer.empty()) {
        glbLog.log("Nothing returned from server", 0);
        form.status.Panels(1).Text = "Server did not respond";
        form.status.Panels(2).Text = "";
        form.Caption = form.Caption() + " - SERVER TIMED OUT (No response)";
        platform().SetBusyCursor(false);
        return;
    }

    // The file itself is read, as the server left it; the answer only says it came.
    std::string results;
    ReadWholeFile(networkFile("RESULTS.TXT"), results);
    const std::string me = glbComms.GetMyUserName();
    std::string user;
    std::string kindOfFile;
    long row = 0;
    for (const std::string& line : SplitLines(results)) {
        if (Left(line, 1) == ";") {
            user = glbComms.GetUserNameFromResultsLine(line);
            kindOfFile = UCase(Left(GetFileNameOnly(Mid(line, 19)), 7));
            continue;
        }
        if (Trim(line).empty()) continue;
        cDiaryRecord record;
        record.GetDiaryRecordFromText(line);
        ListItem& item = AddDiaryRecordToSearchResult(record, form.lvResults, user);
        if (EqualsText(user, me)) boldRow(item);
        if (kindOfFile == "D_TASKS") colourRow(item, kTaskBlue);
        if (kindOfFile == "D_NOTES") colourRow(item, kNoteRed);
        if (kindOfFile == "D_CONTA") colourRow(item, kContactGreen);
        if (isTurnForWindow(++row)) platform().DoEvents();
    }

    const std::string found = CStr(totEventsFound_);
    form.Caption = form.Caption() + (totEventsFound_ > 0 ? " - found " + found + " records " : " - no records found");
    form.status.Panels(1).Text =
        "Spent " + FormatMinutes(totTime_) + " minutes on " + (text.empty() ? "<all items>" : text) + " ";
    form.status.Panels(2).Text = "Found " + found + " events";
    platform().SetBusyCursor(false);
}

ListItem& cDiaryRecords::AddDiaryRecordToSearchResult(const cDiaryRecord& record, ListView& list,
                                                      const std::string& user) {
    std::string kind = "calendar";
    if (record.isDiaryRecordMeeting()) kind = "staff";
    if (record.IsDiaryEventPCUsage()) kind = "tessaline";
    if (record.IsDiaryEventAfileAccess()) kind = "autobackup";

    ListItem& row = list.ListItems.Add(user);
    row.Tag = record.ID;
    for (const std::string& cell :
         {record.DateEvent, record.TimeEvent, std::string(kind == "staff" ? "Meeting" : "Event"), record.details})
        row.ListSubItems.Add(cell);
    ListSubItem& type = row.ListSubItems(3);
    ListSubItem& details = row.ListSubItems(4);
    details.ReportIcon = kind;

    if (record.IsDiaryEventPrivate()) {
        for (long k = 1; k <= row.ListSubItems.Count(); ++k) row.ListSubItems(k).ForeColor = vbGrayText;
        type.Text = type.Text() + " - Private";
    }
    if (kind == "tessaline") {
        details.ForeColor = kUsageGrey;
        type.Text = "PC usage";
    } else if (kind == "autobackup") {
        details.ForeColor = kFileGreen;
        type.Text = "File used";
    }
    AddMinutes(totTime_, record.length);
    ++totEventsFound_;
    return row;
}

bool cDiaryRecords::IsKeywordInText(const std::string& text, const std::vector<std::string>& keywords, bool matchAll,
                                    const std::vector<std::string>& excludeWords, bool matchAllExcludes) {
    const std::string upper = UCase(text);
    bool result = false;
    // The lists are counted as the program's arrays are, from 0: the upper bound is
    // one less than the number of words.
    const long keywordsBound = static_cast<long>(keywords.size()) - 1;
    long count = 0;
    for (const std::string& keyword : keywords) {
        if (InStr(upper, keyword) == 0) continue;
        if (!matchAll) {
            result = true;
            break;
        }
        if (++count >= keywordsBound) result = true;
    }
    if (excludeWords.empty()) return result;
    const long excludesBound = static_cast<long>(excludeWords.size()) - 1;
    count = 0;
    for (const std::string& word : excludeWords) {
        const bool inText = InStr(upper, word) > 0;
        if (!matchAllExcludes) {
            if (!inText) {
                result = true;
                break;
            }
            continue;
        }
        if (inText && ++count > excludesBound) result = true;
    }
    return result;
}

long cDiaryRecords::GetCurrentEventByClickingOnFileList(ListBox& list) {
    const std::string text = list.Text;
    if (list.Tag() == "TimeDetails")
        return SelectDiaryRecordIndex(MainForm().MonthView1.Value, Left(text, 4), Mid(text, 6));
    return SelectDiaryRecordIndex(DateFromYYYYMMDD(Left(text, 8)), Mid(text, 10, 4), Mid(text, 15));
}

}  // namespace orbidex
