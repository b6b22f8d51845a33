#pragma once
// The dialog behind the task editor's "Templates...": a template's default text,
// length, action and reference.  Nothing is kept yet: OK and Cancel close it.

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmTemplateEdit : public Form {
public:
    frmTemplateEdit();

    TextBox txtDetails{this, "txtDetails"};
    TextBox txtLength{this, "txtLength"};
    ComboBox cmbAction{this, "cmbAction"};
    ComboBox cmbReference{this, "cmbReference"};
    ControlArray<Label> lbl{this, "lbl"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};
};

}  // namespace orbidex
