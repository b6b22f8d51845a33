// The program as a benchmark meets it: a scripted platform over a scratch program
// folder, the program's state reset, the data folder in the scratch folder (or in a
// folder of it), the settings file named there and the log open, as at a start.
// Each benchmark's program derives from it and adds its own data.
#pragma once

#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex::bench {

class BenchProgram {
public:
    /// `dataFolder`: the data folder's name inside the program folder, "" for the
    /// program folder itself.
    explicit BenchProgram(const std::string& dataFolder = "") {
        platform_.SetProgramFolder(folder_.Stored());
        SetPlatform(&platform_);
        ResetProgramState();
        gStrDataPath = folder_.Stored() + "\\" + (dataFolder.empty() ? "" : dataFolder + "\\");
        if (!dataFolder.empty()) MakeFolder(gStrDataPath);
        gStrIniFile = gStrDataPath + "orbidex.ini";
        glbLog.init(gStrDataPath + "OX_LOG.log", "", "", true, 0);
    }
    ~BenchProgram() {
        ResetProgramState();
        SetPlatform(nullptr);
    }
    BenchProgram(const BenchProgram&) = delete;
    BenchProgram& operator=(const BenchProgram&) = delete;

protected:
    test::ScriptedPlatform platform_;
    test::TempFolder folder_;
};

}  // namespace orbidex::bench
