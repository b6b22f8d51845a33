#include "network/cDiaryComms.h"

#include "config/clsConfigDiary.h"
#include "foundation/FileHelpers.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "network/ServerFolder.h"
#include "network/cComms.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"

namespace orbidex {

namespace sf = serverfolder;

cDiaryComms glbDiaryComms;

std::string cDiaryComms::PingClient() {
    if (glbConfig.runLocalModeOnly == "1") {
        platform().MsgBox(
            "This diary client is running in local mode and cannot\r\n"
            "access a server. If you have recently installed a diary\r\n"
            "server, go to the Options menu and turn off, run in local\r\n"
            "run in local mode.",
            vbInformation, "This Client is set to not scan for a server");
        glbNetworkAlive = false;
        glbServerAlive = false;
        return "";
    }
    glbComms.PingClient_local();
    glbScreen.showStatus();
    platform().DoEvents();
    // The copies are what the lists fall back on while the server is away, so they
    // are made at every ping, answered or not.
    const std::string local = GetLocalDataPath();
    for (std::string_view name : {std::string_view("users.txt"), sf::kCommonLocations, sf::kCommonReferences})
        SafeFileCopy(networkFile(name), local + std::string(name), false, false);
    return "";
}

std::string cDiaryComms::GetLocalDataPath() {
    std::string path = gStrDataPath;
    if (path.empty()) path = platform().ProgramFolder();
    if (Right(path, 1) != "\\") path += "\\";
    return path;
}

}  // namespace orbidex
