// Moving the calendar to a date: the months it loads, the first date of each view,
// the browser page, and the events of one day and one month.
#include <gtest/gtest.h>

#include <algorithm>

#include "CalendarFixture.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using namespace orbidex::test;

class CalendarMovesTest : public CalendarFixture {
protected:
    void click(VbDate date) { glbEvents.CalendarDateClicked(MainForm(), date); }
    long timesLogged(const std::string& message) const {
        const std::vector<std::string> log = LogMessages();
        return static_cast<long>(std::count(log.begin(), log.end(), message));
    }
};

TEST_F(CalendarMovesTest, EachViewStartsOnItsOwnFirstDate) {
    const VbDate sunday = June(6);
    const std::vector<std::pair<std::string, VbDate>> cases = {
        {"1", sunday}, {"7", DateSerial(2004, 5, 31)}, {"14", June(1)}, {"31", June(1)}, {"11", June(1)}, {"3", 0}};
    for (const auto& [days, first] : cases) {
        Settings({{"calendar", "DayWeekMonth", days}});
        EXPECT_EQ(glbEvents.GetDisplayStartDate(sunday), first) << days;
    }
    Settings({{"calendar", "DayWeekMonth", "7"}});
    EXPECT_EQ(glbEvents.GetDisplayStartDate(June(7)), June(7)) << "a Monday starts its own week";
}

TEST_F(CalendarMovesTest, AWeekAcrossAMonthEndLoadsBothMonths) {
    Settings({{"calendar", "DayWeekMonth", "7"}});
    WriteMonth("D200210.dat", {MakeEvent("D200210280001", "20021028", "0900", "October").Line()});
    WriteMonth("D200211.dat", {MakeEvent("D200211030001", "20021103", "0900", "November").Line(),
                               MakeEvent("D200211280001", "20021128", "0900", "Late").Line()});
    WriteMonth("D200212.dat", {MakeEvent("D200212010001", "20021201", "0900", "December").Line()});
    gintcur = 4;
    glbRefreshNeeded = true;

    click(DateSerial(2002, 11, 3));  // Sunday of the week from 28 October
    EXPECT_TRUE(Logged("User clicked FIRST calendar date in  week mode03/11/2002 - now loading data"));
    EXPECT_EQ(Text(1, 2), "October");
    EXPECT_EQ(Text(1, 8), "November");
    EXPECT_EQ(MainForm().MonthView1.Value(), DateSerial(2002, 11, 3));
    EXPECT_EQ(gintcur, -1);
    EXPECT_FALSE(glbRefreshNeeded);
    EXPECT_EQ(glbEvents.shownMonth(), 11);

    click(DateSerial(2002, 11, 28));  // Thursday of the week to 1 December
    EXPECT_TRUE(Logged("User clicked LAST calendar date in  week mode28/11/2002 - now loading data"));
    EXPECT_EQ(Text(1, 5), "Late");
    EXPECT_EQ(Text(1, 8), "December");
}

TEST_F(CalendarMovesTest, TheMonthIsReadAgainOnlyWhenItsFileChanged) {
    const std::string reloaded = "Auto reloading datafile ... disk version changed";
    WriteMonth("D200406.dat", {MakeEvent("D200406070001", "20040607", "0900", "Monday").Line()});
    click(June(7));
    EXPECT_EQ(Text(1, 2), "Monday");
    click(June(8));
    EXPECT_EQ(timesLogged(reloaded), 0);

    AppendToFile(DataPath() + "D200406.dat",
                 MakeEvent("D200406080001", "20040608", "1000", "Added").Line() + "\r\n");
    click(June(8));
    EXPECT_EQ(timesLogged(reloaded), 1);
    EXPECT_EQ(Text(3, 2), "Added");

    WriteMonth("D200407.dat", {MakeEvent("D200407010001", "20040701", "0900", "July").Line()});
    click(DateSerial(2004, 7, 1));
    EXPECT_EQ(Text(1, 2), "July");
    EXPECT_EQ(timesLogged(reloaded), 1) << "another month is loaded without the test";
}

TEST_F(CalendarMovesTest, WithTheBrowserOnTheDaysPageIsShown) {
    MainForm().mnuViewBrowser.Checked = true;
    click(June(7));
    EXPECT_EQ(MainForm().web.LocationURL(), DataPath() + "D200406.html#day20040607");
}

TEST_F(CalendarMovesTest, ADaysEventsAreCopiesFilteredByKindAndWordAndAMonthsLinesLoseFileEvents) {
    Event usage = MakeEvent("D200406070003", "20040607", "1300", "Word");
    usage.reference = "PCFile";
    usage.action = "Usage";
    Event access = MakeEvent("D200406070004", "20040607", "1400", "report.doc");
    access.reference = "Edit";
    access.action = "PCFile";
    WriteMonth("D200406.dat", {MakeEvent("D200406070001", "20040607", "1200", "Lunch with Ann").Line(),
                               MakeEvent("D200406080001", "20040608", "1200", "lunch").Line(),
                               usage.Line(), access.Line(),
                               MakeEvent("D200406070002", "20040607", "1230", "late LUNCH").Line()});
    Load(June(7));

    std::vector<cDiaryRecord> found;
    EXPECT_EQ(glbEvents.FilterEventsFromArray(June(7), found, true, " lunch "), 2);
    EXPECT_EQ(std::make_pair(found[0].details, found[1].details), std::make_pair(std::string("Lunch with Ann"), std::string("late LUNCH")));
    found[0].details = "changed";
    EXPECT_EQ(glbEvents.events(0).details, "Lunch with Ann");
    EXPECT_EQ(glbEvents.FilterEventsFromArray(June(7), found, false, ""), 4);
    EXPECT_EQ(glbEvents.FilterEventsFromArray(June(7), found, true, "dinner"), 0);

    std::vector<std::string> lines;
    EXPECT_EQ(glbEvents.GetMonthsEvents(June(20), lines), 3);
    EXPECT_EQ(lines[1], MakeEvent("D200406080001", "20040608", "1200", "lunch").Line());
    EXPECT_EQ(glbEvents.GetMonthsEvents(DateSerial(2004, 9, 1), lines), 0);
}
