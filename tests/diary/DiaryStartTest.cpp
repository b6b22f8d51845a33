// What the program's start does with the diary: this month's file, the loaded month,
// the count of data files and the edit buffers.
#include <algorithm>
#include <filesystem>
#include <tuple>

#include "DiaryFixture.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "diary/cDiaryRecurring.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/modMain.h"

using namespace orbidex;

class DiaryStartTest : public orbidex::test::DiaryFixture {
protected:
    void SetUp() override {
        DiaryFixture::SetUp();
        ResetProgramState();
        std::filesystem::remove_all(folder_.Native() + "/data");
        platform_.AllowUnscriptedForms(true);
    }
};

TEST_F(DiaryStartTest, AFirstStartMakesThisMonthsFileLoadsItAndCountsIt) {
    modMain("LOCAL");
    EXPECT_EQ(ReadBytes(Stored("data\\D200406.dat")), "\r\n");
    EXPECT_EQ(gStrDiaryDataFile, Stored("data\\D200406.dat"));
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_EQ(gStrTasksFile, Stored("data\\D_tasks.dat"));

    const auto messages = LogMessages();
    const auto about = std::find(messages.begin(), messages.end(), "About to count Data Files");
    ASSERT_NE(about, messages.end());
    ASSERT_NE(about + 1, messages.end());
    EXPECT_EQ(*(about + 1), "Found 1 Data Files");

    EXPECT_EQ(std::tie(gCurrentEvent.DateEvent, gCurrentEvent.TimeEvent, gCurrentEvent.length),
              std::make_tuple("20040605", "0930", ""))
        << "a new record, not one made by init";
    EXPECT_EQ(std::tie(glbSearchEvent.DateEvent, glbOldEvent.length), std::make_tuple("20040605", "1"));

    EXPECT_EQ(glbRecurring.fname(), Stored("data\\recurring.dat"));
    EXPECT_FALSE(FileExists(glbRecurring.fname())) << "the recurring file is never opened";
}
