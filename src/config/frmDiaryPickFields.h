#pragma once
// The columns of a list: every field of the record with its caption, ticked when the
// list shows it.  OK writes each changed field to its key of the section
// ("ListViewHeadings" for the event list, "TaskHeadings" for the task list,
// "NoteHeadings" for the note list), a caption or "<hide>", and puts the captions
// into the record the event or task list is drawn from; Cancel, or closing the
// window, writes nothing.

#include <string>
#include <vector>

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace orbidex {

struct PickedSection;

class frmDiaryPickFields : public Form {
public:
    static constexpr const char* kHidden = "<hide>";

    /// `section` is "ListViewHeadings", "TaskHeadings" or "NoteHeadings".
    explicit frmDiaryPickFields(std::string section);

    void Form_Load() override;
    void chkField_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();

    /// How many fields the section has (15 for events and tasks, 8 for notes).
    int Fields() const;
    /// The key of field `index` in the section, and the name the dialog gives it.
    const char* KeyOf(int index) const;
    const char* FieldName(int index) const;

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

    const PickedSection& section_;
    std::vector<std::string> read_;  ///< each key as the dialog found it
    bool loading_ = false;
};

}  // namespace orbidex
