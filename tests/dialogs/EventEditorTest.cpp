// The rules of the event editor, driven as a user drives it, read back from the
// record it writes (gCurrentEvent).
#include "DialogFixture.h"
#include "controls/KeyCodes.h"
#include "dialogs/frmEditEvent.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

// 1 July 2004 at 10:00, with a reminder at 09:30 that day.
const std::string kCall = Fields({"D200407010001", "20040701", "Phone", "1000", "30", "Call", "fred", "", "",
                                  "20040701", "0930", "Normal", "", "Office", "Call the bank"});

}  // namespace

class EventEditorTest : public orbidex::test::DialogFixture {
protected:
    /// Opens the editor on the event line, as an edit of an existing event.
    void Open(const std::string& line) {
        gCurrentEvent.GetDiaryRecordFromText(line);
        glbConfig.dialogEditing = true;
        gintcur = 0;
        form.Load();
    }
    /// Presses "Save and Close" and gives the record as saved.
    const cDiaryRecord& Save() {
        form.cmdOK.UserClick();
        EXPECT_TRUE(form.IsUnloaded());
        return gCurrentEvent;
    }
    std::string RemindAt() const { return FormatDate(form.DTPicker2.Value, "hhmm"); }

    frmEditEvent form;
};

TEST_F(EventEditorTest, LengthInHoursIsStoredInMinutes) {
    for (const auto& [typed, stored] : {std::pair{"2", "120"}, {"1.5", "90"}, {"lots", "0"}}) {
        Open(kCall);
        form.txtLength.UserEdit(typed, 1);
        form.cmbLengthUnits.UserSelect(1);
        EXPECT_EQ(Save().length, stored) << typed;
    }
    Open(kCall);
    EXPECT_EQ(form.cmbLengthUnits.Text(), "min") << "minutes again on each load";
    form.txtLength.UserEdit("45x", 3);
    EXPECT_EQ(Save().length, "45x") << "minutes are stored as typed";
}

TEST_F(EventEditorTest, TheLeadTimeSetsTheReminderBeforeTheEventsTime) {
    Open(kCall);
    EXPECT_EQ(RemindAt(), "0930") << "the stored reminder";
    EXPECT_EQ(form.cmbReminder.Text(), "15 minutes");
    for (const auto& [entry, remind] : {std::pair{0, "1000"}, {5, "0900"}, {7, "0600"}, {4, "0930"}}) {
        form.cmbReminder.UserSelect(entry);
        EXPECT_EQ(RemindAt(), remind) << form.cmbReminder.Text();
    }
    form.dtPickTime.UserPickTime(TimeSerial(11, 30, 0));
    EXPECT_EQ(RemindAt(), "1100") << "a new start keeps the lead time";
    form.dtPickDate.UserPickDate(DateSerial(2004, 7, 2));
    const cDiaryRecord& saved = Save();
    EXPECT_EQ(saved.DateRemind, "20040702") << "and a new date moves the reminder's date";
    EXPECT_EQ(saved.TimeRemind, "1100");

    // Over midnight only the clock moves: the reminder keeps the event's day.
    Open(Fields({"D1", "20040701", "", "0030", "30", "", "", "", "", "20040701", "0015", "", "", "", "Late"}));
    form.cmbReminder.UserSelect(5);
    EXPECT_EQ(Save().TimeRemind, "2330");
    EXPECT_EQ(gCurrentEvent.DateRemind, "20040701");
}

TEST_F(EventEditorTest, TickingTheReminderAgainStartsAtAQuarterBeforeWhateverTheListShows) {
    Open(kCall);
    form.cmbReminder.UserSelect(5);
    form.chkRemind.UserClick();
    EXPECT_FALSE(form.DTPicker2.Enabled());
    EXPECT_FALSE(form.cmbReminder.Enabled());
    EXPECT_FALSE(form.lbl(12).Visible());
    form.chkRemind.UserClick();
    EXPECT_TRUE(form.lbl(13).Visible());
    EXPECT_EQ(form.cmbReminder.Text(), "1 hour   ");
    EXPECT_EQ(Save().TimeRemind, "0945");

    Open(kCall);
    form.chkRemind.UserClick();
    const cDiaryRecord& saved = Save();
    EXPECT_EQ(saved.DateRemind + saved.TimeRemind, "") << "unticked, no reminder is stored";
}

TEST_F(EventEditorTest, AReminderInTheMonthBeforeIsRefused) {
    Open(kCall);
    form.DTPicker1.UserPickDate(DateSerial(2004, 6, 30));
    form.cmdOK.UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"The remind date must be within the same month as the date of the event"});
    EXPECT_FALSE(form.IsUnloaded()) << "the dialog stays";
    EXPECT_EQ(gCurrentEvent.DateRemind, "20040701") << "nothing written back";
    EXPECT_FALSE(glbConfig.dataChanged);

    form.DTPicker1.UserPickDate(DateSerial(2004, 7, 1));
    Save();
    EXPECT_TRUE(glbConfig.dataChanged);
}

TEST_F(EventEditorTest, EnterOnceAddsALineAndEnterTwiceSaves) {
    Open(kCall);
    TypeDetails(form.txtDetails, "Ring the bank");
    EXPECT_EQ(form.txtDetails.UserKeyDown(vbKeyReturn, 0), vbKeyReturn) << "the first Enter is typed";
    TypeDetails(form.txtDetails, "Ring the bank\r\n");
    EXPECT_EQ(form.txtTitle.Text(), "Ring the bank\r\n");
    EXPECT_EQ(form.txtDetails.UserKeyDown(vbKeyReturn, 0), 0) << "the second one saves";
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_EQ(gCurrentEvent.details, "Ring the bank  ");

    Open(kCall);
    TypeDetails(form.txtDetails, std::string("Ring\0junk\r\n", 11));
    form.txtDetails.UserKeyDown(vbKeyReturn, 0);
    EXPECT_EQ(gCurrentEvent.details, "Ring") << "cut at the NUL";
}

TEST_F(EventEditorTest, PrivateEventsAreGreyAndTheTickDecidesTheStatus) {
    Open(Fields({"D1", "20040701", "", "1000", "30", "", "", "", "", "", "", "", "Private", "", "Secret"}));
    EXPECT_EQ(form.txtDetails.BackColor(), 0xC0C0C0U);
    EXPECT_EQ(form.txtTitle.ForeColor(), 255U);
    form.txtStatus.UserEdit("Urgent", 6);
    EXPECT_EQ(Save().status, "Private") << "a typed status gives way to the tick";

    Open(kCall);
    form.chkPrivate.UserClick();
    form.chkPrivate.UserClick();
    EXPECT_EQ(form.txtTitle.BackColor(), 0xFFFFFFU);
    EXPECT_EQ(form.txtTitle.ForeColor(), 0U);
    form.txtStatus.UserEdit("Urgent", 6);
    EXPECT_EQ(Save().status, "");
}

TEST_F(EventEditorTest, ADroppedFileOrAddressIsLaunchedWithAMessageForEachFailure) {
    Open(kCall);
    form.txtURL.UserOLEDragDrop(DataObject{{"C:\\docs\\plan.doc", "C:\\docs\\other.doc"}, ""});
    platform_.SetOpenDocumentResult(2);
    form.cmdLaunch.UserClick();
    form.txtURL.UserOLEDragDrop(DataObject{{}, "http://example.org/plan\r\nhttp://example.org/other"});
    platform_.SetOpenDocumentResult(31);
    form.cmdLaunch.UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              (std::vector<std::string>{"C:\\docs\\plan.doc\r\nFile not found", "No association for file extension"}));
    EXPECT_TRUE(LoggedMessage("Failed to ShellExecute 'http://example.org/plan'"));

    // The program's own files go to the text editor.
    form.txtURL.UserOLEDragDrop(DataObject{{"C:\\diary\\data\\D200407.dat"}, ""});
    form.cmdLaunch.UserClick();
    EXPECT_EQ(platform_.ProcessesStarted(), std::vector<std::string>{"notepad.exe C:\\diary\\data\\D200407.dat"});
    EXPECT_EQ(Save().URL, "C:\\diary\\data\\D200407.dat");
}

TEST_F(EventEditorTest, TheDetailsButtonWidensAndNarrowsTheWindow) {
    Open(kCall);
    EXPECT_EQ(std::pair(form.Width(), form.Height()), std::pair(5600L, 4400L));
    form.Left = 1000;
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.cmdDetails.Caption(), "Details <<");
    EXPECT_EQ(std::pair(form.Width(), form.Height()), std::pair(9000L, 3695L));
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.cmdDetails.Caption(), "Details >>");
    EXPECT_EQ(std::pair(form.Width(), form.Height()), std::pair(4230L, 3695L));
    EXPECT_EQ(form.Left(), 1000);
}

TEST_F(EventEditorTest, BrokenDatesAndTimesOpenAndSaveWithoutHarm) {
    // A damaged line gives the pickers a date they can hold, from the year 1900 to 9999.
    const std::pair<std::string, std::string> dates[] = {{"", "19000101"},
                                                         {"abc", "19000101"},
                                                         {"99999999", "99991231"},
                                                         {"2004", "20031130"},
                                                         {"200402310", "20040302"}};
    for (const auto& [date, saved] : dates) {
        Open(Fields({"D1", date, "", "9", "x", "", "", "", "", date, "zz", "", "", "", "Odd"}));
        EXPECT_EQ(Save().DateEvent, saved) << date;
        EXPECT_EQ(gCurrentEvent.TimeEvent, "0909") << "hour and minute from the one digit";
    }
}
