// The real program on a user's organiser of 30 tasks (some overdue, some finished)
// and 10 notes: it starts on them, and a start and a close leave every file of them
// as it was.  The window test of the task and note screens runs the same start in
// its own process and saves their screenshots.
#include <gtest/gtest.h>

#include <QDate>
#include <algorithm>
#include <filesystem>
#include <map>

#include "ProgramRun.h"
#include "SampleOrganiser.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"

using orbidex::test::ProgramRun;

namespace {

// The files of the organiser, with their bytes.
std::map<std::string, std::string> organiser(const ProgramRun& run) {
    std::map<std::string, std::string> files;
    for (const char* name : {"data/D_tasks.dat", "data/allnotes.dat"}) files[name] = run.ReadFile(name);
    for (const auto& entry : std::filesystem::directory_iterator(run.Folder() + "/data/notes")) {
        const std::string name = "data/notes/" + entry.path().filename().string();
        files[name] = run.ReadFile(name);
    }
    return files;
}

}  // namespace

class OrganiserRunTest : public orbidex::test::ProgramRunTest {};

TEST_F(OrganiserRunTest, TheProgramStartsOnATaskListAndNotesAndLeavesThemAlone) {
    ProgramRun run(ORBIDEX_EXE);
    std::filesystem::create_directory(run.Folder() + "/data");
    const QDate today = QDate::currentDate();
    orbidex::test::WriteSampleOrganiser(orbidex::ToStoredPath(run.Folder() + "/data/"),
                                        orbidex::DateSerial(today.year(), today.month(), today.day()));
    const std::map<std::string, std::string> before = organiser(run);
    ASSERT_EQ(before.size(), 12U);
    ASSERT_EQ(std::count(before.at("data/D_tasks.dat").begin(), before.at("data/D_tasks.dat").end(), '\n'), 30);

    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForStartUp());
    const std::vector<std::string> messages = run.LogMessages();
    const auto tasks = std::find(messages.begin(), messages.end(), "TOK - Tasks setup");
    ASSERT_NE(tasks, messages.end());
    ASSERT_NE(tasks + 1, messages.end());
    EXPECT_EQ(*(tasks + 1), "TOK - Notes setup");
    EXPECT_EQ(run.CloseAndWait(), 0);
    EXPECT_EQ(organiser(run), before);
}
