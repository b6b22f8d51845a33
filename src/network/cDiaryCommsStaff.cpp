// The staff planner's data, a window of 150 days of the ticked users' events that
// the server sends into the local RESULTS.TXT, and the booking of a meeting from
// the planner.
#include <memory>

#include "config/clsConfigDiary.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/ServerFolder.h"
#include "network/StaffGrid.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/frmBookMeeting.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace sf = serverfolder;

namespace {

constexpr long kDaysBefore = 30;
constexpr long kDaysAfter = 120;
constexpr std::string_view kOldResults = "RESULTS_OLD.TXT";

void debugLog(const std::string& message) {
    glbLog.pimlog(glbDiaryComms.GetLocalDataPath() + "debug.log", message, 1, 0);
}

// The stamp of a file as text in `pattern`; "" for a file that is not there.
std::string stampOf(const std::string& file, const std::string& pattern) {
    VbDate stamp = 0;
    return FileTimeStamp(file, stamp) ? FormatDate(stamp, pattern) : "";
}

// The server answered after the client stopped waiting: its late answer becomes the
// local copy.  True when that answer is from this very minute.
bool takeLateAnswer(const std::string& networkResults, const std::string& localOld) {
    debugLog("frmShowUsers - checking for old network copy of RESULTS.TXT .....");
    VbDate network = 0;
    VbDate local = 0;
    if (!FileTimeStamp(networkResults, network)) {
        glbLog.log("frmShowUsers - RESULTS.TXT does NOT exist on server", 3);
        return false;
    }
    if (FileTimeStamp(glbResultsFile, local) && network <= local) {
        glbLog.log("frmShowUsers - RESULTS.TXT exists on server, but it is the same date", 3);
        return false;
    }
    const std::string late =
        "Found a later copy of RESULTS.TXT on network datapath - may mean the timeout is too short";
    for (const char* log : {"svr_search.log", "svr_err.log"})
        glbLog.pimlog(glbDiaryComms.GetLocalDataPath() + log, late, 1, 0);
    DeleteFile(localOld);
    SafeFileCopy(glbResultsFile, localOld, true, false);
    SafeFileCopy(networkResults, glbResultsFile, true, false);
    if (FormatDate(network, "yyyymmddhhmm") != FormatDate(Now(), "yyyymmddhhmm")) return false;
    glbLog.log("frmShowUsers - RESULTS.TXT is THIS minute, so not repolling server", 3);
    return true;
}

}  // namespace

void cDiaryComms::GetStaffEvents(VbDate date, bool& force) {
    const std::string dateStart = FormatDate(date - kDaysBefore, "yyyymmdd");
    const std::string dateEnd = FormatDate(date + kDaysAfter, "yyyymmdd");
    const std::string month = FormatDate(date, "yyyymm");
    // The local copy holds only the users of the last request.
    if (month != staffMonth_ || glbTickedUsers != staffUsers_) force = true;
    staffMonth_ = month;
    staffUsers_ = glbTickedUsers;
    staffServerSilent_ = false;

    platform().SetBusyCursor(true);
    const std::string local = GetLocalDataPath();
    glbResultsFile = local + std::string(sf::kResults);
    // Nothing kept yet: there is no window to move in.
    if (!FileExists(glbResultsFile)) force = true;
    debugLog("cmdRefresh QUICKVIEW glbClientsNetworkDatapath = '" + glbClientsNetworkDatapath + "'");
    if (glbConfig.RetryAfterOutage == 1 && !glbServerAlive) glbComms.PingClient_local();

    const std::string networkResults = networkFile(sf::kResults);
    const std::string localOld = local + std::string(kOldResults);
    const bool thisMinute = glbServerAlive && takeLateAnswer(networkResults, localOld);
    // Within the month of the last request the window of 150 days holds the date.
    const bool sameMinute = stampOf(networkResults, "yyyymmddhhm") == FormatDate(Now(), "yyyymmddhhm");
    if (!thisMinute && (sameMinute || !force)) glbLog.log("Ignoring refresh", 3);
    if (thisMinute || !force) {
        platform().SetBusyCursor(false);
        return;
    }

    debugLog("QUICKVIEW About to Poll for data from " + dateStart + " to " + dateEnd + " for " + glbTickedUsers);
    const std::string results = glbComms.ClientDiaryRequest(" ", glbTickedUsers, dateStart, dateEnd);
    debugLog("QUICKVIEW returned from Poll - found " + FormatNumber(static_cast<double>(results.size()), "###,###") +
             " bytes");
    staffServerSilent_ = results.empty();
    if (results.empty()) {
        glbLog.log("Server is not responding - using cached data", 0);
        glbScreen.showStatus();
        // The copy before the last one is looked for in the program's own folder.
        SafeFileCopy(platform().ProgramFolder() + "\\" + std::string(kOldResults), glbResultsFile, true, false);
    } else {
        SafeFileCopy(glbResultsFile, localOld, true, false);
        SafeFileCopy(networkResults, glbResultsFile, true, false);
    }
    platform().SetBusyCursor(false);
}

void cDiaryComms::BookMeeting(frmClientDiaryMain& mainWindow) {
    glbTickedUsers = glbComms.GetTickedListOfUsers(mainWindow.lvUsers);
    const FlexGrid& grid = mainWindow.gridDays;
    // Outside a slot the row's data is read as the time, as in the calendar's grid.
    std::string time = StaffChosenSlot(grid);
    if (time.empty()) time = Trim(CStr(grid.RowData(grid.Row)));
    if (Len(time) == 3) time = "0" + time;
    const VbDate day = StaffChosenDay(grid, mainWindow.MonthView1.Value);
    const VbDate at = day + TimeSerial(static_cast<int>(Val(Left(time, 2))), static_cast<int>(Val(Right(time, 2))), 0);

    auto form = std::make_unique<frmBookMeeting>();
    form->dtPickDate.Value = day;
    form->dtPickTime.Value = at;
    form->DTPicker1.Value = day;
    form->DTPicker2.Value = at;
    form->lblUsers.Caption = "Booking a meeting for " + glbTickedUsers;
    form->Show(true);
    if (glbConfig.dialogCancelled) return;
    bool force = true;
    GetStaffEvents(mainWindow.MonthView1.Value, force);
    glbScreen.DisplayStaffEvents();
}

}  // namespace orbidex
