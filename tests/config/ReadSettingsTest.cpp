#include <gtest/gtest.h>

#include <algorithm>

#include "SettingsFixture.h"

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

TEST_F(ReadSettingsTest, WaitTimeIsForcedIntoOneToTwentyAndAMissingOneWarnsAtEachLoad) {
    const std::pair<const char*, int16_t> cases[] = {
        {"waitTime=0", 1}, {"waitTime=99", 20}, {"waitTime=7 seconds", 7}, {"waitTime=", 1}, {"", 1}};
    gLogLevel = 3;  // as when the settings are read again after the options
    for (const auto& [line, expected] : cases) {
        glbConfig.waitTime = 12;
        WriteIni({"[general]", "loglevel=3", "[network]", line});
        glbConfig.ReadAllSettings();
        EXPECT_EQ(glbConfig.waitTime, expected) << line;
    }
    // Empty and missing are the same: one warning each.
    EXPECT_EQ(warningsFor("network", "waitTime"), 2);
}

TEST_F(ReadSettingsTest, ColoursTakeDecimalOrHexAndKeepTheirValueOtherwise) {
    glbConfig.normal_BackColor = 111;
    glbConfig.multi_BackColor = 222;
    glbConfig.weekend_BackColor = 333;
    glbConfig.today_ForeColor = 444;
    WriteIni({"[colour]", "normal_BackColor=&HC0C0FF", "multi_BackColor=light blue",
              "weekend_BackColor=", "today_ForeColor=255", "spanning_BackColor=&hc0c0c0"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(glbConfig.normal_BackColor, 0xC0C0FF);
    EXPECT_EQ(glbConfig.multi_BackColor, 222);
    EXPECT_EQ(glbConfig.weekend_BackColor, 333);
    EXPECT_EQ(glbConfig.today_ForeColor, 255);
    EXPECT_EQ(glbConfig.spanning_BackColor, 0xC0C0C0);
}

TEST_F(ReadSettingsTest, LenientNumbersTakeTheLeadingNumberStrictOnesKeepTheirValue) {
    clsConfigDiary& c = glbConfig;
    c.DayWeekMonth = 31;
    c.ShowCalendar = 1;
    c.ShowShaded = 1;
    c.cols = 3;
    c.RowHeightMin = 255;
    c.RowHeightMax = 999;
    WriteIni({"[calendar]", "DayWeekMonth=7 days", "ShowCalendar=0", "rows=2x", "cols=40000", "[network]",
              "ShowShaded=", "[appointments]", "Autosize=300twips", "RowHeightMin=99999", "[intervals]",
              "reminders=99999", "[timeslots]", "StartTime=8", "StopTime=17", "numTimeSlotPerHour=4 per hour"});
    c.ReadAllSettings();
    EXPECT_EQ(c.DayWeekMonth, 31);
    EXPECT_EQ(c.ShowCalendar, 0);
    EXPECT_EQ(c.ShowShaded, 1);
    EXPECT_EQ(c.rows, 2);
    EXPECT_EQ(c.Autosize, 300);
    EXPECT_EQ(c.RowHeightMax, 0);  // missing
    // Too big for a 16-bit field: the field keeps its value.  The interval has 32 bits.
    EXPECT_EQ(c.cols, 3);
    EXPECT_EQ(c.RowHeightMin, 255);
    EXPECT_EQ(c.reminders, 99999);
    EXPECT_EQ(c.timeSlots->numSlotsPerHour, 4);
    EXPECT_EQ(c.timeSlots->totSlots, 40);
}

TEST_F(ReadSettingsTest, CaptionsGoIntoTheLikeNamedFieldsWhateverTheKeysCase) {
    WriteIni({"[ListViewHeadings]", "Date=Day", "UrlID=Link", "JobtodoID=Job", "RemindDate=Remind on", "[TaskHeadings]",
              "details=Task", "RemindTime=At"});
    glbConfig.ReadAllSettings();
    EXPECT_EQ(gListViewHeadings.DateEvent, "Day");
    EXPECT_EQ(gListViewHeadings.URL, "Link");
    EXPECT_EQ(gListViewHeadings.JobToDoID, "Job");
    EXPECT_EQ(gListViewHeadings.DateRemind, "Remind on");
    EXPECT_EQ(gListViewHeadings.TimeEvent, "");
    EXPECT_EQ(gTaskHeadings.details, "Task");
    EXPECT_EQ(gTaskHeadings.TimeRemind, "At");
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

TEST_F(ReadSettingsTest, SaveAllSettingsWritesItsKeysInOrder) {
    glbConfig.ReadAllSettings();  // the first run's defaults
    glbConfig.waitTime = 5;
    glbConfig.GridOrList = "LIST";
    glbConfig.datapath = "\\s\\";
    WriteIni({"; mine", "[Network]", "userPath=\\u\\"});
    glbConfig.SaveAllSettings();
    EXPECT_EQ(IniText(),
              "; mine\r\n[Network]\r\nuserPath=\\u\\\r\ndataPath=\\s\\\r\nrunLocalModeOnly=1\r\nsecurity=3\r\n"
              "waitTime=5\r\ntoolsPath=\r\nShowPopupMessages=1\r\nShowShaded=0\r\nShowLocation=1\r\n"
              "ShowDetails=1\r\nShowTotals=0\r\nAlwaysRefresh=0\r\nRetryAfterOutage=0\r\n"
              "[diary]\r\ndataPath=" +
                  DataPath() +
                  "\r\n"
                  "[calendar]\r\nrows=1\r\ncols=1\r\nGridOrList=LIST\r\nDayWeekMonth=1\r\nShowCalendar=1\r\n"
                  "[appointments]\r\nWordwrap=1\r\nAutosize=1\r\nRowHeightMin=255\r\nRowHeightMax=750\r\n"
                  "[timeslots]\r\nStartTime=9\r\nStopTime=18\r\nnumTimeSlotPerHour=2\r\n"
                  "[view]\r\nShowShortCut=1\r\nShowFolders=0\r\nShowToolbarText=1\r\nShowToolbar=1\r\n"
                  "ShortCutSmallIcon=0\r\n");
}
