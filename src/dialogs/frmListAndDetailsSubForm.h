#pragma once
// The generic editor of a small record file: the records in a list on the left and,
// for the selected one, a control for each field on the right, built from the
// definition the caller fills in gListAndDetails before it opens the form.

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmListAndDetailsSubForm : public Form {
public:
    frmListAndDetailsSubForm();

    /// The form's title, the list's columns and each field's caption and control,
    /// from gListAndDetails.
    void BuildForm();
    /// The rows of the definition's file, the first one shown.  A file that is not
    /// there yet is an empty list.
    void LoadFileToListBox();
    void Form_Resize() override;
    /// Asks whether to save changes not saved yet.
    void Form_Unload(int& cancel) override;

    /// Edits of the row shown before go into the list, then the row's values go to
    /// the controls.
    void lstList_ItemClick(ListItem& item);
    void lstList_Click();
    void field_Change();
    void cmdAdd_Click();
    void cmdDelete_Click();
    void cmdUpdate_Click();
    void cmdSave_Click();
    void cmdOK_Click();

    ListView lstList{this, "lstList"};
    ControlArray<Label> lbl{this, "lbl"};
    ControlArray<TextBox> txt{this, "txt"};
    ControlArray<CheckBox> chk{this, "chk"};
    ControlArray<DatePicker> dtDate{this, "dtDate"};
    ControlArray<DatePicker> dtTime{this, "dtTime"};
    ControlArray<Label> labelID{this, "labelID"};
    RichTextBox richTextBox{this, "richTextBox"};
    Frame hidden_variables{this, "hidden_variables"};
    Label lbl_numFields{this, "lbl_numFields"};
    Label lbl_fname{this, "lbl_fname"};
    CommandButton cmdAdd{this, "cmdAdd"};
    CommandButton cmdDelete{this, "cmdDelete"};
    CommandButton cmdUpdate{this, "cmdUpdate"};
    CommandButton cmdSave{this, "cmdSave"};
    CommandButton cmdOK{this, "cmdOK"};

private:
    /// Makes the control of field `i` at its place; false for a type it has none of.
    bool buildField(int i);
    /// Gives each column its width: none for a hidden field, at least room for its caption.
    void widenColumns();
    std::string fieldValue(int i);
    void showFieldValue(int i, const std::string& value);
    void controlsFromRow(const ListItem& row);
    void rowFromControls(ListItem& row);
    /// Puts edits not yet in the list into it, then rewrites the file; false if the
    /// file could not be written.
    bool saveList();

    ListItem* shownRow_ = nullptr;  ///< the row whose values the controls hold
    bool filling_ = false;          ///< the program, not the user, fills the controls
    long listWidth_;
    long detailsLeft_ = 0;
};

}  // namespace orbidex
