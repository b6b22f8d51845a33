// The diary to and from iCalendar files: every event of a range of days and the
// tasks of those days out, another program's events and to-dos in.
#include "diary/BulkReport.h"
#include "diary/ICalendarReader.h"
#include "diary/ICalendarWriter.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/cTasks.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

const char* const kExportTitle = "Export to iCalendar";
const char* const kImportTitle = "Import from iCalendar";

bool readDate(const std::string& text, VbDate& date) {
    std::string digits;
    for (char c : text)
        if (c != '-') digits += c;
    if (Len(digits) != 8 || digits.find_first_not_of("0123456789") != std::string::npos) return false;
    date = DateFromYYYYMMDD(digits);
    return IsDiaryDate(date) && FormatDate(date, "yyyymmdd") == digits;
}

bool inRange(const std::string& yyyymmdd, VbDate from, VbDate to) {
    return from == 0 || (yyyymmdd >= FormatDate(from, "yyyymmdd") && yyyymmdd <= FormatDate(to, "yyyymmdd"));
}

// The events of the months from `from` to `to`, in the order of their files.
std::vector<cDiaryRecord> eventsToExport(VbDate from, VbDate to) {
    std::vector<std::string> files;
    glbEvents.CreateDiaryDataFileList(0, 0, files, true);
    std::vector<cDiaryRecord> events;
    std::vector<cDiaryRecord> month;
    for (const std::string& file : files) {
        const std::string yyyymm = MonthOfDiaryFile(file);
        if (yyyymm.empty() || (from != 0 && (yyyymm < FormatDate(from, "yyyymm") || yyyymm > FormatDate(to, "yyyymm"))))
            continue;
        const long count = glbEvents.ReadDiaryFileToArray(file, month, true);
        for (long i = 1; i < count; ++i)
            if (inRange(month[static_cast<size_t>(i)].DateEvent, from, to))
                events.push_back(month[static_cast<size_t>(i)]);
    }
    return events;
}

std::vector<cTask> tasksToExport(VbDate from, VbDate to) {
    std::vector<cTask> tasks;
    const cData& table = glbTasks.Table();
    for (long i = 0; i <= table.Count(); ++i) {
        if (Trim(table.Item(i)).empty()) continue;
        cTask task;
        task.CreateTaskFromTextLine(table.Item(i), kFieldDelimiter);
        if (inRange(task.DateCreated, from, to)) tasks.push_back(task);
    }
    return tasks;
}

// The dates repeating events are added on; false when the user cancels or types
// something else than two dates.
bool askRepeatRange(VbDate& from, VbDate& to) {
    const VbDate today = Today();
    const std::string proposal =
        FormatDate(today, "yyyy-mm-dd") + " to " + FormatDate(DateAdd("yyyy", 1, today), "yyyy-mm-dd");
    const std::string answer = platform().InputBox(
        "The file holds repeating events.  Each is added on every date it falls on between two dates.\r\n"
        "From and to (yyyy-mm-dd to yyyy-mm-dd):",
        kImportTitle, proposal);
    if (Trim(answer).empty()) return false;
    if (ParseDateRange(answer, from, to)) return true;
    platform().MsgBox("\"" + answer + "\" is not two dates as yyyy-mm-dd to yyyy-mm-dd.\r\nNothing was imported.",
                      vbOKOnly + vbExclamation, kImportTitle);
    return false;
}

}  // namespace

bool ParseDateRange(const std::string& text, VbDate& from, VbDate& to) {
    const size_t split = LCase(text).find(" to ");
    if (split == std::string::npos) return false;
    return readDate(Trim(text.substr(0, split)), from) && readDate(Trim(text.substr(split + 4)), to) && from <= to;
}

bool cDiaryFileUtils::ExportToICalendar(const std::string& file, VbDate from, VbDate to) {
    platform().SetBusyCursor(true);
    const std::vector<cDiaryRecord> events = eventsToExport(from, to);
    const std::vector<cTask> tasks = tasksToExport(from, to);
    long leftOut = 0;
    const std::string text = WriteICalendar(events, tasks, Now(), &leftOut);
    FileError error;
    const bool written = WriteWholeFile(file, text, &error);
    platform().SetBusyCursor(false);
    if (!written) {
        ShowFileError("ExportToICalendar", error);
        return false;
    }
    const long exported = static_cast<long>(events.size()) - leftOut;
    glbLog.log("ExportToICalendar wrote " + CStr(exported) + " events and " + CStr(static_cast<long>(tasks.size())) +
                   " tasks to " + file,
               0);
    std::string message = "Exported " + CStr(exported) + " events and " + CStr(static_cast<long>(tasks.size())) +
                          " tasks to " + file + ".";
    if (leftOut > 0) message += "\r\n" + CStr(leftOut) + " events were left out: their date or time cannot be read.";
    platform().MsgBox(message, vbOKOnly, kExportTitle);
    return true;
}

void cDiaryFileUtils::ImportICalendar(const std::string& file) {
    std::string text;
    if (!ReadWholeFile(file, text)) {
        platform().MsgBox(file + " cannot be read.", vbOKOnly + vbExclamation, kImportTitle);
        return;
    }
    VbDate from = Today();
    VbDate to = DateAdd("yyyy", 1, from);
    if (ICalendarRepeats(text) && !askRepeatRange(from, to)) return;

    platform().SetBusyCursor(true);
    ICalendarContents contents = ReadICalendar(text, from, to);
    if (!contents.isCalendar) {
        platform().SetBusyCursor(false);
        platform().MsgBox(file + " holds no iCalendar data.\r\nNothing was imported.", vbOKOnly + vbExclamation,
                          kImportTitle);
        return;
    }
    glbLog.log("ImportICalendar read " + CStr(static_cast<long>(contents.events.size())) + " events and " +
                   CStr(static_cast<long>(contents.tasks.size())) + " tasks from " + file,
               0);
    std::vector<cDiaryRecord> events(1);
    events.insert(events.end(), contents.events.begin(), contents.events.end());
    BulkReport report;
    const long added = glbEvents.AddBulkRecords(events, static_cast<long>(contents.events.size()), report);
    std::vector<std::string> tasksNotAdded;
    const long tasksAdded = glbTasks.AddTasks(contents.tasks, tasksNotAdded);
    platform().SetBusyCursor(false);

    for (const std::string& line : contents.skipped) glbLog.log("ImportICalendar skipped " + line, 0);
    for (const std::string& line : contents.unread) glbLog.log("ImportICalendar could not read " + line, 0);
    const std::string summary = "Imported from " + GetFileNameOnly(file) + ": " + CStr(added) + " events and " +
                                CStr(tasksAdded) + " tasks." + report.Sections() +
                                BulkReport::Section("Tasks not added", tasksNotAdded) +
                                BulkReport::Section("Skipped", contents.skipped) +
                                BulkReport::Section("Lines that could not be read", contents.unread);
    platform().MsgBox(summary, vbOKOnly, kImportTitle);
}

}  // namespace orbidex
