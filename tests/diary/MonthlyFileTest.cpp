// Naming, creating, loading and listing the monthly files.
#include <filesystem>
#include <tuple>

#include "DiaryFixture.h"
#include "EventLines.h"
#include "TempFolder.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using orbidex::test::EventLine;

class MonthlyFileTest : public orbidex::test::DiaryFixture {};

TEST_F(MonthlyFileTest, AMonthWithoutAFileGetsOneHoldingALineEndThatLoadsAsOneBlankRecord) {
    const std::string name = glbEvents.GetDiaryFileNameForDate(DateSerial(2004, 7, 20));
    EXPECT_EQ(name, Data("D200407.dat"));
    EXPECT_EQ(ReadBytes(name), "\r\n");
    glbEvents.LoadDiaryData(DateSerial(2004, 7, 20));
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_FALSE(glbEvents.IsEmptySlot(0));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(ReadBytes(name), "") << "blank lines are not written";
    EXPECT_EQ(glbEvents.GetDiaryFileNameForDate(DateSerial(2004, 7, 1)), name);
    EXPECT_EQ(ReadBytes(name), "") << "an existing file is left alone";
}

TEST_F(MonthlyFileTest, LoadingTakesEveryLineInFileOrderAndLeavesTheTopSlotEmpty) {
    gLogLevel = 3;
    WriteBytes(Data("D200406.dat"), EventLine("D200406050002", "20040605", "1400", "Later") + "\r\n\r\n" +
                                        EventLine("D200406050001", "20040605", "0900", "Earlier") + "\n" +
                                        EventLine("D200406050003", "20040606", "1000", "No line end"));
    glbEvents.LoadDiaryData(June(10));
    EXPECT_EQ(gIntTotalEvents, 4);
    EXPECT_EQ(glbEvents.totEvents(), 4);
    EXPECT_EQ(std::tie(glbEvents.events(0).details, glbEvents.events(1).details, glbEvents.events(2).details,
                       glbEvents.events(3).details),
              std::make_tuple("Later", "", "Earlier", "No line end"));
    EXPECT_TRUE(glbEvents.IsEmptySlot(4));
    EXPECT_EQ(gStrFirstDatafile, Data("D200406.dat"));
    EXPECT_EQ(gLngWhichMonthIsLoaded, June(10));
    EXPECT_TRUE(Logged(", LoadDiaryData loaded 4 records from " + Data("D200406.dat") + "\r\n"));
}

TEST_F(MonthlyFileTest, AFileChangedOnDiskOrSavedIsReloadedForTheCalendarsDate) {
    WriteLines("D200406.dat", {"", EventLine("D200406050001", "20040605", "0900", "First")});
    WriteLines("D200407.dat", {EventLine("D200407010001", "20040701", "0900", "July")});
    glbEvents.LoadDiaryData(June(5));
    MainForm().MonthView1.Value = DateSerial(2004, 7, 1);
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat")) << "an unchanged file is not reloaded";

    AppendToFile(Data("D200406.dat"), EventLine("D200406050002", "20040605", "1000", "Second") + "\r\n");
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_TRUE(Logged(", Auto reloading datafile ... disk version changed\r\n"));
    EXPECT_EQ(glbEvents.events(0).details, "July");

    // A save leaves the stamp behind, so that the next check drops the blank line.
    MainForm().MonthView1.Value = June(5);
    glbEvents.LoadDiaryData(June(5));
    EXPECT_EQ(gIntTotalEvents, 3);
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_EQ(gIntTotalEvents, 2);
}

TEST_F(MonthlyFileTest, WhatIsLoadedIsKnownUntilTheFileOrTheDataFolderChanges) {
    WriteLines("D200406.dat", {EventLine("D200406050001", "20040605", "0900", "First")});
    EXPECT_FALSE(glbEvents.HasLoaded(June(5))) << "nothing loaded yet";
    glbEvents.LoadDiaryData(June(5));
    EXPECT_TRUE(glbEvents.HasLoaded(June(5)));
    EXPECT_FALSE(glbEvents.HasLoaded(June(6))) << "another day of the month is another load";

    AppendToFile(Data("D200406.dat"), EventLine("D200406050002", "20040605", "1000", "Second") + "\r\n");
    EXPECT_FALSE(glbEvents.HasLoaded(June(5)));
    glbEvents.LoadDiaryData(June(5));
    EXPECT_TRUE(glbEvents.HasLoaded(June(5)));

    gStrDataPath = DataPath() + "elsewhere\\";
    EXPECT_FALSE(glbEvents.HasLoaded(June(5))) << "the month's file is now another one";
}

TEST_F(MonthlyFileTest, ViewsOfSevenAndFourteenDaysLoadTheNeighbouringMonthWhenTheyCrossItsEnd) {
    WriteLines("D200405.dat", {EventLine("D200405010001", "20040501", "0900", "May")});
    WriteLines("D200406.dat", {EventLine("D200406010001", "20040601", "0900", "June")});
    // days shown, date, the second month's file ("" for none)
    const std::vector<std::tuple<int, VbDate, std::string>> cases = {
        {7, June(3), "D200405.dat"},
        {7, June(28), "D200407.dat"},
        {7, June(15), ""},
        {14, June(15), ""},
        {14, DateSerial(2004, 4, 17), "D200405.dat"},
        {1, June(1), ""},
    };
    for (const auto& [days, date, second] : cases) {
        glbNumDaysToDisplay = static_cast<int16_t>(days);
        gStrSecondDatafile.clear();
        glbEvents.LoadDiaryData(date);
        EXPECT_EQ(gStrSecondDatafile, second.empty() ? "" : Data(second)) << days << " days on " << Day(date);
        EXPECT_EQ(gBoolExtraDiaryDataLoaded, !second.empty());
    }
    glbNumDaysToDisplay = 7;
    glbEvents.LoadDiaryData(June(3));
    EXPECT_EQ(gIntTotalEvents, 2);
    EXPECT_EQ(std::tie(glbEvents.events(0).details, glbEvents.events(1).details), std::make_tuple("June", "May"));
    EXPECT_TRUE(glbEvents.IsEmptySlot(2));
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat")) << "the first month stays the file in hand";

    glbEvents.LoadExtraDiaryData(DateSerial(2004, 7, 1));
    EXPECT_EQ(gIntTotalEvents, 2);
    EXPECT_TRUE(
        Logged(", WARNING - LoadExtraDiaryData function called for 2004-07-01 but exited function without "
               "loading data because the flag 'gBoolExtraDiaryDataLoaded' was set to TRUE'\r\n"));
}

TEST_F(MonthlyFileTest, InitDiaryCompletesThePathAndMakesThisMonthsFile) {
    gStrDataPath = Stored("data");
    glbEvents.InitDiary(&MainForm(), "");
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_EQ(gStrDataPath, Stored("data\\"));
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), "\r\n");
    EXPECT_EQ(std::tie(gStrDiaryDataFile, gStrTasksFile, gStrContactsFile, gStrNotesFile),
              std::make_tuple(Data("D200406.dat"), Data("D_tasks.dat"), Data("D_contacts.dat"), Data("D_notes.dat")));
}

TEST_F(MonthlyFileTest, AnUnusableDataPathAsksForAFolderForTheNextStartOnly) {
    gStrDataPath = Stored("missing\\");
    platform_.QueueInputAnswer(Stored("also-missing"));
    glbEvents.ValidateDataPath(gStrDataPath);
    ASSERT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Brindlewick Software's Diary - Path for Datafiles");
    EXPECT_EQ(platform_.Transcript()[1].title, "Path not valid - run Config");
    EXPECT_EQ(platform_.Transcript()[1].text,
              "The path you chose does not exist , or is invalid. \r\nPlease run the config screen again.");
    EXPECT_FALSE(FileExists(gStrIniFile));

    // An empty path: OK on the proposal stores the program folder, and this run uses
    // the program folder joined to "data" without a separator.
    gStrDataPath.clear();
    platform_.QueueInputAnswer("");
    glbEvents.InitDiary(nullptr, Data("my.ini"));
    const std::string program = platform_.ProgramFolder();
    EXPECT_EQ(glbConfig.old_ReadINI("diary", "dataPath", Data("my.ini")), program + "\\");
    EXPECT_EQ(gStrDataPath, program + "data\\");
    EXPECT_EQ(gStrDiaryDataFile, program + "data\\D200406.dat");
}

TEST_F(MonthlyFileTest, AnEmptyOrRelativeDataPathCountsFromTheProgramFolderNeverTheWorkingFolder) {
    const orbidex::test::TempFolder working;
    const auto startedIn = std::filesystem::current_path();
    std::filesystem::current_path(working.Native());
    for (const std::string& path : {std::string(), std::string("data\\")}) {
        gStrDataPath = path;
        glbEvents.LoadDiaryData(June(5));
        glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
        EXPECT_TRUE(FileExists(Stored(path + "D200406.dat"))) << "'" << path << "'";
        EXPECT_TRUE(FileExists(Stored(path + "D200406.dat_NET"))) << "'" << path << "': saved and handed over";
    }
    EXPECT_TRUE(std::filesystem::is_empty(working.Native()));
    std::filesystem::current_path(startedIn);
}

TEST_F(MonthlyFileTest, ForeignBytesLoadAndSaveWithoutHarm) {
    const std::string real = EventLine("D200406050001", "20040605", "0900", "Real");
    const std::string bytes = std::string("\xFF\xFE\x00\x01garbage\rline\x1F\x1F\x1F\n", 20) +
                              std::string(5000, '\x1F') + "\r\n" + std::string(3000, 'x') + "\r\r\n" + real + "\r\n";
    WriteBytes(Data("D200406.dat"), bytes);
    glbEvents.LoadDiaryData(June(5));
    EXPECT_EQ(gIntTotalEvents, 6);
    platform_.QueueMsgBoxAnswer(vbOK);  // six events in 8 kB: the size guard asks
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    const std::string saved = ReadBytes(Data("D200406.dat"));
    EXPECT_NE(saved.find(real + "\r\n"), std::string::npos);
    glbEvents.LoadDiaryData(June(5));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), saved) << "a second round changes nothing";
}

TEST_F(MonthlyFileTest, AFolderWhereTheMonthsFileShouldBeLoadsNoEventsAndIsNeverWritten) {
    ASSERT_TRUE(MakeFolder(Data("D200406.dat")));
    glbEvents.LoadDiaryData(June(5));
    EXPECT_EQ(gIntTotalEvents, 0);
    EXPECT_TRUE(Logged("LoadDiaryData could not read " + Data("D200406.dat")));

    glbEvents.CreateRecordAt(0).GetDiaryRecordFromText(EventLine("D200406050001", "20040605", "0900", "Kept"));
    glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
    EXPECT_TRUE(FolderExists(Data("D200406.dat")));
    EXPECT_FALSE(FileExists(Data("D200406.dat_NET"))) << "a failed write hands nothing over";
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error in SaveDiaryArray Error=75 = Path/File access error"});
    EXPECT_TRUE(Logged("SaveDiaryArray could not write " + Data("D200406.dat") + " - it keeps its previous content"));

    cDiaryRecord event = glbEvents.events(0);
    glbEvents.AddDiaryRecord(event);
    EXPECT_TRUE(Logged("AddDiaryRecord - could not append to " + Data("D200406.dat")));
}

TEST_F(MonthlyFileTest, TheListOfAllFilesLeavesOutTheTaskFileAndIsInNameOrder) {
    std::vector<std::string> files;
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(0, 0, files, true), 0);
    EXPECT_TRUE(Logged(", hmmm.. cant seem to find any datafiles - aborting CreateDiaryDataFileList\r\n"));

    for (const char* name : {"D200406.DAT", "d200312.dat", "D200401.dat", "D_tasks.dat", "D_notes.dat", "notes.txt"})
        WriteBytes(Data(name), "\r\n");
    MakeFolder(Data("D200407.dat"));
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(0, 0, files, true), 4);
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
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(DateSerial(2004, 8, 1), DateSerial(2004, 5, 1), files, false), 1)
        << "an end before the start gives the first month alone";

    gStrDataPath = Stored("nowhere\\");
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(June(1), June(1), files, false), 0);
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"There are no datafiles in the directory " + gStrDataPath});
}

TEST_F(MonthlyFileTest, ReadingAFileToAnArrayCanLeaveOutUsageEvents) {
    WriteLines("D200406.dat", {"", "   ", EventLine("D200406050001", "20040605", "0900", "One"),
                               orbidex::test::Fields({"D200406050002", "20040605", "PCFile", "1000", "5", "Usage", "",
                                                      "", "", "", "", "", "", "", "word.exe"}),
                               EventLine("D200406050003", "20040605", "1100", "Two")});
    std::vector<cDiaryRecord> records(7);
    EXPECT_EQ(glbEvents.ReadDiaryFileToArray(Data("D200406.dat"), records, false), 4) << "three events + 1";
    EXPECT_EQ(glbEvents.ReadDiaryFileToArray(Data("D200406.dat"), records, true), 3);
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(std::tie(records[1].details, records[2].details, records[3].details), std::make_tuple("One", "Two", ""));
}

TEST_F(MonthlyFileTest, TheOlderPathLookupTriesTheIniFilesThenAsks) {
    WriteBytes(Stored("data\\orbidex.ini"), "[Diary]\r\nDATAPATH=\\from\\settings\\\r\n");
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), "\\from\\settings\\");
    WriteBytes(Stored("Diary.ini"), "[diary]\r\ndataPath=\\beside\\program\\\r\n");
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), "\\beside\\program\\");
    EXPECT_TRUE(Logged(", Diary Files are located in :\\beside\\program\\\r\n"));

    DeleteFile(Stored("Diary.ini"));
    DeleteFile(Stored("data\\orbidex.ini"));
    platform_.QueueInputAnswer("");
    EXPECT_EQ(glbEvents.GetDiaryDataPath(), platform_.ProgramFolder()) << "cancel means the program folder";
    EXPECT_EQ(platform_.Transcript().back().title, "Path where Brindlewick Software's Diary is installed");
}

TEST_F(MonthlyFileTest, AReloadKeepsTheSelectedEventFoundByItsIdentifierInItsOwnMonth) {
    // Two months of a week share an identifier, as each file numbers its own events.
    const std::string juneCall = EventLine("D200406050001", "20040630", "0900", "June call");
    const std::string julyCall = EventLine("D200406050001", "20040701", "0900", "July call");
    const std::string julyWalk = EventLine("D200406050002", "20040702", "1000", "July walk");
    MainForm().MonthView1.Value = DateSerial(2004, 7, 1);
    glbNumDaysToDisplay = 7;
    // selected index before the reload, the details selected after it ("" for none);
    // loaded are July's walk and call, then June's blank line and call
    const std::vector<std::pair<int16_t, std::string>> cases = {{1, "July call"}, {3, "June call"}, {0, "July walk"},
                                                                {2, ""},          {4, ""},          {-1, ""}};
    for (const auto& [before, after] : cases) {
        WriteLines("D200406.dat", {"", juneCall});
        WriteLines("D200407.dat", {julyWalk, julyCall});
        glbEvents.LoadDiaryData(DateSerial(2004, 7, 1));
        gintcur = before;
        glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);  // each file anew, starting with a blank line
        glbEvents.CheckDataFileAndReloadIfNeccesary();
        EXPECT_EQ(gintcur < 0 ? "" : glbEvents.events(gintcur).details, after) << before;
        EXPECT_EQ(gintcur < 0, after.empty()) << before;
    }
}

TEST_F(MonthlyFileTest, NoMonthlyFileIsMadeForADateOutsideTheDiarysYears) {
    for (const VbDate date : {DateSerial(100, 1, 1), DateSerial(1899, 12, 31), DateSerial(99, 12, 5)}) {
        const std::string name = glbEvents.GetDiaryFileNameForDate(date);
        EXPECT_FALSE(FileExists(name)) << name;
        glbEvents.LoadDiaryData(date);
        EXPECT_EQ(gIntTotalEvents, 0);
    }
    // An event dated before the diary's years is not appended anywhere.
    for (const char* date : {"18991231", "1000101", "00991205"}) {
        cDiaryRecord record;
        record.GetDiaryRecordFromText(EventLine("", date, "0900", "Too early"));
        glbEvents.AddDiaryRecord(record);
        EXPECT_TRUE(Logged(", AddDiaryRecord - could not append to " + gStrDiaryDataFile)) << date;
    }
    EXPECT_EQ(ListFolder(Data("*.*"), false), std::vector<std::string>{"OX_LOG.log"});
    EXPECT_TRUE(FileExists(glbEvents.GetDiaryFileNameForDate(DateSerial(1900, 1, 1))));
    EXPECT_TRUE(FileExists(glbEvents.GetDiaryFileNameForDate(DateSerial(9999, 12, 31))));
}
