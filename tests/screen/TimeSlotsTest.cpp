// Finding the slot (the grid's row) of a time, and the free row of a list from it.
#include <gtest/gtest.h>

#include "ProgramFixture.h"
#include "controls/ListView.h"
#include "screen/clsTimeSlots.h"

using namespace orbidex;

class FindTimeSlotTest : public orbidex::test::ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        slots.startHr = 9;
        slots.stopHr = 18;
        slots.numSlotsPerHour = 2;
        slots.InitTimeArray();
    }
    long slotOf(long hour, double minute) const { return slots.FindTimeSlot(hour, minute); }
    clsTimeSlots slots;
};

TEST_F(FindTimeSlotTest, TimesOutsideTheDayLandInTheFirstAndLastRows) {
    const std::vector<std::tuple<long, double, long>> cases = {{9, 0, 1},    {9, 29, 1},  {9, 30, 2}, {13, 15, 9},
                                                               {18, 45, 20}, {23, 0, 20}, {7, 45, 2}, {7, 15, 1}};
    for (const auto& [hour, minute, slot] : cases) EXPECT_EQ(slotOf(hour, minute), slot) << hour << ":" << minute;
    long hour = 8;
    EXPECT_EQ(slots.FindTimeSlot(hour, 59), 2);
    EXPECT_EQ(hour, 9) << "the caller's hour is moved too";
}

TEST_F(FindTimeSlotTest, InAListATakenRowGivesTheNextFreeOne) {
    ListView list;
    for (const char* taken : {"", "Dentist", "Bank", "", " "}) list.ListItems.Add().SetSubItems(2, taken);
    const auto slotInList = [&](long hour, double minute) { return slots.FindTimeSlot(hour, minute, list, false); };
    EXPECT_EQ(slotInList(9, 0), 1);
    EXPECT_EQ(slotInList(9, 30), 4) << "rows 2 and 3 are taken";
    EXPECT_EQ(slotInList(10, 30), 4) << "no free row after it: the slot itself";
    EXPECT_EQ(slotInList(12, 0), 5);
    EXPECT_EQ(slotInList(9, -40), 1);
    EXPECT_EQ(platform_.MessageTexts(), (std::vector<std::string>{"ndx over limit", "ndx under 1"}));
}
