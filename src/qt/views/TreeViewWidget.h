#pragma once
// Draws a TreeView: nodes with their text and image, opened or closed, and the
// selected node; hands clicks, opening and closing to the model.

#include <QHash>

#include "qt/views/ControlWidget.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace orbidex {

class TreeView;
class Node;

class TreeViewWidget : public ControlWidget {
    Q_OBJECT
public:
    TreeViewWidget(TreeView& model, QWidget* parent = nullptr);
    QTreeWidget* treeWidget() const { return tree_; }
    /// The row that draws `node`, or null.
    QTreeWidgetItem* itemOf(const Node* node) const { return items_.value(node); }

protected:
    void syncFromModel() override;

private:
    void rebuild();
    void addNode(Node* node, QTreeWidgetItem* parent);
    Node* nodeOf(QTreeWidgetItem* item) const;

    TreeView& treeModel_;
    QTreeWidget* tree_;
    QHash<const Node*, QTreeWidgetItem*> items_;
    QHash<QTreeWidgetItem*, Node*> nodes_;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
