#include "foundation/cLog.h"

#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cFileIO.h"

namespace orbidex {

cLog glbLog;

namespace {

std::string defaultLogFile() { return platform().ProgramFolder() + "\\" + platform().ExeName() + ".log"; }

}  // namespace

void cLog::init(const std::string& logFileName, const std::string& errorFileName, const std::string& tempFileName,
                bool silent, int level) {
    logFile = logFileName.empty() ? defaultLogFile() : logFileName;
    errorFile = errorFileName.empty() ? platform().ProgramFolder() + "\\error.log" : errorFileName;
    tempFile = tempFileName.empty() ? platform().ProgramFolder() + "\\temp.log" : tempFileName;
    runSilent = silent;
    LogLevel = level;
    userName_ = GetPCUserName();
    computerName_ = GetPCComputerName();
    if (!runSilent) log("Started Program", 1);
    log("------------------------------------------------------", 0);
    setlistBox = true;
}

void cLog::log(const std::string& message, int level) {
    if (gLogLevel < level) return;
    const VbDate now = Now();
    const std::string line = FormatDate(now, "yyyy-mm-dd") + ", " + FormatDate(now, "hh:mm:ss") + ", " +
                             computerName_ + ", " + userName_ + ", " + message;
    cFileIO file;
    file.init(logFile);
    file.appendLine(line);
    if (setlistBox && listBox) listBox(line);
}

void cLog::pimlog(const std::string& file, const std::string& message, int lineForm, int level,
                  const std::string& who) {
    if (gLogLevel < level) return;
    const std::string target = file.empty() ? defaultLogFile() : file;
    const VbDate now = Now();
    const std::string d = FormatDate(now, "yyyymmdd");
    const std::string t = FormatDate(now, "hh:mm:ss");
    std::string line;
    switch (lineForm) {
        case 1: line = d + "," + t + "," + GetPCUserName() + "," + GetPCComputerName() + "," + message; break;
        case 2: line = d + "," + t + "," + message; break;
        case 77: line = d + "," + t + "," + who + "," + message; break;
        default: line = message; break;
    }
    AppendToFile(target, line + "\r\n");
}

void cLog::logArray(const std::vector<std::string>& list) {
    const VbDate now = Now();
    std::string line = FormatDate(now, "yyyymmdd") + "," + FormatDate(now, "hhmm") + "," + userName_ + "," +
                       computerName_ + ", ARRAY=";
    for (size_t i = 0; i < list.size(); ++i)
        if (!list[i].empty()) line += CStr(static_cast<long>(i)) + "-" + list[i];
    AppendToFile(logFile, line + "\r\n");
}

std::string cLog::FormatVersionString(int major, int minor, int revision) {
    return "v" + CStr(major) + "." + CStr(minor) + "   (build " + CStr(revision) + ")";
}

std::string cLog::getAppVersionString() {
    return FormatVersionString(ORBIDEX_VERSION_MAJOR, ORBIDEX_VERSION_MINOR, ORBIDEX_VERSION_REVISION);
}

std::string cLog::getAppVersionNum() {
    return CStr(ORBIDEX_VERSION_MAJOR) + "." + CStr(ORBIDEX_VERSION_MINOR) + "." + CStr(ORBIDEX_VERSION_REVISION);
}

bool cLog::CheckFileAvailability(const std::string& file) {
    // Opening for appending creates a missing file, as the open does elsewhere.
    return AppendToFile(file, "");
}

}  // namespace orbidex
