#include "controls/FlexGrid.h"

#include <gtest/gtest.h>

namespace orbidex {
namespace {

// A grid laid out like the week view: a heading row, hour and minute columns.
class FlexGridTest : public ::testing::Test {
protected:
    void SetUp() override {
        grid.Rows = 6;
        grid.Cols = 5;
        grid.FixedRows = 1;
        grid.FixedCols = 2;
    }
    FlexGrid grid{"gridDays"};
};

TEST_F(FlexGridTest, FillSingleTouchesOnlyTheSelectedCell) {
    grid.BackColor = 0x00F4F4F0;
    grid.Row = 3;
    grid.Col = 2;
    grid.FillStyle = flexFillSingle;
    grid.CellBackColor = 0x00FF00;
    grid.CellFontBold = true;
    grid.Text = "Dentist";

    EXPECT_EQ(grid.EffectiveStyle(3, 2).backColor, 0x00FF00u);
    EXPECT_TRUE(grid.EffectiveStyle(3, 2).fontBold);
    EXPECT_EQ(grid.TextMatrix(3, 2), "Dentist");
    for (long r = 0; r < 6; ++r)
        for (long c = 0; c < 5; ++c) {
            if (r == 3 && c == 2) continue;
            EXPECT_FALSE(grid.EffectiveStyle(r, c).fontBold) << r << "," << c;
            EXPECT_EQ(grid.TextMatrix(r, c), "") << r << "," << c;
        }
    EXPECT_EQ(grid.EffectiveStyle(3, 3).backColor, 0x00F4F4F0u);
    EXPECT_EQ(grid.EffectiveStyle(0, 3).backColor, vbButtonFace);  // fixed cells keep their own default
}

TEST_F(FlexGridTest, FillRepeatFillsTheSelectionAndSettingRowCollapsesIt) {
    grid.Row = 1;
    grid.Col = 2;
    grid.RowSel = 3;
    grid.ColSel = 3;
    grid.FillStyle = flexFillRepeat;
    grid.CellForeColor = vbRed;
    for (long r = 1; r <= 3; ++r)
        for (long c = 2; c <= 3; ++c) EXPECT_EQ(grid.EffectiveStyle(r, c).foreColor, vbRed);
    EXPECT_EQ(grid.EffectiveStyle(4, 2).foreColor, vbWindowText);

    grid.Row = 5;  // the selection becomes the one new cell
    EXPECT_EQ(grid.Selection(), (CellRange{5, 2, 5, 2}));
    grid.CellForeColor = vbBlue;
    EXPECT_EQ(grid.EffectiveStyle(5, 2).foreColor, vbBlue);
    EXPECT_EQ(grid.EffectiveStyle(5, 3).foreColor, vbWindowText);
}

TEST_F(FlexGridTest, OutsideTheGridNothingIsSetAndNothingIsRead) {
    grid.Row = 4;
    grid.Col = 3;
    grid.Row = 6;  // past the last row: the current cell stays
    grid.Col = -1;
    EXPECT_EQ(grid.Row, 4);
    EXPECT_EQ(grid.Col, 3);
    grid.SetTextMatrix(9, 9, "x");
    grid.SetRowHeight(-1, 500);
    grid.SetColData(5, 7);
    EXPECT_EQ(grid.TextMatrix(9, 9), "");
    EXPECT_EQ(grid.RowData(6), 0);
    EXPECT_EQ(grid.ColData(5), 0);
    EXPECT_EQ(grid.RowHeight(-1), 0);
}

TEST_F(FlexGridTest, ResizingKeepsCellsAndRowDataHoldsA32BitNumber) {
    grid.SetTextMatrix(2, 3, "kept");
    grid.SetTextMatrix(5, 4, "dropped");
    grid.SetRowData(2, 2004060500.0);
    grid.SetColData(3, 38143.5);  // a date: the half goes to the even neighbour
    grid.SetColData(4, 38144.5);
    grid.Rows = 4;
    grid.Cols = 4;
    EXPECT_EQ(grid.TextMatrix(2, 3), "kept");
    grid.Rows = 6;
    grid.Cols = 5;
    EXPECT_EQ(grid.TextMatrix(5, 4), "");
    EXPECT_EQ(grid.RowData(2), 2004060500L);
    EXPECT_EQ(grid.ColData(3), 38144L);
    EXPECT_EQ(grid.ColData(4), 0);  // the column was gone in between

    grid.SetRowData(1, 5e12);  // beyond 32 bits: the largest it can hold
    EXPECT_EQ(grid.RowData(1), 2147483647L);

    grid.Rows = 2;  // the current cell follows the grid in
    EXPECT_EQ(grid.Row, 1);
}

TEST_F(FlexGridTest, EqualNeighboursMergeDownTheirColumn) {
    grid.Rows = 7;
    for (long r = 1; r <= 6; ++r) grid.SetTextMatrix(r, 0, r <= 3 ? "9 " : "10 ");
    grid.SetTextMatrix(1, 2, "same");
    grid.SetTextMatrix(2, 2, "same");

    EXPECT_EQ(grid.MergedRange(2, 0), (CellRange{2, 0, 2, 0})) << "merging is off";
    grid.MergeCells = flexMergeFree;
    EXPECT_EQ(grid.MergedRange(2, 0), (CellRange{2, 0, 2, 0})) << "column 0 does not merge yet";
    grid.SetMergeCol(0, true);
    EXPECT_EQ(grid.MergedRange(2, 0), (CellRange{1, 0, 3, 0}));
    EXPECT_EQ(grid.MergedRange(6, 0), (CellRange{4, 0, 6, 0}));
    EXPECT_EQ(grid.MergedRange(1, 2), (CellRange{1, 2, 1, 2})) << "only column 0 merges";

    // Empty cells and a fixed cell over a scrolling one stay apart.
    grid.SetTextMatrix(4, 0, "");
    EXPECT_EQ(grid.MergedRange(5, 0), (CellRange{5, 0, 6, 0}));
    EXPECT_EQ(grid.MergedRange(4, 0), (CellRange{4, 0, 4, 0}));
    grid.SetTextMatrix(0, 0, "9 ");
    EXPECT_EQ(grid.MergedRange(0, 0), (CellRange{0, 0, 0, 0}));
}

TEST_F(FlexGridTest, RowsMergeAcrossAndRestrictedMergesFollowTheLineBefore) {
    grid.SetMergeRow(2, true);
    grid.SetMergeRow(3, true);
    grid.SetTextMatrix(2, 2, "Holiday");
    grid.SetTextMatrix(2, 3, "Holiday");
    grid.SetTextMatrix(2, 4, "Holiday");
    grid.SetTextMatrix(3, 2, "a");
    grid.SetTextMatrix(3, 3, "a");
    grid.MergeCells = flexMergeFree;
    EXPECT_EQ(grid.MergedRange(2, 3), (CellRange{2, 2, 2, 4}));
    EXPECT_EQ(grid.MergedRange(3, 2), (CellRange{3, 2, 3, 3}));

    grid.MergeCells = flexMergeRestrictRows;  // row 1 above does not merge, so row 2 may not
    EXPECT_EQ(grid.MergedRange(2, 3), (CellRange{2, 3, 2, 3}));
    EXPECT_EQ(grid.MergedRange(3, 2), (CellRange{3, 2, 3, 2}));
}

TEST_F(FlexGridTest, RowHeightsPlaceTheCellsAndAZeroHeightHidesARow) {
    grid.Rows = 20;
    grid.Height = 2000;
    grid.SetRowHeight(0, 500);
    grid.RowHeightMin = 255;
    grid.SetColWidth(0, 600);
    grid.SetColWidth(1, 351);
    EXPECT_EQ(grid.DrawnRowHeight(1), 255);  // the default height is below the minimum
    grid.SetRowHeight(2, 600);

    grid.Row = 3;
    grid.Col = 2;
    EXPECT_EQ(grid.CellTop, 500 + 255 + 600);
    EXPECT_EQ(grid.CellLeft, 951);
    EXPECT_EQ(grid.CellHeight, 255);
    EXPECT_EQ(grid.CellWidth, FlexGrid::kDefaultColWidth);
    EXPECT_TRUE(grid.RowIsVisible(5));
    EXPECT_FALSE(grid.RowIsVisible(8)) << "below the bottom of a 2000-twip grid";

    grid.TopRow = 3;  // scrolled: rows 1 and 2 are off the top
    EXPECT_FALSE(grid.RowIsVisible(2));
    EXPECT_EQ(grid.RowPos(3), 500);
    EXPECT_TRUE(grid.RowIsVisible(8));

    grid.SetRowHeight(0, 0);  // the day view hides its heading row
    EXPECT_EQ(grid.DrawnRowHeight(0), 0);
    EXPECT_EQ(grid.RowPos(3), 0);
}

TEST_F(FlexGridTest, ClearEmptiesTextAndFormatButKeepsTheShape) {
    grid.SetRowHeight(2, 700);
    grid.Row = 2;
    grid.Col = 2;
    grid.Text = "x";
    grid.CellBackColor = vbRed;
    grid.Clear();
    EXPECT_EQ(grid.TextMatrix(2, 2), "");
    EXPECT_EQ(grid.EffectiveStyle(2, 2).backColor, vbWindowBackground);
    EXPECT_EQ(grid.RowHeight(2), 700);
    EXPECT_EQ(grid.Rows, 6);
}

TEST_F(FlexGridTest, UserClicksMoveTheCurrentCellOnlyInTheScrollingPart) {
    std::vector<std::string> events;
    grid.onClick = [&] { events.push_back("Click " + std::to_string(grid.Row) + "," + std::to_string(grid.Col)); };
    grid.onRowColChange = [&] { events.push_back("RowColChange"); };
    grid.onDblClick = [&] { events.push_back("DblClick"); };

    grid.UserClickCell(4, 3);
    grid.UserClickCell(4, 3);
    grid.UserClickCell(0, 1);  // a heading cell: only the click
    grid.UserDblClickCell(2, 2);
    EXPECT_EQ(events, (std::vector<std::string>{"RowColChange", "Click 4,3", "Click 4,3", "Click 4,3",
                                                "RowColChange", "DblClick"}));
    EXPECT_EQ(grid.MouseRow, 2);
    EXPECT_EQ(grid.MouseCol, 2);

    grid.UserClickCell(5, 4, true);  // shift-click grows the selection
    EXPECT_EQ(grid.Selection(), (CellRange{2, 2, 5, 4}));
}

TEST_F(FlexGridTest, AddItemSplitsAtTabsAndRemoveItemTakesTheRowOut) {
    grid.AddItem("Mon\t9\tMeeting");
    EXPECT_EQ(grid.Rows, 7);
    EXPECT_EQ(grid.TextMatrix(6, 0), "Mon");
    EXPECT_EQ(grid.TextMatrix(6, 2), "Meeting");
    grid.AddItem("first", 1);
    EXPECT_EQ(grid.TextMatrix(1, 0), "first");
    EXPECT_EQ(grid.TextMatrix(7, 0), "Mon");
    grid.RemoveItem(1);
    EXPECT_EQ(grid.TextMatrix(6, 0), "Mon");
    EXPECT_EQ(grid.Rows, 7);
}

TEST_F(FlexGridTest, RedrawOffKeepsTheViewQuietUntilItIsOnAgain) {
    int notices = 0;
    grid.SetViewCallback([&](ViewNotice) { ++notices; });
    grid.Redraw = false;
    grid.SetTextMatrix(1, 2, "a");
    grid.SetRowHeight(1, 900);
    EXPECT_EQ(notices, 0);
    grid.Redraw = true;
    EXPECT_EQ(notices, 1);
    grid.SetViewCallback(nullptr);
}

}  // namespace
}  // namespace orbidex
