// Writing the array back: the single-month save with its sort and guards, the
// two-month save, and the dump of everything in memory.
#include "diary/cDiaryRecords.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kSaveRule = "-----------------------------------------";

// The two characters before ".dat": the month of a monthly file's name.
std::string monthOfFileName(const std::string& file) {
    return Mid(file, Len(file) - 5, 2);
}

// Replaces the file's content; a failure is logged and shown, and the file keeps
// what it held.
bool writeReported(const std::string& source, const std::string& file, const std::string& content) {
    FileError error;
    if (WriteWholeFile(file, content, &error)) return true;
    glbLog.log(source + " could not write " + file + " - it keeps its previous content", 0);
    ShowFileError(source, error);
    return false;
}

}  // namespace

void cDiaryRecords::SaveDiaryArray(std::string_view, frmClientDiaryMain* mainForm) {
    if (gBoolExtraDiaryDataLoaded) {
        SaveMultipleMonthsDiaryDataToDisk();
    } else {
        const long top = totEvents();
        // One entry more than the array: the last is never filled.
        std::vector<std::string> lines(static_cast<size_t>(top + 2));
        for (long i = 0; i <= top; ++i) {
            const cDiaryRecord& record = events(i);
            if (record.ID.empty()) glbLog.log("SaveDiaryArray - ID(" + CStr(i) + ")  = Null", 3);
            lines[static_cast<size_t>(i)] = record.FormatDiaryRecordAsCSV(kFieldDelimiter, "");
        }
        SortTexts(lines);
        askAboutDuplicates(lines);
        if (!sizeGuardAllows(top)) return;
        checkMonthOfFile(mainForm);

        const std::string& file = gStrDiaryDataFile;
        const std::string saveLog = gStrDataPath + "single-save.log";
        glbLog.pimlog(saveLog, kSaveRule + file, 2, 3);
        glbLog.pimlog(saveLog, "SAVING DATA TO " + file, 2, 3);
        glbLog.pimlog(saveLog, kSaveRule + file, 2, 3);
        std::string content;
        long count = 0;
        for (const std::string& line : lines) {
            if (Trim(line).empty()) continue;
            content += line + "\r\n";
            ++count;
        }
        if (!writeReported("SaveDiaryArray", file, content)) return;
        glbLog.log("SaveDiaryData saved " + CStr(count) + " records to " + file, 3);
    }
    glbComms.SaveDiaryFileToServer(gStrDiaryDataFile, false);
}

void cDiaryRecords::askAboutDuplicates(std::vector<std::string>& lines) {
    // The sorted lines start with at least two empty ones (the empty top slot and the
    // unfilled last entry), which count as a duplicate and settle the answer as Yes
    // before any real duplicate is met: the question stays for a list without them.
    const std::string usage = std::string(kFieldDelimiter) + "Usage" + std::string(kFieldDelimiter);
    int answer = 0;
    for (size_t i = 0; i + 1 < lines.size(); ++i) {
        const std::string id = Left(lines[i], 13);
        if (id != Left(lines[i + 1], 13)) continue;
        glbLog.log("Duplicate ID - " + id + "  in record '" + lines[i], 3);
        if (InStr(15, lines[i + 1], usage) > 0) answer = vbYes;
        if (Trim(lines[i]).empty()) answer = vbYes;
        if (answer == vbYes) continue;
        answer = platform().MsgBox(lines[i + 1] + " has duplicate id - do you want to delete it ?", vbYesNo,
                                   "Duplicate ID Found");
        if (answer == vbYes) lines[i + 1].clear();
        glbLog.log("User deleted duplicate ID#" + lines[i], 0);
    }
}

bool cDiaryRecords::sizeGuardAllows(long upperBound) {
    // A handful of events about to replace a large file hints at the wrong file.
    const long long fileLength = FileLength(gStrDiaryDataFile);
    if (upperBound < 5 || static_cast<long long>(upperBound) * 250 >= fileLength) return true;
    glbLog.log(
        "DANGER - YOU MAY BE OVERWRITING THE WRONG FILE - the number of events seems a little low to be "
        "overwriting such a large file",
        3);
    const int answer = platform().MsgBox(
        "DANGER - YOU MAY BE OVERWRITING THE WRONG FILE - PRESS CANCEL TO ABORT (or press OK if you think its ok)",
        vbOKCancel, "Warning the number of events seems a little low to be overwriting such a large file");
    return answer != vbCancel;
}

void cDiaryRecords::checkMonthOfFile(frmClientDiaryMain* mainForm) {
    if (ValInt(monthOfFileName(gStrDiaryDataFile)) == Month(gLngWhichMonthIsLoaded)) return;
    glbLog.log("Warning - may be saving to wrong spot", 3);
    // Without a window there is no calendar to ask, and the name stays.
    if (mainForm != nullptr) gStrDiaryDataFile = GetDiaryFileNameForDate(MainForm().MonthView1.Value);
}

void cDiaryRecords::SaveMultipleMonthsDiaryDataToDisk() {
    glbLog.log("Saving Multiple months data to " + gStrFirstDatafile + " and  " + gStrSecondDatafile, 0);
    if (gStrFirstDatafile == gStrSecondDatafile) {
        platform().MsgBox("ERROR - trying to save multiple months to the same file - aborting", vbOKOnly, "");
        return;
    }
    glbLog.log("----------------- Entered SaveMultipleMonthsDiaryDataToDisk -----------------", 3);
    const std::string saveLog = gStrDataPath + "multi-save.log";
    glbLog.pimlog(saveLog, kSaveRule + gStrDiaryDataFile, 2, 3);
    glbLog.pimlog(saveLog, "SAVING DATA ", 3, 3);
    glbLog.pimlog(saveLog, kSaveRule + gStrDiaryDataFile, 2, 3);

    // Each file starts with an empty line.  An event of neither month goes to the second.
    const std::string firstMonth = monthOfFileName(gStrFirstDatafile);
    std::string first = "\r\n", second = "\r\n";
    long firstCount = 0, secondCount = 0;
    for (long i = 0; i <= totEvents(); ++i) {
        const cDiaryRecord& record = events(i);
        const std::string line = record.FormatDiaryRecordAsCSV(kFieldDelimiter, "");
        if (line.empty()) continue;
        if (Mid(record.DateEvent, 5, 2) == firstMonth) {
            first += line + "\r\n";
            ++firstCount;
        } else {
            second += line + "\r\n";
            ++secondCount;
        }
    }
    const char* const source = "SaveMultipleMonthsDiaryDataToDisk";
    const bool firstWritten = writeReported(source, gStrFirstDatafile, first);
    const bool secondWritten = writeReported(source, gStrSecondDatafile, second);
    // The counts have always been paired with the files this way round.
    if (firstWritten && secondWritten)
        glbLog.log("SaveMultipleMonthsDiaryDataToDisk saved " + CStr(firstCount) + " records to " + gStrSecondDatafile +
                       " and  " + CStr(secondCount) + " records to " + gStrFirstDatafile,
                   3);
    // A file that could not be written has nothing new to hand over.
    if (firstWritten) glbComms.SaveDiaryFileToServer(gStrFirstDatafile, false);
    if (secondWritten) glbComms.SaveDiaryFileToServer(gStrSecondDatafile, false);
}

void cDiaryRecords::SaveDumpOfDiaryRecords() {
    const std::string file = gStrDataPath + "D000101.DAT";
    std::string content = "Dumped Diary Database from Memory on " + FormatDate(Now(), "yyyy-mm-dd hh:mm:ss") + "\r\n";
    long count = 0;
    for (long i = 0; i <= totEvents(); ++i) {
        const std::string line = events(i).FormatDiaryRecordAsCSV(kFieldDelimiter, "");
        if (Trim(line).empty()) continue;
        content += line + "\r\n";
        ++count;
    }
    if (!writeReported("SaveDumpOfDiaryRecords", file, content)) return;
    platform().MsgBox("Saved " + CStr(count) + " records to the file " + file + "\r\nYou can now re-index the database",
                      vbOKOnly, "Dump Memory Completed");
}

}  // namespace orbidex
