#pragma once
// The columns of a list: every field of the record with its caption, ticked when the
// list shows it.  OK writes each changed field to its key of the section
// ("ListViewHeadings" for the event list, "TaskHeadings" for the task list), a
// caption or "<hide>", and puts the captions into the record the list is drawn
// from; Cancel, or closing the window, writes nothing.

#include <string>

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace orbidex {

class cDiaryRecord;

class frmDiaryPickFields : public Form {
public:
    static constexpr int kFields = 15;
    static constexpr const char* kHidden = "<hide>";

    /// `section` is "ListViewHeadings" or "TaskHeadings".
    explicit frmDiaryPickFields(std::string section);

    void Form_Load() override;
    void chkField_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();

    /// The key of field `index` in the section, and the name the dialog gives it.
    static const char* KeyOf(int index);
    static const char* FieldName(int index);

    Label lblHelp{this, "lblHelp"};
    Label lblShown{this, "lblShown"};
    Label lblCaption{this, "lblCaption"};
    ControlArray<CheckBox> chkField{this, "chkField"};
    ControlArray<TextBox> txtCaption{this, "txtCaption"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();
    /// What the settings file gets for the field as the dialog shows it.
    std::string valueOf(int index);
    cDiaryRecord& headings();

    std::string section_;
    std::string read_[kFields];  ///< each key as the dialog found it
    bool loading_ = false;
};

}  // namespace orbidex
