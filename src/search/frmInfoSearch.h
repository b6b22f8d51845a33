#pragma once
// The search form: the text to look for, the kind of event, the dates, whether to
// look in this diary only or in other users' diaries too (and whose), whether PC
// usage and file usage events count, and whether the case of the letters counts.
// "Details >>" shows the users and the word lists under the choices.

#include <vector>

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

class frmInfoSearch : public Form {
public:
    frmInfoSearch();

    void Form_Load() override;
    /// Closing the window without Search counts as Close.
    void Form_Unload(int& cancel) override;

    /// Sets the two dates of the chosen range, and whether they can be changed.
    void cmbDateRange_Click();
    /// Ticks the PC usage and file usage boxes that go with the chosen kind of event.
    void cmbEventType_Click();
    void chkAnyDate_Click();
    void chkLocalFilesOnly_Click();
    /// Ticks every user, or none.
    void chkAllUsers_Click();
    void lvUsers_ItemClick(ListItem& item);
    void lvUsers_ItemCheck(ListItem& item);
    /// A location or a reference clicked becomes the text to look for.
    void lvWords_ItemClick(ListItem& item);
    void cmdDetails_Click();
    void cmdSearch_Click();
    void cmdCancel_Click();

    Label lblDetails{this, "lblDetails"};
    TextBox txtDetails{this, "txtDetails"};
    Label lblEventType{this, "lblEventType"};
    ComboBox cmbEventType{this, "cmbEventType"};
    Label lblDateRange{this, "lblDateRange"};
    ComboBox cmbDateRange{this, "cmbDateRange"};
    CheckBox chkAnyDate{this, "chkAnyDate"};
    ControlArray<Label> lblDate{this, "lblDate"};
    ControlArray<DatePicker> DTPicker1{this, "DTPicker1"};
    CheckBox chkPCUsage{this, "chkPCUsage"};
    CheckBox chkFileUsage{this, "chkFileUsage"};
    CheckBox Check1{this, "Check1"};
    CheckBox chkLocalFilesOnly{this, "chkLocalFilesOnly"};
    CommandButton cmdSearch{this, "cmdSearch"};
    CommandButton cmdCancel{this, "cmdCancel"};
    CommandButton cmdDetails{this, "cmdDetails"};
    // Under "Details >>"
    CheckBox chkAllUsers{this, "chkAllUsers"};
    ListView lvUsers{this, "lvUsers"};
    Label lblUsers{this, "lblUsers"};
    ListView lvLocations{this, "lvLocations"};
    ListView lvReferences{this, "lvReferences"};
    ListView lvFolders{this, "lvFolders"};

private:
    void placeControls();
    void bindEvents();
    /// The chosen users: the tag of each ticked user, each followed by ",".
    void rebuildUserList();
    /// Shows or hides the part under the choices.
    void showDetails(bool shown);

    std::vector<Control*> details_;  ///< the controls "Details >>" shows
};

}  // namespace orbidex
