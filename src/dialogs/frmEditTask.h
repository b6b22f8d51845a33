#pragma once
// The task editor: one task, gCurrentTask, entered or changed in a modal dialog.
// "Save and Close" writes the controls back into gCurrentTask and reports through
// the dialog flags of glbConfig; the task list stores the line.
//
// The window shows the tabs "Task" and "Advanced" on the left; "Details >>" widens
// it to show the contact, the job, and the file or address to launch.

#include <string>

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "dialogs/EditorSupport.h"

namespace orbidex {

class frmEditTask : public Form {
public:
    frmEditTask();

    void Form_Load() override;
    /// Closing the window without a button counts as Cancel.
    void Form_Unload(int& cancel) override;

    void tabEvent_Click();
    void chkRemind_Click();
    void cmbReminder_Click();
    void dtPickTime_Change();
    void dtPickDate_Change();
    /// Enter on a text that already ends in a line break saves.
    void txtDetails_KeyDown(int& keyCode, int shift);
    /// A dropped file's path, or else the dropped text, becomes the address.
    void txtURL_OLEDragDrop(const DataObject& data);
    void cmdDetails_Click();
    void cmdLaunch_Click();
    /// Shows the task template dialog.
    void cmdTemplate_Click();
    void cmdCancel_Click();
    void cmdOK_Click();

    TabStrip tabEvent{this, "tabEvent"};
    ControlArray<Frame> frameEvents{this, "frameEvents"};
    ControlArray<Label> lbl{this, "lbl"};

    // The "Task" tab
    RichTextBox txtDetails{this, "txtDetails"};
    DatePicker dtPickDate{this, "dtPickDate"};  ///< the date the task is due by
    DatePicker dtPickTime{this, "dtPickTime"};
    TextBox txtLength{this, "txtLength"};   ///< minutes to complete
    ComboBox cmbLength{this, "cmbLength"};  ///< offers the lead times; not read
    TextBox txtCost{this, "txtCost"};
    CheckBox chkRemind{this, "chkRemind"};
    ComboBox cmbReminder{this, "cmbReminder"};  ///< lead time before the task

    // The "Advanced" tab
    DatePicker DTPicker1{this, "DTPicker1"};  ///< the reminder's date
    DatePicker DTPicker2{this, "DTPicker2"};  ///< the reminder's time
    ComboBox cmbStatus{this, "cmbStatus"};
    ComboBox cmbPriority{this, "cmbPriority"};
    ComboBox cmbAction{this, "cmbAction"};
    ComboBox cmbReference{this, "cmbReference"};
    Label lblID{this, "lblID"};

    // Shown with "Details >>"
    TextBox txtContact{this, "txtContact"};
    TextBox txtJobToDo{this, "txtJobToDo"};
    RichTextBox txtURL{this, "txtURL"};
    CommandButton cmdLaunch{this, "cmdLaunch"};

    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};
    CommandButton cmdDetails{this, "cmdDetails"};
    CommandButton cmdTemplate{this, "cmdTemplate"};

    // Kept with the form, without behaviour; never shown.
    CommandButton cmdDebug{this, "cmdDebug"};
    ListBox lstProducts{this, "lstProducts"};
    ListBox lstReference{this, "lstReference"};
    CheckBox chkPrivate{this, "chkPrivate"};

private:
    void placeControls();
    void placeTaskTab(Frame& tab);
    void placeAdvancedTab(Frame& tab);
    void placeDetailsPanel();
    void bindEvents();
    void fillLists();
    void showTask();
    ReminderControls reminder();

    bool answered_ = false;  ///< OK or Cancel has run since the load
};

}  // namespace orbidex
