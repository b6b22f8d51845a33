#pragma once
// What the event and task editors share: their tabs of frames, the reminder's
// controls, the Details button, the second Enter that saves, and the address
// dropped on them.

#include <string>

#include "controls/ControlArray.h"
#include "controls/DataObject.h"
#include "controls/Frame.h"

namespace orbidex {

class CheckBox;
class ComboBox;
class CommandButton;
class DatePicker;
class Form;
class Label;
class RichTextBox;
class TabStrip;

/// The actions offered when no list file gives them.
inline constexpr const char* kDefaultActions[] = {"View", "Edit", "Phone", "Email", "Website", "Visit", "Work", "Idea"};

/// The frames of the tabs at their place without a border, the first tab shown.
void ShowFirstTab(TabStrip& tabs, ControlArray<Frame>& frames);
/// Shows the frame of the selected tab (the tab's index less one), hides the others.
void ShowSelectedTab(const TabStrip& tabs, ControlArray<Frame>& frames);

/// OK (answering Enter) and Cancel (answering Escape) side by side at `top`, at the
/// right of a window `formWidth` wide.
void PlaceOkCancel(CommandButton& ok, CommandButton& cancel, long formWidth, long top);

/// "Details >>" widens the window to `wide`, "Details <<" narrows it to `narrow`;
/// either way it takes `height` and keeps its place.
void ToggleDetails(Form& form, CommandButton& details, long wide, long narrow, long height);

/// The reminder's controls of an editor, beside the start's pickers: the tick, the
/// reminder's date and time, the lead-time list and the two captions that come and
/// go with the tick.
struct ReminderControls {
    CheckBox& tick;
    DatePicker& date;
    DatePicker& time;
    ComboBox& leadTime;
    Label& caption;
    Label& before;
    const DatePicker& startDate;
    const DatePicker& startTime;

    /// A stored reminder ("yyyymmdd", "hhmm"): ticked when its year is not 0, or
    /// else unticked with the pickers on the start.
    void Show(const std::string& remindDate, const std::string& remindTime);
    /// Enables or greys the controls, as the tick says.
    void ShowState(bool on);
    /// The tick clicked: a reminder starts a quarter of an hour before the start.
    void TickClicked();
    /// The start less the lead time chosen; the reminder's date stays, so a lead time
    /// over midnight only moves the clock.  Entries of days move nothing.
    void ApplyLeadTime();
};

/// True for an Enter pressed on a text that already ends in a line break: the
/// editor saves.  The text is first cut at its first NUL.
bool SecondEnterSaves(RichTextBox& text, int keyCode);

/// A dropped file's path, or else the dropped text up to its first line break: an
/// address is one line.
std::string DroppedAddress(const DataObject& data);

}  // namespace orbidex
