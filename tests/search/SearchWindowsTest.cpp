// The search as the user meets it: the search form's choices, the results window
// filled with tasks, notes and events, what a double click on a row opens, and the
// list sorted and saved.
#include <gtest/gtest.h>

#include "SearchFixture.h"
#include "config/clsConfigDiary.h"
#include "dialogs/frmEditEvent.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "search/cSearch.h"
#include "search/frmInfoSearch.h"

using namespace orbidex;
using test::EventLine;

class SearchWindowsTest : public test::SearchFixture {
protected:
    void SetUp() override {
        SearchFixture::SetUp();
        WriteLines("D200301.dat", {EventLine("D200301150001", "20030115", "0900", "Flight to Zanzibar")});
        WriteLines("D200406.dat",
                   {EventLine("D200406050001", "20040605", "1400", "Zanzibar visa at the embassy", "Phone", "45"),
                    EventLine("D200406050002", "20040605", "1600", "Ring the bank")});
        WriteLines("D201912.dat", {EventLine("D201912240001", "20191224", "1000", "ZANZIBAR holiday")});
        WriteLines("D_tasks.dat", {"T200406010001|20040601||0900|60||||||||||Book the Zanzibar flights|",
                                   "T200406020001|20040602||1000|30||||||||||Pay the bank|"});
        WriteLines("allnotes.dat", {"N200406010001|20040601|20040601||Blue|Zanzibar|Trip plans.txt|Trip plans|",
                                    "N200406020001|20040602|20040602||||Shopping.txt|Shopping|"});
        MakeFolder(Data("notes"));
        WriteBytes(Data("notes\\Trip plans.txt"), "Flights to ZANZIBAR and back\r\n");
        WriteBytes(Data("notes\\Shopping.txt"), "Milk\r\n");
        StartProgram();
    }
    /// A local search for `text` over all dates, as the form leaves it.
    void SearchFor(const std::string& text) {
        cSearch search;
        search.init();
        search.searchString = text;
        search.PerformSearch();
    }
    long RowOf(const std::string& tag) {
        ListView& list = Results().lvResults;
        for (long i = 1; i <= list.ListItems.Count(); ++i)
            if (StartsWith(list.ListItems(i).Tag(), tag)) return i;
        return 0;
    }
    /// Double-clicks the row whose tag begins with `tag`.
    void Open(const std::string& tag) {
        const long row = RowOf(tag);
        ASSERT_GT(row, 0) << tag;
        Results().lvResults.UserDblClickItem(Results().lvResults.ListItems(row));
    }
    /// The next time the event editor opens, `edit` acts on it as the user.
    void QueueEventEditor(std::function<void(frmEditEvent&)> edit) {
        platform_.QueueFormScript("frmEditEvent",
                                  [edit](orbidex::Form& form) { edit(static_cast<frmEditEvent&>(form)); });
    }
};

TEST_F(SearchWindowsTest, TheFormsChoicesSetTheDatesTheKindsAndTheUsers) {
    NETWORK_STRING = "CLIENT";
    frmInfoSearch form;
    form.Load();
    auto dates = [&] {
        return FormatDate(form.DTPicker1(0).Value, "yyyymmdd") + "-" + FormatDate(form.DTPicker1(1).Value, "yyyymmdd") +
               (form.DTPicker1(0).Enabled ? " enabled" : "");
    };
    EXPECT_EQ(dates(), "19840101-29991231");
    const char* const ranges[] = {"19840101-29991231", "20040406-20040620", "20040605-20040717", "19840101-20040604",
                                  "20040101-20041231 enabled"};
    for (int choice : {4, 1, 2, 3, 0}) {
        form.cmbDateRange.UserSelect(choice);
        EXPECT_EQ(dates(), ranges[choice]) << form.cmbDateRange.Text();
        EXPECT_EQ(form.chkAnyDate.Value(), choice == 0 ? vbChecked : vbUnchecked);
    }
    form.chkAnyDate.UserClick();  // cleared: the dates are picked, with their labels
    EXPECT_EQ(form.cmbDateRange.Text(), "Pick the Dates...!");
    EXPECT_TRUE(form.lblDate(0).Visible);
    form.chkAnyDate.UserClick();
    EXPECT_EQ(dates(), "19840101-29991231");
    EXPECT_FALSE(form.lblDate(1).Visible);

    // The kind of event and the two usage boxes follow each other.
    EXPECT_EQ(form.cmbEventType.Text(), "Normal Events only");
    form.cmbEventType.UserSelect(0);
    EXPECT_EQ(form.chkPCUsage.Value() + form.chkFileUsage.Value(), 2);
    form.chkPCUsage.UserClick();
    EXPECT_EQ(form.cmbEventType.Text(), "File usage recorded!");

    // Users: chosen by their ticks once the search is not of this diary only.
    for (const char* user : {"fred", "mary", "ann"}) form.lvUsers.ListItems.Add(user).Tag = user;
    EXPECT_FALSE(form.lvUsers.Enabled);
    form.chkLocalFilesOnly.UserClick();
    EXPECT_TRUE(form.lvUsers.Enabled);
    form.lvUsers.UserCheckItem(form.lvUsers.ListItems(2), true);
    form.lvUsers.UserCheckItem(form.lvUsers.ListItems(1), true);
    EXPECT_EQ(form.lblUsers.Caption(), "fred,mary,");
    form.chkAllUsers.UserClick();
    EXPECT_EQ(form.lblUsers.Caption(), "fred,mary,ann,");
    form.chkAllUsers.UserClick();
    EXPECT_EQ(form.lblUsers.Caption(), "");
}

TEST_F(SearchWindowsTest, TheChoicesCountOnlyWhenSearchIsPressed) {
    platform_.QueueFormScript("frmInfoSearch", [](orbidex::Form& f) {
        auto& form = static_cast<frmInfoSearch&>(f);
        EXPECT_FALSE(form.chkLocalFilesOnly.Enabled);  // the program that runs alone
        form.txtDetails.UserEdit("Bank", 4);
        form.cmbDateRange.UserSelect(4);
        form.DTPicker1(0).UserPickDate(DateSerial(2004, 3, 1));
        form.Check1.UserClick();
        form.cmdSearch.UserClick();
    });
    cSearch search;
    search.init();
    ASSERT_TRUE(search.ShowSearchInputForm());
    EXPECT_EQ(search.searchString, "Bank");
    EXPECT_EQ(FormatDate(search.startDate, "yyyymmdd") + FormatDate(search.EndDate, "yyyymmdd"), "2004030120041231");
    search.PerformSearch();  // the case counts
    EXPECT_EQ(Rows(), std::vector<std::string>{});

    platform_.QueueFormScript("frmInfoSearch",
                              [](orbidex::Form& f) { static_cast<frmInfoSearch&>(f).cmdCancel.UserClick(); });
    EXPECT_FALSE(search.ShowSearchInputForm());
    platform_.QueueFormScript("frmInfoSearch", [](orbidex::Form& f) { f.UserClose(); });
    EXPECT_FALSE(search.ShowSearchInputForm());
}

TEST_F(SearchWindowsTest, ALocalSearchListsTasksNotesAndEventsOfEveryYear) {
    SearchFor("zanzibar");
    EXPECT_EQ(Rows(), (std::vector<std::string>{
                          "- Task -|20040601|0900|Task|Book the Zanzibar flights|task",
                          "- Note -| | |Note|Trip plans|note",  // found by its category
                          "|20030115|0900|Event|Flight to Zanzibar",
                          "|20040605|1400|Event|Zanzibar visa at the embassy",
                          "|20191224|1000|Event|ZANZIBAR holiday",
                      }));
    frmSearchResults& form = Results();
    EXPECT_EQ(form.Caption(), "Searching for zanzibar - found 5 records ");
    EXPECT_EQ(form.status.Panels(1).Text(), "Spent 1 hr 45 min   minutes on zanzibar ");
    EXPECT_EQ(form.status.Panels(2).Text(), "Found 5 items");
    std::string columns;
    for (long i = 1; i <= form.lvResults.ColumnHeaders.Count(); ++i)
        columns += form.lvResults.ColumnHeaders(i).Text() + "=" + CStr(form.lvResults.ColumnHeaders(i).Width()) + " ";
    EXPECT_EQ(columns, "User=0 Date=1200 Time=660 Type=1500 Details=3870 =0 ");
    EXPECT_FALSE(platform_.BusyCursor());
    EXPECT_FALSE(glbSearching);

    SearchFor("");
    EXPECT_EQ(form.lvResults.ListItems.Count(), 2 + 2 + 4);
    EXPECT_EQ(form.status.Panels(1).Text(), "Spent 2 hr 15 min   minutes on <find all> ");
    SearchFor("Timbuktu");
    EXPECT_EQ(form.Caption(), "Searching for Timbuktu - no records found");
}

TEST_F(SearchWindowsTest, ARowOpensItsTaskItsNoteOrItsEventInWhateverYear) {
    SearchFor("zanzibar");
    std::string opened;
    platform_.QueueFormScript("frmEditTask", [&](orbidex::Form&) { opened = gCurrentTask.details; });
    Open("T200406010001");
    platform_.QueueFormScript("frmEditNote", [&](orbidex::Form&) { opened += "; " + gCurrentNote.title; });
    Open("N200406010001");
    QueueEventEditor([&](frmEditEvent& editor) {
        opened += "; " + editor.txtDetails.Text();
        editor.cmdCancel.UserClick();
    });
    Open("D200406050001");  // in memory
    EXPECT_EQ(opened, "Book the Zanzibar flights; Trip plans; Zanzibar visa at the embassy");

    // An event of another year: the diary moves to its day and opens it there.
    QueueEventEditor([&](frmEditEvent& editor) {
        opened = editor.txtDetails.Text() + " " + FormatDate(Form().MonthView1.Value, "yyyymmdd");
        editor.txtDetails.Text = "Flight to Zanzibar via Nairobi";
        editor.cmdOK.UserClick();
    });
    Open("D200301150001");
    EXPECT_EQ(opened, "Flight to Zanzibar 20030115");
    EXPECT_EQ(gStrDiaryDataFile, Data("D200301.dat"));
    const std::vector<std::string> saved = SplitLines(ReadBytes(Data("D200301.dat")));
    ASSERT_EQ(saved.size(), 1U);
    EXPECT_TRUE(StartsWith(saved[0],
                           "D200301150001\x1F"
                           "20030115\x1F"));
    EXPECT_TRUE(EndsWith(saved[0],
                         "\x1F"
                         "Flight to Zanzibar via Nairobi\x1F"));

    // Rows without an event of this diary behind them say so, and the calendar stays.
    ListView& list = Results().lvResults;
    list.ListItems(RowOf("D201912240001")).Tag = "D201912240099";
    list.ListItems.Add("").SetSubItems(1, "20040605");
    ListItem& other = list.ListItems.Add("mary");
    other.Tag = "D200406050001";
    other.SetSubItems(1, "20040605");
    platform_.ClearTranscript();
    Open("D201912240099");
    for (long row : {list.ListItems.Count() - 1, list.ListItems.Count()}) list.UserDblClickItem(list.ListItems(row));
    EXPECT_EQ(platform_.MessageTexts(),
              (std::vector<std::string>{"This event is from \r\nThere is no more information on this event",
                                        "This event is from \r\nThere is no more information on this event",
                                        "This event is from mary\r\nThere is no more information on this event"}));
    EXPECT_EQ(gStrDiaryDataFile, Data("D200301.dat"));
}

TEST_F(SearchWindowsTest, TheListSortsByAnyColumnAndIsSavedWithItsHeading) {
    SearchFor("zanzibar");
    ListView& list = Results().lvResults;
    list.UserClickColumn(3);
    EXPECT_EQ(list.ListItems(1).SubItems(2) + list.ListItems(2).SubItems(2), " 0900");  // the note has no time
    list.UserClickColumn(3);
    EXPECT_EQ(list.ListItems(1).SubItems(2), "1400");
    list.UserClickColumn(5);  // the saved list keeps this order

    platform_.QueueInputAnswer(Stored("found.csv"));
    Results().mnuResultsSaveAs[0].UserClick();
    EXPECT_EQ(platform_.Transcript().back().title, "Saving List");
    EXPECT_EQ(ReadBytes(Stored("found.csv")), test::ReadGolden(ORBIDEX_SEARCH_GOLDEN_DIR, "found.csv"));
    platform_.QueueInputAnswer(Stored("found.txt"));
    Results().mnuResultsSaveAs[1].UserClick();
    EXPECT_NE(ReadBytes(Stored("found.txt")).find("- Note -\t \t \tNote\tTrip plans\tnote\r\n"), std::string::npos);
    // A file that cannot be written is told of.
    platform_.ClearTranscript();
    platform_.QueueInputAnswer(Stored("missing\\found.csv"));
    Results().mnuResultsSaveAs[0].UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error in SaveResults saving " + Stored("missing\\found.csv") +
                                       " Error=76 = Path not found"});

    Results().mnuResultsExit.UserClick();
    EXPECT_EQ(list.ListItems.Count(), 0);
}

TEST_F(SearchWindowsTest, QuickFindAndTheFindButtonOpenTheSearch) {
    platform_.QueueFormScript("frmInfoSearch", [](orbidex::Form& f) {
        auto& form = static_cast<frmInfoSearch&>(f);
        form.txtDetails.UserEdit("bank", 4);
        form.cmdSearch.UserClick();
    });
    Form().mnuSearchQuick.UserClick();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"- Task -|20040602|1000|Task|Pay the bank|task",
                                                "|20040605|1600|Event|Ring the bank"}));
    EXPECT_TRUE(Form().timerSecond.Enabled);

    platform_.QueueFormScript("frmInfoSearch",
                              [](orbidex::Form& f) { static_cast<frmInfoSearch&>(f).cmdCancel.UserClick(); });
    Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons("Find"));
    EXPECT_EQ(platform_.FormsShown().back(), "frmInfoSearch");

    glbSearching = true;  // a search still filling its list
    Form().mnuSearchQuick.UserClick();
    EXPECT_EQ(Panel(1), "A search is still running");
}
