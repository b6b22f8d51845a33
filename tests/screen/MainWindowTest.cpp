// The real start-up in this process, with the Qt window of the main form: a data
// folder with a user's events, the views a user browses, screenshots of each.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QToolBar>
#include <tuple>
#include <vector>

#include "EventLines.h"
#include "ProgramWindowFixture.h"
#include "ViewTestSupport.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "qt/ProgramIcons.h"
#include "qt/QtText.h"
#include "qt/views/MonthCalendar.h"
#include "qt/views/StatusBarWidget.h"
#include "qt/views/ToolbarWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// An event line of a monthly file: an office call.
std::string eventLine(const std::string& id, const std::string& date, const std::string& time,
                      const std::string& length, const std::string& details) {
    return test::Fields({id, date, "Office", time, length, "Call", "", "", "", "", "", "Normal", "", "", details}) +
           "\r\n";
}

// True when the icon gives a picture with at least one pixel that is not transparent.
bool Drawn(const QIcon& icon) {
    const QImage image = icon.pixmap(24, 24).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0) return true;
    return false;
}

class MainWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override {
        WriteWholeFile(data_ + "D200405.dat", eventLine("D200405310001", "20040531", "1400", "60", "Month end report"));
        WriteWholeFile(data_ + "D200406.dat",
                       eventLine("D200406010001", "20040601", "0900", "30", "Team stand-up") +
                           eventLine("D200406050001", "20040605", "0930", "90", "Dentist") +
                           eventLine("D200406050002", "20040605", "1400", "30", "Ring the bank") +
                           eventLine("D200406070001", "20040607", "1100", "60", "Budget review") +
                           eventLine("D200406140001", "20040614", "1000", "45", "Supplier visit") +
                           eventLine("D200406220001", "20040622", "1530", "30", "Dinner booking"));
    }

    FormWindow& window() { return *static_cast<FormWindow*>(main_); }
    frmClientDiaryMain& form() { return MainForm(); }
    std::string heading() { return FromQString(window().viewOf(form().lblHeading)->findChild<QLabel*>()->text()); }
    std::string panel(long index) {
        return FromQString(ViewOf<StatusBarWidget>(window(), form().status)->panelLabel(index)->text());
    }
    QAction* buttonAction(const std::string& key) {
        return ViewOf<ToolbarWidget>(window(), form().Toolbar1)->actionOf(form().Toolbar1.Buttons.Item(key));
    }
    /// A menu entry as "enabled", "disabled" or "missing", with "ticked" and its shortcut.
    static std::string state(const QAction* action) {
        if (action == nullptr) return "missing";
        std::string shown = action->isEnabled() ? "enabled" : "disabled";
        if (action->isChecked()) shown += " ticked";
        if (!action->shortcut().isEmpty()) shown += " " + FromQString(action->shortcut().toString());
        return shown;
    }
    /// The entry of a menu of the menu bar, by their captions.
    QAction* entry(const QString& menu, const QString& caption) { return MenuEntry(caption, menu); }
    void show(const QString& screenshot) {
        test::ProcessEvents();
        test::SaveScreenshot(window(), screenshot);
    }
};

}  // namespace

TEST_F(MainWindowTest, TheUserBrowsesTheDiaryByDayWeekFortnightAndMonth) {
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Events - Brindlewick Software's Orbidex"));
    // The month calendar has the keyboard when the window opens.
    bool calendarHasFocus = false;
    for (QWidget* w = QApplication::focusWidget(); w != nullptr; w = w->parentWidget())
        calendarHasFocus = calendarHasFocus || qobject_cast<MonthCalendar*>(w) != nullptr;
    EXPECT_TRUE(calendarHasFocus);
    EXPECT_EQ(
        std::make_tuple(heading(), panel(1), panel(2)),
        std::make_tuple("  Events for Saturday, 5-Jun-2004", "Viewing 5-Jun-04 ", "2 hr 0 min   spent on 2 events  "));
    // 09:30 is the second slot; the 90 minutes shade the two slots below it.
    FlexGrid& grid = form().gridDays;
    EXPECT_EQ(grid.TextMatrix(2, 2), "Dentist");
    grid.Row = 3;
    grid.Col = 2;
    EXPECT_EQ(grid.CellBackColor(), static_cast<OleColor>(glbConfig.spanning_BackColor));
    show(QStringLiteral("main-day-grid"));

    const struct {
        QAction* action;
        long days;
        std::string heading, panel1, panel2;
        std::vector<std::pair<long, std::string>> column2;  ///< row and text of the first day's column
        QString screenshot;
    } views[] = {
        {buttonAction("week"),
         7,
         "  Events for Week beginning 31-May-2004",
         "Viewing Week beginning 31-May-04",
         "3 hr 30 min   spent on 4 events  ",
         {{0, "Mon-31"}, {11, "Month end report"}},  // 14:00, from May's file
         QStringLiteral("main-week-grid")},
        {entry(QStringLiteral("&View"), QStringLiteral("Fortnightly View")),
         14,
         "  Events for Month of Jun-2004",
         "Viewing June-2004",
         "4 hr 15 min   spent on 5 events  ",
         {},
         QStringLiteral("main-fortnight-grid")},
        // The heading of a month's first column is the last day of the month before.
        {buttonAction("month"),
         31,
         "  Events for Month of Jun-2004",
         "Viewing June-2004",
         "4 hr 45 min   spent on 6 events  ",
         {{0, "31"}, {1, "Team stand-up"}},
         QStringLiteral("main-month-grid")},
    };
    for (const auto& v : views) {
        SCOPED_TRACE(v.days);
        ASSERT_NE(v.action, nullptr);
        v.action->trigger();
        EXPECT_EQ(glbConfig.DayWeekMonth, v.days);
        EXPECT_TRUE(v.action->isChecked());
        EXPECT_EQ(std::make_tuple(heading(), panel(1), panel(2)), std::make_tuple(v.heading, v.panel1, v.panel2));
        for (const auto& [row, text] : v.column2) EXPECT_EQ(grid.TextMatrix(row, 2), text) << row;
        show(v.screenshot);
    }

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
    EXPECT_EQ(std::make_tuple(FromQString(window().windowTitle()), heading(), panel(2)),
              std::make_tuple("Notes - Brindlewick Software's Orbidex", "  Notes", "NOTE"));
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
    EXPECT_EQ(state(entry(QStringLiteral("&File"), QStringLiteral("Print ..."))), "enabled Ctrl+P");
    EXPECT_EQ(state(entry(QStringLiteral("&Beta"), QStringLiteral("Enforce Confirm save from server"))), "enabled")
        << "not ticked at start";
    EXPECT_EQ(state(entry(QStringLiteral("&View"), QStringLiteral("&Refresh"))), "enabled F5");

    EXPECT_TRUE(buttonAction("new")->isEnabled());
    EXPECT_TRUE(buttonAction("Find")->isEnabled());
    EXPECT_EQ(buttonAction("print")->text(), QStringLiteral("Print   "));
    EXPECT_EQ(buttonAction("print")->toolTip(), QStringLiteral("Print the current view"));
    // The program's own icons, not the tiles of unknown names.
    EXPECT_EQ(buttonAction("print")->icon().cacheKey(), ProgramIcon("print").cacheKey());
    EXPECT_EQ(buttonAction("new")->icon().cacheKey(), ProgramIcon("calendar").cacheKey());
    // Every icon of the tool bar and the shortcut bar can be drawn: the drawings need
    // Qt's SVG image plugin on the machine.
    for (QAction* action : ViewOf<ToolbarWidget>(window(), form().Toolbar1)->toolBar()->actions()) {
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
