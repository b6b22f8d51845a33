#include "diary/cDiaryRecord.h"

#include <tuple>

#include "EventLines.h"
#include "ProgramFixture.h"
#include "foundation/ProgramState.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

cDiaryRecord recordWithAllFields() {
    cDiaryRecord r;
    r.ID = "D200406050003";
    r.DateEvent = "20040605";
    r.Reference = "Phone";
    r.TimeEvent = "0930";
    r.length = "45";
    r.Action = "Call";
    r.ContactID = "fred";
    r.URL = "C:\\docs\\bank.doc";
    r.JobToDoID = "T200406010001";
    r.DateRemind = "20040605";
    r.TimeRemind = "0915";
    r.Priority = "High";
    r.status = "Open";
    r.ActionToPerform = "Office";
    r.details = "Ring the bank \xE9t\xE9";  // Windows-1252 bytes pass unchanged
    return r;
}

std::vector<std::string> lineFields(const cDiaryRecord& r) {
    return {r.ID,  r.DateEvent, r.Reference,  r.TimeEvent,  r.length,   r.Action, r.ContactID,       r.URL,
            r.JobToDoID, r.DateRemind, r.TimeRemind, r.Priority, r.status, r.ActionToPerform, r.details};
}

}  // namespace

class DiaryRecordTest : public orbidex::test::ProgramFixture {};

TEST_F(DiaryRecordTest, TheLineHoldsTheFifteenFieldsInLineOrderAndReadsBackEqual) {
    const cDiaryRecord written = recordWithAllFields();
    const std::string line = written.FormatDiaryRecordAsCSV(kFieldDelimiter, "");
    EXPECT_EQ(line, Fields({"D200406050003", "20040605", "Phone", "0930", "45", "Call", "fred", "C:\\docs\\bank.doc",
                            "T200406010001", "20040605", "0915", "High", "Open", "Office", "Ring the bank \xE9t\xE9"}));

    cDiaryRecord read;
    read.GetDiaryRecordFromText(line);
    EXPECT_EQ(lineFields(read), lineFields(written));
    EXPECT_EQ(read.FormatDiaryRecordAsCSV(kFieldDelimiter, "\r\n"), line + "\r\n");

    // The fields that the line does not hold stay as they were.
    EXPECT_EQ(read.DateCreated, "");
    EXPECT_EQ(read.AmountDebit, Currency{});
}

TEST_F(DiaryRecordTest, AShortLineFillsItsLastFieldsFromItsFirstOnes) {
    cDiaryRecord missingLast;
    const std::string full = recordWithAllFields().FormatDiaryRecordAsCSV(kFieldDelimiter, "");
    missingLast.GetDiaryRecordFromText(full.substr(0, full.size() - 1));
    EXPECT_EQ(missingLast.details, "Office");
    EXPECT_EQ(missingLast.ActionToPerform, "Office");

    // After the last delimiter each field repeats the one before it once, then the
    // search starts again at the front of the line.
    cDiaryRecord two;
    two.GetDiaryRecordFromText("A\x1F" "20\x1F");
    EXPECT_EQ(lineFields(two), (std::vector<std::string>{"A", "20", "20", "A", "20", "20", "A", "20", "20", "A",
                                                         "20", "20", "A", "20", "20"}));

    cDiaryRecord none;
    none.GetDiaryRecordFromText("no delimiters at all");
    EXPECT_EQ(lineFields(none), std::vector<std::string>(15, ""));
    none.GetDiaryRecordFromText("");
    EXPECT_EQ(lineFields(none), std::vector<std::string>(15, ""));
}

TEST_F(DiaryRecordTest, ALengthThatIsNegativeOrTooLongBecomesThirtyMinutes) {
    auto lengthAfterReading = [](const std::string& length) {
        cDiaryRecord r;
        r.GetDiaryRecordFromText(orbidex::test::EventLine("D200406050001", "20040605", "0930", "Dentist", "Phone", length));
        return r.length;
    };
    EXPECT_EQ(lengthAfterReading("999"), "999");
    EXPECT_EQ(lengthAfterReading("abc"), "abc");
    EXPECT_EQ(lengthAfterReading("-0"), "-0");
    EXPECT_EQ(lengthAfterReading("-5"), "30");
    EXPECT_EQ(lengthAfterReading("-1000"), "30");
    EXPECT_EQ(ReadBytes(Stored("data\\OX_LOG.log")).find("invalid length"), std::string::npos)
        << "only an over-long length is logged";

    EXPECT_EQ(lengthAfterReading("1000"), "30");
    // Details are read after the length, so the message's second line shows those
    // the record had before: none.
    const std::string log = ReadBytes(Stored("data\\OX_LOG.log"));
    EXPECT_NE(log.find(", Event on 20040605 at 0930 has an invalid length - changing to 30 minute default\r\n\r\n"),
              std::string::npos)
        << log;
}

TEST_F(DiaryRecordTest, WritersLeaveOutARecordWithoutIdReferenceTimeAndDetails) {
    gLogLevel = 3;
    cDiaryRecord onlyDate;
    onlyDate.DateEvent = "20040605";
    onlyDate.details = "   ";
    EXPECT_EQ(onlyDate.FormatDiaryRecordAsCSV(kFieldDelimiter, "\r\n"), "");
    EXPECT_EQ(LogMessages().back(), "This record does not have an id - 20040605     ");
    EXPECT_EQ(onlyDate.FormatAsText(kFieldDelimiter, true), "");

    cDiaryRecord timeOnly;
    timeOnly.TimeEvent = "0930";
    EXPECT_EQ(timeOnly.FormatDiaryRecordAsCSV(",", ";"), ",,,0930,,,,,,,,,,,,;");
}

TEST_F(DiaryRecordTest, TheLongTextFormPutsTheAmountsBeforeTheLocation) {
    cDiaryRecord r = recordWithAllFields();
    r.AmountDebit = Currency::FromNumber(12.5);
    r.AmountCredit = Currency::FromNumber(-0.0001);
    EXPECT_EQ(r.FormatAsText("|", true), r.FormatDiaryRecordAsCSV("|", ""));
    EXPECT_EQ(r.FormatAsText("|", false),
              "D200406050003|20040605|Phone|0930|45|Call|fred|C:\\docs\\bank.doc|T200406010001|20040605|0915|High|"
              "Open|12.5|-0.0001|Office|Ring the bank \xE9t\xE9|");
}

TEST_F(DiaryRecordTest, TheNetworkFormShowsWhatEachSecurityLevelAllows) {
    cDiaryRecord normal = recordWithAllFields();
    cDiaryRecord priv = recordWithAllFields();
    priv.status = "Private";
    cDiaryRecord usage = recordWithAllFields();
    usage.Reference = "PCFile";
    usage.Action = "Usage";

    const std::string idDateTimeLength = "D200406050003|20040605||0930|45|";
    const std::string level1 = idDateTimeLength + "||||||||||";
    const std::string level2 = "D200406050003|20040605|Phone|0930|45|Call|fred|C:\\docs\\bank.doc||20040605|0915|||Office||";
    const std::string all = normal.FormatDiaryRecordAsCSV("|", "");
    const std::string allUsage = usage.FormatDiaryRecordAsCSV("|", "");

    const std::vector<std::tuple<std::string, std::string, std::string, std::string>> expected = {
        // level, normal event, private event, usage event
        {"0", "", "", ""},
        {"", "", "", ""},
        {"1", level1 + "#", "", ""},
        {" 2 ", level2 + "#", "", ""},
        {"3", all + "#", "", ""},
        {"4", all + "#", "", allUsage + "#"},
        {"7", "#", "", ""},
    };
    for (const auto& [level, forNormal, forPrivate, forUsage] : expected) {
        EXPECT_EQ(normal.FormatDiaryRecordForNetwork(normal, "|", "#", level), forNormal) << "level " << level;
        EXPECT_EQ(priv.FormatDiaryRecordForNetwork(priv, "|", "#", level), forPrivate) << "level " << level;
        EXPECT_EQ(usage.FormatDiaryRecordForNetwork(usage, "|", "#", level), forUsage) << "level " << level;
    }
}

TEST_F(DiaryRecordTest, TheNetworkFormTestsTheReminderTimeForAnEmptyRecordAndUsageOnItself) {
    cDiaryRecord timeOnly;
    timeOnly.TimeEvent = "0930";
    EXPECT_EQ(timeOnly.FormatDiaryRecordForNetwork(timeOnly, "|", "", "3"), "") << "an event time is not enough";
    timeOnly.TimeRemind = "0915";
    EXPECT_EQ(timeOnly.FormatDiaryRecordForNetwork(timeOnly, "|", "", "1"), "|||0930||||||||||||");

    cDiaryRecord usage;
    usage.Reference = "PCFile";
    usage.Action = "PCUsage";
    const cDiaryRecord normal = recordWithAllFields();
    EXPECT_EQ(usage.FormatDiaryRecordForNetwork(normal, "|", "", "3"), "");
    EXPECT_NE(normal.FormatDiaryRecordForNetwork(usage, "|", "", "3"), "");
}

TEST_F(DiaryRecordTest, KindsOfEventCompareExactly) {
    cDiaryRecord r;
    r.Action = "PCFile";
    r.Reference = "Autobackup";
    EXPECT_TRUE(r.IsDiaryEventAfileAccess());
    r.Reference = "edit";
    EXPECT_FALSE(r.IsDiaryEventAfileAccess());
    r.Reference = "Edit";
    EXPECT_TRUE(r.IsDiaryEventAfileAccess());
    EXPECT_FALSE(r.IsDiaryEventPCUsage());

    r.Reference = "PCFile";
    r.Action = "PCUsage";
    EXPECT_TRUE(r.IsDiaryEventPCUsage());
    r.Action = "Usage ";
    EXPECT_FALSE(r.IsDiaryEventPCUsage());

    r.status = "private";
    EXPECT_FALSE(r.IsDiaryEventPrivate());
    r.status = "Private";
    EXPECT_TRUE(r.IsDiaryEventPrivate());

    EXPECT_FALSE(r.isDiaryRecordMeeting());
    r.Reference = "Meetings with Jo";
    EXPECT_TRUE(r.isDiaryRecordMeeting());
    r.Reference = "Meetin";
    r.Action = "Meeting";
    EXPECT_TRUE(r.isDiaryRecordMeeting());
}

TEST_F(DiaryRecordTest, AReminderIsDueTodayUpToItsMinuteThenPast) {
    // The clock stands at 2004-06-05 09:30:12.
    auto reminder = [](const std::string& date, const std::string& time) {
        cDiaryRecord r;
        r.DateRemind = date;
        r.TimeRemind = time;
        return r.IsThisEventIsReminder();
    };
    EXPECT_EQ(reminder("20040605", "0930"), 1);
    EXPECT_EQ(reminder("20040605", "0931"), 1);
    EXPECT_EQ(reminder("20040605", "0929"), 3);
    EXPECT_EQ(reminder("20040606", "0800"), 2);
    EXPECT_EQ(reminder("20040604", "2300"), 3);
    EXPECT_EQ(reminder("20040605", "0000"), 0) << "a reminder at midnight never counts";
    EXPECT_EQ(reminder("", "0930"), 0);
    EXPECT_EQ(reminder(" 20040606 ", "0930"), 3) << "the date is compared as it stands";
}

TEST_F(DiaryRecordTest, AssigningCopiesEveryFieldAndANullSourceBlanks) {
    cDiaryRecord source = recordWithAllFields();
    source.DateCreated = "20040601";
    source.UserOwnedBy = "jo";
    source.AmountDebit = Currency::FromNumber(3);
    cDiaryRecord target;
    target.AssignRecord(source);
    EXPECT_EQ(lineFields(target), lineFields(source));
    EXPECT_EQ(target.DateCreated, "20040601");
    EXPECT_EQ(target.UserOwnedBy, "jo");
    EXPECT_EQ(target.AmountDebit, Currency::FromNumber(3));
    EXPECT_FALSE(target.IsPrivate());

    target.AssignRecord(nullptr);
    EXPECT_EQ(lineFields(target), std::vector<std::string>(15, ""));
    EXPECT_EQ(target.UserOwnedBy, "");
    EXPECT_TRUE(target.IsPrivate());
    EXPECT_EQ(target.AmountDebit, Currency::FromNumber(3)) << "amounts stay";

    target.IsSavedOnClient(true);
    target.IsSavedOnServer(true);
    target.IsConfirmedSave(true);
    EXPECT_FALSE(target.IsSavedOnClient() || target.IsSavedOnServer() || target.IsConfirmedSave());
}

TEST_F(DiaryRecordTest, InitFillsTheDateAndTimeOfNowAndSortsTheAmount) {
    cDiaryRecord r;
    r.init("Dentist", "", "", "Health", Currency::FromNumber(20), "note");
    EXPECT_EQ(r.DateEvent, "20040605");
    EXPECT_EQ(r.TimeEvent, "0930");
    EXPECT_EQ(r.Reference, "Health");
    EXPECT_EQ(r.length, "1");
    EXPECT_EQ(r.AmountDebit, Currency::FromNumber(20));
    EXPECT_EQ(r.AmountCredit, Currency{});

    r.init("", "20041231", "2359", "", Currency{}, "");
    EXPECT_EQ(r.DateEvent, "20041231");
    EXPECT_EQ(r.TimeEvent, "2359");
    EXPECT_EQ(r.AmountDebit, Currency::FromNumber(20)) << "zero goes to the credit";
    EXPECT_EQ(r.Validation(), "- no details have been entered\r\n");
    r.DateEvent.clear();
    r.TimeEvent.clear();
    EXPECT_EQ(r.Validation(),
              "- no details have been entered\r\n- no date has been entered\r\n- no time has been entered\r\n");
}

TEST_F(DiaryRecordTest, TheHtmlFormIsTheCellsOfOneRow) {
    cDiaryRecord r;
    r.TimeEvent = "0930";
    r.details = "Ring <b>";
    EXPECT_EQ(r.FormatDiaryRecordAsHTML(), "<TD valign=top width=40>0930</td><td valign=top >Ring <b></td></tr>");
}

TEST(CurrencyTest, TextHasNoTrailingZeros) {
    EXPECT_EQ(Currency::FromNumber(0).Text(), "0");
    EXPECT_EQ(Currency::FromNumber(12.5).Text(), "12.5");
    EXPECT_EQ(Currency::FromNumber(-3).Text(), "-3");
    EXPECT_EQ(Currency::FromNumber(1.23456).Text(), "1.2346");
    EXPECT_EQ(Currency{INT64_MIN}.Text(), "-922337203685477.5808");
}
