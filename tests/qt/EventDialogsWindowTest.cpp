// The windows of the event dialogs: each control where its form puts it, the tabs
// and the details button working through the real widgets, and a screenshot of each
// dialog under screenshots/ for a person to look at.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <memory>

#include "../diary/EventLines.h"
#include "ProgramFixture.h"
#include "ViewTestSupport.h"
#include "config/clsConfigDiary.h"
#include "dialogs/frmDateGenerator.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmEventMultiple.h"
#include "dialogs/frmRescheduleEvent.h"
#include "diary/cDiaryRecord.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "qt/QtText.h"
#include "qt/views/ControlWidget.h"
#include "qt/views/FormWindow.h"
#include "qt/views/RichTextBoxWidget.h"
#include "qt/views/TabStripWidget.h"

namespace orbidex {
namespace {

// Friday 11 June 2004, 10:30 to 11:30 at the dentist's, reminded a quarter before.
const std::string kDentist =
    test::Fields({"D200406110001", "20040611", "Health", "1030", "60", "Visit", "fred", "C:\\docs\\dentist letter.pdf",
                  "", "20040611", "1015", "Normal", "", "High Street Surgery",
                  "Dentist - check-up and clean, bring the insurance card"});

class EventDialogsWindowTest : public test::ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        gCurrentEvent.GetDiaryRecordFromText(kDentist);
        glbConfig.dialogEditing = true;
        gintcur = 0;
        WriteBytes(DataPath() + "locations.txt", "High Street Surgery\r\nOffice\r\nHome\r\n");
    }
    /// The form's window, shown and drawn.
    std::unique_ptr<FormWindow> Show(Form& form) {
        form.Load();
        auto window = std::make_unique<FormWindow>(form);
        window->show();
        test::ProcessEvents();
        return window;
    }
};

TEST_F(EventDialogsWindowTest, TheEventEditorShowsItsTabsAndWidensForTheDetails) {
    frmEditEvent form;
    auto window = Show(form);
    EXPECT_EQ(window->size(), QSize(TwipsToPixels(5600), TwipsToPixels(4400)));
    ControlWidget* details = window->viewOf(form.txtDetails);
    ASSERT_NE(details, nullptr);
    EXPECT_EQ(details->parentWidget(), window->viewOf(form.frameEvents(0)));
    EXPECT_FALSE(window->viewOf(form.DTPicker1)->isVisible()) << "on the second tab";
    EXPECT_TRUE(window->viewOf(form.cmdTemplate)->isEnabled());
    test::SaveScreenshot(*window, QStringLiteral("frmEditEvent"));

    auto* tabs = static_cast<TabStripWidget*>(window->viewOf(form.tabEvent));
    tabs->tabBar()->setCurrentIndex(1);
    test::ProcessEvents();
    EXPECT_TRUE(window->viewOf(form.DTPicker1)->isVisible());
    EXPECT_FALSE(details->isVisible());
    test::SaveScreenshot(*window, QStringLiteral("frmEditEvent-advanced"));

    tabs->tabBar()->setCurrentIndex(0);
    form.cmdDetails.UserClick();
    test::ProcessEvents();
    EXPECT_EQ(window->size(), QSize(TwipsToPixels(9000), TwipsToPixels(3695)));
    EXPECT_EQ(window->viewOf(form.cmdLaunch)->geometry().right(), TwipsToPixels(5640 + 3240) - 1);
    test::SaveScreenshot(*window, QStringLiteral("frmEditEvent-details"));
}

TEST_F(EventDialogsWindowTest, EnterTwiceInTheTextSavesTheEvent) {
    gCurrentEvent.details.clear();
    frmEditEvent form;
    auto window = Show(form);
    QTextEdit* edit = static_cast<RichTextBoxWidget*>(window->viewOf(form.txtDetails))->textEdit();
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("Ring the bank"));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_FALSE(form.IsUnloaded()) << "one Enter starts a new line";
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_EQ(gCurrentEvent.details, "Ring the bank  ");
    EXPECT_TRUE(glbConfig.dataChanged);
}

TEST_F(EventDialogsWindowTest, ANewEventTakesTheFirstKeysIntoItsTextWithoutAClick) {
    glbConfig.dialogEditing = false;
    gCurrentEvent.details.clear();
    frmEditEvent form;
    auto window = Show(form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTextEdit* edit = static_cast<RichTextBoxWidget*>(window->viewOf(form.txtDetails))->textEdit();
    ASSERT_EQ(QApplication::focusWidget(), edit);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Dentist"));
    EXPECT_EQ(form.txtDetails.Text(), "Dentist");
}

TEST_F(EventDialogsWindowTest, TheRescheduleMultiDayAndDateGeneratorWindows) {
    frmRescheduleEvent reschedule;
    frmEventMultiple multiple;
    frmDateGenerator generator;
    auto window = Show(reschedule);
    EXPECT_EQ(window->viewOf(reschedule.optWhen(0))->parentWidget(), window->viewOf(reschedule.fraWhen));
    test::SaveScreenshot(*window, QStringLiteral("frmRescheduleEvent"));

    window = Show(multiple);
    multiple.txtDetails.Text = "Sales conference in Leeds";
    multiple.lvDateList.ListItems.Add("Mon, 07-Jun-04").Tag = "20040607";
    multiple.lvDateList.ListItems.Add("Tue, 08-Jun-04").Tag = "20040608";
    test::ProcessEvents();
    EXPECT_EQ(window->size(), QSize(TwipsToPixels(4200), TwipsToPixels(5000)));
    test::SaveScreenshot(*window, QStringLiteral("frmEventMultiple"));
    multiple.cmdDetails.UserClick();
    test::ProcessEvents();
    test::SaveScreenshot(*window, QStringLiteral("frmEventMultiple-details"));

    window = Show(generator);
    generator.dtPickDate.Value = DateSerial(2004, 1, 15) + TimeSerial(10, 0, 0);
    generator.cmbDays.ListIndex = 4;
    generator.optFinish(1).Value = true;
    generator.cmbLengthUnit.ListIndex = 5;
    generator.Command1.UserClick();
    test::ProcessEvents();
    test::SaveScreenshot(*window, QStringLiteral("frmDateGenerator"));
}

}  // namespace
}  // namespace orbidex
