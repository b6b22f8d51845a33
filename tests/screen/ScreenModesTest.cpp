// The modes of the main window: what each one shows, the bars, the tool bar by mode,
// and the tree, shortcuts and tool bar of the two kinds of program.
#include <gtest/gtest.h>

#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

std::vector<std::string> childKeys(const Node* node) {
    std::vector<std::string> keys;
    for (const Node* child : node->Children()) keys.push_back(child->Key());
    return keys;
}

std::vector<std::string> visibleButtons(Toolbar& bar) {
    std::vector<std::string> keys;
    for (long i = 1; i <= bar.Buttons.Count(); ++i)
        if (bar.Buttons.Item(i)->Visible) keys.push_back(bar.Buttons.Item(i)->Key);
    return keys;
}

}  // namespace

class ScreenModesTest : public test::MainScreenFixture {};

TEST_F(ScreenModesTest, TheStartShowsTheCalendar) {
    StartProgram();
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    EXPECT_EQ(Form().Caption(), "Events - Brindlewick Software's Orbidex");
    EXPECT_EQ(Form().lblHeading.Caption(), "  Events for Saturday, 5-Jun-2004");
    // The mode's name stands in panel 2 until the calendar's totals take both panels.
    EXPECT_EQ(Panel(1), "Viewing 5-Jun-04 ");
    EXPECT_EQ(Panel(2), "0 min   spent on 0 events  ");
    EXPECT_TRUE(Form().gridDays.Visible);
    EXPECT_FALSE(Form().lvDiary.Visible);
    EXPECT_FALSE(Form().web.Visible);
    EXPECT_EQ(Form().lvCat.Tag(), "TASK");
    EXPECT_EQ(Form().gridDays.BackColor(), 0xF0F4F4U);
    EXPECT_EQ(Form().tv.SelectedItem()->Key(), "CALENDAR");
    EXPECT_EQ(Form().lvView.SelectedItem()->Key(), "CALENDAR");
}

TEST_F(ScreenModesTest, TheSameModeIsRebuiltOnlyWhenForced) {
    StartProgram();
    Form().lblHeading.Caption = "changed";
    Form().status.Panels(2).Text = "changed";
    glbScreen.SwitchMode("calendar");
    EXPECT_EQ(Form().lblHeading.Caption(), "changed");
    EXPECT_EQ(Panel(2), "changed");
    EXPECT_TRUE(LogHas("user clicked on listview, but it is the same one"));

    glbScreen.SwitchMode("calendar", true);
    EXPECT_EQ(Form().lblHeading.Caption(), "  Events for Saturday, 5-Jun-2004");
    EXPECT_EQ(Panel(2), "0 min   spent on 0 events  ");
}

TEST_F(ScreenModesTest, BarsFollowTheirSettings) {
    StartProgram();
    glbConfig.ShowFolders = "0";
    glbConfig.ShowShortCut = "0";
    glbScreen.SwitchMode("TASK");
    EXPECT_FALSE(Form().tv.Visible);
    EXPECT_EQ(Form().tv.Width(), 0);
    EXPECT_FALSE(Form().lvView.Visible);
    EXPECT_EQ(Form().lvView.Width(), 0);
    EXPECT_EQ(Form().tv.Left(), 0);

    glbConfig.ShowFolders = "1";
    glbConfig.ShowShortCut = "1";
    glbConfig.ShortCutSmallIcon = "1";
    glbConfig.ShowToolbar = "0";
    glbScreen.SwitchMode("NOTE");
    EXPECT_TRUE(Form().tv.Visible);
    EXPECT_EQ(Form().tv.Width(), 2500);
    EXPECT_EQ(Form().lvView.Width(), 1005);
    EXPECT_EQ(Form().tv.Left(), 1015);
    EXPECT_EQ(Form().lvView.View(), lvwList);
    EXPECT_FALSE(Form().Toolbar1.Visible);
}

TEST_F(ScreenModesTest, HistoryAndContactsOnlySaySoAndKeepThePriorView) {
    StartProgram();
    glbScreen.SwitchMode("HISTORY");
    Form().mnuViewMode[4].UserClick();  // "&Contacts"
    EXPECT_EQ(platform_.MessageTexts(),
              (std::vector<std::string>{"History is not yet implemented", "Contacts are not yet implemented"}));
    EXPECT_EQ(Panel(2), "CONTACT");
    EXPECT_EQ(Form().Caption(), "Events - Brindlewick Software's Orbidex");
    EXPECT_TRUE(Form().gridDays.Visible);
    EXPECT_TRUE(Form().MonthView1.Visible);
    EXPECT_EQ(Form().tv.SelectedItem()->Key(), "CALENDAR");
}

TEST_F(ScreenModesTest, EachModeShowsItsOwnControlsAndTitles) {
    StartProgram();
    glbScreen.SwitchMode("TASK");
    EXPECT_EQ(Form().Caption(), "Tasks - Brindlewick Software's Orbidex");
    EXPECT_EQ(Form().lblHeading.Caption(), "  Tasks");
    EXPECT_TRUE(Form().lvCat.Visible);
    for (Control* hidden : std::initializer_list<Control*>{&Form().gridDays, &Form().MonthView1, &Form().lvUsers,
                                                           &Form().lblUsers, &Form().lvDiary})
        EXPECT_FALSE(hidden->Visible) << hidden->Name();

    glbScreen.SwitchMode("NOTE");
    EXPECT_EQ(Form().Caption(), "Notes - Brindlewick Software's Orbidex");
    EXPECT_EQ(Form().lblHeading.Caption(), "  Notes");

    glbScreen.SwitchMode("MAIL");
    EXPECT_EQ(Form().Caption(), "Messages - Brindlewick Softwares Orbidex");
    EXPECT_EQ(Form().lblHeading.Caption(), "  Messages");
    // The message list of the calendar's date stands under one heading that names it.
    ASSERT_EQ(Form().lvCat.ColumnHeaders.Count(), 1);
    EXPECT_EQ(Form().lvCat.ColumnHeaders(1).Text(), "Messages - Sat, 5-Jun-04");
    EXPECT_EQ(Form().lvCat.ListItems(1).Text(), "No messages on 5-Jun");

    glbScreen.SwitchMode("STAFF");
    EXPECT_TRUE(Form().lvUsers.Visible);
    EXPECT_TRUE(Form().gridDays.Visible);
    EXPECT_FALSE(Form().lvCat.Visible);

    glbScreen.SwitchMode("HOME");
    EXPECT_TRUE(Form().web.Visible);
    for (Control* hidden : std::initializer_list<Control*>{&Form().lblHeading, &Form().lvCat, &Form().gridDays,
                                                           &Form().MonthView1, &Form().lvDiary, &Form().lvUsers})
        EXPECT_FALSE(hidden->Visible) << hidden->Name();

    glbScreen.SwitchMode("FILE");
    EXPECT_EQ(Form().Caption(), "My Files - Orbidex");
    glbScreen.SwitchMode("WEB");
    EXPECT_EQ(Form().lblHeading.Caption(), "  WEB ");
    glbScreen.SwitchMode("DRAWING - PICS");
    EXPECT_EQ(platform_.MessageTexts().back(), "TODO");
}

TEST_F(ScreenModesTest, TheToolBarFollowsTheMode) {
    StartProgram();
    Toolbar& bar = Form().Toolbar1;
    glbConfig.DayWeekMonth = 7;
    glbScreen.SwitchMode("CALENDAR", true);
    EXPECT_EQ(visibleButtons(bar), (std::vector<std::string>{"new", "Find", "delete", "print", "today", "days", "week",
                                                             "month", "grid", "list", "properties"}));
    EXPECT_EQ(bar.Buttons("week").Value(), tbrPressed);
    EXPECT_EQ(bar.Buttons("days").Value(), tbrUnpressed);
    EXPECT_EQ(bar.Buttons("new").Image(), "calendar");

    glbScreen.SwitchMode("TASK");
    EXPECT_EQ(visibleButtons(bar), (std::vector<std::string>{"new", "Find", "delete", "print", "year", "showall",
                                                             "current", "grid", "list", "properties"}));
    EXPECT_EQ(bar.Buttons("current").Value(), tbrPressed);
    EXPECT_EQ(bar.Buttons("new").Image(), "task");

    glbScreen.SwitchMode("NOTE");
    EXPECT_EQ(bar.Buttons("new").Image(), "note");
    EXPECT_FALSE(bar.Buttons("showall").Visible);

    glbConfig.DayWeekMonth = 31;
    glbScreen.SwitchMode("STAFF");
    EXPECT_EQ(visibleButtons(bar), (std::vector<std::string>{"new", "Find", "delete", "print", "today", "days", "week",
                                                             "month", "refresh", "grid", "list", "properties"}));
    EXPECT_EQ(bar.Buttons("month").Value(), tbrPressed);
    EXPECT_EQ(bar.Buttons("new").Image(), "staff");

    // The overview has Print and Options too: the bar shows whole, `new` with its own image.
    glbScreen.SwitchMode("HOME");
    EXPECT_EQ(visibleButtons(bar),
              (std::vector<std::string>{"new", "Find", "delete", "print", "today", "days", "week", "month", "year",
                                        "showall", "current", "refresh", "grid", "list", "properties"}));
    EXPECT_EQ(bar.Buttons("new").Image(), "new");
}

TEST_F(ScreenModesTest, TheLocalKindHasNoStaffEntries) {
    StartProgram("LOCAL");
    const NodeCollection& nodes = Form().tv.Nodes;
    ASSERT_EQ(nodes.Roots().size(), 2U);
    EXPECT_EQ(nodes.Roots()[0]->Key(), "HOME");
    EXPECT_EQ(nodes.Roots()[0]->Text(), "Home");
    EXPECT_EQ(childKeys(nodes.Roots()[0]), (std::vector<std::string>{"CALENDAR", "TASK", "NOTE"}));
    EXPECT_EQ(childKeys(nodes.Item("CALENDAR")), (std::vector<std::string>{"CALENDAR_ADDNEW", "CALENDAR_VIEWYEAR"}));
    EXPECT_EQ(childKeys(nodes.Item("NOTE")),
              (std::vector<std::string>{"NOTE_ADDNEW", "UnsortedNotes", "Development", "Marketing"}));
    EXPECT_EQ(childKeys(nodes.Item("CALENDARpublic_events")),
              (std::vector<std::string>{"public_events0", "public_events1", "public_events2"}));
    // The project nodes name a parent the tree does not have.
    EXPECT_EQ(nodes.Item("task_Proj1"), nullptr);
    EXPECT_EQ(nodes.Item("CALENDAR")->Text(), "My Diary");
    EXPECT_EQ(nodes.Item("CALENDAR")->Image(), "calendar");
    EXPECT_EQ(nodes.Item("Marketing")->Image(), "closed");
    EXPECT_EQ(nodes.Item("Marketing")->ExpandedImage(), "open");
    EXPECT_EQ(nodes.Item("public_events0")->Text(), "[company] Events");

    ListItemCollection& shortcuts = Form().lvView.ListItems;
    ASSERT_EQ(shortcuts.Count(), 4);
    EXPECT_EQ(shortcuts(2).Key(), "CALENDAR");
    EXPECT_EQ(shortcuts(2).Text(), "My Diary");
    EXPECT_EQ(shortcuts(2).Icon(), "clock");
    EXPECT_EQ(shortcuts(3).Icon(), "bridge");

    Button& add = Form().Toolbar1.Buttons("new");
    ASSERT_EQ(add.ButtonMenuCount(), 3);
    EXPECT_EQ(add.ButtonMenus(3)->Text(), "Note");
    // Nor a menu entry that leads to the staff planner or books a meeting.
    EXPECT_FALSE(Form().mnuAppPlanMeeting.Visible);
    EXPECT_FALSE(Form().mnuViewMode[5].Visible);
}

TEST_F(ScreenModesTest, TheClientKindHasTheStaffEntriesAndShowsTheServerState) {
    StartProgram("CLIENT");
    EXPECT_EQ(childKeys(Form().tv.Nodes.Item("HOME")), (std::vector<std::string>{"CALENDAR", "TASK", "NOTE", "STAFF"}));
    EXPECT_EQ(childKeys(Form().tv.Nodes.Item("STAFF")), (std::vector<std::string>{"STAFF_BOOKMEETING"}));
    ListItemCollection& shortcuts = Form().lvView.ListItems;
    ASSERT_EQ(shortcuts.Count(), 5);
    EXPECT_EQ(shortcuts(5).Text(), "Staff");
    EXPECT_EQ(shortcuts(5).Icon(), "meeting");
    Button& add = Form().Toolbar1.Buttons("new");
    ASSERT_EQ(add.ButtonMenuCount(), 4);
    EXPECT_EQ(add.ButtonMenus(4)->Text(), "Meeting");
    EXPECT_TRUE(Form().mnuAppPlanMeeting.Visible);
    EXPECT_EQ(Form().mnuViewMode[5].Caption(), "&Staff Planner");
    EXPECT_TRUE(Form().mnuViewMode[5].Visible);
    // No server has answered: the server button and the status bar say so.
    EXPECT_EQ(Form().Toolbar1.Buttons("refresh").Image(), "disconnect");
    EXPECT_EQ(Panel(1), "Running in Local Mode (Server not responding)");
}

TEST_F(ScreenModesTest, TheToolBarButtonsHaveTheirCaptionsAndTips) {
    StartProgram();
    ButtonCollection& buttons = Form().Toolbar1.Buttons;
    ASSERT_EQ(buttons.Count(), 15);
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"new", "New     "},   {"Find", "Find    "},    {"delete", "Delete  "},      {"print", "Print   "},
        {"today", "Today   "}, {"days", "Day     "},    {"week", "Week    "},        {"month", "Month   "},
        {"year", "Year    "},  {"showall", "All     "}, {"current", "Current "},     {"refresh", "Server  "},
        {"grid", "Grid   "},   {"list", "List   "},     {"properties", "Options  "},
    };
    for (long i = 1; i <= buttons.Count(); ++i) {
        EXPECT_EQ(buttons.Item(i)->Key(), expected[static_cast<size_t>(i - 1)].first);
        EXPECT_EQ(buttons.Item(i)->Caption(), expected[static_cast<size_t>(i - 1)].second);
    }
    EXPECT_EQ(buttons("today").ToolTipText(), "Go to Todays date");
    EXPECT_TRUE(Form().Toolbar1.ShowCaptions);
    glbConfig.ShowToolbarText = "0";
    glbScreen.SwitchMode("TASK");
    EXPECT_FALSE(Form().Toolbar1.ShowCaptions);
}

TEST_F(ScreenModesTest, TheCompanionsTitle) {
    StartProgram();
    EXPECT_EQ(glbConfig.runLocalModeOnly, "1");
    EXPECT_EQ(glbScreen.DisplayCaption(), "Tessaline - Coffee Break");
    glbConfig.runLocalModeOnly = "0";
    glbScreen.WorkingFlag = 1;
    EXPECT_EQ(glbScreen.DisplayCaption(), "Tessaline - No Server");
    glbServerAlive = true;
    EXPECT_EQ(glbScreen.DisplayCaption(), "Tessaline - Local");
    glbNetworkAlive = true;
    glbChatMode = true;
    glbMessageWaiting = true;
    EXPECT_EQ(glbScreen.DisplayCaption(), "(message) Tessaline - Chatting");
    EXPECT_EQ(glbScreen.DisplayTime(), "Sat 5-Jun 9:30:12 AM");
}
