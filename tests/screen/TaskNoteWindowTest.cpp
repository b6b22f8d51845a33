// The real program in this process with its Qt windows, on a user's organiser of 30
// tasks and 10 notes: the task list and the note list as the user sees them, a task
// and a note opened from their lists and saved through the editors' widgets, read
// back from the files; screenshots of each.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

#include "ProgramWindowFixture.h"
#include "SampleOrganiser.h"
#include "ViewTestSupport.h"
#include "config/clsConfigDiary.h"
#include "dialogs/frmEditNote.h"
#include "dialogs/frmEditTask.h"
#include "dialogs/frmTemplateEdit.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "qt/views/CheckBoxWidget.h"
#include "qt/views/ComboBoxWidget.h"
#include "qt/views/ListViewWidget.h"
#include "qt/views/RichTextBoxWidget.h"
#include "qt/views/TabStripWidget.h"
#include "qt/views/ToolbarWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// The columns the user chose for the task list, as the settings file keeps them.
const char* const kTaskHeadings[][2] = {{"Date", "Due"},          {"Time", "Time"},     {"RemindDate", "Remind on"},
                                        {"Priority", "Priority"}, {"Status", "Status"}, {"details", "Task Details"}};

}  // namespace

class TaskNoteWindowTest : public test::ProgramWindowFixture {
protected:
    void SetUp() override {
        ProgramWindowFixture::SetUp();
        for (const auto& [key, caption] : kTaskHeadings) glbConfig.SetVal("TaskHeadings", key, caption);
        glbConfig.ReadAllSettings();
    }
    void WriteData() override { test::WriteSampleOrganiser(data_, DateSerial(2004, 6, 5)); }

    QAction* button(const std::string& key) {
        auto* bar = ViewOf<ToolbarWidget>(*main_, MainForm().Toolbar1);
        return bar->actionOf(MainForm().Toolbar1.Buttons.Item(key));
    }
    QTreeView& list() { return *ViewOf<ListViewWidget>(*main_, MainForm().lvCat)->treeView(); }
    /// Clicks the list's row that shows `text`, then presses `key` in the list.
    void clickRowAndPress(const std::string& text, Qt::Key key) {
        test::ProcessEvents();
        ListItem* row = nullptr;
        for (long i = 1; i <= MainForm().lvCat.ListItems.Count(); ++i) {
            ListItem& item = MainForm().lvCat.ListItems(i);
            for (long k = 0; k <= item.ListSubItems.Count(); ++k)
                if (ListView::ColumnText(item, k) == text) row = &item;
        }
        ASSERT_NE(row, nullptr) << text;
        const QModelIndex index = list().model()->index(static_cast<int>(row->Index() - 1), 1);
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(index).center());
        QTest::keyClick(&list(), key);
    }
    std::string file(const std::string& name) const {
        std::string bytes;
        ReadWholeFile(data_ + name, bytes);
        return bytes;
    }
};

TEST_F(TaskNoteWindowTest, TheTaskListMarksItsTasksAndATaskIsCompletedInTheEditor) {
    ListView& tasks = MainForm().lvCat;
    EXPECT_EQ(tasks.ListItems.Count(), 21) << "beside the calendar: the active tasks";
    EXPECT_EQ(MainForm().Label2.Caption().substr(0, 12), " Tasks - 21 ");
    test::SaveScreenshot(*main_, QStringLiteral("tasks-beside-calendar"));

    MenuEntry(QStringLiteral("&Tasks"), QStringLiteral("&View"))->trigger();
    button("showall")->trigger();
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "30 of 30 Tasks shown");
    test::ProcessEvents();
    QTest::mouseClick(list().header()->viewport(), Qt::LeftButton, {},
                      QPoint(list().header()->sectionViewportPosition(1) + 10, 5));
    test::ProcessEvents();
    ASSERT_EQ(tasks.ColumnHeaders(2).Text(), "Due");
    EXPECT_EQ(tasks.ListItems(1).SubItems(6), "Return the library books") << "the earliest first";
    test::SaveScreenshot(*main_, QStringLiteral("tasks-list"));

    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& editor = static_cast<frmEditTask&>(form);
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Editing Task Details"));
        EXPECT_EQ(editor.chkRemind.Value(), vbChecked);
        Press(window, editor.cmdDetails);
        test::SaveScreenshotOver(*main_, window, QStringLiteral("task-editor"));
        ViewOf<TabStripWidget>(window, editor.tabEvent)->tabBar()->setCurrentIndex(1);
        test::SaveScreenshotOver(*main_, window, QStringLiteral("task-editor-advanced"));
        platform_.OnNextModal([this](Form& templates, QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Edit Template"));
            test::SaveScreenshotOver(*main_, dialog, QStringLiteral("task-templates"));
            Press(dialog, static_cast<frmTemplateEdit&>(templates).cmdCancel);
        });
        Press(window, editor.cmdTemplate);
        ViewOf<TabStripWidget>(window, editor.tabEvent)->tabBar()->setCurrentIndex(0);
        QLineEdit* status = ViewOf<ComboBoxWidget>(window, editor.cmbStatus)->comboBox()->lineEdit();
        status->selectAll();
        QTest::keyClicks(status, QStringLiteral("Completed"));
        Press(window, editor.cmdOK);
    });
    clickRowAndPress("Ring the bank about the loan", Qt::Key_Return);
    EXPECT_EQ(SplitLines(file("D_tasks.dat"))[0],
              Replace("N200405160001|20040602|Home|0900|60|Email||||20040602|0900|1 - Urgent|Completed||Ring the bank "
                      "about the loan|",
                      "|", "\x1F"));
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "20 of 30 Tasks shown") << "the active ones again";
}

TEST_F(TaskNoteWindowTest, TheNoteListOpensANoteInItsColourAndSavesItsNewColour) {
    MenuEntry(QStringLiteral("&Notes"), QStringLiteral("&View"))->trigger();
    ListView& notes = MainForm().lvCat;
    ASSERT_EQ(notes.ListItems.Count(), 10);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "10 Notes");
    test::ProcessEvents();
    test::SaveScreenshot(*main_, QStringLiteral("notes-list"));

    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& editor = static_cast<frmEditNote&>(form);
        QTextEdit* text = ViewOf<RichTextBoxWidget>(window, editor.txtClip)->textEdit();
        EXPECT_EQ(text->palette().color(QPalette::Base), QColor(0xC0, 0xFF, 0xC0)) << "pale green";
        QTest::mouseClick(ViewOf<CheckBoxWidget>(window, editor.chkProperties)->inner(), Qt::LeftButton);
        test::ProcessEvents();
        EXPECT_TRUE(ViewOf<ControlWidget>(window, editor.frameProperties)->isVisible());
        test::SaveScreenshotOver(*main_, window, QStringLiteral("note-editor"));
        QComboBox* colour = ViewOf<ComboBoxWidget>(window, editor.cmbColor)->comboBox();
        QTest::keyClick(colour, Qt::Key_Up);  // green, yellow, orange
        QTest::keyClick(colour, Qt::Key_Up);
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, QStringLiteral("Compost heap"));
        Press(window, editor.cmdSaveClose);
    });
    clickRowAndPress("Ideas for the garden", Qt::Key_Return);
    EXPECT_EQ(SplitLines(file("allnotes.dat"))[2],
              Replace("N200405160003|20040506|20040605||Orange       |Home|Ideas for the garden.txt|Ideas for the "
                      "garden |",
                      "|", "\x1F"));
    EXPECT_EQ(file("notes\\Ideas for the garden.txt"),
              "Ideas for the garden\r\nRaised beds by the fence\r\nA bench under the apple tree\r\nCompost "
              "heap\r\n");
}
