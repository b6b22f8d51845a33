#include "network/cComms.h"

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

cComms glbComms;

namespace {

// How much of each event other users may see: "0" nothing to "4" everything.
std::string securityLevel() {
    return Trim(glbConfig.security);
}

}  // namespace

bool cComms::SaveDiaryFileToServer(const std::string& file, bool noWait) {
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) return false;
    const std::string level = securityLevel();
    std::string networkForm;
    for (const std::string& line : SplitLines(bytes)) {
        platform().DoEvents();
        cDiaryRecord record;
        record.GetDiaryRecordFromText(line);
        const std::string shared = record.FormatDiaryRecordForNetwork(record, kFieldDelimiter, "", level);
        if (!Trim(shared).empty()) networkForm += shared + "\r\n";
    }
    WriteWholeFile(file + "_NET", networkForm);
    SaveFileToMyNetworkDatapathForServer(file + "_NET", noWait);
    return false;
}

void cComms::SaveFileToMyNetworkDatapathForServer(const std::string& file, bool noWait) {
    glbSavingToServer = true;
    if (!glbServerAlive) {
        glbLog.log("Server not alive - not SaveFileToMyNetworkDatapathForServer", 0);
        return;
    }
    // With the server up, the copy into the network folder and the wait for its
    // answer are the session's work; until a session is made, nothing more happens.
    (void)file;
    (void)noWait;
}

}  // namespace orbidex
