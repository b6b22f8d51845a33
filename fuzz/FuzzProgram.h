// The program as one fuzz input meets it: a scripted platform over a scratch folder
// that is both the program folder and the data folder, questions nobody scripted
// answered as Cancel, the program's state reset and the log quiet.
#pragma once

#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "foundation/ProgramState.h"
#include "platform/Platform.h"

namespace orbidex::test {

struct FuzzProgram {
    ScriptedPlatform platform;
    TempFolder folder;
};

/// The program made ready for the next input; the same folder serves every input.
inline FuzzProgram& StartFuzzInput() {
    static FuzzProgram program;
    program.platform.SetProgramFolder(program.folder.Stored());
    program.platform.SetProblemHandler([](const std::string&) {});
    program.platform.ClearTranscript();
    SetPlatform(&program.platform);
    ResetProgramState();
    gLogLevel = -2;
    gStrDataPath = program.folder.Stored() + "\\";
    return program;
}

}  // namespace orbidex::test
