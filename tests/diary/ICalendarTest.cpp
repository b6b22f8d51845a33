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
    return test::ReadGolden(ORBIDEX_DIARY_GOLDEN_DIR "/icalendar", name);
}

// The lines that are not blank, each without its identifier (the first field).
std::vector<std::string> WithoutIds(const std::vector<std::string>& lines) {
    std::vector<std::string> result;
    for (const std::string& line : lines)
        if (!Trim(line).empty()) result.push_back(line.substr(std::min(line.size(), line.find('\x1F'))));
    return result;
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

// Each calendar of golden/icalendar/import/ imported into an empty diary: the
// months it fills, each compared whole with "<calendar>-<month file>".
TEST_F(ICalendarTest, ImportOfTheFilesOtherProgramsWrite) {
    const struct {
        const char* name;
        const char* repeatRange;  // the answer to the question, or nullptr for no question
        std::vector<std::string> months;
        std::string summary;
    } cases[] = {
        {"allday", nullptr, {"D200406.dat", "D200407.dat"}, "Imported from allday.ics: 4 events and 0 tasks."},
        {"weekly", "2004-06-01 to 2004-06-30", {"D200406.dat"}, "Imported from weekly.ics: 4 events and 0 tasks."},
        {"zones", nullptr, {"D200401.dat", "D200406.dat"}, "Imported from zones.ics: 3 events and 0 tasks."},
        {"broken",
         nullptr,
         {"D200406.dat"},
         "Imported from broken.ics: 1 events and 0 tasks.\r\n\r\n"
         "Skipped (3):\r\nNo date - it has no start date\r\nVJOURNAL - not an event or a to-do\r\n"
         "20040617 Called off - it is cancelled\r\n\r\n"
         "Lines that could not be read (1):\r\n"
         "Got a data line, but could not find a property name or component begin tag: THIS LINE IS BROKEN"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        for (const std::string& month : ListFolder(Data("D2*.dat"), false)) DeleteFile(Data(month));
        platform_.ClearTranscript();
        if (c.repeatRange != nullptr) platform_.QueueInputAnswer(c.repeatRange);
        Import(std::string(c.name) + ".ics", Golden(std::string("import/") + c.name + ".ics"));
        std::vector<std::string> months = ListFolder(Data("D2*.dat"), false);
        std::sort(months.begin(), months.end());
        EXPECT_EQ(months, c.months);
        for (const std::string& month : c.months)
            EXPECT_EQ(ReadBytes(Data(month)), Golden(std::string("import/") + c.name + "-" + month)) << month;
        EXPECT_EQ(LastMessage(), c.summary);
        EXPECT_EQ(platform_.Transcript().size(), c.repeatRange != nullptr ? 2U : 1U);
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
    const std::string weekly = Golden("import/weekly.ics");
    platform_.QueueInputAnswer("2004-06-01 to 2004-06-30");
    Import("weekly.ics", weekly);
    const std::vector<std::string> first = Lines("D200406.dat");
    platform_.QueueInputAnswer("2004-06-01 to 2004-06-30");
    Import("weekly.ics", weekly);
    EXPECT_EQ(Lines("D200406.dat"), first);
    EXPECT_EQ(LastMessage(),
              "Imported from weekly.ics: 0 events and 0 tasks.\r\n\r\nNot added (4):\r\n"
              "20040601 Team meeting - already in the diary\r\n20040608 Team meeting - already in the diary\r\n"
              "20040629 Team meeting - already in the diary\r\n"
              "20040623 Team meeting (moved) - already in the diary");
}

TEST_F(ICalendarTest, NothingIsWrittenWhenTheQuestionIsCancelledOrTheFileIsNoCalendar) {
    const std::string weekly = Golden("import/weekly.ics");
    const struct {
        const char* name;
        std::string text;
        const char* answer;
        std::string message;
    } cases[] = {
        {"weekly.ics", weekly, "", ""},
        {"weekly.ics", weekly, "next week",
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
