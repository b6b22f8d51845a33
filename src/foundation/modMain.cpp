#include "foundation/modMain.h"

#include "config/clsConfigDiary.h"
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

// A second running copy ends here, before any file is touched; a missing settings
// file is made with its defaults.
void readSettings() {
    glbConfig.fname = gStrIniFile;
    glbConfig.ReadAllSettings();
}

}  // namespace

void modMain(const std::string& networkKind) {
    NETWORK_STRING = networkKind;
    findDataFolder();
    openLog();
    readSettings();
    MainForm().Show(false);
}

}  // namespace orbidex
