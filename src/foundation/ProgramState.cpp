#include "foundation/ProgramState.h"

#include "foundation/FileHelpers.h"
#include "foundation/cLog.h"

namespace orbidex {

std::string NETWORK_STRING = "LOCAL";
std::string gStrDataPath;
std::string gStrIniFile;
std::string gStrDiaryDataFile;
std::string gStrFirstDatafile;
std::string gStrSecondDatafile;
bool gBoolExtraDiaryDataLoaded = false;
VbDate gLngWhichMonthIsLoaded = 0;
int16_t gIntTotalEvents = 0;
int16_t gintcur = 0;
std::string gStrTasksFile;
std::string gStrNotesFile;
std::string gStrContactsFile;
int16_t gLogLevel = 0;
double gHoursPerDay = 0;
int16_t glbNumDaysToDisplay = 0;

std::string glbNetworkDatapath;
bool gBoolNewIniFile = false;

std::string glbClientsNetworkDatapath;
std::string glbMyUserName;
bool glbNetworkAlive = false;
bool glbServerAlive = false;
bool glbSavingToServer = false;
bool glbChatMode = false;
bool glbMessageWaiting = false;
bool glbRefreshNeeded = false;
std::string glbTickedUsers;
std::string glbResultsFile;
std::string glbKeepAliveSwitch;
bool glbServerConfirm = false;
bool glbSearching = false;
bool glbCancelClicked = false;

void ResetProgramState() {
    NETWORK_STRING = "LOCAL";
    gStrDataPath.clear();
    gStrIniFile.clear();
    gStrDiaryDataFile.clear();
    gStrFirstDatafile.clear();
    gStrSecondDatafile.clear();
    gBoolExtraDiaryDataLoaded = false;
    gLngWhichMonthIsLoaded = 0;
    gIntTotalEvents = 0;
    gintcur = 0;
    gStrTasksFile.clear();
    gStrNotesFile.clear();
    gStrContactsFile.clear();
    gLogLevel = 0;
    gHoursPerDay = 0;
    glbNumDaysToDisplay = 0;
    glbNetworkDatapath.clear();
    gBoolNewIniFile = false;
    glbClientsNetworkDatapath.clear();
    glbMyUserName.clear();
    glbNetworkAlive = false;
    glbServerAlive = false;
    glbSavingToServer = false;
    glbChatMode = false;
    glbMessageWaiting = false;
    glbRefreshNeeded = false;
    glbTickedUsers.clear();
    glbResultsFile.clear();
    glbKeepAliveSwitch.clear();
    glbServerConfirm = false;
    glbSearching = false;
    glbCancelClicked = false;

    ResetCachedNames();
    glbLog = cLog();
    ResetProgramObjects();
}

}  // namespace orbidex
