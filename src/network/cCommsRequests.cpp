// Requests for other users' events: a [search] block in REQUEST.TXT, published by
// REQUEST.TXT.OK, answered by the server with RESULTS.TXT and RESULTS.TXT.OK.
#include "config/clsConfigDiary.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/ServerFolder.h"
#include "network/cComms.h"
#include "platform/Platform.h"

namespace orbidex {

namespace sf = serverfolder;

namespace {

// svr_req.log and svr_err.log in the program's own folder, for people to read.
void logProtocolFailure(const std::string& logName, const std::string& message) {
    glbLog.pimlog(platform().ProgramFolder() + "\\" + logName, message, 1, 0);
}

}  // namespace

std::string cComms::ClientDiaryRequest(const std::string& detail, const std::string& users,
                                       const std::string& dateStart, const std::string& dateEnd) {
    const std::string requestFile = networkFile(sf::kRequest);
    const std::string resultsFile = networkFile(sf::kResults);
    const std::string requestConfirm = networkFile(sf::kRequestOK);
    KillOldNetDatapathFiles();
    if (!glbServerAlive) {
        glbLog.log("Server not alive - not trying to do ClientDiaryRequest", 0);
        return "";
    }
    glbLog.log("requesting data from server .....", 3);

    DeleteFile(requestFile);
    const std::string block = "[search]\r\ndetail=" + detail + "\r\ndateStart=" + dateStart + "\r\ndateEnd=" + dateEnd +
                              "\r\nusers=" + users + "\r\n";
    if (!AppendToFile(requestFile, block + "\r\n")) {
        glbLog.log("ClientDiaryRequest failed", 0);
        return "";
    }
    AppendToFile(requestConfirm, std::string(sf::kRequestWritten) + "\r\n");

    const std::string results = WaitForServerData(glbClientsNetworkDatapath, resultsFile, glbConfig.waitTime);
    if (results.empty())
        logProtocolFailure("svr_req.log", "Failed to get valid response from server in ClientDiaryRequest");
    // RESULTS.TXT stays for the caller to read or copy.
    DeleteFile(requestFile);
    DeleteFile(requestConfirm);
    DeleteFile(resultsFile + std::string(sf::kOK));
    return results;
}

std::string cComms::WaitForServerData(const std::string&, const std::string& file, int seconds) {
    const std::string confirm = file + std::string(sf::kOK);
    if (!waitForFile(confirm, seconds + 5)) {
        // The message has always named two seconds more than the wait, not five.
        glbLog.log("WaitForServerData waited, but confirm file not found after " +
                       CStr(static_cast<long>(seconds + 2)) + " seconds " + confirm,
                   0);
        return "";
    }
    if (!waitForFile(file, 3)) {
        logProtocolFailure("svr_err.log", "WaitForServerData found confirm file but no real file " + confirm);
        return "";
    }
    return ReadFileToString(file, true);
}

std::string cComms::GetUserNameFromResultsLine(const std::string& line) const {
    const long dot = InStr(line, ".");
    if (dot == 0) return "";
    std::string name = Mid(line, dot + 1);
    const long blank = InStr(name, " ");
    if (blank > 0) name = Left(name, blank - 1);
    return Trim(name);
}

std::string cComms::WaitAndGetServerFile(const std::string&, const std::string&) {
    glbLog.log("Checking for server files - WARNING THIS FUNCTION DOES NOTHING !!!!", 3);
    return "";
}

}  // namespace orbidex
