#include "config/clsConfigDiary.h"

#include <limits>
#include <utility>

#include "config/PrivateProfile.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

clsConfigDiary glbConfig;
cDiaryRecord gListViewHeadings;
cDiaryRecord gTaskHeadings;

namespace {

constexpr long kReadBufferSize = 32000;

// A number that fits the field goes in; one that doesn't leaves the field as it was.
template <typename T>
bool storeIfInRange(double value, T& field) {
    value = RoundHalfEven(value);
    if (value < static_cast<double>(std::numeric_limits<T>::min()) ||
        value > static_cast<double>(std::numeric_limits<T>::max()))
        return false;
    field = static_cast<T>(value);
    return true;
}

// The lenient parse: the leading number of the text, so "12abc" is 12 and "" is 0.
template <typename T>
void readLenient(const std::string& text, T& field) {
    storeIfInRange(Val(text), field);
}

// The strict parse: decimal or "&H" text only; anything else, "" included, leaves
// the field as it was.
template <typename T>
void readStrict(const std::string& text, T& field) {
    double value = 0;
    if (TryParseNumber(text, value)) storeIfInRange(value, field);
}

}  // namespace

clsConfigDiary::clsConfigDiary() : timeSlots(std::make_shared<clsTimeSlots>()) {}

std::string clsConfigDiary::readIni(const std::string& section, const std::string& key, const std::string& file) {
    std::string value;
    if (GetPrivateProfileString(section, key, "", value, kReadBufferSize, file) >= 1) return value;
    if (GetPrivateProfileString(section, key, "", value, kReadBufferSize, file) >= 1) return value;
    glbLog.log("Warning - failed to read INI :file=" + file + "    sect=" + section + "   key=" + key, 3);
    return "";
}

std::string clsConfigDiary::GetValue(const std::string& section, const std::string& key) {
    return readIni(section, key, fname);
}

void clsConfigDiary::SetVal(const std::string& section, const std::string& key, const std::string& value) {
    writeKey(section, key, value, fname);
}

bool clsConfigDiary::writeKey(const std::string& section, const std::string& key, const std::string& value,
                              const std::string& file) {
    if (newFile_ && file == fname) {
        newFile_->Set(section, key, value);
        return true;
    }
    // A key written into a missing file would make a settings file without its
    // defaults, and the next start would not run the first run.
    if (FileExists(file) && WritePrivateProfileString(section, key, value, file)) return true;
    glbLog.log("Warning - failed to write INI :file=" + file + "    sect=" + section + "   key=" + key, 0);
    return false;
}

void clsConfigDiary::writeNewFile() {
    const std::string text = newFile_->Text();
    newFile_.reset();
    FileError error;
    if (WriteWholeFile(fname, text, &error)) return;
    glbLog.log("The settings file " + fname + " could not be written (" + error.description + ") - it stays as it was",
               0);
}

std::string clsConfigDiary::old_ReadINI(const std::string& section, const std::string& key, const std::string& file) {
    return readIni(section, key, file);
}

void clsConfigDiary::endIfAnotherCopyRuns() {
    if (!platform().AnotherInstanceRunning()) return;
    platform().MsgBox("Brindlewick Software's Diary is already running", vbOKOnly, "");
    platform().EndProgram(1);
}

void clsConfigDiary::ReadAllSettings() {
    endIfAnotherCopyRuns();

    // The settings file stays in the data folder beside the program, wherever the
    // diary's data path points.
    gStrIniFile = platform().ProgramFolder() + "\\data\\" + "\\orbidex.ini";
    fname = gStrIniFile;
    if (!FileExists(gStrIniFile)) {
        glbLog.log("No settings file found - the first run creates " + gStrIniFile, 0);
        StartingForFirstTime();
    }

    gStrDataPath = GetValue("diary", "dataPath");
    gStrDataPath = GetValue("diary", "dataPath");
    readTimeSlots();
    readNetworkSettings();
    gStrTasksFile = gStrDataPath + "tasks.dat";
    readLenient(GetValue("general", "loglevel"), gLogLevel);
    ReadAllDiaryIniSettings_Orig();
    readCalendarAndView();
}

void clsConfigDiary::readTimeSlots() {
    timeSlots = std::make_shared<clsTimeSlots>();
    readLenient(GetValue("timeslots", "StartTime"), timeSlots->startHr);
    readLenient(GetValue("timeslots", "StopTime"), timeSlots->stopHr);
    readLenient(GetValue("timeslots", "numTimeSlotPerHour"), timeSlots->numSlotsPerHour);
    timeSlots->InitTimeArray();
}

void clsConfigDiary::readNetworkSettings() {
    runLocalModeOnly = Trim(GetValue("Network", "runLocalModeOnly"));
    datapath = GetValue("Network", "datapath");
    toolsPath = Trim(GetValue("network", "toolsPath"));
    readStrict(GetValue("calendar", "DayWeekMonth"), DayWeekMonth);
    readLenient(GetValue("network", "waitTime"), waitTime);
    if (waitTime < 1) waitTime = 1;
    if (waitTime > 20) waitTime = 20;
    readStrict(GetValue("network", "ShowPopupMessages"), ShowPopupMessages);
}

void clsConfigDiary::ReadAllDiaryIniSettings_Orig() {
    gStrDataPath = GetValue("diary", "dataPath");
    readLenient(GetValue("intervals", "reminders"), reminders);
    glbNetworkDatapath = GetValue("Network", "datapath");
    security = Trim(GetValue("network", "security"));
    FlatControls = GetValue("themes", "FlatControls");
    readColours();
    readHeadings("ListViewHeadings", gListViewHeadings);
    readHeadings("TaskHeadings", gTaskHeadings);
    readLenient(GetValue("appointments", "Wordwrap"), Wordwrap);
    readLenient(GetValue("appointments", "Autosize"), Autosize);
    readLenient(GetValue("appointments", "RowHeightMin"), RowHeightMin);
    readLenient(GetValue("appointments", "RowHeightMax"), RowHeightMax);
    readLenient(GetValue("FileAccess", "DisplayFileEvents"), DisplayFileEvents);
}

void clsConfigDiary::readColours() {
    const std::pair<const char*, int32_t*> colours[] = {
        {"normal_BackColor", &normal_BackColor},     {"multi_BackColor", &multi_BackColor},
        {"heading_BackColor", &heading_BackColor},   {"weekend_BackColor", &weekend_BackColor},
        {"spanning_BackColor", &spanning_BackColor}, {"PCFile_ForeColor", &PCFile_ForeColor},
        {"PCFile_BackColor", &PCFile_BackColor},     {"normal_ForeColor", &normal_ForeColor},
        {"multi_ForeColor", &multi_ForeColor},       {"heading_ForeColor", &heading_ForeColor},
        {"weekend_ForeColor", &weekend_ForeColor},   {"spanning_ForeColor", &spanning_ForeColor},
        {"today_ForeColor", &today_ForeColor},
    };
    for (const auto& [key, field] : colours) readStrict(GetValue("colour", key), *field);
}

void clsConfigDiary::readHeadings(const std::string& section, cDiaryRecord& record) {
    const std::pair<const char*, std::string cDiaryRecord::*> captions[] = {
        {"Date", &cDiaryRecord::DateEvent},
        {"Time", &cDiaryRecord::TimeEvent},
        {"Reference", &cDiaryRecord::Reference},
        {"length", &cDiaryRecord::length},
        {"ActionID", &cDiaryRecord::Action},
        {"ContactID", &cDiaryRecord::ContactID},
        {"UrlID", &cDiaryRecord::URL},
        {"JobToDoID", &cDiaryRecord::JobToDoID},
        {"RemindDate", &cDiaryRecord::DateRemind},
        {"RemindTime", &cDiaryRecord::TimeRemind},
        {"Priority", &cDiaryRecord::Priority},
        {"status", &cDiaryRecord::status},
        {"ActionToPerform", &cDiaryRecord::ActionToPerform},
        {"ID", &cDiaryRecord::ID},
        {"details", &cDiaryRecord::details},
    };
    for (const auto& [key, field] : captions) record.*field = GetValue(section, key);
}

void clsConfigDiary::readCalendarAndView() {
    GridOrList = GetValue("calendar", "GridOrList");
    readLenient(GetValue("calendar", "rows"), rows);
    readLenient(GetValue("calendar", "cols"), cols);
    readStrict(GetValue("calendar", "ShowCalendar"), ShowCalendar);
    readStrict(GetValue("network", "ShowShaded"), ShowShaded);
    readStrict(GetValue("network", "ShowLocation"), ShowLocation);
    readStrict(GetValue("network", "ShowDetails"), ShowDetails);
    readStrict(GetValue("network", "ShowTotals"), ShowTotals);
    readStrict(GetValue("network", "AlwaysRefresh"), AlwaysRefresh);
    readStrict(GetValue("network", "RetryAfterOutage"), RetryAfterOutage);
    ShowShortCut = GetValue("view", "ShowShortCut");
    ShowFolders = GetValue("view", "ShowFolders");
    ShowToolbarText = GetValue("view", "ShowToolbarText");
    ShowToolbar = GetValue("view", "ShowToolbar");
    ShortCutSmallIcon = GetValue("view", "ShortCutSmallIcon");
}

void clsConfigDiary::SaveAllSettings() {
    SetVal("diary", "dataPath", gStrDataPath);
    setEach("network", {{"dataPath", datapath},
                        {"runLocalModeOnly", runLocalModeOnly},
                        {"security", security},
                        {"waitTime", Trim(CStr(waitTime))},
                        {"toolsPath", toolsPath},
                        {"ShowPopupMessages", CStr(ShowPopupMessages)}});
    setEach("calendar", {{"rows", CStr(rows)},
                         {"cols", CStr(cols)},
                         {"GridOrList", GridOrList},
                         {"DayWeekMonth", CStr(DayWeekMonth)},
                         {"ShowCalendar", CStr(ShowCalendar)}});
    setEach("appointments", {{"Wordwrap", CStr(Wordwrap)},
                             {"Autosize", CStr(Autosize)},
                             {"RowHeightMin", CStr(RowHeightMin)},
                             {"RowHeightMax", CStr(RowHeightMax)}});
    setEach("timeslots", {{"StartTime", CStr(timeSlots->startHr)},
                          {"StopTime", CStr(timeSlots->stopHr)},
                          {"numTimeSlotPerHour", CStr(timeSlots->numSlotsPerHour)}});
    setEach("network", {{"ShowShaded", CStr(ShowShaded)},
                        {"ShowLocation", CStr(ShowLocation)},
                        {"ShowDetails", CStr(ShowDetails)},
                        {"ShowTotals", CStr(ShowTotals)},
                        {"AlwaysRefresh", CStr(AlwaysRefresh)},
                        {"RetryAfterOutage", CStr(RetryAfterOutage)}});
    setEach("view", {{"ShowShortCut", ShowShortCut},
                     {"ShowFolders", ShowFolders},
                     {"ShowToolbarText", ShowToolbarText},
                     {"ShowToolbar", ShowToolbar},
                     {"ShortCutSmallIcon", ShortCutSmallIcon}});
}

void clsConfigDiary::setEach(const std::string& section,
                             const std::vector<std::pair<std::string, std::string>>& values) {
    for (const auto& [key, value] : values) SetVal(section, key, value);
}

void clsConfigDiary::AddEntry(const std::string& section, const std::string& entry, const std::string& value,
                              const std::string& description) {
    if (entryCount >= MaxEntries) return;
    entrySection.push_back(section);
    entryName.push_back(entry);
    entryValue.push_back(value);
    entryDescription.push_back(description);
    ++entryCount;
}

void clsConfigDiary::CreateDefaults() {
    AddEntry("display", "showCalendar", "1", "Show calendar on main screen");
    AddEntry("general", "dataPath", "C:\\Program Files\\brindlewick\\orbidex", "test");
    AddEntry("network", "waitTime", "5", "Time of delay to timeout on server");
}

}  // namespace orbidex
