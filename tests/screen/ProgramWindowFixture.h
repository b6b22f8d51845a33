#pragma once
// The real program in the test's process with its Qt windows: a temporary program
// folder whose data folder the test fills first, the start-up of the "LOCAL" kind,
// the main window at 1100 by 720, and helpers to act on the windows' widgets.

#include <gtest/gtest.h>

#include <QAction>
#include <QString>
#include <QWidget>
#include <string>

#include "TempFolder.h"
#include "WindowTestPlatform.h"
#include "qt/QtFormRegistry.h"
#include "qt/views/FormWindow.h"

namespace orbidex {
class CommandButton;
class Control;
}  // namespace orbidex

namespace orbidex::test {

class ProgramWindowFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    /// Writes the user's files into data_ before the program starts.
    virtual void WriteData() {}

    /// The view of a control of a form's window.
    template <typename View>
    static View* ViewOf(QWidget& window, const Control& control) {
        return static_cast<View*>(static_cast<FormWindow&>(window).viewOf(control));
    }
    /// A click on the button's widget.
    static void Press(QWidget& window, const CommandButton& button);
    /// The entry of the main window's menus with that caption (under the menu of
    /// that caption, when one is given), or null.
    QAction* MenuEntry(const QString& caption, const QString& menu = {});

    TempFolder folder_;
    std::string data_;  ///< the data folder, stored form with its "\"
    QtFormRegistry forms_;
    WindowTestPlatform platform_{forms_, folder_.Stored()};
    QWidget* main_ = nullptr;
};

}  // namespace orbidex::test
