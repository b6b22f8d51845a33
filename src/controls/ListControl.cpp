#include "controls/ListControl.h"

#include <algorithm>

#include "foundation/VbString.h"

namespace orbidex {

ListControl::ListControl(Form* form, std::string name)
    : Control(form, std::move(name)),
      ListIndex([this] { return index_; }, [this](const long& index) { setIndex(index); }) {}

void ListControl::AddItem(const std::string& text, long index) {
    if (index < -1 || index > ListCount()) return;
    if (index == -1) {
        index = ListCount();
        if (Sorted) {
            const std::string key = UCase(text);
            const auto it = std::upper_bound(items_.begin(), items_.end(), key,
                                             [](const std::string& k, const Entry& e) { return k < UCase(e.text); });
            index = static_cast<long>(it - items_.begin());
        }
    }
    items_.insert(items_.begin() + index, Entry{text});
    newIndex_ = index;
    if (index_ >= index) ++index_;
    ListChanged();
}

void ListControl::RemoveItem(long index) {
    if (!valid(index)) return;
    items_.erase(items_.begin() + index);
    if (index_ == index)
        index_ = -1;
    else if (index_ > index)
        --index_;
    ListChanged();
}

void ListControl::Clear() {
    items_.clear();
    index_ = -1;
    newIndex_ = -1;
    ListChanged();
}

std::string ListControl::List(long index) const { return valid(index) ? items_[static_cast<size_t>(index)].text : ""; }

void ListControl::SetList(long index, const std::string& text) {
    if (!valid(index)) return;
    items_[static_cast<size_t>(index)].text = text;
    ListChanged();
}

long ListControl::ItemData(long index) const { return valid(index) ? items_[static_cast<size_t>(index)].data : 0; }

void ListControl::SetItemData(long index, long value) {
    if (valid(index)) items_[static_cast<size_t>(index)].data = value;
}

void ListControl::setIndex(long index) {
    if (index != -1 && !valid(index)) return;
    if (index == index_) return;
    index_ = index;
    IndexChanged();
}

void ListControl::IndexChanged() {
    Changed();
    Raise(onClick);
}

void ListControl::ListChanged() {
    ++listVersion_;
    Changed();
}

}  // namespace orbidex
