// The event array, identifiers, and adding, finding and taking out events.
#include "DiaryFixture.h"
#include "EventLines.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"

using namespace orbidex;
using orbidex::test::EventLine;

class EventArrayTest : public orbidex::test::DiaryFixture {
protected:
    std::string UniqueIdIn(const std::string& name, VbDate date) {
        return glbEvents.getUniqueID(Data(name), date, kFieldDelimiter);
    }
};

TEST_F(EventArrayTest, ReadingAnEmptySlotGivesABlankRecordThatIsNotStored) {
    LoadJune({EventLine("D200406050001", "20040605", "0900", "One")});
    glbEvents.events(1).details = "written into nothing";
    EXPECT_EQ(glbEvents.events(1).details, "");
    EXPECT_TRUE(glbEvents.IsEmptySlot(1));
    EXPECT_EQ(glbEvents.events(99).ID, "") << "beyond the array";
    EXPECT_TRUE(platform_.Transcript().empty());

    EXPECT_EQ(glbEvents.events(-1).ID, "");
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Invalid event index passed to glbEvents:events"});
}

TEST_F(EventArrayTest, IdentifiersCountTheEventsOfOneDayInTheFile) {
    WriteLines("D200406.dat", {"", EventLine("D200406040007", "20040604", "0900", "Other day"),
                               EventLine("D200406060002", "20040606", "0900", "Other day")});
    EXPECT_EQ(UniqueIdIn("D200406.dat", June(5)), "D200406050001");

    AppendToFile(Data("D200406.dat"), EventLine("D200406050001", "20040605", "0900", "First") + "\r\n");
    EXPECT_EQ(UniqueIdIn("D200406.dat", June(5)), "D200406050002");

    AppendToFile(Data("D200406.dat"), EventLine("D200406050003", "20040605", "1000", "Third") + "\r\n");
    EXPECT_EQ(UniqueIdIn("D200406.dat", June(5)), "D200406050004") << "gaps are not reused";

    // The day counted is the one given, whatever month the file holds.
    EXPECT_EQ(UniqueIdIn("D200406.dat", DateSerial(2004, 6, 4)), "D200406040008");
    EXPECT_EQ(UniqueIdIn("D200407.dat", June(5)), "False") << "no such file";
}

TEST_F(EventArrayTest, ThePrefixComesFromTheFirstLineOrElseFromTheFileName) {
    WriteLines("Q200406.dat", {"", EventLine("Q200406050004", "20040605", "0900", "Q event")});
    EXPECT_EQ(UniqueIdIn("Q200406.dat", June(5)), "Q200406050005");

    WriteLines("Q200406.dat", {EventLine("D200406050004", "20040605", "0900", "D first"),
                               EventLine("Q200406050009", "20040605", "0900", "Q event")});
    EXPECT_EQ(UniqueIdIn("Q200406.dat", June(5)), "D200406050005");

    WriteLines("contacts.txt", {"ID,Name", "C200406050002,Jo"});
    EXPECT_EQ(UniqueIdIn("contacts.txt", June(5)), "C200406050003");
    WriteLines("ids.dat", {"ID,Name"});
    EXPECT_EQ(UniqueIdIn("ids.dat", June(5)), "D200406050001") << "a .dat file without a match starts with D";
}

TEST_F(EventArrayTest, TheNextIdentifierRestartsOnANewDayAndGrowsAFifthDigit) {
    gLogLevel = 3;
    EXPECT_EQ(glbEvents.createNextID(June(5), "D200406050041"), "D200406050042");
    EXPECT_TRUE(Logged(", createNextID = D200406050042\r\n"));
    EXPECT_EQ(glbEvents.createNextID(June(6), "D200406050041"), "D200406060001");
    EXPECT_EQ(glbEvents.createNextID(June(5), "D200406059999"), "D2004060510000");
    EXPECT_EQ(glbEvents.createNextID(June(5), ""), "");
    EXPECT_TRUE(Logged(", createNextID was passed null ID\r\n"));
}

TEST_F(EventArrayTest, GridCellIdentifiersConvertBothWays) {
    EXPECT_EQ(glbEvents.IdConvertToString(June(5), glbEvents.IdConvertToLong("D200406050003")), "D200406050003");
    EXPECT_EQ(glbEvents.IdConvertToString(June(5), 123456789), "D2004");
    EXPECT_EQ(glbEvents.IdConvertToLong("x"), 0);
}

TEST_F(EventArrayTest, AddingAppendsUnderANewIdentifierWithoutTouchingTheArray) {
    gLogLevel = 3;
    LoadJune({EventLine("D200406050001", "20040605", "0900", "Loaded")});
    cDiaryRecord event;
    event.GetDiaryRecordFromText(EventLine("X999", "20040605", "1400", "From Jo"));
    glbEvents.AddDiaryRecord(event);

    const std::string appended = EventLine("D200406050002", "20040605", "1400", "From Jo");
    EXPECT_EQ(event.ID, "D200406050002");
    EXPECT_EQ(ReadBytes(Data("D200406.dat")),
              EventLine("D200406050001", "20040605", "0900", "Loaded") + "\r\n" + appended + "\r\n");
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_EQ(glbEvents.totEvents(), 1);
    EXPECT_TRUE(Logged(", AddDiaryRecord (File Append) to " + Data("D200406.dat") + " - " + appended + "\r\n"));
    EXPECT_TRUE(Logged(", Server not alive - not SaveFileToMyNetworkDatapathForServer\r\n"));

    // The append refreshed the stamp: no reload.
    glbEvents.CheckDataFileAndReloadIfNeccesary();
    EXPECT_EQ(gIntTotalEvents, 1);

    cDiaryRecord again = event;
    glbEvents.AddDiaryRecord(again);
    EXPECT_TRUE(Logged(", AddDiaryRecord: Cant add From Jo  - already exists\r\n"));
    EXPECT_EQ(SplitLines(ReadBytes(Data("D200406.dat"))).size(), 2U);
}

TEST_F(EventArrayTest, AddingToAnotherMonthChecksTheFileInHandThenMovesToTheRecordsMonth) {
    LoadJune({EventLine("D200406050001", "20040605", "0900", "Dentist")});
    cDiaryRecord july;
    july.GetDiaryRecordFromText(EventLine("", "20040605", "0900", "Dentist"));
    july.DateEvent = "20040705";
    glbEvents.AddDiaryRecord(july, true, true);
    EXPECT_EQ(gStrDiaryDataFile, Data("D200407.dat"));
    ASSERT_TRUE(FileExists(Data("D200407.dat")));
    EXPECT_EQ(gLngWhichMonthIsLoaded, DateSerial(2004, 7, 5)) << "reloaded";
    EXPECT_EQ(glbEvents.events(1).ID, "D200407050001");

    // July's file is in hand now, so the same event of June is not seen in June's file.
    cDiaryRecord june;
    june.GetDiaryRecordFromText(EventLine("", "20040605", "0900", "Dentist"));
    glbEvents.AddDiaryRecord(june, false, true);
    EXPECT_EQ(june.ID, "D200406050002");
    EXPECT_EQ(SplitLines(ReadBytes(Data("D200406.dat"))).size(), 2U);
}

TEST_F(EventArrayTest, AnEventExistsWhenItsTextsStandAsFieldsAnywhereInALine) {
    WriteLines("D200406.dat", {"", orbidex::test::Fields({"D200406050001", "20040605", "Phone", "0930", "30", "Call",
                                                          "fred", "Dentist", "", "", "", "", "", "", "Check-up"})});
    gStrDiaryDataFile = Data("D200406.dat");
    EXPECT_TRUE(glbEvents.DoesDiaryRecordAlreadyExist("20040605", "0930", "Dentist")) << "found in the URL field";
    EXPECT_TRUE(glbEvents.DoesDiaryRecordAlreadyExist("20040605", "Phone", "Call"));
    EXPECT_FALSE(glbEvents.DoesDiaryRecordAlreadyExist("20040605", "0930", "Dent"));
    EXPECT_FALSE(glbEvents.DoesDiaryRecordAlreadyExist("20040606", "0930", "Check-up"));
    gStrDiaryDataFile.clear();
    EXPECT_FALSE(glbEvents.DoesDiaryRecordAlreadyExist("20040605", "0930", "Check-up"));
}

TEST_F(EventArrayTest, FindingByDetailsPrefersTheTimeThenTheLaterEvent) {
    LoadJune({EventLine("D200406050001", "20040605", "0900", "Standup"),
              EventLine("D200406050002", "20040605", "1700", " Standup "),
              EventLine("D200406060001", "20040606", "0900", "Standup")});
    EXPECT_EQ(glbEvents.SelectDiaryRecordIndex(June(5), "1200", "Standup"), 1);
    EXPECT_EQ(glbEvents.SelectDiaryRecordIndex(June(5), "0900", "Standup "), 0);
    EXPECT_EQ(glbEvents.SelectDiaryRecordIndex(June(7), "0900", "Standup"), -1);

    EXPECT_EQ(glbEvents.SelectDiaryRecordFromID("D200406060001"), 2);
    EXPECT_EQ(glbEvents.SelectDiaryRecordFromID("D200406060009"), -1);
    EXPECT_EQ(glbEvents.SelectDiaryRecordFromID(""), 3) << "the empty top slot reads as a blank record";
}

TEST_F(EventArrayTest, DeletingShiftsTheRestDownBlanksTheLastAndSaves) {
    const std::string a = EventLine("D200406050001", "20040605", "0900", "A");
    const std::string b = EventLine("D200406050002", "20040605", "1000", "B");
    const std::string c = EventLine("D200406050003", "20040605", "1100", "C");
    LoadJune({a, b, c});
    glbEvents.DeleteDiaryEventFromArray(1);
    EXPECT_EQ(gIntTotalEvents, 2);
    EXPECT_EQ(glbEvents.totEvents(), 2);
    EXPECT_EQ(glbEvents.events(1).details, "C");
    EXPECT_FALSE(glbEvents.IsEmptySlot(2));
    EXPECT_EQ(glbEvents.events(2).ID, "") << "the last record is blanked, not removed";
    EXPECT_TRUE(glbEvents.events(2).IsPrivate());
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), a + "\r\n" + c + "\r\n");

    glbEvents.DeleteDiaryEventFromArray(-1);
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Invalid event index passed to glbEvents:events"});
    EXPECT_EQ(gIntTotalEvents, 2);
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), a + "\r\n" + c + "\r\n");
}

TEST_F(EventArrayTest, TheSelectionStaysOnItsEventThroughADeleteAndIsNoneWhenThatIsTheOneDeleted) {
    const std::string a = EventLine("D200406050001", "20040605", "0900", "A");
    const std::string b = EventLine("D200406050002", "20040605", "1000", "B");
    const std::string c = EventLine("D200406050003", "20040605", "1100", "C");
    // selected before B is deleted, selected after
    const std::pair<int16_t, int16_t> cases[] = {{0, 0}, {1, -1}, {2, 1}, {-1, -1}};
    for (const auto& [before, after] : cases) {
        LoadJune({a, b, c});
        gintcur = before;
        glbEvents.DeleteDiaryEventFromArray(1);
        EXPECT_EQ(gintcur, after) << before;
    }
}
