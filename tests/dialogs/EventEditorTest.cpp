// The rules of the event editor, driven as a user drives it, read back from the
// record it writes (gCurrentEvent).
#include "DialogFixture.h"
#include "controls/KeyCodes.h"
#include "dialogs/frmEditEvent.h"

using namespace orbidex;
using orbidex::test::EventLine;
using orbidex::test::Fields;

namespace {

// 1 July 2004 at 10:00, with a reminder at 09:30 that day.
const std::string kCall = Fields({"D200407010001", "20040701", "Phone", "1000", "30", "Call", "fred", "", "",
                                  "20040701", "0930", "Normal", "", "Office", "Call the bank"});

void TypeDetails(RichTextBox& box, const std::string& text) {
    box.UserEdit({TextRun{text, {}}}, static_cast<long>(text.size()));
}

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
    Open(kCall);
    form.txtLength.UserEdit("2", 1);
    form.cmbLengthUnits.UserSelect(1);
    EXPECT_EQ(Save().length, "120");

    Open(kCall);
    form.txtLength.UserEdit("1.5", 3);
    form.cmbLengthUnits.UserSelect(1);
    EXPECT_EQ(Save().length, "90");

    Open(kCall);
    form.txtLength.UserEdit("lots", 4);
    form.cmbLengthUnits.UserSelect(1);
    EXPECT_EQ(Save().length, "0");

    Open(kCall);
    EXPECT_EQ(form.cmbLengthUnits.Text(), "min") << "minutes on each load";
    form.txtLength.UserEdit("45x", 3);
    EXPECT_EQ(Save().length, "45x") << "minutes are stored as typed";
}

TEST_F(EventEditorTest, TheLeadTimeSetsTheReminderBeforeTheEventsTime) {
    Open(kCall);
    EXPECT_EQ(form.chkRemind.Value(), vbChecked);
    EXPECT_EQ(RemindAt(), "0930") << "the stored reminder";
    EXPECT_EQ(form.cmbReminder.Text(), "15 minutes");
    ASSERT_EQ(form.cmbReminder.ListCount(), 8);
    EXPECT_EQ(form.cmbReminder.List(5), "1 hour   ");

    form.cmbReminder.UserSelect(0);
    EXPECT_EQ(RemindAt(), "1000") << "0 minutes: at the event's time";
    form.cmbReminder.UserSelect(5);
    EXPECT_EQ(RemindAt(), "0900");
    form.cmbReminder.UserSelect(7);
    EXPECT_EQ(RemindAt(), "0600");
    form.cmbReminder.UserSelect(4);
    form.dtPickTime.UserPickTime(TimeSerial(11, 30, 0));
    EXPECT_EQ(RemindAt(), "1100") << "a new start time keeps the lead time";
    form.dtPickDate.UserPickDate(DateSerial(2004, 7, 2));
    EXPECT_EQ(form.DTPicker1.Value(), DateSerial(2004, 7, 2)) << "and a new date moves the reminder's date";

    const cDiaryRecord& saved = Save();
    EXPECT_EQ(saved.DateRemind, "20040702");
    EXPECT_EQ(saved.TimeRemind, "1100");

    // Over midnight only the clock moves: the reminder keeps the event's day.
    Open(Fields(
        {"D200407010001", "20040701", "", "0030", "30", "", "", "", "", "20040701", "0015", "", "", "", "Late"}));
    form.cmbReminder.UserSelect(5);
    EXPECT_EQ(Save().TimeRemind, "2330");
    EXPECT_EQ(gCurrentEvent.DateRemind, "20040701");
}

TEST_F(EventEditorTest, TickingTheReminderAgainStartsAtAQuarterBeforeWhateverTheListShows) {
    Open(kCall);
    form.cmbReminder.UserSelect(5);
    form.chkRemind.UserClick();
    EXPECT_FALSE(form.DTPicker1.Enabled());
    EXPECT_FALSE(form.DTPicker2.Enabled());
    EXPECT_FALSE(form.cmbReminder.Enabled());
    EXPECT_FALSE(form.lbl(12).Visible());
    EXPECT_FALSE(form.lbl(13).Visible());

    form.chkRemind.UserClick();
    EXPECT_TRUE(form.DTPicker2.Enabled());
    EXPECT_TRUE(form.lbl(12).Visible());
    EXPECT_EQ(form.cmbReminder.Text(), "1 hour   ");
    EXPECT_EQ(RemindAt(), "0945");
    EXPECT_EQ(Save().TimeRemind, "0945");

    // Unticked, the reminder is stored empty.
    Open(kCall);
    form.chkRemind.UserClick();
    const cDiaryRecord& saved = Save();
    EXPECT_EQ(saved.DateRemind, "");
    EXPECT_EQ(saved.TimeRemind, "");

    // An event without a reminder opens with the pickers on the event and greyed.
    Open(EventLine("D200407010001", "20040701", "1000", "No reminder"));
    EXPECT_EQ(form.chkRemind.Value(), vbUnchecked);
    EXPECT_EQ(FormatDate(form.DTPicker2.Value, "yyyymmdd hhmm"), "20040701 1000");
    EXPECT_FALSE(form.DTPicker1.Enabled());
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
    EXPECT_EQ(Save().DateRemind, "20040701");
    EXPECT_TRUE(glbConfig.dataChanged);
    EXPECT_FALSE(glbConfig.dialogCancelled);
}

TEST_F(EventEditorTest, EnterOnceAddsALineAndEnterTwiceSaves) {
    Open(kCall);
    TypeDetails(form.txtDetails, "Ring the bank");
    EXPECT_EQ(form.txtDetails.UserKeyDown(vbKeyReturn, 0), vbKeyReturn) << "the first Enter is typed";
    EXPECT_FALSE(form.IsUnloaded());
    TypeDetails(form.txtDetails, "Ring the bank\r\n");
    EXPECT_EQ(form.txtDetails.UserKeyDown(vbKeyReturn, 0), 0) << "the second one saves";
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_EQ(gCurrentEvent.details, "Ring the bank  ");

    // A text holding a NUL is cut there first.
    Open(kCall);
    TypeDetails(form.txtDetails, std::string("Ring\0junk\r\n", 11));
    form.txtDetails.UserKeyDown(vbKeyReturn, 0);
    EXPECT_EQ(gCurrentEvent.details, "Ring");

    Open(kCall);
    TypeDetails(form.txtDetails, "Line one\r\nline two");
    EXPECT_EQ(form.txtTitle.Text(), "Line one\r\nline two");
    EXPECT_EQ(Save().details, "Line one  line two");
}

TEST_F(EventEditorTest, PrivateEventsAreGreyAndTheTickDecidesTheStatus) {
    Open(Fields({"D200407010001", "20040701", "", "1000", "30", "", "", "", "", "", "", "", "Private", "", "Secret"}));
    EXPECT_EQ(form.chkPrivate.Value(), vbChecked);
    EXPECT_EQ(form.txtDetails.BackColor(), 0xC0C0C0U);
    EXPECT_EQ(form.txtTitle.ForeColor(), 255U);
    EXPECT_EQ(form.txtStatus.Text(), "Private");
    form.txtStatus.UserEdit("Urgent", 6);
    EXPECT_EQ(Save().status, "Private") << "a typed status gives way to the tick";

    Open(kCall);
    EXPECT_EQ(form.txtDetails.BackColor(), 0xFFFFFFU);
    form.chkPrivate.UserClick();
    EXPECT_EQ(form.txtTitle.BackColor(), 0xC0C0C0U);
    form.chkPrivate.UserClick();
    EXPECT_EQ(form.txtTitle.BackColor(), 0xFFFFFFU);
    EXPECT_EQ(form.txtTitle.ForeColor(), 0U);
    EXPECT_EQ(form.txtDetails.SelStart(), static_cast<long>(std::string("Call the bank").size()));
    form.txtStatus.UserEdit("Urgent", 6);
    EXPECT_EQ(Save().status, "");
}

TEST_F(EventEditorTest, ADroppedFileOrAddressIsLaunchedWithAMessageForEachFailure) {
    gLogLevel = 3;
    Open(kCall);
    form.txtURL.UserOLEDragDrop(DataObject{{"C:\\docs\\plan.doc", "C:\\docs\\other.doc"}, ""});
    EXPECT_EQ(form.txtURL.Text(), "C:\\docs\\plan.doc");
    form.cmdLaunch.UserClick();
    EXPECT_EQ(platform_.DocumentsOpened(), std::vector<std::string>{"C:\\docs\\plan.doc"});
    EXPECT_TRUE(Logged("Successfully ShellExecute 'C:\\docs\\plan.doc'"));

    platform_.SetOpenDocumentResult(2);
    form.cmdLaunch.UserClick();
    platform_.SetOpenDocumentResult(31);
    form.txtURL.UserOLEDragDrop(DataObject{{}, "http://example.org/plan\r\nhttp://example.org/other"});
    EXPECT_EQ(form.txtURL.Text(), "http://example.org/plan") << "an address is one line";
    form.cmdLaunch.UserClick();
    platform_.SetOpenDocumentResult(0);
    form.cmdLaunch.UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              (std::vector<std::string>{"C:\\docs\\plan.doc\r\nFile not found", "No association for file extension",
                                        "Unknown error"}));
    EXPECT_TRUE(Logged("Failed to ShellExecute 'http://example.org/plan'"));

    // The program's own files go to the text editor; an empty address does nothing.
    platform_.ClearTranscript();
    form.txtURL.UserOLEDragDrop(DataObject{{"C:\\diary\\data\\D200407.dat"}, ""});
    form.cmdLaunch.UserClick();
    EXPECT_EQ(platform_.ProcessesStarted(), std::vector<std::string>{"notepad.exe C:\\diary\\data\\D200407.dat"});
    EXPECT_TRUE(Logged("Started Program 'C:\\diary\\data\\D200407.dat'"));
    form.txtURL.Text = "";
    form.cmdLaunch.UserClick();
    EXPECT_EQ(platform_.DocumentsOpened().size(), 4U);
    EXPECT_TRUE(platform_.Transcript().empty());

    form.txtURL.UserOLEDragDrop(DataObject{{}, "http://example.org"});
    EXPECT_EQ(Save().URL, "http://example.org");
}

TEST_F(EventEditorTest, TheWindowTabsAndDetailsButtonFollowTheirSizes) {
    Open(kCall);
    EXPECT_EQ(form.Width(), 5600);
    EXPECT_EQ(form.Height(), 4400);
    EXPECT_TRUE(form.frameEvents(0).Visible());
    EXPECT_FALSE(form.frameEvents(1).Visible());
    EXPECT_EQ(form.frameEvents(1).Left(), 90);
    EXPECT_EQ(form.frameEvents(1).Top(), 360);
    form.tabEvent.UserClickTab(form.tabEvent.Tabs(2));
    EXPECT_FALSE(form.frameEvents(0).Visible());
    EXPECT_TRUE(form.frameEvents(1).Visible());

    form.Left = 1000;
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.cmdDetails.Caption(), "Details <<");
    EXPECT_EQ(form.Width(), 9000);
    EXPECT_EQ(form.Height(), 3695);
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.cmdDetails.Caption(), "Details >>");
    EXPECT_EQ(form.Width(), 4230);
    EXPECT_EQ(form.Left(), 1000);

    EXPECT_FALSE(form.cmdTemplate.Enabled()) << "no template list yet";
    EXPECT_EQ(form.cmdLaunch.ToolTipText(), "Launch this file or URL");
}

TEST_F(EventEditorTest, TheEditorShowsTheUsersListsAndWarnsOfAMissingIdentifier) {
    WriteLines("common_locations.txt", {"Office"});
    WriteLines("locations.txt", {"Boardroom"});
    WriteLines("common_references.txt", {"Budget", "Meeting"});
    Open(kCall);
    EXPECT_EQ(form.cmbActionToPerform.ListCount(), 1);
    EXPECT_EQ(form.cmbActionToPerform.List(0), "Boardroom");
    EXPECT_EQ(form.cmbReference.ListCount(), 2);
    EXPECT_EQ(form.cmbAction.List(0), "View");
    EXPECT_EQ(form.cmbAction.ListCount(), 8);
    form.lblID.Caption = "";
    const cDiaryRecord& saved = Save();
    EXPECT_EQ(saved.ID, "");
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"ID missing ?"});

    // A new event without a place in the array is shown empty, with a warning.
    platform_.ClearTranscript();
    gCurrentEvent.GetDiaryRecordFromText(kCall);
    glbConfig.dialogEditing = false;
    gintcur = -1;
    form.Load();
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Warning - adding event without id being generated - BUG"});
    EXPECT_EQ(form.txtDetails.Text(), "");
    EXPECT_EQ(form.Caption(), "Adding event to Diary");
}

TEST_F(EventEditorTest, BrokenDatesAndTimesOpenAndSaveWithoutHarm) {
    // A damaged line gives the pickers a date they can hold, from the year 100 to 9999.
    const std::pair<std::string, std::string> dates[] = {
        {"", "1000101"}, {"abc", "1000101"}, {"99999999", "99991231"}, {"2004", "20031130"}, {"200402310", "20040302"}};
    for (const auto& [date, saved] : dates) {
        Open(Fields({"D1", date, "", "9", "x", "", "", "", "", date, "zz", "", "", "", "Odd"}));
        EXPECT_EQ(Save().DateEvent, saved) << date;
        EXPECT_EQ(gCurrentEvent.TimeEvent, "0909") << "hour and minute from the one digit";
    }
}
