#pragma once
// A round choice button.  The option buttons of one container (a frame, or the
// form itself) form a group: choosing one clears the others.  Choosing a button,
// by the user or by the program, raises its Click.

#include "controls/Control.h"

namespace orbidex {

class OptionButton : public Control {
public:
    OptionButton(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbButtonFace; }
    explicit OptionButton(std::string name = "") : OptionButton(nullptr, std::move(name)) {}

    Property<std::string> Caption{this};
    Property<bool> Value{this, false};

    void UserClick() override {
        if (Enabled) Value = true;
    }

    void PropertyChanged(const void* property) override;

private:
    void clearOthersInGroup();
};

}  // namespace orbidex
