#include <gtest/gtest.h>

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

TEST(TimeSlotsTest, NineToSixInHalfHoursHasTwentyRowsEndingInSixThirty) {
    const clsTimeSlots slots = built(9, 18, 2);
    EXPECT_EQ(slots.totSlots, 20);
    EXPECT_EQ(slots.tmeGet(1), "9 am");
    EXPECT_EQ(slots.hhmmGet(1), "0900");
    EXPECT_EQ(slots.tmeGet(2), "9:30");
    EXPECT_EQ(slots.hhmmGet(2), "0930");
    EXPECT_EQ(slots.tmeGet(7), "12 pm");
    EXPECT_EQ(slots.hhmmGet(8), "1230");
    EXPECT_EQ(slots.tmeGet(9), "1 pm");
    EXPECT_EQ(slots.hhmmGet(9), "1300");
    EXPECT_EQ(slots.tmeGet(20), "6:30");
    EXPECT_EQ(slots.hhmmGet(20), "1830");
    EXPECT_EQ(slots.tmeGet(21), "");
}

TEST(TimeSlotsTest, SevenSlotsAnHourStartTheLaterHoursAtFiftySix) {
    const clsTimeSlots slots = built(9, 10, 7);
    EXPECT_EQ(slots.totSlots, 14);
    EXPECT_EQ(slots.hhmmGet(1), "0900");
    EXPECT_EQ(slots.hhmmGet(2), "0908");
    EXPECT_EQ(slots.tmeGet(7), "9:48");
    EXPECT_EQ(slots.hhmmGet(8), "1056");
    EXPECT_EQ(slots.tmeGet(8), "10 am");
    EXPECT_EQ(slots.hhmmGet(9), "1008");
}

TEST(TimeSlotsTest, NoSlotsMeansOneAnHourAndMidnightReadsAsZero) {
    const clsTimeSlots slots = built(0, 23, 0);
    EXPECT_EQ(slots.numSlotsPerHour, 1);
    EXPECT_EQ(slots.totSlots, 24);
    EXPECT_EQ(slots.tmeGet(1), "0 am");
    EXPECT_EQ(slots.hhmmGet(1), "0000");
    EXPECT_EQ(slots.hhmmGet(10), "0900");
    EXPECT_EQ(slots.tmeGet(24), "11 pm");
    EXPECT_EQ(slots.hhmmGet(24), "2300");
}

TEST(TimeSlotsTest, TheTableStopsFullInsteadOfOverflowing) {
    const clsTimeSlots slots = built(0, 23, 60);
    EXPECT_EQ(slots.totSlots, clsTimeSlots::MaxSlot);
    EXPECT_EQ(slots.hhmmGet(61), "0100");
    EXPECT_EQ(slots.hhmmGet(clsTimeSlots::MaxSlot + 1), "");

    const clsTimeSlots empty = built(18, 9, 2);
    EXPECT_EQ(empty.totSlots, 0);
}
