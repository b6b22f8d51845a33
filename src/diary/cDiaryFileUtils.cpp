#include "diary/cDiaryFileUtils.h"

#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "foundation/Cp1252.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

cDiaryFileUtils glbFileUtils;

namespace {

// The lines of a file that another program may have written in another encoding.
std::vector<std::string> foreignLines(const std::string& file) {
    std::string bytes;
    ReadWholeFile(file, bytes);
    return SplitLines(Cp1252FromForeignText(bytes));
}

struct ExportedMonth {
    std::string yyyymm;
    std::string file;
};

// The month's events, from index 0; their number.
long eventsOfMonth(const std::string& file, std::vector<cDiaryRecord>& events) {
    const long result = glbEvents.ReadDiaryFileToArray(file, events, true);
    events.erase(events.begin());
    events.resize(static_cast<size_t>(result - 1));
    return result - 1;
}

// The index of the months, a row for each year.
std::string monthIndex(const std::vector<ExportedMonth>& months) {
    if (months.empty()) return "";
    std::string index;
    std::string year;
    for (const ExportedMonth& month : months) {
        const std::string thisYear = Left(month.yyyymm, 4);
        if (year.empty())
            index += "<table><tr><td width=100%><B>" + thisYear + "</B> &nbsp;\r\n";
        else if (thisYear != year)
            index += "</td></tr><TR><TD width=100%><B>" + thisYear + "</B> &nbsp;\r\n";
        year = thisYear;
        const VbDate first = DateSerial(ValInt(thisYear), ValInt(Right(month.yyyymm, 2)), 1);
        index += " <a href=D" + month.yyyymm + ".html>" + FormatDate(first, "mmm") + "</a>   &nbsp;\r\n";
    }
    return index + "</tr></table>\r\n";
}

}  // namespace

std::string MonthOfDiaryFile(const std::string& file) {
    const std::string name = GetFileNameOnly(file);
    if (Len(name) != 11 || UCase(Right(name, 4)) != ".DAT") return "";
    const std::string digits = Mid(name, 2, 6);
    for (char c : digits)
        if (c < '0' || c > '9') return "";
    const int year = ValInt(Left(digits, 4));
    const int month = ValInt(Right(digits, 2));
    if (year < kFirstDiaryYear || year > kLastDiaryYear || month < 1 || month > 12) return "";
    return digits;
}

long cDiaryFileUtils::convertCSVFiletoRecords(const std::string& file, const std::string& eventFile) {
    const std::vector<std::string> lines = foreignLines(file);
    std::vector<std::string> names;
    if (!lines.empty()) cDiaryRecord().ParseCSVHeader(lines.front(), names);

    std::string events;
    long count = 0;
    for (size_t i = 1; i < lines.size(); ++i) {
        if (Trim(lines[i]).empty()) continue;
        // Each line is a new record, so that no field of one line reaches the next.
        cDiaryRecord record;
        record.ParseCSVRecord(lines[i], names);
        if (record.UserCreatedBy.empty())
            record.UserCreatedBy = file;
        else
            record.URL = file;
        record.TimeEvent = "0000";
        ++count;
        events += record.FormatDiaryRecordAsCSV(kFieldDelimiter, "") + "\r\n";
    }
    FileError error;
    if (!WriteWholeFile(eventFile, events, &error)) {
        glbLog.log("convertCSVFiletoRecords could not write " + eventFile, 0);
        ShowFileError("convertCSVFiletoRecords", error);
        return -1;
    }
    return count;
}

void cDiaryFileUtils::AddDiaryRecordsFromFile(const std::string& eventFile) {
    std::vector<cDiaryRecord> records(1);
    for (const std::string& line : foreignLines(eventFile)) {
        if (Trim(line).empty()) continue;
        cDiaryRecord& record = records.emplace_back();
        record.GetDiaryRecordFromText(line);
        // Every imported event shows where it came from.
        if (record.URL.empty()) record.URL = eventFile;
    }
    const long count = static_cast<long>(records.size()) - 1;
    glbEvents.AddBulkRecords(records, count);
}

std::vector<std::string> cDiaryFileUtils::ExportDiaryFilesToHTML() {
    std::vector<std::string> files;
    glbEvents.CreateDiaryDataFileList(0, 0, files, true);

    // A month without events gets no page and no link.  The months are read again
    // for their pages, so that a diary of many years is never held whole.
    std::vector<ExportedMonth> months;
    std::vector<cDiaryRecord> events;
    for (const std::string& file : files) {
        const std::string yyyymm = MonthOfDiaryFile(file);
        if (!yyyymm.empty() && eventsOfMonth(file, events) > 0) months.push_back({yyyymm, file});
    }

    const std::string indexFile = gStrDataPath + kExportIndexFile;
    WriteWholeFile(indexFile, monthIndex(months));
    std::vector<std::string> pages;
    for (const ExportedMonth& month : months) {
        const std::string page = gStrDataPath + "D" + month.yyyymm + ".html";
        const VbDate first = DateSerial(ValInt(Left(month.yyyymm, 4)), ValInt(Right(month.yyyymm, 2)), 1);
        const long count = eventsOfMonth(month.file, events);
        glbEvents.ConvertEventsToHTML(events, count, page, first, indexFile, true);
        pages.push_back(page);
    }
    glbLog.log("ExportDiaryFilesToHTML wrote " + CStr(static_cast<long>(pages.size())) + " pages to " + gStrDataPath,
               0);
    return pages;
}

}  // namespace orbidex
