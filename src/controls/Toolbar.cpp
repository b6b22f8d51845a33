#include "controls/Toolbar.h"

#include "foundation/VbString.h"

namespace orbidex {

void ButtonMenu::PropertyChanged(const void*) {
    if (owner_ != nullptr) owner_->Changed();
}

ButtonMenu& Button::AddButtonMenu(const std::string& text, const std::string& key) {
    auto entry = std::make_unique<ButtonMenu>(this);
    entry->Text.setQuietly(text);
    entry->Key.setQuietly(key);
    entry->index_ = ButtonMenuCount() + 1;
    menus_.push_back(std::move(entry));
    Changed();
    return *menus_.back();
}

ButtonMenu* Button::ButtonMenus(long index) const {
    return index >= 1 && index <= ButtonMenuCount() ? menus_[static_cast<size_t>(index - 1)].get() : nullptr;
}

ButtonMenu* Button::ButtonMenus(const std::string& key) const {
    for (const auto& entry : menus_)
        if (!key.empty() && EqualsText(entry->Key, key)) return entry.get();
    return nullptr;
}

void Button::ClearButtonMenus() {
    menus_.clear();
    Changed();
}

void Button::PropertyChanged(const void*) { Changed(); }

void Button::Reset() {
    for (auto* text : {&Key, &Caption, &Image, &ToolTipText, &Tag}) text->setQuietly("");
    Style.setQuietly(tbrDefault);
    Value.setQuietly(tbrUnpressed);
    Visible.setQuietly(true);
    Enabled.setQuietly(true);
    menus_.clear();
}

void Button::Changed() {
    if (owner_ != nullptr) owner_->ContentChanged();
}

Button& ButtonCollection::Add(const std::string& key, const std::string& caption, int style,
                              const std::string& image) {
    auto button = std::make_unique<Button>(&owner_);
    if (Item(key) == nullptr) button->Key.setQuietly(key);
    button->Caption.setQuietly(caption);
    button->Style.setQuietly(style);
    button->Image.setQuietly(image);
    button->index_ = Count() + 1;
    buttons_.push_back(std::move(button));
    owner_.StructureChanged();
    return *buttons_.back();
}

Button& ButtonCollection::detached() {
    detached_.Reset();
    return detached_;
}

Button& ButtonCollection::operator()(long index) {
    Button* button = Item(index);
    return button != nullptr ? *button : detached();
}

Button& ButtonCollection::operator()(const std::string& key) {
    Button* button = Item(key);
    return button != nullptr ? *button : detached();
}

Button* ButtonCollection::Item(long index) const {
    return index >= 1 && index <= Count() ? buttons_[static_cast<size_t>(index - 1)].get() : nullptr;
}

Button* ButtonCollection::Item(const std::string& key) const {
    for (const auto& button : buttons_)
        if (!key.empty() && EqualsText(button->Key, key)) return button.get();
    return nullptr;
}

void ButtonCollection::Remove(long index) {
    if (Item(index) == nullptr) return;
    buttons_.erase(buttons_.begin() + (index - 1));
    for (size_t i = 0; i < buttons_.size(); ++i) buttons_[i]->index_ = static_cast<long>(i + 1);
    owner_.StructureChanged();
}

void ButtonCollection::Clear() {
    buttons_.clear();
    owner_.StructureChanged();
}

Toolbar::Toolbar(Form* form, std::string name) : Control(form, std::move(name)) {
    BackColor = vbButtonFace;
    ForeColor = vbButtonText;
}

void Toolbar::releaseGroupOf(Button& button) {
    // A group is a run of group buttons without a separator between them.
    const long at = button.Index();
    for (long i = at - 1; i >= 1 && Buttons.Item(i)->Style == tbrButtonGroup; --i) Buttons.Item(i)->Value = tbrUnpressed;
    for (long i = at + 1; i <= Buttons.Count() && Buttons.Item(i)->Style == tbrButtonGroup; ++i)
        Buttons.Item(i)->Value = tbrUnpressed;
}

void Toolbar::UserClickButton(Button& button) {
    if (!Enabled || !button.Enabled || button.Style == tbrSeparator || button.Style == tbrPlaceholder) return;
    if (button.Style == tbrCheck) {
        button.Value = button.Value == tbrPressed ? tbrUnpressed : tbrPressed;
    } else if (button.Style == tbrButtonGroup) {
        releaseGroupOf(button);
        button.Value = tbrPressed;
    }
    Raise(onButtonClick, button);
}

void Toolbar::UserClickButtonMenu(ButtonMenu& entry) {
    if (!Enabled || !entry.Enabled) return;
    Raise(onButtonMenuClick, entry);
}

void Toolbar::StructureChanged() {
    ++structureVersion_;
    Changed();
}

}  // namespace orbidex
