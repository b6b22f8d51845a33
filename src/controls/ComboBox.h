#pragma once
// A combo box: a list of texts with an edit field (Style 0 and 1) or a drop-down
// list alone (Style 2).  Choosing an entry sets Text and raises Click; a change of
// the edit field's text raises Change.

#include "controls/ListControl.h"

namespace orbidex {

constexpr int vbComboDropdown = 0;
constexpr int vbComboSimple = 1;
constexpr int vbComboDropdownList = 2;

class ComboBox : public ListControl {
public:
    ComboBox(Form* form, std::string name);
    explicit ComboBox(std::string name = "") : ComboBox(nullptr, std::move(name)) {}

    /// The edit field's text, or the chosen entry's.  Assigning a text chooses the
    /// entry equal to it without regard to case; in a drop-down list (Style 2) a
    /// text that is no entry changes nothing.
    Accessor<std::string> Text;
    Property<int> Style{this, vbComboDropdown};

    std::function<void()> onChange;
    std::function<void()> onDropDown;

    /// The user typed into the edit field.
    void UserEdit(const std::string& text) {
        if (Enabled && Style != vbComboDropdownList) Text = text;
    }
    void UserDropDown() { Raise(onDropDown); }

protected:
    void IndexChanged() override;
    void ListChanged() override;

private:
    void setText(const std::string& text);
    long findExact(const std::string& text) const;

    std::string text_;
};

}  // namespace orbidex
