#pragma once
// The program's log: one line per message, filtered by the global log level, and
// other named logs in the comma forms that other tools read.  Writing a log never
// fails its caller.

#include <functional>
#include <string>
#include <vector>

namespace orbidex {

class cLog {
public:
    /// Empty names fall to the program folder: <exe>.log, error.log, temp.log.
    void init(const std::string& logFile, const std::string& errorFile, const std::string& tempFile,
              bool runSilent, int LogLevel);
    /// Writes "yyyy-mm-dd, hh:mm:ss, computer, user, message" when gLogLevel >= level.
    void log(const std::string& message, int level = 0);
    /// Appends one line to `file` in the form `lineForm` (1, 2, 77 or plain).
    void pimlog(const std::string& file, const std::string& message, int lineForm, int level,
                const std::string& who = "");
    /// One line for a whole text array: date, time, user, computer, ", ARRAY=" and
    /// index-text pairs of the non-empty entries.
    void logArray(const std::vector<std::string>& list);
    static std::string getAppVersionString();
    static std::string getAppVersionNum();
    static std::string FormatVersionString(int major, int minor, int revision);
    /// True if the file can be opened for appending.
    bool CheckFileAvailability(const std::string& file);
    void logError() {}
    void Clear() {}

    bool runSilent = false;
    std::string logFile;
    std::string errorFile;
    std::string tempFile;
    int LogLevel = 0;
    /// A list control that shows the log; log lines go to it while the list flag is set.
    std::function<void(const std::string&)> listBox;
    bool setlistBox = false;

private:
    std::string userName_;
    std::string computerName_;
};

extern cLog glbLog;

}  // namespace orbidex
