#pragma once
// A client beside a share folder with the users "fred" and "mary", and the reference
// server over that share, run inside every DoEvents() while it is up.  The clock
// moves a second at each DoEvents(), so that a wait nobody answers ends.

#include <memory>
#include <string>
#include <vector>

#include "DiaryServer.h"
#include "ProgramFixture.h"

namespace orbidex::test {

class NetworkFixture : public ProgramFixture {
protected:
    void SetUp() override;

    /// The share, ending in "\".
    std::string Share() const { return Stored("share\\"); }
    /// A user's folder on the share, ending in "\".
    std::string UserFolder(const std::string& user) const { return Share() + user + "\\"; }
    /// Where the server keeps a user's files.
    std::string StoreFolder(const std::string& user) const { return server_->StoreFolder(user); }
    void ServerUp(bool up) { serverUp_ = up; }
    /// The settings of `user`'s client, then InitClient as the start-up runs it.
    void Connect(const std::string& user = "fred");
    /// The data folder of `user`'s client when several clients take turns, ending in "\".
    std::string Data(const std::string& user) const { return Stored(user + "\\"); }
    /// The client of `user` from here on: its own data folder, its session, the
    /// server answering.
    void As(const std::string& user);

    bool LogHas(const std::string& message) const;
    /// The log messages from the first that equals `first` on (all when it is "").
    std::vector<std::string> LogFrom(const std::string& first) const;
    /// The lines of a file in the program folder ("svr_req.log"), "" when missing.
    std::string ProgramFile(const std::string& name) const { return ReadBytes(Stored(name)); }
    /// Seconds on the scripted clock since `start`.
    long SecondsSince(VbDate start);

    std::unique_ptr<server::DiaryServer> server_;
    std::vector<std::string> serverLog_;
    bool serverUp_ = false;
};

}  // namespace orbidex::test
