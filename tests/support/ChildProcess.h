#pragma once
// Runs part of a test in a copy of the test process, so that the copy can be stopped in
// the middle of a write, as a crash or a full disk stops the program.

#include <functional>

namespace orbidex::test {

/// How the copy ended.
struct ChildEnd {
    int exitCode = -1;  ///< the code it exited with, or -1 when a signal ended it
    int signal = 0;     ///< the signal that ended it, or 0
};

/// The most bytes the copy may write into any one file.  With `killed` a write beyond
/// them ends the copy at that byte, as a crash there would; otherwise the write fails
/// as on a full disk.
struct FileSizeLimit {
    long long bytes = -1;  ///< -1: no limit
    bool killed = false;
};

/// Runs `work` in a forked copy of this process and waits for it.  The copy ends with
/// the code `work` returns, without any clean-up of the test (its folders stay), and
/// leaves no core file.
ChildEnd RunInChild(const std::function<int()>& work, FileSizeLimit limit = {});

}  // namespace orbidex::test
