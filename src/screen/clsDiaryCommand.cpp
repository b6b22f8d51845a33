#include "screen/clsDiaryCommand.h"

#include "platform/Platform.h"

namespace orbidex {

clsDiaryCommand glbCmd;

void clsDiaryCommand::CommandExit() { platform().EndProgram(0); }

}  // namespace orbidex
