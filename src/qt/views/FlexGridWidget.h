#pragma once
// Draws a FlexGrid cell by cell: fixed rows and columns that stay while the rest
// scrolls, row heights and column widths, each cell's text, colours, font and
// alignment, merged cells as one, the selection and the current cell.  Mouse and
// keys move the current cell through the model; drops tell it the cell under the
// pointer.

#include <QRect>
#include <utility>
#include <vector>

#include "qt/views/ControlWidget.h"

class QAbstractScrollArea;
class QPainter;

namespace orbidex {

class FlexGrid;
class GridArea;
struct CellRange;

class FlexGridWidget : public ControlWidget {
    Q_OBJECT
public:
    FlexGridWidget(FlexGrid& model, QWidget* parent = nullptr);
    QAbstractScrollArea* area() const;
    /// The part the cells are drawn on.
    QWidget* viewport() const;
    /// The cell at a point of the viewport, or {-1, -1}.
    std::pair<long, long> cellAt(QPoint pos);
    /// Where a cell is drawn in the viewport (empty for a hidden one).
    QRect cellRect(long row, long col);

protected:
    void syncFromModel() override;
    void controlDropped(Control& source, QPoint pos) override;
    void controlDraggedOver(Control& source, QPoint pos) override;
    void dataDroppedAt(QPoint pos) override;

private:
    friend class GridArea;
    /// Tells the model the cell under `pos` (a point of this view).
    void pointerAt(QPoint pos);
    void layoutGrid();
    void updateScrollBars();
    int rowTop(long row) const;
    int colLeft(long col) const;
    int spanHeight(long row1, long row2) const;
    int spanWidth(long col1, long col2) const;
    long rowAtY(int y) const;
    long colAtX(int x) const;
    void paint(QPainter& painter, const QRect& exposed);
    void paintPart(QPainter& painter, const std::vector<long>& rows, const std::vector<long>& cols,
                   const QRect& clip, std::vector<CellRange>& drawn);
    void paintCell(QPainter& painter, const QRect& rect, long row, long col);
    void ensureVisible(long row, long col);
    void mousePressed(QMouseEvent* event);
    void mouseReleased(QMouseEvent* event);
    void mouseDoubleClicked(QMouseEvent* event);
    void mouseMoved(QMouseEvent* event);
    bool keyPressed(QKeyEvent* event);
    void scrolledByUser();

    FlexGrid& grid_;
    GridArea* area_;
    bool dirty_ = true;
    std::vector<int> rowPrefix_;  ///< pixel offset of each row, from row 0
    std::vector<int> colPrefix_;
    long pressRow_ = -1;
    long pressCol_ = -1;
    QPoint pressPos_;
    bool pressed_ = false;
};

}  // namespace orbidex
