#pragma once
// A tree of nodes, each found by its key, with text, images by name, an expanded
// state and a selection.  Nodes are added under a relative node, or as roots.

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class TreeView;

// Where Nodes.Add puts a node, seen from its relative.
constexpr int tvwFirst = 0;
constexpr int tvwLast = 1;
constexpr int tvwNext = 2;
constexpr int tvwPrevious = 3;
constexpr int tvwChild = 4;

class Node : public PropertyOwner {
public:
    explicit Node(TreeView* owner) : owner_(owner) {}
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    Property<std::string> Text{this};
    Property<std::string> Tag{this};
    Property<std::string> Image{this};
    Property<std::string> SelectedImage{this};
    Property<std::string> ExpandedImage{this};
    Property<bool> Expanded{this, false};
    Property<bool> Selected{this, false};
    Property<bool> Bold{this, false};
    Property<OleColor> ForeColor{this, vbWindowText};

    const std::string& Key() const { return key_; }
    /// The node it stands under, or null for a root.
    Node* Parent() const { return parent_; }
    const std::vector<Node*>& Children() const { return children_; }
    /// The image to draw: the selected or expanded one when it applies and is set.
    std::string ShownImage() const;

    void PropertyChanged(const void* property) override;

private:
    friend class NodeCollection;
    TreeView* owner_;
    std::string key_;
    Node* parent_ = nullptr;
    std::vector<Node*> children_;
};

class NodeCollection {
public:
    explicit NodeCollection(TreeView& owner) : owner_(owner) {}
    NodeCollection(const NodeCollection&) = delete;
    NodeCollection& operator=(const NodeCollection&) = delete;

    /// Adds a node placed by `relationship` to the node keyed `relative` ("" for
    /// a root).  Null, and nothing added, when the relative is not there or the key
    /// is already taken.
    Node* Add(const std::string& relative, int relationship, const std::string& key, const std::string& text,
              const std::string& image = "", const std::string& selectedImage = "");
    /// The node with that key (without regard to case), or null.
    Node* Item(const std::string& key) const;
    long Count() const { return static_cast<long>(nodes_.size()); }
    /// Removes the node and everything under it.
    void Remove(const std::string& key);
    void Clear();
    /// The root nodes, in order.
    const std::vector<Node*>& Roots() const { return roots_; }

private:
    void removeTree(Node* node);
    std::vector<Node*>& siblingsOf(Node* node);

    TreeView& owner_;
    std::vector<std::unique_ptr<Node>> nodes_;
    std::vector<Node*> roots_;
    std::map<std::string, Node*> byKey_;  ///< keys in capitals
};

class TreeView : public Control {
public:
    TreeView(Form* form, std::string name);
    explicit TreeView(std::string name = "") : TreeView(nullptr, std::move(name)) {}

    NodeCollection Nodes{*this};
    Property<bool> HideSelection{this, true};
    Property<long> Indentation{this, 285};

    Node* SelectedItem() const { return selected_; }
    void SetSelectedItem(Node* node);

    std::function<void(Node& node)> onNodeClick;
    std::function<void(Node& node)> onExpand;
    std::function<void(Node& node)> onCollapse;

    /// A click on a node: selects it, then NodeClick and Click.
    void UserClickNode(Node& node);
    /// The user opened or closed a node: Expanded, then Expand or Collapse.
    void UserExpand(Node& node, bool expanded);

    unsigned long StructureVersion() const { return structureVersion_; }
    // Called by the nodes
    void NodeChanged(Node& node, const void* property);
    void NodeRemoved(Node& node);
    void StructureChanged();

private:
    Node* selected_ = nullptr;
    unsigned long structureVersion_ = 0;
};

}  // namespace orbidex
