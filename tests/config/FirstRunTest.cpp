#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

#include "ChildProcess.h"
#include "SettingsFixture.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class FirstRunTest : public orbidex::test::SettingsFixture {
protected:
    std::string detectorCommand() const { return folder_.Stored() + "\\mirlow.exe AUTO"; }
};

TEST_F(FirstRunTest, TheLocalProgramAsksNothingWritesEveryDefaultAndReadsThemBack) {
    glbConfig.ReadAllSettings();
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_TRUE(platform_.ProcessesStarted().empty());
    EXPECT_EQ(IniText(), Golden("first_run_local.ini"));
    EXPECT_TRUE(gBoolNewIniFile);
    const auto log = LogMessages();
    const std::string dashes = "--------------------------------------------------------";
    const std::vector<std::string> expected = {"No settings file found - the first run creates " + gStrIniFile, dashes,
                                               "No INI File - starting with Defaults", dashes};
    EXPECT_NE(std::search(log.begin(), log.end(), expected.begin(), expected.end()), log.end());

    EXPECT_EQ(gStrIniFile, DataPath() + "\\orbidex.ini");
    EXPECT_EQ(gStrTasksFile, DataPath() + "tasks.dat");
    EXPECT_EQ(gLogLevel, 3);
    // Sections the other tests do not read.
    EXPECT_EQ(glbConfig.security, "3");
    EXPECT_EQ(glbConfig.ShowLocation, 1);
    EXPECT_EQ(glbConfig.FlatControls, "0");
    EXPECT_EQ(glbConfig.ShowToolbar, "1");
    EXPECT_EQ(gListViewHeadings.JobToDoID, "<hide>");
    EXPECT_EQ(gTaskHeadings.details, "Task Details");
    // The one key a local file lacks is the server's folder; it is read once the
    // log level is known, so exactly one warning stands in the log.
    std::vector<std::string> warnings;
    for (const std::string& m : log)
        if (StartsWith(m, "Warning - ")) warnings.push_back(m);
    EXPECT_EQ(warnings, std::vector<std::string>{"Warning - failed to read INI :file=" + gStrIniFile +
                                                 "    sect=Network   key=datapath"});
}

TEST_F(FirstRunTest, AClientAnsweringNoRunsLocally) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbNo);
    glbConfig.ReadAllSettings();
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    const auto& question = platform_.Transcript()[0];
    EXPECT_EQ(question.title, "Welcome to Brindlewick Softwares Orbidex Client");
    EXPECT_EQ(question.buttons, vbYesNoCancel + vbQuestion);
    EXPECT_TRUE(EndsWith(question.text, "\r\nClick [YES] to connect to a server\r\nClick [No] to run in Local mode"));
    EXPECT_TRUE(platform_.ProcessesStarted().empty());
    EXPECT_EQ(IniText(), Golden("first_run_local.ini"));
    EXPECT_EQ(glbConfig.runLocalModeOnly, "1");
}

TEST_F(FirstRunTest, AClientAnsweringYesWithNoServerFoundHasAnEmptyServerPath) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbYes);
    glbConfig.ReadAllSettings();
    EXPECT_EQ(platform_.ProcessesStarted(), std::vector<std::string>{detectorCommand()});
    EXPECT_EQ(IniText(), Golden("first_run_server.ini"));
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
}

TEST_F(FirstRunTest, CancelEndsTheProgramWithNoFileWritten) {
    NETWORK_STRING = "CLIENT";
    platform_.QueueMsgBoxAnswer(vbCancel);
    try {
        glbConfig.ReadAllSettings();
        FAIL() << "the program should have ended";
    } catch (const ProgramEnded& ended) {
        EXPECT_EQ(ended.exitCode, 0);
    }
    EXPECT_FALSE(FileExists(IniPath()));
    EXPECT_FALSE(FileExists(Stored("data\\tasks.dat")));
}

TEST_F(FirstRunTest, RestoringTheDefaultsRewritesTheWholeFile) {
    WriteIni({"[general]", "loglevel=0", "[old]", "left=over"});
    glbConfig.fname = IniPath();
    glbConfig.CreateDefaultIniFile();
    // Without the first run's answer the file says it may use a server.
    EXPECT_EQ(IniText(), Replace(Golden("first_run_local.ini"), "runLocalModeOnly=1", "runLocalModeOnly=0"));
}

TEST_F(FirstRunTest, AFirstRunThatCannotWriteLeavesNoFileAndTheNextStartAsksAgain) {
    NETWORK_STRING = "CLIENT";
    // The disk is full a kilobyte into the new file.
    const auto end = orbidex::test::RunInChild(
        [this] {
            platform_.QueueMsgBoxAnswer(vbNo);
            glbConfig.ReadAllSettings();
            return static_cast<int>(platform_.Transcript().size());
        },
        {1024, false});
    EXPECT_EQ(end.exitCode, 1) << "the welcome question, and nothing else";
    EXPECT_FALSE(FileExists(IniPath()));
    EXPECT_EQ(ListFolder(DataPath() + "*", false), std::vector<std::string>{"OX_LOG.log"})
        << "nothing half written stays behind";
    const auto log = LogMessages();
    const std::string startUpName = Stored("data\\\\orbidex.ini");  // as the start-up names it
    EXPECT_NE(std::find(log.begin(), log.end(),
                        "The settings file " + startUpName + " could not be written (Disk full) - it stays as it was"),
              log.end());

    // The rest of that run writes no key into a file of its own making.
    glbConfig.fname = gStrIniFile;
    glbConfig.SetVal("calendar", "GridOrList", "LIST");
    glbConfig.SaveFormSettings(MainForm(), gStrIniFile);
    EXPECT_FALSE(FileExists(IniPath()));
    EXPECT_EQ(LogMessages().back(),
              "Warning - failed to write INI :file=" + gStrIniFile + "    sect=frmClientDiaryMain   key=WindowState");

    platform_.QueueMsgBoxAnswer(vbNo);
    glbConfig.ReadAllSettings();
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Welcome to Brindlewick Softwares Orbidex Client");
    EXPECT_EQ(IniText(), Golden("first_run_local.ini"));
}

TEST_F(FirstRunTest, ACrashWhileTheFileIsWrittenLeavesNoFile) {
    for (long long stop : {0LL, 1LL, 512LL, 2048LL}) {
        const auto end = orbidex::test::RunInChild(
            [] {
                gLogLevel = -2;
                glbConfig.ReadAllSettings();
                return 0;
            },
            {stop, true});
        EXPECT_EQ(end.signal, SIGXFSZ) << stop;
        EXPECT_FALSE(FileExists(IniPath())) << stop;
    }
}
