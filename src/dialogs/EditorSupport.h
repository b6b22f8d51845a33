#pragma once
// What the event and task editors share: their tabs of frames, the second Enter
// that saves, and the address dropped on them.

#include <string>

#include "controls/ControlArray.h"
#include "controls/DataObject.h"
#include "controls/Frame.h"

namespace orbidex {

class RichTextBox;
class TabStrip;

/// Shows the frame of the selected tab (the tab's index less one), hides the others.
void ShowSelectedTab(const TabStrip& tabs, ControlArray<Frame>& frames);

/// True for an Enter pressed on a text that already ends in a line break: the
/// editor saves.  The text is first cut at its first NUL.
bool SecondEnterSaves(RichTextBox& text, int keyCode);

/// A dropped file's path, or else the dropped text up to its first line break: an
/// address is one line.
std::string DroppedAddress(const DataObject& data);

}  // namespace orbidex
