// The start of the real program, offscreen, from process start to the first turn of
// its event loop with the main window shown and painted, on a data folder of 20
// years (240 monthly files, 120,000 events, this month among them).  Each round
// starts, in turn: a bare QMainWindow program (the anchor), a plain Qt window with a
// menu bar, a tool bar, a 20 x 8 table and a status bar, `orbidex`, and
// `orbidex-client` whose server folder cannot be reached.  The medians are printed
// with the ratio of each to the bare window (`x_bare`); `client_shown_ms` is when the
// client's window was painted, whatever the session with the server does after.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "ClientSettings.h"
#include "DiaryGenerator.h"
#include "TempFolder.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

extern char** environ;

namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 25;
constexpr int kTimeoutMs = 30000;

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// A start that went wrong stops the benchmark, and the program ends with 1.
struct StartFailed : std::runtime_error {
    using std::runtime_error::runtime_error;
};
bool gFailed = false;

[[noreturn]] void fail(const std::string& what) {
    throw StartFailed(what);
}

// One start: milliseconds from the spawn to the window's first paint and to the
// first turn of the main event loop after it, as the probe saw them.
struct Start {
    double shownMs = 0;
    double loopMs = 0;
};

// A program started by the benchmark: its executable, the folder it runs in and the
// name of the window that ends its start.
struct Program {
    std::string label;
    std::string executable;
    std::string folder;
    std::string window;
};

class Starter {
public:
    Starter() : probeFile_(scratch_.Native() + "/probe.txt") {
        for (char** entry = environ; *entry != nullptr; ++entry) {
            const std::string text = *entry;
            if (text.rfind("QT_QPA_PLATFORM=", 0) != 0 && text.rfind("LD_PRELOAD=", 0) != 0)
                environment_.push_back(text);
        }
        environment_.push_back("QT_QPA_PLATFORM=offscreen");
        environment_.push_back(std::string("LD_PRELOAD=") + ORBIDEX_STARTUP_PROBE_LIBRARY);
        environment_.push_back("ORBIDEX_STARTUP_PROBE=" + probeFile_);
    }

    Start Run(const Program& program) {
        fs::remove(probeFile_);
        std::vector<char*> envp;
        for (std::string& text : environment_) envp.push_back(text.data());
        envp.push_back(nullptr);
        std::string executable = program.executable;
        char* argv[] = {executable.data(), nullptr};

        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addchdir_np(&actions, program.folder.c_str());
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        pid_t pid = 0;
        const long long spawned = monotonicNanoseconds();
        const int error = posix_spawn(&pid, argv[0], &actions, nullptr, argv, envp.data());
        posix_spawn_file_actions_destroy(&actions);
        if (error != 0) fail("cannot start " + program.executable);
        waitForExit(pid, program);
        return readProbe(spawned, program);
    }

private:
    static void waitForExit(pid_t pid, const Program& program) {
        const int handle = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
        pollfd ended{handle, POLLIN, 0};
        const bool done = handle >= 0 && poll(&ended, 1, kTimeoutMs) == 1;
        if (handle >= 0) close(handle);
        if (!done) kill(pid, SIGKILL);
        int status = 0;
        waitpid(pid, &status, 0);
        if (!done) fail(program.label + " showed no window within " + std::to_string(kTimeoutMs / 1000) + " s");
    }

    Start readProbe(long long spawned, const Program& program) const {
        std::ifstream in(probeFile_);
        long long shown = 0;
        long long loop = 0;
        std::string window;
        if (!(in >> shown >> loop >> window)) fail(program.label + " ended before its window was shown");
        if (window != program.window) fail(program.label + " showed " + window + " first, not " + program.window);
        return {static_cast<double>(shown - spawned) / 1e6, static_cast<double>(loop - spawned) / 1e6};
    }

    orbidex::test::TempFolder scratch_;
    std::string probeFile_;
    std::vector<std::string> environment_;
};

// A server folder that cannot be reached.
const char* const kNoServer = "\\nowhere\\share\\fred\\";

// The settings file a first start of `orbidex` in `programFolder` writes.
std::string firstRunSettings(const std::string& programFolder) {
    std::string settings;
    orbidex::ReadWholeFile(orbidex::ToStoredPath(ORBIDEX_CONFIG_GOLDEN_DIR) + "\\first_run_local.ini", settings);
    return orbidex::Replace(settings, "{PROGRAM_FOLDER}", programFolder);
}

// A copy of an executable in a program folder of its own, with its settings file and
// 20 years of diary ending in December of this year.
class ProgramFolder {
public:
    ProgramFolder(const std::string& label, const std::string& executable, bool client) {
        const std::string copy = folder_.Native() + "/" + fs::path(executable).filename().string();
        fs::copy_file(executable, copy);
        const std::string stored = folder_.Stored();
        const std::string data = stored + "\\data\\";
        orbidex::MakeFolder(data);
        orbidex::WriteWholeFile(data + "orbidex.ini", client ? orbidex::test::ClientSettingsFile(stored, kNoServer, 12)
                                                             : firstRunSettings(stored));
        const std::time_t now = std::time(nullptr);
        std::tm today{};
        localtime_r(&now, &today);
        orbidex::bench::GenerateDiary(data, today.tm_year + 1900 - 19, 20);
        program_ = {label, copy, folder_.Native(), "frmClientDiaryMain"};
    }

    const Program& program() const { return program_; }

private:
    orbidex::test::TempFolder folder_;
    Program program_;
};

void measure(benchmark::State& state) {
    Starter starter;
    const ProgramFolder local("orbidex", ORBIDEX_EXE, false);
    const ProgramFolder client("orbidex-client", ORBIDEX_CLIENT_EXE, true);
    const std::vector<Program> programs = {
        {"bare", ORBIDEX_BARE_WINDOW_EXE, fs::temp_directory_path().string(), "bareWindow"},
        {"plain", ORBIDEX_PLAIN_WINDOW_EXE, fs::temp_directory_path().string(), "plainWindow"},
        local.program(),
        client.program(),
    };
    for (const Program& program : programs) starter.Run(program);  // a first start fills the caches

    std::map<std::string, std::vector<double>> loop;
    std::vector<double> clientShown;
    for (auto _ : state) {
        for (const Program& program : programs) {
            const Start start = starter.Run(program);
            loop[program.label].push_back(start.loopMs);
            if (program.label == "orbidex-client") clientShown.push_back(start.shownMs);
        }
        state.SetIterationTime(loop["orbidex"].back() / 1000);
    }
    const double bare = median(loop["bare"]);
    state.counters["bare_ms"] = bare;
    state.counters["plain_ms"] = median(loop["plain"]);
    state.counters["orbidex_ms"] = median(loop["orbidex"]);
    state.counters["client_ms"] = median(loop["orbidex-client"]);
    state.counters["client_shown_ms"] = median(clientShown);
    state.counters["plain_x_bare"] = median(loop["plain"]) / bare;
    state.counters["x_bare"] = median(loop["orbidex"]) / bare;
    state.counters["client_x_bare"] = median(loop["orbidex-client"]) / bare;
}

void BM_StartUp(benchmark::State& state) {
    try {
        measure(state);
    } catch (const StartFailed& failed) {
        std::fprintf(stderr, "bench_startup: %s\n", failed.what());
        gFailed = true;
        state.SkipWithError(failed.what());
    }
}

}  // namespace

BENCHMARK(BM_StartUp)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return gFailed ? 1 : 0;
}
