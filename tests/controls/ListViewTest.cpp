#include "controls/ListView.h"

#include <gtest/gtest.h>

namespace orbidex {
namespace {

std::vector<std::string> columnTexts(const ListView& lv, long column) {
    std::vector<std::string> texts;
    for (const auto& row : lv.ListItems.Rows()) texts.push_back(ListView::ColumnText(*row, column));
    return texts;
}

TEST(ListViewTest, RowsAndSubItemsCountFromOne) {
    ListView lv("lvResults");
    for (const char* heading : {"User", "Date", "Time", "Type", "Details", ""}) lv.ColumnHeaders.Add(heading, 1200);
    ListItem& row = lv.ListItems.Add("- Task -", "T200406050001");
    for (const char* cell : {"20040605", "0930", "Task", "Write report", "task"}) row.ListSubItems.Add(cell);

    EXPECT_EQ(lv.ColumnHeaders(6).Index(), 6);
    EXPECT_EQ(row.Index(), 1);
    EXPECT_EQ(row.SubItems(3), "Task");  // the third cell behind the row's text
    EXPECT_EQ(row.ListSubItems(4).Text, "Write report");
    EXPECT_EQ(row.SubItems(6), "");
    EXPECT_EQ(row.SubItems(0), "");

    // Setting a sub-item further out makes the cells before it.
    ListItem& other = lv.ListItems.Add("x");
    other.SetSubItems(3, "third");
    EXPECT_EQ(other.ListSubItems.Count(), 3);
    EXPECT_EQ(other.SubItems(2), "");
    EXPECT_EQ(other.SubItems(3), "third");
}

TEST(ListViewTest, BadIndexesGiveARowOfNoListThatChangesNothing) {
    ListView lv;
    lv.ListItems.Add("only");
    lv.ListItems(5).Text = "ghost";
    lv.ListItems(0).SetSubItems(1, "ghost");
    lv.ListItems(1).ListSubItems(9).Bold = true;
    EXPECT_EQ(lv.ListItems.Count(), 1);
    EXPECT_EQ(lv.ListItems(1).Text, "only");
    EXPECT_EQ(lv.ListItems(5).Text, "") << "the row of no list starts empty each time";
    EXPECT_EQ(lv.ListItems.Item(2), nullptr);
    EXPECT_EQ(lv.ColumnHeaders(3).Index(), 0);
}

TEST(ListViewTest, KeysFindRowsWithoutRegardToCaseAndATakenKeyIsNotGivenTwice) {
    ListView lv;
    lv.ListItems.Add("first", "D200406050001");
    ListItem& second = lv.ListItems.Add("second", "d200406050001");
    EXPECT_EQ(lv.ListItems.Count(), 2) << "no row is lost";
    EXPECT_EQ(second.Key, "");
    EXPECT_EQ(lv.ListItems.Item("d200406050001")->Text, "first");

    second.Key = "N200406050002";
    EXPECT_EQ(lv.ListItems.Item("n200406050002"), &second);
    second.Key = "D200406050001";  // taken: the row keeps its key
    EXPECT_EQ(second.Key, "N200406050002");

    lv.ListItems.Remove(1);
    EXPECT_EQ(lv.ListItems.Item("D200406050001"), nullptr);
    EXPECT_EQ(second.Index(), 1);
    lv.ListItems.Add("third", "D200406050001");
    EXPECT_EQ(lv.ListItems.Item("D200406050001")->Text, "third");
}

TEST(ListViewTest, SortingByAColumnBothWaysKeepsEqualRowsInOrder) {
    ListView lv;
    const char* rows[][2] = {{"b", "0930"}, {"A", "1400"}, {"c", "0930"}, {"a", "0800"}};
    for (auto& r : rows) lv.ListItems.Add(r[0]).SetSubItems(1, r[1]);

    lv.SortKey = 0;
    lv.Sorted = true;
    EXPECT_EQ(columnTexts(lv, 0), (std::vector<std::string>{"A", "a", "b", "c"}));
    lv.SortOrder = lvwDescending;
    EXPECT_EQ(columnTexts(lv, 0), (std::vector<std::string>{"c", "b", "A", "a"}));

    lv.SortKey = 1;  // by the time column; b and c stay in the order they had
    EXPECT_EQ(columnTexts(lv, 0), (std::vector<std::string>{"A", "c", "b", "a"}));
    lv.SortOrder = lvwAscending;
    EXPECT_EQ(columnTexts(lv, 1), (std::vector<std::string>{"0800", "0930", "0930", "1400"}));
    EXPECT_EQ(lv.ListItems(1).Index(), 1);
    EXPECT_EQ(lv.ListItems(4).Text, "A");

    // While sorted by the row's text, a new row goes into its place.
    lv.SortKey = 0;
    lv.ListItems.Add("B");
    EXPECT_EQ(columnTexts(lv, 0), (std::vector<std::string>{"a", "A", "b", "B", "c"}));

    lv.Sorted = false;  // switching sorting off leaves the order as it is
    lv.ListItems.Add("0");
    EXPECT_EQ(lv.ListItems(6).Text, "0");
}

TEST(ListViewTest, TickBoxesTellTheHandlerAndKeepTheirState) {
    ListView lv;
    lv.Checkboxes = true;
    ListItem& fred = lv.ListItems.Add("fred");
    ListItem& mary = lv.ListItems.Add("mary");
    std::vector<std::string> ticks;
    lv.onItemCheck = [&](ListItem& item) { ticks.push_back(item.Text() + (item.Checked ? "+" : "-")); };

    mary.Checked = true;  // by the program: no event
    lv.UserCheckItem(fred, true);
    lv.UserCheckItem(mary, false);
    EXPECT_EQ(ticks, (std::vector<std::string>{"fred+", "mary-"}));
    EXPECT_TRUE(fred.Checked);
    EXPECT_FALSE(mary.Checked);
}

TEST(ListViewTest, OneRowIsSelectedUnlessSeveralMayBe) {
    ListView lv;
    ListItem& a = lv.ListItems.Add("a");
    ListItem& b = lv.ListItems.Add("b");
    ListItem& c = lv.ListItems.Add("c");
    std::vector<std::string> events;
    lv.onItemClick = [&](ListItem& item) { events.push_back("ItemClick " + item.Text()); };
    lv.onClick = [&] { events.push_back("Click"); };
    lv.onDblClick = [&] { events.push_back("DblClick " + lv.SelectedItem()->Text()); };

    lv.UserClickItem(b);
    lv.UserDblClickItem(c);
    EXPECT_EQ(events, (std::vector<std::string>{"ItemClick b", "Click", "DblClick c"}));
    EXPECT_FALSE(b.Selected);
    EXPECT_EQ(lv.SelectedItem(), &c);

    a.Selected = true;  // by the program, too
    EXPECT_FALSE(c.Selected);
    EXPECT_EQ(lv.SelectedItem(), &a);
    lv.ListItems.Remove(1);
    EXPECT_EQ(lv.SelectedItem(), nullptr);

    lv.MultiSelect = true;
    lv.UserClickItem(b);
    lv.UserClickItem(c, true);
    EXPECT_TRUE(b.Selected);
    EXPECT_TRUE(c.Selected);
    EXPECT_EQ(lv.SelectedItem(), &c);
    lv.SetSelectedItem(nullptr);
    EXPECT_FALSE(b.Selected);
    EXPECT_EQ(lv.SelectedItem(), nullptr);
}

TEST(ListViewTest, AColumnClickNamesTheColumn) {
    ListView lv;
    lv.ColumnHeaders.Add(" ", 450);
    lv.ColumnHeaders.Add("Date", 1240);
    long clicked = 0;
    lv.onColumnClick = [&](ColumnHeader& column) { clicked = column.Index(); };
    lv.UserClickColumn(2);
    EXPECT_EQ(clicked, 2);
    lv.UserClickColumn(3);  // no such column
    EXPECT_EQ(clicked, 2);
}

}  // namespace
}  // namespace orbidex
