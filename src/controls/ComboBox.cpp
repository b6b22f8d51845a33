#include "controls/ComboBox.h"

#include "foundation/VbString.h"

namespace orbidex {

ComboBox::ComboBox(Form* form, std::string name)
    : ListControl(form, std::move(name)),
      Text([this] { return text_; }, [this](const std::string& text) { setText(text); }) {
    BackColor = vbWindowBackground;
}

long ComboBox::findExact(const std::string& text) const {
    for (long i = 0; i < ListCount(); ++i)
        if (EqualsText(List(i), text)) return i;
    return -1;
}

void ComboBox::setText(const std::string& text) {
    const long match = findExact(text);
    if (Style == vbComboDropdownList) {
        if (match >= 0) ListIndex = match;
        return;
    }
    if (text == text_ && match == index_) return;
    text_ = text;
    index_ = match;
    Changed();
    Raise(onChange);
}

void ComboBox::IndexChanged() {
    text_ = List(index_);  // "" for none
    ListControl::IndexChanged();
}

void ComboBox::ListChanged() {
    if (index_ >= 0)
        text_ = List(index_);
    else if (ListCount() == 0 || Style == vbComboDropdownList)
        text_.clear();
    ListControl::ListChanged();
}

}  // namespace orbidex
