#include <gtest/gtest.h>

#include <limits>

#include "foundation/VbString.h"

using namespace orbidex;

TEST(VbString, PositionsCountFromOneAndNeverRunOffTheText) {
    EXPECT_EQ(Mid("D200406.dat", 2, 6), "200406");
    EXPECT_EQ(Mid("abc", 3), "c");
    EXPECT_EQ(Mid("abc", 4), "");
    EXPECT_EQ(Mid("abc", 0, 2), "ab");
    EXPECT_EQ(Mid("abc", 2, 99), "bc");
    EXPECT_EQ(Left("abc", 5), "abc");
    EXPECT_EQ(Right("abc", 2), "bc");
    EXPECT_EQ(Right("abc", 0), "");
    EXPECT_EQ(InStr("a\\b\\c", "\\"), 2);
    EXPECT_EQ(InStr(3, "a\\b\\c", "\\"), 4);
    EXPECT_EQ(InStr(6, "a\\b\\c", "\\"), 0);
    EXPECT_EQ(InStr("abc", ""), 1);
    EXPECT_EQ(InStrRev("a\\b\\c", "\\"), 4);
    EXPECT_EQ(InStrText(1, "Hello World", "WORLD"), 7);
}

TEST(VbString, TrimTakesOnlyBlanks) {
    EXPECT_EQ(Trim("  a b \t"), "a b \t");
    EXPECT_EQ(LTrim("  x "), "x ");
    EXPECT_EQ(RTrim("  x "), "  x");
    EXPECT_EQ(Trim("   "), "");
}

TEST(VbString, ValReadsTheLeadingNumberAsVbDoes) {
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val(" 1 2 3"), 123);
    EXPECT_EQ(Val("-3.5e2x"), -350);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("&HF0F4F4"), 0xF0F4F4);
    EXPECT_EQ(Val("&hff"), 255);
    EXPECT_EQ(Val("&HFFFF"), -1);
    EXPECT_EQ(Val("&O17"), 15);
    EXPECT_EQ(Val("1e"), 1);
    // As whole numbers, held within their type.
    EXPECT_EQ(ValInt("-7.9"), -7);
    EXPECT_EQ(ValInt("9e20"), std::numeric_limits<int>::max());
    EXPECT_EQ(ValLong("-9d99"), std::numeric_limits<long>::min());
}

TEST(VbString, StrictParseRefusesWhatIsNoNumber) {
    double v = -1;
    EXPECT_FALSE(TryParseNumber("", v));
    EXPECT_FALSE(TryParseNumber("12abc", v));
    EXPECT_FALSE(TryParseNumber("abc", v));
    EXPECT_FALSE(TryParseNumber("-", v));
    EXPECT_FALSE(TryParseNumber("&HXYZ", v));
    EXPECT_TRUE(TryParseNumber(" 42 ", v));
    EXPECT_EQ(v, 42);
    EXPECT_TRUE(TryParseNumber("&HC0C0FF", v));
    EXPECT_EQ(v, 0xC0C0FF);
    int32_t l = 0;
    EXPECT_TRUE(TryParseLong("2.5", l));
    EXPECT_EQ(l, 2);  // half to even
    EXPECT_TRUE(TryParseLong("3.5", l));
    EXPECT_EQ(l, 4);
    EXPECT_FALSE(TryParseLong("99999999999", l));
}

TEST(VbString, NumbersBecomeTextWithoutTrailingZeros) {
    EXPECT_EQ(CStr(100.0), "100");
    EXPECT_EQ(CStr(1.5), "1.5");
    EXPECT_EQ(CStr(-0.25), "-0.25");
    EXPECT_EQ(CStr(38143.0), "38143");
    EXPECT_EQ(CStr(1e-5), "1E-05");
    EXPECT_EQ(CStr(true), "True");
    EXPECT_EQ(Hex(0xF0F4F4), "F0F4F4");
}

TEST(VbString, SplitKeepsEmptyPiecesAndHonoursTheLimit) {
    EXPECT_TRUE(Split("", ",").empty());
    EXPECT_EQ(Split(",a,,b,", ","), (std::vector<std::string>{"", "a", "", "b", ""}));
    EXPECT_EQ(Split("a,b,c", ",", 2), (std::vector<std::string>{"a", "b,c"}));
    EXPECT_EQ(Join({"a", "b"}, ", "), "a, b");
    EXPECT_EQ(Replace("a\\b\\c", "\\", "/"), "a/b/c");
    EXPECT_TRUE(EqualsText("Network", "network"));
    EXPECT_FALSE(EqualsText("Network", "networks"));
}

TEST(VbString, RoundingIsHalfToEven) {
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(Int(-1.5), -2);
    EXPECT_EQ(Fix(-1.5), -1);
}
