// Exchanging events and tasks with other calendar programs through iCalendar files.
#include "diary/cDiaryFileUtils.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"

namespace orbidex {

namespace {

const char* const kCalendarFilter = "iCalendar files (*.ics *.ICS);;All files (*)";

bool isCalendarFile(const std::string& file) {
    return UCase(Right(file, 4)) == ".ICS";
}

}  // namespace

void clsDiaryCommand::ExportICalendar() {
    const std::string answer = platform().InputBox(
        "Export the events and tasks of the days from and to (yyyy-mm-dd to yyyy-mm-dd),\r\n"
        "or leave the box empty to export the whole diary:",
        "Export to iCalendar", "");
    VbDate from = 0;
    VbDate to = 0;
    if (!Trim(answer).empty() && !ParseDateRange(answer, from, to)) {
        platform().MsgBox("\"" + answer + "\" is not two dates as yyyy-mm-dd to yyyy-mm-dd.", vbOKOnly + vbExclamation,
                          "Export to iCalendar");
        return;
    }
    std::string file = platform().PickFileToSave("Export to iCalendar", kCalendarFilter, "Diary.ics");
    if (file.empty()) return;
    if (!isCalendarFile(file)) file += ".ics";
    glbFileUtils.ExportToICalendar(file, from, to);
}

void clsDiaryCommand::ImportICalendar() {
    const std::string file = platform().PickFileToOpen("Import from iCalendar", kCalendarFilter);
    if (!file.empty()) ImportICalendarFiles({file}, false);
}

bool clsDiaryCommand::ImportICalendarFiles(const std::vector<std::string>& files, bool byName) {
    bool any = false;
    for (const std::string& file : files) {
        if (byName && !isCalendarFile(file)) continue;
        any = true;
        timerOn(false);
        glbFileUtils.ImportICalendar(file);
        glbScreen.SwitchMode(glbScreen.Mode());
        timerOn(true);
    }
    return any;
}

}  // namespace orbidex
