#include "foundation/modMain.h"

#include <filesystem>

#include "ProgramFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/cLog.h"
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

TEST_F(ModMainTest, StartMakesTheDataFolderAndOpensTheLog) {
    modMain("LOCAL");
    EXPECT_EQ(NETWORK_STRING, "LOCAL");
    EXPECT_TRUE(FolderExists(Stored("data")));
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
