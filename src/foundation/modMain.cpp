#include "foundation/modMain.h"

#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "foundation/clsPath.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

void findDataFolder() {
    gStrDataPath = platform().ProgramFolder() + "\\data\\";
    clsPath dataFolder;
    dataFolder.initFull(gStrDataPath, true);
    if (Right(gStrDataPath, 1) != "\\") gStrDataPath += "\\";
    gStrIniFile = gStrDataPath + "orbidex.ini";
}

void openLog() {
    const std::string programFolder = platform().ProgramFolder();
    glbLog.init(programFolder + "\\data\\OX_LOG.log", programFolder + "\\data\\OX_ERR.log", "", true, 0);
    glbLog.log("Started orbidex ", -1);
    glbLog.log(cLog::getAppVersionString(), -1);
    gLogLevel = 0;
}

}  // namespace

void modMain(const std::string& networkKind) {
    NETWORK_STRING = networkKind;
    findDataFolder();
    openLog();
    MainForm().Show(false);
}

}  // namespace orbidex
