// The options dialog opened from the window, and the settings read again after it.
#include <string>
#include <utility>

#include "config/clsConfigDiary.h"
#include "config/frmOptions.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// The tab the dialog opens on in each mode.
std::string tabForMode(const std::string& mode) {
    if (mode == "HOME") return "Display";
    if (mode == "CALENDAR") return "Calendar";
    if (mode == "TASK") return "Task";
    if (mode == "STAFF") return "Staff";
    if (mode == "NOTE") return "Notes";
    return "Data Files";
}

// Where the client finds its server: a change means connecting again.
std::pair<std::string, std::string> serverSettings() {
    return {glbConfig.runLocalModeOnly, glbConfig.datapath};
}

}  // namespace

void clsDiaryCommand::ShowOptions() {
    if (form_ == nullptr) return;
    const std::string mode = glbScreen.Mode();
    const std::string oldDataPath = gStrDataPath;
    const auto oldServer = serverSettings();
    timerOn(false);
    {
        frmOptions dialog;
        dialog.Load();
        dialog.OpenOnTab(tabForMode(mode));
        dialog.Show(true);
    }
    glbConfig.ReadAllSettings();
    glbEvents.InitDiary(form_, "");
    if (!EqualsText(gStrDataPath, oldDataPath)) dataFolderChanged(oldDataPath);
    if (NETWORK_STRING != "CLIENT")
        glbConfig.runLocalModeOnly.assign(1, '1');  // the program that runs alone never looks for a server
    else if (serverSettings() != oldServer && glbConfig.runLocalModeOnly != "1" && !glbConfig.datapath.empty())
        serverPing();
    const int days = glbConfig.DayWeekMonth;
    setViewLength(days, days == 1 ? 0 : days == 7 ? 1 : days == 14 ? 2 : days >= 28 ? 3 : -1);
    glbScreen.SwitchMode(mode, true);
    glbScreen.resize();
    timerOn(true);
}

void clsDiaryCommand::dataFolderChanged(const std::string& oldDataPath) {
    glbLog.log("The data path changed from " + oldDataPath + " to " + gStrDataPath, 0);
    // The month in memory is the old folder's: it is read from the new one, whatever
    // the files' time stamps say.
    glbEvents.LoadDiaryData(form_->MonthView1.Value);
    glbTasks.init(gStrTasksFile);
    gCurrentTask = cTask();
    glbNotes.init(gStrDataPath + "allnotes.dat");
    gCurrentNote = cNote();
    gintcur = -1;
    platform().MsgBox("The diary now keeps its files in " + gStrDataPath + "\r\n\r\nNo file was moved: the files in " +
                          oldDataPath +
                          " stay there as they were. To go on with them here, close the diary, copy them into the "
                          "new folder and start the diary again.",
                      vbOKOnly + vbInformation, "Diary Datapath Changed");
}

}  // namespace orbidex
