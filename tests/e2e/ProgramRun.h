#pragma once
// One run of a real executable, copied into a temporary program folder so that its
// data folder lands there, with Qt's offscreen platform.

#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "TempFolder.h"

namespace orbidex::test {

class ProgramRun {
public:
    /// Copies the executable into a new temporary folder (or into `folder`, where a
    /// copy already there is used as it is, so that a second run can share it).
    explicit ProgramRun(const std::string& executable);
    ProgramRun(const std::string& executable, const std::string& folder);
    ~ProgramRun();

    /// An environment variable for the run, set before Start.
    void SetEnvironment(const std::string& name, const std::string& value);
    bool Start();
    /// Waits until the program has logged the last line of its start-up.
    bool WaitForStartUp(int timeoutMs = 20000);
    /// Waits, without polling, until the file below the program folder holds `text`.
    bool WaitForFileContaining(const std::string& relativePath, const std::string& text, int timeoutMs = 20000);
    /// Waits, without polling, until `done` holds for the file's bytes ("" while it is missing).
    bool WaitForFile(const std::string& relativePath, const std::function<bool(const std::string&)>& done,
                     int timeoutMs = 20000);
    bool Running() const { return process_.state() != QProcess::NotRunning; }
    /// Asks the program to close as the system does at log-off; its exit code, or -1.
    int CloseAndWait(int timeoutMs = 20000);
    /// Waits for the program to end by itself; its exit code, or -1.
    int WaitForExit(int timeoutMs = 20000);

    std::string ReadFile(const std::string& relativePath) const;
    /// The message of each line of the program's log ("yyyy-mm-dd, hh:mm:ss,
    /// computer, user, message").
    std::vector<std::string> LogMessages() const;
    bool Exists(const std::string& relativePath) const;
    const std::string& Folder() const { return folder_; }

private:
    void copyExecutable(const std::string& executable);

    TempFolder temp_;
    std::string folder_;
    std::string exe_;
    QProcess process_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

/// The base of the end-to-end tests: the Qt core application their waits need.
class ProgramRunTest : public ::testing::Test {
protected:
    static void SetUpTestSuite();
};

}  // namespace orbidex::test
