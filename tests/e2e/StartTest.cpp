#include <gtest/gtest.h>

#include <QDate>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "ProgramRun.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

using orbidex::SplitLines;
using orbidex::test::ProgramRun;

namespace {

// The settings file a first start writes, for a program in `folder`.
std::string expectedFirstSettings(const std::string& folder) {
    std::ifstream in(std::string(ORBIDEX_CONFIG_GOLDEN_DIR) + "/first_run_local.ini", std::ios::binary);
    const std::string golden((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return orbidex::Replace(golden, "{PROGRAM_FOLDER}", orbidex::ToStoredPath(folder));
}

// Every file of the data folder but the log, with its bytes.
std::map<std::string, std::string> dataFiles(const ProgramRun& run) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(run.Folder() + "/data"))
        if (entry.path().filename() != "OX_LOG.log")
            files[entry.path().filename().string()] = run.ReadFile("data/" + entry.path().filename().string());
    return files;
}

long countOf(const std::string& text, const std::string& part) {
    long count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

// The warning for the one key a local settings file lacks: once it is logged, the
// settings file is complete and has been read.
const char* const kSettingsRead = "sect=Network   key=datapath";

}  // namespace

class StartTest : public orbidex::test::ProgramRunTest {};

TEST_F(StartTest, OrbidexStartsLogsAndEndsWhenClosed) {
    ProgramRun run(ORBIDEX_EXE);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForFileContaining("data/OX_LOG.log", "(build "));
    EXPECT_TRUE(run.Exists("data"));
    const auto messages = run.LogMessages();
    ASSERT_GE(messages.size(), 3U);
    EXPECT_EQ(messages[0], "------------------------------------------------------");
    EXPECT_EQ(messages[1], "Started orbidex ");
    EXPECT_EQ(messages[2].rfind("v", 0), 0U);
    EXPECT_EQ(run.CloseAndWait(), 0);
}

TEST_F(StartTest, AStartMakesThisMonthsFileAndCountsTheDataFiles) {
    ProgramRun run(ORBIDEX_EXE);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForStartUp());
    const std::string month = "data/D" + QDate::currentDate().toString(QStringLiteral("yyyyMM")).toStdString() + ".dat";
    EXPECT_EQ(run.ReadFile(month), "\r\n");
    const auto messages = run.LogMessages();
    const auto about = std::find(messages.begin(), messages.end(), "About to count Data Files");
    ASSERT_NE(about, messages.end());
    ASSERT_NE(about + 1, messages.end());
    EXPECT_EQ(*(about + 1), "Found 1 Data Files");
    EXPECT_EQ(run.CloseAndWait(), 0);
}

TEST_F(StartTest, TheFirstStartWritesTheWholeSettingsFile) {
    ProgramRun run(ORBIDEX_EXE);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForFileContaining("data/OX_LOG.log", kSettingsRead));
    const auto actual = SplitLines(run.ReadFile("data/orbidex.ini"));
    const auto expected = SplitLines(expectedFirstSettings(run.Folder()));
    ASSERT_EQ(actual.size(), expected.size());
    // The moment of creation and the screen's width are this run's own.
    const std::regex created(R"(;     orbidex\.ini - created by orbidex on \d\d-[A-Z][a-z]{2}-\d{4} \d\d:\d\d:\d\d)");
    for (size_t i = 0; i < actual.size(); ++i) {
        if (orbidex::StartsWith(expected[i], ";     orbidex.ini - created by "))
            EXPECT_TRUE(std::regex_match(actual[i], created)) << actual[i];
        else if (expected[i] == "left=7680")
            EXPECT_TRUE(std::regex_match(actual[i], std::regex("left=[1-9][0-9]*"))) << actual[i];
        else
            EXPECT_EQ(actual[i], expected[i]) << "line " << i + 1;
    }
    EXPECT_EQ(run.CloseAndWait(), 0);
}

TEST_F(StartTest, TheClientKindStartsWithAnExistingSettingsFile) {
    // Without a settings file the client's first start would ask whether to use a
    // server, a question nobody answers here.
    ProgramRun run(ORBIDEX_CLIENT_EXE);
    std::filesystem::create_directory(run.Folder() + "/data");
    const std::string settings = expectedFirstSettings(run.Folder());
    std::ofstream(run.Folder() + "/data/orbidex.ini", std::ios::binary) << settings;
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForFileContaining("data/OX_LOG.log", kSettingsRead));
    EXPECT_EQ(run.ReadFile("data/orbidex.ini"), settings);
    EXPECT_EQ(run.ReadFile("data/OX_LOG.log").find("No INI File"), std::string::npos);
    EXPECT_EQ(run.CloseAndWait(), 0);
}

TEST_F(StartTest, ASecondStartShowsItsMessageAndLeavesTheDataAlone) {
    ProgramRun first(ORBIDEX_EXE);
    ASSERT_TRUE(first.Start());
    // The end of the start-up: every file of the first copy is written.
    ASSERT_TRUE(first.WaitForStartUp());
    const auto before = dataFiles(first);
    ASSERT_EQ(before.count("orbidex.ini"), 1U);
    const long logLines = static_cast<long>(SplitLines(first.ReadFile("data/OX_LOG.log")).size());

    ProgramRun second(ORBIDEX_EXE, first.Folder());
    ASSERT_TRUE(second.Start());
    ASSERT_TRUE(
        second.WaitForFile("data/OX_LOG.log", [](const std::string& log) { return countOf(log, "(build ") == 2; }));
    // The message box "Brindlewick Software's Diary is already running" holds the
    // second copy: it is still there, and has written nothing but its log lines.
    EXPECT_TRUE(second.Running());
    EXPECT_EQ(dataFiles(first), before);

    // Closing its windows closes the message; the copy then ends with the code of a
    // start refused because another copy runs.
    EXPECT_EQ(second.CloseAndWait(), 1);
    EXPECT_EQ(dataFiles(first), before);
    const auto log = first.LogMessages();
    ASSERT_EQ(static_cast<long>(log.size()), logLines + 3);
    EXPECT_EQ(log[log.size() - 2], "Started orbidex ");

    EXPECT_TRUE(first.Running());
    EXPECT_EQ(first.CloseAndWait(), 0);
}
