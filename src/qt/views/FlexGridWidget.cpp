#include "qt/views/FlexGridWidget.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "controls/FlexGrid.h"
#include "controls/KeyCodes.h"
#include "foundation/VbString.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

/// The scrolling surface of the grid; the widget does the work.
class GridArea : public QAbstractScrollArea {
public:
    explicit GridArea(FlexGridWidget& owner) : owner_(owner) {
        setFocusPolicy(Qt::StrongFocus);
        viewport()->setMouseTracking(true);
        connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { owner_.scrolledByUser(); });
        connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { owner_.scrolledByUser(); });
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(viewport());
        owner_.paint(painter, event->rect());
    }
    void resizeEvent(QResizeEvent* event) override {
        QAbstractScrollArea::resizeEvent(event);
        owner_.updateScrollBars();
    }
    void mousePressEvent(QMouseEvent* event) override { owner_.mousePressed(event); }
    void mouseReleaseEvent(QMouseEvent* event) override { owner_.mouseReleased(event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { owner_.mouseDoubleClicked(event); }
    void mouseMoveEvent(QMouseEvent* event) override { owner_.mouseMoved(event); }
    void keyPressEvent(QKeyEvent* event) override {
        if (!owner_.keyPressed(event)) QAbstractScrollArea::keyPressEvent(event);
    }
    void wheelEvent(QWheelEvent* event) override {
        const int steps = event->angleDelta().y() / 40;
        verticalScrollBar()->setValue(verticalScrollBar()->value() - steps);
        event->accept();
    }
    // The grid draws itself from the model: nothing to move by pixels.
    void scrollContentsBy(int, int) override { viewport()->update(); }

private:
    FlexGridWidget& owner_;
};

FlexGridWidget::FlexGridWidget(FlexGrid& control, QWidget* parent)
    : ControlWidget(control, parent), grid_(control), area_(new GridArea(*this)) {
    setInner(area_, area_->viewport(), area_);
    setOwnMouse(true);
    refresh();
}

QAbstractScrollArea* FlexGridWidget::area() const { return area_; }

QWidget* FlexGridWidget::viewport() const { return area_->viewport(); }

void FlexGridWidget::syncFromModel() {
    dirty_ = true;
    if (isVisible()) updateScrollBars();
    area_->viewport()->update();
}

// Layout ----------------------------------------------------------------------------

void FlexGridWidget::layoutGrid() {
    if (!dirty_) return;
    const long rows = grid_.Rows;
    const long cols = grid_.Cols;
    rowPrefix_.assign(static_cast<size_t>(rows + 1), 0);
    colPrefix_.assign(static_cast<size_t>(cols + 1), 0);
    for (long r = 0; r < rows; ++r)
        rowPrefix_[static_cast<size_t>(r + 1)] = rowPrefix_[static_cast<size_t>(r)] + TwipsToPixels(grid_.DrawnRowHeight(r));
    for (long c = 0; c < cols; ++c)
        colPrefix_[static_cast<size_t>(c + 1)] = colPrefix_[static_cast<size_t>(c)] + TwipsToPixels(grid_.DrawnColWidth(c));
    dirty_ = false;
}

int FlexGridWidget::rowTop(long row) const {
    const long fixed = grid_.FixedRows;
    const auto at = [this](long r) { return rowPrefix_[static_cast<size_t>(r)]; };
    return row < fixed ? at(row) : at(fixed) + at(row) - at(grid_.TopRow);
}

int FlexGridWidget::colLeft(long col) const {
    const long fixed = grid_.FixedCols;
    const auto at = [this](long c) { return colPrefix_[static_cast<size_t>(c)]; };
    return col < fixed ? at(col) : at(fixed) + at(col) - at(grid_.LeftCol);
}

int FlexGridWidget::spanHeight(long row1, long row2) const {
    return rowPrefix_[static_cast<size_t>(row2 + 1)] - rowPrefix_[static_cast<size_t>(row1)];
}

int FlexGridWidget::spanWidth(long col1, long col2) const {
    return colPrefix_[static_cast<size_t>(col2 + 1)] - colPrefix_[static_cast<size_t>(col1)];
}

namespace {

/// The index of the line (row or column) at pixel `at`, given the pixel offsets of
/// all lines (`prefix`, one more than lines), the number of fixed lines and the
/// first scrolling line shown; -1 for none.
long lineAt(const std::vector<int>& prefix, long fixed, long first, int at) {
    if (at < 0) return -1;
    const long count = static_cast<long>(prefix.size()) - 1;
    const int fixedSize = prefix[static_cast<size_t>(fixed)];
    const bool inFixed = at < fixedSize;
    const int offset = inFixed ? at : at - fixedSize + prefix[static_cast<size_t>(first)];
    const long from = inFixed ? 0 : first;
    const long to = inFixed ? fixed : count;
    const auto it = std::upper_bound(prefix.begin() + from, prefix.begin() + to + 1, offset);
    const long line = static_cast<long>(it - prefix.begin()) - 1;
    return line >= from && line < to ? line : -1;
}

}  // namespace

long FlexGridWidget::rowAtY(int y) const { return lineAt(rowPrefix_, grid_.FixedRows, grid_.TopRow, y); }

long FlexGridWidget::colAtX(int x) const { return lineAt(colPrefix_, grid_.FixedCols, grid_.LeftCol, x); }

std::pair<long, long> FlexGridWidget::cellAt(QPoint pos) {
    layoutGrid();
    const long row = rowAtY(pos.y());
    const long col = colAtX(pos.x());
    if (row < 0 || col < 0) return {-1, -1};
    return {row, col};
}

QRect FlexGridWidget::cellRect(long row, long col) {
    layoutGrid();
    if (row < 0 || col < 0 || row >= grid_.Rows || col >= grid_.Cols) return {};
    if ((row >= grid_.FixedRows && row < grid_.TopRow) || (col >= grid_.FixedCols && col < grid_.LeftCol)) return {};
    return {colLeft(col), rowTop(row), spanWidth(col, col), spanHeight(row, row)};
}

void FlexGridWidget::updateScrollBars() {
    layoutGrid();
    const QSize size = area_->viewport()->size();
    const auto lastStart = [](const std::vector<int>& prefix, long fixed, long count, int room) {
        const int fixedSize = prefix[static_cast<size_t>(fixed)];
        long start = count - 1;
        while (start > fixed && prefix[static_cast<size_t>(count)] - prefix[static_cast<size_t>(start - 1)] <= room - fixedSize)
            --start;
        return std::max(start, fixed);
    };
    const long rows = grid_.Rows;
    const long cols = grid_.Cols;
    const bool allRowsFit = rowPrefix_.back() <= size.height();
    const bool allColsFit = colPrefix_.back() <= size.width();
    QScrollBar* vertical = area_->verticalScrollBar();
    QScrollBar* horizontal = area_->horizontalScrollBar();
    const QSignalBlocker blockVertical(vertical);
    const QSignalBlocker blockHorizontal(horizontal);
    const long fixedRows = grid_.FixedRows;
    const long fixedCols = grid_.FixedCols;
    vertical->setRange(static_cast<int>(fixedRows),
                       static_cast<int>(allRowsFit ? fixedRows : lastStart(rowPrefix_, fixedRows, rows, size.height())));
    horizontal->setRange(static_cast<int>(fixedCols),
                         static_cast<int>(allColsFit ? fixedCols : lastStart(colPrefix_, fixedCols, cols, size.width())));
    vertical->setValue(static_cast<int>(grid_.TopRow));
    horizontal->setValue(static_cast<int>(grid_.LeftCol));
    vertical->setPageStep(std::max(1, static_cast<int>(rows / 4)));
    horizontal->setPageStep(std::max(1, static_cast<int>(cols / 4)));
}

void FlexGridWidget::scrolledByUser() {
    if (syncing() || model() == nullptr) return;
    grid_.UserScroll(area_->verticalScrollBar()->value(), area_->horizontalScrollBar()->value());
}

// Drawing ------------------------------------------------------------------------------

void FlexGridWidget::paint(QPainter& painter, const QRect& exposed) {
    if (model() == nullptr) return;
    layoutGrid();
    painter.fillRect(exposed, ToQColor(grid_.BackColorBkg));
    const QSize size = area_->viewport()->size();
    const long rows = grid_.Rows;
    const long cols = grid_.Cols;
    const long fixedRows = grid_.FixedRows;
    const long fixedCols = grid_.FixedCols;
    const int fixedHeight = rowPrefix_[static_cast<size_t>(fixedRows)];
    const int fixedWidth = colPrefix_[static_cast<size_t>(fixedCols)];

    std::vector<long> headRows;
    std::vector<long> bodyRows;
    std::vector<long> headCols;
    std::vector<long> bodyCols;
    for (long r = 0; r < fixedRows; ++r) headRows.push_back(r);
    for (long r = grid_.TopRow; r < rows && rowTop(r) < size.height(); ++r) bodyRows.push_back(r);
    for (long c = 0; c < fixedCols; ++c) headCols.push_back(c);
    for (long c = grid_.LeftCol; c < cols && colLeft(c) < size.width(); ++c) bodyCols.push_back(c);

    std::vector<CellRange> drawn;
    const QRect body(fixedWidth, fixedHeight, size.width() - fixedWidth, size.height() - fixedHeight);
    paintPart(painter, bodyRows, bodyCols, body, drawn);
    paintPart(painter, headRows, bodyCols, QRect(fixedWidth, 0, body.width(), fixedHeight), drawn);
    paintPart(painter, bodyRows, headCols, QRect(0, fixedHeight, fixedWidth, body.height()), drawn);
    paintPart(painter, headRows, headCols, QRect(0, 0, fixedWidth, fixedHeight), drawn);
}

void FlexGridWidget::paintPart(QPainter& painter, const std::vector<long>& rows, const std::vector<long>& cols,
                               const QRect& clip, std::vector<CellRange>& drawn) {
    if (clip.isEmpty()) return;
    painter.save();
    painter.setClipRect(clip);
    for (long r : rows)
        for (long c : cols) {
            const CellRange range = grid_.MergedRange(r, c);
            if (std::find(drawn.begin(), drawn.end(), range) != drawn.end()) continue;
            drawn.push_back(range);
            const QRect rect(colLeft(range.col1), rowTop(range.row1), spanWidth(range.col1, range.col2),
                             spanHeight(range.row1, range.row2));
            if (rect.width() > 0 && rect.height() > 0) paintCell(painter, rect, range.row1, range.col1);
        }
    painter.restore();
}

void FlexGridWidget::paintCell(QPainter& painter, const QRect& rect, long row, long col) {
    const CellStyle style = grid_.EffectiveStyle(row, col);
    const bool fixed = grid_.IsFixed(row, col);
    const CellRange selection = grid_.Selection();
    const bool current = row == grid_.Row && col == grid_.Col;
    const bool severalSelected = selection.row1 != selection.row2 || selection.col1 != selection.col2;
    const bool showHighlight = grid_.HighLight == flexHighlightAlways ||
                               (grid_.HighLight == flexHighlightWithFocus && area_->hasFocus());
    const bool highlighted = !fixed && showHighlight && severalSelected && selection.Contains(row, col) && !current;

    painter.fillRect(rect, ToQColor(highlighted ? grid_.BackColorSel() : style.backColor));
    painter.setPen(ToQColor(fixed ? grid_.GridColorFixed() : grid_.GridColor()));
    painter.drawLine(rect.topRight(), rect.bottomRight());
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    if (fixed) {
        painter.setPen(ToQColor(vb3DHighlight));
        painter.drawLine(rect.topLeft(), rect.topRight() - QPoint(1, 0));
        painter.drawLine(rect.topLeft(), rect.bottomLeft() - QPoint(0, 1));
    }

    if (!style.text.empty()) {
        int flags = 0;
        switch (style.alignment) {
            case flexAlignLeftTop: flags = Qt::AlignLeft | Qt::AlignTop; break;
            case flexAlignLeftCenter: flags = Qt::AlignLeft | Qt::AlignVCenter; break;
            case flexAlignLeftBottom: flags = Qt::AlignLeft | Qt::AlignBottom; break;
            case flexAlignCenterTop: flags = Qt::AlignHCenter | Qt::AlignTop; break;
            case flexAlignCenterCenter: flags = Qt::AlignCenter; break;
            case flexAlignCenterBottom: flags = Qt::AlignHCenter | Qt::AlignBottom; break;
            case flexAlignRightTop: flags = Qt::AlignRight | Qt::AlignTop; break;
            case flexAlignRightCenter: flags = Qt::AlignRight | Qt::AlignVCenter; break;
            case flexAlignRightBottom: flags = Qt::AlignRight | Qt::AlignBottom; break;
            default: flags = (IsNumeric(style.text) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter; break;
        }
        const QFont font = ToQFont(style.fontName, style.fontSize, style.fontBold, style.fontItalic);
        const QRect textRect = rect.adjusted(2, 1, -3, -1);
        if (grid_.WordWrap) {
            flags |= Qt::TextWordWrap;
            // Wrapped text taller than its cell shows its first lines, not its middle.
            const QRect needed = QFontMetrics(font).boundingRect(textRect, flags, ToQString(style.text));
            if (needed.height() > textRect.height()) flags = (flags & ~Qt::AlignVertical_Mask) | Qt::AlignTop;
        }
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
        painter.setFont(font);
        painter.setPen(ToQColor(highlighted ? grid_.ForeColorSel() : style.foreColor));
        painter.drawText(textRect, flags, ToQString(style.text));
        painter.restore();
    }

    if (current && !fixed && grid_.FocusRect != flexFocusNone) {
        QPen pen(ToQColor(vbWindowText), grid_.FocusRect == flexFocusHeavy ? 2 : 1, Qt::DotLine);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(1, 1, -2, -2));
    }
}

// What the user does ----------------------------------------------------------------------

void FlexGridWidget::ensureVisible(long row, long col) {
    layoutGrid();
    const QSize size = area_->viewport()->size();
    long top = grid_.TopRow;
    long left = grid_.LeftCol;
    if (row >= grid_.FixedRows) {
        if (row < top) top = row;
        while (top < row && rowTop(row) - rowTop(top) + rowPrefix_[static_cast<size_t>(grid_.FixedRows)] +
                                    spanHeight(row, row) > size.height())
            ++top;
    }
    if (col >= grid_.FixedCols) {
        if (col < left) left = col;
        while (left < col && colLeft(col) - colLeft(left) + colPrefix_[static_cast<size_t>(grid_.FixedCols)] +
                                     spanWidth(col, col) > size.width())
            ++left;
    }
    grid_.UserScroll(top, left);
}

void FlexGridWidget::mousePressed(QMouseEvent* event) {
    if (model() == nullptr) return;
    area_->setFocus(Qt::MouseFocusReason);
    const QPoint pos = event->position().toPoint();
    const auto [row, col] = cellAt(pos);
    const int shift = ToVbShift(event->modifiers());
    pressed_ = true;
    pressPos_ = pos;
    pressRow_ = row;
    pressCol_ = col;
    grid_.UserMouseAt(row, col);
    if (event->button() == Qt::LeftButton && !(shift & vbShiftMask)) grid_.UserMoveTo(row, col);
    if (model() != nullptr)
        grid_.UserMouseDown(ToVbButton(event->button()), shift, twipsX(viewport(), pos), twipsY(viewport(), pos));
}

void FlexGridWidget::mouseReleased(QMouseEvent* event) {
    if (model() == nullptr) return;
    const QPoint pos = event->position().toPoint();
    const int shift = ToVbShift(event->modifiers());
    pressed_ = false;
    grid_.UserMouseUp(ToVbButton(event->button()), shift, twipsX(viewport(), pos), twipsY(viewport(), pos));
    if (model() != nullptr && event->button() == Qt::LeftButton)
        grid_.UserClickCell(pressRow_, pressCol_, (shift & vbShiftMask) != 0);
}

void FlexGridWidget::mouseDoubleClicked(QMouseEvent* event) {
    if (model() == nullptr || event->button() != Qt::LeftButton) return;
    const auto [row, col] = cellAt(event->position().toPoint());
    grid_.UserDblClickCell(row, col);
}

void FlexGridWidget::mouseMoved(QMouseEvent* event) {
    if (model() == nullptr) return;
    const QPoint pos = event->position().toPoint();
    const auto [row, col] = cellAt(pos);
    grid_.UserMouseAt(row, col);
    grid_.UserMouseMove(ToVbButton(event->buttons()), ToVbShift(event->modifiers()), twipsX(viewport(), pos),
                        twipsY(viewport(), pos));
    if (model() != nullptr && pressed_ && grid_.DragMode == vbAutomatic && !grid_.IsDragging() &&
        (pos - pressPos_).manhattanLength() >= QApplication::startDragDistance()) {
        pressed_ = false;
        grid_.Drag(vbBeginDrag);
    }
}

bool FlexGridWidget::keyPressed(QKeyEvent* event) {
    if (model() == nullptr) return false;
    long row = grid_.Row;
    long col = grid_.Col;
    const long page = std::max(1L, static_cast<long>(area_->viewport()->height() / std::max(1, TwipsToPixels(FlexGrid::kDefaultRowHeight))));
    switch (event->key()) {
        case Qt::Key_Up: --row; break;
        case Qt::Key_Down: ++row; break;
        case Qt::Key_Left: --col; break;
        case Qt::Key_Right: ++col; break;
        case Qt::Key_PageUp: row -= page; break;
        case Qt::Key_PageDown: row += page; break;
        case Qt::Key_Home: col = grid_.FixedCols; break;
        case Qt::Key_End: col = grid_.Cols - 1; break;
        default: return false;
    }
    row = std::clamp<long>(row, grid_.FixedRows, std::max<long>(grid_.FixedRows, grid_.Rows - 1));
    col = std::clamp<long>(col, grid_.FixedCols, std::max<long>(grid_.FixedCols, grid_.Cols - 1));
    grid_.UserMoveTo(row, col);
    if (model() != nullptr) ensureVisible(grid_.Row, grid_.Col);
    return true;
}

void FlexGridWidget::pointerAt(QPoint pos) {
    const auto [row, col] = cellAt(area_->viewport()->mapFrom(this, pos));
    grid_.UserMouseAt(row, col);
}

void FlexGridWidget::controlDropped(Control& source, QPoint pos) {
    pointerAt(pos);
    ControlWidget::controlDropped(source, pos);
}

void FlexGridWidget::dataDroppedAt(QPoint pos) { pointerAt(pos); }

void FlexGridWidget::controlDraggedOver(Control& source, QPoint pos) {
    pointerAt(pos);
    ControlWidget::controlDraggedOver(source, pos);
}

}  // namespace orbidex
