// Tasks and notes as the user keeps them from the main window: added with New,
// opened by a double click or Enter, completed, recoloured and deleted with Delete,
// each step read back from the lines on disk.
#include <gtest/gtest.h>

#include "MainScreenFixture.h"
#include "controls/KeyCodes.h"
#include "dialogs/frmEditNote.h"
#include "dialogs/frmEditTask.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

/// The text with each "|" as the byte 0x1F that closes a field.
std::string closed(const std::string& text) {
    return Replace(text, "|", "\x1F");
}

}  // namespace

class TaskNoteCommandsTest : public test::MainScreenFixture {
protected:
    void SetUp() override {
        MainScreenFixture::SetUp();
        StartProgram();
    }
    /// The next task editor: `edit` acts in it as the user, who then saves.
    void InTaskEditor(std::function<void(frmEditTask&)> edit) {
        platform_.QueueFormScript("frmEditTask", [edit](orbidex::Form& form) {
            auto& editor = static_cast<frmEditTask&>(form);
            edit(editor);
            editor.cmdOK.UserClick();
        });
    }
    void InNoteEditor(std::function<void(frmEditNote&)> edit) {
        platform_.QueueFormScript("frmEditNote", [edit](orbidex::Form& form) {
            auto& editor = static_cast<frmEditNote&>(form);
            edit(editor);
            editor.cmdSaveClose.UserClick();
        });
    }
    void New() { Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons("new")); }
    /// Clicks the list's first row, then double-clicks it.
    void OpenFirstRow() {
        ListView& list = Form().lvCat;
        list.UserClickItem(list.ListItems(1));
        list.UserDblClickItem(list.ListItems(1));
    }
    std::string Data(const std::string& name) { return ReadBytes(DataPath() + name); }
};

TEST_F(TaskNoteCommandsTest, ATaskIsAddedWithAReminderEditedCompletedAndDeleted) {
    Form().mnuViewMode[2].UserClick();  // Tasks
    InTaskEditor([](frmEditTask& editor) {
        EXPECT_EQ(editor.Caption(), "Adding Task");
        editor.txtDetails.UserEdit({TextRun{"Take the car for its MOT", {}}}, 24);
        editor.dtPickDate.UserPickDate(DateSerial(2004, 6, 10));
        editor.dtPickTime.UserPickTime(TimeSerial(15, 0, 0));
        editor.chkRemind.UserClick();
        editor.cmbReminder.UserSelect(5);  // 1 hour before
        editor.cmbPriority.UserSelect(0);
    });
    New();
    const std::string added =
        "N200406050001|20040610||1500|60|||||20040610|1400|1 - Urgent|||Take the car for its MOT|";
    EXPECT_EQ(Data("D_tasks.dat"), closed(added + "\r\n"));
    ListView& list = Form().lvCat;
    ASSERT_EQ(list.ListItems.Count(), 1);
    EXPECT_TRUE(list.ListItems(1).ListSubItems(1).Bold()) << "urgent";
    EXPECT_EQ(Panel(1), "1 of 1 Tasks shown");

    InTaskEditor([](frmEditTask& editor) {
        EXPECT_EQ(editor.Caption(), "Editing Task Details");
        editor.cmbStatus.UserSelect(1);  // In Progress
        editor.txtCost.UserEdit("$45.00", 6);
    });
    OpenFirstRow();
    EXPECT_EQ(Data("D_tasks.dat"), closed(Replace(added, "1 - Urgent|||", "1 - Urgent|In Progress|$45.00|") + "\r\n"));

    // Enter opens the selected task; completed, it leaves the list of active tasks.
    InTaskEditor([](frmEditTask& editor) { editor.cmbStatus.UserSelect(6); });
    EXPECT_EQ(list.UserKeyDown(vbKeyReturn, 0), 0);
    EXPECT_EQ(Split(Data("D_tasks.dat"), "\x1F").at(12), "Completed");
    EXPECT_EQ(list.ListItems.Count(), 0);
    EXPECT_EQ(Panel(1), "0 of 1 Tasks shown");
    Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons("showall"));
    ASSERT_EQ(list.ListItems.Count(), 1);
    EXPECT_EQ(list.ListItems(1).ListSubItems(1).ForeColor(), vbGrayText);

    // Delete asks first; No keeps the task.
    list.UserClickItem(list.ListItems(1));
    platform_.QueueMsgBoxAnswer(vbNo);
    list.UserKeyDown(vbKeyDelete, 0);
    EXPECT_EQ(platform_.Transcript().back().title, "Deleting Task");
    EXPECT_EQ(platform_.Transcript().back().text,
              "Deleting task : Take the car for its MOT\r\n\r\nDo you want to delete this task");
    EXPECT_NE(Data("D_tasks.dat"), "");
    platform_.QueueMsgBoxAnswer(vbYes);
    list.UserKeyDown(vbKeyDelete, 0);
    EXPECT_EQ(Data("D_tasks.dat"), "");
    EXPECT_EQ(list.ListItems.Count(), 0);
}

TEST_F(TaskNoteCommandsTest, ANoteIsWrittenRecolouredReopenedAndDeleted) {
    Form().mnuViewMode[3].UserClick();  // Notes
    InNoteEditor([](frmEditNote& editor) {
        editor.txtClip.UserEdit({TextRun{"Parking permit\r\nRenew it by the end of June", {}}}, 42);
        editor.cmbColor.UserSelect(5);  // Blue
        editor.cmbCategory.UserEdit("Car");
    });
    New();
    EXPECT_EQ(Data("allnotes.dat"),
              closed("N200406050001|20040605|20040605||Blue         |Car|Parking permit .txt|Parking permit |\r\n"));
    EXPECT_EQ(Data("notes\\Parking permit .txt"), "Parking permit\r\nRenew it by the end of June\r\n");
    ASSERT_EQ(Form().lvCat.ListItems.Count(), 1);
    EXPECT_EQ(Form().lvCat.ListItems(1).ListSubItems(1).ForeColor(), 0xC00000U) << "blue";
    EXPECT_EQ(Panel(1), "1 Notes");

    // Reopened in its colour; a new first line renames the note, not its file.
    InNoteEditor([](frmEditNote& editor) {
        EXPECT_EQ(editor.txtClip.BackColor(), 0xFFFFC0U) << "pale blue";
        EXPECT_EQ(editor.lbl(5).Caption(), "05/06/2004");
        editor.txtClip.UserEdit({TextRun{"Car park permit\r\nRenewed", {}}}, 24);
        editor.cmbColor.UserSelect(1);  // Red
    });
    OpenFirstRow();
    EXPECT_EQ(Data("allnotes.dat"),
              closed("N200406050001|20040605|20040605||Red          |Car|Parking permit .txt|Car park permit |\r\n"));
    EXPECT_EQ(Data("notes\\Parking permit .txt"), "Car park permit\r\nRenewed\r\n");

    Form().lvCat.UserClickItem(Form().lvCat.ListItems(1));
    platform_.QueueMsgBoxAnswer(vbYes);
    Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons("delete"));
    EXPECT_EQ(platform_.Transcript().back().text,
              "Deleting note : Car park permit \r\n\r\nDo you want to delete this note");
    EXPECT_EQ(Data("allnotes.dat"), "");
    EXPECT_EQ(Data("notes\\Parking permit .txt"), "Car park permit\r\nRenewed\r\n") << "the body stays";
    EXPECT_EQ(Form().lvCat.ListItems.Count(), 0);
}

TEST_F(TaskNoteCommandsTest, TheCalendarsTaskListOpensItsTasksAndCountsThem) {
    WriteBytes(DataPath() + "D_tasks.dat", closed("N200406010001|20040601||0900|30||||||||||Water the plants|\r\n"));
    glbTasks.LoadFromFile();
    glbScreen.SwitchMode("CALENDAR", true);
    ListView& list = Form().lvCat;
    ASSERT_EQ(list.ListItems.Count(), 1);
    EXPECT_EQ(list.ListItems(1).Text(), "Water the plants");

    InTaskEditor([](frmEditTask& editor) { editor.txtDetails.UserEdit({TextRun{"Water the garden", {}}}, 16); });
    OpenFirstRow();
    EXPECT_EQ(list.ListItems(1).Text(), "Water the garden");
    InTaskEditor([](frmEditTask& editor) { editor.txtDetails.UserEdit({TextRun{"Mow the lawn", {}}}, 12); });
    Form().mnuTaskMenu[0].UserClick();  // Add Task
    EXPECT_EQ(list.ListItems.Count(), 2);
    EXPECT_EQ(Form().Label2.Caption().substr(0, 11), " Tasks - 2 ");
    EXPECT_EQ(glbScreen.Mode(), "CALENDAR");

    // A task opened by its identifier, as the search's results open one.
    InTaskEditor([](frmEditTask& editor) { EXPECT_EQ(editor.txtDetails.Text(), "Water the garden"); });
    EXPECT_TRUE(glbCmd.OpenTask("N200406010001"));
    EXPECT_FALSE(glbCmd.OpenTask("N209901010001"));
}
