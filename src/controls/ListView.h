#pragma once
// A list view: rows (ListItems) with sub-items under columns (ColumnHeaders) in
// report style, or icons.  The program fills it; the user clicks, ticks and sorts.
//
// Sorting: with Sorted on, the rows stand in the order of the column SortKey (0
// the row's text, k its sub-item k), compared as text without regard to case,
// ascending or descending by SortOrder; equal rows keep their order.  Rows added
// while Sorted is on go into their place.

#include <string>
#include <vector>

#include "controls/ColumnHeader.h"
#include "controls/Control.h"
#include "controls/ListItem.h"

namespace orbidex {

constexpr int lvwIcon = 0;
constexpr int lvwSmallIcon = 1;
constexpr int lvwList = 2;
constexpr int lvwReport = 3;

constexpr int lvwAscending = 0;
constexpr int lvwDescending = 1;

class ListView : public Control {
public:
    ListView(Form* form, std::string name);
    explicit ListView(std::string name = "") : ListView(nullptr, std::move(name)) {}

    ColumnHeaderCollection ColumnHeaders{*this};
    ListItemCollection ListItems{*this};

    Property<int> View{this, lvwReport};
    Property<bool> Checkboxes{this, false};
    Property<bool> MultiSelect{this, false};
    Property<bool> FullRowSelect{this, false};
    Property<bool> GridLines{this, false};
    Property<bool> HideColumnHeaders{this, false};
    Property<bool> HideSelection{this, true};
    Property<bool> Sorted{this, false};
    Property<long> SortKey{this, 0};
    Property<int> SortOrder{this, lvwAscending};
    /// The last column takes the width the others leave, however wide it was made.
    Property<bool> LastColumnFills{this, false};

    /// The selected row (the last one chosen when several are), or null.
    ListItem* SelectedItem() const { return selected_; }
    /// Selects `item` alone; null clears the selection.
    void SetSelectedItem(ListItem* item);
    /// The row under the mouse at the user's last press or move over the list, or null.
    ListItem* MouseItem() { return ListItems.Item(mouseIndex_); }
    /// The first row whose text equals `text` without regard to case, or null.
    ListItem* FindItem(const std::string& text);
    /// The text of column `column` of a row: 0 its text, k its sub-item k.
    static std::string ColumnText(const ListItem& item, long column);

    std::function<void(ListItem& item)> onItemClick;
    std::function<void(ListItem& item)> onItemCheck;
    std::function<void(ColumnHeader& column)> onColumnClick;

    // What the user does
    /// A click on a row: selects it alone (or, with `extend` in a multi-select
    /// list, adds it), then ItemClick and Click.
    void UserClickItem(ListItem& item, bool extend = false);
    /// A double click on a row: selects it, then DblClick.
    void UserDblClickItem(ListItem& item);
    /// The user ticked or cleared a row's box: Checked, then ItemCheck.
    void UserCheckItem(ListItem& item, bool checked);
    /// A click on the heading of column `index` (from 1): ColumnClick.
    void UserClickColumn(long index);
    /// The mouse is over the row `index` (from 1; 0 for none), before the event of
    /// the press or move is raised.
    void UserMouseAt(long index) { mouseIndex_ = index; }

    /// A counter that moves when rows or columns are added, removed or reordered
    /// (views compare it).
    unsigned long StructureVersion() const { return structureVersion_; }

    // Called by the rows, cells and columns
    void ItemChanged(ListItem& item, const void* property);
    void StructureChanged();
    void ContentChanged() { Changed(); }
    /// Where a row added now goes, from 0, in a sorted list.
    size_t SortedPosition(const std::string& text) const;
    void ItemRemoved(ListItem& item);

    void PropertyChanged(const void* property) override;

private:
    void sortRows();
    bool before(const ListItem& a, const ListItem& b) const;

    ListItem* selected_ = nullptr;
    long mouseIndex_ = 0;
    unsigned long structureVersion_ = 0;
};

}  // namespace orbidex
