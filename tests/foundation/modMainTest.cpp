// The program's start, as from a fresh program folder, and its two ways to end.
#include <filesystem>
#include <tuple>

#include "ProgramFixture.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecurring.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/cLog.h"
#include "foundation/modMain.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class ModMainTest : public orbidex::test::ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        // Start as the program does: nothing on disk, nothing set.
        ResetProgramState();
        std::filesystem::remove_all(folder_.Native() + "/data");
        platform_.AllowUnscriptedForms(true);
    }
};

TEST_F(ModMainTest, AFirstStartMakesTheDataFolderTheLogAndThisMonthsFile) {
    modMain("LOCAL");
    EXPECT_EQ(NETWORK_STRING, "LOCAL");
    EXPECT_EQ(gStrDataPath, Stored("data\\"));
    // Set again by the settings' load, with a doubled separator that names the same file.
    EXPECT_EQ(gStrIniFile, Stored("data\\\\orbidex.ini"));
    const auto messages = LogMessages();
    ASSERT_GE(messages.size(), 3U);
    EXPECT_EQ(messages[0], "------------------------------------------------------");
    EXPECT_EQ(messages[1], "Started orbidex ");
    EXPECT_EQ(messages[2], cLog::getAppVersionString());
    EXPECT_EQ(gLogLevel, 3);  // cleared, then read from the new settings file
    EXPECT_TRUE(MainForm().Visible);

    EXPECT_EQ(ReadBytes(Stored("data\\D200406.dat")), "\r\n");
    EXPECT_EQ(gStrDiaryDataFile, Stored("data\\D200406.dat"));
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_EQ(gStrTasksFile, Stored("data\\D_tasks.dat"));
    EXPECT_EQ(std::tie(gCurrentEvent.DateEvent, gCurrentEvent.TimeEvent, gCurrentEvent.length),
              std::make_tuple("20040605", "0930", ""))
        << "a new record, not one made by init";
    EXPECT_EQ(std::tie(glbSearchEvent.DateEvent, glbOldEvent.length), std::make_tuple("20040605", "1"));
    EXPECT_EQ(glbRecurring.fname(), Stored("data\\recurring.dat"));
    EXPECT_FALSE(FileExists(glbRecurring.fname())) << "the recurring file is never opened";
}

TEST_F(ModMainTest, TheClientKindIsFixedAtTheFirstStep) {
    platform_.QueueMsgBoxAnswer(vbNo);  // the first run's question: run locally
    modMain("CLIENT");
    EXPECT_EQ(NETWORK_STRING, "CLIENT");
}

TEST_F(ModMainTest, ClosingTheMainWindowEndsTheProgram) {
    modMain("LOCAL");
    int cancel = 0;
    try {
        MainForm().Form_Unload(cancel);
        FAIL() << "the program should have ended";
    } catch (const ProgramEnded& ended) {
        EXPECT_EQ(ended.exitCode, 0);
    }
    EXPECT_EQ(cancel, 1);
}

TEST_F(ModMainTest, ASecondCopyShowsTheMessageAndTouchesNoDataFile) {
    platform_.SetAnotherInstanceRunning(true);
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
    EXPECT_EQ(LogMessages().size(), 3U) << "the three start lines only";
}
