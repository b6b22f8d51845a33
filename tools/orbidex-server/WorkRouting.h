#pragma once
// The work one client leaves for others, as the server reads it and passes it on:
// a change list (_CHANGE_REQUEST.TXT) goes to the other users of each meeting it
// changes, a message (message.txt) to the users it names, a booking (ADD.TXT) to
// the user each of its lines names.

#include <string>
#include <string_view>
#include <vector>

namespace orbidex::server {

/// One change of a meeting: the client's header line, "OLD " + the event as it
/// was, "NEW " + the event as it is.
struct MeetingChange {
    std::string header;
    std::string oldLine;
    std::string newLine;
    /// The users it has still to reach, when the server kept it because some of
    /// their queues could not be written ("FOR " + a user list after "NEW ").
    std::vector<std::string> usersLeft;
};

/// The changes of a change list.  A change begins at a line that begins with ";"
/// and is followed by its "OLD " and "NEW " lines, and maybe a "FOR " line; any
/// other line is passed over.
std::vector<MeetingChange> ParseChangeList(std::string_view text);
/// The users of the meeting: those it was booked for ("Meeting request for " +
/// a user list, in the event's action) and its booker (the contact), in the old
/// and in the new form of the event.
std::vector<std::string> MeetingUsers(const MeetingChange& change);
/// The change as the other users' clients read it: the header's first 19
/// characters (the time) + " " + the user who changed it, then the two events.
std::string ChangeFor(const MeetingChange& change, const std::string& changedBy);
/// The change as the server keeps it for the users it has still to reach.
std::string ChangeLeftFor(const MeetingChange& change, const std::vector<std::string>& users);

/// One message: line 1 the users + " , ", line 2 the time, line 3 the text.
struct OutgoingMessage {
    std::vector<std::string> users;
    std::string sent;
    std::string text;
};

OutgoingMessage ParseMessage(std::string_view text);
/// The message as the users' clients read it: the time, the sender, the text.
std::string MessageFor(const OutgoingMessage& message, const std::string& sender);
/// The message as the server keeps it for the users it has still to reach.
std::string MessageLeftFor(const OutgoingMessage& message, const std::vector<std::string>& users);

/// One line of a booking: the user it is for, and the event behind the first
/// field mark.
struct MeetingBooking {
    std::string user;
    std::string eventLine;
};

/// The lines of ADD.TXT that name a user and carry an event; any other is passed over.
std::vector<MeetingBooking> ParseBookings(std::string_view text);

}  // namespace orbidex::server
