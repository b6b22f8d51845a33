#pragma once
// A push button.  `Default` buttons answer Enter, `Cancel` buttons Escape.

#include "controls/Control.h"

namespace orbidex {

class CommandButton : public Control {
public:
    CommandButton(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbButtonFace; }
    explicit CommandButton(std::string name = "") : CommandButton(nullptr, std::move(name)) {}

    Property<std::string> Caption{this};
    Property<bool> Default{this, false};
    Property<bool> Cancel{this, false};

    /// A click on a disabled button does nothing.
    void UserClick() override {
        if (Enabled) Control::UserClick();
    }
};

}  // namespace orbidex
