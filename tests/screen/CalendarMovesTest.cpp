// Moving the calendar to a date: the months it loads, the first date of each view,
// the browser page, and the events of one day and of one month.
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
    static void click(VbDate date) { glbEvents.CalendarDateClicked(MainForm(), date); }
};

TEST_F(CalendarMovesTest, EachViewStartsOnItsOwnFirstDate) {
    const std::vector<std::pair<std::string, VbDate>> cases = {
        {"1", June(6)}, {"7", DateSerial(2004, 5, 31)}, {"14", June(1)}, {"11", June(1)}, {"3", 0}};
    for (const auto& [days, first] : cases) {
        View(days);
        EXPECT_EQ(glbEvents.GetDisplayStartDate(June(6)), first) << days;
    }
}

TEST_F(CalendarMovesTest, AWeekAcrossAMonthEndLoadsBothMonths) {
    View("7");
    WriteMonth(DateSerial(2002, 10, 1), {E("20021028", "0900", "October")});
    WriteMonth(DateSerial(2002, 11, 1), {E("20021103", "0900", "November"), E("20021128", "0900", "Late")});
    WriteMonth(DateSerial(2002, 12, 1), {E("20021201", "0900", "December")});
    gintcur = 4;
    glbRefreshNeeded = true;

    click(DateSerial(2002, 11, 3));  // Sunday of the week from 28 October
    EXPECT_TRUE(Logged("User clicked FIRST calendar date in  week mode03/11/2002 - now loading data"));
    EXPECT_EQ(std::make_pair(Text(1, 2), Text(1, 8)), std::make_pair(std::string("October"), std::string("November")));
    EXPECT_EQ(MainForm().MonthView1.Value(), DateSerial(2002, 11, 3));
    EXPECT_EQ(std::make_tuple(gintcur, glbRefreshNeeded, glbEvents.shownMonth()),
              std::make_tuple(int16_t{-1}, false, 11));

    click(DateSerial(2002, 11, 28));  // Thursday of the week to 1 December
    EXPECT_TRUE(Logged("User clicked LAST calendar date in  week mode28/11/2002 - now loading data"));
    EXPECT_EQ(std::make_pair(Text(1, 5), Text(1, 8)), std::make_pair(std::string("Late"), std::string("December")));
}

TEST_F(CalendarMovesTest, TheMonthIsReadAgainOnlyWhenItsFileChanged) {
    const auto reloads = [this] {
        const std::vector<std::string> log = LogMessages();
        return std::count(log.begin(), log.end(), "Auto reloading datafile ... disk version changed");
    };
    WriteMonth(June(1), {E("20040607", "0900", "Monday")});
    click(June(7));  // the month as written now is the one loaded
    const long loaded = reloads();
    click(June(8));
    EXPECT_EQ(Text(1, 2), "");
    EXPECT_EQ(reloads(), loaded);

    AppendToFile(DataPath() + "D200406.dat", E("20040608", "1000", "Added").Line() + "\r\n");
    click(June(8));
    EXPECT_EQ(std::make_pair(reloads(), Text(3, 2)), std::make_pair(loaded + 1, std::string("Added")));

    MainForm().mnuViewBrowser.Checked = true;
    click(June(7));
    EXPECT_EQ(MainForm().web.LocationURL(), DataPath() + "D200406.html#day20040607");
}

TEST_F(CalendarMovesTest, ADaysEventsAreCopiesFilteredByKindAndWordAndAMonthsLinesLoseFileEvents) {
    const Event otherDay = E("20040608", "1200", "lunch");
    const Event usage = With(E("20040607", "1300", "Word"), &Event::reference, "PCFile");
    const Event access = With(E("20040607", "1400", "report.doc"), &Event::reference, "Edit");
    WriteMonth(June(1), {E("20040607", "1200", "Lunch with Ann"), otherDay, With(usage, &Event::action, "Usage"),
                         With(access, &Event::action, "PCFile"), E("20040607", "1230", "late LUNCH")});
    glbEvents.LoadDiaryData(June(7));

    std::vector<cDiaryRecord> found;
    EXPECT_EQ(glbEvents.FilterEventsFromArray(June(7), found, true, " lunch "), 2);
    EXPECT_EQ(std::make_pair(found[0].details, found[1].details),
              std::make_pair(std::string("Lunch with Ann"), std::string("late LUNCH")));
    found[0].details = "changed";
    EXPECT_EQ(glbEvents.events(0).details, "Lunch with Ann");
    EXPECT_EQ(glbEvents.FilterEventsFromArray(June(7), found, false, ""), 4);

    std::vector<std::string> lines;
    EXPECT_EQ(glbEvents.GetMonthsEvents(June(20), lines), 3);
    EXPECT_EQ(lines[1], otherDay.Line());
}
