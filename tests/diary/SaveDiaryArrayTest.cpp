// Saving the event array: the sorted single-month save and its guards, the two-month
// save, the dump, and the hand-over that follows every save.
#include "DiaryFixture.h"
#include "EventLines.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using orbidex::test::EventLine;
using orbidex::test::Fields;

namespace {

const std::string kMorning = EventLine("D200406050001", "20040605", "0900", "Morning");
const std::string kNoon = EventLine("D200406050002", "20040605", "1200", "Noon");
const std::string kMonday = EventLine("D200406070001", "20040607", "1000", "Monday");

}  // namespace

class SaveDiaryArrayTest : public orbidex::test::DiaryFixture {};

TEST_F(SaveDiaryArrayTest, TheMonthIsWrittenSortedWithoutBlankLinesTracedAndHandedOver) {
    gLogLevel = 3;
    glbConfig.security = " 1 ";
    LoadJune({kMonday, "", kNoon});
    // A new event goes behind the loaded ones and leaves the old top slot empty.
    glbEvents.SetUpperBound(5);
    glbEvents.CreateRecordAt(4).GetDiaryRecordFromText(kMorning);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);

    const std::string file = Data("D200406.dat");
    EXPECT_EQ(ReadBytes(file), kMorning + "\r\n" + kNoon + "\r\n" + kMonday + "\r\n");
    const std::string rule = "20040605,09:30:12,-----------------------------------------" + file + "\r\n";
    EXPECT_EQ(ReadBytes(Data("single-save.log")), rule + "20040605,09:30:12,SAVING DATA TO " + file + "\r\n" + rule);
    EXPECT_TRUE(Logged(", SaveDiaryData saved 3 records to " + file + "\r\n"));
    EXPECT_TRUE(Logged(", SaveDiaryArray - ID(3)  = Null\r\n"));

    // The network form at the level of the settings, and no server to take it.
    auto shared = [](const char* id, const char* date, const char* time) {
        return Fields({id, date, "", time, "30", "", "", "", "", "", "", "", "", "", ""}) + "\r\n";
    };
    EXPECT_EQ(ReadBytes(file + "_NET"), shared("D200406050001", "20040605", "0900") +
                                            shared("D200406050002", "20040605", "1200") +
                                            shared("D200406070001", "20040607", "1000"));
    EXPECT_TRUE(Logged(", Server not alive - not SaveFileToMyNetworkDatapathForServer\r\n"));
    EXPECT_TRUE(glbSavingToServer);
}

TEST_F(SaveDiaryArrayTest, DuplicateIdsStaySilentlyBecauseTheBlankEntriesComeFirst) {
    gLogLevel = 3;
    const std::string twin = EventLine("D200406050001", "20040605", "1500", "Twin");
    LoadJune({twin, kMorning});
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), kMorning + "\r\n" + twin + "\r\n");
    EXPECT_TRUE(Logged(", Duplicate ID - D200406050001  in record '" + kMorning + "\r\n"));
}

TEST_F(SaveDiaryArrayTest, WithNoBlankPairAtTheFrontTheUserDecidesAndYesHoldsForTheRest) {
    const std::string a2 = EventLine("D200406050001", "20040605", "1500", "A twin");
    const std::string b1 = EventLine("D200406050002", "20040605", "1000", "B");
    const std::string b2 = EventLine("D200406050002", "20040605", "1600", "B twin");
    const std::string c1 = EventLine("D200406050003", "20040605", "1100", "C");
    const std::string c2 = EventLine("D200406050003", "20040605", "1700", "C twin");
    LoadJune({a2, b1, b2, c1, c2});
    glbEvents.CreateRecordAt(glbEvents.totEvents()).GetDiaryRecordFromText(kMorning);  // fills the top slot

    platform_.QueueMsgBoxAnswer(vbNo);
    platform_.QueueMsgBoxAnswer(vbYes);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    ASSERT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Duplicate ID Found");
    EXPECT_EQ(platform_.Transcript()[0].text, a2 + " has duplicate id - do you want to delete it ?");
    EXPECT_EQ(platform_.Transcript()[1].text, b2 + " has duplicate id - do you want to delete it ?");
    EXPECT_EQ(ReadBytes(Data("D200406.dat")),
              kMorning + "\r\n" + a2 + "\r\n" + b1 + "\r\n" + c1 + "\r\n" + c2 + "\r\n");
    EXPECT_TRUE(Logged(", User deleted duplicate ID#" + kMorning + "\r\n")) << "also after No";

    // A usage event as the second twin settles the answer without a question.
    const std::string usage = Fields(
        {"D200406050001", "20040605", "PCFile", "1500", "5", "Usage", "", "", "", "", "", "", "", "", "word.exe"});
    const std::string first = EventLine("D200406050001", "20040605", "0900", "Sorts first", "Admin");
    LoadJune({usage, b1, b2});
    glbEvents.CreateRecordAt(glbEvents.totEvents()).GetDiaryRecordFromText(first);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), first + "\r\n" + usage + "\r\n" + b1 + "\r\n" + b2 + "\r\n");
}

TEST_F(SaveDiaryArrayTest, FiveEventsOverMoreThan250BytesEachAskBeforeOverwriting) {
    std::vector<std::string> five = {kMorning, kNoon, kMonday, EventLine("D200406080001", "20040608", "0800", "Tue")};
    LoadJune(five);
    WriteBytes(Data("D200406.dat"), std::string(1 << 20, 'x'));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_TRUE(platform_.Transcript().empty()) << "four events never ask";

    five.push_back(EventLine("D200406090001", "20040609", "0800", "Wed"));
    LoadJune(five);
    WriteBytes(Data("D200406.dat"), std::string(1250, 'x'));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_TRUE(platform_.Transcript().empty()) << "5 x 250 = 1250 bytes is still fine";

    const std::string large(1251, 'x');
    WriteBytes(Data("D200406.dat"), large);
    DeleteFile(Data("D200406.dat_NET"));
    platform_.QueueMsgBoxAnswer(vbCancel);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title,
              "Warning the number of events seems a little low to be overwriting such a large file");
    EXPECT_EQ(
        platform_.Transcript()[0].text,
        "DANGER - YOU MAY BE OVERWRITING THE WRONG FILE - PRESS CANCEL TO ABORT (or press OK if you think its ok)");
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), large) << "cancel keeps the file";
    EXPECT_FALSE(FileExists(Data("D200406.dat_NET"))) << "and hands nothing over";

    platform_.QueueMsgBoxAnswer(vbOK);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(SplitLines(ReadBytes(Data("D200406.dat"))).size(), 5U);
}

TEST_F(SaveDiaryArrayTest, AFileOfAnotherMonthThanTheLoadedOneIsReplacedByTheCalendarsMonth) {
    gLogLevel = 3;
    LoadJune({kNoon});
    WriteLines("D200407.dat", {EventLine("D200407010001", "20040701", "0900", "July")});
    const std::string july = ReadBytes(Data("D200407.dat"));
    gStrDiaryDataFile = Data("D200407.dat");
    MainForm().MonthView1.Value = June(20);
    glbEvents.SaveDiaryArray(kFieldDelimiter, &MainForm());
    EXPECT_TRUE(Logged(", Warning - may be saving to wrong spot\r\n"));
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat"));
    EXPECT_EQ(ReadBytes(Data("D200407.dat")), july);

    // Without a window the name cannot be corrected and the save goes where it points.
    gStrDiaryDataFile = Data("D200407.dat");
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(ReadBytes(Data("D200407.dat")), kNoon + "\r\n");
}

TEST_F(SaveDiaryArrayTest, TwoMonthsGoToTheirFilesAndAnEventMovedToAThirdMonthToTheSecond) {
    gLogLevel = 3;
    glbNumDaysToDisplay = 7;
    const std::string may = EventLine("D200405310001", "20040531", "0900", "May");
    WriteLines("D200405.dat", {may});
    WriteLines("D200406.dat", {kNoon, kMonday});
    glbEvents.LoadDiaryData(June(3));
    glbEvents.events(1).DateEvent = "20040801";
    const std::string moved = glbEvents.events(1).FormatDiaryRecordAsCSV(kFieldDelimiter, "");
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);

    const std::string june = Data("D200406.dat"), mayFile = Data("D200405.dat");
    EXPECT_EQ(ReadBytes(june), "\r\n" + kNoon + "\r\n");
    EXPECT_EQ(ReadBytes(mayFile), "\r\n" + moved + "\r\n" + may + "\r\n");
    EXPECT_TRUE(Logged(", Saving Multiple months data to " + june + " and  " + mayFile + "\r\n"));
    EXPECT_TRUE(Logged(", SaveMultipleMonthsDiaryDataToDisk saved 1 records to " + mayFile + " and  2 records to " +
                       june + "\r\n"));
    const std::string rule = "20040605,09:30:12,-----------------------------------------" + june + "\r\n";
    EXPECT_EQ(ReadBytes(Data("multi-save.log")), rule + "SAVING DATA \r\n" + rule);
    EXPECT_TRUE(FileExists(mayFile + "_NET"));

    gStrSecondDatafile = gStrFirstDatafile;
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"ERROR - trying to save multiple months to the same file - aborting"});
}

TEST_F(SaveDiaryArrayTest, TheDumpWritesEveryEventInMemoryUnderAHeading) {
    LoadJune({kMonday, "", kNoon});
    glbEvents.SaveDumpOfDiaryRecords();
    EXPECT_EQ(ReadBytes(Data("D000101.DAT")),
              "Dumped Diary Database from Memory on 2004-06-05 09:30:12\r\n" + kMonday + "\r\n" + kNoon + "\r\n");
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Dump Memory Completed");
    EXPECT_EQ(platform_.Transcript()[0].text,
              "Saved 2 records to the file " + Data("D000101.DAT") + "\r\nYou can now re-index the database");
}
