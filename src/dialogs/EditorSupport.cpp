#include "dialogs/EditorSupport.h"

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/KeyCodes.h"
#include "controls/Label.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "dialogs/DialogDates.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

void ShowFirstTab(TabStrip& tabs, ControlArray<Frame>& frames) {
    for (int index : frames.Indexes()) {
        frames(index).Move(90, 360);
        frames(index).BorderStyle = 0;
    }
    tabs.Tabs(1).Selected = true;
    ShowSelectedTab(tabs, frames);
}

void ShowSelectedTab(const TabStrip& tabs, ControlArray<Frame>& frames) {
    const Tab* selected = tabs.SelectedItem();
    const long shown = selected != nullptr ? selected->Index() - 1 : 0;
    for (int index : frames.Indexes()) frames(index).Visible = index == shown;
}

void PlaceOkCancel(CommandButton& ok, CommandButton& cancel, long formWidth, long top) {
    ok.Caption = "OK";
    ok.Default = true;
    ok.Move(formWidth - 2700, top, 1080, 375);
    cancel.Caption = "Cancel";
    cancel.Cancel = true;
    cancel.Move(formWidth - 1500, top, 1080, 375);
}

void ToggleDetails(Form& form, CommandButton& details, long wide, long narrow, long height) {
    const bool widen = details.Caption == "Details >>";
    details.Caption = widen ? "Details <<" : "Details >>";
    form.Move(form.Left, form.Top, widen ? wide : narrow, height);
}

void ReminderControls::Show(const std::string& remindDate, const std::string& remindTime) {
    const bool on = Val(Left(remindDate, 4)) != 0;
    tick.Value = on ? vbChecked : vbUnchecked;
    if (on) {
        date.Value = DateOfText(remindDate);
        time.Value = AtTimeOfDay(date.Value, TimeOfText(remindTime));
    } else {
        date.Value = startDate.Value;
        time.Value = startTime.Value;
    }
    ShowState(on);
}

void ReminderControls::ShowState(bool on) {
    date.Enabled = on;
    time.Enabled = on;
    leadTime.Enabled = on;
    caption.Visible = on;
    before.Visible = on;
}

void ReminderControls::TickClicked() {
    const bool on = tick.Value == vbChecked;
    if (on) {
        date.Value = startDate.Value;
        time.Value = DateAdd("n", -15, startTime.Value);
    }
    ShowState(on);
}

void ReminderControls::ApplyLeadTime() {
    if (const auto remind = RemindTimeBefore(leadTime.Text, startTime.Value)) time.Value = *remind;
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
