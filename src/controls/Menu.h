#pragma once
// A menu entry: a caption ("-" for a separator line), tick, and the entries under
// it.  The entries without a parent entry are the form's menu bar, except those
// that are hidden (pop-up menus, shown by Form::PopupMenu).

#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class Menu : public Control {
public:
    /// An entry of `form`; `parent` is the entry it stands under, or null for the bar.
    Menu(Form* form, std::string name, std::string caption = "", Menu* parent = nullptr);
    explicit Menu(std::string name = "") : Menu(nullptr, std::move(name)) {}
    ~Menu() override;

    Property<std::string> Caption{this};
    Property<bool> Checked{this, false};
    /// A key that chooses the entry, as "Ctrl+N" or "F5"; "" for none.
    Property<std::string> Shortcut{this};

    Menu* ParentMenu() const { return parent_; }
    const std::vector<Menu*>& Items() const { return items_; }
    bool IsSeparator() const { return Caption() == "-"; }

    /// A click on a disabled entry does nothing.
    void UserClick() override {
        if (Enabled) Control::UserClick();
    }

private:
    Menu* parent_;
    std::vector<Menu*> items_;
};

}  // namespace orbidex
