#pragma once
// A frame: a caption over a border that holds other controls (their Container).
// Hiding a frame hides what it holds.

#include "controls/Control.h"

namespace orbidex {

class Frame : public Control {
public:
    Frame(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbButtonFace; }
    explicit Frame(std::string name = "") : Frame(nullptr, std::move(name)) {}

    Property<std::string> Caption{this};
    Property<int> BorderStyle{this, 1};  ///< 0 none, 1 a single line
};

}  // namespace orbidex
