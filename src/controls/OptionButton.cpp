#include "controls/OptionButton.h"

#include "controls/Form.h"

namespace orbidex {

void OptionButton::PropertyChanged(const void* property) {
    Control::PropertyChanged(property);
    if (property != &Value || !Value) return;
    clearOthersInGroup();
    Raise(onClick);
}

void OptionButton::clearOthersInGroup() {
    if (Parent() == nullptr) return;
    for (Control* control : Parent()->Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        if (other != nullptr && other != this && other->Container() == Container()) other->Value = false;
    }
}

}  // namespace orbidex
