#include "controls/TreeView.h"

#include <algorithm>

#include "foundation/VbString.h"

namespace orbidex {

std::string Node::ShownImage() const {
    if (Selected && !SelectedImage().empty()) return SelectedImage;
    if (Expanded && !ExpandedImage().empty()) return ExpandedImage;
    return Image;
}

void Node::PropertyChanged(const void* property) {
    if (owner_ != nullptr) owner_->NodeChanged(*this, property);
}

std::vector<Node*>& NodeCollection::siblingsOf(Node* node) {
    return node->parent_ != nullptr ? node->parent_->children_ : roots_;
}

Node* NodeCollection::Add(const std::string& relative, int relationship, const std::string& key,
                          const std::string& text, const std::string& image, const std::string& selectedImage) {
    Node* rel = relative.empty() ? nullptr : Item(relative);
    if (!relative.empty() && rel == nullptr) return nullptr;
    if (!key.empty() && Item(key) != nullptr) return nullptr;

    auto node = std::make_unique<Node>(&owner_);
    node->key_ = key;
    node->Text.setQuietly(text);
    node->Image.setQuietly(image);
    node->SelectedImage.setQuietly(selectedImage);
    Node* added = node.get();

    if (rel == nullptr) {
        roots_.push_back(added);
    } else if (relationship == tvwChild) {
        added->parent_ = rel;
        rel->children_.push_back(added);
    } else {
        added->parent_ = rel->parent_;
        std::vector<Node*>& siblings = siblingsOf(rel);
        auto at = std::find(siblings.begin(), siblings.end(), rel);
        if (relationship == tvwFirst)
            at = siblings.begin();
        else if (relationship == tvwLast)
            at = siblings.end();
        else if (relationship == tvwNext)
            ++at;
        siblings.insert(at, added);
    }
    nodes_.push_back(std::move(node));
    if (!key.empty()) byKey_[UCase(key)] = added;
    owner_.StructureChanged();
    return added;
}

Node* NodeCollection::Item(const std::string& key) const {
    if (key.empty()) return nullptr;
    const auto it = byKey_.find(UCase(key));
    return it == byKey_.end() ? nullptr : it->second;
}

void NodeCollection::Remove(const std::string& key) {
    Node* node = Item(key);
    if (node == nullptr) return;
    std::erase(siblingsOf(node), node);
    removeTree(node);
    owner_.StructureChanged();
}

void NodeCollection::removeTree(Node* node) {
    for (Node* child : node->children_) removeTree(child);
    owner_.NodeRemoved(*node);
    if (!node->key_.empty()) byKey_.erase(UCase(node->key_));
    std::erase_if(nodes_, [node](const std::unique_ptr<Node>& n) { return n.get() == node; });
}

void NodeCollection::Clear() {
    for (auto& node : nodes_) owner_.NodeRemoved(*node);
    nodes_.clear();
    roots_.clear();
    byKey_.clear();
    owner_.StructureChanged();
}

TreeView::TreeView(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbWindowBackground; }

void TreeView::SetSelectedItem(Node* node) {
    if (node != nullptr) {
        node->Selected = true;
        return;
    }
    if (selected_ != nullptr) selected_->Selected = false;
}

void TreeView::UserClickNode(Node& node) {
    if (!Enabled) return;
    node.Selected = true;
    Raise(onNodeClick, node);
    Raise(onClick);
}

void TreeView::UserExpand(Node& node, bool expanded) {
    if (node.Expanded == expanded) return;
    node.Expanded = expanded;
    if (expanded)
        Raise(onExpand, node);
    else
        Raise(onCollapse, node);
}

void TreeView::NodeChanged(Node& node, const void* property) {
    if (property == &node.Selected) {
        if (node.Selected) {
            if (selected_ != nullptr && selected_ != &node) selected_->Selected.setQuietly(false);
            selected_ = &node;
            // A selected node is shown: the nodes above it open.
            for (Node* up = node.Parent(); up != nullptr; up = up->Parent()) up->Expanded.setQuietly(true);
        } else if (selected_ == &node) {
            selected_ = nullptr;
        }
    }
    Changed();
}

void TreeView::NodeRemoved(Node& node) {
    if (selected_ == &node) selected_ = nullptr;
}

void TreeView::StructureChanged() {
    ++structureVersion_;
    Changed();
}

}  // namespace orbidex
