// The totals of the view in the status bar and the labels, and the sentences of a
// search's totals.
#include <gtest/gtest.h>

#include "CalendarFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using namespace orbidex::test;

class StatisticsTest : public CalendarFixture {
protected:
    static std::string panel(long i) { return MainForm().status.Panels(i).Text; }
};

TEST_F(StatisticsTest, TheStatusBarAndLabelsTellWhatTheViewHolds) {
    const Event usage = With(E("20040607", "1000", "Typing", "75"), &Event::reference, "Edit");
    // Two active tasks and a finished one.
    WriteBytes(DataPath() + "D_tasks.dat", Replace("N1|20040607||0900|30||||||||||one|\r\n"
                                                   "N2|20040607||0900|30||||||||||two|\r\n"
                                                   "N3|20040607||0900|30||||||||Done||three|\r\n",
                                                   "|", "\x1F"));
    glbTasks.init(DataPath() + "D_tasks.dat");
    glbConfig.taskMinutes = 125;
    Show(June(7), {E("20040607", "0900", "Long", "90"), usage});
    EXPECT_EQ(std::make_pair(panel(1), panel(2)),
              std::make_pair(std::string("Viewing 7-Jun-04 "), std::string("1 hr 30 min   spent on 1 events  ")));
    EXPECT_EQ(MainForm().Label1.Caption(), " PC Usage - 1 hr 15 min   on 1 logged events");
    EXPECT_EQ(MainForm().Label2.Caption(), " Tasks - 2  [approx: 2 hr 5 min   ]");

    const std::vector<std::pair<std::string, std::string>> views = {
        {"7", "Viewing Week beginning 7-Jun-04"}, {"31", "Viewing June-2004"}, {"3", "Viewing June-2004"}};
    for (const auto& [days, viewing] : views) {
        View(days);
        Draw(June(9));
        EXPECT_EQ(panel(1), viewing) << days << ": a length with no view leaves the panel";
    }
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
    const std::string twoDays = "Total Time = 2 hr 15 min   Avg Time/day= 1 hr 8 min   num events/day= 1.5";
    EXPECT_EQ(glbEvents.ShowStats("TotTime", "", 2, "", ""), twoDays);
    EXPECT_TRUE(Logged("showStats=" + twoDays));
    EXPECT_EQ(glbEvents.ShowStats("TOTTIME", "", 0, "", ""),
              "Total Time = 2 hr 15 min   Avg Time/day= 2 hr 15 min   num events/day= 3.");

    glbEvents.ClearTotals();
    EXPECT_EQ(std::make_pair(glbEvents.totTime(), glbEvents.totEventsFound()), std::make_pair(0, 0));
}
