#include "foundation/modMain.h"

#include <vector>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "diary/cDiaryRecurring.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "foundation/clsPath.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

void blankSpareRecords() {
    glbSearchEvent.init("", "", "", "", Currency{}, "");
    glbOldEvent.init("", "", "", "", Currency{}, "");
}

void findDataFolder() {
    gStrDataPath = platform().ProgramFolder() + "\\data\\";
    clsPath dataFolder;
    dataFolder.initFull(gStrDataPath, true);
    if (Right(gStrDataPath, 1) != "\\") gStrDataPath += "\\";
    gStrIniFile = gStrDataPath + "orbidex.ini";
}

void openLog() {
    const std::string programFolder = platform().ProgramFolder();
    glbLog.init(programFolder + "\\data\\OX_LOG.log", programFolder + "\\data\\OX_ERR.log", "", true, 0);
    glbLog.log("Started orbidex ", -1);
    glbLog.log(cLog::getAppVersionString(), -1);
    gLogLevel = 0;
}

// A second running copy ends here, before any file is touched; a missing settings
// file is made with its defaults.
void readSettings() {
    glbConfig.fname = gStrIniFile;
    glbConfig.ReadAllSettings();
}

// Finds the monthly files and loads the month of today.
void loadDiary() {
    // The data folder is checked and completed before the main window is made: the
    // window's calendar reads this month's file from it.  (InitDiary only keeps the
    // window to hand it on.)
    glbEvents.InitDiary(nullptr, gStrIniFile);
    MainForm();
    // The main window's calendar has loaded this month as it was made, unless the data
    // folder moved or the file changed since.
    if (!glbEvents.HasLoaded(Today())) glbEvents.LoadDiaryData(Today());
    glbRecurring.fname(gStrDataPath + "recurring.dat");
    glbRecurring.LoadRecurringEvents();
    gCurrentEvent = cDiaryRecord();
    gCurrentEvent.DateEvent = FormatDate(Now(), "yyyymmdd");
    gCurrentEvent.TimeEvent = FormatDate(Now(), "hhmm");
}

// The task list and the note list, each read from its file.
void loadTasksAndNotes() {
    glbTasks.init(gStrTasksFile);
    glbTasks.LoadFromFile();
    gCurrentTask = cTask();
    glbLog.log("TOK - Tasks setup", 0);
    glbNotes.init(gStrDataPath + "allnotes.dat");
    glbNotes.LoadFromFile();
    gCurrentNote = cNote();
    glbLog.log("TOK - Notes setup", 0);
}

// The command layer and the screen take the main window; the window opens on the
// calendar.
void buildMainWindow() {
    glbCmd.init(MainForm());
    glbLog.log("TOK - cmd.init", 0);
    glbScreen = clsDiaryScreen();
    glbLog.log("TOK - mainForm declared", 0);
    glbScreen.setForm(MainForm());
    glbLog.log("TOK - mainForm.setForm", 0);
    glbScreen.drawForm(MainForm());
    glbLog.log("TOK - mainForm.drawForm", 0);
    glbScreen.SwitchMode("CALENDAR");
    glbLog.log("TOK - mainForm.SwitchMode CALENDAR", 0);
    // A user who hides the calendar from the main screen starts on the overview.
    if (glbConfig.ShowCalendar == 0) glbScreen.SwitchMode("HOME");
    // The window opens where it was left, once its first view is drawn: it is made
    // once, with what it shows.  A client's session with the server comes after it.
    MainForm().Show(false);
}

// A client's session with the server begins here.
void startSession() {
    if (NETWORK_STRING != "CLIENT") {
        glbConfig.runLocalModeOnly = "1";
        return;
    }
    glbLog.log("NETWORK_STRING = CLIENT", 0);
    platform().DoEvents();
    glbComms.InitClient(glbDiaryComms.GetLocalDataPath());
    glbComms.Logon();
    glbDiaryComms.PingClient();
    glbScreen.showStatus();
    platform().DoEvents();
}

void countDataFiles() {
    glbLog.log("About to count Data Files", 0);
    std::vector<std::string> files;
    const long count = glbEvents.CreateDiaryDataFileList(Today(), Today(), files, true);
    glbLog.log("Found " + CStr(count) + " Data Files", 0);
}

}  // namespace

void modMain(const std::string& networkKind) {
    NETWORK_STRING = networkKind;
    blankSpareRecords();
    findDataFolder();
    openLog();
    readSettings();
    loadDiary();
    loadTasksAndNotes();
    buildMainWindow();
    startSession();
    countDataFiles();
    MainForm().timerSecond.Enabled = true;
}

}  // namespace orbidex
