#include "controls/TabStrip.h"

#include "foundation/VbString.h"

namespace orbidex {

void Tab::PropertyChanged(const void* property) {
    if (owner_ != nullptr) owner_->TabChanged(*this, property);
}

void Tab::Reset() {
    for (auto* text : {&Caption, &Key, &Tag, &ToolTipText, &Image}) text->setQuietly("");
    Selected.setQuietly(false);
}

Tab& TabCollection::Add(const std::string& caption, const std::string& key, const std::string& image) {
    auto tab = std::make_unique<Tab>(&owner_);
    tab->Caption.setQuietly(caption);
    if (Item(key) == nullptr) tab->Key.setQuietly(key);
    tab->Image.setQuietly(image);
    tabs_.push_back(std::move(tab));
    renumber();
    Tab& added = *tabs_.back();
    owner_.StructureChanged();
    if (owner_.SelectedItem() == nullptr) added.Selected = true;
    return added;
}

Tab& TabCollection::detached() {
    detached_.Reset();
    return detached_;
}

Tab& TabCollection::operator()(long index) {
    Tab* tab = Item(index);
    return tab != nullptr ? *tab : detached();
}

Tab& TabCollection::operator()(const std::string& key) {
    Tab* tab = Item(key);
    return tab != nullptr ? *tab : detached();
}

Tab* TabCollection::Item(long index) const {
    return index >= 1 && index <= Count() ? tabs_[static_cast<size_t>(index - 1)].get() : nullptr;
}

Tab* TabCollection::Item(const std::string& key) const {
    for (const auto& tab : tabs_)
        if (!key.empty() && EqualsText(tab->Key, key)) return tab.get();
    return nullptr;
}

void TabCollection::Remove(long index) {
    Tab* tab = Item(index);
    if (tab == nullptr) return;
    owner_.TabRemoved(*tab);
    tabs_.erase(tabs_.begin() + (index - 1));
    renumber();
    owner_.StructureChanged();
}

void TabCollection::Clear() {
    for (auto& tab : tabs_) owner_.TabRemoved(*tab);
    tabs_.clear();
    owner_.StructureChanged();
}

void TabCollection::renumber() {
    for (size_t i = 0; i < tabs_.size(); ++i) tabs_[i]->index_ = static_cast<long>(i + 1);
}

TabStrip::TabStrip(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbButtonFace; }

void TabStrip::SetSelectedItem(Tab* tab) {
    if (tab != nullptr) tab->Selected = true;
}

void TabStrip::TabChanged(Tab& tab, const void* property) {
    if (property == &tab.Selected) {
        if (!tab.Selected) {
            // A strip always has a selected tab: clearing it alone changes nothing.
            if (selected_ == &tab) tab.Selected.setQuietly(true);
            return;
        }
        if (selected_ != nullptr && selected_ != &tab) selected_->Selected.setQuietly(false);
        selected_ = &tab;
        Changed();
        Raise(onClick);
        return;
    }
    Changed();
}

void TabStrip::TabRemoved(Tab& tab) {
    if (selected_ == &tab) selected_ = nullptr;
}

void TabStrip::StructureChanged() {
    ++structureVersion_;
    Changed();
}

}  // namespace orbidex
