#include <tuple>

#include "DiaryFixture.h"
#include "EventLines.h"
#include "diary/cDiaryRecord.h"
#include "foundation/ProgramState.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

const std::vector<std::string> kAllFields = {
    "D200406050003", "20040605", "Phone",     "0930",          "45",
    "Call",          "fred",     "C:\\b.doc", "T200406010001", "20040605",
    "0915",          "High",     "Open",      "Office",        "Ring the bank \xE9t\xE9"};

cDiaryRecord recordOf(const std::string& line) {
    cDiaryRecord r;
    r.GetDiaryRecordFromText(line);
    return r;
}

std::vector<std::string> lineFields(const cDiaryRecord& r) {
    return {r.ID,        r.DateEvent,  r.Reference,  r.TimeEvent, r.length, r.Action,          r.ContactID, r.URL,
            r.JobToDoID, r.DateRemind, r.TimeRemind, r.Priority,  r.status, r.ActionToPerform, r.details};
}

}  // namespace

class DiaryRecordTest : public orbidex::test::DiaryFixture {};

TEST_F(DiaryRecordTest, TheFifteenFieldsReadAndWriteInLineOrder) {
    cDiaryRecord written = recordOf(Fields(kAllFields));
    EXPECT_EQ(lineFields(written), kAllFields);
    EXPECT_EQ(written.FormatDiaryRecordAsCSV(kFieldDelimiter, "\r\n"), Fields(kAllFields) + "\r\n");

    // The long text form adds the amounts before the location.
    written.AmountDebit = Currency::FromNumber(12.5);
    written.AmountCredit = Currency::FromNumber(-0.0001);
    EXPECT_EQ(written.FormatAsText("|", false),
              "D200406050003|20040605|Phone|0930|45|Call|fred|C:\\b.doc|T200406010001|20040605|0915|High|Open|12.5|"
              "-0.0001|Office|Ring the bank \xE9t\xE9|");
}

TEST_F(DiaryRecordTest, AShortLineFillsItsLastFieldsFromItsFirstOnes) {
    const std::string full = Fields(kAllFields);
    EXPECT_EQ(recordOf(full.substr(0, full.size() - 1)).details, "Office") << "the location again";

    // After the last delimiter a field repeats the one before it, then the search
    // starts again at the front of the line.
    EXPECT_EQ(lineFields(recordOf("A\x1F"
                                  "20\x1F")),
              (std::vector<std::string>{"A", "20", "20", "A", "20", "20", "A", "20", "20", "A", "20", "20", "A", "20",
                                        "20"}));
    EXPECT_EQ(lineFields(recordOf("no delimiters")), std::vector<std::string>(15, ""));
    EXPECT_EQ(lineFields(recordOf("")), std::vector<std::string>(15, ""));
}

TEST_F(DiaryRecordTest, ALengthThatIsNegativeOrTooLongBecomesThirtyMinutes) {
    auto lengthRead = [](const std::string& length) {
        return recordOf(orbidex::test::EventLine("D200406050001", "20040605", "0930", "Dentist", "Phone", length))
            .length;
    };
    EXPECT_EQ(lengthRead("999"), "999");
    EXPECT_EQ(lengthRead("abc"), "abc");
    EXPECT_EQ(lengthRead("-0"), "-0");
    EXPECT_EQ(lengthRead("-5"), "30");
    EXPECT_EQ(lengthRead("-1000"), "30");
    EXPECT_FALSE(Logged("invalid length")) << "only an over-long length is logged";
    EXPECT_EQ(lengthRead("1000"), "30");
    // The details come after the length in the line: the message shows the earlier ones, none.
    EXPECT_TRUE(Logged(", Event on 20040605 at 0930 has an invalid length - changing to 30 minute default\r\n\r\n"));
}

TEST_F(DiaryRecordTest, ARecordWithoutIdReferenceTimeAndDetailsIsNotWritten) {
    gLogLevel = 3;
    cDiaryRecord onlyDate;
    onlyDate.DateEvent = "20040605";
    onlyDate.details = "   ";
    EXPECT_EQ(onlyDate.FormatDiaryRecordAsCSV(kFieldDelimiter, "\r\n"), "");
    EXPECT_EQ(onlyDate.FormatAsText(kFieldDelimiter, true), "");
    EXPECT_TRUE(Logged(", This record does not have an id - 20040605     \r\n"));
    onlyDate.TimeEvent = "0930";
    EXPECT_EQ(onlyDate.FormatDiaryRecordAsCSV(",", ";"), ",20040605,,0930,,,,,,,,,,,   ,;");
}

TEST_F(DiaryRecordTest, TheNetworkFormShowsWhatEachSecurityLevelAllows) {
    const cDiaryRecord normal = recordOf(Fields(kAllFields));
    cDiaryRecord priv = normal;
    priv.status = "Private";
    cDiaryRecord usage = normal;
    usage.Reference = "PCFile";
    usage.Action = "Usage";
    const std::string level1 = "D200406050003|20040605||0930|45|" + std::string(10, '|');
    const std::string level2 = "D200406050003|20040605|Phone|0930|45|Call|fred|C:\\b.doc||20040605|0915|||Office||";
    const std::string all = normal.FormatDiaryRecordAsCSV("|", "");

    // level, normal event, private event, usage event
    const std::vector<std::tuple<std::string, std::string, std::string, std::string>> expected = {
        {"0", "", "", ""},           {"", "", "", ""},
        {"1", level1 + "#", "", ""}, {" 2 ", level2 + "#", "", ""},
        {"3", all + "#", "", ""},    {"4", all + "#", "", usage.FormatDiaryRecordAsCSV("|", "#")},
        {"7", "#", "", ""},
    };
    for (const auto& [level, forNormal, forPrivate, forUsage] : expected) {
        EXPECT_EQ(normal.FormatDiaryRecordForNetwork(normal, "|", "#", level), forNormal) << "level " << level;
        EXPECT_EQ(priv.FormatDiaryRecordForNetwork(priv, "|", "#", level), forPrivate) << "level " << level;
        EXPECT_EQ(usage.FormatDiaryRecordForNetwork(usage, "|", "#", level), forUsage) << "level " << level;
    }

    // The empty test looks at the reminder time, and the usage test at the record
    // that formats, not at the one formatted.
    cDiaryRecord timeOnly;
    timeOnly.TimeEvent = "0930";
    EXPECT_EQ(timeOnly.FormatDiaryRecordForNetwork(timeOnly, "|", "", "3"), "");
    EXPECT_EQ(usage.FormatDiaryRecordForNetwork(normal, "|", "", "3"), "");
    EXPECT_EQ(normal.FormatDiaryRecordForNetwork(usage, "|", "", "3"), usage.FormatDiaryRecordAsCSV("|", ""));
}

TEST_F(DiaryRecordTest, TheReminderMarkFollowsTheEventsOwnDayAndTime) {
    auto mark = [](const std::string& date, const std::string& time) {
        cDiaryRecord r;
        r.DateEvent = date;
        r.TimeEvent = time;
        return r.IsThisEventIsReminder();
    };
    // The clock stands at 2004-06-05 09:30:12.
    EXPECT_EQ(mark("20040605", "0930"), 1);
    EXPECT_EQ(mark("20040605", "0929"), 3);
    EXPECT_EQ(mark("20040606", "0800"), 2);
    EXPECT_EQ(mark("20040604", "2300"), 3);
    EXPECT_EQ(mark("20040605", "0000"), 0) << "an event at midnight never counts";
    EXPECT_EQ(mark(" 20040606 ", "0930"), 3) << "the date is compared as it stands";

    // The reminder's own day and time play no part.
    cDiaryRecord noReminder;
    noReminder.DateEvent = "20040605";
    noReminder.TimeEvent = "1000";
    EXPECT_EQ(noReminder.IsThisEventIsReminder(), 1);
    cDiaryRecord midnightWithReminder;
    midnightWithReminder.DateEvent = "20040606";
    midnightWithReminder.TimeEvent = "0000";
    midnightWithReminder.DateRemind = "20040606";
    midnightWithReminder.TimeRemind = "0800";
    EXPECT_EQ(midnightWithReminder.IsThisEventIsReminder(), 0);
}

TEST_F(DiaryRecordTest, AssigningCopiesEveryFieldAndANullSourceBlanksButKeepsTheAmounts) {
    cDiaryRecord source = recordOf(Fields(kAllFields));
    source.UserOwnedBy = "jo";
    source.AmountDebit = Currency::FromNumber(3);
    cDiaryRecord target;
    target.AssignRecord(source);
    EXPECT_EQ(lineFields(target), kAllFields);
    EXPECT_EQ(target.UserOwnedBy, "jo");
    EXPECT_FALSE(target.IsPrivate());

    target.AssignRecord(nullptr);
    EXPECT_EQ(lineFields(target), std::vector<std::string>(15, ""));
    EXPECT_EQ(target.UserOwnedBy, "");
    EXPECT_TRUE(target.IsPrivate());
    EXPECT_EQ(target.AmountDebit, Currency::FromNumber(3));

    target.IsSavedOnClient(true);
    EXPECT_FALSE(target.IsSavedOnClient()) << "the setter keeps the value it finds";
}

TEST_F(DiaryRecordTest, InitTakesTodayAndNowForAnEmptyDateAndTime) {
    cDiaryRecord r;
    r.init("Dentist", "", "", "Health", Currency::FromNumber(20), "note");
    EXPECT_EQ(std::tie(r.DateEvent, r.TimeEvent, r.length), std::make_tuple("20040605", "0930", "1"));
    EXPECT_EQ(r.AmountDebit, Currency::FromNumber(20));
    r.init("", "20041231", "", "", Currency{}, "");
    EXPECT_EQ(r.DateEvent, "20041231");
    EXPECT_EQ(r.AmountDebit, Currency::FromNumber(20)) << "zero is a credit";
    r.DateEvent.clear();
    EXPECT_EQ(r.Validation(), "- no details have been entered\r\n- no date has been entered\r\n");
}

TEST(CurrencyTest, TextHasNoTrailingZerosDownToTheLowestValue) {
    EXPECT_EQ(Currency::FromNumber(0).Text(), "0");
    EXPECT_EQ(Currency::FromNumber(1.23456).Text(), "1.2346");
    EXPECT_EQ(Currency{INT64_MIN}.Text(), "-922337203685477.5808");
}
