#include "ProgramRun.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileSystemWatcher>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace fs = std::filesystem;

namespace orbidex::test {

ProgramRun::ProgramRun(const std::string& executable) : folder_(temp_.Native()) {
    copyExecutable(executable);
}

ProgramRun::ProgramRun(const std::string& executable, const std::string& folder) : folder_(folder) {
    copyExecutable(executable);
}

ProgramRun::~ProgramRun() {
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

void ProgramRun::copyExecutable(const std::string& executable) {
    exe_ = folder_ + "/" + fs::path(executable).filename().string();
    // A running copy can't be overwritten; a second run in the folder shares it.
    if (!fs::exists(exe_)) fs::copy_file(executable, exe_);
}

void ProgramRun::SetEnvironment(const std::string& name, const std::string& value) {
    environment_.insert(QString::fromStdString(name), QString::fromStdString(value));
}

bool ProgramRun::Start() {
    QProcessEnvironment env = environment_;
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process_.setProcessEnvironment(env);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setWorkingDirectory(QString::fromStdString(folder_));
    process_.start(QString::fromStdString(exe_), {});
    return process_.waitForStarted(10000);
}

std::string ProgramRun::ReadFile(const std::string& relativePath) const {
    std::ifstream in(folder_ + "/" + relativePath, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

std::vector<std::string> ProgramRun::LogMessages() const {
    std::vector<std::string> messages;
    for (const std::string& line : SplitLines(ReadFile("data/OX_LOG.log"))) {
        const std::vector<std::string> parts = Split(line, ", ", 5);
        messages.push_back(parts.size() == 5 ? parts[4] : line);
    }
    return messages;
}

bool ProgramRun::Exists(const std::string& relativePath) const {
    return fs::exists(folder_ + "/" + relativePath);
}

bool ProgramRun::WaitForStartUp(int timeoutMs) {
    static const std::regex lastLine(", Found [0-9]+ Data Files\r\n");
    return WaitForFile(
        "data/OX_LOG.log", [](const std::string& log) { return std::regex_search(log, lastLine); }, timeoutMs);
}

bool ProgramRun::WaitForFileContaining(const std::string& relativePath, const std::string& text, int timeoutMs) {
    return WaitForFile(
        relativePath, [&](const std::string& bytes) { return bytes.find(text) != std::string::npos; }, timeoutMs);
}

bool ProgramRun::WaitForFile(const std::string& relativePath, const std::function<bool(const std::string&)>& done,
                             int timeoutMs) {
    auto found = [&] { return done(ReadFile(relativePath)); };
    if (found()) return true;
    // Watch every folder on the way, so that the file's creation is seen too.
    QFileSystemWatcher watcher;
    fs::path path = fs::path(folder_) / relativePath;
    for (fs::path p = path; p != p.parent_path() && p.string().size() >= folder_.size(); p = p.parent_path())
        watcher.addPath(QString::fromStdString(p.string()));
    QEventLoop loop;
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, &loop, &QEventLoop::quit);
    auto check = [&] {
        for (fs::path p = path; p != p.parent_path() && p.string().size() >= folder_.size(); p = p.parent_path())
            watcher.addPath(QString::fromStdString(p.string()));
        if (found()) loop.quit();
    };
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &loop, check);
    QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &loop, check);
    QObject::connect(&process_, &QProcess::finished, &loop, &QEventLoop::quit);
    deadline.start(timeoutMs);
    if (!found()) loop.exec();
    return found();
}

int ProgramRun::CloseAndWait(int timeoutMs) {
    process_.terminate();
    return WaitForExit(timeoutMs);
}

int ProgramRun::WaitForExit(int timeoutMs) {
    if (!process_.waitForFinished(timeoutMs)) return -1;
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

void ProgramRunTest::SetUpTestSuite() {
    static int argc = 1;
    static char name[] = "e2e_tests";
    static char* argv[] = {name, nullptr};
    if (QCoreApplication::instance() == nullptr) new QCoreApplication(argc, argv);
}

}  // namespace orbidex::test
