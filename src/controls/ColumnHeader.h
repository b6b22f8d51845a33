#pragma once
// The columns of a list view in report style, counted from 1.

#include <memory>
#include <string>
#include <vector>

#include "controls/Property.h"

namespace orbidex {

class ListView;

constexpr int lvwColumnLeft = 0;
constexpr int lvwColumnRight = 1;
constexpr int lvwColumnCenter = 2;

class ColumnHeader : public PropertyOwner {
public:
    explicit ColumnHeader(ListView* owner) : owner_(owner) {}
    ColumnHeader(const ColumnHeader&) = delete;
    ColumnHeader& operator=(const ColumnHeader&) = delete;

    Property<std::string> Text{this};
    Property<long> Width{this, 1440};  ///< twips
    Property<int> Alignment{this, lvwColumnLeft};
    Property<std::string> Key{this};
    Property<std::string> Tag{this};
    /// The column's place, from 1; 0 for a column that is in no list.
    long Index() const { return index_; }

    void PropertyChanged(const void* property) override;

private:
    friend class ColumnHeaderCollection;
    ListView* owner_;
    long index_ = 0;
};

class ColumnHeaderCollection {
public:
    explicit ColumnHeaderCollection(ListView& owner) : owner_(owner), detached_(nullptr) {}
    ColumnHeaderCollection(const ColumnHeaderCollection&) = delete;
    ColumnHeaderCollection& operator=(const ColumnHeaderCollection&) = delete;

    ColumnHeader& Add(const std::string& text = "", long width = 1440, int alignment = lvwColumnLeft,
                      const std::string& key = "");
    /// The column at `index` (from 1).  A bad index gives a column that belongs to
    /// no list, so that what is done to it changes nothing.
    ColumnHeader& operator()(long index);
    ColumnHeader* Item(long index);
    /// The column with that key (without regard to case), or null.
    ColumnHeader* Item(const std::string& key);
    long Count() const { return static_cast<long>(columns_.size()); }
    void Remove(long index);
    void Clear();

private:
    void renumber();

    ListView& owner_;
    std::vector<std::unique_ptr<ColumnHeader>> columns_;
    ColumnHeader detached_;
};

}  // namespace orbidex
