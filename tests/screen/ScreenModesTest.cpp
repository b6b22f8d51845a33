// The modes of the main window: what each one shows, the bars, the tool bar by mode,
// and the tree, shortcuts and tool bar of the two kinds of program.
#include <gtest/gtest.h>

#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

/// The keys of the nodes, each followed by its children in brackets.
std::string Keys(const std::vector<Node*>& nodes) {
    std::string keys;
    for (const Node* node : nodes) {
        keys += (keys.empty() ? "" : " ") + node->Key();
        if (!node->Children().empty()) keys += "(" + Keys(node->Children()) + ")";
    }
    return keys;
}

}  // namespace

class ScreenModesTest : public test::MainScreenFixture {
protected:
    /// The names of the main window's views that are visible, in a fixed order.
    std::string ShownViews() {
        std::string shown;
        for (Control* view :
             std::initializer_list<Control*>{&Form().lblHeading, &Form().gridDays, &Form().lvDiary, &Form().lvCat,
                                             &Form().MonthView1, &Form().lvUsers, &Form().lblUsers, &Form().web})
            if (view->Visible) shown += (shown.empty() ? "" : " ") + view->Name();
        return shown;
    }
    /// The tree and the shortcut bar as "name shown|hidden left+width".
    std::string SideBars() {
        std::string bars;
        for (Control* bar : std::initializer_list<Control*>{&Form().tv, &Form().lvView})
            bars += bar->Name() + (bar->Visible ? " shown " : " hidden ") + CStr(bar->Left()) + "+" +
                    CStr(bar->Width()) + " ";
        return bars;
    }
    /// The shortcut bar's items as "key 'text' icon;", then the menu of `new` as "new: text;".
    std::string Entries() {
        std::string entries;
        for (long i = 1; i <= Form().lvView.ListItems.Count(); ++i) {
            const ListItem& item = Form().lvView.ListItems(i);
            entries += item.Key() + " '" + item.Text() + "' " + item.Icon() + "; ";
        }
        const Button& add = Form().Toolbar1.Buttons("new");
        for (long i = 1; i <= add.ButtonMenuCount(); ++i) entries += "new: " + add.ButtonMenus(i)->Text() + "; ";
        return entries;
    }
    /// The tool bar's visible keys, then the pressed ones after "|", then `new`'s image.
    std::string Bar() {
        Toolbar& bar = Form().Toolbar1;
        std::string keys;
        std::string pressed;
        for (long i = 1; i <= bar.Buttons.Count(); ++i) {
            const Button& button = *bar.Buttons.Item(i);
            if (button.Visible) keys += button.Key() + " ";
            if (button.Value() == tbrPressed) pressed += button.Key() + " ";
        }
        return keys + "| " + pressed + "| new: " + bar.Buttons("new").Image();
    }
};

TEST_F(ScreenModesTest, TheStartShowsTheCalendar) {
    StartProgram();
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    EXPECT_EQ(Form().Caption(), "Events - Brindlewick Software's Orbidex");
    EXPECT_EQ(Form().lblHeading.Caption(), "  Events for Saturday, 5-Jun-2004");
    // The mode's name stands in panel 2 until the calendar's totals take both panels.
    EXPECT_EQ(Panel(1), "Viewing 5-Jun-04 ");
    EXPECT_EQ(Panel(2), "0 min   spent on 0 events  ");
    EXPECT_EQ(ShownViews(), "lblHeading gridDays lvCat MonthView1");
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
    EXPECT_EQ(SideBars(), "tv hidden 0+0 lvView hidden 0+0 ");

    glbConfig.ShowFolders = "1";
    glbConfig.ShowShortCut = "1";
    glbConfig.ShortCutSmallIcon = "1";
    glbConfig.ShowToolbar = "0";
    glbScreen.SwitchMode("NOTE");
    EXPECT_EQ(SideBars(), "tv shown 1015+2500 lvView shown 0+1005 ");
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
    EXPECT_EQ(ShownViews(), "lblHeading gridDays lvCat MonthView1");
    EXPECT_EQ(Form().tv.SelectedItem()->Key(), "CALENDAR");
}

TEST_F(ScreenModesTest, EachModeShowsItsOwnControlsTitlesAndToolBar) {
    StartProgram();
    const std::string all =
        "new Find delete print today days week month year showall current refresh grid list properties";
    const struct {
        std::string mode;
        int days;                      ///< the view's length set before the mode is shown
        std::string caption, heading;  ///< "-" where another test checks it or it is hidden
        std::string views, bar;
    } modes[] = {
        {"CALENDAR", 7, "Events - Brindlewick Software's Orbidex", "  Events for Week beginning 31-May-2004",
         "lblHeading gridDays lvCat MonthView1",
         "new Find delete print today days week month grid list properties | week | new: calendar"},
        {"TASK", 7, "Tasks - Brindlewick Software's Orbidex", "  Tasks", "lblHeading lvCat",
         "new Find delete print year showall current grid list properties | current | new: task"},
        {"NOTE", 7, "Notes - Brindlewick Software's Orbidex", "  Notes", "lblHeading lvCat",
         "new Find delete print year grid list properties | | new: note"},
        // The other modes show the whole bar, `new` with its own image.
        {"MAIL", 7, "Messages - Brindlewick Softwares Orbidex", "  Messages", "lblHeading lvCat",
         all + " | | new: new"},
        {"STAFF", 31, "Staff Planner - Brindlewick Softwares Orbidex", "-",
         "lblHeading gridDays MonthView1 lvUsers lblUsers",
         "new Find delete print today days week month refresh grid list properties | month | new: staff"},
        {"HOME", 31, "Home - Brindlewick Software's Orbidex", "-", "web", all + " | | new: new"},
        {"FILE", 31, "My Files - Orbidex", "  My Files", "web", all + " | | new: new"},
        {"WEB", 31, "-", "  WEB ", "web", all + " | | new: new"},
    };
    for (const auto& m : modes) {
        SCOPED_TRACE(m.mode);
        glbConfig.DayWeekMonth = m.days;
        glbScreen.SwitchMode(m.mode, true);
        if (m.caption != "-") {
            EXPECT_EQ(Form().Caption(), m.caption);
        }
        if (m.heading != "-") {
            EXPECT_EQ(Form().lblHeading.Caption(), m.heading);
        }
        EXPECT_EQ(ShownViews(), m.views);
        EXPECT_EQ(Bar(), m.bar);
    }
    // The message list of the calendar's date stands under one heading that names it.
    glbScreen.SwitchMode("MAIL");
    ASSERT_EQ(Form().lvCat.ColumnHeaders.Count(), 1);
    EXPECT_EQ(Form().lvCat.ColumnHeaders(1).Text(), "Messages - Sat, 5-Jun-04");
    EXPECT_EQ(Form().lvCat.ListItems(1).Text(), "No messages on 5-Jun");
    glbScreen.SwitchMode("DRAWING - PICS");
    EXPECT_EQ(platform_.MessageTexts().back(), "TODO");
}

TEST_F(ScreenModesTest, TheLocalKindHasNoStaffEntries) {
    StartProgram("LOCAL");
    const NodeCollection& nodes = Form().tv.Nodes;
    // The project nodes name a parent the tree does not have.
    EXPECT_EQ(Keys(nodes.Roots()),
              "HOME(CALENDAR(CALENDAR_ADDNEW CALENDAR_VIEWYEAR) TASK(TASK_ADDNEW) NOTE(NOTE_ADDNEW UnsortedNotes "
              "Development Marketing)) public(CALENDARpublic_events(public_events0 public_events1 public_events2) "
              "public_contacts TASK_public public_notes)");
    EXPECT_EQ(nodes.Roots()[0]->Text(), "Home");
    EXPECT_EQ(nodes.Item("CALENDAR")->Text(), "My Diary");
    EXPECT_EQ(nodes.Item("CALENDAR")->Image(), "calendar");
    EXPECT_EQ(nodes.Item("Marketing")->Image(), "closed");
    EXPECT_EQ(nodes.Item("Marketing")->ExpandedImage(), "open");
    EXPECT_EQ(nodes.Item("public_events0")->Text(), "[company] Events");
    EXPECT_EQ(Entries(),
              "HOME 'Home' overview; CALENDAR 'My Diary' clock; TASK 'Tasks' bridge; NOTE 'Notes' note; "
              "new: Event; new: Task; new: Note; ");
    // Nor a menu entry that leads to the staff planner or books a meeting.
    EXPECT_FALSE(Form().mnuAppPlanMeeting.Visible);
    EXPECT_FALSE(Form().mnuViewMode[5].Visible);
}

TEST_F(ScreenModesTest, TheClientKindHasTheStaffEntriesAndShowsTheServerState) {
    StartProgram("CLIENT");
    EXPECT_EQ(Keys(Form().tv.Nodes.Roots()),
              "HOME(CALENDAR(CALENDAR_ADDNEW CALENDAR_VIEWYEAR) TASK(TASK_ADDNEW) NOTE(NOTE_ADDNEW UnsortedNotes "
              "Development Marketing) STAFF(STAFF_BOOKMEETING)) public(CALENDARpublic_events(public_events0 "
              "public_events1 public_events2) public_contacts TASK_public public_notes)");
    EXPECT_EQ(Entries(),
              "HOME 'Home' overview; CALENDAR 'My Diary' clock; TASK 'Tasks' bridge; NOTE 'Notes' note; "
              "STAFF 'Staff' meeting; new: Event; new: Task; new: Note; new: Meeting; ");
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
    std::string captions;
    for (long i = 1; i <= buttons.Count(); ++i)
        captions += buttons.Item(i)->Key() + "='" + buttons.Item(i)->Caption() + "' ";
    EXPECT_EQ(captions,
              "new='New     ' Find='Find    ' delete='Delete  ' print='Print   ' today='Today   ' days='Day     ' "
              "week='Week    ' month='Month   ' year='Year    ' showall='All     ' current='Current ' "
              "refresh='Server  ' grid='Grid   ' list='List   ' properties='Options  ' ");
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
