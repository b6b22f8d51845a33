#pragma once
// A grid of text cells, each with its own colours, font and alignment, with fixed
// (heading) rows and columns, row heights and column widths in twips, a number per
// row (RowData) and per column (ColData), and merging of equal neighbouring cells.
//
// The current cell is (Row, Col); the `Cell...` properties and Text read and set
// it.  With FillStyle flexFillRepeat, setting them fills every cell from (Row, Col)
// to (RowSel, ColSel); with flexFillSingle (the default) only the current cell.
// Setting Row or Col makes the selection that one cell.  Rows and columns count
// from 0; an index outside the grid reads as empty and is not set.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

// Alignment of a cell's text.
constexpr int flexAlignLeftTop = 0;
constexpr int flexAlignLeftCenter = 1;
constexpr int flexAlignLeftBottom = 2;
constexpr int flexAlignCenterTop = 3;
constexpr int flexAlignCenterCenter = 4;
constexpr int flexAlignCenterBottom = 5;
constexpr int flexAlignRightTop = 6;
constexpr int flexAlignRightCenter = 7;
constexpr int flexAlignRightBottom = 8;
constexpr int flexAlignGeneral = 9;  ///< numbers right, other text left, both centred

constexpr int flexFillSingle = 0;
constexpr int flexFillRepeat = 1;

constexpr int flexSelectionFree = 0;
constexpr int flexSelectionByRow = 1;
constexpr int flexSelectionByColumn = 2;

constexpr int flexMergeNever = 0;
constexpr int flexMergeFree = 1;
constexpr int flexMergeRestrictRows = 2;
constexpr int flexMergeRestrictColumns = 3;
constexpr int flexMergeRestrictAll = 4;

constexpr int flexHighlightNever = 0;
constexpr int flexHighlightAlways = 1;
constexpr int flexHighlightWithFocus = 2;

constexpr int flexFocusNone = 0;
constexpr int flexFocusLight = 1;
constexpr int flexFocusHeavy = 2;

/// A block of cells, corners included.
struct CellRange {
    long row1 = 0;
    long col1 = 0;
    long row2 = 0;
    long col2 = 0;
    bool operator==(const CellRange&) const = default;
    bool Contains(long row, long col) const { return row >= row1 && row <= row2 && col >= col1 && col <= col2; }
};

/// How one cell is drawn, with the grid's defaults filled in.
struct CellStyle {
    std::string text;
    OleColor backColor = vbWindowBackground;
    OleColor foreColor = vbWindowText;
    std::string fontName;
    double fontSize = 8.25;
    bool fontBold = false;
    bool fontItalic = false;
    int alignment = flexAlignGeneral;
};

class FlexGrid : public Control {
public:
    static constexpr long kDefaultRowHeight = 240;
    static constexpr long kDefaultColWidth = 960;

    FlexGrid(Form* form, std::string name);
    explicit FlexGrid(std::string name = "") : FlexGrid(nullptr, std::move(name)) {}

    // Size and the fixed part
    Accessor<long> Rows;
    Accessor<long> Cols;
    Accessor<long> FixedRows;
    Accessor<long> FixedCols;

    // The current cell and the selection
    Accessor<long> Row;
    Accessor<long> Col;
    Accessor<long> RowSel;
    Accessor<long> ColSel;
    /// The current cell's text (with flexFillRepeat, setting fills the selection).
    Accessor<std::string> Text;
    Accessor<OleColor> CellBackColor;
    Accessor<OleColor> CellForeColor;
    Accessor<std::string> CellFontName;
    Accessor<double> CellFontSize;
    Accessor<bool> CellFontBold;
    Accessor<bool> CellFontItalic;
    Accessor<int> CellAlignment;
    /// Where the current cell is drawn, in twips from the grid's corner (read only).
    Accessor<long> CellLeft;
    Accessor<long> CellTop;
    Accessor<long> CellWidth;
    Accessor<long> CellHeight;
    /// The cell under the mouse pointer (read only; the view keeps them up to date).
    Accessor<long> MouseRow;
    Accessor<long> MouseCol;
    /// The first scrolling row and column shown.
    Accessor<long> TopRow;
    Accessor<long> LeftCol;

    // Appearance
    Property<OleColor> BackColorFixed{this, vbButtonFace};
    Property<OleColor> ForeColorFixed{this, vbButtonText};
    Property<OleColor> BackColorSel{this, vbHighlight};
    Property<OleColor> ForeColorSel{this, vbHighlightText};
    Property<OleColor> BackColorBkg{this, vbApplicationWorkspace};
    Property<OleColor> GridColor{this, 0xC0C0C0};
    Property<OleColor> GridColorFixed{this, vbBlack};
    Property<int> FillStyle{this, flexFillSingle};
    Property<int> SelectionMode{this, flexSelectionFree};
    Property<int> HighLight{this, flexHighlightAlways};
    Property<int> FocusRect{this, flexFocusLight};
    Property<int> MergeCells{this, flexMergeNever};
    Property<bool> WordWrap{this, false};
    /// Off: the view stops drawing until it is on again.
    Property<bool> Redraw{this, true};
    /// Every row is at least this high (a row of height 0 stays hidden).
    Property<long> RowHeightMin{this, 0};

    // Properties with arguments
    std::string TextMatrix(long row, long col) const;
    void SetTextMatrix(long row, long col, const std::string& text);
    /// The height set for the row (kDefaultRowHeight when none was set).
    long RowHeight(long row) const;
    /// Sets the row's height; -1 gives it the default height back.
    void SetRowHeight(long row, long height);
    long ColWidth(long col) const;
    void SetColWidth(long col, long width);
    long RowData(long row) const;
    /// Stores a 32-bit number, as the grid's row data holds: a fraction is rounded
    /// half to even.
    void SetRowData(long row, double value);
    long ColData(long col) const;
    void SetColData(long col, double value);
    bool MergeRow(long row) const;
    void SetMergeRow(long row, bool merge);
    bool MergeCol(long col) const;
    void SetMergeCol(long col, bool merge);
    int ColAlignment(long col) const;
    void SetColAlignment(long col, int alignment);
    bool RowIsVisible(long row) const;
    bool ColIsVisible(long col) const;
    /// The top of the row and the left of the column, in twips, as drawn now.
    long RowPos(long row) const;
    long ColPos(long col) const;

    // Methods
    /// Empties every cell's text and format; sizes, heights and widths stay.
    void Clear();
    /// Adds a row with the tab-separated texts, at `index` or at the end.
    void AddItem(const std::string& tabbedTexts, long index = -1);
    void RemoveItem(long index);

    // For the view
    /// The height and width a row and column are drawn with (0 for hidden ones).
    long DrawnRowHeight(long row) const;
    long DrawnColWidth(long col) const;
    CellStyle EffectiveStyle(long row, long col) const;
    /// The cells that (row, col) is drawn merged with.
    CellRange MergedRange(long row, long col) const;
    /// The selection, corners in order.
    CellRange Selection() const;
    bool IsFixed(long row, long col) const { return row < fixedRows_ || col < fixedCols_; }

    std::function<void()> onRowColChange;
    std::function<void()> onSelChange;
    std::function<void()> onScroll;

    // What the user does
    /// A click on a cell: a scrolling cell becomes the current cell (with `extend`,
    /// the selection grows to it instead); then Click.
    void UserClickCell(long row, long col, bool extend = false);
    /// A double click on a cell: as a click, then DblClick.
    void UserDblClickCell(long row, long col);
    /// The keyboard moved the current cell.
    void UserMoveTo(long row, long col);
    void UserScroll(long topRow, long leftCol);
    /// The mouse pointer is over this cell (-1 for none).
    void UserMouseAt(long row, long col);

    void PropertyChanged(const void* property) override;

private:
    struct Cell {
        std::string text;
        std::optional<OleColor> backColor;
        std::optional<OleColor> foreColor;
        std::optional<std::string> fontName;
        std::optional<double> fontSize;
        std::optional<bool> fontBold;
        std::optional<bool> fontItalic;
        std::optional<int> alignment;
    };
    struct RowInfo {
        long height = -1;
        int32_t data = 0;
        bool merge = false;
    };
    struct ColInfo {
        long width = -1;
        int32_t data = 0;
        bool merge = false;
        int alignment = flexAlignGeneral;
    };

    bool validRow(long row) const { return row >= 0 && row < rows_; }
    bool validCol(long col) const { return col >= 0 && col < cols_; }
    const Cell* cellAt(long row, long col) const;
    Cell* cellAt(long row, long col);
    void resize(long rows, long cols);
    void setFixedRows(long fixed);
    void setFixedCols(long fixed);
    void setRow(long row);
    void setCol(long col);
    void setCurrent(long row, long col, bool extend);
    void setTopRow(long row);
    void setLeftCol(long col);
    /// Applies `change` to the current cell, or with flexFillRepeat to the selection.
    template <typename Change>
    void fill(Change change);
    bool mergesDown(long row, long col) const;
    bool mergesRight(long row, long col) const;
    bool verticalMergeAllowed() const;
    bool horizontalMergeAllowed() const;
    void gridChanged();

    long rows_ = 2;
    long cols_ = 2;
    long fixedRows_ = 1;
    long fixedCols_ = 1;
    long row_ = 1;
    long col_ = 1;
    long rowSel_ = 1;
    long colSel_ = 1;
    long topRow_ = 1;
    long leftCol_ = 1;
    long mouseRow_ = -1;
    long mouseCol_ = -1;
    std::vector<Cell> cells_;  ///< row by row
    std::vector<RowInfo> rowInfo_;
    std::vector<ColInfo> colInfo_;
};

}  // namespace orbidex
