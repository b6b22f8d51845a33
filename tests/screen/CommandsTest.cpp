// The command layer as the user reaches it: menu entries, tool bar keys, tree keys,
// clicks on the lists, the end of the program.
#include <gtest/gtest.h>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

class CommandsTest : public test::MainScreenFixture {
protected:
    void SetUp() override {
        MainScreenFixture::SetUp();
        StartProgram();
    }
    void click(const std::string& key) { Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons(key)); }
    /// The view's length as "<setting> <days shown> ticked <view menu ticks> [<pressed keys>]".
    std::string viewLength() {
        std::string ticks;
        for (Menu& entry : Form().mnuViewType) ticks += entry.Checked ? "1" : "0";
        std::string shown = CStr(glbConfig.DayWeekMonth) + " " + CStr(glbNumDaysToDisplay) + " ticked " + ticks + " [";
        for (const char* key : {"days", "week", "month"})
            if (Form().Toolbar1.Buttons(key).Value() == tbrPressed) shown += key;
        return shown + "]";
    }
};

// The program is started by the test, with events to list or as a client.
class CommandsBeforeStartTest : public CommandsTest {
protected:
    void SetUp() override { MainScreenFixture::SetUp(); }
};

TEST_F(CommandsTest, TheViewLengthComesFromTheToolBarAndTheMenu) {
    click("week");
    EXPECT_EQ(viewLength(), "7 7 ticked 0100 [week]");
    Form().mnuViewType[3].UserClick();
    EXPECT_EQ(viewLength(), "31 31 ticked 0001 [month]");
    Form().mnuViewType[2].UserClick();
    EXPECT_EQ(viewLength(), "14 14 ticked 0010 []");
    glbCmd.ToolbarClicked("days");
    EXPECT_EQ(viewLength(), "1 1 ticked 1000 [days]");
}

TEST_F(CommandsTest, GridOrListIsSavedAndShown) {
    click("list");
    EXPECT_EQ(glbConfig.GridOrList, "LIST");
    EXPECT_NE(ReadBytes(gStrIniFile).find("GridOrList=LIST\r\n"), std::string::npos);
    EXPECT_FALSE(Form().gridDays.Visible);
    EXPECT_TRUE(Form().lvDiary.Visible);
    glbScreen.SwitchMode("TASK");
    glbScreen.SwitchMode("CALENDAR");
    EXPECT_TRUE(Form().lvDiary.Visible);

    Form().mnuViewGrid.UserClick();
    EXPECT_NE(ReadBytes(gStrIniFile).find("GridOrList=GRID\r\n"), std::string::npos);
    EXPECT_TRUE(Form().gridDays.Visible);
    EXPECT_FALSE(Form().lvDiary.Visible);
}

TEST_F(CommandsTest, EntriesWithAnOperationAreEnabled) {
    for (Menu* entry : {&Form().mnuNotesMenu[3],   &Form().mnuBetaServerEnforce, &Form().mnuFilePrint,
                        &Form().mnuFileExit,       &Form().mnuViewMode[2],       &Form().mnuViewRefresh,
                        &Form().mnuBetaTest[3],    &Form().mnuHelpContents,      &Form().mnuAppAdd,
                        &Form().mnuAppRecurring,   &Form().mnuPopupGridAdd,      &Form().mnuTaskMenu[0],
                        &Form().mnuNotesMenu[5],   &Form().mnuBetaReindexTask,   &Form().mnuPingServer,
                        &Form().mnuServerLogoff,   &Form().mnuFileImport,        &Form().mnuFileExport,
                        &Form().mnuBetaTest[0],    &Form().mnuOptScrapPaper,     &Form().mnuSearchQuick,
                        &Form().mnuViewSetup,      &Form().mnuAppPlanMeeting,    &Form().mnuTaskHeadings,
                        &Form().mnuOptionsDisplay, &Form().mnuOptionsListView,   &Form().mnuOptionsTaskHeadings,
                        &Form().mnuToolsCalendar,  &Form().mnuHelpAbout})
        EXPECT_TRUE(entry->Enabled) << entry->Name();

    // "new" adds where there is something to add: events, tasks, notes and meetings.
    Toolbar& bar = Form().Toolbar1;
    for (const char* key : {"Find", "print", "properties"}) EXPECT_TRUE(bar.Buttons(key).Enabled) << key;
    EXPECT_TRUE(bar.Buttons("new").ButtonMenus(2)->Enabled);
    for (const char* mode : {"HOME", "CALENDAR", "TASK", "NOTE", "MESSAGE", "STAFF"}) {
        glbScreen.SwitchMode(mode);
        const std::string m = mode;
        EXPECT_EQ(bar.Buttons("new").Enabled(), m != "MESSAGE") << mode;
        EXPECT_EQ(bar.Buttons("delete").Enabled(), m != "MESSAGE" && m != "STAFF" && m != "HOME") << mode;
    }
}

TEST_F(CommandsTest, TreeKeysLeadIntoTheirModes) {
    TreeView& tree = Form().tv;
    tree.UserClickNode(*tree.Nodes.Item("TASK"));
    EXPECT_EQ(glbScreen.Mode(), "TASK");
    EXPECT_TRUE(LogHas("DEBUG -  key = TASK text = Tasks"));
    tree.UserClickNode(*tree.Nodes.Item("CALENDARpublic_events"));
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    tree.UserClickNode(*tree.Nodes.Item("HOME"));
    EXPECT_EQ(glbScreen.Mode(), "HOME");
    tree.UserClickNode(*tree.Nodes.Item("public_contacts"));
    EXPECT_EQ(glbScreen.Mode(), "HOME");
    glbCmd.NavigationClicked("STAFF_PLANNER", "");
    EXPECT_EQ(glbScreen.Mode(), "STAFF");
    glbCmd.NavigationClicked("OVERVIEW_PAGE", "");
    EXPECT_EQ(glbScreen.Mode(), "HOME");

    tree.UserClickNode(*tree.Nodes.Item("CALENDAR_VIEWYEAR"));
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    EXPECT_EQ(platform_.FormsShown().back(), "frmCalendarView");

    Form().lvView.UserClickItem(Form().lvView.ListItems(3));
    EXPECT_EQ(glbScreen.Mode(), "TASK");
}

TEST_F(CommandsTest, NoteModeAnswersTheListFilters) {
    glbScreen.SwitchMode("NOTE");
    glbCmd.ToolbarClicked("showall");
    EXPECT_EQ(Panel(1), "All Notes already displayed");
    glbCmd.ToolbarClicked("todaystasks");
    EXPECT_EQ(Panel(1), "current Notes already displayed");
}

TEST_F(CommandsBeforeStartTest, AClickedEventRowBecomesTheCurrentEvent) {
    WriteBytes(DataPath() + "D200406.dat", test::EventLine("D200406050001", "20040605", "0900", "First") + "\r\n" +
                                               test::EventLine("D200406050002", "20040605", "1000", "Second") + "\r\n");
    StartProgram();
    click("list");
    ListView& list = Form().lvDiary;
    ASSERT_NE(list.ListItems.Item("D200406050002"), nullptr);
    list.UserClickItem(*list.ListItems.Item("D200406050002"));
    EXPECT_EQ(gintcur, glbEvents.SelectDiaryRecordFromID("D200406050002"));
    EXPECT_GE(gintcur, 0);
    EXPECT_TRUE(Form().mnuAppEdit.Enabled);

    glbScreen.SwitchMode("HOME");
    list.UserClickItem(list.ListItems(1));
    EXPECT_EQ(platform_.MessageTexts().back(), "MouseListClicked not setup for this data type yet");
}

TEST_F(CommandsTest, ColumnHeadingsSortTheEventListBothWays) {
    ListView& list = Form().lvDiary;
    list.ColumnHeaders.Add(" ");
    list.ColumnHeaders.Add("Time");
    for (const char* time : {"1000", "0900", "1100"}) list.ListItems.Add("").SetSubItems(1, time);
    list.UserClickColumn(2);
    EXPECT_EQ(list.ListItems(1).SubItems(1), "0900");
    list.UserClickColumn(2);
    EXPECT_EQ(list.ListItems(1).SubItems(1), "1100");
    list.UserClickColumn(1);
    EXPECT_EQ(list.SortOrder(), lvwAscending);
    EXPECT_EQ(list.SortKey(), 0);
}

TEST_F(CommandsTest, TheStaffGridTellsOfItsCells) {
    glbScreen.SwitchMode("STAFF");
    FlexGrid& grid = Form().gridDays;
    grid.Rows = 4;
    grid.Cols = 3;
    grid.SetTextMatrix(2, 2, "Meeting with Ann");
    grid.UserClickCell(2, 2);
    EXPECT_EQ(grid.ToolTipText(), "Meeting with Ann");
    EXPECT_EQ(Panel(2), " Meeting with Ann");
    grid.Row = 3;
    grid.Col = 2;
    grid.CellBackColor = static_cast<OleColor>(glbConfig.spanning_BackColor);
    grid.UserClickCell(3, 2);
    EXPECT_EQ(grid.ToolTipText(), "Blank Timeslot BUSY");
}

TEST_F(CommandsTest, TheBrowserPaneOpensUnderTheView) {
    Form().UserResize(12000, 8000, 11880, 7400);
    Form().mnuViewBrowser.UserClick();
    EXPECT_TRUE(Form().mnuViewBrowser.Checked);
    EXPECT_TRUE(Form().web.Visible);
    EXPECT_EQ(Form().web.LocationURL(), Stored("__view.html"));
    EXPECT_TRUE(Form().imgVert.Visible);
    EXPECT_EQ(Form().gridDays.Top + Form().gridDays.Height, Form().imgVert.Top);
    EXPECT_EQ(Form().imgVert.Top + Form().imgVert.Height, Form().web.Top);

    // The border between them follows the splitter.
    const long paneTop = Form().web.Top;
    Form().imgVert.UserMouseDown(vbLeftButton, 0, 100, 30);
    Form().imgVert.UserMouseMove(vbLeftButton, 0, 100, -270);
    Form().imgVert.UserMouseUp(vbLeftButton, 0, 100, -270);
    EXPECT_EQ(Form().web.Top, paneTop - 300);

    Form().mnuViewBrowser.UserClick();
    EXPECT_FALSE(Form().web.Visible);
    EXPECT_FALSE(Form().imgVert.Visible);
}

TEST_F(CommandsTest, TheCalendarColumnFollowsItsSplitter) {
    Form().UserResize(15000, 9000, 14880, 8400);
    FlexGrid& grid = Form().gridDays;
    EXPECT_EQ(grid.Left, Form().imgSplitter.Left + Form().imgSplitter.Width);
    EXPECT_EQ(grid.Left + grid.Width, 14880);
    EXPECT_EQ(grid.Top, Form().lblHeading.Top + Form().lblHeading.Height);
    EXPECT_GE(Form().MonthView1.Left, Form().lvView.Left + Form().lvView.Width);
    EXPECT_EQ(Form().lvCat.Width, Form().MonthView1.Width);

    const long gridWidth = grid.Width;
    const long columnWidth = Form().MonthView1.Width;
    Form().imgSplitter.UserMouseDown(vbLeftButton, 0, 30, 500);
    Form().imgSplitter.UserMouseMove(vbLeftButton, 0, 630, 500);
    Form().imgSplitter.UserMouseUp(vbLeftButton, 0, 630, 500);
    EXPECT_EQ(Form().MonthView1.Width, columnWidth + 600);
    EXPECT_EQ(grid.Width, gridWidth - 600);
    // A move without the button held moves nothing.
    Form().imgSplitter.UserMouseMove(0, 0, 900, 500);
    EXPECT_EQ(Form().MonthView1.Width, columnWidth + 600);
}

TEST_F(CommandsTest, DayColumnsShareTheGridsWidth) {
    FlexGrid& grid = Form().gridDays;
    grid.Cols = 9;
    grid.SetColWidth(0, 600);
    grid.SetColWidth(1, 351);
    grid.Width = 9000;
    glbConfig.DayWeekMonth = 7;
    glbConfig.Autosize = 0;
    const long before = grid.ColWidth(5);
    glbScreen.ResizeGridColumns(grid);
    EXPECT_EQ(grid.ColWidth(5), before);

    glbConfig.Autosize = 1;
    glbScreen.ResizeGridColumns(grid);
    EXPECT_EQ(grid.ColWidth(2), 1128);  // (9000 - 951 - 150) / 7
    EXPECT_EQ(grid.ColWidth(7), 1128);
    EXPECT_EQ(grid.ColWidth(8), 878);  // the last one 250 narrower

    glbConfig.DayWeekMonth = 31;
    grid.Width = 1200;
    glbScreen.ResizeGridColumns(grid);
    EXPECT_EQ(grid.ColWidth(2), 40);
    EXPECT_EQ(grid.ColWidth(8), 40);
}

TEST_F(CommandsTest, ClosingTheWindowKeepsItsPlaceAndEndsTheProgram) {
    Form().Move(300, 450, 12000, 8000);
    EXPECT_THROW(Form().UserClose(), ProgramEnded);
    const std::string settings = ReadBytes(gStrIniFile);
    for (const char* line : {"Height=8000\r\n", "Width=12000\r\n", "Left=300\r\n", "Top=450\r\n", "WindowState=0\r\n"})
        EXPECT_NE(settings.find(line), std::string::npos) << line;
    EXPECT_THROW(Form().mnuFileExit.UserClick(), ProgramEnded);
}

TEST_F(CommandsBeforeStartTest, TheRefreshRebuildsThePresentMode) {
    StartProgram("CLIENT");
    Form().lblHeading.Caption = "changed";
    Form().mnuViewRefresh.UserClick();
    EXPECT_EQ(Form().lblHeading.Caption(), "  Events for Saturday, 5-Jun-2004");
    EXPECT_TRUE(Form().timerSecond.Enabled);
    // A client that may look for a server pings it first; this one's folder is missing.
    glbConfig.runLocalModeOnly = "0";
    glbNetworkDatapath = Stored("share\\fred\\");
    Form().mnuViewRefresh.UserClick();
    EXPECT_TRUE(LogHas("Cant find network datapath " + Stored("share\\fred\\") + " - Running Local"));
    EXPECT_EQ(Panel(1), "Running in Local Mode (Server not responding)");
    EXPECT_EQ(Form().Toolbar1.Buttons("refresh").Image(), "disconnect");
}

TEST_F(CommandsTest, TodayMovesTheCalendarBack) {
    Form().MonthView1.Value = 38000;
    click("today");
    EXPECT_EQ(Form().MonthView1.Value(), 38143);  // 5 June 2004
}

TEST_F(CommandsTest, ToolsHelpAndBetaEntries) {
    Form().mnuToolsTobrin.UserClick();
    Form().mnuHelpBugReport.UserClick();
    EXPECT_EQ(platform_.ProcessesStarted(), (std::vector<std::string>{Stored("tobrin.exe")}));
    EXPECT_EQ(platform_.DocumentsOpened(),
              (std::vector<std::string>{"https://www.brindlewick.example/orbidex/bugs.html"}));
    platform_.SetProcessHandler([](const std::string&) { return false; });
    Form().mnuToolsTimesheet.UserClick();
    EXPECT_EQ(platform_.MessageTexts().back(), "Could not start " + Stored("kestrop.exe"));

    Form().mnuBetaTest[3].UserClick();
    EXPECT_EQ(platform_.Transcript().back().title, "Dump Event info");
    EXPECT_EQ(platform_.Transcript().back().text, "There are " + CStr(gIntTotalEvents) + " events");

    ASSERT_EQ(gLogLevel, 3);
    Form().mnuBetaTestLog.UserClick();
    EXPECT_EQ(gLogLevel, 0);
    EXPECT_FALSE(Form().mnuBetaTestLog.Checked);
    EXPECT_EQ(platform_.Transcript().back().text, "Logging Level turned down to Errors only");
    Form().mnuBetaTestLog.UserClick();
    EXPECT_EQ(gLogLevel, 3);
    EXPECT_TRUE(Form().mnuBetaTestLog.Checked);
    EXPECT_EQ(platform_.Transcript().back().title, "Logging turned up to detailed");

    platform_.SetProcessHandler(nullptr);
    EXPECT_THROW(Form().mnuBetaRestart.UserClick(), ProgramEnded);
    EXPECT_EQ(platform_.ProcessesStarted().back(), Stored("plindor.exe"));
}
