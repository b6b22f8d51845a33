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

}  // namespace

class DateGeneratorTest : public orbidex::test::DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        form.Load();
    }
    /// Starts at `start`, every `interval`, for `count` of `unit`.
    std::vector<std::string> RunFor(VbDate start, Interval interval, const std::string& count, Unit unit) {
        form.dtPickDate.UserPick(start);
        form.cmbDays.UserSelect(interval);
        form.optFinish(1).UserClick();
        form.txtNumDays.UserEdit(count, Len(count));
        form.cmbLengthUnit.UserSelect(unit);
        form.Command1.UserClick();
        return Tags();
    }
    /// Starts at `start`, every `interval`, up to the end date.
    std::vector<std::string> RunUntil(VbDate start, Interval interval, VbDate end) {
        form.dtPickDate.UserPick(start);
        form.cmbDays.UserSelect(interval);
        form.optFinish(0).UserClick();
        form.dtPickEndDate.UserPick(end);
        form.Command1.UserClick();
        return Tags();
    }
    std::vector<std::string> Tags() {
        std::vector<std::string> tags;
        for (long row = 1; row <= form.lvDateList.ListItems.Count(); ++row)
            tags.push_back(form.lvDateList.ListItems(row).Tag);
        return tags;
    }

    frmDateGenerator form;
};

TEST_F(DateGeneratorTest, TheFormStartsNowWithWeekdaysTickedAndTheFirstEntries) {
    EXPECT_EQ(form.Caption(), "Create List of Dates");
    EXPECT_EQ(form.dtPickDate.Value(), platform_.Now()) << "the time of day is kept";
    EXPECT_EQ(form.dtPickEndDate.Value(), platform_.Now() + 3);
    EXPECT_EQ(form.cmbDays.Text(), "Day");
    EXPECT_EQ(form.cmbLengthUnit.Text(), "days");
    ASSERT_EQ(form.lvDays.ListItems.Count(), 7);
    EXPECT_EQ(form.lvDays.ListItems(7).Text(), "Sun");
    EXPECT_TRUE(form.lvDays.ListItems(5).Checked());
    EXPECT_FALSE(form.lvDays.ListItems(6).Checked());
    EXPECT_EQ(form.lvDateList.ListItems.Count(), 0) << "nothing is worked out before a button";
}

TEST_F(DateGeneratorTest, TwoWeeksEveryWeekFromAMondayAfternoonGiveTwoDates) {
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kWeek, "2", kWeeks), (std::vector<std::string>{"20040607", "20040614"}));
    EXPECT_EQ(form.lvDateList.ListItems(1).Text(), "Mon, 07-Jun-04");

    // A morning value is not rounded up: the list starts the day before.
    EXPECT_EQ(RunFor(At(2004, 6, 7, 9), kWeek, "2", kWeeks), (std::vector<std::string>{"20040606", "20040613"}));
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kDay, "3", kDays),
              (std::vector<std::string>{"20040607", "20040608", "20040609"}));
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kFortnight, "4", kFortnights).size(), 4U);

    // The ticked weekdays change nothing.
    for (long row = 1; row <= 7; ++row) form.lvDays.UserCheckItem(form.lvDays.ListItems(row), row > 5);
    EXPECT_EQ(RunFor(At(2004, 6, 7, 15), kWeek, "2", kWeeks), (std::vector<std::string>{"20040607", "20040614"}));
}

TEST_F(DateGeneratorTest, TheEndDateCountsOnlyWhenItsPickerHoldsAnAfternoon) {
    EXPECT_EQ(RunUntil(At(2004, 6, 7, 15), kDay, At(2004, 6, 10, 9)),
              (std::vector<std::string>{"20040607", "20040608", "20040609"}));
    EXPECT_EQ(RunUntil(At(2004, 6, 7, 15), kDay, At(2004, 6, 10, 15)),
              (std::vector<std::string>{"20040607", "20040608", "20040609", "20040610"}));
    EXPECT_TRUE(RunUntil(At(2004, 6, 7, 15), kDay, At(2004, 6, 1, 15)).empty()) << "an end before the start";
}

TEST_F(DateGeneratorTest, MonthsQuartersAndYearsKeepTheDayOfTheStart) {
    EXPECT_EQ(
        RunUntil(At(2004, 1, 31, 10), kMonth, At(2005, 1, 1, 10)),
        (std::vector<std::string>{"20040131", "20040331", "20040531", "20040731", "20040831", "20041031", "20041231"}))
        << "months without a 31st are skipped";
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kQuarter, "1", kYears),
              (std::vector<std::string>{"20040115", "20040415", "20040715", "20041015"}));
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kYear, "1", kYears), std::vector<std::string>{"20040115"});
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kYear, "2", kYears), (std::vector<std::string>{"20040115", "20050115"}));
    EXPECT_EQ(RunFor(At(2004, 1, 15, 10), kMonth, "3", kMonths),
              (std::vector<std::string>{"20040115", "20040215", "20040315"}));
}

TEST_F(DateGeneratorTest, ALengthThatIsNoNumberGivesNoDatesAndAHugeOneIsCut) {
    EXPECT_TRUE(RunFor(At(2004, 6, 7, 15), kDay, "soon", kDays).empty());
    const std::vector<std::string> years = RunFor(At(2004, 6, 7, 9), kYear, "1E+300", kYears);
    ASSERT_FALSE(years.empty());
    EXPECT_EQ(years.size(), 101U) << "a hundred years on at most";
    EXPECT_EQ(years.back(), "21040607");
}

TEST_F(DateGeneratorTest, OkKeepsTheListAndCancelDropsIt) {
    RunFor(At(2004, 6, 7, 15), kDay, "3", kDays);
    form.cmdOk.UserClick();
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(form.lvDateList.ListItems.Count(), 3);

    form.cmdCancel.UserClick();
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_EQ(form.lvDateList.ListItems.Count(), 0);
}

class EventMultipleTest : public orbidex::test::DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
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
    std::string Time(const DatePicker& picker) const { return FormatDate(picker.Value, "hhmm"); }

    frmEventMultiple form;
};

TEST_F(EventMultipleTest, AGeneralReminderRemindsEachDayAndOtherKindsRemindOnce) {
    EXPECT_EQ(form.Caption(), "Adding Mulitple Day Event");
    EXPECT_EQ(form.cmbAction.Text(), "General Reminder");
    EXPECT_EQ(Time(form.dtPickTime), "0900");
    EXPECT_EQ(Time(form.dtPickEndTime), "0905");
    EXPECT_EQ(Time(form.dtPickFirstRemindTime), "0845");
    EXPECT_EQ(Time(form.DTPicker2), "0845");
    EXPECT_EQ(form.chkRemind.Value(), vbChecked);
    EXPECT_EQ(form.txtStatus.Text(), "Multiday Reminder");
    EXPECT_EQ(form.txtContact.Text(), "fred");
    EXPECT_FALSE(form.dtPickFirstRemindTime.Enabled());

    form.cmbAction.UserSelect(2);
    EXPECT_EQ(Time(form.dtPickEndTime), "1700");
    EXPECT_EQ(form.chkRemind.Value(), vbUnchecked);
    EXPECT_EQ(form.txtStatus.Text(), "Multiday Event");
    EXPECT_EQ(form.chkRemindOnce.Value(), vbChecked);
    EXPECT_TRUE(form.dtPickFirstRemindTime.Enabled());
    EXPECT_EQ(Time(form.DTPicker2), "0845");

    // Ticking "once" again sets the daily reminder to the start's own time of day.
    form.chkRemindOnce.UserClick();
    EXPECT_FALSE(form.dtPickFirstRemindDate.Enabled());
    form.chkRemindOnce.UserClick();
    EXPECT_EQ(Time(form.DTPicker2), "0900");

    EXPECT_EQ(form.Width(), 4200);
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.Width(), 6570);
    EXPECT_EQ(form.Height(), 5000);
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.Width(), 4200);
}

TEST_F(EventMultipleTest, OkAsksThenAddsTheEventOnEveryDate) {
    LoadJune({});
    form.cmbAction.UserSelect(3);  // "Travel": remind once, before the first day
    form.txtDetails.UserEdit("Conference", 10);
    form.txtReference.UserEdit("Trip", 4);
    form.dtPickFirstRemindTime.UserPickTime(TimeSerial(7, 30, 0));
    PickDays("3");
    platform_.QueueMsgBoxAnswer(vbYes);
    form.cmdOK.UserClick();

    ASSERT_GE(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Confirm Create Multiple Events");
    EXPECT_EQ(platform_.Transcript()[0].text, "Do you want to create these 3 events ?");
    auto conference = [](const std::string& id, const std::string& date, const std::string& remind) {
        return Fields({id, date, "Trip", "0900", "480", "Travel", "fred", "", "", remind.empty() ? "" : date, remind,
                       "", "Multiday Event", "", "Conference"});
    };
    EXPECT_EQ(Lines("D200406.dat"), (std::vector<std::string>{conference("D200406070001", "20040607", "0730"),
                                                              conference("D200406080001", "20040608", ""),
                                                              conference("D200406090001", "20040609", "")}));
    EXPECT_EQ(platform_.MessageTexts().back(), "Finished adding 3 records.");
    EXPECT_TRUE(form.IsUnloaded());
}

TEST_F(EventMultipleTest, AGeneralReminderLastsFiveMinutesAndRemindsOnEachDay) {
    LoadJune({});
    form.txtDetails.UserEdit("Take pills", 10);
    PickDays("2");
    form.cmdPickDates.UserClick();
    ASSERT_EQ(form.lvDateList.ListItems.Count(), 2);
    EXPECT_EQ(form.lvDateList.ListItems(2).Text(), "Tue, 08-Jun-04");
    platform_.QueueMsgBoxAnswer(vbYes);
    form.cmdOK.UserClick();
    EXPECT_EQ(
        Lines("D200406.dat"),
        (std::vector<std::string>{Fields({"D200406070001", "20040607", "", "0900", "5", "General Reminder", "fred", "",
                                          "", "20040607", "0845", "", "Multiday Reminder", "", "Take pills"}),
                                  Fields({"D200406080001", "20040608", "", "0900", "5", "General Reminder", "fred", "",
                                          "", "20040608", "0845", "", "Multiday Reminder", "", "Take pills"})}));
}

TEST_F(EventMultipleTest, NoDetailsOrANoLeavesTheDialogOpenAndTheFilesAlone) {
    LoadJune({});
    const std::string before = ReadBytes(Data("D200406.dat"));
    form.cmdOK.UserClick();
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Enter some details for this event"});
    EXPECT_TRUE(platform_.FormsShown().empty());

    form.txtDetails.UserEdit("Conference", 10);
    PickDays("3");
    platform_.QueueMsgBoxAnswer(vbNo);
    form.cmdOK.UserClick();
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), before);
    EXPECT_EQ(form.lvDateList.ListItems.Count(), 3) << "the dates stay for another try";

    // The generator opens on the first listed date; its Cancel empties the list.
    platform_.QueueFormScript("frmDateGenerator", [](Form& f) {
        auto& generator = static_cast<frmDateGenerator&>(f);
        EXPECT_EQ(generator.dtPickDate.Value(), DateSerial(2004, 6, 7));
        generator.cmdCancel.UserClick();
    });
    form.cmdPickDates.UserClick();
    EXPECT_EQ(form.lvDateList.ListItems.Count(), 0);

    form.cmdCancel.UserClick();
    EXPECT_TRUE(glbConfig.dialogCancelled);
    EXPECT_TRUE(form.IsUnloaded());
}
