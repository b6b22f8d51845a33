// The diary search over the monthly files of every year: which lines it finds, the
// rows it makes of them, and the keyword test offered to the server's tools.
#include <gtest/gtest.h>

#include "SearchFixture.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"

using namespace orbidex;
using test::EventLine;
using test::Fields;

namespace {

std::string Usage(const std::string& id, const std::string& date, const std::string& reference,
                  const std::string& action, const std::string& details) {
    return Fields({id, date, reference, "1000", "20", action, "fred", "", "", "", "", "", "", "", details});
}

}  // namespace

class DiarySearchTest : public test::SearchFixture {
protected:
    void SetUp() override {
        SearchFixture::SetUp();
        WriteLines("D200301.dat", {EventLine("D200301150001", "20030115", "0900", "Flight to Zanzibar")});
        WriteLines("D200312.dat", {EventLine("D200312050001", "20031205", "0900", "Board meeting"),
                                   EventLine("D200312100001", "20031210", "0900", "Board lunch"),
                                   EventLine("D200312200001", "20031220", "2330", "Board dinner"),
                                   EventLine("D200312250001", "20031225", "0900", "Board party")});
        WriteLines("D200406.dat", {"", EventLine("D200406050001", "20040605", "0930", "Ring the bank"),
                                   Usage("D200406050002", "20040605", "PCFile", "Usage", "Computer in use"),
                                   Usage("D200406050003", "20040605", "Edit", "PCFile", "Edited report.doc")});
        WriteLines("d201912.DAT", {EventLine("D201912240001", "20191224", "1000", "ZANZIBAR holiday")});
        // Files of the folder that hold event lines but are no months.
        WriteLines("D_tasks.dat", {EventLine("D200406010001", "20040601", "0900", "Zanzibar task")});
        WriteLines("D000101.DAT", {EventLine("D200301150001", "20030115", "0900", "Flight to Zanzibar")});
        StartProgram();
    }
    std::vector<std::string> Search(const std::string& text, bool caseSensitive, const std::string& from,
                                    const std::string& to, bool pcUsage = false, bool fileUsage = false) {
        Results().lvResults.ListItems.Clear();
        glbEvents.SearchForEvent(Results(), Now(), text, from, to, pcUsage, fileUsage, caseSensitive);
        return Tags();
    }
};

TEST_F(DiarySearchTest, EveryYearsMonthsAreSearchedLineByLine) {
    ASSERT_EQ(gStrDiaryDataFile, Data("D200406.dat"));  // the month in memory holds none of them
    const struct {
        const char* text;
        bool caseSensitive;
        const char* from;
        const char* to;
        bool pcUsage, fileUsage;
        std::vector<std::string> found;
    } cases[] = {
        {"zanzibar", false, "19840101", "29991231", false, false, {"D200301150001", "D201912240001"}},
        {"Zanzibar", true, "19840101", "29991231", false, false, {"D200301150001"}},
        {"ZANZIBAR", true, "19840101", "29991231", false, false, {"D201912240001"}},
        {"zanzibar", false, "20030116", "29991231", false, false, {"D201912240001"}},
        // The location and the text stand either side of a field's end.
        {"Office Ring", false, "19840101", "29991231", false, false, {}},
        {"office", false, "20040101", "20041231", false, false, {"D200406050001"}},
        // Half of December 2003, both ends included.
        {"board", false, "20031210", "20031220", false, false, {"D200312100001", "D200312200001"}},
        {"", false, "20040601", "20040630", false, false, {"D200406050001"}},
        {"", false, "20040601", "20040630", true, false, {"D200406050001", "D200406050002"}},
        {"", false, "20040601", "20040630", false, true, {"D200406050001", "D200406050003"}},
        {"\r", false, "19840101", "29991231", true, true, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string("\"") + c.text + "\" from " + c.from + " to " + c.to);
        EXPECT_EQ(Search(c.text, c.caseSensitive, c.from, c.to, c.pcUsage, c.fileUsage), c.found);
        EXPECT_EQ(glbEvents.totEventsFound(), static_cast<int32_t>(c.found.size()));
    }
    EXPECT_EQ(gStrDiaryDataFile, Data("D200406.dat"));  // the month in memory stays
}

TEST_F(DiarySearchTest, RowsTellTheKindOfEventAndTheTotals) {
    WriteLines("D200407.dat", {EventLine("D200407010001", "20040701", "0900", "Budget", "Meeting", "45"),
                               Fields({"D200407010002", "20040701", "Phone", "1000", "30", "Call", "", "", "", "", "",
                                       "", "Private", "", "Doctor"}),
                               Usage("D200407010003", "20040701", "PCFile", "PCUsage", "Computer in use"),
                               Usage("D200407010004", "20040701", "Autobackup", "PCFile", "Backed up diary")});
    EXPECT_EQ(Search("", false, "20040701", "20040731", true, true),
              (std::vector<std::string>{"D200407010001", "D200407010002", "D200407010003", "D200407010004"}));
    EXPECT_EQ(Rows(), (std::vector<std::string>{
                          "|20040701|0900|Meeting|Budget", "|20040701|1000|Event - Private|Doctor",
                          "|20040701|1000|PC usage|Computer in use", "|20040701|1000|File used|Backed up diary"}));
    ListView& list = Results().lvResults;
    std::vector<std::string> icons;
    for (long i = 1; i <= 4; ++i) icons.push_back(list.ListItems(i).ListSubItems(4).ReportIcon);
    EXPECT_EQ(icons, (std::vector<std::string>{"staff", "calendar", "tessaline", "autobackup"}));
    EXPECT_EQ(list.ListItems(2).ListSubItems(1).ForeColor(), vbGrayText);
    EXPECT_EQ(list.ListItems(3).ListSubItems(4).ForeColor(), OleColor{0x808080});
    EXPECT_EQ(list.ListItems(4).ListSubItems(4).ForeColor(), OleColor{0x004000});
    EXPECT_EQ(glbEvents.totTime(), 45 + 30 + 20 + 20);
    EXPECT_EQ(Results().status.Panels(1).Text(), "Searching LOCAL events containing ");
    EXPECT_EQ(Results().status.Panels(2).Text(), "Found 4 events");
}

TEST_F(DiarySearchTest, GrepLooksAtEveryDataFileWithoutTheUsageLines) {
    WriteLines("D200408.dat", {Usage("D200408010001", "20040801", "PCFile", "Usage", "Zanzibar on screen"),
                               Usage("D200408010002", "20040801", "Edit", "PCFile", "Zanzibar.doc")});
    long found = 0;
    const std::vector<std::string> lines = glbEvents.grepDiaryFilesForString("zanZIBAR", found, "20030101", "20041231");
    ASSERT_EQ(found, 3);
    std::vector<std::string> ids;
    for (const std::string& line : lines) ids.push_back(line.substr(0, 13));
    // The dump and the task file count as data files here, in name order.
    EXPECT_EQ(ids, (std::vector<std::string>{"D200301150001", "D200301150001", "D200406010001"}));
}

TEST_F(DiarySearchTest, KeywordsAllOrAnyAndExcludedWordsThatOnlyAddToTheAnswer) {
    const std::vector<std::string> two = {"BANK", "LOAN"};
    const std::vector<std::string> three = {"BANK", "LOAN", "RATE"};
    const std::vector<std::string> rate = {"RATE"};
    const std::vector<std::string> none;
    const struct {
        const char* text;
        const std::vector<std::string>& keywords;
        bool matchAll;
        const std::vector<std::string>& excluded;
        bool matchAllExcludes;
        bool expected;
    } cases[] = {
        {"Ring the bank", two, false, none, false, true},
        {"Ring the office", two, false, none, false, false},
        {"Bank loan", two, true, none, false, true},
        {"Ring the bank", two, true, none, false, true},  // one found reaches the upper bound of two
        {"Bank loan", three, true, none, false, true},
        {"Ring the bank", three, true, none, false, false},
        // An excluded word missing from the text makes the answer true; words in it
        // never make it false.
        {"Ring the office", two, false, two, false, true},
        {"Bank loan", two, false, two, false, true},
        // All of them in the text go past the upper bound, which counts from 0.
        {"Bank loan", rate, false, two, true, true},
        {"Ring the bank", rate, false, two, true, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(cDiaryRecords::IsKeywordInText(c.text, c.keywords, c.matchAll, c.excluded, c.matchAllExcludes),
                  c.expected)
            << c.text;
}
