// The time grid: its layout for a day, a week, a fortnight and a month, where and how
// events are placed, and what a click on a cell finds.
#include <gtest/gtest.h>

#include "CalendarFixture.h"
#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListBox.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using orbidex::test::Event;
using namespace orbidex::test;

class TimeGridTest : public CalendarFixture {
protected:
    // Monday 7 June 2004 in the day view, with these events.
    void drawMonday(const std::vector<Event>& events) {
        std::vector<std::string> lines;
        for (const Event& event : events) lines.push_back(event.Line());
        WriteMonth("D200406.dat", lines);
        Load(June(7));
        Draw(June(7));
    }
    static Event at(const std::string& time, const std::string& details, const std::string& length = "30") {
        return MakeEvent("D20040607" + std::to_string(++next_), "20040607", time, details, length);
    }
    static inline int next_ = 1000;
};

TEST_F(TimeGridTest, TheDayViewHasARowPerHalfHourLabelledByHourAndMinutes) {
    drawMonday({});
    FlexGrid& grid = Grid();
    EXPECT_EQ(grid.Rows, 21);
    EXPECT_EQ(grid.Cols, 3);
    EXPECT_EQ(grid.FixedCols, 2);
    EXPECT_TRUE(grid.Visible);
    const std::vector<std::tuple<long, std::string, std::string>> labels = {
        {1, "9 ", "am"}, {2, "9 ", "30"}, {7, "12 ", "pm"}, {8, "12 ", "30"}, {9, "1 ", "pm"}, {20, "6 ", "30"}};
    for (const auto& [row, hour, minutes] : labels) {
        EXPECT_EQ(Text(row, 0), hour) << row;
        EXPECT_EQ(Text(row, 1), minutes) << row;
    }
    EXPECT_EQ(grid.MergedRange(2, 0), (CellRange{1, 0, 2, 0})) << "the hour stands over its slots";
    const CellStyle hour = grid.EffectiveStyle(1, 0);
    EXPECT_EQ(std::tie(hour.fontName, hour.fontBold, hour.fontSize, hour.foreColor, hour.alignment),
              std::make_tuple(std::string("Arial Black"), true, 12.0, vbBlack, flexAlignRightTop));
    const CellStyle minutes = grid.EffectiveStyle(2, 1);
    EXPECT_EQ(std::tie(minutes.fontName, minutes.fontBold, minutes.fontSize, minutes.foreColor),
              std::make_tuple(std::string("Arial"), false, 8.0, vbGrayText));
    EXPECT_EQ(grid.RowHeight(1), 255);

    // The day's heading row is hidden: the label above the grid names the day.
    EXPECT_EQ(Text(0, 2), "Details for Mon-7-Jun-2004");
    EXPECT_EQ(grid.RowHeight(0), 0);
    EXPECT_EQ(grid.ColData(2), June(7));
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Monday, 7-Jun-2004");
    EXPECT_EQ(Fore(0, 2), kHeadingFore);
    EXPECT_EQ(Back(1, 2), kNormalBack);

    // One slot an hour from midnight: taller rows, a smaller hour.
    Settings({{"timeslots", "StartTime", "0"}, {"timeslots", "numTimeSlotPerHour", "1"}});
    Draw(June(7));
    EXPECT_EQ(grid.Rows, 20);
    EXPECT_EQ(Text(1, 0), "0 ");
    EXPECT_EQ(grid.RowHeight(1), 400);
    EXPECT_EQ(grid.EffectiveStyle(1, 0).fontSize, 10.0);
}

TEST_F(TimeGridTest, TheWeekRunsFromMondayWithWeekendsShadedAndTodayMarked) {
    Settings({{"calendar", "DayWeekMonth", "7"}});
    WriteMonth("D200406.dat", {MakeEvent("D200406050001", "20040605", "0900", "Today").Line(),
                               MakeEvent("D200406060001", "20040606", "0900", "Sunday").Line()});
    Load(June(5));
    Draw(June(5));  // Saturday, and today
    FlexGrid& grid = Grid();
    EXPECT_EQ(grid.Cols, 9);
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Week beginning 31-May-2004");
    EXPECT_EQ(grid.ColData(2), DateSerial(2004, 5, 31));
    EXPECT_EQ(Text(0, 2), "Mon-31");
    EXPECT_EQ(Text(0, 7), "Sat-5");
    EXPECT_EQ(Text(0, 8), "Sun-6");
    EXPECT_EQ(std::make_tuple(grid.ColWidth(2), grid.ColWidth(6), grid.ColWidth(7), grid.ColWidth(8)),
              std::make_tuple(1500L, 1500L, 1150L, 1150L));

    EXPECT_EQ(std::make_pair(Fore(0, 2), Back(0, 2)), std::make_pair(kHeadingFore, kHeadingBack));
    EXPECT_EQ(Fore(0, 7), kTodayFore);
    EXPECT_EQ(Fore(0, 8), vbGrayText);
    EXPECT_EQ(std::make_pair(Fore(5, 8), Back(5, 8)), std::make_pair(kWeekendFore, kWeekendBack));
    EXPECT_EQ(Back(20, 7), kWeekendBack);
    EXPECT_EQ(Back(5, 6), kNormalBack);

    // An event takes the cell in the normal colours, on a weekend too; today's in its own.
    EXPECT_EQ(Text(1, 8), "Sunday");
    EXPECT_EQ(std::make_pair(Fore(1, 8), Back(1, 8)), std::make_pair(kNormalFore, kNormalBack));
    EXPECT_EQ(std::make_pair(Fore(1, 7), Back(1, 7)), std::make_pair(kTodayFore, kNormalBack));
}

TEST_F(TimeGridTest, EventsGoToTheRowOfTheirTimeWithTheirKindShown) {
    Event meeting = at("1300", "Team meeting");
    meeting.action = "Meeting with Jo";
    Event secret = at("1400", "Secret");
    secret.status = "Private";
    Event reminder = at("1500", "Remind me");
    reminder.dateRemind = "20040607";
    const Event late = at("2300", "  Late call  ");
    drawMonday({late, at("0859", "Early"), meeting, secret, reminder});

    FlexGrid& grid = Grid();
    EXPECT_EQ(Text(20, 2), "Late call") << "after the last hour, in the last row, trimmed";
    EXPECT_EQ(grid.RowData(20), glbEvents.IdConvertToLong(late.id));
    EXPECT_EQ(Text(2, 2), "Early") << "before the first hour, its minutes still count";
    EXPECT_EQ(Fore(9, 2), vbRed);
    EXPECT_EQ(Fore(11, 2), vbGrayText);
    EXPECT_EQ(std::make_pair(Back(11, 2), Fore(13, 2)), std::make_pair(kNormalBack, kNormalFore));
    EXPECT_TRUE(grid.EffectiveStyle(13, 2).fontBold);
    EXPECT_FALSE(grid.EffectiveStyle(9, 2).fontBold);
    EXPECT_EQ(grid.Tag(), reminder.id) << "the grid keeps the last event placed";
}

TEST_F(TimeGridTest, EventsSharingACellListTheirTimesAndForgetTheirIdentifier) {
    Event privateOne = at("1115", "beta");
    privateOne.status = "Private";
    drawMonday({at("1030", "first"), at("1030", "second"), at("1035", "third"), at("1100", "alpha"), privateOne});
    EXPECT_EQ(Text(4, 2), "first (1030)second (1035)third");
    EXPECT_EQ(std::make_pair(Fore(4, 2), Back(4, 2)), std::make_pair(kMultiFore, kMultiBack));
    EXPECT_EQ(Grid().RowData(4), 0);
    EXPECT_EQ(Text(5, 2), "alpha (1115)beta");
    EXPECT_EQ(std::make_pair(Fore(5, 2), Back(5, 2)), std::make_pair(vbGrayText, kMultiBack));
}

TEST_F(TimeGridTest, LongEventsShadeTheSlotsTheyCoverRoundingHalvesToEven) {
    drawMonday({at("0900", "45 minutes", "45"), at("1000", "75 minutes", "75"), at("1200", "90 minutes", "90"),
                at("1230", "Taker"), at("1800", "Last", "90")});
    // 45 min is 1.5 slots (2), 75 is 2.5 (2), 90 is 3.
    EXPECT_EQ(Back(2, 2), kSpanningBack);
    EXPECT_EQ(Back(3, 2), kNormalBack);
    EXPECT_EQ(Back(4, 2), kSpanningBack);
    EXPECT_EQ(Text(4, 2), "");
    EXPECT_EQ(Back(5, 2), kNormalBack);
    EXPECT_EQ(Back(9, 2), kSpanningBack);
    EXPECT_EQ(Back(10, 2), kNormalBack);
    // An event in a shaded cell takes it as if it were empty.
    EXPECT_EQ(Text(8, 2), "Taker");
    EXPECT_EQ(Back(8, 2), kNormalBack);
    // A span past the last row stops there.
    EXPECT_EQ(Back(20, 2), kSpanningBack);
    EXPECT_EQ(Grid().Rows, 21);
}

TEST_F(TimeGridTest, MonthAndFortnightColumnsStartOnTheFirstAndHeadTheDayBefore) {
    WriteMonth("D200406.dat", {MakeEvent("D200406010001", "20040601", "0900", "1st").Line(),
                               MakeEvent("D200406140001", "20040614", "0900", "14th").Line(),
                               MakeEvent("D200406300001", "20040630", "0900", "30th").Line()});
    Load(June(20));
    Settings({{"calendar", "DayWeekMonth", "31"}});
    Draw(June(20));
    FlexGrid& grid = Grid();
    EXPECT_EQ(grid.Cols, 33);
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Month of Jun-2004");
    EXPECT_EQ(grid.ColData(2), DateSerial(2004, 5, 31));
    EXPECT_EQ(Text(0, 2), "31");
    EXPECT_EQ(Text(1, 2), "1st");
    EXPECT_EQ(Text(0, 3), "1");
    EXPECT_EQ(Text(1, 31), "30th");
    const CellStyle heading = grid.EffectiveStyle(0, 2);
    EXPECT_EQ(std::tie(heading.fontName, heading.fontSize, heading.fontBold),
              std::make_tuple(std::string("Arial Narrow"), 8.0, false));

    Settings({{"calendar", "DayWeekMonth", "14"}});
    Draw(June(20));
    EXPECT_EQ(grid.Cols, 16);
    EXPECT_EQ(Text(1, 2), "1st");
    EXPECT_EQ(Text(1, 15), "14th");
}

TEST_F(TimeGridTest, MoreThanFiftyEventsInADayAreDrawnOnlyIfTheUserAgrees) {
    std::vector<Event> events(50, at("0900", "busy"));
    drawMonday(events);
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_TRUE(Grid().Visible);

    events.push_back(at("1000", "one more"));
    platform_.QueueMsgBoxAnswer(vbCancel);
    drawMonday(events);
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    const DialogRecord& question = platform_.Transcript()[0];
    EXPECT_EQ(question.title, "Check date files");
    EXPECT_EQ(question.buttons, vbOKCancel);
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
    const std::string sixtyChars(60, 'x');
    Settings({{"calendar", "DayWeekMonth", "7"}});
    const auto event = [](const std::string& id, const std::string& date, const std::string& details) {
        return MakeEvent(id, date, "0900", details).Line();
    };
    WriteMonth("D200406.dat", {event("D200406070001", "20040607", sixtyChars),
                               event("D200406070002", "20040607", std::string(150, 'y')),
                               event("D200406080001", "20040608", "short")});
    Load(June(7));
    Draw(June(7));
    // Column 1500 twips: 214 characters of size 1; 60 characters of size 8.25 need 2 lines.
    EXPECT_EQ(Grid().RowHeight(1), 255) << "Tuesday's short event came last";

    WriteMonth("D200406.dat", {event("D200406070001", "20040607", sixtyChars)});
    Load(June(7));
    Draw(June(7));
    EXPECT_EQ(Grid().RowHeight(1), 892);

    WriteMonth("D200406.dat", {event("D200406070001", "20040607", std::string(150, 'y'))});
    Load(June(7));
    Draw(June(7));
    EXPECT_EQ(Grid().RowHeight(1), 750) << "no higher than RowHeightMax";

    Settings({{"appointments", "Autosize", "0"}});
    Draw(June(7));
    EXPECT_EQ(Grid().RowHeight(1), 255);
}

TEST_F(TimeGridTest, FileEventsAreListedApartOrPlacedInTheirOwnColours) {
    Settings({{"calendar", "DayWeekMonth", "7"}});
    Event viewed = at("0900", "notes.txt", "10");
    viewed.reference = "View";
    viewed.action = "Open";
    viewed.url = "C:\\notes.txt";
    Event used = at("1000", "Typing", "20");
    used.reference = "Word";
    used.action = "Usage";
    Event usage = at("1030", "Recorded", "5");
    usage.reference = "PCFile";
    usage.action = "Usage";
    drawMonday({viewed, used, usage, at("1100", "Timed", "45")});

    const auto drawWith = [](bool showFileEvents, ListBox& files) {
        glbEvents.DisplayScheduleInGrid(*glbConfig.timeSlots, Grid(), June(7), 7, showFileEvents, &files);
    };
    ListBox files;
    drawWith(false, files);
    ASSERT_EQ(files.ListCount(), 2);
    EXPECT_EQ(files.List(0), "20040607 0900 notes.txt");
    EXPECT_EQ(files.List(1), "20040607 1000 Typing");
    EXPECT_EQ(std::make_tuple(Text(1, 2), Text(3, 2), Text(4, 2), Text(5, 2)),
              std::make_tuple("", "", "", "Timed"));
    EXPECT_EQ(std::make_tuple(glbEvents.usageEvents(), glbEvents.usageTime(), glbEvents.eventsShown(),
                              glbEvents.totTime()),
              std::make_tuple(2, 30, 1, 45));

    // With DisplayFileEvents 2, usage is left out and a file is named by its path.
    Settings({{"FileAccess", "DisplayFileEvents", "2"}});
    files.Clear();
    drawWith(false, files);
    ASSERT_EQ(files.ListCount(), 1);
    EXPECT_EQ(files.List(0), "20040607 0900 C:\\notes.txt");

    files.Clear();
    drawWith(true, files);
    EXPECT_EQ(files.ListCount(), 0);
    EXPECT_EQ(Text(1, 2), "notes.txt");
    EXPECT_EQ(std::make_pair(Fore(1, 2), Back(1, 2)), std::make_pair(kPCFileFore, kPCFileBack));
    EXPECT_EQ(std::make_pair(Text(3, 2), Fore(3, 2)), std::make_pair(std::string("Typing"), kNormalFore));
    EXPECT_EQ(glbEvents.eventsShown(), 3);
}

TEST_F(TimeGridTest, AClickFindsTheCellsEventOrTellsWhatTheCellHolds) {
    const Event first = at("0945", "Dentist");
    Event second = at("1500", "Dentist", "");
    drawMonday({first, second, at("1000", "Long", "90"), at("1200", "one"), at("1200", "two")});

    bool blank = false;
    EXPECT_EQ(Click(1, 2, &blank), "Blank Timeslot on 7-Jun-2004 at 0900");
    EXPECT_TRUE(blank);
    EXPECT_EQ(Click(4, 2, &blank), "Blank Timeslot on 7-Jun-2004 at 1030") << "a shaded cell is free";
    EXPECT_TRUE(blank);

    // The day view finds the event by the identifier its row keeps.
    EXPECT_EQ(Click(2, 2, &blank), "At 0945 on 20040607 spent 30 minutes on ''Dentist'");
    EXPECT_FALSE(blank);
    EXPECT_EQ(gintcur, 0);
    EXPECT_EQ(gCurrentEvent.ID, first.id);
    EXPECT_EQ(std::make_pair(glbEvents.currentGridRow(), glbEvents.currentGridCol()), std::make_pair(2L, 2L));
    EXPECT_TRUE(Logged("User selected ID in grid : ID# " + first.id));
    EXPECT_EQ(Click(13, 2), "At 1500 on 20040607 worked on ''Dentist'");

    EXPECT_EQ(Click(7, 2, &blank), "Multiple Events for 7-Jun-2004 at 1200");
    EXPECT_FALSE(blank);
    EXPECT_EQ(gintcur, -1);
    EXPECT_EQ(gCurrentEvent.ID, "");
    EXPECT_TRUE(Logged("GetEventFromGrid BEFORE: gintcur=1"));
    EXPECT_TRUE(Logged("GetEventFromGrid AFTER: gintcur=-1"));

    // Other views look the event up by date, slot time and text: with no event at
    // 0930 the last "Dentist" of the day is taken.
    Settings({{"calendar", "DayWeekMonth", "7"}});
    Draw(June(7));
    EXPECT_EQ(Click(2, 2), "At 1500 on 20040607 worked on ''Dentist'");
    EXPECT_EQ(Click(1, 3), "Blank Timeslot on 8-Jun-2004 at 0900");
    Settings({{"calendar", "DayWeekMonth", "31"}});
    Draw(June(7));
    EXPECT_EQ(Click(1, 2), "Blank Timeslot on 31-May-2004 at 0900");
}
