// The client's session with the server: connecting the user's network folder,
// pinging, logging on and off, and the keep-alive.
#include "network/cComms.h"

#include "config/clsConfigDiary.h"
#include "dialogs/LaunchDocument.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cFileIO.h"
#include "foundation/cLog.h"
#include "network/NetConnection.h"
#include "network/ServerFolder.h"
#include "platform/Platform.h"

namespace orbidex {

namespace sf = serverfolder;

cComms glbComms;

std::string AsUserList(const std::string& names) {
    std::string list;
    for (const std::string& name : Split(names, ","))
        if (!Trim(name).empty()) list += Trim(name) + ", ";
    return list;
}

void DeleteServerFile(const std::string& file) {
    DeleteFile(file);
    DeleteFile(file + std::string(sf::kOK));
}

std::string networkFile(std::string_view name) {
    return AddFileToPath(glbClientsNetworkDatapath, std::string(name));
}

bool waitForFile(const std::string& file, int seconds) {
    cFileIO waited;
    waited.init(file);
    return waited.waitUntilFileCanBeOpened(seconds);
}

namespace {

void appendLineTo(std::string_view name, const std::string& line) {
    cFileIO file;
    file.init(networkFile(name));
    file.appendLine(line);
}

void serverUnreachable() {
    glbNetworkAlive = false;
    glbServerAlive = false;
}

// A folder without a name is nobody's folder: an empty setting counts as missing.
bool networkFolderExists() {
    return !glbComms.GetMyUserName().empty() && FolderExists(glbClientsNetworkDatapath);
}

}  // namespace

std::string cComms::glbPollFrequently() const {
    return CStr(pollFrequently_);
}

void cComms::glbPollFrequently(const std::string& value) {
    pollFrequently_ = EqualsText(Trim(value), "True");
}

void cComms::SendRequest(std::string&) {}

void cComms::ReceiveResults(std::string&) {}

void cComms::InitClient(const std::string& localPath) {
    glbLog.log("Initializing Client", 3);
    localDataPath_ = localPath;
    if (glbConfig.runLocalModeOnly == "1") {
        serverUnreachable();
        return;
    }
    const std::string networkPath = glbNetworkDatapath;
    if (networkPath.empty()) glbConfig.StartingForFirstTime();
    // A folder typed with "/" is taken in the stored form the program works with.
    glbClientsNetworkDatapath = ToStoredPath(networkPath);
    if (NetConnection(glbClientsNetworkDatapath, "") != 0) {
        glbLog.log("Launching networkPath folder to see what the problem is '" + glbClientsNetworkDatapath + " '", 0);
        LaunchDocument(glbClientsNetworkDatapath);
    }
    KillOldNetDatapathFiles();  // puts the folder's trailing "\" back on the way
    glbMyUserName = GetMyUserName();
    if (!networkFolderExists()) {
        glbLog.log("Cant find network datapath " + glbClientsNetworkDatapath + " - Running Local", 0);
        serverUnreachable();
        return;
    }
    glbNetworkAlive = true;
    PingClient_local();
}

void cComms::KillOldNetDatapathFiles() {
    for (std::string_view name :
         {sf::kChat, sf::kChatOK, sf::kResults, sf::kResultsOK, sf::kRequest, sf::kRequestOK, sf::kServerFin})
        DeleteFile(networkFile(name));
}

std::string cComms::PingClient_local() {
    DeleteFile(networkFile(sf::kChatOK));
    if (!networkFolderExists()) {
        serverUnreachable();
        return "";
    }
    glbNetworkAlive = true;
    appendLineTo(sf::kChat, std::string(sf::kPingLine));
    if (waitForFile(networkFile(sf::kChatOK), glbConfig.waitTime)) {
        glbServerAlive = true;
        glbNetworkAlive = true;
        DeleteFile(networkFile(sf::kChatOK));
    } else {
        glbServerAlive = false;
    }
    return "";
}

void cComms::TellServerImStillAlive() {
    DeleteFile(networkFile(sf::kChatOK));
    DeleteFile(networkFile(sf::kChat));
    appendLineTo(sf::kChat, FormatDate(Now(), "yyyymmdd hh:mm:ss"));
}

void cComms::Logon() {
    if (glbServerAlive) appendLineTo(sf::kAlive, "user logged on at " + FormatDate(Now(), "yyyy-MMM-dd hh:mm:ss"));
}

// Logoff asks whether the folder can be reached, not whether the server answered:
// a user leaving while the server rests still leaves word of it.
void cComms::Logoff() {
    if (glbNetworkAlive) appendLineTo(sf::kDead, "user logged off at " + FormatDate(Now(), "yyyy-MMM-dd hh:mm:ss"));
}

std::string cComms::GetMyUserName() const {
    std::string path = glbClientsNetworkDatapath;
    if (Right(path, 1) == "\\") path = Left(path, Len(path) - 1);
    return Mid(path, InStrRev(path, "\\") + 1);
}

std::string cComms::MakeRandomDiaryRecordAsText(double date) {
    auto randomBelow = [](int limit) { return static_cast<int>(platform().Rnd() * limit); };
    cDiaryRecord record;
    record.DateEvent = FormatDate(date, "yyyymmdd");
    record.ID = "D" + record.DateEvent + FormatNumber(randomBelow(10000), "0000");
    record.TimeEvent = FormatNumber(8 + randomBelow(10), "00") + FormatNumber(15 * randomBelow(4), "00");
    record.length = CStr(static_cast<long>(15 * (1 + randomBelow(8))));
    record.Reference = "Test";
    record.details = "Made-up event " + CStr(static_cast<long>(randomBelow(1000)));
    return record.FormatAsText(kFieldDelimiter, true);
}

}  // namespace orbidex
