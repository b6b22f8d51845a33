// Importing a comma-separated file or a file of event lines into the monthly files,
// and exporting the diary as HTML pages, read back from the files they write.
#include <chrono>
#include <filesystem>

#include "DiaryFixture.h"
#include "EventLines.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using orbidex::test::EventLine;
using orbidex::test::Fields;

namespace {

const std::string kStandup = EventLine("D200406050001", "20040605", "0900", "Standup");

// An imported event as its month keeps it: timed "0000", one minute long.
std::string Imported(const std::string& id, const std::string& date, const std::string& url,
                     const std::string& details) {
    return Fields({id, date, "", "0000", "1", "", "", url, "", "", "", "", "", "", details});
}

// UTF-16 in little-endian order, behind its byte-order mark.
std::string Utf16WithMark(const std::u16string& text) {
    std::string bytes = "\xFF\xFE";
    for (char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string Golden(const std::string& name) {
    return test::ReadGolden(ORBIDEX_DIARY_GOLDEN_DIR, name);
}

}  // namespace

class ImportExportTest : public orbidex::test::DiaryFixture {
protected:
    void SetUp() override {
        DiaryFixture::SetUp();
        MainForm().MonthView1.Value = June(5);
    }
    /// Writes a comma file outside the data folder and imports it.
    std::string Import(const std::string& name, const std::string& bytes) {
        MakeFolder(Stored("import"));
        const std::string file = Stored("import\\" + name);
        WriteBytes(file, bytes);
        glbEvents.ImportData(file);
        return file;
    }
};

TEST_F(ImportExportTest, CommaLinesSplitAtCommasOutsideQuotesAndDropEveryQuote) {
    const struct {
        const char* line;
        std::vector<std::string> fields;
    } cases[] = {
        {R"(a,"b, c",d)", {"a", "b, c", "d"}},
        {R"(a,,"")", {"a", "", ""}},
        {R"("Say ""hi""",x)", {"Say hi", "x"}},
        {R"("open, to the end)", {"open, to the end"}},
        {"", {""}},
    };
    std::vector<std::string> names(100);
    for (const auto& c : cases) {
        for (size_t i = 0; i < c.fields.size(); ++i) {
            names.assign(100, "");
            names[i + 1] = "DETAILS";
            cDiaryRecord record;
            record.ParseCSVRecord(c.line, names);
            EXPECT_EQ(record.details, c.fields[i]) << c.line << " field " << i + 1;
        }
    }

    cDiaryRecord record;
    record.ParseCSVHeader(" eventdate ,TIMEEVENT,Title,location,,Notes,url", names);
    EXPECT_EQ(std::vector<std::string>(names.begin(), names.begin() + 9),
              (std::vector<std::string>{"", "DATE", "TIME", "DETAILS", "URL", "", "DETAILS", "", ""}));
    ASSERT_EQ(platform_.MessageTexts().size(), 1U) << "an empty heading is passed over, \"url\" is unknown";
    EXPECT_EQ(platform_.Transcript()[0].title, "Dont know how to Parse this Field Heading");
    EXPECT_EQ(platform_.Transcript()[0].text,
              "Unknown Field in ParseCSVHeader :\r\nURL\r\nThis import will continue, but will ignore this field - "
              "you can edit this file with a text editor and retry the import");

    // A line under no DATE column is dated today and keeps a placeholder ID of today.
    names.assign(100, "");
    names[1] = "DETAILS";
    record.ParseCSVRecord("Call the bank", names);
    EXPECT_EQ(
        record.FormatDiaryRecordAsCSV(kFieldDelimiter, ""),
        Fields({"D200406050000", "20040605", "", "0930", "1", "", "", "", "", "", "", "", "", "", "Call the bank"}));
}

TEST_F(ImportExportTest, AHandWrittenCommaFileLandsInItsMonthsAndTheReportNamesWhatDidNot) {
    WriteLines("D200406.dat", {kStandup});
    const std::string file = Import("appointments.csv", Golden("import/appointments.csv"));
    const std::string eventFile = Stored("import\\appointments.DAT");

    // Every line of the file stands in the event file beside it, the one without a date too.
    EXPECT_EQ(
        SplitLines(ReadBytes(eventFile)),
        (std::vector<std::string>{Imported("D200406050000", "20040605", "Cafe Rouge", "Lunch with Ann, Bob and Carl"),
                                  Imported("D200406050000", "20040607", "Harley St, No 5", "Dentist"),
                                  Imported("D200406050000", "20040612", "", "Board meeting"),
                                  Imported("D200406050000", "2004-06-14", "Room 4", "Quarterly review"),
                                  Imported("D200406050000", "", "", "No date at all"),
                                  Imported("D200406050000", "20040701", "", "Say hello to July")}));
    // Numbered by their own dates; an event without a place shows the file it came from.
    EXPECT_EQ(Lines("D200406.dat"),
              (std::vector<std::string>{
                  kStandup, Imported("D200406050002", "20040605", "Cafe Rouge", "Lunch with Ann, Bob and Carl"),
                  Imported("D200406070001", "20040607", "Harley St, No 5", "Dentist"),
                  Imported("D200406120001", "20040612", eventFile, "Board meeting")}));
    // A date in another form is kept as it stands, in the month its numbers give.
    EXPECT_EQ(Lines("D200312.dat"),
              (std::vector<std::string>{"", Imported("D200312140001", "2004-06-14", "Room 4", "Quarterly review")}));
    EXPECT_EQ(Lines("D200407.dat"),
              (std::vector<std::string>{"", Imported("D200407010001", "20040701", eventFile, "Say hello to July")}));

    const auto& transcript = platform_.Transcript();
    ASSERT_EQ(transcript.size(), 2U);
    EXPECT_TRUE(StartsWith(transcript[0].text, "Unknown Field in ParseCSVHeader :\r\nCATEGORY\r\n"));
    EXPECT_EQ(transcript[1].title, "Some events were not added as given");
    EXPECT_EQ(transcript[1].text,
              "Finished adding 5 records.\r\n\r\n"
              "Not added (1):\r\n(no date) No date at all - the date is not one the diary can hold\r\n\r\n"
              "Kept with a date that is not yyyymmdd (1):\r\n2004-06-14 Quarterly review - in D200312.dat");
    EXPECT_FALSE(platform_.BusyCursor());
    EXPECT_EQ(glbEvents.totEvents(), 4) << "the calendar's month is loaded again";

    // The same file again adds nothing and says why.
    platform_.ClearTranscript();
    glbEvents.ImportData(file);
    EXPECT_EQ(Lines("D200406.dat").size(), 4U);
    const std::string again = platform_.Transcript().back().text;
    EXPECT_TRUE(StartsWith(again, "Finished adding 0 records.\r\n\r\nNot added (6):\r\n")) << again;
    EXPECT_NE(again.find("20040605 Lunch with Ann, Bob and Carl - already in the diary"), std::string::npos);
}

TEST_F(ImportExportTest, ACommaFileInAnotherEncodingImportsWithTheRightCharacters) {
    const struct {
        const char* encoding;
        std::string bytes;
    } files[] = {
        {"Windows-1252", "Date,Title\r\n20040608,Caf\xE9 \x80 5\r\n"},
        {"UTF-8 with a byte-order mark",
         "\xEF\xBB\xBF"
         "Date,Title\r\n20040608,Caf\xC3\xA9 \xE2\x82\xAC 5\r\n"},
        {"UTF-8", "Date,Title\r\n20040608,Caf\xC3\xA9 \xE2\x82\xAC 5\r\n"},
        {"UTF-16 with a byte-order mark", Utf16WithMark(u"Date,Title\r\n20040608,Caf\u00E9 \u20AC 5\r\n")},
    };
    for (const auto& file : files) {
        DeleteFile(Data("D200406.dat"));
        platform_.ClearTranscript();
        Import("cafe.csv", file.bytes);
        EXPECT_EQ(Lines("D200406.dat"),
                  (std::vector<std::string>{
                      "", Imported("D200406080001", "20040608", Stored("import\\cafe.DAT"), "Caf\xE9 \x80 5")}))
            << file.encoding;
        EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Finished adding 1 records."}) << file.encoding;
    }
}

TEST_F(ImportExportTest, AMonthThatCannotBeWrittenKeepsItsEventsOutAndSaysSo) {
    WriteLines("D200406.dat", {kStandup});
    MakeFolder(Data("D200407.dat"));  // a folder where July's file should be
    Import("two.csv", "Date,Title\r\n20040701,July party\r\n20040609,June walk\r\n");
    EXPECT_EQ(Lines("D200406.dat"),
              (std::vector<std::string>{
                  kStandup, Imported("D200406090001", "20040609", Stored("import\\two.DAT"), "June walk")}));
    EXPECT_EQ(platform_.Transcript().back().text,
              "Finished adding 1 records.\r\n\r\nNot added (1):\r\n20040701 July party - D200407.dat could not be "
              "written (Path/File access error)");
}

TEST_F(ImportExportTest, AFileOfEventLinesIsAddedAsItStandsAndNoFileOfTheDiaryIsWrittenOver) {
    WriteLines("D200406.dat", {kStandup});
    // The program's own event lines, from another diary: new identifiers in this one,
    // and the file they came from as their address.
    MakeFolder(Stored("import"));
    const std::string lines = Stored("import\\fred.dat");
    WriteBytes(lines, EventLine("D200406010007", "20040611", "1000", "Site visit") + "\r\n\r\n");
    glbEvents.ImportData(lines);
    EXPECT_EQ(
        Lines("D200406.dat"),
        (std::vector<std::string>{kStandup, Fields({"D200406110001", "20040611", "Phone", "1000", "30", "Call", "fred",
                                                    lines, "", "", "", "Normal", "", "Office", "Site visit"})}));
    EXPECT_EQ(ReadBytes(lines), EventLine("D200406010007", "20040611", "1000", "Site visit") + "\r\n\r\n");

    // A comma file named after a month of the data folder would write over that month.
    const std::string before = ReadBytes(Data("D200406.dat"));
    WriteBytes(Data("D200406.csv"), "Date,Title\r\n20040612,Oops\r\n");
    glbEvents.ImportData(Data("D200406.csv"));
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), before);
    EXPECT_EQ(platform_.Transcript().back().title, "Import Appointments");
}

TEST_F(ImportExportTest, ManyRowsAcrossFiveYearsLandInTheirMonthsNumberedDayByDay) {
    // Two events a day on 500 days spread over the five years 2001 to 2005.
    std::string csv = "Date,Title\r\n";
    for (int row = 0; row < 1000; ++row) {
        const VbDate day = DateSerial(2001, 1, 1) + (row / 2) * 1826 / 500;
        csv += FormatDate(day, "yyyymmdd") + ",Row " + CStr(row) + "\r\n";
    }
    Import("years.csv", csv);
    EXPECT_EQ(platform_.MessageTexts().back(), "Finished adding 1000 records.");
    long months = 0, events = 0;
    for (const std::string& name : ListFolder(Data("D*.dat"), false)) {
        if (name < "D2001" || name > "D2006") continue;
        ++months;
        events += static_cast<long>(Lines(name).size()) - 1;  // a new month's file starts with an empty line
    }
    EXPECT_EQ(months, 60);
    EXPECT_EQ(events, 1000);
    const std::vector<std::string> january = Lines("D200101.dat");
    EXPECT_EQ(january.at(1).substr(0, 13), "D200101010001");
    EXPECT_EQ(january.at(2).substr(0, 13), "D200101010002");
    EXPECT_EQ(Lines("D200512.dat").back().substr(0, 28), Imported("D200512280002", "20051228", "", "").substr(0, 28));
}

TEST_F(ImportExportTest, TheExportWritesAPagePerMonthWithEventsUnderAnIndexOfThoseMonths) {
    WriteLines("D200405.dat", {EventLine("D200405010001", "20040528", "1500", "Spring fair")});
    WriteLines(
        "D200406.dat",
        {"", EventLine("D200406050002", "20040607", "1400", "Dentist"), kStandup,
         EventLine("D200406050003", "20040605", "0800", "Fish & chips <at> the pier"),
         Fields({"D200406050004", "20040605", "PCFile", "1000", "30", "Usage", "", "", "", "", "", "", "", "",
                 "Computer use"}),
         Fields({"D200406050005", "20040606", "", "1200", "30", "", "", "", "", "", "", "", "Private", "", "Doctor"})});
    WriteLines(
        "D200407.dat",
        {Fields({"D200407010001", "20040701", "", "1200", "30", "", "", "", "", "", "", "", "Private", "", "Secret"})});
    WriteLines("D200501.dat", {EventLine("D200501030001", "20050103", "0900", "New year plans")});
    WriteLines("D200412.dat", {""});
    WriteLines("D_tasks.dat", {EventLine("N200406050001", "20040605", "0900", "A task")});
    WriteLines("D000101.DAT", {"Dumped Diary Database from Memory on 2004-06-05 09:30:12", kStandup});

    const std::vector<std::string> pages = glbFileUtils.ExportDiaryFilesToHTML();
    // A month of private events only has a page without events.
    EXPECT_EQ(pages, (std::vector<std::string>{Data("D200405.html"), Data("D200406.html"), Data("D200407.html"),
                                               Data("D200501.html")}));
    EXPECT_EQ(ReadBytes(Data(kExportIndexFile)), Golden("export/_include_index.html"));
    EXPECT_EQ(ReadBytes(Data("D200406.html")), Golden("export/D200406.html"));
    EXPECT_FALSE(FileExists(Data("D200412.html"))) << "a month without events";
    EXPECT_FALSE(FileExists(Data("D000101.html")));

    // The page of one day for the browser pane is left alone while it is newer than the month.
    const std::string page = Data("D200406.html");
    glbEvents.LoadDiaryData(June(5));
    std::vector<cDiaryRecord> none;
    std::filesystem::last_write_time(ToNativePath(Data("D200406.dat")),
                                     std::filesystem::last_write_time(ToNativePath(page)) - std::chrono::hours(1));
    glbEvents.ConvertEventsToHTML(none, 0, page, June(5), "", false);
    EXPECT_EQ(ReadBytes(page), Golden("export/D200406.html"));
}
