// Naming, creating, loading and listing the monthly files.
#include <tuple>

#include "DiaryFixture.h"
#include "EventLines.h"
#include "diary/ProfileKeys.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using orbidex::test::EventLine;

class MonthlyFileTest : public orbidex::test::DiaryFixture {};

TEST_F(MonthlyFileTest, AMonthWithoutAFileGetsOneHoldingALineEndThatLoadsAsOneBlankRecord) {
    const std::string name = glbEvents.GetDiaryFileNameForDate(DateSerial(2004, 7, 20));
    EXPECT_EQ(name, DataPath() + "D200407.dat");
    EXPECT_EQ(ReadBytes(name), "\r\n");

    WriteBytes(name, "kept\r\n");
    EXPECT_EQ(glbEvents.GetDiaryFileNameForDate(DateSerial(2004, 7, 1)), name);
    EXPECT_EQ(ReadBytes(name), "kept\r\n") << "an existing file is left alone";

    WriteBytes(name, "\r\n");
    glbEvents.LoadDiaryData(DateSerial(2004, 7, 20));
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_EQ(glbEvents.totEvents(), 1);
    EXPECT_FALSE(glbEvents.IsEmptySlot(0));
    EXPECT_TRUE(glbEvents.IsEmptySlot(1));
    EXPECT_EQ(glbEvents.events(0).FormatDiaryRecordAsCSV(kFieldDelimiter, ""), "");

    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(ReadBytes(name), "") << "blank lines are not written";
}

TEST_F(MonthlyFileTest, LoadingTakesEveryLineInFileOrderAndLeavesTheTopSlotEmpty) {
    gLogLevel = 3;
    const std::string later = EventLine("D200406050002", "20040605", "1400", "Later");
    const std::string earlier = EventLine("D200406050001", "20040605", "0900", "Earlier");
    WriteBytes(Data("D200406.dat"), later + "\r\n\r\n" + earlier + "\n" + EventLine("D200406050003", "20040606", "1000", "No line end"));

    glbEvents.LoadDiaryData(June(10));
    EXPECT_EQ(gIntTotalEvents, 4);
    EXPECT_EQ(glbEvents.totEvents(), 4);
    EXPECT_EQ(glbEvents.events(0).details, "Later");
    EXPECT_EQ(glbEvents.events(1).details, "");
    EXPECT_EQ(glbEvents.events(2).details, "Earlier");
    EXPECT_EQ(glbEvents.events(3).details, "No line end");
    EXPECT_TRUE(glbEvents.IsEmptySlot(4));
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat"));
    EXPECT_EQ(gStrFirstDatafile, Data("D200406.dat"));
    EXPECT_EQ(gLngWhichMonthIsLoaded, June(10));
    EXPECT_FALSE(gBoolExtraDiaryDataLoaded);
    EXPECT_NE(glbEvents.FileStamp(), "garbage");
    EXPECT_NE(glbEvents.FileStamp(), "");
    EXPECT_TRUE(Logged(", LoadDiaryData loaded 4 records from " + Data("D200406.dat") + "\r\n"));
}

TEST_F(MonthlyFileTest, AFileChangedOnDiskIsReloadedForTheCalendarsDate) {
    WriteLines("D200406.dat", {EventLine("D200406050001", "20040605", "0900", "First")});
    WriteLines("D200407.dat", {EventLine("D200407010001", "20040701", "0900", "July")});
    glbEvents.LoadDiaryData(June(5));
    MainForm().MonthView1.Value = DateSerial(2004, 7, 1);

    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat")) << "an unchanged file is not reloaded";
    EXPECT_FALSE(Logged("Auto reloading"));

    AppendToFile(Data("D200406.dat"), EventLine("D200406050002", "20040605", "1000", "Second") + "\r\n");
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_TRUE(Logged(", Auto reloading datafile ... disk version changed\r\n"));
    EXPECT_EQ(gStrDiaryDataFile, Data("D200407.dat"));
    EXPECT_EQ(glbEvents.events(0).details, "July");
}

TEST_F(MonthlyFileTest, ASaveLeavesTheStampStaleSoThatTheNextCheckReloads) {
    WriteLines("D200406.dat", {"", EventLine("D200406050001", "20040605", "0900", "First")});
    glbEvents.LoadDiaryData(June(5));
    MainForm().MonthView1.Value = June(5);
    EXPECT_EQ(gIntTotalEvents, 2);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_EQ(gIntTotalEvents, 1) << "the blank line is gone after the reload";
}

TEST_F(MonthlyFileTest, ViewsOfSevenAndFourteenDaysLoadTheNeighbouringMonthWhenTheyCrossItsEnd) {
    // days shown, date, the second month's file ("" for none)
    const std::vector<std::tuple<int, VbDate, std::string>> cases = {
        {7, June(3), "D200405.dat"},       {7, June(28), "D200407.dat"}, {7, June(15), ""},
        {14, June(15), ""},                {14, DateSerial(2004, 4, 17), "D200405.dat"},
        {14, June(10), "D200405.dat"},     {1, June(1), ""},             {31, June(30), ""},
    };
    WriteLines("D200405.dat", {EventLine("D200405010001", "20040501", "0900", "May")});
    WriteLines("D200406.dat", {EventLine("D200406010001", "20040601", "0900", "June")});
    for (const auto& [days, date, second] : cases) {
        glbNumDaysToDisplay = static_cast<int16_t>(days);
        gStrSecondDatafile.clear();
        glbEvents.LoadDiaryData(date);
        EXPECT_EQ(gBoolExtraDiaryDataLoaded, !second.empty()) << days << " days on " << FormatDate(date, "yyyy-mm-dd");
        EXPECT_EQ(gStrSecondDatafile, second.empty() ? "" : Data(second));
    }

    glbNumDaysToDisplay = 7;
    glbEvents.LoadDiaryData(June(3));
    EXPECT_EQ(gIntTotalEvents, 2);
    EXPECT_EQ(glbEvents.totEvents(), 2);
    EXPECT_EQ(glbEvents.events(0).details, "June");
    EXPECT_EQ(glbEvents.events(1).details, "May");
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat")) << "the first month stays the file in hand";

    glbEvents.LoadExtraDiaryData(DateSerial(2004, 7, 1));
    EXPECT_EQ(gIntTotalEvents, 2);
    EXPECT_TRUE(Logged(", WARNING - LoadExtraDiaryData function called for 2004-07-01 but exited function without "
                       "loading data because the flag 'gBoolExtraDiaryDataLoaded' was set to TRUE'\r\n"));
}

TEST_F(MonthlyFileTest, InitDiaryCompletesThePathAndMakesThisMonthsFile) {
    frmClientDiaryMain& form = MainForm();
    glbEvents.InitDiary(&form, "");
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat"));
    EXPECT_EQ(ReadBytes(gStrDiaryDataFile), "\r\n");
    EXPECT_EQ(gStrTasksFile, Data("D_tasks.dat"));
    EXPECT_EQ(gStrContactsFile, Data("D_contacts.dat"));
    EXPECT_EQ(gStrNotesFile, Data("D_notes.dat"));

    gStrDataPath = Stored("data");
    glbEvents.InitDiary(&form, "");
    EXPECT_EQ(gStrDataPath, Stored("data\\")) << "the separator is added";
}

TEST_F(MonthlyFileTest, AnEmptyDataPathAsksForAFolderForNextTimeAndUsesTheProgramFolderJoinedToData) {
    gStrDataPath.clear();
    platform_.QueueInputAnswer("");  // OK on the proposal: the program folder
    glbEvents.InitDiary(nullptr, Stored("data\\my.ini"));

    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Brindlewick Software's Diary - Path for Datafiles");
    const std::string program = platform_.ProgramFolder();
    EXPECT_EQ(ReadProfileKey(Stored("data\\my.ini"), "diary", "dataPath"), program + "\\");
    EXPECT_EQ(gStrDataPath, program + "data\\") << "no separator between the program folder and data";
    EXPECT_EQ(gStrDiaryDataFile, program + "data\\D200406.dat");
}

TEST_F(MonthlyFileTest, AnUnusableAnswerIsRefusedAndTheRunningPathStays) {
    gStrDataPath = Stored("missing\\");
    platform_.QueueInputAnswer(Stored("also-missing"));
    glbEvents.ValidateDataPath(gStrDataPath);
    ASSERT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(platform_.Transcript()[1].title, "Path not valid - run Config");
    EXPECT_EQ(platform_.Transcript()[1].text,
              "The path you chose does not exist , or is invalid. \r\nPlease run the config screen again.");
    EXPECT_EQ(gStrDataPath, Stored("missing\\"));
    EXPECT_FALSE(FileExists(gStrIniFile));
}

TEST_F(MonthlyFileTest, ForeignBytesLoadAndSaveWithoutHarm) {
    std::string bytes = "\xFF\xFE\x00\x01garbage\rline\x1F\x1F\x1F\n\x1F";
    bytes += std::string(5000, '\x1F') + "\r\n" + std::string(3000, 'x') + "\r\r\n";
    bytes += EventLine("D200406050001", "20040605", "0900", "Real") + "\r\n";
    WriteBytes(Data("D200406.dat"), bytes);
    glbEvents.LoadDiaryData(June(5));
    EXPECT_EQ(gIntTotalEvents, static_cast<int16_t>(SplitLines(bytes).size()));

    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    const std::string saved = ReadBytes(Data("D200406.dat"));
    EXPECT_NE(saved.find(EventLine("D200406050001", "20040605", "0900", "Real") + "\r\n"), std::string::npos);
    glbEvents.LoadDiaryData(June(5));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), saved) << "a second round changes nothing";
}

TEST_F(MonthlyFileTest, AFolderWhereTheMonthsFileShouldBeLoadsNoEventsAndIsNeverWritten) {
    ASSERT_TRUE(MakeFolder(Data("D200406.dat")));
    EXPECT_EQ(glbEvents.GetDiaryFileNameForDate(June(5)), Data("D200406.dat"));
    glbEvents.LoadDiaryData(June(5));
    EXPECT_EQ(gIntTotalEvents, 0);
    EXPECT_TRUE(Logged("LoadDiaryData could not read " + Data("D200406.dat")));

    glbEvents.CreateRecordAt(0).GetDiaryRecordFromText(EventLine("D200406050001", "20040605", "0900", "Lost?"));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_TRUE(FolderExists(Data("D200406.dat")));
    EXPECT_FALSE(FileExists(Data("D200406.dat_NET"))) << "a failed write hands nothing over";

    cDiaryRecord event;
    event.GetDiaryRecordFromText(EventLine("", "20040605", "1000", "Appended"));
    glbEvents.AddDiaryRecord(event);
    EXPECT_TRUE(Logged("AddDiaryRecord - could not append to " + Data("D200406.dat")));
}

TEST_F(MonthlyFileTest, TheListOfAllFilesLeavesOutTheTaskFileAndIsInNameOrder) {
    for (const char* name : {"D200406.DAT", "d200312.dat", "D200401.dat", "D_tasks.dat", "D_notes.dat", "notes.txt"})
        WriteBytes(Data(name), "\r\n");
    MakeFolder(Data("D200407.dat"));

    std::vector<std::string> files{"old"};
    const long count = glbEvents.CreateDiaryDataFileList(0, 0, files, true);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(files, (std::vector<std::string>{"", Data("d200312.dat"), Data("D200401.dat"), Data("D200406.DAT"),
                                               Data("D_notes.dat"), ""}));
}

TEST_F(MonthlyFileTest, TheListOfARangeMakesTheMissingMonthsAndTakesOnlyThose) {
    WriteBytes(Data("D200312.dat"), "\r\n");
    WriteBytes(Data("D200402.dat"), "kept\r\n");
    std::vector<std::string> files;
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(DateSerial(2004, 1, 15), DateSerial(2004, 4, 2), files, false), 4);
    EXPECT_EQ(files, (std::vector<std::string>{"", Data("D200401.dat"), Data("D200402.dat"), Data("D200403.dat"),
                                               Data("D200404.dat"), ""}));
    EXPECT_EQ(ReadBytes(Data("D200402.dat")), "kept\r\n");
    EXPECT_EQ(ReadBytes(Data("D200403.dat")), "\r\n");

    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(DateSerial(2004, 8, 1), DateSerial(2004, 5, 1), files, false), 1)
        << "an end before the start gives the first month alone";
    EXPECT_FALSE(FileExists(Data("D200405.dat")));
}

TEST_F(MonthlyFileTest, AnEmptyFolderGivesNoFilesAndSaysSo) {
    std::vector<std::string> files;
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(0, 0, files, true), 0);
    EXPECT_TRUE(Logged(", hmmm.. cant seem to find any datafiles - aborting CreateDiaryDataFileList\r\n"));

    gStrDataPath = Stored("nowhere\\");
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(June(1), June(1), files, false), 0);
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"There are no datafiles in the directory " + gStrDataPath});
}

TEST_F(MonthlyFileTest, ReadingAFileToAnArrayCanLeaveOutUsageEvents) {
    WriteLines("D200406.dat", {"", "   ", EventLine("D200406050001", "20040605", "0900", "One"),
                               orbidex::test::Fields({"D200406050002", "20040605", "PCFile", "1000", "5", "Usage", "",
                                                      "", "", "", "", "", "", "", "word.exe"}),
                               EventLine("D200406050003", "20040605", "1100", "Two")});
    std::vector<cDiaryRecord> records(7);
    EXPECT_EQ(glbEvents.ReadDiaryFileToArray(Data("D200406.dat"), records, true), 3);
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[1].details, "One");
    EXPECT_EQ(records[2].details, "Two");
    EXPECT_EQ(records[3].details, "");

    EXPECT_EQ(glbEvents.ReadDiaryFileToArray(Data("D200406.dat"), records, false), 4);
    ASSERT_EQ(records.size(), 5U);
    EXPECT_EQ(records[1].details, "") << "without leaving out, only the count is of use";
    EXPECT_EQ(glbEvents.ReadDiaryFileToArray(Data("missing.dat"), records, true), 1);
}

TEST_F(MonthlyFileTest, TheNetworkNameReplacesTheLetterBeforeTheMonth) {
    EXPECT_EQ(glbEvents.GetNetworkFileName(Data("D200406.dat")), Data("X200406.dat"));
}

TEST_F(MonthlyFileTest, TheOlderPathLookupTriesTheIniFilesThenAsks) {
    WriteBytes(Stored("data\\orbidex.ini"), "[Diary]\r\nDATAPATH=\\from\\settings\\\r\n");
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), "\\from\\settings\\");
    EXPECT_TRUE(Logged(", Diary INI file found in " + Stored("data\\") + "\r\n"));

    WriteBytes(Stored("Diary.ini"), "[diary]\r\ndataPath=\\beside\\program\\\r\n");
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), "\\beside\\program\\");
    EXPECT_TRUE(Logged(", Diary INI file found in current directory\r\n"));
    EXPECT_TRUE(Logged(", Diary Files are located in :\\beside\\program\\\r\n"));

    DeleteFile(Stored("Diary.ini"));
    DeleteFile(Stored("data\\orbidex.ini"));
    MakeFolder(Stored("other"));
    WriteBytes(Stored("other\\orbidex.ini"), "[diary]\r\ndataPath=\\installed\\data\\\r\n");
    platform_.QueueInputAnswer(Stored("other\\"));
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), "\\installed\\data\\");
    EXPECT_EQ(platform_.Transcript().back().title, "Path where Brindlewick Software's Diary is installed");

    platform_.QueueInputAnswer("");
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), platform_.ProgramFolder()) << "cancel means the program folder";
}
