// The time grid: its layout for a day, a week and a month, where and how events are
// placed, and what a click on a cell finds.
#include <gtest/gtest.h>

#include "CalendarFixture.h"
#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListBox.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using namespace orbidex::test;

class TimeGridTest : public CalendarFixture {
protected:
    // Monday 7 June 2004.
    Event monday(const std::string& time, const std::string& details, const std::string& length = "30") {
        return E("20040607", time, details, length);
    }
    static std::pair<OleColor, OleColor> colours(long row, long col) { return {Fore(row, col), Back(row, col)}; }
    /// A click on a cell as "<first panel> | blank" or "<first panel> | <gintcur> <event's identifier>".
    static std::string clicked(long row, long col) {
        bool blank = false;
        const std::string panel = Click(row, col, &blank);
        return panel + " | " + (blank ? "blank" : std::to_string(gintcur) + " " + gCurrentEvent.ID);
    }
};

TEST_F(TimeGridTest, TheDayViewHasARowPerHalfHourLabelledByHourAndMinutes) {
    Show(June(7), {});
    FlexGrid& grid = Grid();
    EXPECT_EQ(std::make_tuple(grid.Rows(), grid.Cols(), grid.FixedCols()), std::make_tuple(21L, 3L, 2L));
    const std::vector<std::tuple<long, std::string, std::string>> labels = {
        {1, "9 ", "am"}, {2, "9 ", "30"}, {7, "12 ", "pm"}, {8, "12 ", "30"}, {9, "1 ", "pm"}, {20, "6 ", "30"}};
    for (const auto& [row, hour, minutes] : labels)
        EXPECT_EQ(std::make_pair(Text(row, 0), Text(row, 1)), std::make_pair(hour, minutes));
    EXPECT_EQ(grid.MergedRange(2, 0), (CellRange{1, 0, 2, 0})) << "the hour stands over its slots";

    // The day's heading row is hidden: the label above the grid names the day.
    EXPECT_EQ(Text(0, 2), "Details for Mon-7-Jun-2004");
    EXPECT_EQ(grid.RowHeight(0), 0);
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Monday, 7-Jun-2004");

    // The day's column fills the window's inside; before a window has shown the form,
    // the size the form is given.
    frmClientDiaryMain& form = MainForm();
    form.Width = 12000;
    form.ScaleWidth = 0;
    Draw(June(7));
    EXPECT_EQ(grid.ColWidth(2), 12000 - grid.Left - grid.ColWidth(0) - grid.ColWidth(1));
    form.ScaleWidth = 9000;
    Draw(June(7));
    EXPECT_EQ(grid.ColWidth(2), 9000 - grid.Left - grid.ColWidth(0) - grid.ColWidth(1));

    Settings({{"timeslots", "StartTime", "0"}, {"timeslots", "numTimeSlotPerHour", "1"}});
    Draw(June(7));
    EXPECT_EQ(std::make_tuple(grid.Rows(), Text(1, 0), grid.RowHeight(1)),
              std::make_tuple(20L, std::string("0 "), 400L))
        << "one slot an hour: taller rows";
}

TEST_F(TimeGridTest, TheWeekRunsFromMondayWithWeekendsShadedAndTodayMarked) {
    View("7");
    Show(June(5), {E("20040605", "0900", "Today"), E("20040606", "0900", "Sunday")});  // a Saturday, and today
    EXPECT_EQ(Grid().Cols, 9);
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Week beginning 31-May-2004");
    EXPECT_EQ(Grid().ColData(2), DateSerial(2004, 5, 31));
    EXPECT_EQ(std::make_tuple(Text(0, 2), Text(0, 7), Text(0, 8)), std::make_tuple("Mon-31", "Sat-5", "Sun-6"));

    EXPECT_EQ(colours(0, 2), std::make_pair(kHeadingFore, kHeadingBack));
    EXPECT_EQ(Fore(0, 7), kTodayFore);
    EXPECT_EQ(Fore(0, 8), vbGrayText);
    EXPECT_EQ(colours(5, 8), std::make_pair(kWeekendFore, kWeekendBack));
    EXPECT_EQ(Back(5, 6), kNormalBack);
    // An event takes the cell in the normal colours, on a weekend too; today's in its own.
    EXPECT_EQ(colours(1, 8), std::make_pair(kNormalFore, kNormalBack));
    EXPECT_EQ(colours(1, 7), std::make_pair(kTodayFore, kNormalBack));
}

TEST_F(TimeGridTest, EventsGoToTheRowOfTheirTimeWithTheirKindShown) {
    const Event late = monday("2300", "  Late call  ");
    Show(June(7), {late, monday("0859", "Early"), With(monday("1300", "Team"), &Event::action, "Meeting with Jo"),
                   With(monday("1400", "Secret"), &Event::status, "Private"),
                   With(monday("1500", "Remind me"), &Event::dateRemind, "20040607")});

    EXPECT_EQ(Text(20, 2), "Late call") << "after the last hour, in the last row, trimmed";
    EXPECT_EQ(Grid().RowData(20), glbEvents.IdConvertToLong(late.id));
    EXPECT_EQ(Text(2, 2), "Early") << "before the first hour, its minutes still count";
    EXPECT_EQ(Fore(9, 2), vbRed);
    EXPECT_EQ(colours(11, 2), std::make_pair(vbGrayText, kNormalBack));
    EXPECT_EQ(colours(13, 2), std::make_pair(kNormalFore, kNormalBack));
    EXPECT_TRUE(Grid().EffectiveStyle(13, 2).fontBold);
    EXPECT_FALSE(Grid().EffectiveStyle(9, 2).fontBold);
}

TEST_F(TimeGridTest, EventsSharingACellListTheirTimesAndForgetTheirIdentifier) {
    Show(June(7), {monday("1030", "first"), monday("1030", "second"), monday("1035", "third"), monday("1100", "alpha"),
                   With(monday("1115", "beta"), &Event::status, "Private")});
    EXPECT_EQ(Text(4, 2), "first (1030)second (1035)third");
    EXPECT_EQ(colours(4, 2), std::make_pair(kMultiFore, kMultiBack));
    EXPECT_EQ(Grid().RowData(4), 0);
    EXPECT_EQ(Text(5, 2), "alpha (1115)beta");
    EXPECT_EQ(colours(5, 2), std::make_pair(vbGrayText, kMultiBack));
}

TEST_F(TimeGridTest, LongEventsShadeTheSlotsTheyCoverRoundingHalvesToEven) {
    // 45 min is 1.5 slots (2), 75 is 2.5 (2), 90 is 3.
    Show(June(7), {monday("0900", "45", "45"), monday("1000", "75", "75"), monday("1200", "90", "90"),
                   monday("1230", "Taker"), monday("1800", "Last", "90")});
    const std::vector<std::pair<long, OleColor>> backs = {{2, kSpanningBack}, {3, kNormalBack},   {4, kSpanningBack},
                                                          {5, kNormalBack},   {9, kSpanningBack}, {10, kNormalBack},
                                                          {20, kSpanningBack}};
    for (const auto& [row, back] : backs) EXPECT_EQ(Back(row, 2), back) << row;
    EXPECT_EQ(Text(4, 2), "");
    // An event in a shaded cell takes it as if it were empty.
    EXPECT_EQ(std::make_pair(Text(8, 2), Back(8, 2)), std::make_pair(std::string("Taker"), kNormalBack));
}

TEST_F(TimeGridTest, MonthAndFortnightColumnsStartOnTheFirstAndHeadTheDayBefore) {
    View("31");
    Show(June(20), {E("20040601", "0900", "1st"), E("20040614", "0900", "14th"), E("20040630", "0900", "30th")});
    EXPECT_EQ(Grid().Cols, 33);
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Month of Jun-2004");
    EXPECT_EQ(Grid().ColData(2), DateSerial(2004, 5, 31));
    EXPECT_EQ(std::make_tuple(Text(0, 2), Text(1, 2), Text(0, 3), Text(1, 31)),
              std::make_tuple("31", "1st", "1", "30th"));

    View("14");
    Draw(June(20));
    EXPECT_EQ(std::make_tuple(Grid().Cols(), Text(1, 2), Text(1, 15)),
              std::make_tuple(16L, std::string("1st"), std::string("14th")));
}

TEST_F(TimeGridTest, MoreThanFiftyEventsInADayAreDrawnOnlyIfTheUserAgrees) {
    std::vector<Event> events(50, monday("0900", "busy"));
    Show(June(7), events);
    EXPECT_TRUE(platform_.Transcript().empty());

    events.push_back(monday("1000", "one more"));
    platform_.QueueMsgBoxAnswer(vbCancel);
    Show(June(7), events);
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    const DialogRecord& question = platform_.Transcript()[0];
    EXPECT_EQ(std::make_pair(question.title, question.buttons),
              std::make_pair(std::string("Check date files"), int(vbOKCancel)));
    EXPECT_EQ(question.text,
              "WARNING - DisplayScheduleInGrid has 51 events in a single day - Mon, 7-Jun-04\r\n"
              "Do you want to display them ?");
    EXPECT_TRUE(Logged("WARNING - DisplayScheduleInGrid has more than 50 events in a single day - Mon, 7-Jun-04"));
    EXPECT_FALSE(Grid().Visible);
    EXPECT_EQ(Text(3, 2), "");

    platform_.QueueMsgBoxAnswer(vbOK);
    Draw(June(7));
    EXPECT_TRUE(Grid().Visible);
    EXPECT_EQ(Text(3, 2), "one more");
}

TEST_F(TimeGridTest, RowsGrowForLongTextAndTheLastEventInARowDecides) {
    // A week's column is 1500 twips: 60 characters need 2 lines, 150 more than the most.
    View("7");
    const auto heightFor = [this](const std::vector<Event>& events) {
        Show(June(7), events);
        return Grid().RowHeight(1);
    };
    EXPECT_EQ(heightFor({monday("0900", std::string(60, 'x'))}), 892);
    EXPECT_EQ(heightFor({monday("0900", std::string(150, 'x'))}), 750) << "no higher than RowHeightMax";
    EXPECT_EQ(heightFor({monday("0900", std::string(150, 'x')), E("20040608", "0900", "short")}), 255);
    Settings({{"appointments", "Autosize", "0"}});
    EXPECT_EQ(heightFor({monday("0900", std::string(60, 'x'))}), 255);
}

TEST_F(TimeGridTest, FileEventsAreListedApartOrPlacedInTheirOwnColours) {
    const Event viewed = With(monday("0900", "notes.txt", "10"), &Event::reference, "View");
    Show(June(7), {With(viewed, &Event::url, "C:\\notes.txt"),
                   With(monday("1000", "Typing", "20"), &Event::action, "Usage"), monday("1100", "Timed", "45")});

    ListBox files;
    const auto draw = [&files](bool showFileEvents) {
        files.Clear();
        glbEvents.DisplayScheduleInGrid(*glbConfig.timeSlots, Grid(), June(7), glbConfig.DayWeekMonth, showFileEvents,
                                        &files);
        std::vector<std::string> listed;
        for (long i = 0; i < files.ListCount(); ++i) listed.push_back(files.List(i));
        return listed;
    };
    EXPECT_EQ(draw(false), (std::vector<std::string>{"0900 notes.txt", "1000 Typing"}));
    EXPECT_EQ(std::make_tuple(Text(1, 2), Text(3, 2), Text(5, 2)), std::make_tuple("", "", "Timed"));
    EXPECT_EQ(
        std::make_tuple(glbEvents.usageEvents(), glbEvents.usageTime(), glbEvents.eventsShown(), glbEvents.totTime()),
        std::make_tuple(2, 30, 1, 45));

    Settings({{"FileAccess", "DisplayFileEvents", "2"}, {"calendar", "DayWeekMonth", "7"}});
    EXPECT_EQ(draw(false), (std::vector<std::string>{"20040607 0900 C:\\notes.txt"}))
        << "usage left out, files by path";
    EXPECT_TRUE(draw(true).empty());
    EXPECT_EQ(colours(1, 2), std::make_pair(kPCFileFore, kPCFileBack));
    EXPECT_EQ(colours(3, 2), std::make_pair(kNormalFore, kNormalBack));
}

TEST_F(TimeGridTest, AClickFindsTheCellsEventOrTellsWhatTheCellHolds) {
    const Event first = monday("0945", "Dentist");
    const Event worked = monday("1500", "Dentist", "");
    Show(June(7), {first, worked, monday("1000", "Long", "90"), monday("1200", "one"), monday("1200", "two")});
    EXPECT_EQ(clicked(1, 2), "Blank Timeslot on 7-Jun-2004 at 0900 | blank");
    EXPECT_EQ(clicked(4, 2), "Blank Timeslot on 7-Jun-2004 at 1030 | blank") << "a shaded cell is free";
    // The day view finds the event by the identifier its row keeps.
    EXPECT_EQ(clicked(2, 2), "At 0945 on 20040607 spent 30 minutes on ''Dentist' | 0 " + first.id);
    EXPECT_EQ(clicked(13, 2), "At 1500 on 20040607 worked on ''Dentist' | 1 " + worked.id);
    EXPECT_EQ(clicked(7, 2), "Multiple Events for 7-Jun-2004 at 1200 | -1 ");
    EXPECT_TRUE(Logged("GetEventFromGrid AFTER: gintcur=-1"));

    // Other views look the event up by date, slot and text: with no "Dentist" at 0930
    // the last of the day is taken.
    View("7");
    Draw(June(7));
    EXPECT_EQ(clicked(2, 2), "At 1500 on 20040607 worked on ''Dentist' | 1 " + worked.id);
    EXPECT_EQ(clicked(1, 3), "Blank Timeslot on 8-Jun-2004 at 0900 | blank");
    View("31");
    Draw(June(7));
    EXPECT_EQ(clicked(1, 2), "Blank Timeslot on 31-May-2004 at 0900 | blank");

    // Over ten days a column reports the day before for a blank cell, but an event is
    // found on the day the column shows its events for, the 1st included.
    const Event sunday = E("20040606", "0945", "Dentist");
    const Event standup = E("20040601", "0900", "Standup");
    Show(June(7), {standup, sunday, first});
    EXPECT_EQ(clicked(2, 8), "At 0945 on 20040607 spent 30 minutes on ''Dentist' | 2 " + first.id);
    EXPECT_EQ(clicked(2, 7), "At 0945 on 20040606 spent 30 minutes on ''Dentist' | 1 " + sunday.id);
    EXPECT_EQ(clicked(1, 2), "At 0900 on 20040601 spent 30 minutes on ''Standup' | 0 " + standup.id);
    View("14");
    Draw(June(7));
    EXPECT_EQ(clicked(2, 8), "At 0945 on 20040607 spent 30 minutes on ''Dentist' | 2 " + first.id);
}
