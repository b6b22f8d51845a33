// Identifiers of events, and adding an event from elsewhere by appending its line.
#include <cmath>

#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"

namespace orbidex {

namespace {

std::string twoDigits(int value) {
    return FormatNumber(value, "00");
}

}  // namespace

std::string cDiaryRecords::IdConvertToString(VbDate date, long number) const {
    const std::string digits = CStr(number);
    if (Len(digits) > 8) return "D" + CStr(Year(date));
    return "D" + CStr(Year(date)) + StringOf(8 - Len(digits), '0') + digits;
}

int32_t cDiaryRecords::IdConvertToLong(const std::string& id) const {
    const double value = RoundHalfEven(Val(Trim(Right(id, 8))));
    if (std::isnan(value) || value > INT32_MAX || value < INT32_MIN) return 0;
    return static_cast<int32_t>(value);
}

std::string cDiaryRecords::idLetterOf(const std::string& firstLine, const std::string& file) {
    if (firstLine.empty()) return Trim(Left(GetFileNameOnly(file), 1));
    return StartsWith(firstLine, "ID") ? "C" : Trim(Left(firstLine, 1));
}

cDiaryRecords::EventInLine::EventInLine(const std::string& date, const std::string& time, const std::string& details)
    : date_(kFieldDelimiter), time_(kFieldDelimiter), details_(kFieldDelimiter) {
    date_.append(date).append(kFieldDelimiter);
    time_.append(time).append(kFieldDelimiter);
    details_.append(details).append(kFieldDelimiter);
}

bool cDiaryRecords::EventInLine::HeldBy(const std::string& line) const {
    // Only that the three texts stand as fields somewhere in the line counts, not where;
    // the searches start at the 5th, 9th and 12th character.
    if (line.find_first_not_of(' ') == std::string::npos) return false;
    return line.find(date_, 4) != std::string::npos && line.find(time_, 8) != std::string::npos &&
           line.find(details_, 11) != std::string::npos;
}

std::string cDiaryRecords::getUniqueID(const std::string& file, VbDate date, std::string_view delimiter) {
    // Every caller has just made the file by asking its name; the text is what a
    // failed comparison has always given here.
    if (!FileExists(file)) return "False";
    std::string bytes;
    ReadWholeFile(file, bytes);
    const std::vector<std::string> lines = SplitLines(bytes);
    const std::string day = FormatDate(date, "yyyymmdd");
    const std::string prefix = idLetterOf(lines.empty() ? "" : lines.front(), file) + day;

    bool matched = false;
    std::string lastMatch, highest;
    for (const std::string& line : lines) {
        const std::string id = Left(line, 13);
        if (Left(id, 9) != prefix) continue;
        matched = true;
        lastMatch = id;
        if (id > highest) highest = id;
    }
    if (!matched) return (UCase(Right(file, 3)) == "DAT" ? "D" : "C") + day + "0001";

    const std::string next = createNextID(date, highest);
    const long cut = InStr(lastMatch, delimiter);
    glbLog.log("GetUniqueID : old ID = " + (cut > 0 ? Left(lastMatch, cut - 1) : std::string()), 3);
    return next;
}

std::string cDiaryRecords::createNextID(VbDate date, const std::string& lastID) {
    if (lastID.empty()) {
        glbLog.log("createNextID was passed null ID", 1);
        return "";
    }
    const std::string letter = Left(lastID, 1);
    const std::string oldDay = Mid(lastID, 2, 8);
    const std::string year = CStr(Year(date));
    if (Len(year) < 4)
        platform().MsgBox("ERROR - txtYear in getUniqueID is less than 4 digits - what the hell is going on here ?",
                          vbOKOnly, "");
    const std::string newDay = year + twoDigits(Month(date)) + twoDigits(Day(date));
    const long sequence = oldDay == newDay ? static_cast<long>(ValInt(Right(lastID, 4))) + 1 : 1;
    // From 10000 on the sequence has five digits and the identifier 14 characters.
    std::string digits = CStr(sequence);
    if (Len(digits) < 4) digits = StringOf(4 - Len(digits), '0') + digits;
    const std::string id = letter + newDay + digits;
    glbLog.log("createNextID = " + id, 3);
    return id;
}

bool cDiaryRecords::DoesDiaryRecordAlreadyExist(const std::string& date, const std::string& time,
                                                const std::string& details) {
    if (gStrDiaryDataFile.empty()) return false;
    std::string bytes;
    if (!ReadWholeFile(gStrDiaryDataFile, bytes)) return false;
    const EventInLine event(date, time, details);
    for (const std::string& line : SplitLines(bytes))
        if (event.HeldBy(line)) return true;
    return false;
}

bool cDiaryRecords::AddDiaryRecord(cDiaryRecord& record, bool reload, bool noServerCopy) {
    if (gStrDataPath.empty()) platform().MsgBox("Warning- diary has not been initialised", vbOKOnly, "");
    // The test runs against the file in hand, before the name moves to the record's month.
    if (DoesDiaryRecordAlreadyExist(record.DateEvent, record.TimeEvent, record.details)) {
        glbLog.log("AddDiaryRecord: Cant add " + record.details + "  - already exists", 3);
        return false;
    }
    const VbDate date = DateFromYYYYMMDD(record.DateEvent);
    gStrDiaryDataFile = GetDiaryFileNameForDate(date);
    std::string id = getUniqueID(gStrDiaryDataFile, date, kFieldDelimiter);
    if (EndsWith(id, kFieldDelimiter)) id.pop_back();
    record.ID = id;

    const std::string line = record.FormatDiaryRecordAsCSV(kFieldDelimiter, "");
    if (Trim(line).empty()) {
        glbLog.log("Trying to add blank record - aborting", 0);
        return false;
    }
    glbLog.log("AddDiaryRecord (File Append) to " + gStrDiaryDataFile + " - " + line, 3);
    if (!IsDiaryDate(date) || !AppendToFile(gStrDiaryDataFile, line + "\r\n")) {
        glbLog.log("AddDiaryRecord - could not append to " + gStrDiaryDataFile + " - " + line, 0);
        return false;
    }
    fileStamp_ = stampOf(gStrDiaryDataFile);
    if (reload) LoadDiaryData(date);
    if (!noServerCopy) glbComms.SaveFileToMyNetworkDatapathForServer(gStrDiaryDataFile, false);
    return true;
}

}  // namespace orbidex
