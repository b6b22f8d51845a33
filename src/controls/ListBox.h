#pragma once
// A list box: plain (Style 0) or with a tick box before each entry (Style 1).  In
// a list with tick boxes Selected(i) is the entry's tick, as with the controls the
// program was written for; in a plain list it is the entry's highlight.

#include "controls/ListControl.h"

namespace orbidex {

constexpr int vbListBoxStandard = 0;
constexpr int vbListBoxCheckbox = 1;

constexpr int vbMultiSelectNone = 0;
constexpr int vbMultiSelectSimple = 1;
constexpr int vbMultiSelectExtended = 2;

class ListBox : public ListControl {
public:
    ListBox(Form* form, std::string name);
    explicit ListBox(std::string name = "") : ListBox(nullptr, std::move(name)) {}

    /// The chosen entry's text; assigning chooses the entry equal to it.
    Accessor<std::string> Text;
    Property<int> Style{this, vbListBoxStandard};
    Property<int> MultiSelect{this, vbMultiSelectNone};

    bool Selected(long index) const;
    void SetSelected(long index, bool selected);
    /// The number of entries selected (ticked, in a list with tick boxes).
    long SelCount() const;

    /// Raised when the user ticks or clears an entry's box.
    std::function<void(long index)> onItemCheck;

    /// The user clicked an entry's tick box.
    void UserCheck(long index, bool checked);

protected:
    void IndexChanged() override;
};

}  // namespace orbidex
