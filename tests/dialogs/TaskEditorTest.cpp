// The rules of the task editor, driven as a user drives it, read back from the task
// it writes (gCurrentTask).
#include "DialogFixture.h"
#include "controls/KeyCodes.h"
#include "dialogs/frmEditTask.h"
#include "pim/cTask.h"

using namespace orbidex;
using orbidex::test::Fields;

namespace {

// Due on 10 June 2004 at 16:00, reminded at 14:00 that day; 45 minutes' work.
const std::string kInvoice = Fields({"N200406010001", "20040610", "Finance", "1600", "45", "Email", "Ann", "", "J7",
                                     "20040610", "1400", "1 - Urgent", "In Progress", "$20.00", "Send the invoice"});

}  // namespace

class TaskEditorTest : public orbidex::test::DialogFixture {
protected:
    /// Opens the editor on the task line, as an edit of a task of the list.
    void Open(const std::string& line) {
        gCurrentTask.CreateTaskFromTextLine(line, "\x1F");
        glbConfig.dialogEditing = true;
        form.Load();
    }
    const cTask& Save() {
        form.cmdOK.UserClick();
        EXPECT_TRUE(form.IsUnloaded());
        return gCurrentTask;
    }
    /// The reminder's date and time as the two pickers show them.
    std::string RemindAt() const {
        return FormatDate(form.DTPicker1.Value, "yyyymmdd") + " " + FormatDate(form.DTPicker2.Value, "hhmm");
    }

    frmEditTask form;
};

TEST_F(TaskEditorTest, ATaskIsShownInItsControlsAndSavedBackUnchanged) {
    Open(kInvoice);
    EXPECT_EQ(form.Caption(), "Editing Task Details");
    EXPECT_EQ(form.cmbStatus.Text(), "In Progress");
    EXPECT_EQ(form.txtCost.Text(), "$20.00");
    EXPECT_EQ(form.cmbAction.ListCount(), 8) << "the actions offered without a list file";
    EXPECT_TRUE(form.DTPicker1.Enabled());
    EXPECT_EQ(Save().FormatRecordAsCSV("\x1F", ""), kInvoice);

    // A new task starts now, with a time of one slot of the calendar; a list file
    // gives the actions.
    WriteLines("common_references.txt", {"Call", "Write"});
    gCurrentTask.SetDefault();
    gCurrentTask.length.clear();
    glbConfig.dialogEditing = false;
    form.Load();
    EXPECT_EQ(form.Caption(), "Adding Task");
    EXPECT_EQ(FormatDate(form.dtPickTime.Value, "yyyymmdd hhmm"), "20040605 0930");
    EXPECT_EQ(form.txtLength.Text(), "30") << "two slots an hour";
    EXPECT_EQ(form.cmbAction.ListCount(), 2);
    EXPECT_FALSE(form.DTPicker1.Enabled());
    form.txtDetails.UserEdit({TextRun{"Ring Bob\r\nabout the van", {}}}, 23);
    const cTask& added = Save();
    EXPECT_EQ(added.details, "Ring Bob  about the van") << "one line";
    EXPECT_EQ(added.RemindDate + added.RemindTime, "");
}

TEST_F(TaskEditorTest, TheLeadTimeMovesTheReminderButDaysAndNewDatesLeaveItsDay) {
    Open(kInvoice);
    EXPECT_EQ(RemindAt(), "20040610 1400") << "the stored reminder";
    EXPECT_EQ(form.cmbReminder.Text(), "2 hours  ");
    for (const auto& [entry, remind] : {std::pair{1, "20040610 1550"},
                                        {5, "20040610 1500"},
                                        {11, "20040610 0800"},
                                        {12, "20040610 0800"},
                                        {16, "20040610 0800"}}) {
        form.cmbReminder.UserSelect(entry);
        EXPECT_EQ(RemindAt(), remind) << form.cmbReminder.Text();
    }
    form.cmbReminder.UserSelect(3);  // 30 minutes
    form.dtPickDate.UserPickDate(DateSerial(2004, 6, 12));
    EXPECT_EQ(RemindAt(), "20040610 1530") << "a new date runs the rule and keeps the reminder's day";
    form.chkRemind.UserClick();
    form.chkRemind.UserClick();
    EXPECT_EQ(RemindAt(), "20040612 1545") << "ticked again: a quarter before the task";
    EXPECT_EQ(Save().RemindDate + " " + gCurrentTask.RemindTime, "20040612 1545");
}

TEST_F(TaskEditorTest, AReminderLeftInAnotherMonthRefusesTheSaveEvenWhenOff) {
    Open(Fields({"N1", "20040610", "", "1600", "30", "", "", "", "", "", "", "", "", "", "Plan July"}));
    form.dtPickDate.UserPickDate(DateSerial(2004, 7, 2));
    form.cmdOK.UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"The remind date must be within the same month as the date of the event"});
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(gCurrentTask.DateCreated, "20040610") << "nothing written back";

    // Cancel, or the window's close button, keeps the task and reports a cancel.
    for (bool close : {false, true}) {
        Open(kInvoice);
        form.txtDetails.UserEdit({TextRun{"changed", {}}}, 7);
        if (close)
            form.UserClose();
        else
            form.cmdCancel.UserClick();
        EXPECT_TRUE(glbConfig.dialogCancelled);
        EXPECT_EQ(gCurrentTask.details, "Send the invoice");
    }
}

TEST_F(TaskEditorTest, EnterTwiceSavesDetailsWidensAndTemplatesOpensItsDialog) {
    Open(kInvoice);
    form.txtDetails.UserEdit({TextRun{"Send the invoice\r\n", {}}}, 18);
    EXPECT_EQ(form.txtDetails.UserKeyDown(vbKeyReturn, 0), 0);
    EXPECT_EQ(gCurrentTask.details, "Send the invoice  ");

    Open(kInvoice);
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.cmdDetails.Caption() + " " + CStr(form.Width()) + "x" + CStr(form.Height()), "Details << 9000x3695");
    form.cmdDetails.UserClick();
    EXPECT_EQ(form.cmdDetails.Caption() + " " + CStr(form.Width()), "Details >> 4085");

    platform_.QueueFormScript("frmTemplateEdit",
                              [](Form& templates) { EXPECT_EQ(templates.Caption(), "Edit Template"); });
    form.cmdTemplate.UserClick();
    EXPECT_EQ(platform_.FormsShown(), std::vector<std::string>{"frmTemplateEdit"});
    EXPECT_FALSE(form.IsUnloaded());
}
