// The work the server leaves in the user's network folder, looked for at each poll,
// and the one message the client sends at a time.
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/ServerFolder.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "platform/Platform.h"

namespace orbidex {

namespace sf = serverfolder;

namespace {

class PollGuard {
public:
    explicit PollGuard(bool& flag) : flag_(flag) { flag_ = true; }
    ~PollGuard() { flag_ = false; }
    PollGuard(const PollGuard&) = delete;
    PollGuard& operator=(const PollGuard&) = delete;

private:
    bool& flag_;
};

// The work moves the file in hand to the month it changed.  The month on screen
// becomes the file in hand again, and the months in memory are read anew, so that
// no later save writes them over what arrived.
void catchUpWithTheDisk(const std::string& fileInHand) {
    gStrDiaryDataFile = fileInHand;
    if (gLngWhichMonthIsLoaded > 0) glbEvents.LoadDiaryData(gLngWhichMonthIsLoaded);
}

}  // namespace

bool cComms::CheckForServerRequests() {
    if (!glbServerAlive || Val(glbConfig.runLocalModeOnly) == 1 || polling_) return false;
    const PollGuard guard(polling_);
    // A refresh asked for by an earlier poll stands until the view is drawn, so that
    // work found between two full minutes still reaches the screen.
    const bool refreshOwed = glbRefreshNeeded;
    glbRefreshNeeded = false;
    const std::string fileInHand = gStrDiaryDataFile;
    bool arrived = false;
    bool failed = false;
    if (FileExists(networkFile(sf::kClientChange))) {
        failed |= !glbDiaryComms.EventChangedByAnotherUser(std::string(sf::kClientChange));
        glbRefreshNeeded = arrived = true;
    }
    if (FileExists(networkFile(sf::kClientAdd))) {
        failed |= !GetEventAddedByAnotherUser(std::string(sf::kClientAdd));
        glbRefreshNeeded = arrived = true;
    }
    if (glbRefreshNeeded) catchUpWithTheDisk(fileInHand);
    glbRefreshNeeded = glbRefreshNeeded || refreshOwed;
    // After a file that could not be read, the messages wait for the next poll.
    if (failed) return arrived;
    if (FileExists(networkFile(sf::kClientMessage))) {
        glbDiaryComms.RecieveMessage(std::string(sf::kClientMessage));
        arrived = true;
    } else if (glbKeepAliveSwitch != "NO") {
        TellServerImStillAlive();
    }
    return arrived;
}

bool cComms::GetEventAddedByAnotherUser(const std::string& name) {
    const std::string file = networkFile(name);
    std::string bytes;
    const bool read = ReadWholeFile(file, bytes);
    for (const std::string& line : SplitLines(bytes))
        if (!line.empty()) glbDiaryComms.AddEventFromRemoteUser(line);
    // Also a file that could not be read goes: the server is not asked again.
    DeleteServerFile(file);
    return read;
}

// A message to a list that holds the sender's own name reaches the sender too.
void cComms::TransmitText(const std::string& users, const std::string& text) {
    const std::string message = networkFile(sf::kMessage);
    WriteWholeFile(message, users + " , \r\n" + FormatDate(Now(), "yyyymmdd hh:mm:ss") + "\r\n" + text + "\r\n");
    platform().DoEvents();
    glbDiaryComms.CreateMessageLogEntry(users, "TX", text);
    AppendToFile(message + std::string(sf::kOK), std::string(sf::kRequestWritten) + "\r\n");
    glbLog.log(GetMyUserName() + " sent message to " + users + " ( " + text + ")", 0);
}

}  // namespace orbidex
