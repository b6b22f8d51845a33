// The real program in this process with its Qt windows: events added and edited by
// double clicks on the grid and rescheduled from the menu, through the dialogs' real
// widgets, read back from the month's file; screenshots of the main window and of
// each dialog over it.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>
#include <algorithm>

#include "EventLines.h"
#include "ProgramWindowFixture.h"
#include "ViewTestSupport.h"
#include "dialogs/frmDateGenerator.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmEventMultiple.h"
#include "dialogs/frmRescheduleEvent.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "qt/views/FlexGridWidget.h"
#include "qt/views/FormWindow.h"
#include "qt/views/OptionButtonWidget.h"
#include "qt/views/RichTextBoxWidget.h"
#include "qt/views/ToolbarWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// An event line as the bank's: an office call of half an hour.
std::string Line(const std::string& id, const std::string& date, const std::string& time, const std::string& details) {
    return test::Fields({id, date, "Office", time, "30", "Call", "", "", "", "", "", "Normal", "", "", details}) +
           "\r\n";
}

const std::string kBank = Line("D200406050001", "20040605", "1400", "Ring the bank");

}  // namespace

class EventWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override { WriteWholeFile(data_ + "D200406.dat", June()); }

    /// The month's file the program starts on.
    virtual std::string June() const { return kBank; }
    FlexGridWidget& grid() { return *ViewOf<FlexGridWidget>(*main_, MainForm().gridDays); }
    void click(long row, long col) {
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().cellRect(row, col).center());
    }
    void doubleClick(long row, long col) {
        click(row, col);
        QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, grid().cellRect(row, col).center());
    }
    std::string june() const {
        std::string bytes;
        ReadWholeFile(data_ + "D200406.dat", bytes);
        return bytes;
    }
    /// The lines of the month's file that hold `details`.
    std::vector<std::string> linesWith(const std::string& details) const {
        std::vector<std::string> found;
        for (const std::string& line : SplitLines(june()))
            if (InStr(line, "\x1F" + details + "\x1F") > 0) found.push_back(line);
        return found;
    }
    /// Types into the event editor's text in place of what it holds, then saves.
    void typeAndSave(QWidget& window, frmEditEvent& form, const QString& text) {
        QTextEdit* edit = ViewOf<RichTextBoxWidget>(window, form.txtDetails)->textEdit();
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
        Press(window, form.cmdOK);
    }
    /// The next editor opens on `shown` and saves `text` in its place.
    void editNext(const std::string& shown, const QString& text) {
        platform_.OnNextModal([this, shown, text](Form& form, QWidget& window) {
            auto& editor = static_cast<frmEditEvent&>(form);
            EXPECT_EQ(editor.txtDetails.Text(), shown);
            typeAndSave(window, editor, text);
        });
    }
    void screenshotOver(QWidget& dialog, const QString& name) { test::SaveScreenshotOver(*main_, dialog, name); }
};

TEST_F(EventWindowTest, ADoubleClickOnTheGridAddsAnEventAndAnotherEditsIt) {
    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& editor = static_cast<frmEditEvent&>(form);
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Adding event to Diary"));
        EXPECT_EQ(FormatDate(editor.dtPickTime.Value, "yyyymmdd hhmm"), "20040605 1030");
        EXPECT_FALSE(MainForm().timerSecond.Enabled);
        screenshotOver(window, QStringLiteral("event-add-over-main"));
        typeAndSave(window, editor, QStringLiteral("Dentist"));
    });
    doubleClick(4, 2);  // 10:30
    const std::vector<std::string> added = linesWith("Dentist");
    ASSERT_EQ(added.size(), 1U);
    EXPECT_EQ(Split(added[0], "\x1F").at(3), "1030");
    EXPECT_EQ(MainForm().gridDays.TextMatrix(4, 2), "Dentist");
    EXPECT_TRUE(MainForm().timerSecond.Enabled);
    test::ProcessEvents();
    test::SaveScreenshot(*main_, QStringLiteral("main-with-new-event"));

    platform_.OnNextModal([this](Form& form, QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Editing event in Diary"));
        screenshotOver(window, QStringLiteral("event-edit-over-main"));
        typeAndSave(window, static_cast<frmEditEvent&>(form), QStringLiteral("Dentist - check-up"));
    });
    doubleClick(4, 2);
    EXPECT_TRUE(linesWith("Dentist").empty());
    const std::vector<std::string> edited = linesWith("Dentist - check-up");
    ASSERT_EQ(edited.size(), 1U);
    EXPECT_EQ(Left(edited[0], 13), Left(added[0], 13)) << "the same event";
}

TEST_F(EventWindowTest, TheRescheduleAndMultiDayDialogsOverTheMainWindow) {
    click(11, 2);  // 14:00, the bank
    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& dialog = static_cast<frmRescheduleEvent&>(form);
        QTest::mouseClick(ViewOf<OptionButtonWidget>(window, dialog.optMoveAhead(0))->radioButton(), Qt::LeftButton);
        screenshotOver(window, QStringLiteral("reschedule-over-main"));
        Press(window, dialog.cmdOK);
    });
    ASSERT_NE(MenuEntry(QStringLiteral("&Reschedule this Appointment")), nullptr);
    MenuEntry(QStringLiteral("&Reschedule this Appointment"))->trigger();
    const std::vector<std::string> moved = linesWith("Ring the bank");
    ASSERT_EQ(moved.size(), 1U);
    EXPECT_EQ(Split(moved[0], "\x1F").at(1), "20040606") << "the next day";

    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& dialog = static_cast<frmEventMultiple&>(form);
        platform_.OnNextModal([this](Form& inner, QWidget& generator) {
            screenshotOver(generator, QStringLiteral("date-generator-over-main"));
            Press(generator, static_cast<frmDateGenerator&>(inner).cmdOk);
        });
        Press(window, dialog.cmdPickDates);
        EXPECT_EQ(dialog.lvDateList.ListItems.Count(), 4);  // 4 to 7 June
        screenshotOver(window, QStringLiteral("multi-day-over-main"));
        Press(window, dialog.cmdCancel);
    });
    ASSERT_NE(MenuEntry(QStringLiteral("Add &Multiple Day Event")), nullptr);
    MenuEntry(QStringLiteral("Add &Multiple Day Event"))->trigger();
    EXPECT_TRUE(MainForm().timerSecond.Enabled);
}

TEST_F(EventWindowTest, KeysInTheGridSelectEditAndDeleteAsTheMouseAndTheMenusDo) {
    QWidget* keys = grid().area();
    click(10, 2);  // 13:30, blank
    QTest::keyClick(keys, Qt::Key_Down);
    FlexGrid& model = MainForm().gridDays;
    EXPECT_EQ(model.Row(), 11);
    EXPECT_EQ(gintcur, 0) << "the bank at 14:00";
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "At 1400 on 20040605 spent 30 minutes on ''Ring the bank'");
    EXPECT_TRUE(MainForm().mnuPopupGridDelete.Enabled);

    editNext("Ring the bank", QStringLiteral("Ring the bank manager"));
    QTest::keyClick(keys, Qt::Key_Return);
    EXPECT_EQ(linesWith("Ring the bank manager").size(), 1U);

    QTest::keyClick(keys, Qt::Key_Up);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "Blank Timeslot on 5-Jun-2004 at 1330");
    QTest::keyClick(keys, Qt::Key_Down);
    platform_.answers.push_back(vbNo);
    QTest::keyClick(keys, Qt::Key_Delete);
    EXPECT_EQ(platform_.messages.back(),
              "Deleting event on 20040605 at 1400 details :Ring the bank manager\r\n\r\nDo you want to delete this "
              "event");
    EXPECT_EQ(linesWith("Ring the bank manager").size(), 1U) << "No keeps it";

    // The tool bar's Delete button asks the same, and Yes deletes.
    QAction* remove =
        ViewOf<ToolbarWidget>(*main_, MainForm().Toolbar1)->actionOf(MainForm().Toolbar1.Buttons.Item("delete"));
    ASSERT_TRUE(remove->isEnabled());
    platform_.answers.push_back(vbYes);
    remove->trigger();
    EXPECT_EQ(platform_.messages.size(), 2U);
    EXPECT_EQ(platform_.messages.back(), platform_.messages.front());
    EXPECT_TRUE(linesWith("Ring the bank manager").empty());
    QTest::keyClick(keys, Qt::Key_Delete);
    EXPECT_EQ(platform_.messages.back(), "Select a record to be deleted first");
}

// A month's file in the order its lines came: a new month's blank line, then the
// events appended to it.  The first save sorts it, after which the program must
// still act on the events the user points at.
class SavedMonthWindowTest : public EventWindowTest {
protected:
    std::string June() const override { return "\r\n" + kLunch + kStandup + kBank; }
    /// Double-clicks the stand-up, changes it and saves: the file is sorted.
    void editTheStandup() {
        editNext("Standup", QStringLiteral("Standup at nine"));
        doubleClick(1, 2);  // 09:00
        ASSERT_EQ(june(), kBank + kStandupAtNine + kLunch);
    }
    /// The month's files in the data folder, each with its network form beside it.
    std::vector<std::string> monthFiles() const {
        std::vector<std::string> names = ListFolder(data_ + "D*.dat*", false);
        std::sort(names.begin(), names.end());
        return names;
    }

    static inline const std::string kStandup = Line("D200406050002", "20040605", "0900", "Standup");
    static inline const std::string kStandupAtNine = Line("D200406050002", "20040605", "0900", "Standup at nine");
    static inline const std::string kLunch = Line("D200406050003", "20040605", "1200", "Lunch");
};

TEST_F(SavedMonthWindowTest, DoubleClickingAnotherEventAfterASaveEditsThatEvent) {
    editTheStandup();
    editNext("Lunch", QStringLiteral("Lunch with Ann"));
    doubleClick(7, 2);  // 12:00
    EXPECT_EQ(june(), kBank + kStandupAtNine + Line("D200406050003", "20040605", "1200", "Lunch with Ann"));
    EXPECT_EQ(monthFiles(), (std::vector<std::string>{"D200406.dat", "D200406.dat_NET"}));
}

TEST_F(SavedMonthWindowTest, ReschedulingTheEventClickedAfterASaveMovesThatEvent) {
    editTheStandup();
    click(11, 2);  // 14:00, the bank
    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& dialog = static_cast<frmRescheduleEvent&>(form);
        EXPECT_EQ(dialog.txtDetails.Text(), "Ring the bank");
        EXPECT_EQ(FormatDate(dialog.dtPickDate.Value, "yyyymmdd"), "20040605");
        QTest::mouseClick(ViewOf<OptionButtonWidget>(window, dialog.optMoveAhead(0))->radioButton(), Qt::LeftButton);
        Press(window, dialog.cmdOK);
    });
    MenuEntry(QStringLiteral("&Reschedule this Appointment"))->trigger();
    EXPECT_EQ(june(), kStandupAtNine + kLunch + Line("D200406060001", "20040606", "1400", "Ring the bank"));
    EXPECT_EQ(monthFiles(), (std::vector<std::string>{"D200406.dat", "D200406.dat_NET"}));
}
