#include <gtest/gtest.h>

#include <algorithm>

#include "ProgramFixture.h"
#include "controls/ComboBox.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/LoadFileToListBox.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"

namespace orbidex {
namespace {

std::vector<std::string> entries(const ListControl& list) {
    std::vector<std::string> texts;
    for (long i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
    return texts;
}

TEST(ComboBoxTest, ChoosingAnEntryByIndexOrTextSetsTheOtherAndClicks) {
    ComboBox combo("cmbReminder");
    int clicks = 0;
    combo.onClick = [&] { ++clicks; };
    for (const char* entry : {"0 minutes", "5 minutes", "15 minutes", "1 hour   "}) combo.AddItem(entry);
    EXPECT_EQ(combo.ListIndex, -1);
    EXPECT_EQ(combo.Text, "");

    combo.ListIndex = 2;
    EXPECT_EQ(combo.Text, "15 minutes");
    EXPECT_EQ(clicks, 1);
    combo.ListIndex = 2;  // no change, no click
    combo.ListIndex = 7;  // no such entry: nothing changes
    EXPECT_EQ(combo.ListIndex, 2);
    EXPECT_EQ(clicks, 1);

    // An edit field takes any text; a text equal to an entry chooses it.
    combo.Text = "1 HOUR   ";
    EXPECT_EQ(combo.ListIndex, 3);
    combo.Text = "Hospital";
    EXPECT_EQ(combo.ListIndex, -1);
    EXPECT_EQ(combo.Text, "Hospital");

    // A drop-down list only takes its own entries.
    combo.Style = vbComboDropdownList;
    combo.Text = "5 minutes";
    EXPECT_EQ(combo.ListIndex, 1);
    EXPECT_EQ(clicks, 2);
    combo.Text = "Hospital";
    EXPECT_EQ(combo.Text, "5 minutes");
}

TEST(ComboBoxTest, RemovingAndInsertingEntriesKeepsTheChoiceOnItsEntry) {
    ComboBox combo;
    for (const char* entry : {"a", "b", "c"}) combo.AddItem(entry);
    combo.ListIndex = 1;
    combo.AddItem("first", 0);
    EXPECT_EQ(combo.ListIndex, 2);
    EXPECT_EQ(combo.NewIndex(), 0);
    combo.RemoveItem(0);
    EXPECT_EQ(combo.ListIndex, 1);
    EXPECT_EQ(combo.Text, "b");
    combo.RemoveItem(1);
    EXPECT_EQ(combo.ListIndex, -1);
    combo.Clear();
    EXPECT_EQ(combo.ListCount(), 0);
    EXPECT_EQ(combo.Text, "");
    EXPECT_EQ(combo.List(0), "");
}

TEST(ComboBoxTest, ASortedListPutsNewEntriesInPlaceWithoutRegardToCase) {
    ComboBox combo;
    combo.Sorted = true;
    for (const char* entry : {"pear", "Apple", "banana", "apple"}) combo.AddItem(entry);
    EXPECT_EQ(entries(combo), (std::vector<std::string>{"Apple", "apple", "banana", "pear"}));
    EXPECT_EQ(combo.NewIndex(), 1);
}

TEST(ListBoxTest, TicksAreTheSelectionOfAListWithTickBoxes) {
    ListBox list("lstUsers");
    list.Style = vbListBoxCheckbox;
    for (const char* entry : {"fred", "mary", "john"}) list.AddItem(entry);
    std::vector<long> checked;
    list.onItemCheck = [&](long index) { checked.push_back(index); };
    list.SetSelected(0, true);
    list.UserCheck(2, true);
    list.UserCheck(0, false);
    EXPECT_EQ(checked, (std::vector<long>{2, 0}));
    EXPECT_FALSE(list.Selected(0));
    EXPECT_TRUE(list.Selected(2));
    EXPECT_EQ(list.SelCount(), 1);

    // In a plain list the highlight follows the chosen entry.
    ListBox plain;
    for (const char* entry : {"a", "b"}) plain.AddItem(entry);
    plain.UserSelect(1);
    EXPECT_TRUE(plain.Selected(1));
    EXPECT_EQ(plain.Text, "b");
    plain.SetSelected(0, true);
    EXPECT_FALSE(plain.Selected(1));
    EXPECT_EQ(plain.ListIndex, 0);
}

class LoadFileToListBoxTest : public test::ProgramFixture {};

TEST_F(LoadFileToListBoxTest, EachNonEmptyLineBecomesAnEntry) {
    WriteBytes(Stored("data\\locations.txt"), "Office\r\n\r\nHospital, ward 3\r\nHome");
    ComboBox combo;
    combo.AddItem("old");
    LoadFileToListBox(combo, Stored("data\\locations.txt"), 0);
    EXPECT_EQ(entries(combo), (std::vector<std::string>{"Office", "Hospital, ward 3", "Home"}));

    LoadFileToListBox(combo, Stored("data\\locations.txt"), 1);  // kept: added behind
    EXPECT_EQ(combo.ListCount(), 6);

    ListView lv;
    LoadFileToListBox(lv, Stored("data\\locations.txt"));
    EXPECT_EQ(lv.ListItems.Count(), 3);
    EXPECT_EQ(lv.ListItems(2).Text, "Hospital, ward 3");
    EXPECT_FALSE(lv.ListItems(2).Checked);
}

TEST_F(LoadFileToListBoxTest, ListsWithTickBoxesLoseOneTrailingCommaAndAreTicked) {
    WriteBytes(Stored("data\\users.txt"), "fred,\r\nmary,,\r\njohn\r\n");
    ListBox list;
    list.Style = vbListBoxCheckbox;
    LoadFileToListBox(list, Stored("data\\users.txt"));
    EXPECT_EQ(entries(list), (std::vector<std::string>{"fred", "mary,", "john"}));
    for (long i = 0; i < 3; ++i) EXPECT_TRUE(list.Selected(i));

    ListView lv;
    lv.Checkboxes = true;
    LoadFileToListBox(lv, Stored("data\\users.txt"));
    EXPECT_EQ(lv.ListItems(1).Text, "fred");
    EXPECT_TRUE(lv.ListItems(3).Checked);
}

TEST_F(LoadFileToListBoxTest, AMissingFileIsLoggedAndLeavesTheListAsItIs) {
    gLogLevel = 3;
    ComboBox combo;
    combo.AddItem("common");
    LoadFileToListBox(combo, Stored("data\\references.txt"), 0);
    LoadFileToListBox(combo, "", 0);
    EXPECT_EQ(entries(combo), (std::vector<std::string>{"common"}));
    const std::vector<std::string> log = LogMessages();
    EXPECT_EQ(std::count_if(log.begin(), log.end(), [](const std::string& m) { return m.find("LoadFile") == 0; }), 1);
    EXPECT_EQ(log.back(), "LoadFileToListBox : cant find " + Stored("data\\references.txt"));

    // A folder where the file should be counts as missing.
    MakeFolder(Stored("data\\folder.txt"));
    LoadFileToListBox(combo, Stored("data\\folder.txt"), 0);
    EXPECT_EQ(combo.ListCount(), 1);
}

}  // namespace
}  // namespace orbidex
