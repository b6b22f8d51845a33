#include "controls/FlexGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "foundation/VbString.h"

namespace orbidex {

namespace {

int32_t toLong32(double value) {
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= std::numeric_limits<int32_t>::min())) return std::numeric_limits<int32_t>::min();
    if (rounded > std::numeric_limits<int32_t>::max()) return std::numeric_limits<int32_t>::max();
    return static_cast<int32_t>(rounded);
}

template <typename T>
std::function<void(const T&)> readOnly() {
    return [](const T&) {};
}

}  // namespace

FlexGrid::FlexGrid(Form* form, std::string name)
    : Control(form, std::move(name)),
      Rows([this] { return rows_; }, [this](const long& n) { resize(n, cols_); }),
      Cols([this] { return cols_; }, [this](const long& n) { resize(rows_, n); }),
      FixedRows([this] { return fixedRows_; }, [this](const long& n) { setFixedRows(n); }),
      FixedCols([this] { return fixedCols_; }, [this](const long& n) { setFixedCols(n); }),
      Row([this] { return row_; }, [this](const long& r) { setRow(r); }),
      Col([this] { return col_; }, [this](const long& c) { setCol(c); }),
      RowSel([this] { return rowSel_; },
             [this](const long& r) {
                 if (validRow(r)) rowSel_ = r;
                 gridChanged();
             }),
      ColSel([this] { return colSel_; },
             [this](const long& c) {
                 if (validCol(c)) colSel_ = c;
                 gridChanged();
             }),
      Text([this] { return TextMatrix(row_, col_); },
           [this](const std::string& t) { fill([&](Cell& cell) { cell.text = t; }); }),
      CellBackColor([this] { return EffectiveStyle(row_, col_).backColor; },
                    [this](const OleColor& v) { fill([&](Cell& cell) { cell.backColor = v; }); }),
      CellForeColor([this] { return EffectiveStyle(row_, col_).foreColor; },
                    [this](const OleColor& v) { fill([&](Cell& cell) { cell.foreColor = v; }); }),
      CellFontName([this] { return EffectiveStyle(row_, col_).fontName; },
                   [this](const std::string& v) { fill([&](Cell& cell) { cell.fontName = v; }); }),
      CellFontSize([this] { return EffectiveStyle(row_, col_).fontSize; },
                   [this](const double& v) { fill([&](Cell& cell) { cell.fontSize = v; }); }),
      CellFontBold([this] { return EffectiveStyle(row_, col_).fontBold; },
                   [this](const bool& v) { fill([&](Cell& cell) { cell.fontBold = v; }); }),
      CellFontItalic([this] { return EffectiveStyle(row_, col_).fontItalic; },
                     [this](const bool& v) { fill([&](Cell& cell) { cell.fontItalic = v; }); }),
      CellAlignment([this] { return EffectiveStyle(row_, col_).alignment; },
                    [this](const int& v) { fill([&](Cell& cell) { cell.alignment = v; }); }),
      CellLeft([this] { return ColPos(col_); }, readOnly<long>()),
      CellTop([this] { return RowPos(row_); }, readOnly<long>()),
      CellWidth([this] { return DrawnColWidth(col_); }, readOnly<long>()),
      CellHeight([this] { return DrawnRowHeight(row_); }, readOnly<long>()),
      MouseRow([this] { return mouseRow_; }, readOnly<long>()),
      MouseCol([this] { return mouseCol_; }, readOnly<long>()),
      TopRow([this] { return topRow_; }, [this](const long& r) { setTopRow(r); }),
      LeftCol([this] { return leftCol_; }, [this](const long& c) { setLeftCol(c); }) {
    BackColor = vbWindowBackground;
    ForeColor = vbWindowText;
    cells_.resize(static_cast<size_t>(rows_ * cols_));
    rowInfo_.resize(static_cast<size_t>(rows_));
    colInfo_.resize(static_cast<size_t>(cols_));
}

// Cells -------------------------------------------------------------------------

const FlexGrid::Cell* FlexGrid::cellAt(long row, long col) const {
    if (!validRow(row) || !validCol(col)) return nullptr;
    return &cells_[static_cast<size_t>(row * cols_ + col)];
}

FlexGrid::Cell* FlexGrid::cellAt(long row, long col) {
    return const_cast<Cell*>(static_cast<const FlexGrid*>(this)->cellAt(row, col));
}

std::string FlexGrid::TextMatrix(long row, long col) const {
    const Cell* cell = cellAt(row, col);
    return cell != nullptr ? cell->text : std::string();
}

void FlexGrid::SetTextMatrix(long row, long col, const std::string& text) {
    Cell* cell = cellAt(row, col);
    if (cell == nullptr || cell->text == text) return;
    cell->text = text;
    gridChanged();
}

template <typename Change>
void FlexGrid::fill(Change change) {
    const CellRange target = FillStyle == flexFillRepeat ? Selection() : CellRange{row_, col_, row_, col_};
    for (long r = target.row1; r <= target.row2; ++r)
        for (long c = target.col1; c <= target.col2; ++c)
            if (Cell* cell = cellAt(r, c)) change(*cell);
    gridChanged();
}

CellStyle FlexGrid::EffectiveStyle(long row, long col) const {
    CellStyle style;
    const Cell* cell = cellAt(row, col);
    const bool fixed = IsFixed(row, col);
    style.backColor = fixed ? BackColorFixed() : BackColor();
    style.foreColor = fixed ? ForeColorFixed() : ForeColor();
    style.fontName = FontName;
    style.fontSize = FontSize;
    style.fontBold = FontBold;
    style.fontItalic = FontItalic;
    style.alignment = validCol(col) ? colInfo_[static_cast<size_t>(col)].alignment : flexAlignGeneral;
    if (cell == nullptr) return style;
    style.text = cell->text;
    style.backColor = cell->backColor.value_or(style.backColor);
    style.foreColor = cell->foreColor.value_or(style.foreColor);
    style.fontName = cell->fontName.value_or(style.fontName);
    style.fontSize = cell->fontSize.value_or(style.fontSize);
    style.fontBold = cell->fontBold.value_or(style.fontBold);
    style.fontItalic = cell->fontItalic.value_or(style.fontItalic);
    style.alignment = cell->alignment.value_or(style.alignment);
    return style;
}

void FlexGrid::Clear() {
    std::fill(cells_.begin(), cells_.end(), Cell{});
    gridChanged();
}

void FlexGrid::AddItem(const std::string& tabbedTexts, long index) {
    if (index < -1 || index > rows_) return;
    const long at = index == -1 ? rows_ : index;
    cells_.insert(cells_.begin() + at * cols_, static_cast<size_t>(cols_), Cell{});
    rowInfo_.insert(rowInfo_.begin() + at, RowInfo{});
    ++rows_;
    const std::vector<std::string> texts = Split(tabbedTexts, "\t");
    for (long c = 0; c < cols_ && c < static_cast<long>(texts.size()); ++c)
        cells_[static_cast<size_t>(at * cols_ + c)].text = texts[static_cast<size_t>(c)];
    gridChanged();
}

void FlexGrid::RemoveItem(long index) {
    if (!validRow(index)) return;
    cells_.erase(cells_.begin() + index * cols_, cells_.begin() + (index + 1) * cols_);
    rowInfo_.erase(rowInfo_.begin() + index);
    --rows_;
    fixedRows_ = std::min(fixedRows_, rows_);
    setCurrent(std::min(row_, std::max(rows_ - 1, 0L)), col_, false);
    gridChanged();
}

// Size ----------------------------------------------------------------------------

void FlexGrid::resize(long rows, long cols) {
    if (rows < 0 || cols < 0) return;
    if (rows == rows_ && cols == cols_) return;
    std::vector<Cell> cells(static_cast<size_t>(rows * cols));
    for (long r = 0; r < std::min(rows, rows_); ++r)
        for (long c = 0; c < std::min(cols, cols_); ++c)
            cells[static_cast<size_t>(r * cols + c)] = std::move(cells_[static_cast<size_t>(r * cols_ + c)]);
    cells_ = std::move(cells);
    rowInfo_.resize(static_cast<size_t>(rows));
    colInfo_.resize(static_cast<size_t>(cols));
    rows_ = rows;
    cols_ = cols;
    fixedRows_ = std::min(fixedRows_, rows_);
    fixedCols_ = std::min(fixedCols_, cols_);
    const auto clampTo = [](long value, long low, long high) { return std::max(std::min(value, high), low); };
    row_ = clampTo(row_, 0, rows_ - 1);
    col_ = clampTo(col_, 0, cols_ - 1);
    rowSel_ = clampTo(rowSel_, 0, rows_ - 1);
    colSel_ = clampTo(colSel_, 0, cols_ - 1);
    topRow_ = clampTo(topRow_, fixedRows_, rows_ - 1);
    leftCol_ = clampTo(leftCol_, fixedCols_, cols_ - 1);
    mouseRow_ = -1;
    mouseCol_ = -1;
    gridChanged();
}

void FlexGrid::setFixedRows(long fixed) {
    if (fixed < 0 || fixed > rows_) return;
    fixedRows_ = fixed;
    if (row_ < fixed && fixed < rows_) setCurrent(fixed, col_, false);
    topRow_ = std::max(topRow_, std::min(fixed, rows_ - 1));
    gridChanged();
}

void FlexGrid::setFixedCols(long fixed) {
    if (fixed < 0 || fixed > cols_) return;
    fixedCols_ = fixed;
    if (col_ < fixed && fixed < cols_) setCurrent(row_, fixed, false);
    leftCol_ = std::max(leftCol_, std::min(fixed, cols_ - 1));
    gridChanged();
}

long FlexGrid::RowHeight(long row) const {
    if (!validRow(row)) return 0;
    const long height = rowInfo_[static_cast<size_t>(row)].height;
    return height < 0 ? kDefaultRowHeight : height;
}

void FlexGrid::SetRowHeight(long row, long height) {
    if (!validRow(row) || height < -1) return;
    rowInfo_[static_cast<size_t>(row)].height = height;
    gridChanged();
}

long FlexGrid::ColWidth(long col) const {
    if (!validCol(col)) return 0;
    const long width = colInfo_[static_cast<size_t>(col)].width;
    return width < 0 ? kDefaultColWidth : width;
}

void FlexGrid::SetColWidth(long col, long width) {
    if (!validCol(col) || width < -1) return;
    colInfo_[static_cast<size_t>(col)].width = width;
    gridChanged();
}

long FlexGrid::DrawnRowHeight(long row) const {
    const long height = RowHeight(row);
    return height == 0 ? 0 : std::max(height, static_cast<long>(RowHeightMin));
}

long FlexGrid::DrawnColWidth(long col) const { return ColWidth(col); }

long FlexGrid::RowData(long row) const { return validRow(row) ? rowInfo_[static_cast<size_t>(row)].data : 0; }

void FlexGrid::SetRowData(long row, double value) {
    if (validRow(row)) rowInfo_[static_cast<size_t>(row)].data = toLong32(value);
}

long FlexGrid::ColData(long col) const { return validCol(col) ? colInfo_[static_cast<size_t>(col)].data : 0; }

void FlexGrid::SetColData(long col, double value) {
    if (validCol(col)) colInfo_[static_cast<size_t>(col)].data = toLong32(value);
}

bool FlexGrid::MergeRow(long row) const { return validRow(row) && rowInfo_[static_cast<size_t>(row)].merge; }

void FlexGrid::SetMergeRow(long row, bool merge) {
    if (!validRow(row)) return;
    rowInfo_[static_cast<size_t>(row)].merge = merge;
    gridChanged();
}

bool FlexGrid::MergeCol(long col) const { return validCol(col) && colInfo_[static_cast<size_t>(col)].merge; }

void FlexGrid::SetMergeCol(long col, bool merge) {
    if (!validCol(col)) return;
    colInfo_[static_cast<size_t>(col)].merge = merge;
    gridChanged();
}

int FlexGrid::ColAlignment(long col) const {
    return validCol(col) ? colInfo_[static_cast<size_t>(col)].alignment : flexAlignGeneral;
}

void FlexGrid::SetColAlignment(long col, int alignment) {
    if (!validCol(col)) return;
    colInfo_[static_cast<size_t>(col)].alignment = alignment;
    gridChanged();
}

// Where things are drawn ------------------------------------------------------------

long FlexGrid::RowPos(long row) const {
    if (!validRow(row)) return 0;
    long top = 0;
    for (long r = 0; r < std::min(row, fixedRows_); ++r) top += DrawnRowHeight(r);
    if (row < fixedRows_) return top;
    for (long r = topRow_; r < row; ++r) top += DrawnRowHeight(r);
    for (long r = row; r < topRow_; ++r) top -= DrawnRowHeight(r);
    return top;
}

long FlexGrid::ColPos(long col) const {
    if (!validCol(col)) return 0;
    long left = 0;
    for (long c = 0; c < std::min(col, fixedCols_); ++c) left += DrawnColWidth(c);
    if (col < fixedCols_) return left;
    for (long c = leftCol_; c < col; ++c) left += DrawnColWidth(c);
    for (long c = col; c < leftCol_; ++c) left -= DrawnColWidth(c);
    return left;
}

bool FlexGrid::RowIsVisible(long row) const {
    if (!validRow(row)) return false;
    if (row < fixedRows_) return true;
    return row >= topRow_ && (Height == 0 || RowPos(row) < Height);
}

bool FlexGrid::ColIsVisible(long col) const {
    if (!validCol(col)) return false;
    if (col < fixedCols_) return true;
    return col >= leftCol_ && (Width == 0 || ColPos(col) < Width);
}

// The current cell, the selection and scrolling --------------------------------------

void FlexGrid::setRow(long row) {
    if (!validRow(row)) return;
    row_ = row;
    rowSel_ = row;
    colSel_ = col_;
    gridChanged();
}

void FlexGrid::setCol(long col) {
    if (!validCol(col)) return;
    col_ = col;
    colSel_ = col;
    rowSel_ = row_;
    gridChanged();
}

void FlexGrid::setCurrent(long row, long col, bool extend) {
    if (!validRow(row) || !validCol(col)) return;
    if (extend) {
        rowSel_ = row;
        colSel_ = col;
    } else {
        row_ = rowSel_ = row;
        col_ = colSel_ = col;
    }
    if (SelectionMode == flexSelectionByRow) {
        col_ = std::min(fixedCols_, cols_ - 1);
        colSel_ = cols_ - 1;
    } else if (SelectionMode == flexSelectionByColumn) {
        row_ = std::min(fixedRows_, rows_ - 1);
        rowSel_ = rows_ - 1;
    }
}

CellRange FlexGrid::Selection() const {
    return {std::min(row_, rowSel_), std::min(col_, colSel_), std::max(row_, rowSel_), std::max(col_, colSel_)};
}

void FlexGrid::setTopRow(long row) {
    if (row < fixedRows_ || row >= rows_) return;
    topRow_ = row;
    gridChanged();
}

void FlexGrid::setLeftCol(long col) {
    if (col < fixedCols_ || col >= cols_) return;
    leftCol_ = col;
    gridChanged();
}

// Merging ---------------------------------------------------------------------------

bool FlexGrid::verticalMergeAllowed() const { return MergeCells != flexMergeNever; }
bool FlexGrid::horizontalMergeAllowed() const { return MergeCells != flexMergeNever; }

bool FlexGrid::mergesDown(long row, long col) const {
    if (!verticalMergeAllowed() || !MergeCol(col) || !validRow(row + 1)) return false;
    if ((row < fixedRows_) != (row + 1 < fixedRows_)) return false;  // a heading never merges into the body
    const std::string& text = cellAt(row, col)->text;
    if (text.empty() || text != cellAt(row + 1, col)->text) return false;
    const bool restricted = MergeCells == flexMergeRestrictColumns || MergeCells == flexMergeRestrictAll;
    return !restricted || col == 0 || mergesDown(row, col - 1);
}

bool FlexGrid::mergesRight(long row, long col) const {
    if (!horizontalMergeAllowed() || !MergeRow(row) || !validCol(col + 1)) return false;
    if ((col < fixedCols_) != (col + 1 < fixedCols_)) return false;
    const std::string& text = cellAt(row, col)->text;
    if (text.empty() || text != cellAt(row, col + 1)->text) return false;
    const bool restricted = MergeCells == flexMergeRestrictRows || MergeCells == flexMergeRestrictAll;
    return !restricted || row == 0 || mergesRight(row - 1, col);
}

CellRange FlexGrid::MergedRange(long row, long col) const {
    CellRange range{row, col, row, col};
    if (!validRow(row) || !validCol(col)) return range;
    while (range.row1 > 0 && mergesDown(range.row1 - 1, col)) --range.row1;
    while (mergesDown(range.row2, col)) ++range.row2;
    if (range.row1 != range.row2) return range;
    while (range.col1 > 0 && mergesRight(row, range.col1 - 1)) --range.col1;
    while (mergesRight(row, range.col2)) ++range.col2;
    return range;
}

// What the user does -----------------------------------------------------------------

void FlexGrid::UserClickCell(long row, long col, bool extend) {
    if (!Enabled) return;
    UserMouseAt(row, col);
    if (validRow(row) && validCol(col) && !IsFixed(row, col)) {
        const long oldRow = row_;
        const long oldCol = col_;
        setCurrent(row, col, extend);
        gridChanged();
        if (oldRow != row_ || oldCol != col_) Raise(onRowColChange);
        Raise(onSelChange);
    }
    Raise(onClick);
}

void FlexGrid::UserDblClickCell(long row, long col) {
    if (!Enabled) return;
    UserMouseAt(row, col);
    if (validRow(row) && validCol(col) && !IsFixed(row, col) && (row != row_ || col != col_)) {
        setCurrent(row, col, false);
        gridChanged();
        Raise(onRowColChange);
    }
    Raise(onDblClick);
}

void FlexGrid::UserMoveTo(long row, long col) {
    if (!Enabled || !validRow(row) || !validCol(col) || IsFixed(row, col)) return;
    if (row == row_ && col == col_) return;
    setCurrent(row, col, false);
    gridChanged();
    Raise(onRowColChange);
    Raise(onSelChange);
}

void FlexGrid::UserScroll(long topRow, long leftCol) {
    if (topRow == topRow_ && leftCol == leftCol_) return;
    setTopRow(topRow);
    setLeftCol(leftCol);
    Raise(onScroll);
}

void FlexGrid::UserMouseAt(long row, long col) {
    mouseRow_ = validRow(row) ? row : -1;
    mouseCol_ = validCol(col) ? col : -1;
}

void FlexGrid::gridChanged() {
    if (Redraw) Changed();
}

void FlexGrid::PropertyChanged(const void* property) {
    if (property == &Redraw && !Redraw) return;
    Control::PropertyChanged(property);
}

}  // namespace orbidex
