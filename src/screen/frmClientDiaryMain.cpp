#include "screen/frmClientDiaryMain.h"

#include <memory>

#include "screen/clsDiaryCommand.h"

namespace orbidex {

namespace {
std::unique_ptr<frmClientDiaryMain> gMainForm;
}

void frmClientDiaryMain::Form_Unload(int& cancel) {
    cancel = 1;
    glbCmd.CommandExit();
}

frmClientDiaryMain& MainForm() {
    if (!gMainForm) {
        gMainForm = std::make_unique<frmClientDiaryMain>();
        gMainForm->Load();
    }
    return *gMainForm;
}

void ResetMainForm() { gMainForm.reset(); }

}  // namespace orbidex
