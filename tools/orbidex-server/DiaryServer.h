#pragma once
// The reference diary server: one step of work over a share folder whose subfolders
// are the users' folders.  Each Poll() answers pings, takes handed-over files into
// the server's own store, answers search requests from the network form of the
// users' months, passes booked and changed meetings and messages on to the users
// they are for, and keeps every folder's USERS.TXT.  It holds no state between
// steps that the folders do not hold, so it can be stopped and started at any time
// (bar which failures it has logged already, so that one that lasts is logged once).

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "UserList.h"

namespace orbidex::server {

class DiaryServer {
public:
    using Log = std::function<void(const std::string&)>;

    /// `share` is a stored path ("\" separators).  `log` receives one line for each
    /// thing the server does.
    explicit DiaryServer(std::string share, Log log = {});

    /// One pass over every user's folder.  Never throws for anything found there.
    void Poll();

    /// The folder (stored path, ending in "\") where the server keeps a user's files.
    std::string StoreFolder(const std::string& user) const;

private:
    /// One user's folder as listed at the start of its pass.
    struct UserFolder {
        std::string user;
        std::string path;                ///< ends in "\"
        std::vector<std::string> names;  ///< the plain files in it
        /// The name as it stands in the folder (matched without regard to case), or "".
        std::string find(std::string_view name) const;
    };

    std::vector<std::string> userNames() const;
    void takeLogOnAndOff(const UserFolder& folder);
    void answerPing(const UserFolder& folder);
    void finishTakenFiles(const UserFolder& folder);
    void takeOverHandedFiles(const UserFolder& folder);
    bool keepInStore(const UserFolder& folder, const std::string& name, const std::string& bytes);
    static void putBack(const std::string& file, const std::string& taken, const std::string& confirm,
                        const std::string& confirmText);
    void answerRequest(const UserFolder& folder);
    std::string searchResults(const std::string& requestText, const std::string& asker) const;
    void routeWork(const UserFolder& folder);
    bool takeWork(const UserFolder& folder, std::string_view file, std::string_view confirmFile, std::string& text);
    /// Passes on the work of a taken file (a message, a booking or a change list);
    /// true when all of it went and the taken file is gone.
    bool passOn(const std::string& sender, const std::string& name, const std::string& taken, const std::string& text);
    /// Each routes its work and returns what it could not queue, in its own form.
    std::string routeMessage(const std::string& sender, const std::string& text);
    std::string routeBookings(const std::string& sender, const std::string& text);
    std::string routeChangeList(const std::string& sender, const std::string& text);
    /// What became of a piece of work for one user: queued, dropped for a user
    /// without a folder, or not yet, since the queue could not be written.
    enum class Queued { yes, dropped, notYet };
    /// Adds `text` to the work waiting in the store for `user`'s file `name`.
    Queued queueFor(const std::string& user, std::string_view name, const std::string& text);
    /// Puts the waiting work into the users' folders, each file once the client
    /// has taken the one before.
    void deliverWork(const std::vector<std::string>& users);
    void shareUserList(const std::vector<std::string>& users);
    void shareWordLists(const std::vector<std::string>& users);
    void log(const std::string& message) const;
    /// Logs a failure that leaves work for the next pass, unless the pass before
    /// logged the same one: a failure that lasts is logged once, when it starts.
    void logWaiting(const std::string& message);

    std::string share_;  ///< ends in "\"
    Log log_;
    UserList users_;
    bool usersLoaded_ = false;
    std::set<std::string> waitingNow_;     ///< failures logged or met in this pass
    std::set<std::string> waitingBefore_;  ///< those of the pass before
};

}  // namespace orbidex::server
