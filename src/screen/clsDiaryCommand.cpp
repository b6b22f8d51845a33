#include "screen/clsDiaryCommand.h"

#include "network/cComms.h"
#include "platform/Platform.h"

namespace orbidex {

clsDiaryCommand glbCmd;

void clsDiaryCommand::CommandExit() {
    glbComms.Logoff();
    platform().EndProgram(0);
}

}  // namespace orbidex
