#pragma once
// The dialog behind the task editor's "Templates...": the task template's default
// text, length, action and reference, kept in template_task.dat in the data folder.
// OK keeps them, Cancel leaves the template as it was.  A double click on the action
// or the reference list opens its list of phrases for editing.

#include <string>

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

    /// Fills the lists and shows the template as it is kept.
    void Form_Load() override;
    void cmbAction_DblClick();
    void cmbReference_DblClick();
    void cmdOK_Click();

    /// Data folder + "template_task.dat".
    static std::string TemplateFile();
    /// Data folder + "actions.txt": the actions offered, one a line.
    static std::string ActionsFile();

    TextBox txtDetails{this, "txtDetails"};
    TextBox txtLength{this, "txtLength"};
    ComboBox cmbAction{this, "cmbAction"};
    ComboBox cmbReference{this, "cmbReference"};
    ControlArray<Label> lbl{this, "lbl"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void fillLists();
    /// Opens the phrase list editor on `file`, then fills the lists again.
    void editList(const std::string& file);
};

}  // namespace orbidex
