#include "controls/ListBox.h"

#include "foundation/VbString.h"

namespace orbidex {

ListBox::ListBox(Form* form, std::string name)
    : ListControl(form, std::move(name)),
      Text([this] { return List(index_); },
           [this](const std::string& text) {
               for (long i = 0; i < ListCount(); ++i)
                   if (EqualsText(List(i), text)) {
                       ListIndex = i;
                       return;
                   }
           }) {
    BackColor = vbWindowBackground;
}

bool ListBox::Selected(long index) const {
    return index >= 0 && index < ListCount() && items_[static_cast<size_t>(index)].selected;
}

void ListBox::SetSelected(long index, bool selected) {
    if (index < 0 || index >= ListCount()) return;
    auto& entry = items_[static_cast<size_t>(index)];
    if (entry.selected == selected) return;
    entry.selected = selected;
    const bool single = Style == vbListBoxStandard && MultiSelect == vbMultiSelectNone;
    if (single && selected) {
        for (long i = 0; i < ListCount(); ++i)
            if (i != index) items_[static_cast<size_t>(i)].selected = false;
        ListIndex = index;
    }
    Changed();
}

long ListBox::SelCount() const {
    long count = 0;
    for (const auto& entry : items_) count += entry.selected ? 1 : 0;
    return count;
}

void ListBox::UserCheck(long index, bool checked) {
    if (!Enabled || index < 0 || index >= ListCount()) return;
    SetSelected(index, checked);
    Raise(onItemCheck, index);
}

void ListBox::IndexChanged() {
    // In a plain single-choice list the highlight follows the chosen entry.
    if (Style == vbListBoxStandard && MultiSelect == vbMultiSelectNone)
        for (long i = 0; i < ListCount(); ++i) items_[static_cast<size_t>(i)].selected = i == index_;
    ListControl::IndexChanged();
}

}  // namespace orbidex
