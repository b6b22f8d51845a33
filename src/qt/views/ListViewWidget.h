#pragma once
// Draws a ListView: in report style a table with a heading per column, each cell
// in its own weight and colour, with tick boxes and icons; in the icon styles a
// field of icons.  Clicks, double clicks, ticks and clicks on headings go to the
// model; sorting is the model's.

#include "qt/views/ControlWidget.h"

class QAbstractItemView;
class QTreeView;
class QListView;

namespace orbidex {

class ListView;
class ListViewItemModel;

class ListViewWidget : public ControlWidget {
    Q_OBJECT
public:
    ListViewWidget(ListView& model, QWidget* parent = nullptr);
    ~ListViewWidget() override;
    /// The item view in use: a QTreeView in report style, a QListView otherwise.
    QAbstractItemView* itemView() const { return view_; }
    QTreeView* treeView() const;

protected:
    void syncFromModel() override;
    /// A double click off the rows (on an empty list above all) is one on the list.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build(bool report);
    void selectAsModel();
    void applyColumnWidths();

    ListView& list_;
    ListViewItemModel* items_;
    QAbstractItemView* view_ = nullptr;
    bool report_ = false;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
