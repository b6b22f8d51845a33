#pragma once
// The client's side of the user's folder on the server share: the session (log-on,
// pings, keep-alive), requests for other users' events, and the hand-over of saved
// files.  The server is another program; everything passes through files in the
// folder, each published by a companion ".OK" file.  Every wait for the server is
// one wait on one file, with one time-out and no retry.

#include <string>
#include <string_view>

namespace orbidex {

class Control;
class ListView;
class cDiaryRecord;

class cComms {
public:
    /// Whether the timer polls for server work every second: "True" or "False".
    std::string glbPollFrequently() const;
    /// Takes "True" (in any case) as on, anything else as off.
    void glbPollFrequently(const std::string& value);

    // Kept for the interface; they do nothing.
    void SendRequest(std::string& request);
    void ReceiveResults(std::string& results);

    /// Pings the server through CHAT.TXT and waits for CHAT.TXT.OK; sets the two
    /// alive flags.  Always gives "".
    std::string PingClient_local();
    /// Connects the user's network folder from the settings, cleans it, takes the
    /// user's name from it and pings the server.  Sets the alive flags.
    void InitClient(const std::string& localPath);
    /// Appends to DEAD.TXT while the network folder can be reached.
    void Logoff();
    /// Appends to ALIVE.TXT while the server is alive.
    void Logon();
    /// The last part of the user's network folder: the user's name.
    std::string GetMyUserName() const;
    /// The user named in a header line of RESULTS.TXT: between the first "." and the
    /// first blank behind it.
    std::string GetUserNameFromResultsLine(const std::string& line) const;
    /// Writes the present time into CHAT.TXT, without waiting for anything.
    void TellServerImStillAlive();

    /// Writes the network form of a monthly file beside it (file + "_NET"), each
    /// event as the security setting allows, and hands that form over.  The result
    /// is never set: false.
    bool SaveDiaryFileToServer(const std::string& file, bool noWait);
    /// Copies one file into the user's network folder, publishes it with its ".OK"
    /// file and, unless `noWait`, waits for the server's SERVER.FIN.
    void SaveFileToMyNetworkDatapathForServer(const std::string& file, bool noWait);
    /// Does nothing but log that it does nothing; gives "".
    std::string WaitAndGetServerFile(const std::string& folder, const std::string& file);
    /// Looks for the work the server left in the folder (changed and cancelled
    /// meetings, meetings booked by others, messages) and does it; without a message
    /// it tells the server that the client lives.  True when something arrived.
    bool CheckForServerRequests();
    /// Adds each event of the file `name` (a bare name in the network folder) to its
    /// month, then deletes the file and its ".OK".  False when it could not be read.
    bool GetEventAddedByAnotherUser(const std::string& name);
    /// Hands the local change list over, unless a hand-over is under way; true when
    /// one went.
    bool UpdateServerWithChangedFiles(const std::string& folder);
    /// Deletes the exchange files of earlier requests and pings from the folder.
    void KillOldNetDatapathFiles();
    /// Asks the server for the events of `users` holding `detail` between the two
    /// dates; the whole text of RESULTS.TXT, or "" when no answer came.
    std::string ClientDiaryRequest(const std::string& detail, const std::string& users, const std::string& dateStart,
                                   const std::string& dateEnd);
    /// A made-up event on `date` (a VB date) as an event line, for test data.
    std::string MakeRandomDiaryRecordAsText(double date);
    /// Waits `seconds` + 5 for file + ".OK", then 3 for the file; its lines, each
    /// followed by CR LF, or "".
    std::string WaitForServerData(const std::string& folder, const std::string& file, int seconds);

    // The user lists.  A list of users as text: each name followed by ", ".
    /// The names of every ticked row.
    std::string GetTickedListOfUsers(ListView& list);
    /// The names of every selected row (list view or list box); a row that holds
    /// "(you)" only with `includeMe`, and then as the user's own name.
    std::string GetSelectedUsers(Control& list, bool includeMe);
    /// The names of every ticked row but one that holds "(you)".
    std::string GetTickedUsers(ListView& list);
    /// Fills a list view (columns "User Name" and, with `showStatus`, "Status") or a
    /// list box from USERS.TXT: the server's while it answers, else the local copy.
    void ListUsers(Control& list, bool showStatus);
    /// Adds one line of USERS.TXT ("name,status") to the list.
    void ParseUserItemToList(Control& list, const std::string& line, bool showStatus);
    /// Writes one message for `users` (a user list) into message.txt, logs it as
    /// sent and publishes it.  It neither waits nor reports a failure.
    void TransmitText(const std::string& users, const std::string& text);
    /// Appends the meeting to ADD.TXT once for each of `users`, publishes it with
    /// ADD.TXT.OK and tells the booker that the users will hear of it.
    void MakeMeetingBooking(const cDiaryRecord& record, const std::string& users);

private:
    bool pollFrequently_ = false;
    bool polling_ = false;       ///< a poll is under way: one inside it would do the work twice
    std::string localDataPath_;  ///< the local folder handed to InitClient
};

extern cComms glbComms;

/// Names typed with commas between them as a user list: each name followed by ", ".
std::string AsUserList(const std::string& names);
/// Deletes a file the server left in the network folder, and its ".OK"; failures
/// are of no matter.
void DeleteServerFile(const std::string& file);
/// A file in the user's network folder (which gets its trailing "\" on the way).
std::string networkFile(std::string_view name);
/// The one wait of an exchange: until `file` can be opened for reading or `seconds`
/// have passed, keeping the window alive.
bool waitForFile(const std::string& file, int seconds);

}  // namespace orbidex
