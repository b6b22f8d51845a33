#include <gtest/gtest.h>

#include <QHeaderView>
#include <QListView>
#include <QTest>
#include <QTreeView>

#include "ViewTestSupport.h"
#include "controls/ListView.h"
#include "qt/views/ListViewWidget.h"

namespace orbidex {
namespace {

class ListViewWidgetTest : public ::testing::Test {
protected:
    void SetUp() override {
        lv.ColumnHeaders.Add("Name", 1500);
        lv.ColumnHeaders.Add("Status", 1900);
        for (const char* name : {"fred", "mary", "john"}) lv.ListItems.Add(name, name).SetSubItems(1, "Offline");
        view = std::make_unique<ListViewWidget>(lv);
        view->resize(400, 250);
        view->show();
        test::ProcessEvents();
    }
    QAbstractItemModel& rows() { return *view->itemView()->model(); }
    QString text(int row, int col) { return rows().index(row, col).data().toString(); }
    QPoint rowCentre(int row) { return view->itemView()->visualRect(rows().index(row, 0)).center(); }

    ListView lv{"lvUsers"};
    std::unique_ptr<ListViewWidget> view;
};

TEST_F(ListViewWidgetTest, RowsCellsAndHeadingsFollowTheModel) {
    ASSERT_NE(view->treeView(), nullptr);
    EXPECT_EQ(rows().rowCount(), 3);
    EXPECT_EQ(rows().headerData(1, Qt::Horizontal).toString(), QStringLiteral("Status"));
    EXPECT_EQ(view->treeView()->header()->sectionSize(0), 100);  // 1500 twips

    lv.ListItems(2).SetSubItems(1, "LOGGED ON");
    lv.ListItems(2).Bold = true;
    lv.ListItems(2).ListSubItems(1).ForeColor = vbBlue;
    lv.ListItems.Add("anne");
    test::ProcessEvents();  // a list is drawn again once the program is done filling it
    EXPECT_EQ(rows().rowCount(), 4);
    EXPECT_EQ(text(1, 1), QStringLiteral("LOGGED ON"));
    EXPECT_TRUE(rows().index(1, 0).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(rows().index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));

    lv.SortOrder = lvwDescending;
    lv.Sorted = true;
    test::ProcessEvents();
    EXPECT_EQ(text(0, 0), QStringLiteral("mary"));
    EXPECT_EQ(text(3, 0), QStringLiteral("anne"));
    EXPECT_EQ(view->treeView()->header()->sortIndicatorOrder(), Qt::DescendingOrder);

    lv.ListItems.Clear();
    test::ProcessEvents();
    EXPECT_EQ(rows().rowCount(), 0);
}

TEST_F(ListViewWidgetTest, ClicksAndDoubleClicksOnRowsReachTheHandlers) {
    std::vector<std::string> events;
    lv.onItemClick = [&](ListItem& item) { events.push_back("ItemClick " + item.Text()); };
    lv.onDblClick = [&] { events.push_back("DblClick " + lv.SelectedItem()->Text()); };
    QTest::mouseClick(view->itemView()->viewport(), Qt::LeftButton, {}, rowCentre(1));
    EXPECT_EQ(lv.SelectedItem(), lv.ListItems.Item("mary"));
    QTest::mouseClick(view->itemView()->viewport(), Qt::LeftButton, {}, rowCentre(2));
    QTest::mouseDClick(view->itemView()->viewport(), Qt::LeftButton, {}, rowCentre(2));
    EXPECT_EQ(events.front(), "ItemClick mary");
    EXPECT_EQ(events.back(), "DblClick john");

    lv.ListItems(1).Selected = true;  // the program's choice shows
    test::ProcessEvents();
    EXPECT_TRUE(view->itemView()->selectionModel()->isRowSelected(0, {}));
    EXPECT_FALSE(view->itemView()->selectionModel()->isRowSelected(2, {}));

    // A double click on an empty list reaches the list.
    lv.ListItems.Clear();
    test::ProcessEvents();
    int listDblClicks = 0;
    lv.onDblClick = [&] { ++listDblClicks; };
    QTest::mouseDClick(view->itemView()->viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(listDblClicks, 1);
}

TEST_F(ListViewWidgetTest, TicksAndHeadingClicksReachTheModel) {
    lv.Checkboxes = true;
    std::vector<std::string> ticks;
    lv.onItemCheck = [&](ListItem& item) { ticks.push_back(item.Text() + (item.Checked ? "+" : "-")); };
    long column = 0;
    lv.onColumnClick = [&](ColumnHeader& header) { column = header.Index(); };

    view->itemView()->setCurrentIndex(rows().index(2, 0));
    QTest::keyClick(view->itemView(), Qt::Key_Space);
    EXPECT_EQ(ticks, (std::vector<std::string>{"john+"}));
    EXPECT_TRUE(lv.ListItems(3).Checked);
    lv.ListItems(1).Checked = true;
    test::ProcessEvents();
    EXPECT_EQ(rows().index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);

    QHeaderView* header = view->treeView()->header();
    const QPoint second(header->sectionViewportPosition(1) + header->sectionSize(1) / 2, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(column, 2);
}

TEST_F(ListViewWidgetTest, AListKeptHiddenInAWindowShowsWhatItHoldsWhenItIsShown) {
    QWidget window;
    ListView hidden{"lvDiary"};
    hidden.ColumnHeaders.Add("Event", 2000);
    hidden.Visible = false;
    ListViewWidget placed(hidden, &window);
    window.show();
    for (const char* event : {"Dentist", "Lunch"}) hidden.ListItems.Add(event);
    hidden.ListItems(1).Text = "Dentist at nine";
    test::ProcessEvents();
    EXPECT_FALSE(placed.isVisible());

    hidden.Visible = true;
    test::ProcessEvents();
    ASSERT_TRUE(placed.isVisible());
    ASSERT_NE(placed.itemView(), nullptr);
    QAbstractItemModel& shown = *placed.itemView()->model();
    ASSERT_EQ(shown.rowCount(), 2);
    EXPECT_EQ(shown.index(0, 0).data().toString(), QStringLiteral("Dentist at nine"));
    EXPECT_EQ(shown.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Event"));
}

TEST_F(ListViewWidgetTest, TheIconStyleShowsAFieldOfIcons) {
    lv.View = lvwIcon;
    lv.ListItems(1).Icon = "overview";
    test::ProcessEvents();
    auto* icons = qobject_cast<QListView*>(view->itemView());
    ASSERT_NE(icons, nullptr);
    EXPECT_EQ(icons->viewMode(), QListView::IconMode);
    EXPECT_FALSE(rows().index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(rows().index(1, 0).data(Qt::DecorationRole).isNull());
    std::string clicked;
    lv.onItemClick = [&](ListItem& item) { clicked = item.Key(); };
    QTest::mouseClick(icons->viewport(), Qt::LeftButton, {}, icons->visualRect(rows().index(2, 0)).center());
    EXPECT_EQ(clicked, "john");
}

}  // namespace
}  // namespace orbidex
