#pragma once
// A scroll bar, vertical or horizontal: a Value from Min to Max, moved by SmallChange
// with its arrows and by LargeChange on its track.  Every change of the value raises
// Change, whether the user or the program made it.

#include <algorithm>

#include "controls/Control.h"

namespace orbidex {

class ScrollBar : public Control {
public:
    ScrollBar(Form* form, std::string name) : Control(form, std::move(name)) {}
    explicit ScrollBar(std::string name = "") : ScrollBar(nullptr, std::move(name)) {}

    Property<bool> Vertical{this, true};
    Property<long> Min{this, 0};
    Property<long> Max{this, 32767};
    Property<long> Value{this, 0};
    Property<long> SmallChange{this, 1};
    Property<long> LargeChange{this, 1};

    std::function<void()> onChange;

    /// The user moved the bar to `value`, kept between Min and Max.
    void UserScroll(long value) {
        if (Enabled) Value = std::clamp(value, std::min<long>(Min, Max), std::max<long>(Min, Max));
    }

    void PropertyChanged(const void* property) override {
        Control::PropertyChanged(property);
        if (property == &Value) Raise(onChange);
    }
};

}  // namespace orbidex
