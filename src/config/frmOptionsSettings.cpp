// What the options dialog reads and writes: the lists' choices, the controls filled
// from the settings, the rules for the two data paths, and each control written to
// its key.
#include <algorithm>
#include <initializer_list>
#include <memory>

#include "config/clsConfigDiary.h"
#include "config/frmOptions.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

// The sharing levels, the first character of each being the level stored.
const char* const kSecurityLevels[] = {"0 - Total Security / Zero Sharing", "1 - High Security / Time is Shared",
                                       "2 - Med Security / Time and Location Shared",
                                       "3 - Low Security / All Events Shared",
                                       "4 - Zero Security / All Events +Usage Shared"};

// The entries of a list and the value each stands for.
struct Choice {
    const char* text;
    long value;
};
const Choice kGridOrList[] = {{"Grid", 1}, {"List", 0}};
const Choice kDays[] = {{"Day", 1}, {"Week", 7}, {"Fortnight", 14}, {"Month", 31}};
const Choice kMonths[] = {{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4}};
const Choice kSlots[] = {{"60 minutes", 1}, {"30 minutes", 2}, {"20 minutes", 3},
                         {"15 minutes", 4}, {"10 minutes", 6}, {"5 minutes", 12}};
const Choice kFileEvents[] = {{"Show both", 0}, {"Usage only", 1}, {"Files only", 2}};

const char* const kHeightMin = "Min Height = ";
const char* const kHeightMax = "Max Height = ";

template <size_t N>
void fill(ComboBox& list, const Choice (&choices)[N]) {
    list.Style = vbComboDropdownList;
    for (const Choice& choice : choices) {
        list.AddItem(choice.text);
        list.SetItemData(list.NewIndex(), choice.value);
    }
}

void fillHours(ComboBox& list) {
    list.Style = vbComboDropdownList;
    for (long hour = 0; hour < 24; ++hour) {
        list.AddItem(FormatNumber(hour, "00") + ":00");
        list.SetItemData(list.NewIndex(), hour);
    }
}

/// Chooses the entry that stands for `value`; none when no entry does.
void choose(ComboBox& list, long value) {
    list.ListIndex = -1;
    for (long i = 0; i < list.ListCount(); ++i)
        if (list.ItemData(i) == value) list.ListIndex = i;
}

/// The value of the chosen entry; `kept` when none is chosen.
template <typename T>
T chosen(const ComboBox& list, T kept) {
    return list.ListIndex >= 0 ? static_cast<T>(list.ItemData(list.ListIndex)) : kept;
}

void tick(CheckBox& box, bool on) {
    box.Value = on ? vbChecked : vbUnchecked;
}

bool ticked(const CheckBox& box) {
    return box.Value == vbChecked;
}

int16_t flag(const CheckBox& box) {
    return ticked(box) ? 1 : 0;
}

std::string flagText(const CheckBox& box) {
    return ticked(box) ? "1" : "0";
}

/// The number a height label shows behind its caption.
int16_t heightOf(const Label& label, const char* caption) {
    return static_cast<int16_t>(Val(Mid(label.Caption, static_cast<long>(std::string(caption).size()) + 1)));
}

/// A folder as the settings keep it: stored form, a "\" behind its name.
std::string asStoredFolder(const std::string& path) {
    return path.empty() ? path : path + "\\";
}

}  // namespace

std::string ShownPath(const std::string& storedPath) {
    return storedPath.empty() ? storedPath : ToNativePath(storedPath);
}

void frmOptions::fillLists() {
    for (const char* level : kSecurityLevels) lstSecurity.AddItem(level);
    fill(cmbGridOrList, kGridOrList);
    fill(cmbDayWeekMonth, kDays);
    for (int i = 0; i < 2; ++i) fill(cmbCal(i), kMonths);
    fill(cmbFileEvents, kFileEvents);
    fillHours(cmbStartTime);
    fillHours(cmbStopTime);
    fill(cmbSlots, kSlots);
}

void frmOptions::LoadMainForm() {
    loading_ = true;
    Text1(0).Text = ShownPath(gStrDataPath);
    Text1(1).Text = ShownPath(glbConfig.datapath);
    tick(chkRunLocal, glbConfig.runLocalModeOnly == "1");

    tick(chkShowToolbar, glbConfig.ShowToolbar == "1");
    tick(chkShowToolbarText, glbConfig.ShowToolbarText == "1");
    tick(chkShowShortCut, glbConfig.ShowShortCut == "1");
    tick(chkShortCutSmallIcon, glbConfig.ShortCutSmallIcon == "1");
    tick(chkShowFolders, glbConfig.ShowFolders == "1");

    choose(cmbGridOrList, glbConfig.GridOrList == "GRID" ? 1 : 0);
    choose(cmbDayWeekMonth, glbConfig.DayWeekMonth);
    choose(cmbCal(0), glbConfig.rows);
    choose(cmbCal(1), glbConfig.cols);
    tick(chkShowCalendar, glbConfig.ShowCalendar == 1);
    choose(cmbFileEvents, glbConfig.DisplayFileEvents);
    choose(cmbStartTime, glbConfig.timeSlots->startHr);
    choose(cmbStopTime, glbConfig.timeSlots->stopHr);
    choose(cmbSlots, glbConfig.timeSlots->numSlotsPerHour);
    tick(chkWordwrap, glbConfig.Wordwrap == 1);
    tick(chkAutosize, glbConfig.Autosize == 1);
    VScroll1.Value = std::clamp<long>(glbConfig.RowHeightMin, VScroll1.Min, VScroll1.Max);
    VScroll1_Change();
    VScroll2.Value = std::clamp<long>(glbConfig.RowHeightMax, VScroll2.Min, VScroll2.Max);
    VScroll2_Change();

    tick(chkShowShaded, glbConfig.ShowShaded == 1);
    tick(chkShowLocation, glbConfig.ShowLocation == 1);
    tick(chkShowDetails, glbConfig.ShowDetails == 1);
    tick(chkShowTotals, glbConfig.ShowTotals == 1);
    tick(chkAlwaysRefresh, glbConfig.AlwaysRefresh == 1);

    const std::string& level = glbConfig.security;
    lstSecurity.ListIndex = level.size() == 1 && level >= "0" && level <= "4" ? static_cast<long>(Val(level)) : -1;

    txtTimeOut.Text = CStr(glbConfig.waitTime);
    tick(chkShowPopupMessages, glbConfig.ShowPopupMessages == 1);
    tick(chkRetryAfterOutage, glbConfig.RetryAfterOutage == 1);
    txtToolsPath.Text = glbConfig.toolsPath;
    loading_ = false;
}

std::string frmOptions::ValidateDataPaths(std::string& localPath, std::string& networkPath, bool runLocal) {
    for (std::string* path : {&localPath, &networkPath}) {
        *path = ToStoredPath(*path);
        if (EndsWith(*path, "\\")) path->pop_back();
    }
    // An empty box names no folder.
    const auto exists = [](const std::string& path) { return !Trim(path).empty() && FolderExists(path); };
    if (EqualsText(localPath, networkPath)) return "The local datapath cannot be the same as the network datapath";
    if (!exists(localPath)) return "The local datapath does not exist";
    if (runLocal) return "";
    if (!exists(networkPath)) return "The Network datapath does not exist";
    if (!FileExists(networkPath + "\\USERS.TXT"))
        return "WARNING - The Network datapath hasnt been configured by the server. [should be a USERS.TXT file in " +
               networkPath + "]";
    return "";
}

bool frmOptions::SaveAllDiarySettings() {
    std::string localPath = Text1(0).Text;
    std::string networkPath = Text1(1).Text;
    const bool runLocal = ticked(chkRunLocal);
    const std::string answer = ValidateDataPaths(localPath, networkPath, runLocal);
    const bool warning = orbidex::Left(answer, 7) == "WARNING";
    if (!answer.empty() && !warning) {
        platform().MsgBox(answer, vbOKOnly, "Invalid Datapaths");
        return false;
    }
    if (warning && !runLocal &&
        platform().MsgBox(answer + "\r\n\r\nDo you want to continue?", vbYesNo, "Network is not connected") != vbYes)
        return false;
    writeSettings(localPath, networkPath);
    return true;
}

void frmOptions::writeSettings(const std::string& localPath, const std::string& networkPath) {
    clsConfigDiary& config = glbConfig;
    gStrDataPath = asStoredFolder(localPath);
    config.datapath = asStoredFolder(networkPath);
    config.runLocalModeOnly = flagText(chkRunLocal);
    if (lstSecurity.ListIndex >= 0) config.security = orbidex::Left(lstSecurity.List(lstSecurity.ListIndex), 1);
    config.waitTime = static_cast<int16_t>(std::clamp(Val(txtTimeOut.Text), 1.0, 20.0));
    config.toolsPath = Trim(txtToolsPath.Text);
    config.ShowPopupMessages = flag(chkShowPopupMessages);

    config.rows = chosen(cmbCal(0), config.rows);
    config.cols = chosen(cmbCal(1), config.cols);
    config.GridOrList = chosen(cmbGridOrList, 1L) == 1 ? "GRID" : "LIST";
    config.DayWeekMonth = chosen(cmbDayWeekMonth, config.DayWeekMonth);
    config.ShowCalendar = flag(chkShowCalendar);
    config.Wordwrap = flag(chkWordwrap);
    config.Autosize = flag(chkAutosize);
    config.RowHeightMin = heightOf(lblHeightMin, kHeightMin);
    config.RowHeightMax = heightOf(lblHeightMax, kHeightMax);
    // A new table, so that no view holds the one in use while it changes.
    auto slots = std::make_shared<clsTimeSlots>(*config.timeSlots);
    slots->startHr = chosen(cmbStartTime, slots->startHr);
    slots->stopHr = chosen(cmbStopTime, slots->stopHr);
    slots->numSlotsPerHour = chosen(cmbSlots, slots->numSlotsPerHour);
    config.timeSlots = slots;

    config.ShowShaded = flag(chkShowShaded);
    config.ShowLocation = flag(chkShowLocation);
    config.ShowDetails = flag(chkShowDetails);
    config.ShowTotals = flag(chkShowTotals);
    config.AlwaysRefresh = flag(chkAlwaysRefresh);
    config.RetryAfterOutage = flag(chkRetryAfterOutage);
    config.ShowShortCut = flagText(chkShowShortCut);
    config.ShowFolders = flagText(chkShowFolders);
    config.ShowToolbarText = flagText(chkShowToolbarText);
    config.ShowToolbar = flagText(chkShowToolbar);
    config.ShortCutSmallIcon = flagText(chkShortCutSmallIcon);

    config.SaveAllSettings();
    config.SetVal("FileAccess", "DisplayFileEvents", CStr(chosen(cmbFileEvents, config.DisplayFileEvents)));
}

void frmOptions::VScroll1_Change() {
    lblHeightMin.Caption = kHeightMin + CStr(VScroll1.Value());
}

void frmOptions::VScroll2_Change() {
    lblHeightMax.Caption = kHeightMax + CStr(VScroll2.Value());
}

void frmOptions::RestoreDefaultDiarySettings() {
    // Whether the diary works with a server, and its folder there, stay the user's.
    const int runLocal = chkRunLocal.Value;
    const std::string networkPath = Text1(1).Text;
    glbConfig.CreateDefaultIniFile();
    glbConfig.ReadAllSettings();
    LoadMainForm();
    chkRunLocal.Value = runLocal;
    Text1(1).Text = networkPath;
    cmdAutomapClient_Click();
    cmdDefaultLocalPath_Click();
    SaveAllDiarySettings();
    platform().MsgBox("Default settings have been set", vbOKOnly, "");
}

}  // namespace orbidex
