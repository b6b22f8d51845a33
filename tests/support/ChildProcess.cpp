#include "ChildProcess.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <stdexcept>

namespace orbidex::test {

namespace {

[[noreturn]] void runChild(const std::function<int()>& work, FileSizeLimit limit) {
    prctl(PR_SET_DUMPABLE, 0);  // a copy stopped at its limit dumps no core
    if (limit.bytes >= 0) {
        std::signal(SIGXFSZ, limit.killed ? SIG_DFL : SIG_IGN);
        const rlimit size{static_cast<rlim_t>(limit.bytes), static_cast<rlim_t>(limit.bytes)};
        setrlimit(RLIMIT_FSIZE, &size);
    }
    _exit(work());
}

}  // namespace

ChildEnd RunInChild(const std::function<int()>& work, FileSizeLimit limit) {
    // Output waiting in the buffers would otherwise be written twice.
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("fork failed");
    if (child == 0) runChild(work, limit);

    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    ChildEnd end;
    if (WIFEXITED(status)) end.exitCode = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) end.signal = WTERMSIG(status);
    return end;
}

}  // namespace orbidex::test
