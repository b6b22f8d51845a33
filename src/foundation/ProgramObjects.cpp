// The long-lived objects of the program, put back to their start by ResetProgramState.
#include "foundation/ProgramState.h"
#include "screen/clsDiaryCommand.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void ResetProgramObjects() {
    glbCmd = clsDiaryCommand();
    ResetMainForm();
}

}  // namespace orbidex
