// The real program in this process with its Qt windows: the options dialog opened
// from the Tools menu over the calendar, each of its tabs as the user sees it, and a
// change made through its widgets read back from the settings file.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTabBar>
#include <QTest>

#include "ProgramWindowFixture.h"
#include "ViewTestSupport.h"
#include "config/frmOptions.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "qt/views/CheckBoxWidget.h"
#include "qt/views/TabStripWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class OptionsWindowTest : public test::ProgramWindowFixture {};

TEST_F(OptionsWindowTest, EachTabOfTheOptionsOverTheCalendar) {
    platform_.OnNextModal([this](Form& form, QWidget& window) {
        auto& options = static_cast<frmOptions&>(form);
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Diary Options"));
        QTabBar* tabs = ViewOf<TabStripWidget>(window, options.tabOpt)->tabBar();
        EXPECT_EQ(tabs->currentIndex(), 2) << "the calendar's tab";
        // Staff and Security come up once the diary may use a server.
        QTest::mouseClick(ViewOf<CheckBoxWidget>(window, options.chkRunLocal)->checkBox(), Qt::LeftButton);
        const char* const names[] = {"data-files", "display", "calendar", "task",
                                     "notes",      "staff",   "security", "advanced"};
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            test::ProcessEvents();
            EXPECT_TRUE(options.frameOpt(i).Visible) << names[i];
            test::SaveScreenshotOver(*main_, window, QStringLiteral("options-") + QString::fromLatin1(names[i]));
        }
        tabs->setCurrentIndex(1);
        QTest::mouseClick(ViewOf<CheckBoxWidget>(window, options.chkShowFolders)->checkBox(), Qt::LeftButton);
        QTest::mouseClick(ViewOf<CheckBoxWidget>(window, options.chkRunLocal)->checkBox(), Qt::LeftButton);
        Press(window, options.cmdOK);
    });
    MenuEntry(QStringLiteral("&Diary Options..."))->trigger();
    std::string ini;
    ReadWholeFile(gStrIniFile, ini);
    EXPECT_NE(InStr(ini, "ShowFolders=1\r\n"), 0);
    EXPECT_TRUE(MainForm().tv.Visible) << "the tree shows at once";
}
