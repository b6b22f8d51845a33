#pragma once
// The program's global values.  The long-lived objects are declared beside their
// classes (glbLog in cLog.h, glbConfig in clsConfigDiary.h, ...).

#include <cstdint>
#include <string>

#include "platform/Platform.h"

namespace orbidex {

// Start-up and the event store
extern std::string NETWORK_STRING;        ///< "LOCAL" or "CLIENT", fixed at start
extern std::string gStrDataPath;          ///< folder of the data files, ends in "\"
extern std::string gStrIniFile;           ///< the settings file
extern std::string gStrDiaryDataFile;     ///< monthly file the next save or load works on
extern std::string gStrFirstDatafile;     ///< the file LoadDiaryData loaded
extern std::string gStrSecondDatafile;    ///< the second month's file
extern bool gBoolExtraDiaryDataLoaded;    ///< a second month is in the event array
extern VbDate gLngWhichMonthIsLoaded;     ///< the date of the last LoadDiaryData
extern int16_t gIntTotalEvents;           ///< events in the event array
extern int16_t gintcur;                   ///< selected event, negative for none
extern std::string gStrTasksFile;
extern std::string gStrNotesFile;
extern std::string gStrContactsFile;
extern int16_t gLogLevel;                 ///< messages of this level or lower are logged
extern double gHoursPerDay;               ///< never assigned: 0
extern int16_t glbNumDaysToDisplay;       ///< days the calendar view shows

// Settings mirrored outside the settings object
extern std::string glbNetworkDatapath;    ///< the server's shared folder
extern bool gBoolNewIniFile;              ///< the settings file was made by this run

// The network session
extern std::string glbClientsNetworkDatapath;
extern std::string glbMyUserName;
extern bool glbNetworkAlive;
extern bool glbServerAlive;
extern bool glbSavingToServer;
extern bool glbChatMode;
extern bool glbMessageWaiting;
extern bool glbRefreshNeeded;
extern std::string glbTickedUsers;
extern std::string glbResultsFile;
extern std::string glbKeepAliveSwitch;
extern bool glbServerConfirm;            ///< the server must confirm every save; nothing reads it yet

// The search
extern bool glbSearching;                 ///< a search is filling the result list
extern bool glbCancelClicked;             ///< the search form was closed without searching

/// Puts every global value and object back to its start value, so that each test
/// starts clean.
void ResetProgramState();
/// The long-lived objects' part of ResetProgramState.
void ResetProgramObjects();

}  // namespace orbidex
