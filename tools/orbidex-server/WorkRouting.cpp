#include "WorkRouting.h"

#include <algorithm>

#include "SearchRequest.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex::server {

namespace {

constexpr std::string_view kMeetingRequestFor = "Meeting request for ";
constexpr std::string_view kUsersLeft = "FOR ";
// The places of two fields in an event line: the action and the contact.
constexpr size_t kActionField = 5;
constexpr size_t kContactField = 6;

void addUser(std::vector<std::string>& users, const std::string& name) {
    if (name.empty()) return;
    if (std::none_of(users.begin(), users.end(), [&](const std::string& u) { return EqualsText(u, name); }))
        users.push_back(name);
}

void addUsersOf(std::vector<std::string>& users, const std::string& eventLine) {
    const std::vector<std::string> fields = Split(Trim(Mid(eventLine, 5)), "\x1F");
    if (fields.size() > kActionField && StartsWith(fields[kActionField], kMeetingRequestFor))
        for (const std::string& name : UserNames(Mid(fields[kActionField], Len(kMeetingRequestFor) + 1)))
            addUser(users, name);
    if (fields.size() > kContactField) addUser(users, Trim(fields[kContactField]));
}

// A list of users as the client writes one: each name followed by ", ".
std::string userList(const std::vector<std::string>& users) {
    std::string list;
    for (const std::string& user : users) list += user + ", ";
    return list;
}

}  // namespace

std::vector<MeetingChange> ParseChangeList(std::string_view text) {
    const std::vector<std::string> lines = SplitLines(text);
    std::vector<MeetingChange> changes;
    for (size_t i = 0; i + 2 < lines.size(); ++i) {
        if (!StartsWith(lines[i], ";") || !StartsWith(lines[i + 1], "OLD ") || !StartsWith(lines[i + 2], "NEW "))
            continue;
        changes.push_back({lines[i], lines[i + 1], lines[i + 2], {}});
        i += 2;
        if (i + 1 < lines.size() && StartsWith(lines[i + 1], kUsersLeft))
            changes.back().usersLeft = UserNames(Mid(lines[++i], Len(kUsersLeft) + 1));
    }
    return changes;
}

std::vector<std::string> MeetingUsers(const MeetingChange& change) {
    std::vector<std::string> users;
    addUsersOf(users, change.oldLine);
    addUsersOf(users, change.newLine);
    return users;
}

std::string ChangeFor(const MeetingChange& change, const std::string& changedBy) {
    const std::string time = Left(change.header + std::string(19, ' '), 19);
    return time + " " + changedBy + "\r\n" + change.oldLine + "\r\n" + change.newLine + "\r\n";
}

std::string ChangeLeftFor(const MeetingChange& change, const std::vector<std::string>& users) {
    return change.header + "\r\n" + change.oldLine + "\r\n" + change.newLine + "\r\n" + std::string(kUsersLeft) +
           userList(users) + "\r\n";
}

OutgoingMessage ParseMessage(std::string_view text) {
    std::vector<std::string> lines = SplitLines(text);
    lines.resize(std::max<size_t>(lines.size(), 3));
    return {UserNames(lines[0]), lines[1], lines[2]};
}

std::string MessageFor(const OutgoingMessage& message, const std::string& sender) {
    return message.sent + "\r\n" + sender + "\r\n" + message.text + "\r\n";
}

std::string MessageLeftFor(const OutgoingMessage& message, const std::vector<std::string>& users) {
    return userList(users) + "\r\n" + message.sent + "\r\n" + message.text + "\r\n";
}

std::vector<MeetingBooking> ParseBookings(std::string_view text) {
    std::vector<MeetingBooking> bookings;
    for (const std::string& line : SplitLines(text)) {
        const long mark = InStr(line, "\x1F");
        if (mark == 0) continue;
        MeetingBooking booking{Trim(Left(line, mark - 1)), Mid(line, mark + 1)};
        if (!booking.user.empty() && !Trim(booking.eventLine).empty()) bookings.push_back(std::move(booking));
    }
    return bookings;
}

}  // namespace orbidex::server
