#include "DiaryServer.h"

#include <algorithm>

#include "SearchRequest.h"
#include "WorkRouting.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "network/ServerFolder.h"

namespace orbidex::server {

namespace sf = orbidex::serverfolder;

namespace {

// The server's own folder inside the share; a name with a leading "." is nobody's.
constexpr std::string_view kStoreRoot = ".server\\";
// A file moved out of a user's folder into the store, until the server has acted on it.
constexpr std::string_view kTaken = ".taken";

// Files of the exchange that are not hand-overs, even when an ".OK" stands beside
// them: the server answers them, writes them itself, or routes them.
bool isExchangeFile(std::string_view name) {
    for (std::string_view exchange : {sf::kChat, sf::kRequest, sf::kResults, sf::kAdd, sf::kMessage, sf::kAlive,
                                      sf::kDead, sf::kUsers, sf::kServerFin})
        if (EqualsText(name, exchange)) return true;
    return StartsWith(UCase(name), "_4CLIENT.");
}

// Files whose work the server passes on to other users instead of keeping them.
bool isWorkToPassOn(std::string_view name) {
    return EqualsText(name, sf::kMessage) || EqualsText(name, sf::kAdd) || EqualsText(name, sf::kChangeRequest);
}

void sortByName(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return UCase(a) < UCase(b); });
}

// Writes the file only when it does not already hold `text`.
void writeIfChanged(const std::string& file, const std::string& text) {
    std::string present;
    if (!ReadWholeFile(file, present) || present != text) WriteWholeFile(file, text);
}

}  // namespace

DiaryServer::DiaryServer(std::string share, Log log) : share_(std::move(share)), log_(std::move(log)) {
    if (Right(share_, 1) != "\\") share_ += "\\";
}

std::string DiaryServer::UserFolder::find(std::string_view name) const {
    for (const std::string& entry : names)
        if (EqualsText(entry, name)) return entry;
    return "";
}

std::string DiaryServer::StoreFolder(const std::string& user) const {
    return share_ + std::string(kStoreRoot) + StoreFolderName(user) + "\\";
}

std::vector<std::string> DiaryServer::userNames() const {
    std::vector<std::string> users;
    for (const std::string& name : ListFolder(share_ + "*", true))
        if (name[0] != '.' && InStr(name, "\\") == 0 && FolderExists(share_ + name)) users.push_back(name);
    sortByName(users);
    return users;
}

void DiaryServer::Poll() {
    waitingBefore_ = std::move(waitingNow_);
    waitingNow_.clear();
    if (!usersLoaded_) {
        std::string text;
        ReadWholeFile(share_ + std::string(kStoreRoot) + std::string(sf::kUsers), text);
        users_.Load(text);
        usersLoaded_ = true;
    }
    const std::vector<std::string> users = userNames();
    auto listed = [this](const std::string& user) {
        const std::string path = share_ + user + "\\";
        UserFolder folder{user, path, ListFolder(path + "*", false)};
        sortByName(folder.names);  // files handed over together are taken in the order of their names
        return folder;
    };
    // Everything handed over in this pass is in the store before any search runs.
    for (const std::string& user : users) {
        const UserFolder folder = listed(user);
        finishTakenFiles(folder);
        takeLogOnAndOff(folder);
        answerPing(folder);
        takeOverHandedFiles(folder);
    }
    for (const std::string& user : users) {
        const UserFolder folder = listed(user);
        answerRequest(folder);
        routeWork(folder);
    }
    deliverWork(users);
    shareUserList(users);
    shareWordLists(users);
}

void DiaryServer::takeLogOnAndOff(const UserFolder& folder) {
    // A log-on and a log-off seen in one pass: the log-off came last.
    const struct {
        std::string_view file, status, what;
    } changes[] = {{sf::kAlive, kLoggedOn, " logged on"}, {sf::kDead, kOffline, " logged off"}};
    for (const auto& change : changes) {
        const std::string name = folder.find(change.file);
        if (name.empty()) continue;
        users_.SetStatus(folder.user, change.status);
        DeleteFile(folder.path + name);
        log(folder.user + std::string(change.what));
    }
}

void DiaryServer::answerPing(const UserFolder& folder) {
    const std::string chat = folder.find(sf::kChat);
    if (chat.empty()) return;
    // The ping goes before the answer appears: a client that sees the answer and
    // pings again at once starts a new CHAT.TXT for the next pass, instead of adding
    // its line to the file deleted here and waiting for an answer that never comes.
    DeleteFile(folder.path + chat);
    WriteWholeFile(folder.path + std::string(sf::kChatOK), "The diary server is here\r\n");
    log("answered " + folder.user + "'s " + chat);
}

// A pass that stopped between moving a file out of a user's folder and acting on it
// left it in the store as "<name>.taken": the next pass does what was left, before
// it takes anything newer.
void DiaryServer::finishTakenFiles(const UserFolder& folder) {
    const std::string store = StoreFolder(folder.user);
    for (const std::string& taken : ListFolder(store + "*" + std::string(kTaken), false)) {
        const std::string name = Left(taken, Len(taken) - Len(kTaken));
        std::string text;
        if (!ReadWholeFile(store + taken, text)) {
            // What comes after it waits behind it (see takeWork): say why.
            logWaiting("could not read " + folder.user + "\\" + taken + " - it waits for the next pass");
            continue;
        }
        const bool finished = isWorkToPassOn(name) ? passOn(folder.user, name, store + taken, text)
                                                   : keepInStore(folder, name, text) && DeleteFile(store + taken);
        if (finished) log("finished " + folder.user + "\\" + name + " left by a pass that stopped");
    }
}

void DiaryServer::takeOverHandedFiles(const UserFolder& folder) {
    for (const std::string& confirmName : folder.names) {
        if (!EndsWith(UCase(confirmName), std::string(sf::kOK))) continue;
        const std::string handed = Left(confirmName, Len(confirmName) - Len(sf::kOK));
        if (handed.empty() || isExchangeFile(handed)) continue;
        const std::string confirm = folder.path + confirmName;
        const std::string name = folder.find(handed);
        if (name.empty()) {
            log(folder.user + "\\" + confirmName + " stands without its file - removed");
            DeleteFile(confirm);
            continue;
        }
        // The ".OK" is taken first, then the file is moved out of the client's folder:
        // a client that hands the file over again meanwhile (it deletes the ".OK",
        // replaces the file whole, then writes a new ".OK") either had its new copy
        // moved out here, or has it standing with its own ".OK" for the next pass.
        // Nothing the client wrote after the ".OK" is ever deleted unstored.
        const std::string store = StoreFolder(folder.user);
        const std::string taken = store + name + std::string(kTaken);
        if (FileExists(taken)) continue;  // the copy before it is not finished yet
        std::string confirmText;
        if (!MakePathAux(store) || !FolderExists(store)) {
            logWaiting("could not keep " + folder.user + "\\" + name + " - it stays for the next pass");
            continue;
        }
        if (!ReadWholeFile(confirm, confirmText) || !DeleteFile(confirm)) continue;  // handed over anew
        std::string bytes;
        if (!RenameFile(folder.path + name, taken) || !ReadWholeFile(taken, bytes)) continue;
        if (EqualsText(name, sf::kChangeRequest)) {
            passOn(folder.user, name, taken, bytes);  // what it could not pass on waits in the store
        } else if (keepInStore(folder, name, bytes)) {
            DeleteFile(taken);
        } else {
            putBack(folder.path + name, taken, confirm, confirmText);
            logWaiting("could not keep " + folder.user + "\\" + name + " - it stays for the next pass");
            continue;
        }
        WriteWholeFile(folder.path + std::string(sf::kServerFin), "taken over " + name + "\r\n");
        log("took over " + folder.user + "\\" + name);
    }
}

// A file the store could not keep goes back with its ".OK", unless the client has
// handed over a newer copy meanwhile.
void DiaryServer::putBack(const std::string& file, const std::string& taken, const std::string& confirm,
                          const std::string& confirmText) {
    if (FileExists(file) || !RenameFile(taken, file)) {
        DeleteFile(taken);
        return;
    }
    WriteWholeFile(confirm, confirmText);
}

// A file kept in the store replaces the copy before it.
bool DiaryServer::keepInStore(const UserFolder& folder, const std::string& name, const std::string& bytes) {
    const std::string store = StoreFolder(folder.user);
    MakePathAux(store);
    return WriteWholeFile(store + name, bytes);
}

void DiaryServer::answerRequest(const UserFolder& folder) {
    const std::string confirm = folder.find(sf::kRequestOK);
    if (confirm.empty()) return;
    const std::string request = folder.find(sf::kRequest);
    std::string text;
    if (request.empty() || !ReadWholeFile(folder.path + request, text)) {
        log(folder.user + "\\" + confirm + " stands without its request - removed");
        DeleteFile(folder.path + confirm);
        return;
    }
    const std::string results = searchResults(text, folder.user);
    if (!WriteWholeFile(folder.path + std::string(sf::kResults), results)) {
        logWaiting("could not write the results for " + folder.user + " - the request waits for the next pass");
        return;
    }
    // Likewise the request goes before the results are published, so that the
    // client's next request is never deleted unanswered.
    DeleteFile(folder.path + request);
    DeleteFile(folder.path + confirm);
    WriteWholeFile(folder.path + std::string(sf::kResultsOK), "results complete\r\n");
    log("answered " + folder.user + "'s search with " + CStr(static_cast<long>(SplitLines(results).size())) + " lines");
}

// Only the network form of the months is searched: each owner's client made it at
// the owner's sharing level.  The plain copies in the store never leave it.
std::string DiaryServer::searchResults(const std::string& requestText, const std::string& asker) const {
    const SearchRequest request = ParseSearchRequest(requestText);
    const std::vector<std::string> known = userNames();
    std::string results;
    for (const std::string& asked : request.users) {
        const auto user = std::find_if(known.begin(), known.end(), [&](const auto& k) { return EqualsText(k, asked); });
        if (user == known.end()) continue;
        const std::string store = StoreFolder(*user);
        std::vector<std::string> months = ListFolder(store + "D*" + std::string(sf::kNetworkForm), false);
        sortByName(months);
        for (const std::string& month : months) {
            std::string bytes;
            if (!MonthInRange(request, month) || !ReadWholeFile(store + month, bytes)) continue;
            results += ResultsHeader(*user, month) + "\r\n";
            for (const std::string& line : SplitLines(bytes))
                if (EventMatches(request, line)) results += line + "\r\n";
        }
    }
    // An answer that found nothing still says so, so that it is not taken for silence.
    if (results.empty()) results = ResultsHeader(asker, "") + "\r\n";
    return results;
}

void DiaryServer::routeWork(const UserFolder& folder) {
    for (const auto& [file, confirm] : {std::pair{sf::kMessage, sf::kMessageOK}, std::pair{sf::kAdd, sf::kAddOK}}) {
        std::string text;
        if (takeWork(folder, file, confirm, text))
            passOn(folder.user, std::string(file), StoreFolder(folder.user) + std::string(file) + std::string(kTaken),
                   text);
    }
}

// A file of work the client publishes with its ".OK": the ".OK" goes before the file
// is taken, so that a file the client writes meanwhile is either the one taken, or
// stands whole with its own ".OK" for the next pass.  It waits while the work taken
// before it is not all passed on.  False when none was taken; a taken file that
// cannot be read waits in the store for the next pass.
bool DiaryServer::takeWork(const UserFolder& folder, std::string_view file, std::string_view confirmFile,
                           std::string& text) {
    const std::string confirm = folder.find(confirmFile);
    const std::string name = folder.find(file);
    const std::string taken = StoreFolder(folder.user) + std::string(file) + std::string(kTaken);
    if (confirm.empty() || name.empty() || FileExists(taken)) return false;
    MakePathAux(StoreFolder(folder.user));
    DeleteFile(folder.path + confirm);
    return RenameFile(folder.path + name, taken) && ReadWholeFile(taken, text);
}

// The taken file goes once all its work is queued; otherwise it keeps only the work
// for the users whose queues could not be written, for the next pass.
bool DiaryServer::passOn(const std::string& sender, const std::string& name, const std::string& taken,
                         const std::string& text) {
    std::string left;
    if (EqualsText(name, sf::kMessage))
        left = routeMessage(sender, text);
    else if (EqualsText(name, sf::kAdd))
        left = routeBookings(sender, text);
    else
        left = routeChangeList(sender, text);
    if (left.empty()) return DeleteFile(taken);
    WriteWholeFile(taken, left);
    return false;
}

// A message goes to every user it names, the sender too.
std::string DiaryServer::routeMessage(const std::string& sender, const std::string& text) {
    if (text.empty()) return "";
    const OutgoingMessage message = ParseMessage(text);
    if (message.text.empty()) {
        log(sender + "\\" + std::string(sf::kMessage) + " holds no text - dropped");
        return "";
    }
    std::vector<std::string> usersLeft;
    for (const std::string& user : message.users) {
        const Queued queued = queueFor(user, sf::kClientMessage, MessageFor(message, sender));
        if (queued == Queued::yes) log("message from " + sender + " for " + user);
        if (queued == Queued::notYet) usersLeft.push_back(user);
    }
    return usersLeft.empty() ? "" : MessageLeftFor(message, usersLeft);
}

// Each line of a booking names one user; the event behind the name goes to that
// user's _4CLIENT.ADD, the booker's own included.
std::string DiaryServer::routeBookings(const std::string& sender, const std::string& text) {
    std::string left;
    for (const MeetingBooking& booking : ParseBookings(text)) {
        const Queued queued = queueFor(booking.user, sf::kClientAdd, booking.eventLine + "\r\n");
        if (queued == Queued::yes) log("meeting from " + sender + " for " + booking.user);
        if (queued == Queued::notYet) left += booking.user + "\x1F" + booking.eventLine + "\r\n";
    }
    return left;
}

std::string DiaryServer::routeChangeList(const std::string& sender, const std::string& text) {
    std::string left;
    for (const MeetingChange& change : ParseChangeList(text)) {
        std::vector<std::string> usersLeft;
        for (const std::string& user : change.usersLeft.empty() ? MeetingUsers(change) : change.usersLeft) {
            // The user who made the change has it already.
            if (EqualsText(user, sender)) continue;
            const Queued queued = queueFor(user, sf::kClientChange, ChangeFor(change, sender));
            if (queued == Queued::yes) log("change of a meeting from " + sender + " for " + user);
            if (queued == Queued::notYet) usersLeft.push_back(user);
        }
        if (!usersLeft.empty()) left += ChangeLeftFor(change, usersLeft);
    }
    return left;
}

DiaryServer::Queued DiaryServer::queueFor(const std::string& user, std::string_view name, const std::string& text) {
    const std::vector<std::string> known = userNames();
    const auto found = std::find_if(known.begin(), known.end(), [&](const auto& k) { return EqualsText(k, user); });
    if (found == known.end()) {
        log(std::string(name) + " for " + user + ", who has no folder - dropped");
        return Queued::dropped;
    }
    const std::string store = StoreFolder(*found);
    MakePathAux(store);
    if (AppendToFile(store + std::string(name), text)) return Queued::yes;
    logWaiting(std::string(name) + " for " + user + " could not be written - it waits for the next pass");
    return Queued::notYet;
}

// A file of work reaches the folder in one step, and only once the client has taken
// the one before: the client deletes the file it read, and would delete work added
// to it meanwhile.
void DiaryServer::deliverWork(const std::vector<std::string>& users) {
    for (const std::string& user : users) {
        for (std::string_view name : {sf::kClientChange, sf::kClientAdd, sf::kClientMessage}) {
            const std::string waiting = StoreFolder(user) + std::string(name);
            const std::string target = share_ + user + "\\" + std::string(name);
            if (!FileExists(waiting) || FileExists(target) || !RenameFile(waiting, target)) continue;
            WriteWholeFile(target + std::string(sf::kOK), "for " + user + "\r\n");
            log("left " + std::string(name) + " for " + user);
        }
    }
}

void DiaryServer::shareUserList(const std::vector<std::string>& users) {
    UserList present;
    for (const std::string& user : users) {
        const std::string status = users_.Status(user);
        present.SetStatus(user, status.empty() ? kOffline : status);
    }
    const std::string text = present.Text();
    MakePathAux(share_ + std::string(kStoreRoot));
    writeIfChanged(share_ + std::string(kStoreRoot) + std::string(sf::kUsers), users_.Text());
    for (const std::string& user : users) writeIfChanged(share_ + user + "\\" + std::string(sf::kUsers), text);
}

// The office's shared word lists, when the share holds them, go into every folder.
void DiaryServer::shareWordLists(const std::vector<std::string>& users) {
    for (std::string_view list : {sf::kCommonLocations, sf::kCommonReferences}) {
        std::string text;
        if (!ReadWholeFile(share_ + std::string(list), text)) continue;
        for (const std::string& user : users) writeIfChanged(share_ + user + "\\" + std::string(list), text);
    }
}

void DiaryServer::log(const std::string& message) const {
    if (log_) log_(message);
}

void DiaryServer::logWaiting(const std::string& message) {
    waitingNow_.insert(message);
    if (!waitingBefore_.contains(message)) log(message);
}

}  // namespace orbidex::server
