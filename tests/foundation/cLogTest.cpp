#include "ProgramFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/cLog.h"

using namespace orbidex;

class LogTest : public orbidex::test::ProgramFixture {};

TEST_F(LogTest, LinesCarryDateTimeComputerAndUser) {
    glbLog.log("TOK - Tasks setup");
    const std::string bytes = ReadBytes(Stored("data\\OX_LOG.log"));
    EXPECT_NE(bytes.find("2004-06-05, 09:30:12, PC1, fred, TOK - Tasks setup\r\n"), std::string::npos);
    // init wrote the line of dashes first and, being silent, no "Started Program".
    EXPECT_EQ(LogMessages().front(), "------------------------------------------------------");
}

TEST_F(LogTest, LevelFilterFollowsTheGlobalLevel) {
    gLogLevel = 0;
    glbLog.log("level one", 1);
    glbLog.log("level zero", 0);
    glbLog.log("level minus one", -1);
    gLogLevel = 3;
    glbLog.log("detail", 3);
    glbLog.log("too detailed", 4);
    const auto messages = LogMessages();
    EXPECT_EQ(std::vector<std::string>(messages.begin() + 1, messages.end()),
              (std::vector<std::string>{"level zero", "level minus one", "detail"}));
}

TEST_F(LogTest, MessagesKeepTheirLineBreaksAndGoToTheListBox) {
    std::vector<std::string> shown;
    glbLog.listBox = [&](const std::string& line) { shown.push_back(line); };
    glbLog.log("two\r\nlines");
    EXPECT_NE(ReadBytes(Stored("data\\OX_LOG.log")).find("fred, two\r\nlines\r\n"), std::string::npos);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0], "2004-06-05, 09:30:12, PC1, fred, two\r\nlines");
}

TEST_F(LogTest, LogToAMissingFolderIsDroppedSilently) {
    glbLog.logFile = Stored("no-such-folder\\OX_LOG.log");
    glbLog.log("lost");
    EXPECT_EQ(ReadBytes(glbLog.logFile), "");
}

TEST_F(LogTest, NotSilentInitWritesStartedProgramAtLevelOne) {
    gLogLevel = 1;
    glbLog.init("", "", "", false, 0);
    EXPECT_EQ(glbLog.logFile, folder_.Stored() + "\\orbidex.log");
    EXPECT_EQ(glbLog.errorFile, folder_.Stored() + "\\error.log");
    EXPECT_EQ(glbLog.tempFile, folder_.Stored() + "\\temp.log");
    const std::string bytes = ReadBytes(glbLog.logFile);
    EXPECT_NE(bytes.find("fred, Started Program\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("fred, ------------------------------------------------------\r\n"), std::string::npos);
}

TEST_F(LogTest, PimlogLineForms) {
    const std::string file = Stored("data\\single-save.log");
    glbLog.pimlog(file, "form one", 1, 0);
    glbLog.pimlog(file, "form two", 2, 0);
    glbLog.pimlog(file, "form 77", 77, 0, "mary");
    glbLog.pimlog(file, "form five", 5, 0);
    glbLog.pimlog(file, "filtered", 5, 1);
    EXPECT_EQ(ReadBytes(file),
              "20040605,09:30:12,fred,PC1,form one\r\n"
              "20040605,09:30:12,form two\r\n"
              "20040605,09:30:12,mary,form 77\r\n"
              "form five\r\n");
    glbLog.pimlog("", "default file", 5, 0);
    EXPECT_EQ(ReadBytes(Stored("orbidex.log")), "default file\r\n");
    glbLog.pimlog(Stored("missing\\x.log"), "lost", 1, 0);  // no failure reaches the caller
}

TEST_F(LogTest, LogArrayWritesOneLine) {
    glbLog.logArray({"zero", "", "two"});
    EXPECT_EQ(SplitLines(ReadBytes(Stored("data\\OX_LOG.log"))).back(), "20040605,0930,fred,PC1, ARRAY=0-zero2-two");
}

TEST_F(LogTest, VersionTextAndFileAvailability) {
    EXPECT_EQ(cLog::FormatVersionString(3, 1, 7), "v3.1   (build 7)");
    EXPECT_TRUE(glbLog.CheckFileAvailability(Stored("data\\avail.txt")));
    EXPECT_FALSE(glbLog.CheckFileAvailability(Stored("data")));
}
