#pragma once
// The diary's operations over the server folder: the ping with its copies of the
// shared word lists, and the local folder the session works beside.

#include <string>

namespace orbidex {

class cDiaryComms {
public:
    /// Pings the server (unless the settings keep this client local), shows the
    /// state, and copies the user list and the shared word lists to the local folder.
    /// Always gives "".
    std::string PingClient();
    /// The local data folder, or the program's own when none is set, ending in "\".
    std::string GetLocalDataPath();
    /// Kept for the interface: false.
    bool CheckLocalResultsFileFirst() { return false; }
};

extern cDiaryComms glbDiaryComms;

}  // namespace orbidex
