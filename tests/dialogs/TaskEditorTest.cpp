// The rules of the task editor, driven as a user drives it, read back from the task
// it writes (gCurrentTask).
#include "DialogFixture.h"
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
    /// The reminder's date and time as the two pickers show them.
    std::string RemindAt() const {
        return FormatDate(form.DTPicker1.Value, "yyyymmdd") + " " + FormatDate(form.DTPicker2.Value, "hhmm");
    }

    frmEditTask form;
};

TEST_F(TaskEditorTest, EveryFieldGoesBackUnchangedAndANewTaskTakesItsDefaults) {
    Open(kInvoice);
    form.cmdOK.UserClick();
    EXPECT_EQ(gCurrentTask.FormatRecordAsCSV("\x1F", ""), kInvoice);

    WriteLines("common_references.txt", {"Call", "Write"});
    gCurrentTask.SetDefault();
    gCurrentTask.length.clear();
    glbConfig.dialogEditing = false;
    form.Load();
    EXPECT_EQ(form.Caption(), "Adding Task");
    EXPECT_EQ(form.txtLength.Text(), "30") << "one slot of the grid, two an hour";
    EXPECT_EQ(form.cmbAction.ListCount(), 2) << "the actions of the list file";
    form.txtDetails.UserEdit({TextRun{"Ring Bob\r\nabout the van", {}}}, 23);
    form.cmdOK.UserClick();
    EXPECT_EQ(gCurrentTask.FormatRecordAsCSV("|", ""), "|20040605||0930|30||||||||||Ring Bob  about the van|");
}

TEST_F(TaskEditorTest, TheLeadTimeMovesTheReminderButDaysAndNewDatesLeaveItsDay) {
    Open(kInvoice);
    EXPECT_EQ(RemindAt(), "20040610 1400");
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
}

TEST_F(TaskEditorTest, AReminderLeftInAnotherMonthRefusesTheSaveAndCloseKeepsTheTask) {
    Open(Fields({"N1", "20040610", "", "1600", "30", "", "", "", "", "", "", "", "", "", "Plan July"}));
    form.dtPickDate.UserPickDate(DateSerial(2004, 7, 2));  // no reminder
    form.cmdOK.UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"The remind date must be within the same month as the date of the event"});
    EXPECT_FALSE(form.IsUnloaded());
    form.txtDetails.UserEdit({TextRun{"Plan August", {}}}, 11);
    form.UserClose();
    EXPECT_TRUE(glbConfig.dialogCancelled);
    EXPECT_EQ(gCurrentTask.details + " " + gCurrentTask.DateCreated, "Plan July 20040610");
}
