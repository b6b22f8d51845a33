#pragma once
// The event editor: one event, gCurrentEvent, entered or changed in a modal dialog.
// "Save and Close" writes the controls back into gCurrentEvent and reports through
// the dialog flags of glbConfig; the caller stores the record.
//
// The window shows the tabs "Event" and "Advanced" on the left; "Details >>" widens
// it to show the title, contact, task link, file or address and identifier.

#include <string>

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "dialogs/EditorSupport.h"

namespace orbidex {

class frmEditEvent : public Form {
public:
    frmEditEvent();

    void Form_Load() override;
    /// Closing the window without a button counts as Cancel.
    void Form_Unload(int& cancel) override;

    void tabEvent_Click();
    void chkRemind_Click();
    void cmbReminder_Click();
    void dtPickTime_Change();
    void dtPickDate_Change();
    void chkPrivate_Click();
    void txtDetails_Change();
    /// Enter on a text that already ends in a line break saves.
    void txtDetails_KeyDown(int& keyCode, int shift);
    /// A dropped file's path, or else the dropped text, becomes the address.
    void txtURL_OLEDragDrop(const DataObject& data);
    void cmdDetails_Click();
    void cmdLaunch_Click();
    void cmdTemplate_Click();
    void cmdCancel_Click();
    void cmdOK_Click();

    TabStrip tabEvent{this, "tabEvent"};
    ControlArray<Frame> frameEvents{this, "frameEvents"};
    ControlArray<Label> lbl{this, "lbl"};

    // The "Event" tab
    RichTextBox txtDetails{this, "txtDetails"};
    DatePicker dtPickDate{this, "dtPickDate"};
    DatePicker dtPickTime{this, "dtPickTime"};
    TextBox txtLength{this, "txtLength"};
    ComboBox cmbLengthUnits{this, "cmbLengthUnits"};
    ComboBox cmbActionToPerform{this, "cmbActionToPerform"};  ///< the location
    CheckBox chkRemind{this, "chkRemind"};
    ComboBox cmbReminder{this, "cmbReminder"};  ///< lead time before the event

    // The "Advanced" tab
    DatePicker DTPicker1{this, "DTPicker1"};  ///< the reminder's date
    DatePicker DTPicker2{this, "DTPicker2"};  ///< the reminder's time
    CheckBox chkPrivate{this, "chkPrivate"};
    TextBox txtStatus{this, "txtStatus"};
    ComboBox cmbPriority{this, "cmbPriority"};
    ComboBox cmbAction{this, "cmbAction"};
    ComboBox cmbReference{this, "cmbReference"};

    // Shown with "Details >>"
    TextBox txtTitle{this, "txtTitle"};  ///< the first 80 characters of the details
    TextBox txtContact{this, "txtContact"};
    TextBox txtJobToDo{this, "txtJobToDo"};
    RichTextBox txtURL{this, "txtURL"};
    CommandButton cmdLaunch{this, "cmdLaunch"};
    Label lblID{this, "lblID"};

    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};
    CommandButton cmdDetails{this, "cmdDetails"};
    CommandButton cmdTemplate{this, "cmdTemplate"};

private:
    void placeControls();
    void placeEventTab(Frame& tab);
    void placeAdvancedTab(Frame& tab);
    void placeDetailsPanel();
    void bindEvents();
    void fillLists();
    void showRecord();
    ReminderControls reminder();
    void caretToEndOfDetails();

    bool answered_ = false;  ///< OK or Cancel has run since the load
};

}  // namespace orbidex
