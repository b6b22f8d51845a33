#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDate>
#include <algorithm>

#include "ProgramRun.h"
#include "foundation/FileSystem.h"

using orbidex::SplitLines;
using orbidex::test::ProgramRun;

namespace {

// The message part of each log line: "yyyy-mm-dd, hh:mm:ss, computer, user, message".
std::vector<std::string> logMessages(const std::string& log) {
    std::vector<std::string> messages;
    for (const std::string& line : SplitLines(log)) {
        size_t at = 0;
        for (int comma = 0; comma < 4 && at != std::string::npos; ++comma) at = line.find(", ", at == 0 ? 0 : at + 2);
        messages.push_back(at == std::string::npos ? line : line.substr(at + 2));
    }
    return messages;
}

}  // namespace

class StartTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static int argc = 1;
        static char name[] = "e2e_tests";
        static char* argv[] = {name, nullptr};
        if (QCoreApplication::instance() == nullptr) new QCoreApplication(argc, argv);
    }
};

TEST_F(StartTest, OrbidexStartsLogsAndEndsWhenClosed) {
    ProgramRun run(ORBIDEX_EXE);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForFileContaining("data/OX_LOG.log", "(build "));
    EXPECT_TRUE(run.Exists("data"));
    const auto messages = logMessages(run.ReadFile("data/OX_LOG.log"));
    ASSERT_GE(messages.size(), 3U);
    EXPECT_EQ(messages[0], "------------------------------------------------------");
    EXPECT_EQ(messages[1], "Started orbidex ");
    EXPECT_EQ(messages[2].rfind("v", 0), 0U);
    EXPECT_EQ(run.CloseAndWait(), 0);
}

TEST_F(StartTest, AStartMakesThisMonthsFileAndCountsTheDataFiles) {
    ProgramRun run(ORBIDEX_EXE);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForFileContaining("data/OX_LOG.log", " Data Files\r\n"));
    const std::string month = "data/D" + QDate::currentDate().toString(QStringLiteral("yyyyMM")).toStdString() + ".dat";
    EXPECT_EQ(run.ReadFile(month), "\r\n");
    const auto messages = logMessages(run.ReadFile("data/OX_LOG.log"));
    const auto about = std::find(messages.begin(), messages.end(), "About to count Data Files");
    ASSERT_NE(about, messages.end());
    ASSERT_NE(about + 1, messages.end());
    EXPECT_EQ(*(about + 1), "Found 1 Data Files");
    EXPECT_EQ(run.CloseAndWait(), 0);
}

TEST_F(StartTest, TheClientKindStartsToo) {
    ProgramRun run(ORBIDEX_CLIENT_EXE);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForFileContaining("data/OX_LOG.log", "Started orbidex "));
    EXPECT_EQ(run.CloseAndWait(), 0);
}
