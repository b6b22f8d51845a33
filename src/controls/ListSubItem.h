#pragma once
// The cells of a list view's row behind its first one, counted from 1, each with
// its own text, weight and colour.

#include <memory>
#include <string>
#include <vector>

#include "controls/OleColor.h"
#include "controls/Property.h"

namespace orbidex {

class ListItem;

class ListSubItem : public PropertyOwner {
public:
    explicit ListSubItem(ListItem* owner) : owner_(owner) {}
    ListSubItem(const ListSubItem&) = delete;
    ListSubItem& operator=(const ListSubItem&) = delete;

    Property<std::string> Text{this};
    Property<bool> Bold{this, false};
    Property<OleColor> ForeColor{this, vbWindowText};
    Property<std::string> Key{this};
    Property<std::string> Tag{this};
    Property<std::string> ToolTipText{this};
    /// The name of the icon drawn in the cell, "" for none.
    Property<std::string> ReportIcon{this};
    long Index() const { return index_; }

    void PropertyChanged(const void* property) override;
    /// Back to an empty cell, without telling anyone.
    void Reset();

private:
    friend class SubItemCollection;
    ListItem* owner_;
    long index_ = 0;
};

class SubItemCollection {
public:
    explicit SubItemCollection(ListItem* owner) : owner_(owner), detached_(nullptr) {}
    SubItemCollection(const SubItemCollection&) = delete;
    SubItemCollection& operator=(const SubItemCollection&) = delete;

    ListSubItem& Add(const std::string& text = "", const std::string& key = "");
    /// The cell at `index` (from 1).  A bad index gives a cell of no row.
    ListSubItem& operator()(long index);
    ListSubItem* Item(long index);
    const ListSubItem* Item(long index) const;
    long Count() const { return static_cast<long>(cells_.size()); }
    void Remove(long index);
    void Clear();
    /// Adds empty cells until there are `count`.
    void GrowTo(long count);

private:
    void changed();

    ListItem* owner_;
    std::vector<std::unique_ptr<ListSubItem>> cells_;
    ListSubItem detached_;
};

}  // namespace orbidex
