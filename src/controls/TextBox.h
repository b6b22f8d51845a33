#pragma once
// A text box.  Text holds Windows-1252 bytes; the lines of a multi-line box end in
// CR LF.  Every change of the text raises Change, whether the user or the program
// made it; assigning the text puts the caret at its start.  Positions (SelStart)
// count from 0.

#include "controls/Control.h"

namespace orbidex {

constexpr int vbNoScrollBars = 0;
constexpr int vbHorizontal = 1;
constexpr int vbVertical = 2;
constexpr int vbBoth = 3;

class TextBox : public Control {
public:
    TextBox(Form* form, std::string name);
    explicit TextBox(std::string name = "") : TextBox(nullptr, std::move(name)) {}

    Property<std::string> Text{this};
    /// The caret, or the start of the selection.
    Property<long> SelStart{this, 0};
    Property<long> SelLength{this, 0};
    /// The selected text; assigning it replaces the selection and puts the caret
    /// behind the new text.
    Accessor<std::string> SelText;
    Property<bool> MultiLine{this, false};
    Property<bool> Locked{this, false};
    Property<long> MaxLength{this, 0};  ///< 0: no limit
    Property<std::string> PasswordChar{this};
    Property<int> Alignment{this, 0};  ///< 0 left, 1 right, 2 centre
    Property<int> ScrollBars{this, vbNoScrollBars};

    std::function<void()> onChange;

    /// The user typed: the box now holds `text` with the caret at `caret`.
    void UserEdit(const std::string& text, long caret);
    void UserSelect(long start, long length);

    void PropertyChanged(const void* property) override;

private:
    void replaceSelection(const std::string& text);
    void clampSelection();

    bool userEditing_ = false;
};

}  // namespace orbidex
