#include "dialogs/frmTemplateEdit.h"

#include "controls/LoadFileToListBox.h"
#include "dialogs/EditorSupport.h"
#include "dialogs/frmTemplateList.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "pim/ListAndDetails.h"

namespace orbidex {

frmTemplateEdit::frmTemplateEdit() : Form("frmTemplateEdit") {
    Caption = "Edit Template";
    Move(0, 0, 5000, 2700);
    const char* const captions[] = {"Default Text", "Default Length", "Default Action", "Reference"};
    for (int i = 0; i < 4; ++i) {
        lbl(i).Caption = captions[i];
        lbl(i).Move(120, 165 + i * 420, 1380, 255);
    }
    txtDetails.Move(1560, 120, 3240, 315);
    txtLength.Move(1560, 540, 900, 315);
    cmbAction.Move(1560, 960, 3240, 315);
    cmbAction.ToolTipText = "Double Click to edit the list of Actions";
    cmbReference.Move(1560, 1380, 3240, 315);
    cmbReference.ToolTipText = "Double Click to edit the list of References";
    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Move(2520, 1980, 1080, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(3720, 1980, 1080, 375);
    cmbAction.onDblClick = [this] { cmbAction_DblClick(); };
    cmbReference.onDblClick = [this] { cmbReference_DblClick(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { Unload(); };
}

std::string frmTemplateEdit::TemplateFile() {
    return gStrDataPath + "template_task.dat";
}

std::string frmTemplateEdit::ActionsFile() {
    return gStrDataPath + "actions.txt";
}

void frmTemplateEdit::fillLists() {
    const std::string action = cmbAction.Text;
    const std::string reference = cmbReference.Text;
    cmbAction.Clear();
    LoadFileToListBox(cmbAction, ActionsFile());
    if (cmbAction.ListCount() == 0)
        for (const char* entry : kDefaultActions) cmbAction.AddItem(entry);
    glbEvents.DisplayReferences(cmbReference);
    cmbAction.Text = action;
    cmbReference.Text = reference;
}

void frmTemplateEdit::Form_Load() {
    std::string bytes;
    ReadWholeFile(TemplateFile(), bytes);
    const auto records = ReadRecords(bytes, kFieldDelimiter, kRecordDelimiter);
    std::vector<std::string> fields = records.empty() ? std::vector<std::string>() : records.front();
    fields.resize(4);
    txtDetails.Text = fields[0];
    txtLength.Text = fields[1];
    cmbAction.Text = fields[2];
    cmbReference.Text = fields[3];
    fillLists();
}

void frmTemplateEdit::editList(const std::string& file) {
    frmTemplateList list;
    list.lblFname.Caption = file;
    list.Show(true);
    fillLists();
}

void frmTemplateEdit::cmbAction_DblClick() {
    editList(ActionsFile());
}

void frmTemplateEdit::cmbReference_DblClick() {
    editList(gStrDataPath + "references.txt");
}

void frmTemplateEdit::cmdOK_Click() {
    const std::string field(kFieldDelimiter);
    const std::string record = std::string(txtDetails.Text) + field + std::string(txtLength.Text) + field +
                               std::string(cmbAction.Text) + field + std::string(cmbReference.Text) + field +
                               std::string(kRecordDelimiter);
    FileError error;
    if (!WriteWholeFile(TemplateFile(), record, &error)) {
        ShowFileError("frmTemplateEdit saving " + TemplateFile(), error);
        return;
    }
    Unload();
}

}  // namespace orbidex
