#pragma once
// The rows of a list view, counted from 1.  A row has its text, a key that finds
// it, a tag, an icon (by name), weight, colour, a tick and a selection; the cells
// behind the first are its sub-items.

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "controls/ListSubItem.h"
#include "controls/OleColor.h"
#include "controls/Property.h"

namespace orbidex {

class ListView;

class ListItem : public PropertyOwner {
public:
    explicit ListItem(ListView* owner) : owner_(owner) {}
    ListItem(const ListItem&) = delete;
    ListItem& operator=(const ListItem&) = delete;

    Property<std::string> Text{this};
    /// The key of the row; unique in its list without regard to case.
    Property<std::string> Key{this};
    Property<std::string> Tag{this};
    Property<std::string> Icon{this};
    Property<std::string> SmallIcon{this};
    Property<std::string> ToolTipText{this};
    Property<bool> Bold{this, false};
    Property<OleColor> ForeColor{this, vbWindowText};
    Property<bool> Checked{this, false};
    Property<bool> Selected{this, false};
    Property<bool> Ghosted{this, false};
    SubItemCollection ListSubItems{this};

    /// The text of sub-item `index` (from 1), or "" when it has none.
    std::string SubItems(long index) const;
    /// Sets the text of sub-item `index`, adding empty sub-items before it as needed.
    void SetSubItems(long index, const std::string& text);
    /// The row's place, from 1; 0 for a row of no list.
    long Index() const { return index_; }
    ListView* ListViewOf() const { return owner_; }

    void PropertyChanged(const void* property) override;
    /// Called by the sub-items when one of them changed.
    void SubItemChanged();
    /// Back to an empty row, without telling anyone.
    void Reset();

private:
    friend class ListItemCollection;
    ListView* owner_;
    long index_ = 0;
    std::string registeredKey_;  ///< the key the list knows the row by
};

class ListItemCollection {
public:
    explicit ListItemCollection(ListView& owner) : owner_(owner), detached_(nullptr) {}
    ListItemCollection(const ListItemCollection&) = delete;
    ListItemCollection& operator=(const ListItemCollection&) = delete;

    /// Adds a row at the end (or, in a sorted list, in its place).  A key that is
    /// already taken is not given to the new row, so that no row is lost.
    ListItem& Add(const std::string& text = "", const std::string& key = "", const std::string& icon = "",
                  const std::string& smallIcon = "");
    /// Adds a row at place `index` (from 1).
    ListItem& Insert(long index, const std::string& text = "", const std::string& key = "",
                     const std::string& icon = "", const std::string& smallIcon = "");
    /// The row at `index` (from 1).  A bad index gives a row of no list, so that
    /// what is done to it changes nothing.
    ListItem& operator()(long index);
    ListItem* Item(long index);
    /// The row with that key (without regard to case), or null.
    ListItem* Item(const std::string& key);
    bool Exists(const std::string& key) { return Item(key) != nullptr; }
    long Count() const { return static_cast<long>(items_.size()); }
    void Remove(long index);
    void Clear();

    /// Called by ListView and ListItem.
    std::vector<std::unique_ptr<ListItem>>& Rows() { return items_; }
    const std::vector<std::unique_ptr<ListItem>>& Rows() const { return items_; }
    /// Numbers the rows from place `from` (from 0) on; those before keep their numbers.
    void Renumber(size_t from = 0);
    /// A row's key changed: keeps the key index right; a key that another row
    /// has is refused and the row keeps its old one.
    void KeyChanged(ListItem& item);

private:
    ListItem& insertAt(size_t position, const std::string& text, const std::string& key, const std::string& icon,
                       const std::string& smallIcon);

    ListView& owner_;
    std::vector<std::unique_ptr<ListItem>> items_;
    std::map<std::string, ListItem*> byKey_;  ///< keys in capitals
    ListItem detached_;
};

}  // namespace orbidex
