#include "qt/views/ListViewWidget.h"

#include <QAbstractTableModel>
#include <QGuiApplication>
#include <QHeaderView>
#include <QListView>
#include <QMouseEvent>
#include <QTreeView>

#include "controls/ListView.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

/// The rows of a ListView as a Qt table.  It counts the rows it last reported, so
/// that the item view never hears of rows before it is told of them.
class ListViewItemModel : public QAbstractTableModel {
public:
    ListViewItemModel(ListView& list, ControlWidget& owner) : QAbstractTableModel(&owner), list_(list), owner_(owner) {}

    void reload() {
        beginResetModel();
        rows_ = static_cast<int>(list_.ListItems.Count());
        columns_ = std::max(1, static_cast<int>(list_.ColumnHeaders.Count()));
        endResetModel();
    }
    void contentChanged() {
        if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
        emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    }
    ListItem* itemAt(int row) const {
        return alive() && row >= 0 && row < rows_ ? list_.ListItems.Item(row + 1) : nullptr;
    }
    void setIconStyle(bool icons) { icons_ = icons; }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : columns_; }

    QVariant data(const QModelIndex& index, int role) const override {
        ListItem* item = itemAt(index.row());
        if (item == nullptr) return {};
        const int column = index.column();
        const ListSubItem* cell = column > 0 ? item->ListSubItems.Item(column) : nullptr;
        switch (role) {
            case Qt::DisplayRole: return ToQString(ListView::ColumnText(*item, column));
            case Qt::ToolTipRole: return ToQString(column == 0 ? item->ToolTipText() : cell ? cell->ToolTipText() : "");
            case Qt::FontRole: {
                QFont font = ToQFont(list_.FontName, list_.FontSize, list_.FontBold, list_.FontItalic);
                font.setBold(column == 0 ? item->Bold() : cell != nullptr && cell->Bold());
                return font;
            }
            case Qt::ForegroundRole: {
                if (item->Ghosted) return ToQColor(vbGrayText);
                return ToQColor(column == 0 ? item->ForeColor() : cell ? cell->ForeColor() : list_.ForeColor());
            }
            case Qt::CheckStateRole:
                if (column == 0 && list_.Checkboxes) return item->Checked ? Qt::Checked : Qt::Unchecked;
                return {};
            case Qt::DecorationRole: {
                if (column != 0)
                    return cell != nullptr && !cell->ReportIcon().empty() ? IconNamed(cell->ReportIcon) : QVariant();
                const std::string& first = icons_ ? item->Icon() : item->SmallIcon();
                const std::string& second = icons_ ? item->SmallIcon() : item->Icon();
                const std::string& name = first.empty() ? second : first;
                if (name.empty()) return {};
                return IconNamed(name);
            }
            case Qt::TextAlignmentRole: {
                const ColumnHeader* header = list_.ColumnHeaders.Item(column + 1);
                const int alignment = header != nullptr ? header->Alignment() : lvwColumnLeft;
                return QVariant::fromValue(Qt::AlignVCenter | (alignment == lvwColumnRight    ? Qt::AlignRight
                                                               : alignment == lvwColumnCenter ? Qt::AlignHCenter
                                                                                              : Qt::AlignLeft));
            }
            default: return {};
        }
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (!alive() || orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
        const ColumnHeader* header = list_.ColumnHeaders.Item(section + 1);
        return header != nullptr ? ToQString(header->Text) : QString();
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
        if (alive() && index.column() == 0 && list_.Checkboxes) flags |= Qt::ItemIsUserCheckable;
        return flags;
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override {
        ListItem* item = itemAt(index.row());
        if (item == nullptr || role != Qt::CheckStateRole) return false;
        list_.UserCheckItem(*item, value.toInt() == Qt::Checked);
        return true;
    }

private:
    /// The list goes before its view: what the view asks then has no answer.
    bool alive() const { return owner_.model() != nullptr; }

    ListView& list_;
    const ControlWidget& owner_;
    int rows_ = 0;
    int columns_ = 1;
    bool icons_ = false;
};

ListViewWidget::ListViewWidget(ListView& control, QWidget* parent)
    : ControlWidget(control, parent), list_(control), items_(new ListViewItemModel(control, *this)) {
    setDeferredRefresh(true);
    setDrawnWhenShown(true);
    refresh();
}

ListViewWidget::~ListViewWidget() = default;

QTreeView* ListViewWidget::treeView() const { return qobject_cast<QTreeView*>(view_); }

void ListViewWidget::build(bool report) {
    report_ = report;
    if (report) {
        auto* tree = new QTreeView;
        tree->setRootIsDecorated(false);
        tree->setItemsExpandable(false);
        tree->setUniformRowHeights(true);
        tree->setAllColumnsShowFocus(true);
        tree->header()->setSectionsMovable(false);
        tree->header()->setStretchLastSection(false);
        tree->header()->setSectionsClickable(true);
        connect(tree->header(), &QHeaderView::sectionClicked, this, [this](int section) {
            if (!syncing() && model() != nullptr) list_.UserClickColumn(section + 1);
        });
        connect(tree->header(), &QHeaderView::sectionResized, this, [this, tree](int section, int, int size) {
            if (syncing() || model() == nullptr) return;
            // A last column that fills the list keeps the width the program gave it.
            if (tree->header()->stretchLastSection() && section == tree->header()->count() - 1) return;
            if (ColumnHeader* column = list_.ColumnHeaders.Item(section + 1)) column->Width = PixelsToTwips(size);
        });
        view_ = tree;
    } else {
        auto* icons = new QListView;
        icons->setResizeMode(QListView::Adjust);
        view_ = icons;
    }
    view_->setModel(items_);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    setInner(view_, view_->viewport(), view_);
    connect(view_, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (syncing() || model() == nullptr) return;
        if (ListItem* item = items_->itemAt(index.row()))
            list_.UserClickItem(*item, QGuiApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
    });
    connect(view_, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (syncing() || model() == nullptr) return;
        if (ListItem* item = items_->itemAt(index.row())) list_.UserDblClickItem(*item);
    });
    // A key that moves to another row selects it as a click does (a click tells of
    // itself when the button comes up).
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (syncing() || model() == nullptr || QGuiApplication::mouseButtons() != Qt::NoButton) return;
        ListItem* item = items_->itemAt(current.row());
        if (item != nullptr && item != list_.SelectedItem()) list_.UserClickItem(*item);
    });
    shownVersion_ = ~0UL;
}

void ListViewWidget::applyColumnWidths() {
    QTreeView* tree = treeView();
    if (tree == nullptr) return;
    for (long i = 1; i <= list_.ColumnHeaders.Count(); ++i) {
        const long width = list_.ColumnHeaders(i).Width;
        tree->header()->resizeSection(static_cast<int>(i - 1), TwipsToPixels(width));
        // A column of no width is not shown, however narrow the header lets a column be.
        tree->header()->setSectionHidden(static_cast<int>(i - 1), width <= 0);
    }
}

void ListViewWidget::selectAsModel() {
    QItemSelection selection;
    for (int row = 0; row < items_->rowCount({}); ++row)
        if (items_->itemAt(row)->Selected) selection.select(items_->index(row, 0), items_->index(row, items_->columnCount({}) - 1));
    view_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (ListItem* selected = list_.SelectedItem())
        view_->selectionModel()->setCurrentIndex(items_->index(static_cast<int>(selected->Index() - 1), 0),
                                                 QItemSelectionModel::NoUpdate);
}

void ListViewWidget::syncFromModel() {
    const bool report = list_.View == lvwReport;
    if (view_ == nullptr || report != report_) build(report);
    items_->setIconStyle(list_.View == lvwIcon);
    if (shownVersion_ != list_.StructureVersion()) {
        items_->reload();
        shownVersion_ = list_.StructureVersion();
    } else {
        items_->contentChanged();
    }
    if (QTreeView* tree = treeView()) {
        applyColumnWidths();
        tree->setHeaderHidden(list_.HideColumnHeaders);
        tree->header()->setStretchLastSection(list_.LastColumnFills);
        tree->header()->setSortIndicatorShown(list_.Sorted);
        tree->header()->setSortIndicator(static_cast<int>(list_.SortKey),
                                         list_.SortOrder == lvwDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
    } else if (auto* icons = qobject_cast<QListView*>(view_)) {
        const bool large = list_.View == lvwIcon;
        icons->setViewMode(large ? QListView::IconMode : QListView::ListMode);
        icons->setIconSize(large ? QSize(32, 32) : QSize(16, 16));
        icons->setFlow(large ? QListView::LeftToRight : QListView::TopToBottom);
        icons->setWrapping(large);
    }
    view_->setSelectionMode(list_.MultiSelect ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    selectAsModel();
    applyColors(view_, QPalette::Base, QPalette::Text);
    applyFont(view_);
}

bool ListViewWidget::eventFilter(QObject* watched, QEvent* event) {
    const bool pressOrMove = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove;
    if (pressOrMove && view_ != nullptr && watched == view_->viewport() && model() != nullptr) {
        const QModelIndex index = view_->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
        const ListItem* item = index.isValid() ? items_->itemAt(index.row()) : nullptr;
        list_.UserMouseAt(item != nullptr ? item->Index() : 0);
    }
    if (event->type() != QEvent::MouseButtonDblClick || view_ == nullptr || watched != view_->viewport() || syncing() ||
        model() == nullptr)
        return ControlWidget::eventFilter(watched, event);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton || view_->indexAt(mouse->position().toPoint()).isValid())
        return ControlWidget::eventFilter(watched, event);
    // The handler may open a dialog, during which this view can be rebuilt: the
    // event is used up here and nothing of the view is touched after it.
    list_.UserDblClick();
    return true;
}

}  // namespace orbidex
