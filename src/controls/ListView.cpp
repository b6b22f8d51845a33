#include "controls/ListView.h"

#include <algorithm>

#include "foundation/VbString.h"

namespace orbidex {

// Columns ---------------------------------------------------------------------

void ColumnHeader::PropertyChanged(const void*) {
    if (owner_ != nullptr) owner_->ContentChanged();
}

ColumnHeader& ColumnHeaderCollection::Add(const std::string& text, long width, int alignment, const std::string& key) {
    auto column = std::make_unique<ColumnHeader>(&owner_);
    column->Text.setQuietly(text);
    column->Width.setQuietly(width < 0 ? 1440 : width);
    column->Alignment.setQuietly(alignment);
    column->Key.setQuietly(key);
    columns_.push_back(std::move(column));
    renumber();
    owner_.StructureChanged();
    return *columns_.back();
}

ColumnHeader* ColumnHeaderCollection::Item(long index) {
    return index >= 1 && index <= Count() ? columns_[static_cast<size_t>(index - 1)].get() : nullptr;
}

ColumnHeader& ColumnHeaderCollection::operator()(long index) {
    if (ColumnHeader* column = Item(index)) return *column;
    detached_.Text.setQuietly("");
    return detached_;
}

ColumnHeader* ColumnHeaderCollection::Item(const std::string& key) {
    for (auto& column : columns_)
        if (!key.empty() && EqualsText(column->Key, key)) return column.get();
    return nullptr;
}

void ColumnHeaderCollection::Remove(long index) {
    if (Item(index) == nullptr) return;
    columns_.erase(columns_.begin() + (index - 1));
    renumber();
    owner_.StructureChanged();
}

void ColumnHeaderCollection::Clear() {
    columns_.clear();
    owner_.StructureChanged();
}

void ColumnHeaderCollection::renumber() {
    for (size_t i = 0; i < columns_.size(); ++i) columns_[i]->index_ = static_cast<long>(i + 1);
}

// Sub-items -------------------------------------------------------------------

void ListSubItem::PropertyChanged(const void*) {
    if (owner_ != nullptr) owner_->SubItemChanged();
}

void ListSubItem::Reset() {
    Text.setQuietly("");
    Bold.setQuietly(false);
    ForeColor.setQuietly(vbWindowText);
    Key.setQuietly("");
    Tag.setQuietly("");
    ToolTipText.setQuietly("");
    ReportIcon.setQuietly("");
}

ListSubItem& SubItemCollection::Add(const std::string& text, const std::string& key) {
    auto cell = std::make_unique<ListSubItem>(owner_);
    cell->Text.setQuietly(text);
    cell->Key.setQuietly(key);
    cell->index_ = Count() + 1;
    cells_.push_back(std::move(cell));
    changed();
    return *cells_.back();
}

ListSubItem* SubItemCollection::Item(long index) {
    return index >= 1 && index <= Count() ? cells_[static_cast<size_t>(index - 1)].get() : nullptr;
}

const ListSubItem* SubItemCollection::Item(long index) const {
    return index >= 1 && index <= Count() ? cells_[static_cast<size_t>(index - 1)].get() : nullptr;
}

ListSubItem& SubItemCollection::operator()(long index) {
    if (ListSubItem* cell = Item(index)) return *cell;
    detached_.Reset();
    return detached_;
}

void SubItemCollection::Remove(long index) {
    if (Item(index) == nullptr) return;
    cells_.erase(cells_.begin() + (index - 1));
    for (size_t i = 0; i < cells_.size(); ++i) cells_[i]->index_ = static_cast<long>(i + 1);
    changed();
}

void SubItemCollection::Clear() {
    cells_.clear();
    changed();
}

void SubItemCollection::GrowTo(long count) {
    while (Count() < count) {
        auto cell = std::make_unique<ListSubItem>(owner_);
        cell->index_ = Count() + 1;
        cells_.push_back(std::move(cell));
    }
}

void SubItemCollection::changed() {
    if (owner_ != nullptr) owner_->SubItemChanged();
}

// Rows ------------------------------------------------------------------------

std::string ListItem::SubItems(long index) const {
    const ListSubItem* cell = ListSubItems.Item(index);
    return cell != nullptr ? cell->Text() : std::string();
}

void ListItem::SetSubItems(long index, const std::string& text) {
    if (index < 1) return;
    ListSubItems.GrowTo(index);
    ListSubItems(index).Text = text;
    SubItemChanged();
}

void ListItem::PropertyChanged(const void* property) {
    if (owner_ != nullptr) owner_->ItemChanged(*this, property);
}

void ListItem::SubItemChanged() {
    if (owner_ != nullptr) owner_->ContentChanged();
}

void ListItem::Reset() {
    for (auto* text : {&Text, &Key, &Tag, &Icon, &SmallIcon, &ToolTipText}) text->setQuietly("");
    for (auto* flag : {&Bold, &Checked, &Selected, &Ghosted}) flag->setQuietly(false);
    ForeColor.setQuietly(vbWindowText);
}

ListItem& ListItemCollection::Add(const std::string& text, const std::string& key, const std::string& icon,
                                  const std::string& smallIcon) {
    const size_t position = owner_.Sorted ? owner_.SortedPosition(text) : items_.size();
    return insertAt(position, text, key, icon, smallIcon);
}

ListItem& ListItemCollection::Insert(long index, const std::string& text, const std::string& key,
                                     const std::string& icon, const std::string& smallIcon) {
    const long position = std::clamp<long>(index, 1, Count() + 1) - 1;
    return insertAt(static_cast<size_t>(position), text, key, icon, smallIcon);
}

ListItem& ListItemCollection::insertAt(size_t position, const std::string& text, const std::string& key,
                                       const std::string& icon, const std::string& smallIcon) {
    auto item = std::make_unique<ListItem>(&owner_);
    item->Text.setQuietly(text);
    item->Icon.setQuietly(icon);
    item->SmallIcon.setQuietly(smallIcon);
    if (!key.empty() && byKey_.emplace(UCase(key), item.get()).second) {
        item->Key.setQuietly(key);
        item->registeredKey_ = key;
    }
    ListItem& added = *item;
    items_.insert(items_.begin() + static_cast<long>(position), std::move(item));
    Renumber(position);  // a row added at the end numbers itself alone
    owner_.StructureChanged();
    return added;
}

ListItem* ListItemCollection::Item(long index) {
    return index >= 1 && index <= Count() ? items_[static_cast<size_t>(index - 1)].get() : nullptr;
}

ListItem& ListItemCollection::operator()(long index) {
    if (ListItem* item = Item(index)) return *item;
    detached_.Reset();
    return detached_;
}

ListItem* ListItemCollection::Item(const std::string& key) {
    if (key.empty()) return nullptr;
    const auto it = byKey_.find(UCase(key));
    return it == byKey_.end() ? nullptr : it->second;
}

void ListItemCollection::Remove(long index) {
    ListItem* item = Item(index);
    if (item == nullptr) return;
    owner_.ItemRemoved(*item);
    if (!item->registeredKey_.empty()) byKey_.erase(UCase(item->registeredKey_));
    items_.erase(items_.begin() + (index - 1));
    Renumber();
    owner_.StructureChanged();
}

void ListItemCollection::Clear() {
    for (auto& item : items_) owner_.ItemRemoved(*item);
    items_.clear();
    byKey_.clear();
    owner_.StructureChanged();
}

void ListItemCollection::Renumber(size_t from) {
    for (size_t i = from; i < items_.size(); ++i) items_[i]->index_ = static_cast<long>(i + 1);
}

void ListItemCollection::KeyChanged(ListItem& item) {
    const std::string wanted = item.Key;
    if (EqualsText(wanted, item.registeredKey_)) {
        item.registeredKey_ = wanted;
        return;
    }
    if (!wanted.empty() && byKey_.count(UCase(wanted)) != 0) {
        item.Key.setQuietly(item.registeredKey_);
        return;
    }
    if (!item.registeredKey_.empty()) byKey_.erase(UCase(item.registeredKey_));
    if (!wanted.empty()) byKey_[UCase(wanted)] = &item;
    item.registeredKey_ = wanted;
}

// The list view -----------------------------------------------------------------

ListView::ListView(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbWindowBackground; }

void ListView::SetSelectedItem(ListItem* item) {
    if (item != nullptr && item->ListViewOf() == this) {
        for (auto& row : ListItems.Rows())
            if (row.get() != item) row->Selected.setQuietly(false);
        if (item->Selected) {
            selected_ = item;
            Changed();
        } else {
            item->Selected = true;
        }
        return;
    }
    for (auto& row : ListItems.Rows()) row->Selected.setQuietly(false);
    selected_ = nullptr;
    Changed();
}

ListItem* ListView::FindItem(const std::string& text) {
    for (auto& row : ListItems.Rows())
        if (EqualsText(row->Text, text)) return row.get();
    return nullptr;
}

std::string ListView::ColumnText(const ListItem& item, long column) {
    return column <= 0 ? item.Text() : item.SubItems(column);
}

void ListView::UserClickItem(ListItem& item, bool extend) {
    if (!Enabled || item.ListViewOf() != this) return;
    if (extend && MultiSelect)
        item.Selected = true;
    else
        SetSelectedItem(&item);
    Raise(onItemClick, item);
    Raise(onClick);
}

void ListView::UserDblClickItem(ListItem& item) {
    if (!Enabled || item.ListViewOf() != this) return;
    if (selected_ != &item) SetSelectedItem(&item);
    Raise(onDblClick);
}

void ListView::UserCheckItem(ListItem& item, bool checked) {
    if (!Enabled || item.ListViewOf() != this) return;
    item.Checked = checked;
    Raise(onItemCheck, item);
}

void ListView::UserClickColumn(long index) {
    if (ColumnHeader* column = ColumnHeaders.Item(index)) Raise(onColumnClick, *column);
}

void ListView::ItemChanged(ListItem& item, const void* property) {
    if (property == &item.Key) ListItems.KeyChanged(item);
    if (property == &item.Selected) {
        if (item.Selected) {
            if (!MultiSelect)
                for (auto& row : ListItems.Rows())
                    if (row.get() != &item) row->Selected.setQuietly(false);
            selected_ = &item;
        } else if (selected_ == &item) {
            selected_ = nullptr;
            for (auto& row : ListItems.Rows())
                if (row->Selected) selected_ = row.get();
        }
    }
    Changed();
}

void ListView::ItemRemoved(ListItem& item) {
    if (selected_ == &item) selected_ = nullptr;
}

void ListView::StructureChanged() {
    ++structureVersion_;
    Changed();
}

bool ListView::before(const ListItem& a, const ListItem& b) const {
    const std::string left = UCase(ColumnText(a, SortKey));
    const std::string right = UCase(ColumnText(b, SortKey));
    return SortOrder == lvwDescending ? right < left : left < right;
}

size_t ListView::SortedPosition(const std::string& text) const {
    const auto& rows = ListItems.Rows();
    // A new row has no sub-items yet: sorted by a sub-item column it counts as "".
    const std::string key = UCase(SortKey <= 0 ? text : std::string());
    const auto it = std::upper_bound(rows.begin(), rows.end(), key, [&](const std::string& k, const auto& row) {
        const std::string other = UCase(ColumnText(*row, SortKey));
        return SortOrder == lvwDescending ? other < k : k < other;
    });
    return static_cast<size_t>(it - rows.begin());
}

void ListView::sortRows() {
    auto& rows = ListItems.Rows();
    std::stable_sort(rows.begin(), rows.end(), [this](const auto& a, const auto& b) { return before(*a, *b); });
    ListItems.Renumber();
    StructureChanged();
}

void ListView::PropertyChanged(const void* property) {
    const bool sortSetting = property == &Sorted || property == &SortKey || property == &SortOrder;
    if (sortSetting && Sorted) {
        sortRows();
        return;
    }
    Control::PropertyChanged(property);
}

}  // namespace orbidex
