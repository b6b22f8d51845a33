// The program's questions on screen: the whole title and the whole text of a message
// box or an input box, whatever their length.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "ViewTestSupport.h"
#include "platform/Platform.h"
#include "qt/QtFormRegistry.h"
#include "qt/QtPlatform.h"

namespace orbidex {
namespace {

// The longest titles the program gives its questions.
const char* const kTitles[] = {
    "Warning the number of events seems a little low to be overwriting such a large file",
    "Path where Brindlewick Software's Diary is installed",
    "Mult-User Event - Notify Others?",
    "Multiple Events in this Timeslot",
};

class MessageBoxTest : public ::testing::Test {
protected:
    /// Runs `look` on the modal box once it is up; the box is then closed.
    static void WhenUp(std::function<void(QDialog&)> look) {
        QTimer::singleShot(0, [look] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            look(*box);
            box->reject();
        });
    }
    /// Wide enough for the title's text with room for the title bar's buttons.
    static bool TitleFits(const QWidget& box) {
        return box.width() >= QFontMetrics(QApplication::font()).horizontalAdvance(box.windowTitle()) + 100;
    }

    QtFormRegistry forms_;
    QtPlatform platform_{forms_};
};

TEST_F(MessageBoxTest, AMessageBoxIsAsWideAsItsTitleAndShowsItsWholeText) {
    const std::string text =
        "DANGER - YOU MAY BE OVERWRITING THE WRONG FILE - PRESS CANCEL TO ABORT (or press OK if you think its ok)";
    for (const char* title : kTitles) {
        WhenUp([&](QDialog& box) {
            EXPECT_TRUE(TitleFits(box)) << title << ": " << box.width();
            const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            ASSERT_NE(label, nullptr);
            EXPECT_EQ(label->text().toStdString(), text);
            EXPECT_TRUE(box.rect().contains(label->geometry())) << title;
            if (std::string(title).size() > 80) test::SaveScreenshot(box, QStringLiteral("message-box-long-title"));
        });
        platform_.MsgBox(text, vbOKCancel, title);
    }
}

TEST_F(MessageBoxTest, AnInputBoxIsAsWideAsItsTitle) {
    WhenUp([](QDialog& box) {
        EXPECT_TRUE(TitleFits(box)) << box.width();
        EXPECT_EQ(static_cast<QInputDialog&>(box).textValue(), QStringLiteral("C:\\Program Files\\brindlewick"));
    });
    EXPECT_EQ(platform_.InputBox("Please enter the folder", kTitles[1], "C:\\Program Files\\brindlewick"), "");
}

}  // namespace
}  // namespace orbidex
