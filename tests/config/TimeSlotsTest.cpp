#include <gtest/gtest.h>

#include <tuple>

#include "screen/clsTimeSlots.h"

using orbidex::clsTimeSlots;

namespace {

clsTimeSlots built(int16_t start, int16_t stop, int16_t perHour) {
    clsTimeSlots slots;
    slots.startHr = start;
    slots.stopHr = stop;
    slots.numSlotsPerHour = perHour;
    slots.InitTimeArray();
    return slots;
}

}  // namespace

TEST(TimeSlotsTest, EachRowHasItsLabelAndItsTime) {
    const clsTimeSlots halfHours = built(9, 18, 2);
    const clsTimeSlots sevens = built(9, 10, 7);
    const clsTimeSlots none = built(0, 23, 0);
    EXPECT_EQ(halfHours.totSlots, 20);
    EXPECT_EQ(sevens.totSlots, 14);
    EXPECT_EQ(none.numSlotsPerHour, 1) << "no slots means one an hour";
    EXPECT_EQ(none.totSlots, 24);
    // table, row, label, time
    const std::vector<std::tuple<const clsTimeSlots*, long, std::string, std::string>> rows = {
        {&halfHours, 1, "9 am", "0900"},
        {&halfHours, 2, "9:30", "0930"},
        {&halfHours, 7, "12 pm", "1200"},
        {&halfHours, 9, "1 pm", "1300"},
        {&halfHours, 20, "6:30", "1830"},
        {&halfHours, 21, "", ""},
        // Seven slots an hour start the later hours at 56 minutes.
        {&sevens, 2, "9:08", "0908"},
        {&sevens, 7, "9:48", "0948"},
        {&sevens, 8, "10 am", "1056"},
        {&sevens, 9, "10:08", "1008"},
        {&none, 1, "0 am", "0000"},
        {&none, 24, "11 pm", "2300"},
    };
    for (const auto& [slots, row, label, time] : rows) {
        EXPECT_EQ(slots->tmeGet(row), label) << row;
        EXPECT_EQ(slots->hhmmGet(row), time) << row;
    }
}

TEST(TimeSlotsTest, TheTableStopsFullInsteadOfOverflowing) {
    const clsTimeSlots slots = built(0, 23, 60);
    EXPECT_EQ(slots.totSlots, clsTimeSlots::MaxSlot);
    EXPECT_EQ(slots.hhmmGet(61), "0100");
    EXPECT_EQ(slots.hhmmGet(clsTimeSlots::MaxSlot + 1), "");
    EXPECT_EQ(built(18, 9, 2).totSlots, 0);
}
