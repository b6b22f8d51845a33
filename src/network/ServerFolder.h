#pragma once
// The names and fixed lines of the files that the client and the diary server
// exchange in a user's folder on the share.  A file is published by a second file of
// the same name with ".OK" behind it; the partner waits for the ".OK" file.

#include <string_view>

namespace orbidex::serverfolder {

inline constexpr std::string_view kOK = ".OK";

inline constexpr std::string_view kChat = "CHAT.TXT";
inline constexpr std::string_view kChatOK = "CHAT.TXT.OK";
inline constexpr std::string_view kRequest = "REQUEST.TXT";
inline constexpr std::string_view kRequestOK = "REQUEST.TXT.OK";
inline constexpr std::string_view kResults = "RESULTS.TXT";
inline constexpr std::string_view kResultsOK = "RESULTS.TXT.OK";
inline constexpr std::string_view kServerFin = "SERVER.FIN";
inline constexpr std::string_view kAlive = "ALIVE.TXT";
inline constexpr std::string_view kDead = "DEAD.TXT";
inline constexpr std::string_view kUsers = "USERS.TXT";
inline constexpr std::string_view kCommonLocations = "common_locations.txt";
inline constexpr std::string_view kCommonReferences = "common_references.txt";
inline constexpr std::string_view kChangeRequest = "_CHANGE_REQUEST.TXT";
inline constexpr std::string_view kAdd = "ADD.TXT";
inline constexpr std::string_view kAddOK = "ADD.TXT.OK";
inline constexpr std::string_view kMessage = "message.txt";
inline constexpr std::string_view kMessageOK = "message.txt.OK";
/// The work the server leaves for a client: changed or cancelled meetings, meetings
/// others booked, messages.
inline constexpr std::string_view kClientChange = "_4CLIENT.CHANGE";
inline constexpr std::string_view kClientAdd = "_4CLIENT.ADD";
inline constexpr std::string_view kClientMessage = "_4CLIENT.MESSAGE";

/// The network form of a monthly file carries this behind the file's name.
inline constexpr std::string_view kNetworkForm = "_NET";

inline constexpr std::string_view kPingLine = "Hi there server! please make a CHAT.TXT.OK if you are there";
inline constexpr std::string_view kRequestWritten = "Finished writing request to server";

}  // namespace orbidex::serverfolder
