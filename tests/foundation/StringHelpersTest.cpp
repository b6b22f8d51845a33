#include "foundation/StringHelpers.h"

#include <algorithm>

#include "ProgramFixture.h"
#include "foundation/DateHelpers.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"

using namespace orbidex;

class StringHelpersTest : public orbidex::test::ProgramFixture {};

TEST_F(StringHelpersTest, FormatMinutes) {
    EXPECT_EQ(FormatMinutes(0), "0 min  ");
    EXPECT_EQ(FormatMinutes(60), "60 min  ");
    EXPECT_EQ(FormatMinutes(61), "1 hr 1 min  ");
    EXPECT_EQ(FormatMinutes(600), "10 hr 0 min  ");
    gHoursPerDay = 8;
    EXPECT_EQ(FormatMinutes(1000), "2 days 0 hours 40 min  ");
    EXPECT_EQ(FormatMinutes(480), "8 hr 0 min  ");  // not more than a day
}

TEST_F(StringHelpersTest, SmallTextRules) {
    EXPECT_EQ(ReplaceLineBreaks("a\r\nb\rc\nd"), "a  b c d");
    EXPECT_EQ(KeepPlainCharacters("Tom's @home [x]_{y} 42!"), "Toms @home [xy 42");
    EXPECT_EQ(TrimAtNull(std::string("abc\0def", 7)), "abc");
    EXPECT_EQ(TrimAtNull("abc"), "abc");
    EXPECT_EQ(ProperCase("hELLO wORLD"), "Hello world");
    EXPECT_EQ(ProperCase(""), "");
    EXPECT_EQ(PadWithBlanks("abc", 5), "abc   ");
    EXPECT_EQ(PadWithBlanks("abcdef", 5), "abcdef");
    EXPECT_EQ(PadWithBlanks("abcde", 5), "abcde ");
}

TEST_F(StringHelpersTest, SplitToArrayOfADelimitedText) {
    std::vector<std::string> parts;
    EXPECT_EQ(SplitToArray(parts, "\x1F", 100, "\x1F" "a\x1F" "b,c\x1F"), 4);
    EXPECT_EQ(parts, (std::vector<std::string>{"", "a", "b,c", ""}));
    EXPECT_EQ(SplitToArray(parts, ",", 2, "a,b,c"), 2);
    EXPECT_EQ(parts[1], "b,c");
}

TEST_F(StringHelpersTest, SortTextsOrdersByByteValue) {
    std::vector<std::string> none;
    SortTexts(none);
    EXPECT_TRUE(none.empty());
    std::vector<std::string> one{"only"};
    SortTexts(one);
    EXPECT_EQ(one, (std::vector<std::string>{"only"}));

    std::vector<std::string> mixed{"b", "", "B", "a", "\xE9t\xE9", "Z", "", "a"};
    SortTexts(mixed);
    EXPECT_EQ(mixed, (std::vector<std::string>{"", "", "B", "Z", "a", "a", "b", "\xE9t\xE9"}));

    std::vector<std::string> range{"d", "c", "b", "a"};
    SortTexts(range, 1, 2);
    EXPECT_EQ(range, (std::vector<std::string>{"d", "b", "c", "a"}));
    SortTexts(range, 2, 2);
    EXPECT_EQ(range, (std::vector<std::string>{"d", "b", "c", "a"}));
}

TEST_F(StringHelpersTest, SortTextsHandlesAFullMonthOfLines) {
    platform_.SetRandomValues({0.1, 0.9, 0.4, 0.7, 0.0, 0.999});
    std::vector<std::string> lines;
    for (int i = 0; i < 32767; ++i) lines.push_back("2004" + std::to_string((i * 7919) % 5000));
    for (int i = 0; i < 2000; ++i) lines[static_cast<size_t>(i)] = "same";
    std::vector<std::string> expected = lines;
    std::sort(expected.begin(), expected.end());
    SortTexts(lines);
    EXPECT_EQ(lines, expected);
}

TEST_F(StringHelpersTest, DiaryDates) {
    EXPECT_EQ(DateFromYYYYMMDD("20040605"), DateSerial(2004, 6, 5));
    EXPECT_EQ(FormatHHMM(9, 5), "0905");
    EXPECT_EQ(FormatHHMM(23, 59), "2359");
    EXPECT_EQ(FormatDiaryDate("20040605", 0), "05-Jun-04");
    EXPECT_EQ(FormatDiaryDate("20040605", 1), "05-Jun-04");
    EXPECT_EQ(FormatDiaryDate("20040605", 2), "Jun-05");
    EXPECT_EQ(FormatDiaryDate("20040605", 3), "Jun-05, Sat");
    EXPECT_EQ(FormatDiaryDate("20040605", 5), "2004-06-05, Sat");
    EXPECT_EQ(FormatDiaryDate("20040605", 7), "Sat, 5-Jun-2004");
    EXPECT_EQ(FormatDiaryDate("20040605", 8), "");
    EXPECT_EQ(FormatDiaryDate("20040605", 9), "05/06/2004");
    EXPECT_EQ(ParseHourText("09:00:00"), 9);
    EXPECT_EQ(ParseHourText("05:00:00PM"), 17);
    EXPECT_EQ(ParseHourText("9:00:00am"), 9);
}

TEST_F(StringHelpersTest, ViewStartDates) {
    const VbDate saturday = DateSerial(2004, 6, 5);
    const VbDate monday = DateSerial(2004, 5, 31);
    glbNumDaysToDisplay = 1;
    EXPECT_EQ(GetViewStartDate(saturday), saturday);
    glbNumDaysToDisplay = 7;
    EXPECT_EQ(GetViewStartDate(saturday), monday);
    EXPECT_EQ(GetViewStartDate(monday), monday);
    EXPECT_EQ(GetViewStartDate(DateSerial(2004, 6, 6)), monday);  // Sunday ends the week
    glbNumDaysToDisplay = 14;
    EXPECT_EQ(GetViewStartDate(saturday), DateSerial(2004, 6, 1));
    glbNumDaysToDisplay = 31;
    EXPECT_EQ(GetViewStartDate(saturday), DateSerial(2004, 6, 1));
    glbNumDaysToDisplay = 3;
    EXPECT_EQ(GetViewStartDate(saturday), 0);
}
