#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

#include "ViewTestSupport.h"
#include "controls/FlexGrid.h"
#include "controls/KeyCodes.h"
#include "controls/Label.h"
#include "qt/QtText.h"
#include "qt/views/FlexGridWidget.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {
namespace {

class FlexGridWidgetTest : public ::testing::Test {
protected:
    void SetUp() override {
        grid.Rows = 30;
        grid.Cols = 5;
        grid.FixedRows = 1;
        grid.FixedCols = 2;
        view = std::make_unique<FlexGridWidget>(grid);
        view->resize(500, 300);
        view->show();
        test::ProcessEvents();
    }
    QWidget& viewport() { return *view->viewport(); }
    QPoint centre(long row, long col) { return view->cellRect(row, col).center(); }

    FlexGrid grid{"gridDays"};
    std::unique_ptr<FlexGridWidget> view;
};

TEST_F(FlexGridWidgetTest, CellColoursAndSizesOfTheModelAreDrawn) {
    grid.Row = 3;
    grid.Col = 3;
    grid.CellBackColor = 0x80FF80;
    EXPECT_EQ(test::ColorAt(viewport(), centre(3, 3)), ToQColor(0x80FF80));
    EXPECT_EQ(test::ColorAt(viewport(), centre(3, 4)), ToQColor(vbWindowBackground));

    grid.SetRowHeight(4, 900);
    grid.SetColWidth(2, 1500);
    EXPECT_EQ(view->cellRect(4, 2).height(), TwipsToPixels(900));
    EXPECT_EQ(view->cellRect(4, 2).width(), TwipsToPixels(1500));
    grid.SetRowHeight(4, 0);
    EXPECT_EQ(view->cellRect(4, 2).height(), 0);
    EXPECT_EQ(view->cellRect(5, 2).top(), view->cellRect(4, 2).top()) << "a hidden row takes no room";
}

TEST_F(FlexGridWidgetTest, AClickMakesTheCellCurrentBeforeMouseDownAndClicks) {
    std::vector<std::string> events;
    grid.onMouseDown = [&](int button, int, long x, long y) {
        events.push_back("MouseDown " + std::to_string(button) + " at " + std::to_string(grid.Row) + "," +
                         std::to_string(grid.Col));
        EXPECT_GT(x, 0);
        EXPECT_GT(y, 0);
    };
    grid.onClick = [&] { events.push_back("Click"); };
    grid.onDblClick = [&] {
        events.push_back("DblClick " + std::to_string(grid.MouseRow) + "," + std::to_string(grid.MouseCol));
    };

    QTest::mouseClick(&viewport(), Qt::LeftButton, {}, centre(5, 3));
    EXPECT_EQ(grid.Row, 5);
    EXPECT_EQ(grid.Col, 3);
    QTest::mouseDClick(&viewport(), Qt::LeftButton, {}, centre(6, 4));
    EXPECT_EQ(events.front(), "MouseDown 1 at 5,3");
    EXPECT_EQ(events[1], "Click");
    EXPECT_EQ(events.back(), "DblClick 6,4");

    QTest::mouseClick(&viewport(), Qt::LeftButton, {}, centre(0, 3));  // a heading: the current cell stays
    EXPECT_EQ(grid.Row, 6);
}

TEST_F(FlexGridWidgetTest, ArrowKeysMoveTheCurrentCellUnlessKeyDownEatsThem) {
    grid.Row = 2;
    grid.Col = 2;
    std::vector<int> keys;
    grid.onKeyDown = [&](int& code, int) {
        keys.push_back(code);
        if (code == vbKeyUp) code = 0;
    };
    QTest::keyClick(view->area(), Qt::Key_Down);
    QTest::keyClick(view->area(), Qt::Key_Right);
    QTest::keyClick(view->area(), Qt::Key_Up);
    EXPECT_EQ(keys, (std::vector<int>{vbKeyDown, vbKeyRight, vbKeyUp}));
    EXPECT_EQ(grid.Row, 3);
    EXPECT_EQ(grid.Col, 3);

    QTest::keyClick(view->area(), Qt::Key_PageDown);
    EXPECT_TRUE(grid.RowIsVisible(grid.Row)) << "the grid scrolls to the current cell";
    EXPECT_GT(grid.TopRow, 1);
}

TEST_F(FlexGridWidgetTest, ScrollingMovesTheRowsUnderTheFixedOnesBothWays) {
    grid.TopRow = 10;
    EXPECT_TRUE(view->cellRect(5, 2).isEmpty());
    EXPECT_EQ(view->cellRect(10, 2).top(), view->cellRect(0, 2).bottom() + 1);
    EXPECT_EQ(view->area()->verticalScrollBar()->value(), 10);

    view->area()->verticalScrollBar()->setValue(4);  // the user drags the scroll bar
    EXPECT_EQ(grid.TopRow, 4);
}

TEST_F(FlexGridWidgetTest, ADropOfAControlNamesTheCellUnderThePointer) {
    Label source("lvCat");
    long dropRow = -1;
    long dropCol = -1;
    std::string from;
    grid.onDragDrop = [&](Control& control, long, long) {
        from = control.Name();
        dropRow = grid.MouseRow;
        dropCol = grid.MouseCol;
    };
    EXPECT_TRUE(test::DropControl(source, viewport(), centre(7, 4)));
    EXPECT_EQ(from, "lvCat");
    EXPECT_EQ(dropRow, 7);
    EXPECT_EQ(dropCol, 4);

    // Text from another program names its cell too.
    grid.OLEDropMode = vbOLEDropManual;
    std::string text;
    grid.onOLEDragDrop = [&](const DataObject& data) {
        text = data.Text;
        dropRow = grid.MouseRow;
        dropCol = grid.MouseCol;
    };
    QMimeData mime;
    mime.setText(QStringLiteral("Lunch"));
    EXPECT_TRUE(test::DragAndDrop(viewport(), centre(5, 3), mime));
    EXPECT_EQ(text, "Lunch");
    EXPECT_EQ(dropRow, 5);
    EXPECT_EQ(dropCol, 3);
}

}  // namespace
}  // namespace orbidex
