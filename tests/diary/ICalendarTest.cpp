// Exporting the diary and its tasks as an iCalendar file and importing the files
// other calendar programs write, read back from the monthly files and the task file.
#include <algorithm>
#include <map>

#include "DiaryFixture.h"
#include "EventLines.h"
#include "diary/ICalendarReader.h"
#include "diary/ICalendarWriter.h"
#include "diary/cDiaryFileUtils.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

std::string Golden(const std::string& name) {
    std::string bytes;
    EXPECT_TRUE(ReadWholeFile(ToStoredPath(std::string(ORBIDEX_DIARY_GOLDEN_DIR) + "/icalendar/" + name), bytes))
        << name;
    return bytes;
}

// The lines that are not blank, each without its identifier (the first field).
std::vector<std::string> WithoutIds(const std::vector<std::string>& lines) {
    std::vector<std::string> result;
    for (const std::string& line : lines)
        if (!Trim(line).empty()) result.push_back(line.substr(std::min(line.size(), line.find('\x1F'))));
    return result;
}

// An event as an import writes it: the fields the file gave, the rest empty.
std::string Event(const std::string& id, const std::string& date, const std::string& time, const std::string& length,
                  const std::string& details, const std::string& location = "", const std::string& remindDate = "",
                  const std::string& remindTime = "") {
    return Fields({id, date, "", time, length, "", "", "", "", remindDate, remindTime, "", "", location, details});
}

std::string Calendar(const std::string& body) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test//Hand written//EN\r\n" + body + "END:VCALENDAR\r\n";
}

}  // namespace

class ICalendarTest : public orbidex::test::DiaryFixture {
protected:
    void SetUp() override {
        DiaryFixture::SetUp();
        MainForm().MonthView1.Value = June(5);
        gStrTasksFile = Data("D_tasks.dat");
        glbTasks.init(gStrTasksFile);
    }
    /// Writes the calendar outside the data folder and imports it.
    void Import(const std::string& name, const std::string& text) {
        MakeFolder(Stored("import"));
        const std::string file = Stored("import\\" + name);
        WriteBytes(file, text);
        glbFileUtils.ImportICalendar(file);
    }
    std::string LastMessage() const {
        const auto& transcript = platform_.Transcript();
        return transcript.empty() ? "" : transcript.back().text;
    }
};

TEST_F(ICalendarTest, ExportWritesEventsAndTasksWithTheirAlarms) {
    WriteLines("D200406.dat",
               {"",
                Fields({"D200406050001", "20040607", "Phone", "0930", "45", "Call", "fred", "C:\\work\\bank.doc", "",
                        "20040607", "0915", "Normal", "", "Office; room 2", "Ring the bank, then Anne"}),
                Fields({"D200406050002", "20040608", "", "1400", "60", "", "", "", "", "", "", "", "Private", "",
                        "Doctor \xE9t\xE9"})});
    WriteLines("D_tasks.dat", {Fields({"T200406050001", "20040610", "Work", "1700", "30", "Edit", "mary", "", "",
                                       "20040610", "1630", "1 - urgent", "Not Started", "", "Send the report"}),
                               Fields({"T200406050002", "20040611", "", "0900", "60", "", "", "", "", "", "", "",
                                       "Completed", "", "File the receipts"})});
    glbTasks.LoadFromFile();
    const std::string file = Stored("diary.ics");
    ASSERT_TRUE(glbFileUtils.ExportToICalendar(file, 0, 0));

    const std::string text = ReadBytes(file);
    EXPECT_EQ(text, Golden("export.ics"));
    EXPECT_EQ(ICalendarProblems(text), std::vector<std::string>{});
    EXPECT_EQ(LastMessage(), "Exported 2 events and 2 tasks to " + file + ".");
}

TEST_F(ICalendarTest, ExportOfARangeKeepsOnlyItsDays) {
    WriteLines("D200405.dat", {test::EventLine("D200405010001", "20040531", "0900", "May")});
    WriteLines("D200406.dat", {test::EventLine("D200406010001", "20040601", "0900", "June first"),
                               test::EventLine("D200406010002", "20040630", "0900", "June last")});
    WriteLines("D200407.dat", {test::EventLine("D200407010001", "20040701", "0900", "July")});
    WriteLines("D_tasks.dat",
               {Fields({"T200406050001", "20040531", "", "1700", "30", "", "", "", "", "", "", "", "", "", "Before"}),
                Fields({"T200406050002", "20040615", "", "1700", "30", "", "", "", "", "", "", "", "", "", "Within"})});
    glbTasks.LoadFromFile();
    const std::string file = Stored("june.ics");
    ASSERT_TRUE(glbFileUtils.ExportToICalendar(file, June(1), June(30)));

    const ICalendarContents read = ReadICalendar(ReadBytes(file), June(1), June(30));
    std::vector<std::string> details;
    for (const cDiaryRecord& event : read.events) details.push_back(event.details);
    for (const cTask& task : read.tasks) details.push_back(task.details);
    EXPECT_EQ(details, (std::vector<std::string>{"June first", "June last", "Within"}));
}

TEST_F(ICalendarTest, TheLibraryFindsTheFaultsOfABrokenCalendar) {
    // Without this, a clean validation of the export would prove nothing.
    EXPECT_EQ(ICalendarProblems(Calendar("BEGIN:VEVENT\r\nUID:x\r\nDTSTAMP:20040601T120000Z\r\nDTSTART:2004xx\r\n"
                                         "SUMMARY:Broken\r\nTHIS LINE IS BROKEN\r\nEND:VEVENT\r\n")),
              (std::vector<std::string>{
                  "Can't parse as DATE-TIME value in DTSTART property. Removing entire property: 2004xx",
                  "Got a data line, but could not find a property name or component begin tag: THIS LINE IS BROKEN"}));
    EXPECT_EQ(ICalendarProblems("not a calendar"), std::vector<std::string>{"not one calendar"});
}

namespace {

const char* const kStamp = "DTSTAMP:20040601T120000Z\r\n";

const std::string kNewYork =
    "BEGIN:VTIMEZONE\r\nTZID:America/New_York\r\n"
    "BEGIN:DAYLIGHT\r\nTZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\nTZNAME:EDT\r\nDTSTART:19700308T020000\r\n"
    "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=2SU\r\nEND:DAYLIGHT\r\n"
    "BEGIN:STANDARD\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\nTZNAME:EST\r\nDTSTART:19701101T020000\r\n"
    "RRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=1SU\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";

std::string VEvent(const std::string& uid, const std::string& lines) {
    return "BEGIN:VEVENT\r\nUID:" + uid + "\r\n" + kStamp + lines + "END:VEVENT\r\n";
}

const std::string kWeekly =
    Calendar(VEvent("w1",
                    "DTSTART:20040601T100000\r\nDTEND:20040601T110000\r\nRRULE:FREQ=WEEKLY;COUNT=6\r\n"
                    "EXDATE:20040615T100000\r\nSUMMARY:Team meeting\r\n") +
             VEvent("w1",
                    "RECURRENCE-ID:20040622T100000\r\nDTSTART:20040623T140000\r\nDTEND:20040623T150000\r\n"
                    "SUMMARY:Team meeting (moved)\r\n"));

}  // namespace

TEST_F(ICalendarTest, ImportOfTheFilesOtherProgramsWrite) {
    const struct {
        const char* name;
        std::string text;
        const char* repeatRange;  // the answer to the question, or nullptr for no question
        std::vector<std::pair<std::string, std::vector<std::string>>> files;
        std::string summary;
    } cases[] = {
        {"allday.ics",
         Calendar(VEvent("a1", "DTSTART;VALUE=DATE:20040614\r\nDTEND;VALUE=DATE:20040615\r\nSUMMARY:Bank holiday\r\n") +
                  VEvent("a2",
                         "DTSTART;VALUE=DATE:20040629\r\nDTEND;VALUE=DATE:20040702\r\nSUMMARY:Conference\r\n"
                         "LOCATION:Leeds\\, Town Hall\r\n")),
         nullptr,
         {{"D200406.dat",
           {"", Event("D200406140001", "20040614", "0000", "1", "Bank holiday"),
            Event("D200406290001", "20040629", "0000", "1", "Conference", "Leeds, Town Hall"),
            Event("D200406300001", "20040630", "0000", "1", "Conference", "Leeds, Town Hall")}},
          {"D200407.dat", {"", Event("D200407010001", "20040701", "0000", "1", "Conference", "Leeds, Town Hall")}}},
         "Imported from allday.ics: 4 events and 0 tasks."},
        {"weekly.ics",
         kWeekly,
         "2004-06-01 to 2004-06-30",
         {{"D200406.dat",
           {"", Event("D200406010001", "20040601", "1000", "60", "Team meeting"),
            Event("D200406080001", "20040608", "1000", "60", "Team meeting"),
            Event("D200406290001", "20040629", "1000", "60", "Team meeting"),
            Event("D200406230001", "20040623", "1400", "60", "Team meeting (moved)")}}},
         "Imported from weekly.ics: 4 events and 0 tasks."},
        {"zones.ics",
         Calendar(kNewYork +
                  VEvent("t1",
                         "DTSTART;TZID=America/New_York:20040610T090000\r\n"
                         "DTEND;TZID=America/New_York:20040610T103000\r\nSUMMARY:Call with New York\r\n") +
                  VEvent("t2",
                         "DTSTART;TZID=America/New_York:20040115T090000\r\nDURATION:PT30M\r\n"
                         "SUMMARY:Winter call\r\n") +
                  VEvent("t3",
                         "DTSTART:20040611T230000Z\r\nDURATION:PT2H\r\nSUMMARY:Late flight\r\n"
                         "BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT30M\r\nDESCRIPTION:Flight\r\n"
                         "END:VALARM\r\n")),
         nullptr,
         {{"D200406.dat",
           {"", Event("D200406100001", "20040610", "1400", "90", "Call with New York"),
            Event("D200406120001", "20040612", "0000", "120", "Late flight", "", "20040611", "2330")}},
          {"D200401.dat", {"", Event("D200401150001", "20040115", "1400", "30", "Winter call")}}},
         "Imported from zones.ics: 3 events and 0 tasks."},
        {"broken.ics",
         Calendar(VEvent("b1", "DTSTART:20040616T120000\r\nDURATION:PT1H\r\nSUMMARY:Lunch\r\nTHIS LINE IS BROKEN\r\n") +
                  VEvent("b2", "SUMMARY:No date\r\n") +
                  "BEGIN:VJOURNAL\r\nUID:j1\r\nDTSTAMP:20040601T120000Z\r\nSUMMARY:Diary entry\r\nEND:VJOURNAL\r\n" +
                  VEvent("b3", "DTSTART:20040617T120000\r\nSTATUS:CANCELLED\r\nSUMMARY:Called off\r\n")),
         nullptr,
         {{"D200406.dat", {"", Event("D200406160001", "20040616", "1200", "60", "Lunch")}}},
         "Imported from broken.ics: 1 events and 0 tasks.\r\n\r\n"
         "Skipped (3):\r\nNo date - it has no start date\r\nVJOURNAL - not an event or a to-do\r\n"
         "20040617 Called off - it is cancelled\r\n\r\n"
         "Lines that could not be read (1):\r\n"
         "Got a data line, but could not find a property name or component begin tag: THIS LINE IS BROKEN"},
    };
    for (const auto& c : cases) {
        for (const char* month : {"D200401.dat", "D200406.dat", "D200407.dat"}) DeleteFile(Data(month));
        platform_.ClearTranscript();
        if (c.repeatRange != nullptr) platform_.QueueInputAnswer(c.repeatRange);
        Import(c.name, c.text);
        for (const auto& [file, lines] : c.files) EXPECT_EQ(Lines(file), lines) << c.name << " " << file;
        EXPECT_EQ(LastMessage(), c.summary) << c.name;
        EXPECT_EQ(platform_.Transcript().size(), c.repeatRange != nullptr ? 2U : 1U) << c.name;
    }
}

TEST_F(ICalendarTest, ToDosBecomeTasksWithTheirDueTimePriorityStatusAndReminder) {
    Import("todo.ics",
           Calendar("BEGIN:VTODO\r\nUID:td1\r\nDTSTAMP:20040601T120000Z\r\nDUE:20040620T170000\r\n"
                    "SUMMARY:Pay the invoice\r\nPRIORITY:1\r\nSTATUS:NEEDS-ACTION\r\n"
                    "BEGIN:VALARM\r\nTRIGGER;RELATED=END:-PT1H\r\nACTION:DISPLAY\r\nDESCRIPTION:Pay\r\nEND:VALARM\r\n"
                    "END:VTODO\r\n"
                    "BEGIN:VTODO\r\nUID:td2\r\nDTSTAMP:20040601T120000Z\r\nDUE;VALUE=DATE:20040621\r\n"
                    "SUMMARY:Old to-do\r\nPRIORITY:7\r\nSTATUS:COMPLETED\r\nEND:VTODO\r\n"));
    EXPECT_EQ(Lines("D_tasks.dat"),
              (std::vector<std::string>{Fields({"N200406050001", "20040620", "", "1700", "60", "", "", "", "",
                                                "20040620", "1600", "1", "Not Started", "", "Pay the invoice"}),
                                        Fields({"N200406050002", "20040621", "", "0000", "60", "", "", "", "", "", "",
                                                "3", "Completed", "", "Old to-do"})}));
    EXPECT_EQ(LastMessage(), "Imported from todo.ics: 0 events and 2 tasks.");
}

TEST_F(ICalendarTest, ASecondImportOfTheSameFileAddsNothing) {
    platform_.QueueInputAnswer("2004-06-01 to 2004-06-30");
    Import("weekly.ics", kWeekly);
    const std::vector<std::string> first = Lines("D200406.dat");
    platform_.QueueInputAnswer("2004-06-01 to 2004-06-30");
    Import("weekly.ics", kWeekly);
    EXPECT_EQ(Lines("D200406.dat"), first);
    EXPECT_EQ(LastMessage(),
              "Imported from weekly.ics: 0 events and 0 tasks.\r\n\r\nNot added (4):\r\n"
              "20040601 Team meeting - already in the diary\r\n20040608 Team meeting - already in the diary\r\n"
              "20040629 Team meeting - already in the diary\r\n"
              "20040623 Team meeting (moved) - already in the diary");
}

TEST_F(ICalendarTest, NothingIsWrittenWhenTheQuestionIsCancelledOrTheFileIsNoCalendar) {
    const struct {
        const char* name;
        std::string text;
        const char* answer;
        std::string message;
    } cases[] = {
        {"weekly.ics", kWeekly, "", ""},
        {"weekly.ics", kWeekly, "next week",
         "\"next week\" is not two dates as yyyy-mm-dd to yyyy-mm-dd.\r\nNothing was imported."},
        {"notes.ics", "Just some notes\r\n", nullptr, "notes.ics holds no iCalendar data.\r\nNothing was imported."},
    };
    for (const auto& c : cases) {
        platform_.ClearTranscript();
        if (c.answer != nullptr) platform_.QueueInputAnswer(c.answer);
        Import(c.name, c.text);
        EXPECT_FALSE(FileExists(Data("D200406.dat")) && Lines("D200406.dat").size() > 1) << c.name;
        if (c.message.empty())
            EXPECT_EQ(platform_.Transcript().size(), 1U) << "only the question";
        else
            EXPECT_EQ(Replace(LastMessage(), Stored("import\\"), ""), c.message) << c.name;
    }
}

namespace {

// A year of made-up events, a few each day, using every field and the text an
// iCalendar file must escape; the lines of each month as its file holds them.
std::map<std::string, std::vector<std::string>> YearOfEvents() {
    const char* const details[] = {"Ring the bank", "Lunch; with Anne, Bob", "Caf\xE9 \x80 5 \"big\" deal",
                                   "Back\\slash  two  blanks", "Review"};
    const char* const locations[] = {"", "Office", "Room 2, floor 3", "Leeds; Town Hall"};
    std::map<std::string, std::vector<std::string>> months;
    for (int day = 0; day < 365; ++day) {
        const VbDate date = DateAdd("d", day, DateSerial(2005, 1, 1));
        const std::string yyyymmdd = FormatDate(date, "yyyymmdd");
        std::vector<std::string>& lines = months["D" + FormatDate(date, "yyyymm") + ".dat"];
        if (lines.empty()) lines.push_back("");
        for (int n = 0; n < day % 4; ++n) {
            const int k = day + n;
            const std::string time = FormatHHMM(8 + (k % 10), (k % 4) * 15);
            const bool reminder = k % 3 == 0;
            lines.push_back(
                Fields({"D" + yyyymmdd + FormatNumber(n + 1, "0000"), yyyymmdd, k % 2 == 0 ? "Phone" : "", time,
                        std::to_string(15 * (1 + k % 8)), k % 5 == 0 ? "Call" : "", k % 2 == 0 ? "fred" : "",
                        k % 6 == 0 ? "C:\\work\\plans, 2005.doc" : "", k % 7 == 0 ? "T200501010001" : "",
                        reminder ? yyyymmdd : "", reminder ? FormatHHMM(7, 45) : "", k % 2 == 0 ? "Normal" : "",
                        k % 5 == 1 ? "Private" : (k % 5 == 2 ? "Tentative" : ""), locations[k % 4], details[k % 5]}));
        }
    }
    return months;
}

std::vector<std::string> MonthOfTasks() {
    std::vector<std::string> lines;
    for (int i = 1; i <= 30; ++i) {
        const std::string date = FormatDate(DateSerial(2005, 1 + i % 12, i % 28 + 1), "yyyymmdd");
        lines.push_back(
            Fields({"T20050101" + FormatNumber(i, "0000"), date, i % 2 == 0 ? "Work" : "", FormatHHMM(9 + i % 8, 0),
                    std::to_string(30 * (1 + i % 3)), i % 3 == 0 ? "Phone" : "", i % 4 == 0 ? "mary" : "",
                    i % 5 == 0 ? "http://example.org/a?b=c;d" : "", "", i % 3 == 0 ? date : "",
                    i % 3 == 0 ? "0800" : "", i % 4 == 0 ? "1 - urgent" : (i % 4 == 1 ? "3" : ""),
                    i % 5 == 0 ? "Completed" : (i % 5 == 1 ? "In Progress" : ""), i % 6 == 0 ? "\x80 20" : "",
                    "Task number " + std::to_string(i) + ", with; marks"}));
    }
    return lines;
}

}  // namespace

TEST_F(ICalendarTest, AYearExportedAndImportedIntoAnEmptyDiaryGivesTheSameFilesButForIdentifiers) {
    const auto months = YearOfEvents();
    for (const auto& [file, lines] : months) WriteLines(file, lines);
    const std::vector<std::string> tasks = MonthOfTasks();
    WriteLines("D_tasks.dat", tasks);
    glbTasks.LoadFromFile();
    const std::string file = Stored("year.ics");
    ASSERT_TRUE(glbFileUtils.ExportToICalendar(file, 0, 0));
    EXPECT_EQ(ICalendarProblems(ReadBytes(file)), std::vector<std::string>{});

    for (const auto& [name, lines] : months) DeleteFile(Data(name));
    DeleteFile(Data("D_tasks.dat"));
    glbTasks.init(gStrTasksFile);
    glbFileUtils.ImportICalendar(file);

    long events = 0;
    for (const auto& [name, lines] : months) {
        EXPECT_EQ(WithoutIds(Lines(name)), WithoutIds(lines)) << name;
        events += static_cast<long>(lines.size()) - 1;
    }
    std::vector<std::string> expectedTasks = WithoutIds(tasks);
    std::vector<std::string> importedTasks = WithoutIds(Lines("D_tasks.dat"));
    std::sort(expectedTasks.begin(), expectedTasks.end());
    std::sort(importedTasks.begin(), importedTasks.end());
    EXPECT_EQ(importedTasks, expectedTasks);
    EXPECT_EQ(LastMessage(), "Imported from year.ics: " + std::to_string(events) + " events and 30 tasks.");
}
