// Reminders: each minute the lines of today's month file and of the task file that
// mention today are read again; those whose reminder falls between the last check
// and now are shown on the sticky note once, and their keys kept in reminded.log.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmStickyNote.h"

namespace orbidex {

namespace {

// The lines of `text` that hold `part` anywhere, each once, in their order.
std::vector<std::string> linesHolding(const std::string& text, const std::string& part) {
    std::vector<std::string> lines;
    for (size_t at = text.find(part); at != std::string::npos;) {
        const size_t before = text.find_last_of("\r\n", at);
        const size_t start = before == std::string::npos ? 0 : before + 1;
        const size_t end = std::min(text.find_first_of("\r\n", at), text.size());
        lines.push_back(text.substr(start, end - start));
        at = text.find(part, end);
    }
    return lines;
}

// The line over the note: the day and the time of the event, as people write them.
std::string whenText(const cDiaryRecord& record) {
    std::string when = record.DateEvent;
    if (Len(record.DateEvent) == 8 && IsNumeric(record.DateEvent))
        when = FormatDate(DateFromYYYYMMDD(record.DateEvent), "DDDD, d MMMM yyyy");
    if (Len(record.TimeEvent) == 4 && IsNumeric(record.TimeEvent))
        when += "  at " + Left(record.TimeEvent, 2) + ":" + Right(record.TimeEvent, 2);
    return when;
}

}  // namespace

void clsDiaryScreen::CheckReminders() {
    const std::string lastTime = glbConfig.GetValue("diary", "TimeRemindersLastChecked");
    const std::string lastDate = glbConfig.GetValue("diary", "DateRemindersLastChecked");
    const VbDate now = Now();
    const std::string today = FormatDate(now, "yyyymmdd");
    const std::string timeNow = FormatDate(now, "hhmm");
    std::vector<std::string> lines;
    long count = 0;
    grepReminders(today, lines, count);

    for (long i = 0; i <= count; ++i) {
        const std::string& line = lines[static_cast<size_t>(i)];
        if (Trim(line).empty()) continue;
        platform().DoEvents();
        cDiaryRecord record;
        record.GetDiaryRecordFromText(line);
        if (record.DateRemind != today) continue;
        glbLog.log("Found reminder for today :" + record.details + " time=" + record.TimeRemind, 4);
        // Due when lastTime <= TimeRemind <= now: the minute of the last check counts again.
        if (record.TimeRemind > timeNow || record.TimeRemind < lastTime) continue;
        ShowReminder(record);
        glbLog.log("Reminder SHOWN #" + CStr(i) + " = " + line, 4);
    }
    // The moment the scan began: a reminder that falls due while it runs comes at the next.
    glbConfig.SetVal("diary", "TimeRemindersLastChecked", timeNow);
    // The date plays no part in the window; it is written once a day, not at every minute.
    if (lastDate != today) glbConfig.SetVal("diary", "DateRemindersLastChecked", today);
}

void clsDiaryScreen::grepReminders(const std::string& today, std::vector<std::string>& lines, long& count) {
    lines.assign(51, "");
    count = 0;
    if (gStrDataPath.empty()) glbEvents.InitDiary(form_, "");
    const std::string pcFileMark = std::string(kFieldDelimiter) + "PCFile" + std::string(kFieldDelimiter);

    const auto grep = [&](const std::string& file, bool tasks) {
        std::string bytes;
        if (!ReadWholeFile(file, bytes)) {
            const std::string description = FileExists(file) ? "Path/File access error" : "File not found";
            logOnce(file,
                    "Error in grepReminders - " + description + " fname=" + file + " diary.dataPath=" + gStrDataPath);
            return;
        }
        loggedOnce_.erase(file);  // a file that reads again may fail again, and is told again
        // Finding today's date in the bytes takes less than a turn of the window would.
        platform().DoEvents();
        for (const std::string& line : linesHolding(bytes, today)) {
            // Lines that record the use of a file on the PC are never reminders.
            if (InStrText(10, line, pcFileMark) > 0) continue;
            if (tasks) logOnce(line, "Found task reminder");
            ++count;
            if (count >= static_cast<long>(lines.size())) lines.resize(lines.size() + 50);
            lines[static_cast<size_t>(count)] = line;
        }
    };
    grep(glbEvents.GetDiaryFileNameForDate(DateFromYYYYMMDD(today)), false);
    grep(gStrDataPath + "D_tasks.dat", true);
}

void clsDiaryScreen::ShowReminder(const cDiaryRecord& record) {
    const std::string logFile = gStrDataPath + "reminded.log";
    const std::string key = record.DateEvent + " " + record.TimeEvent + " " + record.details;
    if (HasReminderAlreadyBeenDisplayed(logFile, key)) {
        glbLog.log("Event '" + key + "' was attempted to be reminded when it has already been acknowledged", 3);
        return;
    }
    if (Val(glbConfig.GetValue("reminders", "sound")) == 1) platform().Beep();
    if (Val(glbConfig.GetValue("reminders", "popupwindow")) == 1) {
        frmStickyNote& note = StickyNote();
        note.Caption = "Reminder for " + record.TimeEvent;
        note.lblNote.Caption = whenText(record);
        note.txtNote.Text = record.details;
        note.Show(false);
    }
    glbLog.log("Reminder at " + record.TimeRemind + " = " + record.details, 4);
    // Written as a log line, so only while the log level is 3 or more.
    glbLog.pimlog(logFile, key, 5, 3);
}

bool clsDiaryScreen::HasReminderAlreadyBeenDisplayed(const std::string& logFile, const std::string& key) {
    std::string bytes;
    if (!ReadWholeFile(logFile, bytes)) return false;
    for (const std::string& line : SplitLines(bytes))
        if (line == key) return true;
    return false;
}

void clsDiaryScreen::logOnce(const std::string& what, const std::string& message) {
    if (loggedOnce_.insert(what).second) glbLog.log(message, 0);
}

}  // namespace orbidex
