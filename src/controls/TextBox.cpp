#include "controls/TextBox.h"

#include <algorithm>

namespace orbidex {

TextBox::TextBox(Form* form, std::string name)
    : Control(form, std::move(name)),
      SelText([this] { return Text().substr(static_cast<size_t>(SelStart), static_cast<size_t>(SelLength)); },
              [this](const std::string& text) { replaceSelection(text); }) {}

void TextBox::UserEdit(const std::string& text, long caret) {
    if (Locked) return;
    userEditing_ = true;
    Text = text;
    userEditing_ = false;
    UserSelect(caret, 0);
}

void TextBox::UserSelect(long start, long length) {
    SelStart = start;
    SelLength = length;
    clampSelection();
}

void TextBox::replaceSelection(const std::string& text) {
    clampSelection();
    const std::string& old = Text();
    const auto start = static_cast<size_t>(SelStart);
    std::string updated = old.substr(0, start) + text + old.substr(start + static_cast<size_t>(SelLength));
    userEditing_ = true;  // keep the caret where the new text ends
    Text = updated;
    userEditing_ = false;
    SelStart = static_cast<long>(start + text.size());
    SelLength = 0;
}

void TextBox::clampSelection() {
    const long length = static_cast<long>(Text().size());
    SelStart.setQuietly(std::clamp<long>(SelStart, 0, length));
    SelLength.setQuietly(std::clamp<long>(SelLength, 0, length - SelStart));
}

void TextBox::PropertyChanged(const void* property) {
    if (property == &Text) {
        if (!userEditing_) {
            SelStart.setQuietly(0);
            SelLength.setQuietly(0);
        }
        clampSelection();
        Control::PropertyChanged(property);
        Raise(onChange);
        return;
    }
    if (property == &SelStart || property == &SelLength) clampSelection();
    Control::PropertyChanged(property);
}

}  // namespace orbidex
