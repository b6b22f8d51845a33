#include "qt/views/ListBoxWidget.h"

#include <QListWidget>

#include "controls/ListBox.h"
#include "qt/QtText.h"

namespace orbidex {

ListBoxWidget::ListBoxWidget(ListBox& control, QWidget* parent)
    : ControlWidget(control, parent), box_(control), list_(new QListWidget) {
    setDeferredRefresh(true);
    setInner(list_, list_->viewport(), list_);
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        if (syncing() || model() == nullptr || box_.Style != vbListBoxCheckbox) return;
        box_.UserCheck(list_->row(item), item->checkState() == Qt::Checked);
    });
    connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (syncing() || model() == nullptr) return;
        const long row = list_->row(item);
        if (box_.ListIndex == row)
            box_.UserClick();  // the chosen entry again: a click all the same
        else
            box_.UserSelect(row);
    });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem*) {
        if (!syncing() && model() != nullptr) box_.UserDblClick();
    });
    refresh();
}

void ListBoxWidget::syncFromModel() {
    const bool ticks = box_.Style == vbListBoxCheckbox;
    if (shownVersion_ != box_.ListVersion()) {
        list_->clear();
        for (long i = 0; i < box_.ListCount(); ++i) list_->addItem(ToQString(box_.List(i)));
        shownVersion_ = box_.ListVersion();
    }
    list_->setSelectionMode(ticks || box_.MultiSelect == vbMultiSelectNone ? QAbstractItemView::SingleSelection
                                                                          : QAbstractItemView::MultiSelection);
    for (int i = 0; i < list_->count(); ++i) {
        QListWidgetItem* item = list_->item(i);
        if (ticks) {
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(box_.Selected(i) ? Qt::Checked : Qt::Unchecked);
            item->setSelected(i == box_.ListIndex);
        } else {
            item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
            item->setData(Qt::CheckStateRole, QVariant());
            item->setSelected(box_.Selected(i));
        }
    }
    if (box_.ListIndex >= 0) list_->setCurrentRow(static_cast<int>(box_.ListIndex), QItemSelectionModel::NoUpdate);
    applyColors(list_, QPalette::Base, QPalette::Text);
    applyFont(list_);
}

}  // namespace orbidex
