// The first start: no settings file yet.  The file is written with its comment header
// and every default, and a client is asked whether it works with a server.
#include <string>
#include <utility>
#include <vector>

#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

namespace {

const char* const kDashes = "--------------------------------------------------------";

const char* const kWelcomeTitle = "Welcome to Brindlewick Softwares Orbidex Client";

std::string welcomeText() {
    return std::string("Welcome to Orbidex, the diary for you and your office.\r\n\r\n") +
           "This is the first time the Diary has been started here. It can keep your diary on this PC "
           "only, or connect to a diary server so that your office can share diaries, book meetings "
           "and send messages.\r\n\r\n" +
           "Click [YES] to connect to a server\r\n" + "Click [No] to run in Local mode";
}

// The comment lines and sections of a new settings file, each line ended by CR LF.
// The defaults go into the sections afterwards, each key at the end of its section,
// so these lines stay above them.
std::string defaultFileHeader(const std::string& createdLine) {
    const std::vector<std::string> lines = {
        ";   ------------------------------------------------------------------",
        createdLine,
        ";   ------------------------------------------------------------------",
        " ",
        ";   This INI file is used by all the Orbidex Products",
        ";   if you have problems editing this file, you can simply delete",
        ";   it and it will be automatically regenerated when you start ",
        ";   the Diary again.",
        "; ",
        " ",
        " ",
        ";   The general section includes disk space warings, EXE files to launch, etc",
        "[general]",
        "; ",
        " ",
        " ",
        ";   The Network section contains entries for the client to find the server",
        "[Network]",
        "ShowPopupMessages=1 ",
        "; ",
        " ",
        ";   The diary section contains entries for the LOCAL datapath",
        "[diary]",
        "DateRemindersLastChecked=19990101",
        "TimeRemindersLastChecked=0000",
        " ",
        ";   This has the form settings for the main DiaryClient program",
        "[ClientMain]",
        " ",
        " ",
        ";   This section controls the calendar in the main Diary program",
        "[calendar]",
        "; ",
        " ",
        " ",
        ";   This section controls the appointments display in the main Diary program",
        "[appointments]",
        " ",
        " ",
        ";   This section controls the timeslots in grid mode of the main Diary program",
        // These two lines are wrong (the values are plain hours) and stay as the file
        // has always had them.
        ";   the starttime values are : 0=7am, 1=8am, 2=9am, etc   (-1=6am, -2=5am )",
        ";   the stoptime  values are : 0=2pm, 1=3pm, 2=4pm, etc   (-1=1pm, -2=12pm )",
        "[timeslots]",
        " ",
        " ",
        ";   This section controls where the FileAccess events are displayed in the main Diary program",
        "[FileAccess]",
        " ",
        " ",
        ";   Which fields are displayed for Events when looking at events in List Mode",
        "[ListViewHeadings]",
        " ",
        " ",
        ";   Which fields are displayed for the Tasks",
        "[TaskHeadings]",
        " ",
        " ",
        ";   Colour settings for the Diary",
        "[colour]",
        " ",
        " ",
        ";   Toolbar - screen position of the Toolbar Program (Tessaline)",
        "[display]",
        " ",
        " ",
        ";   Toolbar - how often to check for various things (in minutes)",
        "[intervals]",
        "; ",
        " ",
        " ",
        ";   What to do when a reminder occurs",
        "[reminders]",
        " ",
        ";   How to display the Annual Calendar",
        "[calendarView]",
        "  ",
        ";   Toolbar - Scrap Paper for Tessaline - where it starts and how big it is",
        "[frmClientDiaryMain]",
        "Height=7545",
        "Width=11000",
        "Left=100",
        "Top=100",
        " ",
    };
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

// The column captions of a new file: every field hidden but those given.
std::vector<std::pair<std::string, std::string>> headingDefaults(const std::vector<std::string>& order,
                                                                 const std::vector<std::string>& shown,
                                                                 const std::vector<std::string>& captions) {
    std::vector<std::pair<std::string, std::string>> values;
    for (const std::string& key : order) {
        std::string caption = "<hide>";
        for (size_t i = 0; i < shown.size(); ++i)
            if (shown[i] == key) caption = captions[i];
        values.emplace_back(key, caption);
    }
    return values;
}

}  // namespace

void clsConfigDiary::StartingForFirstTime() {
    glbLog.log(kDashes, 0);
    glbLog.log("No INI File - starting with Defaults", 0);
    glbLog.log(kDashes, 0);

    int answer = vbNo;
    if (NETWORK_STRING == "CLIENT") {
        answer = platform().MsgBox(welcomeText(), vbYesNoCancel + vbQuestion, kWelcomeTitle);
        if (answer == vbCancel) platform().EndProgram(0);
    }

    // The defaults and the answer gather in memory and reach the file in one write.
    newFile_.emplace("");
    CreateDefaultIniFile();

    if (answer == vbYes) {
        const std::string serverPath = DetectNetworkPath();
        // Written straight to the file and once more through the object.
        auto writeTwice = [this](const std::string& section, const std::string& key, const std::string& value) {
            writeKey(section, key, value, gStrIniFile);
            SetVal(section, key, value);
        };
        writeTwice("Network", "runLocalModeOnly", "0");
        writeTwice("diary", "dataPath", gStrDataPath);
        writeTwice("Network", "dataPath", serverPath);
        writeTwice("Network", "userPath", serverPath);
    } else {
        SetVal("Network", "runLocalModeOnly", "1");
    }
    writeNewFile();
}

std::string clsConfigDiary::DetectNetworkPath() {
    const std::string programFolder = platform().ProgramFolder();
    platform().RunAndWait(programFolder + "\\mirlow.exe AUTO");
    glbNetworkDatapath = readIni("path", "pathname", programFolder + "\\mirlow.ini");
    return glbNetworkDatapath;
}

void clsConfigDiary::CreateDefaultIniFile() {
    gBoolNewIniFile = true;
    const std::string createdLine =
        ";     orbidex.ini - created by " + platform().ExeName() + " on " + FormatDate(Now(), "dd-MMM-yyyy hh:mm:ss");
    // Within the first run the file is written once the answer is in.
    const bool withinFirstRun = newFile_.has_value();
    newFile_.emplace(defaultFileHeader(createdLine));

    writeKey("Network", "runLocalModeOnly", "0", fname);
    writeKey("network", "security", "3", fname);
    writeKey("network", "waitTime", "12", fname);
    writeKey("diary", "dataPath", platform().ProgramFolder() + "\\data\\", fname);

    UpdateDefaultDiarySettings();
    UpdateDefaultTessalineSettings();
    UpdateDefaultIniColours();

    if (!withinFirstRun) writeNewFile();
}

void clsConfigDiary::UpdateDefaultDiarySettings() {
    setEach("calendar",
            {{"rows", "1"}, {"cols", "1"}, {"GridOrList", "GRID"}, {"DayWeekMonth", "1"}, {"ShowCalendar", "1"}});
    setEach("appointments", {{"Wordwrap", "1"},
                             {"Autosize", "1"},
                             {"AutosizeWidth", "0"},
                             {"RowHeightMin", "255"},
                             {"RowHeightMax", "750"}});
    setEach("timeslots", {{"StartTime", "9"}, {"StopTime", "18"}, {"numTimeSlotPerHour", "2"}});
    setEach("FileAccess", {{"EnableFileAccess", "1"},
                           {"FileAccessAutomationMode", "1"},
                           {"DisplayWhere", "False"},
                           {"DisplayFileEvents", "0"}});
    setEach("ListViewHeadings",
            headingDefaults({"Date", "Time", "details", "Length", "Reference", "ID", "ActionID", "ContactID", "UrlID",
                             "JobtodoID", "RemindDate", "RemindTime", "Priority", "Status", "ActionToPerform"},
                            {"Date", "Time", "details", "Length"}, {"Date", "Time", "Event Details", "Length"}));
    setEach("TaskHeadings",
            headingDefaults({"details", "Date", "Time", "Reference", "ID", "Length", "ActionID", "ContactID", "UrlID",
                             "JobtodoID", "RemindDate", "RemindTime", "Priority", "Status", "ActionToPerform"},
                            {"details"}, {"Task Details"}));
}

void clsConfigDiary::UpdateDefaultTessalineSettings() {
    const std::string programFolder = platform().ProgramFolder();
    setEach("general", {{"diaryEXE", programFolder + "\\orbidex.exe"},
                        {"EnableDiskSpaceWarning", "0"},
                        {"EnableUsageLogging", "1"},
                        {"EnableReminders", "1"},
                        {"loglevel", "3"},
                        {"NumberOfDisks", "2"},
                        {"Disk_1", "C:"},
                        {"LowSpaceWarningInMb_1", "100"},
                        {"Disk_2", "D:"},
                        {"LowSpaceWarningInMb_2", "100"}});
    setEach("themes", {{"FlatControls", "0"}});
    setEach("network", {{"security", "3"},
                        {"waitTime", "12"},
                        {"ShowPopupMessages", "1"},
                        {"ShowShaded", "0"},
                        {"ShowLocation", "1"},
                        {"ShowDetails", "1"},
                        {"ShowTotals", "0"},
                        {"AlwaysRefresh", "0"},
                        {"RetryAfterOutage", "0"}});
    setEach("display", {{"TimeFormat", "DDD d-MMM h:mm:ss ampm"},
                        {"top", "0"},
                        {"left", CStr(platform().Screen().widthTwips / 2)},
                        {"AlwaysOnTop", "1"},
                        {"ShowInTaskBarOnly", "0"},
                        {"height", "700"},
                        {"width", "3000"}});
    setEach("intervals", {{"tasklist", "60"}, {"minEventTime", "1"}, {"reminders", "5"}, {"diskSpace", "30"}});
    setEach("reminders",
            {{"scrollmessage", "1"}, {"sound", "1"}, {"popupwindow", "1"}, {"scrollMessageSeconds", "15"}});
    setEach("calendarView", {{"fontName", "Arial"},
                             {"fontSize", "9"},
                             {"showtoday", "1"},
                             {"showWeeks", "0"},
                             {"top", "100"},
                             {"left", "100"},
                             {"height", "6000"},
                             {"width", "6000"}});
    setEach("view", {{"ShowShortCut", "1"},
                     {"ShowFolders", "0"},
                     {"ShowToolbarText", "1"},
                     {"ShowToolbar", "1"},
                     {"ShortCutSmallIcon", "0"}});
}

void clsConfigDiary::UpdateDefaultIniColours() {
    setEach("colour", {{"normal_ForeColor", "0"},
                       {"normal_BackColor", "&HF0F4F4"},
                       {"multi_ForeColor", "0"},
                       {"multi_BackColor", "&HC0C0FF"},
                       {"heading_ForeColor", "0"},
                       {"heading_BackColor", "11518402"},
                       {"weekend_ForeColor", "0"},
                       {"weekend_BackColor", "&HE0E9E9"},
                       {"spanning_ForeColor", "0"},
                       {"spanning_BackColor", "&HC0C0C0"},
                       {"today_ForeColor", "0"},
                       {"today_BackColor", "&HF0F4F4"},
                       {"PCFile_ForeColor", "0"},
                       {"PCFile_BackColor", "&HF0F4F4"}});
}

}  // namespace orbidex
