#include "ClientSettings.h"

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex::test {

std::string ClientSettingsFile(const std::string& programFolder, const std::string& networkFolder, int waitTime) {
    std::string settings;
    ReadWholeFile(ToStoredPath(ORBIDEX_CONFIG_GOLDEN_DIR) + "\\first_run_local.ini", settings);
    settings = Replace(settings, "{PROGRAM_FOLDER}", programFolder);
    settings = Replace(settings, "runLocalModeOnly=1\r\n", "runLocalModeOnly=0\r\ndatapath=" + networkFolder + "\r\n");
    return Replace(settings, "waitTime=12\r\n", "waitTime=" + std::to_string(waitTime) + "\r\n");
}

}  // namespace orbidex::test
