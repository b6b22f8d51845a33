// Tool bars, status bars, tab strips and trees.
#include <gtest/gtest.h>

#include "controls/StatusBar.h"
#include "controls/TabStrip.h"
#include "controls/Toolbar.h"
#include "controls/TreeView.h"

namespace orbidex {
namespace {

TEST(ToolbarTest, ButtonsAreFoundByKeyAndPressedByTheirStyle) {
    Toolbar bar("Toolbar1");
    Button& newButton = bar.Buttons.Add("new", "New     ", tbrDropdown, "calendar");
    newButton.ToolTipText = "Add a new item";
    newButton.AddButtonMenu("Event");
    newButton.AddButtonMenu("Task", "task");
    bar.Buttons.Add("", "", tbrSeparator);
    for (const char* key : {"days", "week", "month"}) bar.Buttons.Add(key, key, tbrButtonGroup);
    bar.Buttons.Add("grid", "Grid   ", tbrCheck);

    std::vector<std::string> clicks;
    bar.onButtonClick = [&](Button& b) { clicks.push_back(b.Key); };
    bar.onButtonMenuClick = [&](ButtonMenu& m) { clicks.push_back(m.Parent()->Key() + ":" + m.Text()); };

    bar.Buttons("week").Value = tbrPressed;
    bar.UserClickButton(bar.Buttons("month"));
    EXPECT_EQ(bar.Buttons("week").Value, tbrUnpressed);
    EXPECT_EQ(bar.Buttons("MONTH").Value, tbrPressed);
    bar.UserClickButton(bar.Buttons("grid"));
    bar.UserClickButton(bar.Buttons("grid"));
    EXPECT_EQ(bar.Buttons("grid").Value, tbrUnpressed);
    bar.UserClickButtonMenu(*newButton.ButtonMenus("task"));
    bar.UserClickButton(*bar.Buttons.Item(2));  // a separator does nothing
    EXPECT_EQ(clicks, (std::vector<std::string>{"month", "grid", "grid", "new:Task"}));

    // A button that is not there takes what is done to it and changes nothing.
    bar.Buttons("refresh").Visible = false;
    EXPECT_EQ(bar.Buttons.Item("refresh"), nullptr);
    EXPECT_TRUE(bar.Buttons("refresh").Visible);
    EXPECT_EQ(bar.Buttons.Count(), 6);
}

TEST(StatusBarTest, ANewBarHasOnePanelAndPanelsCountFromOne) {
    StatusBar status("status");
    ASSERT_EQ(status.Panels.Count(), 1);
    status.Panels(1).Text = "Blank Timeslot on 5-Jun-2004 at 0930";
    status.Panels(2).Text = "lost";  // no second panel yet
    status.Panels.Add("", "mode");
    status.Panels(2).Text = "CALENDAR";
    EXPECT_EQ(status.Panels(1).Text, "Blank Timeslot on 5-Jun-2004 at 0930");
    EXPECT_EQ(status.Panels("MODE").Text, "CALENDAR");
    EXPECT_EQ(status.Panels(2).Index(), 2);
}

TEST(TabStripTest, TheFirstTabIsSelectedAndEachNewSelectionClicks) {
    TabStrip tabs("tabEvent");
    std::vector<long> clicks;
    tabs.onClick = [&] { clicks.push_back(tabs.SelectedItem()->Index()); };
    tabs.Tabs.Add("General");
    tabs.Tabs.Add("Reminder");
    tabs.Tabs.Add("Advanced", "adv");
    EXPECT_EQ(tabs.SelectedItem()->Index(), 1);
    tabs.UserClickTab(tabs.Tabs(3));
    tabs.Tabs(2).Selected = true;
    tabs.Tabs(2).Selected = false;  // a strip keeps one tab selected
    EXPECT_TRUE(tabs.Tabs(2).Selected);
    EXPECT_FALSE(tabs.Tabs("adv").Selected);
    EXPECT_EQ(clicks, (std::vector<long>{1, 3, 2}));
    tabs.Tabs.Remove(2);
    EXPECT_EQ(tabs.SelectedItem(), nullptr);
    EXPECT_EQ(tabs.Tabs(2).Caption, "Advanced");
}

TEST(TreeViewTest, NodesHangUnderTheirRelativeAndAMissingRelativeAddsNothing) {
    TreeView tv("tv");
    ASSERT_NE(tv.Nodes.Add("", tvwLast, "HOME", "Home", "leaf"), nullptr);
    tv.Nodes.Add("HOME", tvwChild, "CALENDAR", "My Diary", "calendar");
    tv.Nodes.Add("HOME", tvwChild, "NOTE", "Notes", "note");
    tv.Nodes.Add("NOTE", tvwPrevious, "TASK", "Tasks", "task");
    tv.Nodes.Add("CALENDAR", tvwChild, "CALENDAR_ADDNEW", "Add New Event", "new");
    tv.Nodes.Add("", tvwLast, "public", "Public Information", "leaf");

    EXPECT_EQ(tv.Nodes.Add("TASK_ByProj", tvwChild, "task_Proj1", "Project 1", "closed"), nullptr);
    EXPECT_EQ(tv.Nodes.Add("HOME", tvwChild, "calendar", "again"), nullptr) << "keys are unique without case";
    EXPECT_EQ(tv.Nodes.Count(), 6);

    Node* home = tv.Nodes.Item("home");
    ASSERT_NE(home, nullptr);
    std::vector<std::string> children;
    for (Node* child : home->Children()) children.push_back(child->Key());
    EXPECT_EQ(children, (std::vector<std::string>{"CALENDAR", "TASK", "NOTE"}));
    EXPECT_EQ(tv.Nodes.Roots().size(), 2u);

    // Selecting a node opens the nodes above it; a click tells the handler.
    std::string clicked;
    tv.onNodeClick = [&](Node& n) { clicked = n.Key(); };
    Node* addNew = tv.Nodes.Item("CALENDAR_ADDNEW");
    addNew->Selected = true;
    EXPECT_TRUE(tv.Nodes.Item("CALENDAR")->Expanded);
    EXPECT_TRUE(home->Expanded);
    tv.UserClickNode(*tv.Nodes.Item("NOTE"));
    EXPECT_EQ(clicked, "NOTE");
    EXPECT_FALSE(addNew->Selected);
    EXPECT_EQ(tv.SelectedItem()->Text, "Notes");

    tv.Nodes.Remove("CALENDAR");
    EXPECT_EQ(tv.Nodes.Item("CALENDAR_ADDNEW"), nullptr);
    EXPECT_EQ(home->Children().size(), 2u);
}

}  // namespace
}  // namespace orbidex
