#pragma once
// A tick box.  Its Value is 0 (clear), 1 (ticked) or 2 (grey); every change of the
// value raises Click, whether the user or the program made it.

#include "controls/Control.h"

namespace orbidex {

constexpr int vbUnchecked = 0;
constexpr int vbChecked = 1;
constexpr int vbGrayed = 2;

class CheckBox : public Control {
public:
    CheckBox(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbButtonFace; }
    explicit CheckBox(std::string name = "") : CheckBox(nullptr, std::move(name)) {}

    Property<std::string> Caption{this};
    Property<int> Value{this, vbUnchecked};

    /// A click ticks a clear or grey box and clears a ticked one.
    void UserClick() override {
        if (Enabled) Value = Value == vbChecked ? vbUnchecked : vbChecked;
    }

    void PropertyChanged(const void* property) override {
        Control::PropertyChanged(property);
        if (property == &Value) Raise(onClick);
    }
};

}  // namespace orbidex
