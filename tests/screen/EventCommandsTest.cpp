// Events added, edited, deleted and moved from the main window as a user does it:
// double clicks on the grid and the list, the menus, the pop-up menu and the tool
// bar, with the dialogs answered by scripts and the monthly files read back.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmEventMultiple.h"
#include "dialogs/frmRescheduleEvent.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

// An event of the usual fields as its line stands in the file.
std::string Event(const std::string& id, const std::string& time, const std::string& details,
                  const std::string& date = "20040605") {
    return test::EventLine(id, date, time, details) + "\r\n";
}

// An event as the editor saves a new one: the user as contact, half an hour long.
std::string Added(const std::string& id, const std::string& date, const std::string& time, const std::string& details,
                  const std::string& remind = "") {
    return test::Fields({id, date, "", time, "30", "", "fred", "", "", remind.empty() ? "" : date, remind, "", "", "",
                         details}) +
           "\r\n";
}

}  // namespace

class EventCommandsTest : public test::MainScreenFixture {
protected:
    /// Starts the program on Saturday 5 June 2004 with these events of the day.
    void Start(const std::string& june) {
        WriteBytes(DataPath() + "D200406.dat", june);
        StartProgram();
        platform_.AllowUnscriptedForms(false);
    }
    /// Runs `script` in the dialog of that type the next time it opens; the timer
    /// must be off while it is open.
    template <typename Dialog>
    void On(const std::string& name, std::function<void(Dialog&)> script) {
        platform_.QueueFormScript(name, [this, script](orbidex::Form& form) {
            EXPECT_FALSE(Form().timerSecond.Enabled) << form.Name();
            script(static_cast<Dialog&>(form));
        });
    }
    /// The editor opens on `shown` (on any text when empty) at `when` ("yyyymmdd hhmm",
    /// any time when empty) and saves `changed` in its place, or is cancelled when
    /// `changed` is empty.
    void Edit(const std::string& shown, const std::string& changed = "", const std::string& when = "") {
        On<frmEditEvent>("frmEditEvent", [shown, changed, when](frmEditEvent& form) {
            if (!shown.empty()) {
                EXPECT_EQ(form.txtDetails.Text(), shown);
            }
            if (!when.empty()) {
                EXPECT_EQ(FormatDate(form.dtPickTime.Value, "yyyymmdd hhmm"), when);
            }
            if (changed.empty()) return form.cmdCancel.UserClick();
            form.txtDetails.UserEdit({TextRun{changed, {}}}, static_cast<long>(changed.size()));
            form.cmdOK.UserClick();
        });
    }
    /// The reschedule dialog opens on `shown` and is cancelled.
    void CancelReschedule(const std::string& shown) {
        On<frmRescheduleEvent>("frmRescheduleEvent", [shown](frmRescheduleEvent& form) {
            EXPECT_EQ(form.txtDetails.Text(), shown);
            form.cmdCancel.UserClick();
        });
    }
    FlexGrid& Grid() { return Form().gridDays; }
    void DoubleClick(long row, long col) {
        Grid().UserClickCell(row, col);
        Grid().UserDblClickCell(row, col);
    }
    long Shown(const std::string& dialog) const {
        const auto shown = platform_.FormsShown();
        return static_cast<long>(std::count(shown.begin(), shown.end(), dialog));
    }
    std::string File(const std::string& month) { return ReadBytes(DataPath() + "D" + month + ".dat"); }
    void Toolbar(const std::string& key) { Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons(key)); }
    /// The week view on the week of `day`.
    void Week(VbDate day) {
        Toolbar("week");
        Form().MonthView1.UserClickDate(day);
    }
};

TEST_F(EventCommandsTest, DoubleClicksOnTheGridAddAtTheCellOrAskAboutACellOfSeveralEvents) {
    const std::string standup = Event("D200406050001", "1000", "Standup");
    const std::string call = Event("D200406050002", "1000", "Call Jo");
    Start(standup + call);
    ASSERT_EQ(Grid().TextMatrix(3, 2), "Standup (1000)Call Jo");

    Edit("", "Dentist", "20040605 1030");
    DoubleClick(4, 2);
    EXPECT_EQ(File("200406"), standup + call + Added("D200406050003", "20040605", "1030", "Dentist"));
    EXPECT_EQ(Grid().TextMatrix(4, 2), "Dentist");
    EXPECT_TRUE(Form().timerSecond.Enabled);

    platform_.QueueMsgBoxAnswer(vbCancel);
    DoubleClick(3, 2);
    EXPECT_EQ(platform_.Transcript().back().title, "Multiple Events in this Timeslot");
    EXPECT_EQ(platform_.Transcript().back().text,
              "There are multiple events displayed in this timeslot.\r\nTo edit them you need to view them as a "
              "list.\r\n\r\nClick 'Yes' to view in list mode\r\nClick 'No' to add another appointment to this "
              "timeslot\r\nClick 'Cancel' to do nothing and return to the Diary");
    EXPECT_EQ(platform_.Transcript().back().buttons, vbYesNoCancel);

    platform_.QueueMsgBoxAnswer(vbNo);
    Edit("", "Lunch", "20040605 1000");
    DoubleClick(3, 2);
    EXPECT_EQ(Grid().TextMatrix(3, 2), "Standup (1000)Call Jo (1000)Lunch");
    EXPECT_NE(File("200406").find(Added("D200406050004", "20040605", "1000", "Lunch")), std::string::npos);

    platform_.QueueMsgBoxAnswer(vbYes);
    DoubleClick(3, 2);
    EXPECT_EQ(glbConfig.GridOrList, "LIST");
    EXPECT_TRUE(Form().lvDiary.Visible);
    EXPECT_EQ(Form().lvDiary.ListItems.Count(), 4);
    EXPECT_EQ(Shown("frmEditEvent"), 2) << "Cancel and Yes open no editor";
}

TEST_F(EventCommandsTest, NewInTheWeekOfNextYearTakesTheDateOfTheSelectedColumn) {
    Start("");
    Week(DateSerial(2005, 1, 3));
    Grid().UserClickCell(3, 3);  // Tuesday 4 January, 10:00
    Edit("", "New year planning", "20050104 1000");
    Toolbar("new");
    // The week reaches back into December, so both months are saved, each file
    // opening with an empty line.
    EXPECT_EQ(File("200501"), "\r\n" + Added("D200501040001", "20050104", "1000", "New year planning", "1000"));
    EXPECT_EQ(Grid().TextMatrix(3, 3), "New year planning");
}

TEST_F(EventCommandsTest, OverTenDaysNewAndADoubleClickAddOnTheDayTheColumnIsHeaded) {
    Start("");
    // The column headed "9" shows the events of the 10th; what is added there is on the 9th.
    Form().mnuViewType[3].UserClick();  // the month
    Grid().UserClickCell(3, ColumnHeaded("9"));
    Edit("", "Dentist", "20040609 1000");
    Toolbar("new");
    Form().mnuViewType[2].UserClick();  // a fortnight
    Edit("", "Lunch", "20040609 1030");
    DoubleClick(4, ColumnHeaded("9"));
    EXPECT_EQ(File("200406"), "\r\n" + Added("D200406090001", "20040609", "1000", "Dentist", "1000") +
                                  Added("D200406090002", "20040609", "1030", "Lunch", "1030"));
    EXPECT_EQ(Grid().TextMatrix(3, ColumnHeaded("8")), "Dentist");
    EXPECT_EQ(Grid().TextMatrix(4, ColumnHeaded("8")), "Lunch");
}

TEST_F(EventCommandsTest, EditDeleteAndRescheduleFromTheMenusAndThePopUpMenuActOnTheSelectedCell) {
    const std::string standup = Event("D200406050001", "0900", "Standup");
    Start(standup + Event("D200406050002", "1000", "Dentist"));
    std::vector<std::string> popups;
    Form().SetPopupHandler([&popups](Menu& menu) { popups.push_back(menu.Name()); });

    Grid().UserClickCell(2, 2);  // blank
    EXPECT_FALSE(Form().mnuPopupGridEdit.Enabled);
    EXPECT_FALSE(Form().mnuPopupGridReschedule.Enabled);
    Form().mnuAppReschedule.UserClick();
    EXPECT_EQ(platform_.MessageTexts().back(), "Selected an Appointment to reschedule");
    Grid().UserClickCell(3, 2);
    EXPECT_TRUE(Form().mnuPopupGridEdit.Enabled);
    Grid().UserMouseUp(vbRightButton, 0, 100, 100);
    EXPECT_EQ(popups, (std::vector<std::string>{"mnuPopupGrid"}));

    On<frmEditEvent>("frmEditEvent", [](frmEditEvent& form) {
        EXPECT_EQ(form.Caption(), "Editing event in Diary");
        form.txtDetails.UserEdit({TextRun{"Dentist at ten", {}}}, 14);
        form.cmdOK.UserClick();
    });
    Form().mnuPopupGridEdit.UserClick();
    EXPECT_EQ(File("200406"), standup + Event("D200406050002", "1000", "Dentist at ten"));
    EXPECT_EQ(Grid().TextMatrix(3, 2), "Dentist at ten");

    platform_.QueueMsgBoxAnswer(vbYes);
    Form().mnuAppDelete.UserClick();
    EXPECT_EQ(platform_.Transcript().back().title, "Deleting Event from Diary");
    EXPECT_EQ(File("200406"), standup);
    EXPECT_EQ(Grid().TextMatrix(3, 2), "");
    EXPECT_TRUE(Form().timerSecond.Enabled);
}

TEST_F(EventCommandsTest, InTheWeekTheRescheduleTakesTheEventOfTheSelectedCell) {
    // Monday's and Tuesday's calls share the 10:00 row; Tuesday's is placed last.
    const std::string monday = Event("D200406070001", "1000", "Monday call", "20040607");
    const std::string tuesday = Event("D200406080001", "1000", "Tuesday call", "20040608");
    Start(monday + tuesday);
    Week(DateSerial(2004, 6, 7));
    ASSERT_EQ(Grid().TextMatrix(3, 2), "Monday call");
    CancelReschedule("Monday call");
    Grid().UserClickCell(3, 2);
    Form().mnuAppReschedule.UserClick();
    EXPECT_EQ(Shown("frmRescheduleEvent"), 1);

    Grid().UserClickCell(3, 4);  // Wednesday 10:00, blank
    Form().mnuAppReschedule.UserClick();
    EXPECT_EQ(platform_.MessageTexts().back(), "Selected an Appointment to reschedule");
    EXPECT_EQ(Shown("frmRescheduleEvent"), 1);
    EXPECT_EQ(File("200406"), monday + tuesday);
}

TEST_F(EventCommandsTest, InTheDayViewAnEventEnteredInAnotherYearIsTheOneSelectedAndRescheduled) {
    // Entered on 1 June 2005 for 5 June 2004: its row keeps the identifier's last
    // eight digits, which with the view's year name the event entered on 1 June 2004.
    const std::string firstOfJune = Event("D200406010001", "0900", "Entered on the 1st", "20040601");
    const std::string backFilled = Event("D200506010001", "1000", "Back-filled");
    Start(firstOfJune + backFilled);
    Grid().UserClickCell(3, 2);
    EXPECT_EQ(std::string(Form().status.Panels(1).Text), "At 1000 on 20040605 spent 30 minutes on ''Back-filled'");
    CancelReschedule("Back-filled");
    Form().mnuAppReschedule.UserClick();
    EXPECT_EQ(Shown("frmRescheduleEvent"), 1);
    EXPECT_EQ(File("200406"), firstOfJune + backFilled);
}

TEST_F(EventCommandsTest, TheMultiDayDialogAddsItsEventsAndTheWeekShowsThem) {
    Start("");
    Week(DateSerial(2004, 6, 7));
    On<frmEventMultiple>("frmEventMultiple", [](frmEventMultiple& form) {
        form.txtDetails.UserEdit("Sales conference", 16);
        form.lvDateList.ListItems.Add("Tue, 08-Jun-04").Tag = "20040608";
        form.lvDateList.ListItems.Add("Wed, 09-Jun-04").Tag = "20040609";
        form.cmdOK.UserClick();
    });
    platform_.QueueMsgBoxAnswer(vbYes);
    Form().mnuAppRecurring.UserClick();
    EXPECT_EQ(platform_.MessageTexts().back(), "Finished adding 2 records.");
    EXPECT_EQ(Grid().TextMatrix(1, 3), "Sales conference");
    EXPECT_EQ(Grid().TextMatrix(1, 4), "Sales conference");
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    EXPECT_TRUE(Form().timerSecond.Enabled);
}

TEST_F(EventCommandsTest, TheListTheOverviewAndTheTreeAddEventsToo) {
    Start("");
    Toolbar("list");
    Form().MonthView1.UserClickDate(DateSerial(2004, 6, 6));
    Edit("", "Walk");
    Form().lvDiary.UserDblClick();  // on the empty list
    ListView& list = Form().lvDiary;
    ASSERT_EQ(list.ListItems.Count(), 1);
    EXPECT_EQ(Split(File("200406"), "\x1F").at(1), "20040606");

    Edit("Walk");
    list.UserClickItem(list.ListItems(1));
    list.UserDblClickItem(list.ListItems(1));

    // On the overview the page stays: the grid is not drawn over it.
    glbScreen.SwitchMode("HOME");
    Edit("");
    Toolbar("new");
    EXPECT_EQ(glbScreen.Mode(), "HOME");
    EXPECT_TRUE(Form().web.Visible);
    EXPECT_FALSE(Form().lvDiary.Visible);

    Edit("");
    Form().tv.UserClickNode(*Form().tv.Nodes.Item("CALENDAR_ADDNEW"));
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
    EXPECT_EQ(Shown("frmEditEvent"), 4);
}

// A month's file in the order its lines came: a new month's blank line, then events
// appended as they arrived.  The first save sorts it, so the array in memory, which
// the grid was drawn from, no longer matches the file until the month is reloaded.
class SelectionAfterSaveTest : public EventCommandsTest {
protected:
    const std::string lunch_ = Event("D200406050003", "1200", "Lunch");
    const std::string standup_ = Event("D200406050001", "0900", "Standup");
    const std::string dentist_ = Event("D200406050002", "1000", "Dentist");
    const std::string standupAtNine_ = Event("D200406050001", "0900", "Standup at nine");

    void SetUp() override {
        EventCommandsTest::SetUp();
        Start("\r\n" + lunch_ + standup_ + dentist_);
        Edit("Standup", "Standup at nine");
        DoubleClick(1, 2);  // 09:00
        ASSERT_EQ(File("200406"), standupAtNine_ + dentist_ + lunch_);
    }
    std::vector<std::string> MonthlyFiles() const { return ListFolder(DataPath() + "D*.dat", false); }
};

TEST_F(SelectionAfterSaveTest, ADeleteTakesOutTheEventClickedAndLeavesNoneSelected) {
    Grid().UserClickCell(7, 2);  // Lunch
    Edit("Lunch");
    Form().mnuAppEdit.UserClick();  // reads the sorted month again
    platform_.QueueMsgBoxAnswer(vbYes);
    Form().mnuAppDelete.UserClick();
    EXPECT_EQ(platform_.Transcript().back().text,
              "Deleting event on 20040605 at 1200 details :Lunch\r\n\r\nDo you want to delete this event");
    EXPECT_EQ(File("200406"), standupAtNine_ + dentist_);

    Form().mnuAppDelete.UserClick();
    EXPECT_EQ(platform_.MessageTexts().back(), "Select a record to be deleted first");
    EXPECT_EQ(File("200406"), standupAtNine_ + dentist_);
}

TEST_F(SelectionAfterSaveTest, AnEditThatMovesToAnotherMonthMovesTheEventDoubleClicked) {
    On<frmEditEvent>("frmEditEvent", [](frmEditEvent& form) {
        EXPECT_EQ(form.txtDetails.Text(), "Lunch");
        form.dtPickDate.UserPickDate(DateSerial(2004, 7, 3));
        form.cmdOK.UserClick();
    });
    DoubleClick(7, 2);
    EXPECT_EQ(File("200406"), standupAtNine_ + dentist_);
    EXPECT_EQ(File("200407"), "\r\n" + Event("D200407030001", "1200", "Lunch", "20040703"));
    EXPECT_EQ(MonthlyFiles(), (std::vector<std::string>{"D200406.dat", "D200407.dat"}));
}
