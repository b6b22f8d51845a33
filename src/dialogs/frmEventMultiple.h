#pragma once
// One event on many dates at once: the text, times and reminders of the event, and
// the list of dates from the date generator.  OK makes a record for each date and
// hands them all to cDiaryRecords::AddBulkRecords.

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListView.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmEventMultiple : public Form {
public:
    frmEventMultiple();

    void Form_Load() override;
    /// Closing the window without a button counts as Cancel.
    void Form_Unload(int& cancel) override;

    void cmbAction_Click();
    void chkRemind_Click();
    void chkRemindOnce_Click();
    void cmdDetails_Click();
    /// Opens the date generator on the first date of the list and takes its dates.
    void cmdPickDates_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    ControlArray<Label> lbl{this, "lbl"};
    TextBox txtDetails{this, "txtDetails"};
    ComboBox cmbAction{this, "cmbAction"};
    DatePicker dtPickTime{this, "dtPickTime"};
    DatePicker dtPickEndTime{this, "dtPickEndTime"};
    CheckBox chkRemindOnce{this, "chkRemindOnce"};
    DatePicker dtPickFirstRemindDate{this, "dtPickFirstRemindDate"};  ///< shown, not used
    DatePicker dtPickFirstRemindTime{this, "dtPickFirstRemindTime"};
    CheckBox chkRemind{this, "chkRemind"};
    DatePicker DTPicker2{this, "DTPicker2"};
    CommandButton cmdPickDates{this, "cmdPickDates"};
    ListView lvDateList{this, "lvDateList"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};
    CommandButton cmdDetails{this, "cmdDetails"};

    // Shown with "Details >>"
    TextBox txtActionToPerform{this, "txtActionToPerform"};
    TextBox txtReference{this, "txtReference"};
    TextBox txtContact{this, "txtContact"};
    TextBox txtURL{this, "txtURL"};
    TextBox txtStatus{this, "txtStatus"};

private:
    void placeControls();
    void placeDetailsPanel();
    void bindEvents();

    bool answered_ = false;  ///< OK went through or Cancel ran since the load
};

}  // namespace orbidex
