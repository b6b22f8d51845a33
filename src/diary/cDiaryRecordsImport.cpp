// Many events at once: an imported file, or one event on many dates.  Each monthly
// file the events fall in is read once, gets all its new lines, and is written once.
#include <algorithm>
#include <map>

#include "diary/BulkReport.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// True for a date written as the files write dates: "yyyymmdd" of a real day.
bool isStoredDate(const std::string& text) {
    if (Len(text) != 8) return false;
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return FormatDate(DateFromYYYYMMDD(text), "yyyymmdd") == text;
}

// One monthly file while a bulk add fills it: its lines as they stand on disk, the
// lines added, and the highest identifier of each day, which the next one follows as
// it would if each line were appended to the file on its own.
class MonthInHand {
public:
    explicit MonthInHand(std::string file) : file_(std::move(file)) {
        // A new month's file starts with an empty line, as one made by looking its name up.
        if (FileExists(file_)) {
            readable_ = ReadWholeFile(file_, bytes_);
        } else {
            bytes_ = "\r\n";
            readable_ = true;
        }
        // An appended line never runs into a last line that has no line end.
        if (!bytes_.empty() && bytes_.back() != '\n' && bytes_.back() != '\r') bytes_ += "\r\n";
        lines_ = SplitLines(bytes_);
        letter_ = cDiaryRecords::idLetterOf(lines_.empty() ? "" : lines_.front(), file_);
        for (const std::string& line : lines_) noteId(line);
    }

    bool Readable() const { return readable_; }
    const std::string& File() const { return file_; }

    bool Holds(const cDiaryRecord& event) const {
        const cDiaryRecords::EventInLine wanted(event.DateEvent, event.TimeEvent, event.details);
        for (const std::string& line : lines_)
            if (wanted.HeldBy(line)) return true;
        return false;
    }

    /// The identifier the file's next event of `date` gets.
    std::string NextId(VbDate date) {
        const std::string day = FormatDate(date, "yyyymmdd");
        const auto found = highest_.find(letter_ + day);
        if (found == highest_.end()) return "D" + day + "0001";
        glbLog.log("GetUniqueID : old ID = ", 3);
        return glbEvents.createNextID(date, found->second);
    }

    void Append(const std::string& line) {
        bytes_ += line + "\r\n";
        lines_.push_back(line);
        noteId(line);
    }

    bool Write(FileError& error) const { return WriteWholeFile(file_, bytes_, &error); }

private:
    // Identifiers compare as their first 13 characters, the way the file is searched.
    void noteId(const std::string& line) {
        const std::string id = Left(line, 13);
        std::string& highest = highest_[Left(id, 9)];
        if (id > highest) highest = id;
    }

    std::string file_;
    std::string bytes_;
    bool readable_ = false;
    std::vector<std::string> lines_;
    std::string letter_;
    std::map<std::string, std::string> highest_;  ///< by letter and day
};

// True for a file the diary keeps in its data folder, which an import must not write over.
bool isFileOfTheDiary(const std::string& file) {
    if (UCase(GetFolderOfPath(file)) != UCase(gStrDataPath)) return false;
    const std::string name = GetFileNameOnly(file);
    for (const char* pattern : {"D*.DAT", "allnotes.dat", "recurring.dat", "template_*.dat"})
        if (WildcardMatch(pattern, name)) return true;
    return false;
}

}  // namespace

void cDiaryRecords::AddBulkRecords(std::vector<cDiaryRecord>& records, long count) {
    BulkReport report;
    const long added = AddBulkRecords(records, count, report);
    platform().MsgBox(report.Text(added), vbOKOnly, report.Empty() ? "Success" : "Some events were not added as given");
}

long cDiaryRecords::AddBulkRecords(std::vector<cDiaryRecord>& records, long count, BulkReport& report) {
    count = std::clamp(count, 0L, std::max(static_cast<long>(records.size()) - 1, 0L));

    // The months the events fall in, in the order they first come, and each month's events.
    std::vector<std::string> months;
    std::map<std::string, std::vector<long>> eventsOfMonth;
    std::string monthList;
    for (long i = 1; i <= count; ++i) {
        const cDiaryRecord& event = records[static_cast<size_t>(i)];
        const VbDate date = DateFromYYYYMMDD(event.DateEvent);
        if (!IsDiaryDate(date)) {
            report.NotAdded(event, "the date is not one the diary can hold");
            continue;
        }
        const std::string file = diaryFileName(date);
        monthList += GetFileNameOnly(file) + "\r\n";
        auto [entry, isNew] = eventsOfMonth.try_emplace(UCase(file));
        if (isNew) months.push_back(file);
        entry->second.push_back(i);
    }
    WriteWholeFile(gStrDataPath + "tmpFileList.txt", monthList);

    long added = 0;
    for (const std::string& file : months) {
        MonthInHand month(file);
        std::vector<long> pending;
        for (long i : eventsOfMonth[UCase(file)]) {
            cDiaryRecord& event = records[static_cast<size_t>(i)];
            glbLog.log("Bulk adding - " + event.details + " to " + event.DateEvent, 0);
            if (!month.Readable()) {
                report.NotAdded(event, GetFileNameOnly(file) + " cannot be read");
            } else if (month.Holds(event)) {
                glbLog.log("AddDiaryRecord: Cant add " + event.details + "  - already exists", 3);
                report.NotAdded(event, "already in the diary");
            } else {
                event.ID = month.NextId(DateFromYYYYMMDD(event.DateEvent));
                const std::string line = event.FormatDiaryRecordAsCSV(kFieldDelimiter, "");
                glbLog.log("AddDiaryRecord (File Append) to " + file + " - " + line, 3);
                month.Append(line);
                pending.push_back(i);
            }
        }
        if (pending.empty()) continue;
        FileError error;
        if (!month.Write(error)) {
            glbLog.log("AddBulkRecords could not write " + file + " (" + error.description + ")", 0);
            for (long i : pending)
                report.NotAdded(records[static_cast<size_t>(i)],
                                GetFileNameOnly(file) + " could not be written (" + error.description + ")");
            continue;
        }
        added += static_cast<long>(pending.size());
        for (long i : pending)
            if (!isStoredDate(records[static_cast<size_t>(i)].DateEvent))
                report.KeptWithOddDate(records[static_cast<size_t>(i)], file);
        glbComms.SaveDiaryFileToServer(file, false);
    }

    LoadDiaryData(MainForm().MonthView1.Value);
    glbScreen.SwitchMode(glbScreen.Mode());
    return added;
}

void cDiaryRecords::ImportData(std::string file) {
    file = Trim(file);
    if (Len(file) < 4) return;
    const bool eventLines = UCase(Right(file, 4)) == ".DAT";
    const std::string eventFile = eventLines ? file : Left(file, Len(file) - 3) + "DAT";
    if (!eventLines && isFileOfTheDiary(eventFile)) {
        platform().MsgBox("Importing " + file + " would write its events over " + eventFile +
                              ", a file of the diary.\r\nRename the file and import it again.",
                          vbOKOnly + vbExclamation, "Import Appointments");
        return;
    }
    platform().SetBusyCursor(true);
    if (eventLines || glbFileUtils.convertCSVFiletoRecords(file, eventFile) >= 0)
        glbFileUtils.AddDiaryRecordsFromFile(eventFile);
    platform().SetBusyCursor(false);
}

}  // namespace orbidex
