// Adding, editing, rescheduling, moving and deleting events through their dialogs,
// as a user does it, read back from the monthly files.
#include "DialogFixture.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmRescheduleEvent.h"

using namespace orbidex;
using orbidex::test::EventLine;
using orbidex::test::Fields;

namespace {

const std::string kStandup = EventLine("D200406050001", "20040605", "0900", "Standup");
const std::string kDentist = EventLine("D200406050002", "20040605", "1000", "Dentist");
const std::string kReview = EventLine("D200406050002", "20040620", "1100", "Project review", "Meeting");
const std::string kChangeHeader = "; 20040605 09:30:12 by PC User fred\r\n";

// A new event as the program makes it: the user as contact, half an hour long.
std::string NewEvent(const std::string& id, const std::string& date, const std::string& time,
                     const std::string& details, const std::string& remind = "") {
    return Fields(
        {id, date, "", time, "30", "", "fred", "", "", remind.empty() ? "" : date, remind, "", "", "", details});
}

}  // namespace

class EventOperationsTest : public orbidex::test::DialogFixture {
protected:
    /// Runs `script` on the event editor the next time it opens.
    void OnEditor(std::function<void(frmEditEvent&)> script) {
        platform_.QueueFormScript("frmEditEvent", [script](Form& form) { script(static_cast<frmEditEvent&>(form)); });
    }
    void OnReschedule(std::function<void(frmRescheduleEvent&)> script) {
        platform_.QueueFormScript("frmRescheduleEvent",
                                  [script](Form& form) { script(static_cast<frmRescheduleEvent&>(form)); });
    }
};

TEST_F(EventOperationsTest, ABlankCellOpensTheEditorOnItsDateAndTimeAndSavesTheNewEvent) {
    LoadJune({kStandup});
    OnEditor([](frmEditEvent& form) {
        EXPECT_EQ(form.Caption(), "Adding event to Diary");
        EXPECT_EQ(form.lblID.Caption(), "D200406050002") << "numbered from today";
        EXPECT_EQ(FormatDate(form.dtPickTime.Value, "yyyymmdd hhmm"), "20040607 1430");
        EXPECT_EQ(form.chkRemind.Value(), vbChecked) << "a later date reminds by default";
        EXPECT_EQ(FormatDate(form.DTPicker2.Value, "hhmm"), "1430");
        TypeDetails(form.txtDetails, "Dentist");
        form.cmdOK.UserClick();
    });
    glbEvents.DiaryEventAdd(June(7), "1430", "");

    // The editor numbers the event from its own date.
    const std::string added = NewEvent("D200406070001", "20040607", "1430", "Dentist", "1430");
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), kStandup + "\r\n" + added + "\r\n");
    EXPECT_TRUE(LoggedMessage("Edit form: cmdOK_Click - final record = " + added + "\x1F"));
    EXPECT_EQ(gintcur, 2) << "behind the empty old top slot";
    EXPECT_TRUE(glbEvents.IsEmptySlot(1));
}

TEST_F(EventOperationsTest, QuickAddRemindsOnlyForALaterDateAndFillsAMissingDateAndTime) {
    LoadJune({});
    glbEvents.DiaryEventAdd(June(9), "0800", "Pay rent");
    glbEvents.DiaryEventAdd(June(5), "1500", "Call Jo");
    glbEvents.DiaryEventAdd(0, "", "Water the plants");
    EXPECT_TRUE(platform_.FormsShown().empty());
    EXPECT_EQ(Lines("D200406.dat"),
              (std::vector<std::string>{NewEvent("D200406050001", "20040609", "0800", "Pay rent", "0800"),
                                        NewEvent("D200406050002", "20040605", "1500", "Call Jo"),
                                        NewEvent("D200406050003", "20040605", "0930", "Water the plants")}));
    EXPECT_FALSE(FileExists(Data("D189912.dat"))) << "an unset date asks for no file of its own";

    glbConfig.timeSlots->numSlotsPerHour = 3;
    glbEvents.DiaryEventAdd(June(5), "1600", "Short");
    EXPECT_EQ(Split(Lines("D200406.dat").back(), "\x1F").at(4), "20") << "a slot of 20 minutes";
}

TEST_F(EventOperationsTest, ACancelledNewEventLeavesNoTraceAndItsIdentifierFree) {
    LoadJune({kStandup});
    const std::string before = ReadBytes(Data("D200406.dat"));
    OnEditor([](frmEditEvent& form) {
        TypeDetails(form.txtDetails, "Never mind");
        form.cmdCancel.UserClick();
    });
    OnEditor([](frmEditEvent& form) { form.UserClose(); });
    glbEvents.DiaryEventAdd(June(8), "1000", "");
    glbEvents.DiaryEventAdd(June(8), "1000", "");
    EXPECT_EQ(ReadBytes(Data("D200406.dat")), before);
    EXPECT_EQ(gIntTotalEvents, 1);
    EXPECT_EQ(gintcur, 1);
    EXPECT_EQ(glbEvents.totEvents(), 1);

    OnEditor([](frmEditEvent& form) { form.cmdOK.UserClick(); });
    glbEvents.DiaryEventAdd(June(8), "1000", "");
    EXPECT_EQ(Left(Lines("D200406.dat").back(), 13), "D200406080001");
}

TEST_F(EventOperationsTest, EditingShowsTheEventAndSavesTheChangeOrNothingOnCancel) {
    WriteLines("common_locations.txt", {"Office", "Home", "Boardroom"});
    WriteLines("locations.txt", {"Office", "Home"});
    LoadJune({kStandup, kDentist});
    gintcur = 1;
    OnEditor([](frmEditEvent& form) {
        EXPECT_EQ(form.Caption(), "Editing event in Diary");
        EXPECT_EQ(form.txtDetails.Text(), "Dentist");
        EXPECT_EQ(form.cmbActionToPerform.ListCount(), 2) << "the user's locations replace the common ones";
        EXPECT_EQ(form.cmbActionToPerform.Text() + form.cmbAction.Text() + form.cmbPriority.Text(), "OfficeCallNormal");
        TypeDetails(form.txtDetails, "Dentist at ten");
        form.cmdOK.UserClick();
    });
    OnEditor([](frmEditEvent& form) {
        TypeDetails(form.txtDetails, "Changed my mind");
        form.cmdCancel.UserClick();
    });
    glbEvents.DiaryEventEdit();
    glbEvents.DiaryEventEdit();
    const std::string edited = EventLine("D200406050002", "20040605", "1000", "Dentist at ten");
    EXPECT_EQ(Lines("D200406.dat"), (std::vector<std::string>{kStandup, edited}));
    EXPECT_EQ(glbEvents.events(1).details, "Dentist at ten");
    EXPECT_EQ(gintcur, 1);

    gintcur = -1;
    glbEvents.DiaryEventEdit();
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"I dont know which event you selected"});
}

TEST_F(EventOperationsTest, AnEditToNextMonthMovesTheEventToThatMonthsFile) {
    LoadJune({kStandup, kDentist});
    gintcur = 1;
    OnEditor([](frmEditEvent& form) {
        form.dtPickDate.UserPickDate(DateSerial(2004, 7, 3));
        form.cmdOK.UserClick();
    });
    glbEvents.DiaryEventEdit();
    EXPECT_EQ(Lines("D200406.dat"), std::vector<std::string>{kStandup});
    EXPECT_EQ(Lines("D200407.dat"),
              (std::vector<std::string>{"", EventLine("D200407030001", "20040703", "1000", "Dentist")}));
    EXPECT_TRUE(LoggedMessage("moving an event to a different month in this version"));
    EXPECT_EQ(gintcur, -1) << "the edited event has left the month in hand";
}

TEST_F(EventOperationsTest, EditingAMeetingOffersToTellTheOthers) {
    const std::string meeting = EventLine("D200406050001", "20040605", "1100", "Project review", "Meeting");
    LoadJune({meeting});
    gintcur = 0;
    OnEditor([](frmEditEvent& form) {
        form.dtPickTime.UserPickTime(TimeSerial(14, 0, 0));
        form.cmdOK.UserClick();
    });
    OnEditor([](frmEditEvent& form) { form.cmdOK.UserClick(); });
    platform_.QueueMsgBoxAnswer(vbYes);
    platform_.QueueMsgBoxAnswer(vbNo);
    glbEvents.DiaryEventEdit();
    glbEvents.DiaryEventEdit();

    ASSERT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Mult-User Event - Notify Others?");
    EXPECT_EQ(platform_.Transcript()[0].text, "This is a meeting - do you update changes on the other users diaries?");
    EXPECT_EQ(ReadBytes(Data("_CHANGE_REQUEST.TXT")),
              kChangeHeader + "OLD " + meeting + "\r\nNEW " +
                  EventLine("D200406050001", "20040605", "1400", "Project review", "Meeting") + "\r\n")
        << "only the change answered with Yes";
}

// The dialog shows the chosen day behind it, which leaves no current event: the
// event is then moved, as to another month, and takes a new identifier.
TEST_F(EventOperationsTest, RescheduleWithinTheMonthMovesTheEventUnderANewIdentifier) {
    LoadJune({kStandup, kDentist});
    gintcur = 1;
    OnReschedule([](frmRescheduleEvent& form) {
        form.optMoveAhead(1).UserClick();
        form.cmdOK.UserClick();
    });
    glbEvents.DiaryEventReschedule();
    const std::vector<std::string> moved{kStandup, EventLine("D200406120001", "20040612", "1000", "Dentist")};
    EXPECT_EQ(Lines("D200406.dat"), moved);
    EXPECT_FALSE(FileExists(Data("_CHANGE_REQUEST.TXT"))) << "no meeting";

    gintcur = static_cast<int16_t>(glbEvents.SelectDiaryRecordFromID("D200406120001"));
    OnReschedule([](frmRescheduleEvent& form) {
        form.optMoveAhead(2).UserClick();
        form.cmdCancel.UserClick();
    });
    glbEvents.DiaryEventReschedule();
    EXPECT_EQ(Lines("D200406.dat"), moved) << "a cancelled reschedule changes nothing";
    EXPECT_EQ(platform_.FormsShown(), (std::vector<std::string>{"frmRescheduleEvent", "frmRescheduleEvent"}));
}

TEST_F(EventOperationsTest, ReschedulingAMeetingToAnotherMonthMovesItAndWritesOldAndNew) {
    LoadJune({kStandup, kReview});
    gintcur = 1;
    OnReschedule([](frmRescheduleEvent& form) {
        form.optMoveAhead(2).UserClick();  // a fortnight on: 4 July
        form.optWhen(3).UserClick();       // the afternoon
        // The main window now shows 4 July, which leaves no event of it selected.
        gintcur = -1;
        form.cmdOK.UserClick();
    });
    glbEvents.DiaryEventReschedule();

    EXPECT_EQ(Lines("D200406.dat"), std::vector<std::string>{kStandup});
    EXPECT_EQ(
        Lines("D200407.dat"),
        (std::vector<std::string>{"", EventLine("D200407040001", "20040704", "1400", "Project review", "Meeting")}));
    EXPECT_EQ(ReadBytes(Data("_CHANGE_REQUEST.TXT")),
              kChangeHeader + "OLD " + kReview + "\r\nNEW " +
                  EventLine("D200406050002", "20040704", "1400", "Project review", "Meeting") + "\r\n");
    EXPECT_EQ(gLngWhichMonthIsLoaded, DateSerial(2004, 7, 4)) << "the new month is loaded";
    EXPECT_TRUE(platform_.Transcript().empty()) << "a reschedule tells the others without asking";
}

// A folder stands where July's file should be, so nothing can be appended to it.
TEST_F(EventOperationsTest, AMoveToAMonthThatCannotBeWrittenKeepsTheEventWhereItWas) {
    const struct {
        const char* what;
        std::function<void()> move;
    } cases[] = {
        {"an edit to 3 July",
         [&] {
             OnEditor([](frmEditEvent& form) {
                 form.dtPickDate.UserPickDate(DateSerial(2004, 7, 3));
                 form.cmdOK.UserClick();
             });
             glbEvents.DiaryEventEdit();
         }},
        {"a reschedule to 4 July",
         [&] {
             OnReschedule([](frmRescheduleEvent& form) {
                 form.optMoveAhead(2).UserClick();
                 gintcur = -1;
                 form.cmdOK.UserClick();
             });
             glbEvents.DiaryEventReschedule();
         }},
    };
    ASSERT_TRUE(MakeFolder(Data("D200407.dat")));
    for (const auto& c : cases) {
        LoadJune({kStandup, kReview});
        gintcur = 1;
        c.move();
        EXPECT_EQ(Lines("D200406.dat"), (std::vector<std::string>{kStandup, kReview})) << c.what;
        EXPECT_EQ(glbEvents.events(1).details, "Project review") << c.what;
        EXPECT_FALSE(FileExists(Data("_CHANGE_REQUEST.TXT"))) << c.what << ": the others hear of no change";
        EXPECT_FALSE(LoggedMessage("moving an event to a different month in this version")) << c.what;
        EXPECT_TRUE(platform_.Transcript().empty()) << c.what;
    }
}

TEST_F(EventOperationsTest, DeletingAsksFirstAndAMeetingMayBeCancelledForTheOthers) {
    LoadJune({kStandup, kReview});
    gintcur = 0;
    platform_.QueueMsgBoxAnswer(vbNo);
    glbEvents.DiaryEventDelete(false);
    EXPECT_EQ(platform_.Transcript().at(0).title, "Deleting Event from Diary");
    EXPECT_EQ(platform_.Transcript().at(0).text,
              "Deleting event on 20040605 at 0900 details :Standup\r\n\r\nDo you want to delete this event");
    EXPECT_EQ(Lines("D200406.dat").size(), 2U);

    gintcur = 1;
    platform_.QueueMsgBoxAnswer(vbYes);
    platform_.QueueMsgBoxAnswer(vbYes);
    glbEvents.DiaryEventDelete(false);
    EXPECT_EQ(Lines("D200406.dat"), std::vector<std::string>{kStandup});
    EXPECT_EQ(platform_.Transcript().at(2).text,
              "This is a meeting - do you cancel this event on the other users diaries?");
    // The notice's new event has neither date nor time: the meeting is cancelled.
    const std::string cancelled = Fields({"D200406050002", "", "Meeting", "", "30", "Call", "fred", "", "", "", "",
                                          "Normal", "", "Office", "Project review"});
    EXPECT_EQ(ReadBytes(Data("_CHANGE_REQUEST.TXT")),
              kChangeHeader + "OLD " + kReview + "\r\nNEW " + cancelled + "\r\n");

    gintcur = -1;
    glbEvents.DiaryEventDelete(true);
    EXPECT_EQ(platform_.MessageTexts().back(), "Select a record to be deleted first");
}

TEST_F(EventOperationsTest, BulkAddingWalksTheRecordsOnceForEachMonth) {
    LoadJune({kStandup});
    std::vector<cDiaryRecord> records(4);
    const char* const dates[] = {"", "20040607", "20040701", "20040608"};
    for (int i = 1; i <= 3; ++i) {
        records[i].details = "Holiday";
        records[i].DateEvent = dates[i];
        records[i].TimeEvent = "0900";
    }
    glbEvents.AddBulkRecords(records, 3);

    auto holiday = [](const std::string& id, const std::string& date) {
        return Fields({id, date, "", "0900", "", "", "", "", "", "", "", "", "", "", "Holiday"});
    };
    EXPECT_EQ(Lines("D200406.dat"), (std::vector<std::string>{kStandup, holiday("D200406070001", "20040607"),
                                                              holiday("D200406080001", "20040608")}));
    EXPECT_EQ(Lines("D200407.dat"), (std::vector<std::string>{"", holiday("D200407010001", "20040701")}));
    EXPECT_TRUE(LoggedMessage("Bulk adding - Holiday to 20040701"));
    EXPECT_EQ(gLngWhichMonthIsLoaded, June(5)) << "the calendar's month is loaded again";
    EXPECT_EQ(platform_.Transcript().at(0).title, "Success");
    EXPECT_EQ(platform_.Transcript().at(0).text, "Finished adding 3 records.");
}

TEST_F(EventOperationsTest, ABlankRecordOrAnEmptySlotIsNeverEditedRescheduledOrDeleted) {
    // A new month's file starts with a blank line; 2 is the empty top slot, 5 beyond the array.
    for (const int16_t selected : {0, 2, 5}) {
        LoadJune({"", kStandup});
        const std::string before = ReadBytes(Data("D200406.dat"));
        gintcur = selected;
        glbEvents.DiaryEventReschedule();
        glbEvents.DiaryEventEdit();
        glbEvents.DiaryEventDelete(false);
        EXPECT_EQ(ReadBytes(Data("D200406.dat")), before) << selected;
        EXPECT_EQ(ListFolder(Data("D*.dat"), false), std::vector<std::string>{"D200406.dat"}) << selected;
    }
    EXPECT_TRUE(platform_.FormsShown().empty());
    const std::vector<std::string> refused = {"I dont know which event you selected",
                                              "Select a record to be deleted first"};
    std::vector<std::string> expected;
    for (int i = 0; i < 3; ++i) expected.insert(expected.end(), refused.begin(), refused.end());
    EXPECT_EQ(platform_.MessageTexts(), expected);
}
