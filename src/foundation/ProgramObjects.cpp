// The long-lived objects of the program, put back to their start by ResetProgramState.
#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"
#include "screen/clsDiaryCommand.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void ResetProgramObjects() {
    glbConfig = clsConfigDiary();
    gListViewHeadings = cDiaryRecord();
    gTaskHeadings = cDiaryRecord();
    glbCmd = clsDiaryCommand();
    ResetMainForm();
}

}  // namespace orbidex
