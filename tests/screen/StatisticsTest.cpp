// The totals of the view in the status bar and the labels, and the sentences of a
// search's totals.
#include <gtest/gtest.h>

#include "CalendarFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using namespace orbidex::test;

class StatisticsTest : public CalendarFixture {
protected:
    static std::string panel(long i) { return MainForm().status.Panels(i).Text; }
};

TEST_F(StatisticsTest, TheStatusBarAndLabelsTellWhatTheViewHolds) {
    Event usage = MakeEvent("D200406070002", "20040607", "1000", "Typing", "75");
    usage.reference = "Edit";
    WriteMonth("D200406.dat", {MakeEvent("D200406070001", "20040607", "0900", "Long", "90").Line(),
                               usage.Line()});
    Load(June(7));
    MainForm().lstTasks.AddItem("one");
    MainForm().lstTasks.AddItem("two");
    glbConfig.taskMinutes = 125;
    Draw(June(7));
    EXPECT_EQ(panel(1), "Viewing 7-Jun-04 ");
    EXPECT_EQ(panel(2), "1 hr 30 min   spent on 1 events  ");
    EXPECT_EQ(MainForm().Label1.Caption(), " PC Usage - 1 hr 15 min   on 1 logged events");
    EXPECT_EQ(MainForm().Label2.Caption(), " Tasks - 2  [approx: 2 hr 5 min   ]");

    Settings({{"calendar", "DayWeekMonth", "7"}});
    Draw(June(9));
    EXPECT_EQ(panel(1), "Viewing Week beginning 7-Jun-04");
    Settings({{"calendar", "DayWeekMonth", "31"}});
    Draw(June(9));
    EXPECT_EQ(panel(1), "Viewing June-2004");
    Settings({{"calendar", "DayWeekMonth", "3"}});
    MainForm().status.Panels(1).Text = "kept";
    Draw(June(9));
    EXPECT_EQ(panel(1), "kept") << "a length with no view writes no totals";
}

TEST_F(StatisticsTest, SearchTotalsReadAsSentences) {
    glbEvents.totEventsFound(0);
    EXPECT_EQ(glbEvents.ShowStats("totevents", "bank", 7, "20040601", "20040607"),
              "Found  events containing 'bank'  in 7 days (searched from 20040601 to 20040607 )");
    glbEvents.totEventsFound(1234);
    EXPECT_EQ(glbEvents.ShowStats("TOTEVENTS", "bank", 7, "20040601", "20040607"),
              "Found 1,234 events containing 'bank'  in 7 days (searched from 20040601 to 20040607 )");

    glbEvents.totTime(135);
    glbEvents.totEventsFound(3);
    EXPECT_EQ(glbEvents.ShowStats("TotTime", "", 2, "", ""),
              "Total Time = 2 hr 15 min   Avg Time/day= 1 hr 8 min   num events/day= 1.5");
    EXPECT_EQ(glbEvents.ShowStats("TOTTIME", "", 0, "", ""),
              "Total Time = 2 hr 15 min   Avg Time/day= 2 hr 15 min   num events/day= 3.");
    EXPECT_EQ(glbEvents.ShowStats("other", "", 1, "", ""), "");
    EXPECT_TRUE(Logged("showStats=Total Time = 2 hr 15 min   Avg Time/day= 1 hr 8 min   num events/day= 1.5"));

    glbEvents.ClearTotals();
    EXPECT_EQ(std::make_pair(glbEvents.totTime(), glbEvents.totEventsFound()), std::make_pair(0, 0));
}
