#include "dialogs/EditorSupport.h"

#include "controls/KeyCodes.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbString.h"

namespace orbidex {

void ShowSelectedTab(const TabStrip& tabs, ControlArray<Frame>& frames) {
    const Tab* selected = tabs.SelectedItem();
    const long shown = selected != nullptr ? selected->Index() - 1 : 0;
    for (int index : frames.Indexes()) frames(index).Visible = index == shown;
}

bool SecondEnterSaves(RichTextBox& text, int keyCode) {
    if (keyCode != vbKeyReturn) return false;
    const std::string typed = text.Text;
    if (Right(typed, 2) != "\r\n") return false;
    const std::string cut = TrimAtNull(typed);
    if (cut != typed) text.Text = cut;
    return true;
}

std::string DroppedAddress(const DataObject& data) {
    if (data.HasFiles()) return data.Files.front();
    const std::string& text = data.Text;
    return text.substr(0, text.find_first_of("\r\n"));
}

}  // namespace orbidex
