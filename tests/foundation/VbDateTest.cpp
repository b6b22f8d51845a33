#include <gtest/gtest.h>

#include "foundation/VbDate.h"

using namespace orbidex;

TEST(VbDate, SerialNumbersMatchVb) {
    EXPECT_EQ(DateSerial(1899, 12, 30), 0);
    EXPECT_EQ(DateSerial(1900, 1, 1), 2);
    EXPECT_EQ(DateSerial(2004, 6, 5), 38143);
    EXPECT_EQ(DateSerial(1899, 12, 29), -1);
}

TEST(VbDate, DateSerialRollsMonthsAndDaysOver) {
    EXPECT_EQ(DateSerial(2004, 13, 1), DateSerial(2005, 1, 1));
    EXPECT_EQ(DateSerial(2004, 3, 0), DateSerial(2004, 2, 29));
    EXPECT_EQ(DateSerial(2005, 3, 0), DateSerial(2005, 2, 28));
    EXPECT_EQ(DateSerial(2004, 0, 1), DateSerial(2003, 12, 1));
    EXPECT_EQ(DateSerial(2004, 1, 32), DateSerial(2004, 2, 1));
    EXPECT_EQ(DaysInMonth(2000, 2), 29);
    EXPECT_EQ(DaysInMonth(1900, 2), 28);
}

TEST(VbDate, PartsOfADateAndTime) {
    const VbDate d = DateSerial(2004, 6, 5) + TimeSerial(23, 59, 58);
    EXPECT_EQ(Year(d), 2004);
    EXPECT_EQ(Month(d), 6);
    EXPECT_EQ(Day(d), 5);
    EXPECT_EQ(Hour(d), 23);
    EXPECT_EQ(Minute(d), 59);
    EXPECT_EQ(Second(d), 58);
    EXPECT_EQ(Weekday(d), 7);  // a Saturday
    EXPECT_EQ(Weekday(d, 2), 6);
    EXPECT_EQ(DateOnly(d), DateSerial(2004, 6, 5));
    // -1.25 is 29 Dec 1899 06:00.
    EXPECT_EQ(Day(-1.25), 29);
    EXPECT_EQ(Hour(-1.25), 6);
}

TEST(VbDate, DateAddCutsMonthEndsAndCrossesYears) {
    EXPECT_EQ(DateAdd("m", 1, DateSerial(2004, 1, 31)), DateSerial(2004, 2, 29));
    EXPECT_EQ(DateAdd("m", 1, DateSerial(2005, 1, 31)), DateSerial(2005, 2, 28));
    EXPECT_EQ(DateAdd("m", -1, DateSerial(2004, 3, 31)), DateSerial(2004, 2, 29));
    EXPECT_EQ(DateAdd("yyyy", 1, DateSerial(2004, 2, 29)), DateSerial(2005, 2, 28));
    EXPECT_EQ(DateAdd("q", 1, DateSerial(2004, 11, 15)), DateSerial(2005, 2, 15));
    EXPECT_EQ(DateAdd("ww", 1, DateSerial(2004, 12, 28)), DateSerial(2005, 1, 4));
    const VbDate late = DateSerial(2004, 12, 31) + TimeSerial(23, 59, 58);
    EXPECT_EQ(FormatDate(DateAdd("s", 5, late), "yyyy-mm-dd hh:mm:ss"), "2005-01-01 00:00:03");
    EXPECT_EQ(FormatDate(DateAdd("n", -1, DateSerial(2004, 1, 1)), "yyyy-mm-dd hh:mm:ss"), "2003-12-31 23:59:00");
}

TEST(VbDate, DateDiffCountsBoundaries) {
    EXPECT_EQ(DateDiff("d", DateSerial(2004, 2, 28), DateSerial(2004, 3, 1)), 2);
    EXPECT_EQ(DateDiff("m", DateSerial(2004, 1, 31), DateSerial(2004, 2, 1)), 1);
    EXPECT_EQ(DateDiff("yyyy", DateSerial(2004, 12, 31), DateSerial(2005, 1, 1)), 1);
    EXPECT_EQ(DateDiff("n", TimeSerial(9, 0, 0), TimeSerial(10, 30, 0)), 90);
    EXPECT_EQ(DateDiff("ww", DateSerial(2004, 6, 5), DateSerial(2004, 6, 6)), 1);  // Sat to Sun
}

TEST(VbDate, FormatCoversThePatternsOfTheProgram) {
    const VbDate d = DateSerial(2004, 6, 5) + TimeSerial(9, 5, 3);
    // "mm" is the month, or the minutes right after an hour or before seconds.
    EXPECT_EQ(FormatDate(d, "yyyymmdd"), "20040605");
    EXPECT_EQ(FormatDate(d, "yyyyMM"), "200406");
    EXPECT_EQ(FormatDate(d, "hhmm"), "0905");
    EXPECT_EQ(FormatDate(d, "hh:nn:ss"), "09:05:03");
    EXPECT_EQ(FormatDate(d, "yyyy-mm-dd hh:mm:ss"), "2004-06-05 09:05:03");
    EXPECT_EQ(FormatDate(d, "dd-MMM-yyyy hh:mm:ss"), "05-Jun-2004 09:05:03");
    EXPECT_EQ(FormatDate(d, "DDD, d-MMM-yy"), "Sat, 5-Jun-04");
    EXPECT_EQ(FormatDate(d, "DDDD, d-MMM-yyyy"), "Saturday, 5-Jun-2004");
    EXPECT_EQ(FormatDate(d, "MMMM-yyyy"), "June-2004");
    EXPECT_EQ(FormatDate(d, "yyyy-mm-dd, ddd"), "2004-06-05, Sat");
    const VbDate afternoon = DateSerial(2004, 6, 5) + TimeSerial(17, 0, 9);
    EXPECT_EQ(FormatDate(afternoon, "DDD, d-MMM-yyyy hh:mm:ss AMPM"), "Sat, 5-Jun-2004 05:00:09 PM");
    EXPECT_EQ(FormatDate(afternoon, "DDD d-MMM h:mm:ss ampm"), "Sat 5-Jun 5:00:09 PM");
    EXPECT_EQ(FormatDate(DateSerial(2004, 6, 5), "h:mm am/pm"), "12:00 am");
    // No AM/PM token: the hour stays 24-hour, "P" is a literal and "M" the month.
    EXPECT_EQ(FormatDate(afternoon, "hh:nn:ssPM"), "17:00:09P6");
}

TEST(VbDate, NumberFormats) {
    EXPECT_EQ(FormatNumber(0, "###,###"), "");
    EXPECT_EQ(FormatNumber(1234, "###,###"), "1,234");
    EXPECT_EQ(FormatNumber(1234567, "###,###,###"), "1,234,567");
    EXPECT_EQ(FormatNumber(2.5, "###.##"), "2.5");
    EXPECT_EQ(FormatNumber(2, "###.##"), "2.");
    EXPECT_EQ(FormatNumber(1.0 / 3.0, "###.##"), ".33");
    EXPECT_EQ(FormatNumber(5, "00"), "05");
    EXPECT_EQ(FormatNumber(-1234.5, "#,##0.00"), "-1,234.50");
}

TEST(VbDate, ReadingDatesAndTimesFromText) {
    VbDate d = 0;
    ASSERT_TRUE(TryParseDate("9:00:00am", d));
    EXPECT_EQ(d, TimeSerial(9, 0, 0));
    ASSERT_TRUE(TryParseDate("5:00:00pm", d));
    EXPECT_EQ(d, TimeSerial(17, 0, 0));
    ASSERT_TRUE(TryParseDate("12:30 AM", d));
    EXPECT_EQ(d, TimeSerial(0, 30, 0));
    ASSERT_TRUE(TryParseDate("2004-06-05", d));
    EXPECT_EQ(d, DateSerial(2004, 6, 5));
    ASSERT_TRUE(TryParseDate("5-Jun-2004 17:00", d));
    EXPECT_EQ(d, DateSerial(2004, 6, 5) + TimeSerial(17, 0, 0));
    ASSERT_TRUE(TryParseDate("20040605", d));
    EXPECT_EQ(d, DateSerial(2004, 6, 5));
    EXPECT_FALSE(TryParseDate("31-Feb-2004", d));
    EXPECT_FALSE(TryParseDate("tomorrow", d));
    EXPECT_FALSE(TryParseDate("25:00", d));
}

TEST(VbDate, ALongRunOfDigitsInAPartIsNoDateAndLeavesTheResultAlone) {
    const char* const texts[] = {
        "4444.4.848888842444",      "2004-99999999999-05", "2004-06-99999999999",
        "2004/6/848888842444 9:00", "99999999999:00",      "9:00:99999999999 pm",
    };
    for (const char* text : texts) {
        VbDate d = 12345;
        EXPECT_FALSE(TryParseDate(text, d)) << text;
        EXPECT_EQ(d, 12345) << text;
    }
    // Leading zeros, however many, are still read.
    VbDate d = 0;
    ASSERT_TRUE(TryParseDate("2004-006-000000000000000000005", d));
    EXPECT_EQ(d, DateSerial(2004, 6, 5));
}
