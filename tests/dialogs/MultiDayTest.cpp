// The date generator's list of dates, and one event added on many dates.
#include "DialogFixture.h"
#include "dialogs/frmDateGenerator.h"
#include "dialogs/frmEventMultiple.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

enum Interval { kDay, kWeek, kFortnight, kMonth, kQuarter, kYear };
enum Unit { kDays, kWeeks, kFortnights, kMonths, kQuarters, kYears };

VbDate At(int year, int month, int day, int hour) {
    return DateSerial(year, month, day) + TimeSerial(hour, 0, 0);
}

using Tags = std::vector<std::string>;

}  // namespace

class DateGeneratorTest : public orbidex::test::DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        form.Load();
    }
    /// Starts at `start`, every `interval`, for `count` of `unit`.
    Tags RunFor(VbDate start, Interval interval, const std::string& count, Unit unit) {
        form.optFinish(1).UserClick();
        form.txtNumDays.UserEdit(count, Len(count));
        form.cmbLengthUnit.UserSelect(unit);
        return Run(start, interval);
    }
    /// Starts at `start`, every `interval`, up to the end date.
    Tags RunUntil(VbDate start, Interval interval, VbDate end) {
        form.optFinish(0).UserClick();
        form.dtPickEndDate.UserPick(end);
        return Run(start, interval);
    }
    Tags Run(VbDate start, Interval interval) {
        form.dtPickDate.UserPick(start);
        form.cmbDays.UserSelect(interval);
        form.Command1.UserClick();
        Tags tags;
        for (long row = 1; row <= form.lvDateList.ListItems.Count(); ++row)
            tags.push_back(form.lvDateList.ListItems(row).Tag);
        return tags;
    }

    frmDateGenerator form;
};

TEST_F(DateGeneratorTest, TwoWeeksEveryWeekFromAMondayAfternoonGiveTwoDates) {
    EXPECT_EQ(form.dtPickDate.Value(), platform_.Now()) << "opens now, with its time of day";
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kWeek, "2", kWeeks), (Tags{"20040607", "20040614"}));
    EXPECT_EQ(form.lvDateList.ListItems(1).Text(), "Mon, 07-Jun-04");
    EXPECT_EQ(RunFor(At(2004, 6, 7, 9), kWeek, "2", kWeeks), (Tags{"20040606", "20040613"}))
        << "a morning is not rounded up: the list starts the day before";
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kDay, "3", kDays), (Tags{"20040607", "20040608", "20040609"}));

    // The ticked weekdays change nothing.
    for (long row = 1; row <= 7; ++row) form.lvDays.UserCheckItem(form.lvDays.ListItems(row), row > 5);
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kWeek, "2", kWeeks), (Tags{"20040607", "20040614"}));
}

TEST_F(DateGeneratorTest, TheEndDateCountsOnlyWhenItsPickerHoldsAnAfternoon) {
    EXPECT_EQ(RunUntil(At(2004, 6, 7, 15), kDay, At(2004, 6, 10, 9)), (Tags{"20040607", "20040608", "20040609"}));
    EXPECT_EQ(RunUntil(At(2004, 6, 7, 15), kDay, At(2004, 6, 10, 15)).back(), "20040610");
    EXPECT_TRUE(RunUntil(At(2004, 6, 7, 15), kDay, At(2004, 6, 1, 15)).empty()) << "an end before the start";
    EXPECT_TRUE(RunFor(At(2004, 6, 7, 15), kDay, "soon", kDays).empty()) << "a length that is no number";
}

TEST_F(DateGeneratorTest, MonthsQuartersAndYearsKeepTheDayOfTheStart) {
    EXPECT_EQ(RunUntil(At(2004, 1, 31, 10), kMonth, At(2005, 1, 1, 10)),
              (Tags{"20040131", "20040331", "20040531", "20040731", "20040831", "20041031", "20041231"}));
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kQuarter, "1", kYears),
              (Tags{"20040115", "20040415", "20040715", "20041015"}));
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kYear, "1", kYears), Tags{"20040115"});
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kYear, "2", kYears), (Tags{"20040115", "20050115"}));

    const Tags years = RunFor(At(2004, 6, 7, 9), kYear, "1E+300", kYears);
    EXPECT_EQ(years.size(), 101U) << "a hundred years on at most";
}

class EventMultipleTest : public orbidex::test::DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        LoadJune({});
        form.Load();
    }
    /// The date generator, when it opens, makes `count` days from a Monday afternoon.
    void PickDays(const std::string& count) {
        platform_.QueueFormScript("frmDateGenerator", [count](Form& f) {
            auto& generator = static_cast<frmDateGenerator&>(f);
            generator.dtPickDate.UserPick(At(2004, 6, 7, 15));
            generator.optFinish(1).UserClick();
            generator.txtNumDays.UserEdit(count, Len(count));
            generator.cmdOk.UserClick();
        });
    }
    static std::string Time(const DatePicker& picker) { return FormatDate(picker.Value, "hhmm"); }

    frmEventMultiple form;
};

TEST_F(EventMultipleTest, AGeneralReminderLastsFiveMinutesAndRemindsOnEachDay) {
    EXPECT_EQ(Time(form.dtPickTime) + Time(form.dtPickEndTime) + Time(form.DTPicker2), "090009050845");
    form.txtDetails.UserEdit("Take pills", 10);
    PickDays("2");
    form.cmdPickDates.UserClick();
    EXPECT_EQ(form.lvDateList.ListItems(2).Text(), "Tue, 08-Jun-04");
    platform_.QueueMsgBoxAnswer(vbYes);
    form.cmdOK.UserClick();
    auto pills = [](const std::string& id, const std::string& date) {
        return Fields({id, date, "", "0900", "5", "General Reminder", "fred", "", "", date, "0845", "",
                       "Multiday Reminder", "", "Take pills"});
    };
    EXPECT_EQ(Lines("D200406.dat"), (Tags{pills("D200406070001", "20040607"), pills("D200406080001", "20040608")}));
}

TEST_F(EventMultipleTest, OtherKindsRemindOnceBeforeTheFirstDay) {
    form.cmbAction.UserSelect(3);  // "Travel"
    EXPECT_EQ(Time(form.dtPickEndTime), "1700");
    EXPECT_EQ(form.txtStatus.Text(), "Multiday Event");
    form.chkRemindOnce.UserClick();
    EXPECT_FALSE(form.dtPickFirstRemindTime.Enabled());
    form.chkRemindOnce.UserClick();
    EXPECT_EQ(Time(form.DTPicker2), "0900") << "15 days back keeps the start's time of day";

    form.txtDetails.UserEdit("Conference\r\nin Leeds", 20);
    form.txtReference.UserEdit("Trip", 4);
    form.dtPickFirstRemindTime.UserPickTime(TimeSerial(7, 30, 0));
    PickDays("3");  // an empty list asks for dates first
    platform_.QueueMsgBoxAnswer(vbYes);
    form.cmdOK.UserClick();
    EXPECT_EQ(platform_.Transcript().at(0).title, "Confirm Create Multiple Events");
    EXPECT_EQ(platform_.Transcript().at(0).text, "Do you want to create these 3 events ?");
    auto conference = [](const std::string& id, const std::string& date, const std::string& remind) {
        return Fields({id, date, "Trip", "0900", "480", "Travel", "fred", "", "", remind.empty() ? "" : date, remind,
                       "", "Multiday Event", "", "Conference  in Leeds"});
    };
    EXPECT_EQ(Lines("D200406.dat"),
              (Tags{conference("D200406070001", "20040607", "0730"), conference("D200406080001", "20040608", ""),
                    conference("D200406090001", "20040609", "")}));
    EXPECT_EQ(platform_.MessageTexts().back(), "Finished adding 3 records.");
}

TEST_F(EventMultipleTest, NoDetailsOrANoLeavesTheDialogOpenAndTheFilesAlone) {
    form.cmdOK.UserClick();
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Enter some details for this event"});

    form.txtDetails.UserEdit("Conference", 10);
    PickDays("3");
    platform_.QueueMsgBoxAnswer(vbNo);
    form.cmdOK.UserClick();
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_TRUE(Lines("D200406.dat").empty());

    // The generator opens on the first listed date; its Cancel empties the list.
    platform_.QueueFormScript("frmDateGenerator", [](Form& f) {
        auto& generator = static_cast<frmDateGenerator&>(f);
        EXPECT_EQ(generator.dtPickDate.Value(), DateSerial(2004, 6, 7));
        generator.cmdCancel.UserClick();
    });
    form.cmdPickDates.UserClick();
    EXPECT_EQ(form.lvDateList.ListItems.Count(), 0);
}
