// The overview page of the home mode: written whole into the data folder, shown in
// the browser pane, written again when what it shows changes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;
using test::EventLine;
using test::Fields;

namespace {

std::string task(const std::string& id, const std::string& status, const std::string& details) {
    return Fields({id, "20040601", "", "0900", "60", "", "", "", "", "", "", "", status, "", details}) + "\r\n";
}

}  // namespace

class OverviewTest : public test::MainScreenFixture {
protected:
    std::string Page() { return ReadBytes(DataPath() + "overview.htm"); }
    bool PageHas(const std::string& text) { return Page().find(text) != std::string::npos; }
};

TEST_F(OverviewTest, TheDaysPageHoldsTodayTomorrowAndTheTasksToDo) {
    // Saturday 5 June 2004, 09:30:12.  The file holds the day's events out of the
    // order of their times, a PC usage line, tomorrow's events and another day's.
    WriteBytes(DataPath() + "D200406.dat",
               EventLine("D200406050001", "20040605", "1400", "Dentist") + "\r\n" +
                   EventLine("D200406050002", "20040605", "0900", "Team stand-up") + "\r\n" +
                   Fields({"D200406050003", "20040605", "PCFile", "1000", "5", "Usage", "", "", "", "", "", "", "", "",
                           "word.exe"}) +
                   "\r\n" + EventLine("D200406060001", "20040606", "1100", "Lunch with <b>Ann</b>") + "\r\n" +
                   EventLine("D200406070001", "20040607", "0800", "Not this week-end") + "\r\n");
    WriteBytes(DataPath() + "D_tasks.dat",
               task("N200406010001", "", "Call Bob") + task("N200406010002", "Done", "Pay Ann") +
                   task("N200406010003", "", "") + task("N200406010004", "", "Fix the tap"));
    StartProgram();
    std::vector<std::string> shown;
    Form().web.onNavigateComplete2 = [&](const std::string& url) { shown.push_back(url); };
    glbScreen.SwitchMode("HOME");

    EXPECT_EQ(Page(), test::ReadGolden(ORBIDEX_SCREEN_GOLDEN_DIR, "overview.htm"));
    // The waiting page stands in the pane while the page is written.
    EXPECT_EQ(shown, (std::vector<std::string>{DataPath() + "waiting.html", DataPath() + "overview.htm"}));
    const std::string waiting = ReadBytes(DataPath() + "waiting.html");
    EXPECT_TRUE(StartsWith(waiting, "<HTML><head>\r\n<title> Overview -  Sat, 05-Jun-2004</title>\r\n<STYLE>"));
    EXPECT_TRUE(EndsWith(waiting, "<BR>Preparing Overview...<BR>\r\n</BODY></HTML>\r\n"));
    EXPECT_TRUE(FileExists(DataPath() + "style.css"));
}

TEST_F(OverviewTest, AnEmptyDayAndAnEmptyTaskListSaySo) {
    StartProgram();
    glbScreen.SwitchMode("HOME");
    EXPECT_TRUE(
        PageHas("<H3>Events for Today</h3>\r\n<TABLE border=0 width=100% valign=top bgcolor=white>\r\n"
                "<BR>no appointments today!<BR><BR>\r\n</table><BR><BR>\r\n<H3>Tomorrow - Sun, 6-Jun</h3>\r\n"
                "<TABLE border=0 width=100% valign=top bgcolor=white>\r\n<BR>no appointments tomorrow!<BR><BR>\r\n"
                "</table><BR><BR>\r\n</td><TD width=50% valign=top>\r\n<H3>Tasks</H3>\r\nNo tasks in the list\r\n"));
}

TEST_F(OverviewTest, ThePageFollowsTheDataTheDayAndTheMonthsEnd) {
    // The last day of June: tomorrow's events stand in July's file.
    platform_.SetNow(DateSerial(2004, 6, 30) + TimeSerial(23, 58, 30));
    WriteBytes(DataPath() + "D200407.dat", EventLine("D200407010001", "20040701", "0900", "Quarter starts") + "\r\n");
    StartProgram();
    glbScreen.SwitchMode("HOME");
    EXPECT_TRUE(
        PageHas("<H3>Tomorrow - Thu, 1-Jul</h3>\r\n<TABLE border=0 width=100% valign=top bgcolor=white>\r\n"
                "<TR><td  valign=top width=15%>0900</td><td valign=top width=70%>Quarter starts</td></tr>\r\n"));

    // An event written by another program shows at the next full minute.
    AppendToFile(DataPath() + "D200406.dat", EventLine("D200406300001", "20040630", "2359", "Last call") + "\r\n");
    platform_.SetNow(DateSerial(2004, 6, 30) + TimeSerial(23, 59, 0));
    Form().timerSecond.Tick();
    EXPECT_TRUE(PageHas(">Last call<"));

    // After midnight the page is the new day's.
    platform_.SetNow(DateSerial(2004, 7, 1) + TimeSerial(0, 0, 0));
    Form().timerSecond.Tick();
    EXPECT_TRUE(
        PageHas("<H3>Events for Today</h3>\r\n<TABLE border=0 width=100% valign=top bgcolor=white>\r\n"
                "<TR><td  valign=top width=15%>0900</td><td valign=top width=70%>Quarter starts</td></tr>\r\n"));
    EXPECT_EQ(Form().web.LocationURL(), DataPath() + "overview.htm");
}

TEST_F(OverviewTest, AMainScreenWithoutTheCalendarOpensOnTheOverview) {
    StartProgram();
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    glbConfig.SetVal("calendar", "ShowCalendar", "0");
    ResetProgramState();
    StartProgram();
    EXPECT_EQ(glbScreen.Mode(), "HOME");
    EXPECT_TRUE(Form().web.Visible);
    EXPECT_EQ(Form().web.LocationURL(), DataPath() + "overview.htm");
}
