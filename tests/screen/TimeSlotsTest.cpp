// Finding the slot (the grid's row) of a time, and the free row of a list from it.
#include <gtest/gtest.h>

#include "ProgramFixture.h"
#include "controls/ListView.h"
#include "screen/clsTimeSlots.h"

using namespace orbidex;

namespace {

clsTimeSlots nineToSixInHalfHours() {
    clsTimeSlots slots;
    slots.startHr = 9;
    slots.stopHr = 18;
    slots.numSlotsPerHour = 2;
    slots.InitTimeArray();
    return slots;
}

long slotOf(const clsTimeSlots& slots, long hour, double minute) { return slots.FindTimeSlot(hour, minute); }

}  // namespace

TEST(FindTimeSlotTest, TimesOutsideTheDayLandInTheFirstAndLastRows) {
    const clsTimeSlots slots = nineToSixInHalfHours();
    EXPECT_EQ(slotOf(slots, 9, 0), 1);
    EXPECT_EQ(slotOf(slots, 9, 29), 1);
    EXPECT_EQ(slotOf(slots, 9, 30), 2);
    EXPECT_EQ(slotOf(slots, 13, 15), 9);
    EXPECT_EQ(slotOf(slots, 18, 45), 20);
    EXPECT_EQ(slotOf(slots, 23, 0), 20) << "after the last hour: the last row";
    EXPECT_EQ(slotOf(slots, 19, 0), 20);

    // Before the first hour the hour is moved, in the caller's variable too, but the
    // minutes still count.
    long hour = 8;
    EXPECT_EQ(slots.FindTimeSlot(hour, 59), 2);
    EXPECT_EQ(hour, 9);
    EXPECT_EQ(slotOf(slots, 7, 45), 2);
    EXPECT_EQ(slotOf(slots, 7, 15), 1);

    clsTimeSlots sevenAnHour = slots;
    sevenAnHour.numSlotsPerHour = 7;
    sevenAnHour.InitTimeArray();
    EXPECT_EQ(slotOf(sevenAnHour, 10, 59), 14);
}

class FindTimeSlotInListTest : public orbidex::test::ProgramFixture {
protected:
    // Rows of a list whose second sub-item tells whether the slot is taken.
    void addRows(const std::vector<std::string>& taken) {
        for (const std::string& text : taken) list.ListItems.Add().SetSubItems(2, text);
    }
    ListView list;
    clsTimeSlots slots = nineToSixInHalfHours();
};

TEST_F(FindTimeSlotInListTest, ATakenRowGivesTheNextFreeOneAndBadRowsAreBroughtIntoTheList) {
    addRows({"", "Dentist", "Bank", "", " "});
    long hour = 9;
    EXPECT_EQ(slots.FindTimeSlot(hour, 0, list, false), 1);
    EXPECT_EQ(slots.FindTimeSlot(hour, 30, list, false), 4) << "rows 2 and 3 are taken";
    EXPECT_EQ(slots.FindTimeSlot(hour, 30, list, true), 2) << "the raw index ignores the list";
    EXPECT_TRUE(platform_.Transcript().empty());

    hour = 11;  // slot 5, the last row, whose text is blank
    EXPECT_EQ(slots.FindTimeSlot(hour, 0, list, false), 5);
    hour = 12;  // slot 7, beyond the list
    EXPECT_EQ(slots.FindTimeSlot(hour, 0, list, false), 5);
    hour = 9;  // a negative minute gives slot -1
    EXPECT_EQ(slots.FindTimeSlot(hour, -40, list, false), 1);
    EXPECT_EQ(platform_.MessageTexts(), (std::vector<std::string>{"ndx over limit", "ndx under 1"}));

    ListView allTaken;
    allTaken.ListItems.Add().SetSubItems(2, "x");
    allTaken.ListItems.Add().SetSubItems(2, "y");
    EXPECT_EQ(slots.FindTimeSlot(hour, 0, allTaken, false), 1) << "no free row: the slot itself";
}
