// The staff planner through the reference server: three users share their diaries
// at different levels, fred looks at them for a day and for a week, books a meeting
// for the others, and their diaries receive it.
#include <gtest/gtest.h>

#include "EventLines.h"
#include "NetworkFixture.h"
#include "TimeSlots.h"
#include "config/clsConfigDiary.h"
#include "dialogs/frmEditEvent.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/StaffGrid.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/frmBookMeeting.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using test::EventLine;
using test::Fields;

namespace {

// The grid as text: one line a row, each cell with text as [column]text; a cell
// whose text cannot be seen (its colour is its back colour) as [column]-.
std::string Rendered(FlexGrid& grid) {
    std::string text;
    for (long r = 0; r < grid.Rows; ++r) {
        text += CStr(r) + ":";
        for (long c = 0; c < grid.Cols; ++c) {
            const CellStyle cell = grid.EffectiveStyle(r, c);
            if (cell.text.empty()) continue;
            const bool hidden = cell.foreColor == cell.backColor;
            text += " [" + CStr(c) + "]" + (hidden ? "-" : Replace(cell.text, "\r\n", "/"));
        }
        text += "\n";
    }
    return text;
}

}  // namespace

class StaffPlannerTest : public test::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        MakeFolder(UserFolder("ann"));
        ServerUp(true);
        NETWORK_STRING = "CLIENT";
        platform_.AllowUnscriptedForms(true);
        test::UseTimeSlots(9, 12, 2);
        glbConfig.DayWeekMonth = 1;
        glbConfig.ShowLocation = 1;
        glbConfig.ShowDetails = 1;
        glbConfig.spanning_BackColor = 0xC0C0C0;
        glbConfig.multi_BackColor = 0xC0C0FF;
        // ann shares only when she is busy, mary where and what but not her private
        // events, fred everything he does not mark private.
        Share("ann", "1",
              {EventLine("D200406050001", "20040605", "0900", "Dentist", "Phone", "60"),
               EventLine("D200406080001", "20040608", "1130", "Gym")});
        Share("mary", "3",
              {EventLine("D200406050001", "20040605", "1000", "Bank loan meeting", "Meeting", "90"),
               Fields({"D200406050002", "20040605", "Phone", "1100", "30", "Call", "", "", "", "", "", "", "Private",
                       "", "Doctor's results"}),
               EventLine("D200406070001", "20040607", "0930", "Sales call"),
               EventLine("D200407010001", "20040701", "0900", "July planning")});
        Share("fred", "4", {EventLine("D200406050001", "20040605", "1200", "Lunch with a supplier", "Phone", "240")});
        As("fred");
        glbScreen.setForm(MainForm());
        glbCmd.init(MainForm());
        MainForm().MonthView1.Value = DateSerial(2004, 6, 5);
    }
    void Share(const std::string& user, const std::string& level, const std::vector<std::string>& lines) {
        As(user);
        glbConfig.security = level;
        std::map<std::string, std::string> months;
        for (const std::string& line : lines) months["D" + line.substr(14, 6) + ".dat"] += line + "\r\n";
        for (const auto& [name, bytes] : months) {
            WriteBytes(Data(user) + name, bytes);
            glbComms.SaveDiaryFileToServer(Data(user) + name, false);
        }
    }
    FlexGrid& Grid() { return MainForm().gridDays; }
    long Requests() const {
        return std::count_if(serverLog_.begin(), serverLog_.end(),
                             [](const std::string& line) { return StartsWith(line, "answered fred's search"); });
    }
};

TEST_F(StaffPlannerTest, ADayAndAWeekShowEachUsersSharedEventsInTheirCells) {
    glbScreen.SwitchMode("STAFF");
    EXPECT_EQ(MainForm().lvUsers.ListItems.Count(), 3);
    EXPECT_EQ(glbTickedUsers, "ann, fred, mary, ");
    EXPECT_EQ(Rendered(Grid()), test::ReadGolden(ORBIDEX_NETWORK_GOLDEN_DIR, "staff-day.txt"));
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Staff Events for Saturday,  5-Jun-2004");
    EXPECT_EQ(MainForm().Caption(), "Staff Planner - Brindlewick Softwares Orbidex");
    EXPECT_EQ(MainForm().lblUsers.Caption(), "3 of 3 Staff displayed");
    EXPECT_EQ(glbComms.glbPollFrequently(), "True");
    // A click on a cell finds its event.
    EXPECT_EQ(StaffCellId(4, 3), "D200406050001");
    EXPECT_EQ(Grid().ColData(3), 6050001);

    // A week from Monday: each day's slots, then a column of "-----".
    glbConfig.DayWeekMonth = 7;
    glbConfig.ShowLocation = 0;
    glbConfig.ShowTotals = 1;
    MainForm().MonthView1.UserClickDate(DateSerial(2004, 6, 7));
    EXPECT_EQ(Rendered(Grid()), test::ReadGolden(ORBIDEX_NETWORK_GOLDEN_DIR, "staff-week.txt"));
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Staff Events for Monday,  7-Jun-2004 (7 days)");
    EXPECT_EQ(Requests(), 1) << "the week lies in the window of the first request";
}

TEST_F(StaffPlannerTest, OnlyANewMonthOrARefreshAsksTheServerAgain) {
    glbScreen.SwitchMode("STAFF");
    ASSERT_EQ(Requests(), 1);
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "RESULTS.TXT"), ReadBytes(Data("fred") + "RESULTS.TXT"));
    const std::string first = ReadBytes(Data("fred") + "RESULTS.TXT");
    EXPECT_NE(first.find("July planning"), std::string::npos) << "120 days ahead";

    MainForm().MonthView1.UserClickDate(DateSerial(2004, 6, 28));
    EXPECT_EQ(Requests(), 1);
    MainForm().MonthView1.UserClickDate(DateSerial(2004, 7, 1));
    EXPECT_EQ(Requests(), 2) << "a new month asks, although the window holds it";
    EXPECT_EQ(ReadBytes(Data("fred") + "RESULTS_OLD.TXT"), first);
    glbCmd.ToolbarClicked("refresh");
    EXPECT_EQ(Requests(), 3);
    glbCmd.ToolbarClicked("today");
    EXPECT_EQ(Requests(), 4);

    // A server that does not answer leaves what it sent last, and the heading says so.
    const std::string kept = ReadBytes(Data("fred") + "RESULTS.TXT");
    ServerUp(false);
    MainForm().MonthView1.UserClickDate(DateSerial(2004, 7, 1));
    MainForm().MonthView1.UserClickDate(DateSerial(2004, 6, 7));
    EXPECT_TRUE(LogHas("Server is not responding - using cached data"));
    EXPECT_EQ(ReadBytes(Data("fred") + "RESULTS.TXT"), kept);
    EXPECT_EQ(Grid().TextMatrix(4, 2), "Office: Sales call");
    EXPECT_EQ(MainForm().lblHeading.Caption(),
              "  Staff Events for Monday,  7-Jun-2004   (the server did not answer: its last answer is shown)");
}

TEST_F(StaffPlannerTest, TheTicksChooseTheUsersAndAnUntickedUserInTheResultsIsSkipped) {
    glbScreen.SwitchMode("STAFF");
    ListView& users = MainForm().lvUsers;
    users.UserCheckItem(*users.FindItem("ann"), false);
    EXPECT_EQ(glbTickedUsers, "fred, mary, ");
    EXPECT_EQ(Grid().Rows(), 5);
    EXPECT_EQ(Grid().TextMatrix(2, 0), "fred");
    EXPECT_EQ(MainForm().lblUsers.Caption(), "2 of 3 Staff displayed");

    // Back from the calendar everybody is ticked again, and the server is asked for
    // them all: ann's row is not left empty.
    const long asked = Requests();
    glbScreen.SwitchMode("CALENDAR");
    glbScreen.SwitchMode("STAFF");
    EXPECT_EQ(glbTickedUsers, "ann, fred, mary, ");
    EXPECT_EQ(Requests(), asked + 1);
    EXPECT_EQ(Grid().TextMatrix(2, 0), "ann");
    EXPECT_EQ(StaffCellId(2, 1), "D200406050001");
    users.UserCheckItem(*users.FindItem("ann"), false);

    // An answer that still holds ann: she is logged and left out.
    WriteBytes(Data("fred") + "RESULTS.TXT", "; results of user.ann diary\\D200406.dat_NET\r\n" +
                                                 EventLine("D200406050001", "20040605", "0900", "") + "\r\n");
    glbScreen.DisplayStaffEvents();
    EXPECT_TRUE(LogHas("Unknown user in results.txt - 'ann'"));
    for (long row = 2; row <= 4; ++row) EXPECT_EQ(Grid().TextMatrix(row, 1), "") << row;

    // Nobody ticked: the request names nobody.
    for (const char* name : {"fred", "mary"}) users.UserCheckItem(*users.FindItem(name), false);
    EXPECT_EQ(glbTickedUsers, "");
    EXPECT_EQ(Grid().Rows(), 3);
}

TEST_F(StaffPlannerTest, AMeetingBookedByFredReachesTheOthersAndShowsInThePlanner) {
    glbScreen.SwitchMode("STAFF");
    ListView& users = MainForm().lvUsers;
    users.UserCheckItem(*users.FindItem("ann"), false);
    users.UserCheckItem(*users.FindItem("ann"), true);
    // The 10:30 slot of the day.
    Grid().UserClickCell(2, 4);
    platform_.QueueFormScript("frmBookMeeting", [](Form& f) {
        auto& form = static_cast<frmBookMeeting&>(f);
        EXPECT_EQ(form.lblUsers.Caption(), "Booking a meeting for ann, fred, mary, ");
        EXPECT_EQ(FormatDate(form.dtPickTime.Value, "yyyymmdd hhmm"), "20040605 1030");
        EXPECT_EQ(form.txtLength.Text(), "1");
        EXPECT_EQ(form.cmbLengthUnits.ListIndex(), 1);
        form.txtDetails.UserEdit("Plan the move", 13);
        form.cmdOK.UserClick();
    });
    platform_.QueueMsgBoxAnswer(vbOK);
    glbCmd.ToolbarClicked("new");
    EXPECT_EQ(platform_.MessageTexts().back(),
              "Finished creating appointments for ann, fred, mary, \r\nThey will be notified in the next few minutes");

    // fred's own copy came at once through the server and his poll.
    const std::string fredsJune = ReadBytes(Data("fred") + "D200406.dat");
    EXPECT_NE(fredsJune.find("Plan the move"), std::string::npos) << fredsJune;
    for (const char* user : {"ann", "mary"}) {
        As(user);
        EXPECT_TRUE(glbComms.CheckForServerRequests());
        const std::string june = ReadBytes(Data(user) + "D200406.dat");
        // The event as booked, under an identifier of the receiver's own.
        const std::string meeting =
            Fields({"20040605", "Meeting", "1030", "60", "Meeting request for ann, fred, mary, ", "fred", "", "", "",
                    "", "", "", "", "Plan the move"});
        EXPECT_NE(june.find("\x1F" + meeting), std::string::npos) << user << ": " << june;
    }
    server_->Poll();

    // After the next request the planner shows the meeting in every row.
    As("fred");
    glbCmd.ToolbarClicked("refresh");
    for (long row = 2; row <= 4; ++row) EXPECT_NE(Grid().TextMatrix(row, 4).find("Plan the move"), std::string::npos);
}

TEST_F(StaffPlannerTest, AnEventAddedInThePlannerTakesTheChosenDayAndSlot) {
    glbConfig.DayWeekMonth = 7;
    MainForm().MonthView1.Value = DateSerial(2004, 6, 7);
    glbScreen.SwitchMode("STAFF");
    platform_.SetNow(DateSerial(2004, 6, 5) + TimeSerial(14, 45, 0));
    struct Case {
        long col;
        const char* when;
    };
    // Wednesday's 10:00 (the week runs from Monday 7 June), Monday's 9:30, and the
    // totals column: the planner's first day at the present time.
    const Case cases[] = {{21, "20040609 1000"}, {2, "20040607 0930"}, {64, "20040607 1445"}};
    for (const Case& c : cases) {
        Grid().UserClickCell(2, c.col);
        std::string shown;
        platform_.QueueFormScript("frmEditEvent", [&shown](Form& f) {
            auto& form = static_cast<frmEditEvent&>(f);
            shown = FormatDate(form.dtPickDate.Value, "yyyymmdd") + " " + FormatDate(form.dtPickTime.Value, "hhmm");
            form.cmdCancel.UserClick();
        });
        MainForm().mnuAppAdd.UserClick();
        EXPECT_EQ(shown, c.when) << c.col;
    }
}
