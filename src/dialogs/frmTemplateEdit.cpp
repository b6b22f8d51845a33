#include "dialogs/frmTemplateEdit.h"

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
    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Move(2520, 1980, 1080, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(3720, 1980, 1080, 375);
    cmdOK.onClick = [this] { Unload(); };
    cmdCancel.onClick = [this] { Unload(); };
}

}  // namespace orbidex
