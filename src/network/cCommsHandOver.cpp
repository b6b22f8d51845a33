// Handing saved files over to the server: a copy in the user's network folder,
// published by its ".OK" file, confirmed by the server's SERVER.FIN.  There is no
// retry and no queue: the file stays saved locally, and the next save of the same
// file brings the server up to date, since a whole file always travels.
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/ServerFolder.h"
#include "network/cComms.h"
#include "platform/Platform.h"

namespace orbidex {

namespace sf = serverfolder;

namespace {

void reportCopyFailure(const std::string& file, const std::string& target) {
    glbLog.log("Error occurred in SaveFileToMyNetworkDatapathForServer copying " + file + "to " + target, 0);
    platform().MsgBox("Error occurred in SaveFileToMyNetworkDatapathForServer\r\ncopying " + file + "\r\nto " + target,
                      vbOKOnly, "");
}

void waitForServerConfirm() {
    if (!glbServerAlive) {
        glbLog.log("Server is down, so not trying to wait for confirm file", 0);
        return;
    }
    const std::string confirm = networkFile(sf::kServerFin);
    if (waitForFile(confirm, glbConfig.waitTime)) {
        glbLog.log("File was confirmed saved by the server", 0);
        DeleteFile(confirm);
        return;
    }
    if (glbServerAlive)
        glbLog.log(
            "WARNING - File was not confirmed saved by the server (server may not be running) If you think the "
            "server is running, confirm the paths and 'ping' the server before trying again",
            0);
    glbLog.log("ERROR - File was not confirmed saved by the server (server may not be running)", 0);
}

}  // namespace

bool cComms::SaveDiaryFileToServer(const std::string& file, bool noWait) {
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) return false;
    const std::string level = Trim(glbConfig.security);
    std::string networkForm;
    for (const std::string& line : SplitLines(bytes)) {
        platform().DoEvents();
        cDiaryRecord record;
        record.GetDiaryRecordFromText(line);
        const std::string shared = record.FormatDiaryRecordForNetwork(record, kFieldDelimiter, "", level);
        if (!Trim(shared).empty()) networkForm += shared + "\r\n";
    }
    const std::string networkFormFile = file + std::string(sf::kNetworkForm);
    WriteWholeFile(networkFormFile, networkForm);
    SaveFileToMyNetworkDatapathForServer(networkFormFile, noWait);
    return false;
}

// The flag of a hand-over under way is lowered only by a hand-over that waited for
// the server: one that stopped early leaves it standing, and the change list then
// waits for the next hand-over that does wait.
void cComms::SaveFileToMyNetworkDatapathForServer(const std::string& file, bool noWait) {
    const std::string target = networkFile(GetFileNameOnly(file));
    glbSavingToServer = true;
    if (!glbServerAlive) {
        glbLog.log("Server not alive - not SaveFileToMyNetworkDatapathForServer", 0);
        return;
    }
    const std::string confirm = target + std::string(sf::kOK);
    DeleteFile(confirm);  // so that the server never acts on a half-copied file
    const std::string savedLine =
        "this was saved by the client on " + FormatDate(Now(), "yyyy-mm-dd hh:mm:ss") + "\r\n";
    if (!CopyFile(file, target) || !AppendToFile(confirm, savedLine)) {
        reportCopyFailure(file, target);
        return;
    }
    if (noWait) return;
    waitForServerConfirm();
    glbSavingToServer = false;
}

// A change list is a one-shot notice: it is deleted once handed over, also when the
// server was away and the hand-over stopped early.
bool cComms::UpdateServerWithChangedFiles(const std::string& folder) {
    if (glbSavingToServer) return false;
    const std::string changes = folder + std::string(sf::kChangeRequest);
    if (!FileExists(changes)) return false;
    SaveFileToMyNetworkDatapathForServer(changes, true);
    DeleteFile(changes);
    return true;
}

}  // namespace orbidex
