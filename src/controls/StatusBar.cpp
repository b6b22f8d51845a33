#include "controls/StatusBar.h"

#include "foundation/VbString.h"

namespace orbidex {

void Panel::PropertyChanged(const void*) {
    if (owner_ != nullptr) owner_->ContentChanged();
}

void Panel::Reset() {
    for (auto* text : {&Text, &Key, &Tag, &ToolTipText}) text->setQuietly("");
    Width.setQuietly(1440);
    MinWidth.setQuietly(1440);
    AutoSize.setQuietly(sbrNoAutoSize);
    Alignment.setQuietly(0);
    Visible.setQuietly(true);
}

PanelCollection::PanelCollection(StatusBar& owner) : owner_(owner), detached_(nullptr) {
    panels_.push_back(std::make_unique<Panel>(&owner_));
    renumber();
}

Panel& PanelCollection::Add(const std::string& text, const std::string& key) {
    auto panel = std::make_unique<Panel>(&owner_);
    panel->Text.setQuietly(text);
    panel->Key.setQuietly(key);
    panels_.push_back(std::move(panel));
    renumber();
    owner_.StructureChanged();
    return *panels_.back();
}

Panel& PanelCollection::detached() {
    detached_.Reset();
    return detached_;
}

Panel& PanelCollection::operator()(long index) {
    Panel* panel = Item(index);
    return panel != nullptr ? *panel : detached();
}

Panel& PanelCollection::operator()(const std::string& key) {
    Panel* panel = Item(key);
    return panel != nullptr ? *panel : detached();
}

Panel* PanelCollection::Item(long index) const {
    return index >= 1 && index <= Count() ? panels_[static_cast<size_t>(index - 1)].get() : nullptr;
}

Panel* PanelCollection::Item(const std::string& key) const {
    for (const auto& panel : panels_)
        if (!key.empty() && EqualsText(panel->Key, key)) return panel.get();
    return nullptr;
}

void PanelCollection::Remove(long index) {
    if (Item(index) == nullptr) return;
    panels_.erase(panels_.begin() + (index - 1));
    renumber();
    owner_.StructureChanged();
}

void PanelCollection::Clear() {
    panels_.clear();
    owner_.StructureChanged();
}

void PanelCollection::renumber() {
    for (size_t i = 0; i < panels_.size(); ++i) panels_[i]->index_ = static_cast<long>(i + 1);
}

StatusBar::StatusBar(Form* form, std::string name) : Control(form, std::move(name)) {
    BackColor = vbButtonFace;
    ForeColor = vbButtonText;
}

void StatusBar::StructureChanged() {
    ++structureVersion_;
    Changed();
}

}  // namespace orbidex
