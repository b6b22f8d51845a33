#include "controls/Menu.h"

#include <algorithm>

namespace orbidex {

Menu::Menu(Form* form, std::string name, std::string caption, Menu* parent)
    : Control(form, std::move(name)), parent_(parent) {
    Caption.setQuietly(std::move(caption));
    if (parent_ != nullptr) parent_->items_.push_back(this);
}

Menu::~Menu() {
    if (parent_ != nullptr) std::erase(parent_->items_, this);
    for (Menu* item : items_) item->parent_ = nullptr;
}

}  // namespace orbidex
