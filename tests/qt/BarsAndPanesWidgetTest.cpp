// Tool bars, status bars, trees, timers and the browser pane.
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QTimer>
#include <QTimerEvent>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include "ProgramFixture.h"
#include "ViewTestSupport.h"
#include "controls/StatusBar.h"
#include "controls/Timer.h"
#include "controls/Toolbar.h"
#include "controls/TreeView.h"
#include "controls/WebBrowser.h"
#include "foundation/ProgramState.h"
#include "qt/views/StatusBarWidget.h"
#include "qt/views/TimerWidget.h"
#include "qt/views/ToolbarWidget.h"
#include "qt/views/TreeViewWidget.h"
#include "qt/views/WebBrowserWidget.h"
#include "screen/HtmlHeader.h"

namespace orbidex {
namespace {

TEST(ToolbarWidgetTest, ButtonsShowTheirStateAndClicksReachTheModel) {
    Toolbar bar("Toolbar1");
    Button& add = bar.Buttons.Add("new", "New     ", tbrDropdown, "calendar");
    add.AddButtonMenu("Event");
    add.AddButtonMenu("Meeting");
    for (const char* key : {"days", "week", "month"}) bar.Buttons.Add(key, key, tbrButtonGroup, key);
    bar.Buttons("week").Value = tbrPressed;
    auto view = test::Shown<ToolbarWidget>(bar, QSize(500, 200));
    std::vector<std::string> clicks;
    bar.onButtonClick = [&](Button& b) { clicks.push_back(b.Key); };
    bar.onButtonMenuClick = [&](ButtonMenu& m) { clicks.push_back(m.Text); };

    QAction* days = view->actionOf(bar.Buttons.Item("days"));
    QAction* week = view->actionOf(bar.Buttons.Item("week"));
    EXPECT_TRUE(week->isChecked());
    QTest::mouseClick(view->toolBar()->widgetForAction(days), Qt::LeftButton);
    EXPECT_EQ(bar.Buttons("days").Value, tbrPressed);
    EXPECT_TRUE(days->isChecked());
    EXPECT_FALSE(week->isChecked()) << "the group releases the others";

    view->actionOf(&add)->menu()->actions()[1]->trigger();
    EXPECT_EQ(clicks, (std::vector<std::string>{"days", "Meeting"}));

    bar.Buttons("month").Visible = false;
    bar.Buttons("new").Image = "task";
    bar.Buttons("new").ToolTipText = "Add a new item";
    EXPECT_FALSE(view->actionOf(bar.Buttons.Item("month"))->isVisible());
    EXPECT_EQ(view->actionOf(&add)->toolTip(), QStringLiteral("Add a new item"));
    bar.Buttons.Add("refresh", "Server  ");
    EXPECT_NE(view->actionOf(bar.Buttons.Item("refresh")), nullptr);
}

TEST(StatusBarWidgetTest, PanelsShowTheirTextsAndASpringTakesTheRoom) {
    StatusBar status("status");
    status.Panels(1).AutoSize = sbrSpring;
    status.Panels.Add("CALENDAR").Width = 1500;
    auto view = test::Shown<StatusBarWidget>(status, QSize(500, 200));
    status.Panels(1).Text = "Connected to the Diary Server as fred";
    EXPECT_EQ(view->panelLabel(1)->text(), QStringLiteral("Connected to the Diary Server as fred"));
    EXPECT_EQ(view->panelLabel(2)->text(), QStringLiteral("CALENDAR"));
    EXPECT_GT(view->panelLabel(1)->width(), view->panelLabel(2)->width());
    status.Style = sbrSimple;
    status.SimpleText = "Searching...";
    EXPECT_FALSE(view->panelLabel(1)->isVisible());
}

TEST(TreeViewWidgetTest, NodesShowUnderTheirParentsAndClicksReachTheModel) {
    TreeView tv("tv");
    tv.Nodes.Add("", tvwLast, "HOME", "Home", "leaf");
    tv.Nodes.Add("HOME", tvwChild, "CALENDAR", "My Diary", "calendar");
    tv.Nodes.Add("HOME", tvwChild, "TASK", "Tasks", "task");
    tv.Nodes.Item("HOME")->Expanded = true;
    auto view = test::Shown<TreeViewWidget>(tv, QSize(500, 200));
    QTreeWidgetItem* home = view->itemOf(tv.Nodes.Item("HOME"));
    ASSERT_NE(home, nullptr);
    EXPECT_EQ(home->childCount(), 2);
    EXPECT_EQ(home->child(1)->text(0), QStringLiteral("Tasks"));

    std::string clicked;
    tv.onNodeClick = [&](Node& node) { clicked = node.Key(); };
    QTreeWidgetItem* task = view->itemOf(tv.Nodes.Item("TASK"));
    QTest::mouseClick(view->treeWidget()->viewport(), Qt::LeftButton, {},
                      view->treeWidget()->visualItemRect(task).center());
    EXPECT_EQ(clicked, "TASK");
    EXPECT_EQ(tv.SelectedItem(), tv.Nodes.Item("TASK"));

    tv.Nodes.Item("CALENDAR")->Selected = true;
    test::ProcessEvents();
    EXPECT_EQ(view->treeWidget()->currentItem(), view->itemOf(tv.Nodes.Item("CALENDAR")));
    std::string collapsed;
    tv.onCollapse = [&](Node& node) { collapsed = node.Key(); };
    view->treeWidget()->collapseItem(home);
    EXPECT_EQ(collapsed, "HOME");
    EXPECT_FALSE(tv.Nodes.Item("HOME")->Expanded);
}

TEST(TimerWidgetTest, TheClockRunsWhileTheTimerIsEnabled) {
    Timer timer("timerSecond");
    auto view = test::Shown<TimerWidget>(timer, QSize(500, 200));
    EXPECT_FALSE(view->clock()->isActive()) << "no interval yet";
    timer.Interval = 250;
    EXPECT_TRUE(view->clock()->isActive());
    EXPECT_EQ(view->clock()->interval(), 250);
    int ticks = 0;
    timer.onTimer = [&] { ++ticks; };
    QTimerEvent tick(view->clock()->timerId());
    QCoreApplication::sendEvent(view->clock(), &tick);
    EXPECT_EQ(ticks, 1);
    timer.Enabled = false;
    EXPECT_FALSE(view->clock()->isActive());
    EXPECT_FALSE(view->isVisible());
}

class WebBrowserWidgetTest : public test::ProgramFixture {};

TEST_F(WebBrowserWidgetTest, APageOfTheProgramIsShownAndShownAnewWhenRewritten) {
    WebBrowser web("web");
    auto view = test::Shown<WebBrowserWidget>(web, QSize(500, 200));
    const std::string page = Stored("data\\D200406.html");
    WriteBytes(page, "<html><body><a name=\"day20040605\"></a><p>Dentist at 0930, Caf\xE9 Rouge</p></body></html>");
    web.Navigate2(page + "#day20040605");
    EXPECT_TRUE(view->browser()->toPlainText().contains(QString::fromUtf8("Dentist at 0930, Caf\xC3\xA9 Rouge")));
    EXPECT_EQ(web.LocationURL(), page + "#day20040605");

    WriteBytes(page, "<html><body><p>Team meeting at 1000</p></body></html>");
    web.Navigate2(page);
    EXPECT_TRUE(view->browser()->toPlainText().contains(QStringLiteral("Team meeting")));

    web.Navigate2("http://www.example.com/");
    EXPECT_TRUE(view->browser()->toPlainText().contains(QStringLiteral("http://www.example.com/")));
}

TEST_F(WebBrowserWidgetTest, AProgramPageIsDrawnWithItsStyleAndItsLinksLeadOn) {
    gStrDataPath = Stored("data\\");
    WebBrowser web("web");
    auto view = test::Shown<WebBrowserWidget>(web, QSize(600, 300));
    const std::string page = Stored("data\\overview.htm");
    WriteBytes(page,
               GetHtmlHeader(" Overview -  Sat, 5-Jun-2004") +
                   "<H3>Events for Today</h3>\r\n<TABLE border=0 width=100% valign=top bgcolor=white>\r\n"
                   "<TR><td  valign=top width=15%>0900</td><td valign=top width=70%>See "
                   "<a href=\"D200406.html#day20040605\">the day</a></td></tr>\r\n</table>\r\n</BODY></HTML>\r\n");
    web.Navigate2(page);
    QTextDocument& document = *view->browser()->document();

    // The title is a heading larger than the table's text, which stands in its cells.
    const QTextCursor title = document.find(QStringLiteral("Overview"));
    const QTextCursor time = document.find(QStringLiteral("0900"));
    ASSERT_FALSE(title.isNull());
    ASSERT_FALSE(time.isNull());
    EXPECT_GT(title.charFormat().font().pointSizeF(), time.charFormat().font().pointSizeF());
    EXPECT_NE(time.currentTable(), nullptr);

    // The link is drawn in the style's colour, and a click on it goes to the day's page.
    const QTextCursor link = document.find(QStringLiteral("the day"));
    ASSERT_FALSE(link.isNull());
    EXPECT_TRUE(link.charFormat().isAnchor());
    EXPECT_EQ(link.charFormat().foreground().color(), QColor(Qt::blue));
    QTextCursor inside = link;
    inside.setPosition(link.selectionStart() + 2);
    QTest::mouseClick(view->browser()->viewport(), Qt::LeftButton, {}, view->browser()->cursorRect(inside).center());
    EXPECT_EQ(web.LocationURL(), Stored("data\\D200406.html#day20040605"));
}

}  // namespace
}  // namespace orbidex
