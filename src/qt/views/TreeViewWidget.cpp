#include "qt/views/TreeViewWidget.h"

#include <QHeaderView>
#include <QTreeWidget>

#include "controls/TreeView.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

TreeViewWidget::TreeViewWidget(TreeView& control, QWidget* parent)
    : ControlWidget(control, parent), treeModel_(control), tree_(new QTreeWidget) {
    setDeferredRefresh(true);
    setDrawnWhenShown(true);
    tree_->setHeaderHidden(true);
    tree_->setColumnCount(1);
    setInner(tree_, tree_->viewport(), tree_);
    connect(tree_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (syncing() || model() == nullptr) return;
        if (Node* node = nodeOf(item)) treeModel_.UserClickNode(*node);
    });
    connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (!syncing() && model() != nullptr) treeModel_.UserDblClick();
    });
    connect(tree_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
        if (syncing() || model() == nullptr) return;
        if (Node* node = nodeOf(item)) treeModel_.UserExpand(*node, true);
    });
    connect(tree_, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
        if (syncing() || model() == nullptr) return;
        if (Node* node = nodeOf(item)) treeModel_.UserExpand(*node, false);
    });
    refresh();
}

Node* TreeViewWidget::nodeOf(QTreeWidgetItem* item) const { return nodes_.value(item); }

void TreeViewWidget::addNode(Node* node, QTreeWidgetItem* parent) {
    auto* item = parent != nullptr ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree_);
    items_.insert(node, item);
    nodes_.insert(item, node);
    for (Node* child : node->Children()) addNode(child, item);
}

void TreeViewWidget::rebuild() {
    tree_->clear();
    items_.clear();
    nodes_.clear();
    for (Node* root : treeModel_.Nodes.Roots()) addNode(root, nullptr);
    shownVersion_ = treeModel_.StructureVersion();
}

void TreeViewWidget::syncFromModel() {
    if (shownVersion_ != treeModel_.StructureVersion()) rebuild();
    for (auto it = items_.cbegin(); it != items_.cend(); ++it) {
        const Node* node = it.key();
        QTreeWidgetItem* item = it.value();
        item->setText(0, ToQString(node->Text));
        item->setIcon(0, node->ShownImage().empty() ? QIcon() : IconNamed(node->ShownImage()));
        QFont font = ToQFont(treeModel_.FontName, treeModel_.FontSize, node->Bold, treeModel_.FontItalic);
        item->setFont(0, font);
        item->setForeground(0, ToQColor(node->ForeColor));
        item->setExpanded(node->Expanded);
    }
    tree_->setIndentation(TwipsToPixels(treeModel_.Indentation));
    tree_->setCurrentItem(itemOf(treeModel_.SelectedItem()));
    applyColors(tree_, QPalette::Base, QPalette::Text);
    applyFont(tree_);
}

}  // namespace orbidex
