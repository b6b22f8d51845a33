#pragma once
// What combo boxes and list boxes share: a list of texts, each with a number
// (ItemData), indexed from 0, and the index of the chosen entry (-1 for none).
// Choosing an entry, by the user or by the program, raises Click.

#include <cstdint>
#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class ListControl : public Control {
public:
    ListControl(Form* form, std::string name);

    /// Adds an entry at `index`, or at the end (in order when Sorted) when index is -1.
    void AddItem(const std::string& text, long index = -1);
    void RemoveItem(long index);
    void Clear();
    long ListCount() const { return static_cast<long>(items_.size()); }
    /// The entry's text, or "" when there is no such entry.
    std::string List(long index) const;
    void SetList(long index, const std::string& text);
    long ItemData(long index) const;
    void SetItemData(long index, long value);
    /// The index of the entry added last.
    long NewIndex() const { return newIndex_; }

    /// The chosen entry, -1 for none.  Assigning an index outside the list changes nothing.
    Accessor<long> ListIndex;
    /// Entries added at the end go into their place, without regard to case.
    Property<bool> Sorted{this, false};
    /// The first entry shown.
    Property<long> TopIndex{this, 0};

    /// A counter that moves when entries are added, removed or changed (views compare it).
    unsigned long ListVersion() const { return listVersion_; }

    /// The user chose entry `index`.
    void UserSelect(long index) {
        if (Enabled) ListIndex = index;
    }

protected:
    /// Called after the chosen index changed; raises Click.
    virtual void IndexChanged();
    /// Called after the entries changed.
    virtual void ListChanged();
    struct Entry {
        std::string text;
        long data = 0;
        bool selected = false;
    };
    std::vector<Entry> items_;
    long index_ = -1;

private:
    void setIndex(long index);
    bool valid(long index) const { return index >= 0 && index < ListCount(); }

    long newIndex_ = -1;
    unsigned long listVersion_ = 0;
};

}  // namespace orbidex
