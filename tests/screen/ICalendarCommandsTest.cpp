// The File menu's iCalendar export and import, and iCalendar files dropped on the
// grid, as the user reaches them: the dates typed, the file picked, the summary shown.
#include <gtest/gtest.h>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "controls/DataObject.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"

using namespace orbidex;

namespace {

const char* const kLunch =
    "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test//Hand written//EN\r\n"
    "BEGIN:VEVENT\r\nUID:l1\r\nDTSTAMP:20040601T120000Z\r\nDTSTART:20040608T123000\r\nDURATION:PT1H\r\n"
    "SUMMARY:Lunch with Anne\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";

}  // namespace

class ICalendarCommandsTest : public test::MainScreenFixture {
protected:
    std::pair<std::string, std::string> Last() const {
        return {platform_.Transcript().back().title, platform_.Transcript().back().text};
    }
};

TEST_F(ICalendarCommandsTest, ExportAsksForTheDaysAndTheFileAndAddsTheEnding) {
    StartProgram();
    WriteBytes(gStrDataPath + "D200406.dat",
               "\r\n" + test::EventLine("D200406010001", "20040601", "0900", "June") + "\r\n");
    WriteBytes(gStrDataPath + "D200407.dat", test::EventLine("D200407010001", "20040701", "0900", "July") + "\r\n");

    platform_.QueueInputAnswer("1 June to 30 June");
    Form().mnuFileExportICal.UserClick();
    EXPECT_EQ(Last(),
              std::make_pair(std::string("Export to iCalendar"),
                             std::string("\"1 June to 30 June\" is not two dates as yyyy-mm-dd to yyyy-mm-dd.")));

    platform_.QueueInputAnswer("2004-06-01 to 2004-06-30");
    platform_.QueuePickedFile("");
    Form().mnuFileExportICal.UserClick();
    EXPECT_FALSE(FileExists(Stored("june.ics")));

    platform_.QueueInputAnswer("2004-06-01 to 2004-06-30");
    platform_.QueuePickedFile(Stored("june"));
    Form().mnuFileExportICal.UserClick();
    EXPECT_EQ(Last(), std::make_pair(std::string("Export to iCalendar"),
                                     "Exported 1 events and 0 tasks to " + Stored("june.ics") + "."));
    EXPECT_NE(ReadBytes(Stored("june.ics")).find("SUMMARY:June\r\n"), std::string::npos);
    EXPECT_EQ(ReadBytes(Stored("june.ics")).find("SUMMARY:July"), std::string::npos);

    // An empty answer exports the whole diary.
    platform_.QueueInputAnswer("");
    platform_.QueuePickedFile(Stored("all.ics"));
    Form().mnuFileExportICal.UserClick();
    EXPECT_EQ(Last().second, "Exported 2 events and 0 tasks to " + Stored("all.ics") + ".");
}

TEST_F(ICalendarCommandsTest, TheMenuAndADropOnTheGridImportTheFileAndShowItsEvents) {
    StartProgram();
    const std::string file = Stored("lunch.ics");
    WriteBytes(file, kLunch);
    platform_.QueuePickedFile(file);
    Form().mnuFileImportICal.UserClick();
    EXPECT_EQ(Last(), std::make_pair(std::string("Import from iCalendar"),
                                     std::string("Imported from lunch.ics: 1 events and 0 tasks.")));
    EXPECT_NE(ReadBytes(gStrDataPath + "D200406.dat")
                  .find("\x1F"
                        "1230\x1F"
                        "60\x1F"),
              std::string::npos);
    EXPECT_TRUE(Form().timerSecond.Enabled) << "the timer runs again after the import";

    // The same file dropped on the grid, beside a file of another kind: nothing twice.
    DataObject data;
    data.Files = {Stored("notes.txt"), file};
    Form().gridDays.UserOLEDragDrop(data);
    EXPECT_EQ(Last().second,
              "Imported from lunch.ics: 0 events and 0 tasks.\r\n\r\nNot added (1):\r\n"
              "20040608 Lunch with Anne - already in the diary");

    // Files that are no calendars fall to the drop's other uses, which add nothing here.
    platform_.ClearTranscript();
    data.Files = {Stored("notes.txt")};
    Form().gridDays.UserOLEDragDrop(data);
    EXPECT_TRUE(platform_.Transcript().empty());
}
