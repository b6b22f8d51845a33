// The real program on a diary of twenty years: Quick Find looks for a rare word in
// every year's months and the results window lists each event that holds it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "DiaryGenerator.h"
#include "ProgramRun.h"
#include "foundation/FileSystem.h"

using orbidex::test::ProgramRun;

class SearchRunTest : public orbidex::test::ProgramRunTest {};

TEST_F(SearchRunTest, QuickFindListsTheRareWordOfEveryYear) {
    ProgramRun run(ORBIDEX_EXE);
    std::filesystem::create_directory(run.Folder() + "/data");
    const auto diary = orbidex::bench::GenerateDiary(orbidex::ToStoredPath(run.Folder() + "/data/"), 2000, 20);
    ASSERT_EQ(diary.files, 240);
    std::ofstream(run.Folder() + "/data/locations.txt", std::ios::binary) << "Office\r\nRoom 2\r\nHead office\r\n";
    std::ofstream(run.Folder() + "/data/references.txt", std::ios::binary) << "Phone\r\nClient\r\nTravel\r\n";
    run.SetEnvironment("LD_PRELOAD", ORBIDEX_USER_DRIVER);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForStartUp());

    // 80 events hold the word, one in 1,500, spread over the twenty years.
    std::ofstream(run.Folder() + "/driver.txt", std::ios::app)
        << "click mnuSearchQuick\n"
           "type txtDetails zanzibar\n"
           "click cmdDetails\n"
           "shot frmInfoSearch screenshots/search-form.png\n"
           "click cmdSearch\n"
           "shot frmSearchResults screenshots/search-results.png - found 80 records\n";
    ASSERT_TRUE(run.WaitForFile(
        "driver.log", [](const std::string& done) { return done == "6"; }, 60000))
        << "commands done: " << run.ReadFile("driver.log");
    EXPECT_EQ(run.CloseAndWait(), 0);

    std::filesystem::create_directories("screenshots");
    for (const char* shot : {"search-form.png", "search-results.png"}) {
        ASSERT_TRUE(run.Exists(std::string("screenshots/") + shot)) << shot;
        std::filesystem::copy_file(run.Folder() + "/screenshots/" + shot, std::string("screenshots/") + shot,
                                   std::filesystem::copy_options::overwrite_existing);
    }
}
