// The real start-up in this process, with the Qt window of the main form: a data
// folder with a user's events, the views a user browses, screenshots of each.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QToolBar>

#include "TempFolder.h"
#include "ViewTestSupport.h"
#include "WindowTestPlatform.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/modMain.h"
#include "qt/MainWindow.h"
#include "qt/ProgramIcons.h"
#include "qt/QtFormRegistry.h"
#include "qt/QtPlatform.h"
#include "qt/QtText.h"
#include "qt/views/MonthCalendar.h"
#include "qt/views/StatusBarWidget.h"
#include "qt/views/ToolbarWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// An event line of a monthly file: the 15 fields, each closed by 0x1F.
std::string eventLine(const std::string& id, const std::string& date, const std::string& time,
                      const std::string& length, const std::string& details) {
    const std::string f = "\x1F";
    return id + f + date + f + "Office" + f + time + f + length + f + "Call" + f + f + f + f + f + f + "Normal" + f +
           f + f + details + f + "\r\n";
}

// True when the icon gives a picture with at least one pixel that is not transparent.
bool Drawn(const QIcon& icon) {
    const QImage image = icon.pixmap(24, 24).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0) return true;
    return false;
}

class MainWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ResetProgramState();
        const std::string data = folder_.Stored() + "\\data\\";
        MakeFolder(data);
        WriteWholeFile(data + "D200405.dat", eventLine("D200405310001", "20040531", "1400", "60", "Month end report"));
        WriteWholeFile(data + "D200406.dat",
                       eventLine("D200406010001", "20040601", "0900", "30", "Team stand-up") +
                           eventLine("D200406050001", "20040605", "0930", "90", "Dentist") +
                           eventLine("D200406050002", "20040605", "1400", "30", "Ring the bank") +
                           eventLine("D200406070001", "20040607", "1100", "60", "Budget review") +
                           eventLine("D200406140001", "20040614", "1000", "45", "Supplier visit") +
                           eventLine("D200406220001", "20040622", "1530", "30", "Dinner booking"));
        RegisterProgramWindows(forms_);
        SetPlatform(&platform_);
        modMain("LOCAL");
        window_ = platform_.WindowOf(MainForm());
        ASSERT_NE(window_, nullptr);
        window_->resize(1100, 720);
        test::ProcessEvents();
    }
    void TearDown() override {
        ResetProgramState();
        test::ProcessEvents();
        SetPlatform(nullptr);
    }

    MainWindow& window() { return *static_cast<MainWindow*>(window_); }
    frmClientDiaryMain& form() { return MainForm(); }
    std::string heading() { return FromQString(window().viewOf(form().lblHeading)->findChild<QLabel*>()->text()); }
    std::string panel(long index) {
        auto* bar = static_cast<StatusBarWidget*>(window().viewOf(form().status));
        return FromQString(bar->panelLabel(index)->text());
    }
    QAction* buttonAction(const std::string& key) {
        auto* bar = static_cast<ToolbarWidget*>(window().viewOf(form().Toolbar1));
        return bar->actionOf(form().Toolbar1.Buttons.Item(key));
    }
    /// The entry of a menu of the menu bar, by their captions.
    QAction* entry(const QString& menu, const QString& caption) {
        for (QAction* top : window().menuBar()->actions()) {
            if (top->text() != menu || top->menu() == nullptr) continue;
            for (QAction* action : top->menu()->actions())
                if (action->text() == caption) return action;
        }
        return nullptr;
    }
    void show(const QString& screenshot) {
        test::ProcessEvents();
        test::SaveScreenshot(window(), screenshot);
    }

    test::TempFolder folder_;
    QtFormRegistry forms_;
    test::WindowTestPlatform platform_{forms_, folder_.Stored()};
    QWidget* window_ = nullptr;
};

}  // namespace

TEST_F(MainWindowTest, TheUserBrowsesTheDiaryByDayWeekFortnightAndMonth) {
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Events - Brindlewick Software's Orbidex"));
    // The month calendar has the keyboard when the window opens.
    bool calendarHasFocus = false;
    for (QWidget* w = QApplication::focusWidget(); w != nullptr; w = w->parentWidget())
        calendarHasFocus = calendarHasFocus || qobject_cast<MonthCalendar*>(w) != nullptr;
    EXPECT_TRUE(calendarHasFocus);
    EXPECT_EQ(heading(), "  Events for Saturday, 5-Jun-2004");
    EXPECT_EQ(panel(1), "Viewing 5-Jun-04 ");
    EXPECT_EQ(panel(2), "2 hr 0 min   spent on 2 events  ");
    // 09:30 is the second slot; the 90 minutes shade the two slots below it.
    FlexGrid& grid = form().gridDays;
    EXPECT_EQ(grid.TextMatrix(2, 2), "Dentist");
    grid.Row = 3;
    grid.Col = 2;
    EXPECT_EQ(grid.CellBackColor(), static_cast<OleColor>(glbConfig.spanning_BackColor));
    show(QStringLiteral("main-day-grid"));

    buttonAction("week")->trigger();
    EXPECT_EQ(glbConfig.DayWeekMonth, 7);
    EXPECT_TRUE(buttonAction("week")->isChecked());
    EXPECT_EQ(heading(), "  Events for Week beginning 31-May-2004");
    EXPECT_EQ(panel(1), "Viewing Week beginning 31-May-04");
    EXPECT_EQ(panel(2), "3 hr 30 min   spent on 4 events  ");
    EXPECT_EQ(grid.TextMatrix(0, 2), "Mon-31");
    EXPECT_EQ(grid.TextMatrix(11, 2), "Month end report");  // 14:00, from May's file
    show(QStringLiteral("main-week-grid"));

    QAction* fortnight = entry(QStringLiteral("&View"), QStringLiteral("Fortnightly View"));
    ASSERT_NE(fortnight, nullptr);
    fortnight->trigger();
    EXPECT_EQ(glbConfig.DayWeekMonth, 14);
    EXPECT_TRUE(fortnight->isChecked());
    EXPECT_EQ(heading(), "  Events for Month of Jun-2004");
    EXPECT_EQ(panel(2), "4 hr 15 min   spent on 5 events  ");
    show(QStringLiteral("main-fortnight-grid"));

    buttonAction("month")->trigger();
    EXPECT_EQ(glbConfig.DayWeekMonth, 31);
    EXPECT_EQ(heading(), "  Events for Month of Jun-2004");
    EXPECT_EQ(panel(1), "Viewing June-2004");
    EXPECT_EQ(panel(2), "4 hr 45 min   spent on 6 events  ");
    // The heading of a month's first column is the last day of the month before.
    EXPECT_EQ(grid.TextMatrix(0, 2), "31");
    EXPECT_EQ(grid.TextMatrix(1, 2), "Team stand-up");
    show(QStringLiteral("main-month-grid"));

    buttonAction("days")->trigger();
    buttonAction("list")->trigger();
    show(QStringLiteral("main-day-list"));
    EXPECT_FALSE(window().viewOf(form().gridDays)->isVisible());
    EXPECT_TRUE(window().viewOf(form().lvDiary)->isVisible());
    ListView& list = form().lvDiary;
    ASSERT_EQ(list.ListItems.Count(), 2);
    EXPECT_EQ(list.ListItems(1).Key(), "D200406050001");
    EXPECT_EQ(list.ListItems(2).SubItems(list.ColumnHeaders.Count() - 1), "Ring the bank");
    EXPECT_EQ(panel(2), "2 hr 0 min   spent on 2 events  ");
}

TEST_F(MainWindowTest, TheOtherModesAndTheBrowserPane) {
    glbConfig.ShowFolders = "1";  // the tree beside the shortcut bar
    const QString view = QStringLiteral("&View");
    ASSERT_NE(entry(view, QStringLiteral("&Notes")), nullptr);
    entry(view, QStringLiteral("&Notes"))->trigger();
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Notes - Brindlewick Software's Orbidex"));
    EXPECT_EQ(heading(), "  Notes");
    EXPECT_EQ(panel(2), "NOTE");
    show(QStringLiteral("main-notes"));

    entry(view, QStringLiteral("&Calendar"))->trigger();
    buttonAction("week")->trigger();
    entry(view, QStringLiteral("Read Past Diary notes in Browser"))->trigger();
    EXPECT_TRUE(window().viewOf(form().web)->isVisible());
    EXPECT_TRUE(window().viewOf(form().imgVert)->isVisible());
    show(QStringLiteral("main-week-browser"));
}

TEST_F(MainWindowTest, MenusToolBarAndIcons) {
    QStringList bar;
    for (QAction* action : window().menuBar()->actions())
        if (action->isVisible()) bar << action->text();
    EXPECT_EQ(bar, (QStringList{"&File", "&Appointments", "&Tasks", "&Notes", "&Search", "&View", "T&ools", "Se&rver",
                                "&Beta", "&Help"}));
    QAction* print = entry(QStringLiteral("&File"), QStringLiteral("Print ..."));
    ASSERT_NE(print, nullptr);
    EXPECT_TRUE(print->isEnabled());
    EXPECT_EQ(print->shortcut(), QKeySequence(QStringLiteral("Ctrl+P")));
    QAction* enforce = entry(QStringLiteral("&Beta"), QStringLiteral("Enforce Confirm save from server"));
    ASSERT_NE(enforce, nullptr);
    EXPECT_TRUE(enforce->isEnabled());
    EXPECT_FALSE(enforce->isChecked()) << "off at start";
    EXPECT_EQ(entry(QStringLiteral("&View"), QStringLiteral("&Refresh"))->shortcut(),
              QKeySequence(QStringLiteral("F5")));

    EXPECT_TRUE(buttonAction("new")->isEnabled());
    EXPECT_TRUE(buttonAction("Find")->isEnabled());
    EXPECT_EQ(buttonAction("print")->text(), QStringLiteral("Print   "));
    EXPECT_EQ(buttonAction("print")->toolTip(), QStringLiteral("Print the current view"));
    // The program's own icons, not the tiles of unknown names.
    EXPECT_EQ(buttonAction("print")->icon().cacheKey(), ProgramIcon("print").cacheKey());
    EXPECT_EQ(buttonAction("new")->icon().cacheKey(), ProgramIcon("calendar").cacheKey());
    // Every icon of the tool bar and the shortcut bar can be drawn: the drawings need
    // Qt's SVG image plugin on the machine.
    auto* tools = static_cast<ToolbarWidget*>(window().viewOf(form().Toolbar1));
    for (QAction* action : tools->toolBar()->actions()) {
        if (action->isVisible() && !action->isSeparator()) {
            EXPECT_TRUE(Drawn(action->icon())) << action->text().toStdString();
        }
    }
    ASSERT_GT(form().lvView.ListItems.Count(), 0);
    for (long i = 1; i <= form().lvView.ListItems.Count(); ++i) {
        const std::string icon = form().lvView.ListItems(i).Icon;
        EXPECT_TRUE(Drawn(ProgramIcon(icon))) << icon;
    }

    // A print of the day view is a page in the data folder, and its preview.
    buttonAction("print")->trigger();
    EXPECT_TRUE(platform_.documents.empty());
    EXPECT_TRUE(FileExists(folder_.Stored() + "\\data\\Diary Events.htm"));
    EXPECT_EQ(platform_.printed, std::vector<std::string>{"Events for Saturday, 5-Jun-2004"});
}
