#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "SettingsFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "foundation/modMain.h"

using namespace orbidex;
using orbidex::test::SameLines;

namespace {

const char* const kWelcomeTitle = "Welcome to Brindlewick Softwares Orbidex Client";

}  // namespace

class FirstRunTest : public orbidex::test::SettingsFixture {
protected:
    std::string detectorCommand() const { return folder_.Stored() + "\\mirlow.exe AUTO"; }
};

TEST_F(FirstRunTest, TheLocalProgramAsksNothingAndWritesEveryDefault) {
    glbConfig.ReadAllSettings();
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_TRUE(platform_.ProcessesStarted().empty());
    EXPECT_TRUE(SameLines(IniText(), Golden("first_run_local.ini")));
    EXPECT_TRUE(gBoolNewIniFile);

    const auto log = LogMessages();
    const std::string dashes = "--------------------------------------------------------";
    const std::vector<std::string> expected = {"No settings file found - the first run creates " + gStrIniFile, dashes,
                                               "No INI File - starting with Defaults", dashes};
    EXPECT_NE(std::search(log.begin(), log.end(), expected.begin(), expected.end()), log.end());
}

TEST_F(FirstRunTest, AClientAnsweringNoRunsLocally) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbNo);
    glbConfig.ReadAllSettings();

    ASSERT_EQ(platform_.Transcript().size(), 1U);
    const auto& question = platform_.Transcript()[0];
    EXPECT_EQ(question.title, kWelcomeTitle);
    EXPECT_EQ(question.buttons, vbYesNoCancel + vbQuestion);
    EXPECT_TRUE(EndsWith(question.text, "\r\nClick [YES] to connect to a server\r\nClick [No] to run in Local mode"));
    EXPECT_TRUE(platform_.ProcessesStarted().empty());
    EXPECT_TRUE(SameLines(IniText(), Golden("first_run_local.ini")));
    EXPECT_EQ(glbConfig.runLocalModeOnly, "1");
}

TEST_F(FirstRunTest, AClientAnsweringYesWithNoServerFoundHasAnEmptyServerPath) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbYes);
    glbConfig.ReadAllSettings();

    EXPECT_EQ(platform_.ProcessesStarted(), std::vector<std::string>{detectorCommand()});
    EXPECT_TRUE(SameLines(IniText(), Golden("first_run_server.ini")));
    EXPECT_EQ(glbConfig.runLocalModeOnly, "0");
    EXPECT_EQ(glbConfig.datapath, "");
    EXPECT_EQ(glbNetworkDatapath, "");
}

TEST_F(FirstRunTest, AClientAnsweringYesTakesTheFolderTheDetectorFound) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbYes);
    platform_.SetProcessHandler([this](const std::string& command) {
        // The detector writes its finding beside the program before it ends.
        if (command == detectorCommand())
            WriteBytes(Stored("mirlow.ini"), "[path]\r\npathname=\\\\srv\\diary\\fred\\\r\n");
        return true;
    });
    glbConfig.ReadAllSettings();

    EXPECT_EQ(glbConfig.GetValue("Network", "dataPath"), "\\\\srv\\diary\\fred\\");
    EXPECT_EQ(glbConfig.GetValue("Network", "userPath"), "\\\\srv\\diary\\fred\\");
    EXPECT_EQ(glbConfig.GetValue("diary", "dataPath"), DataPath());
    EXPECT_EQ(glbNetworkDatapath, "\\\\srv\\diary\\fred\\");
    EXPECT_EQ(glbConfig.runLocalModeOnly, "0");
}

TEST_F(FirstRunTest, CancelEndsTheProgramWithNoFileWritten) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbCancel);
    int exitCode = -1;
    EXPECT_TRUE(ReadAllSettingsEnds(exitCode));
    EXPECT_EQ(exitCode, 0);
    EXPECT_FALSE(FileExists(IniPath()));
    EXPECT_FALSE(FileExists(Stored("data\\tasks.dat")));
}

TEST_F(FirstRunTest, RestoringTheDefaultsRewritesTheWholeFile) {
    WriteIni({"[general]", "loglevel=0", "[old]", "left=over"});
    glbConfig.fname = IniPath();
    glbConfig.CreateDefaultIniFile();
    // Without the first run's answer the file says it may use a server.
    EXPECT_TRUE(
        SameLines(IniText(), Replace(Golden("first_run_local.ini"), "runLocalModeOnly=1", "runLocalModeOnly=0")));
}

TEST_F(FirstRunTest, TheNewFileReadsBackAsTheDefaults) {
    glbConfig.ReadAllSettings();
    const clsConfigDiary& c = glbConfig;
    EXPECT_EQ(gStrIniFile, DataPath() + "\\orbidex.ini");
    EXPECT_EQ(gStrDataPath, DataPath());
    EXPECT_EQ(gStrTasksFile, DataPath() + "tasks.dat");
    EXPECT_EQ(gLogLevel, 3);
    // One setting of each section, so that a key read from the wrong one shows.
    EXPECT_EQ(c.runLocalModeOnly, "1");
    EXPECT_EQ(c.security, "3");
    EXPECT_EQ(c.waitTime, 12);
    EXPECT_EQ(c.ShowLocation, 1);
    EXPECT_EQ(c.reminders, 5);
    EXPECT_EQ(c.FlatControls, "0");
    EXPECT_EQ(c.GridOrList, "GRID");
    EXPECT_EQ(c.DayWeekMonth, 1);
    EXPECT_EQ(c.normal_BackColor, 0xF0F4F4);
    EXPECT_EQ(c.heading_BackColor, 0xAFC1C2);
    EXPECT_EQ(c.RowHeightMax, 750);
    EXPECT_EQ(c.ShowToolbar, "1");
    EXPECT_EQ(c.timeSlots->totSlots, 20);
    EXPECT_EQ(gListViewHeadings.details, "Event Details");
    EXPECT_EQ(gListViewHeadings.JobToDoID, "<hide>");
    EXPECT_EQ(gTaskHeadings.details, "Task Details");

    // The one key a local file lacks is the server's folder; it is read once the
    // log level is known, so exactly one warning stands in the log.
    std::vector<std::string> warnings;
    for (const std::string& m : LogMessages())
        if (StartsWith(m, "Warning - ")) warnings.push_back(m);
    EXPECT_EQ(warnings, std::vector<std::string>{"Warning - failed to read INI :file=" + gStrIniFile +
                                                 "    sect=Network   key=datapath"});
}

class StartSettingsTest : public orbidex::test::SettingsFixture {
protected:
    void SetUp() override {
        SettingsFixture::SetUp();
        ResetProgramState();
        std::filesystem::remove_all(folder_.Native() + "/data");
        platform_.AllowUnscriptedForms(true);
    }
};

TEST_F(StartSettingsTest, ASecondCopyShowsTheMessageAndTouchesNoDataFile) {
    platform_.SetAnotherInstanceRunning(true);
    NETWORK_STRING = "CLIENT";
    try {
        modMain("CLIENT");
        FAIL() << "the second copy should have ended";
    } catch (const ProgramEnded& ended) {
        EXPECT_EQ(ended.exitCode, 1);
    }
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].text, "Brindlewick Software's Diary is already running");
    EXPECT_EQ(platform_.Transcript()[0].buttons, vbOKOnly);
    EXPECT_EQ(ListFolder(Stored("data\\*.*"), true), std::vector<std::string>{"OX_LOG.log"});
    const auto log = LogMessages();
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[1], "Started orbidex ");
    EXPECT_EQ(log[2], cLog::getAppVersionString());
}
