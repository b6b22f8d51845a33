// orbidex-server SHARE: serves the share folder SHARE, whose subfolders are the
// users' folders, until SIGTERM or SIGINT.  What it does goes to
// SHARE/orbidex-server.log.
#include <csignal>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <string>
#include <thread>

#include "DiaryServer.h"
#include "foundation/FileSystem.h"

namespace {

volatile std::sig_atomic_t gStopRequested = 0;

void requestStop(int) {
    gStopRequested = 1;
}

std::string timeStamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    return text;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::fprintf(
            stderr,
            "usage: orbidex-server SHARE\n  serves the folder SHARE, whose subfolders are the users' folders\n");
        return 2;
    }
    std::error_code error;
    const std::filesystem::path share = std::filesystem::absolute(argv[1], error);
    if (error || !std::filesystem::is_directory(share)) {
        std::fprintf(stderr, "orbidex-server: %s is not a folder\n", argv[1]);
        return 1;
    }
    const std::string stored = orbidex::ToStoredPath(share.lexically_normal().string());
    const std::string logFile = stored + "\\orbidex-server.log";
    auto log = [&logFile](const std::string& message) {
        orbidex::AppendToFile(logFile, timeStamp() + " " + message + "\r\n");
    };

    struct sigaction action {};
    action.sa_handler = requestStop;
    sigemptyset(&action.sa_mask);
    for (int sig : {SIGTERM, SIGINT}) sigaction(sig, &action, nullptr);

    orbidex::server::DiaryServer server(stored, log);
    log("serving " + share.lexically_normal().string());
    // Ten passes a second: a ping is answered well inside the client's shortest wait.
    while (gStopRequested == 0) {
        server.Poll();
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    log("stopped");
    return 0;
}
