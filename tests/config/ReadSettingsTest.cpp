#include <gtest/gtest.h>

#include <algorithm>

#include "SettingsFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"

using namespace orbidex;

class ReadSettingsTest : public orbidex::test::SettingsFixture {
protected:
    long warningsFor(const std::string& section, const std::string& key) const {
        const std::string line =
            "Warning - failed to read INI :file=" + gStrIniFile + "    sect=" + section + "   key=" + key;
        const auto log = LogMessages();
        return std::count(log.begin(), log.end(), line);
    }
};

TEST_F(ReadSettingsTest, WaitTimeIsForcedIntoOneToTwenty) {
    const std::pair<const char*, int16_t> cases[] = {{"0", 1}, {"99", 20}, {"-4", 1}, {"7 seconds", 7}, {"20", 20}};
    for (const auto& [text, expected] : cases) {
        WriteIni({"[network]", std::string("waitTime=") + text});
        glbConfig.ReadAllSettings();
        EXPECT_EQ(glbConfig.waitTime, expected) << text;
    }
}

TEST_F(ReadSettingsTest, AMissingKeyReadsAsZeroAndLeavesOneWarningAtLevelThree) {
    WriteIni({"[network]", "security=3"});
    gLogLevel = 3;  // as when the settings are read again after the options
    glbConfig.waitTime = 12;
    glbConfig.ReadAllSettings();
    EXPECT_EQ(glbConfig.waitTime, 1);
    EXPECT_EQ(warningsFor("network", "waitTime"), 1);
    // Present but empty is the same as missing.
    EXPECT_EQ(warningsFor("network", "security"), 0);
    WriteIni({"[network]", "security=", "[general]", "loglevel=3"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(warningsFor("network", "security"), 1);
    EXPECT_EQ(glbConfig.security, "");
}

TEST_F(ReadSettingsTest, ColoursTakeDecimalOrHexAndKeepTheirValueOtherwise) {
    glbConfig.normal_BackColor = 111;
    glbConfig.multi_BackColor = 222;
    glbConfig.weekend_BackColor = 333;
    glbConfig.today_ForeColor = 444;
    WriteIni({"[colour]", "normal_BackColor=&HC0C0FF", "multi_BackColor=light blue", "weekend_BackColor=",
              "today_ForeColor=255", "spanning_BackColor=&hc0c0c0"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(glbConfig.normal_BackColor, 0xC0C0FF);
    EXPECT_EQ(glbConfig.multi_BackColor, 222);
    EXPECT_EQ(glbConfig.weekend_BackColor, 333);
    EXPECT_EQ(glbConfig.today_ForeColor, 255);
    EXPECT_EQ(glbConfig.spanning_BackColor, 0xC0C0C0);
}

TEST_F(ReadSettingsTest, LenientNumbersTakeTheLeadingNumberStrictOnesKeepTheirValue) {
    glbConfig.DayWeekMonth = 31;
    glbConfig.ShowCalendar = 1;
    glbConfig.ShowShaded = 1;
    glbConfig.RowHeightMax = 999;
    WriteIni({"[calendar]", "DayWeekMonth=7 days", "ShowCalendar=0", "rows=2x", "[network]", "ShowShaded=",
              "[appointments]", "RowHeightMin=300twips", "[timeslots]", "StartTime=8", "StopTime=17",
              "numTimeSlotPerHour=4 per hour"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(glbConfig.DayWeekMonth, 31);
    EXPECT_EQ(glbConfig.ShowCalendar, 0);
    EXPECT_EQ(glbConfig.ShowShaded, 1);
    EXPECT_EQ(glbConfig.rows, 2);
    EXPECT_EQ(glbConfig.RowHeightMin, 300);
    EXPECT_EQ(glbConfig.RowHeightMax, 0);  // missing: 0
    EXPECT_EQ(glbConfig.timeSlots->startHr, 8);
    EXPECT_EQ(glbConfig.timeSlots->numSlotsPerHour, 4);
    EXPECT_EQ(glbConfig.timeSlots->totSlots, 40);
}

TEST_F(ReadSettingsTest, ANumberTooBigForItsFieldLeavesTheFieldAsItWas) {
    glbConfig.DayWeekMonth = 7;
    glbConfig.RowHeightMin = 255;
    WriteIni({"[calendar]", "DayWeekMonth=40000", "[appointments]", "RowHeightMin=99999", "[intervals]",
              "reminders=99999"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(glbConfig.DayWeekMonth, 7);
    EXPECT_EQ(glbConfig.RowHeightMin, 255);
    EXPECT_EQ(glbConfig.reminders, 99999);  // a 32-bit field
}

TEST_F(ReadSettingsTest, CaptionsGoIntoTheLikeNamedFieldsWhateverTheKeysCase) {
    WriteIni({"[ListViewHeadings]", "Date=Day", "Length=Minutes", "ActionID=Action", "UrlID=Link", "JobtodoID=Job",
              "RemindDate=Remind on", "Status=State", "ID=<hide>", "[TaskHeadings]", "details=Task",
              "RemindTime=At"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(gListViewHeadings.DateEvent, "Day");
    EXPECT_EQ(gListViewHeadings.length, "Minutes");
    EXPECT_EQ(gListViewHeadings.Action, "Action");
    EXPECT_EQ(gListViewHeadings.URL, "Link");
    EXPECT_EQ(gListViewHeadings.JobToDoID, "Job");
    EXPECT_EQ(gListViewHeadings.DateRemind, "Remind on");
    EXPECT_EQ(gListViewHeadings.status, "State");
    EXPECT_EQ(gListViewHeadings.ID, "<hide>");
    EXPECT_EQ(gListViewHeadings.TimeEvent, "");
    EXPECT_EQ(gTaskHeadings.details, "Task");
    EXPECT_EQ(gTaskHeadings.TimeRemind, "At");
    EXPECT_EQ(gTaskHeadings.DateEvent, "");
}

TEST_F(ReadSettingsTest, PathsGoToTheirGlobalsAndTheSettingsFileStaysBesideTheProgram) {
    WriteIni({"[diary]", "dataPath=\\srv\\elsewhere\\", "[Network]", "dataPath=\\srv\\share\\fred\\",
              "runLocalModeOnly=0", "toolsPath=  \\tools  ", "[general]", "loglevel=2"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(gStrDataPath, "\\srv\\elsewhere\\");
    EXPECT_EQ(gStrTasksFile, "\\srv\\elsewhere\\tasks.dat");
    EXPECT_EQ(glbConfig.datapath, "\\srv\\share\\fred\\");
    EXPECT_EQ(glbNetworkDatapath, "\\srv\\share\\fred\\");
    EXPECT_EQ(glbConfig.runLocalModeOnly, "0");
    EXPECT_EQ(glbConfig.toolsPath, "\\tools");
    EXPECT_EQ(gLogLevel, 2);

    // Read again (after the options) with the data path elsewhere: still this file,
    // no first run.
    glbConfig.ReadAllSettings();
    EXPECT_EQ(gStrIniFile, DataPath() + "\\orbidex.ini");
    EXPECT_EQ(glbConfig.fname, gStrIniFile);
    EXPECT_EQ(gStrDataPath, "\\srv\\elsewhere\\");
    EXPECT_FALSE(gBoolNewIniFile);
}

TEST_F(ReadSettingsTest, EveryReadMakesANewTimeSlotTable) {
    WriteIni({"[timeslots]", "StartTime=9", "StopTime=18", "numTimeSlotPerHour=2"});
    glbConfig.ReadAllSettings();
    const std::shared_ptr<clsTimeSlots> before = glbConfig.timeSlots;
    WriteIni({"[timeslots]", "StartTime=8", "StopTime=9", "numTimeSlotPerHour=1"});
    glbConfig.ReadAllSettings();
    EXPECT_NE(glbConfig.timeSlots, before);
    EXPECT_EQ(glbConfig.timeSlots->totSlots, 2);
    EXPECT_EQ(glbConfig.timeSlots->hhmmGet(1), "0800");
    // A view that kept the old table still holds a whole one.
    EXPECT_EQ(before->totSlots, 20);
}

TEST_F(ReadSettingsTest, ASecondRunningCopyEndsBeforeAnyFileIsTouched) {
    platform_.SetAnotherInstanceRunning(true);
    int exitCode = 0;
    EXPECT_TRUE(ReadAllSettingsEnds(exitCode));
    EXPECT_EQ(exitCode, 1);
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].text, "Brindlewick Software's Diary is already running");
    EXPECT_EQ(platform_.Transcript()[0].buttons, vbOKOnly);
    EXPECT_FALSE(FileExists(IniPath()));
}

TEST_F(ReadSettingsTest, SaveAllSettingsWritesItsKeysInOrder) {
    gStrDataPath = "\\d\\";
    clsConfigDiary& c = glbConfig;
    c.datapath = "\\s\\";
    c.runLocalModeOnly = "1";
    c.security = "2";
    c.waitTime = 5;
    c.toolsPath = "\\t";
    c.ShowPopupMessages = 1;
    c.rows = 2;
    c.cols = 3;
    c.GridOrList = "LIST";
    c.DayWeekMonth = 7;
    c.ShowCalendar = 0;
    c.Wordwrap = 1;
    c.Autosize = 0;
    c.RowHeightMin = 255;
    c.RowHeightMax = 750;
    c.timeSlots->startHr = 8;
    c.timeSlots->stopHr = 17;
    c.timeSlots->numSlotsPerHour = 4;
    c.ShowShaded = 1;
    c.ShowLocation = 0;
    c.ShowDetails = 1;
    c.ShowTotals = 0;
    c.AlwaysRefresh = 1;
    c.RetryAfterOutage = -1;
    c.ShowShortCut = "1";
    c.ShowFolders = "0";
    c.ShowToolbarText = "1";
    c.ShowToolbar = "0";
    c.ShortCutSmallIcon = "1";
    WriteIni({"; mine", "[Network]", "userPath=\\u\\"});
    c.SaveAllSettings();
    EXPECT_EQ(IniText(),
              "; mine\r\n[Network]\r\nuserPath=\\u\\\r\ndataPath=\\s\\\r\nrunLocalModeOnly=1\r\nsecurity=2\r\n"
              "waitTime=5\r\ntoolsPath=\\t\r\nShowPopupMessages=1\r\nShowShaded=1\r\nShowLocation=0\r\n"
              "ShowDetails=1\r\nShowTotals=0\r\nAlwaysRefresh=1\r\nRetryAfterOutage=-1\r\n"
              "[diary]\r\ndataPath=\\d\\\r\n"
              "[calendar]\r\nrows=2\r\ncols=3\r\nGridOrList=LIST\r\nDayWeekMonth=7\r\nShowCalendar=0\r\n"
              "[appointments]\r\nWordwrap=1\r\nAutosize=0\r\nRowHeightMin=255\r\nRowHeightMax=750\r\n"
              "[timeslots]\r\nStartTime=8\r\nStopTime=17\r\nnumTimeSlotPerHour=4\r\n"
              "[view]\r\nShowShortCut=1\r\nShowFolders=0\r\nShowToolbarText=1\r\nShowToolbar=0\r\n"
              "ShortCutSmallIcon=1\r\n");
}

TEST_F(ReadSettingsTest, GetValueAndSetValMeetInOneSectionWhateverItsCase) {
    WriteIni({"[Network]", "runLocalModeOnly=0"});
    glbConfig.fname = IniPath();
    glbConfig.SetVal("network", "dataPath", "\\srv\\x\\");
    EXPECT_EQ(glbConfig.GetValue("Network", "datapath"), "\\srv\\x\\");
    EXPECT_EQ(IniText(), "[Network]\r\nrunLocalModeOnly=0\r\ndataPath=\\srv\\x\\\r\n");
}
