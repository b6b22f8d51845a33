#pragma once
// The diary's operations over the server folder: the ping with its copies of the
// shared word lists, the local folder the session works beside, and what the work
// that others sent does to the local diary and the message log.

#include <string>

#include "foundation/VbDate.h"

namespace orbidex {

class cDiaryRecord;
class frmClientDiaryMain;

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

    // The staff planner and meetings
    /// Brings the events of the ticked users from 30 days before `date` to 120 days
    /// after it into the local RESULTS.TXT (the copy before it kept as
    /// RESULTS_OLD.TXT).  Within the month of the last request the local copy
    /// serves, unless `force`; a new month or other ticked users force a request.
    /// A server that does not answer leaves the copy as it was.
    void GetStaffEvents(VbDate date, bool& force);
    /// Whether the last GetStaffEvents asked the server in vain.
    bool StaffServerSilent() const { return staffServerSilent_; }
    /// Asks for a meeting with the users ticked in the staff planner at the chosen
    /// slot, books it, and draws the planner anew.
    void BookMeeting(frmClientDiaryMain& mainWindow);

    // Work from other users
    /// One line of _4CLIENT.ADD: the event goes into its month's file under a new
    /// identifier, is noted in the message log, answered with "RECEIVED:" to its
    /// booker, and the month is handed back to the server.  An event the month's
    /// file does not take is only logged.
    void AddEventFromRemoteUser(const std::string& line);
    /// Each record of the file `name` (a bare name in the network folder) cancels or
    /// changes a meeting, tells the user and answers the partner; then the file and
    /// its ".OK" are deleted.  False when it could not be read.
    bool EventChangedByAnotherUser(const std::string& name);
    /// Takes every event of the same date, time and details out of its month's file
    /// (kept before as ".BAK"), noting each in deleted_events.txt.  Gives the lines
    /// taken out, each with its line end; none when the file was not rewritten.
    std::string DeleteEventFromAnywhere(const cDiaryRecord& record);

    // Messages
    /// Each message of the file `name` goes to the chat window, or rings and waits
    /// for the user; all go into the message log.  Then the file and its ".OK" are
    /// deleted.  False when it could not be read.
    bool RecieveMessage(const std::string& name);
    /// One line of messages.log: "yyyymmdd hh:mm:ss;type;user;text".  Nothing when
    /// user and text are both blank; line ends in the text become blanks, so that an
    /// entry stays one line.
    void CreateMessageLogEntry(const std::string& user, const std::string& type, const std::string& text);
    /// The message log in the local folder.
    std::string MessageLogFile();

private:
    std::string staffMonth_;          ///< the month (yyyymm) of the last GetStaffEvents
    std::string staffUsers_;          ///< the users ticked at the last GetStaffEvents
    bool staffServerSilent_ = false;  ///< its request went unanswered
};

extern cDiaryComms glbDiaryComms;

/// Shows `text` in the note window without waiting, titled title + " : " + the
/// user's name.
void ShowPopupMessage(const std::string& text, const std::string& title);

}  // namespace orbidex
