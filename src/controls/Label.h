#pragma once
// A caption on the form.

#include "controls/Control.h"

namespace orbidex {

constexpr int vbLeftJustify = 0;
constexpr int vbRightJustify = 1;
constexpr int vbCenter = 2;

constexpr int vbTransparent = 0;
constexpr int vbOpaque = 1;

class Label : public Control {
public:
    Label(Form* form, std::string name) : Control(form, std::move(name)) {
        BackColor = vbButtonFace;
        ForeColor = vbButtonText;
    }
    explicit Label(std::string name = "") : Label(nullptr, std::move(name)) {}

    Property<std::string> Caption{this};
    Property<int> Alignment{this, vbLeftJustify};
    Property<bool> WordWrap{this, false};
    Property<bool> AutoSize{this, false};
    Property<int> BackStyle{this, vbOpaque};
    Property<int> BorderStyle{this, 0};  ///< 0 none, 1 a single line
};

}  // namespace orbidex
