#pragma once
// The booking of a meeting for the users ticked in the staff planner: the date,
// time, length, place and details of the meeting and an optional reminder.  OK
// writes the booking for the server to pass on; nothing is added here to the
// booker's own diary but through the server, like everybody else's.

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmBookMeeting : public Form {
public:
    frmBookMeeting();

    /// One hour by default; the places of the location list.
    void Form_Load() override;
    /// Closing the window without a button counts as Cancel.
    void Form_Unload(int& cancel) override;
    /// The reminder's date and time follow the meeting's.
    void dtPickDate_Change();
    void dtPickTime_Change();
    void chkRemind_Click();
    /// Checks the meeting, then books it for the users of glbTickedUsers.
    void cmdOK_Click();
    void cmdCancel_Click();

    Label lblUsers{this, "lblUsers"};
    Label lblDate{this, "lblDate"};
    DatePicker dtPickDate{this, "dtPickDate"};
    DatePicker dtPickTime{this, "dtPickTime"};
    Label lblLength{this, "lblLength"};
    TextBox txtLength{this, "txtLength"};
    ComboBox cmbLengthUnits{this, "cmbLengthUnits"};  ///< the first minutes, any other hours
    Label lblLocation{this, "lblLocation"};
    ComboBox cmbLocation{this, "cmbLocation"};
    Label lblDetails{this, "lblDetails"};
    TextBox txtDetails{this, "txtDetails"};
    CheckBox chkRemind{this, "chkRemind"};
    DatePicker DTPicker1{this, "DTPicker1"};  ///< the reminder's date
    DatePicker DTPicker2{this, "DTPicker2"};  ///< the reminder's time
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();

    bool answered_ = false;  ///< OK or Cancel has run since the load
};

}  // namespace orbidex
