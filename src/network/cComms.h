#pragma once
// The client's side of the shared folder it shares with the diary server: handing
// saved files over.

#include <string>

namespace orbidex {

class cComms {
public:
    /// Writes the network form of a monthly file beside it (file + "_NET"), each
    /// event as the security setting allows, and hands that form over.  The result
    /// is never set: false.
    bool SaveDiaryFileToServer(const std::string& file, bool noWait = false);
    /// Hands one file over to the user's network folder.  Marks a hand-over as under
    /// way; with the server away it logs so and stops there.
    void SaveFileToMyNetworkDatapathForServer(const std::string& file, bool noWait = false);
    /// Tells the server the user has gone.
    void Logoff() {}
};

extern cComms glbComms;

}  // namespace orbidex
