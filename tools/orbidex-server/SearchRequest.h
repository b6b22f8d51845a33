#pragma once
// A client's [search] request and the server's answer to it: which months of which
// users, and which of their events, go into the asking user's RESULTS.TXT.

#include <string>
#include <string_view>
#include <vector>

namespace orbidex::server {

struct SearchRequest {
    std::string detail;     ///< text to look for, without regard to case; blank: all
    std::string dateStart;  ///< yyyymmdd; anything else leaves the range open
    std::string dateEnd;
    std::vector<std::string> users;  ///< trimmed, without empty or repeated names
};

/// The names of a user list ("fred, mary, "): trimmed, without empty or repeated
/// names (compared without regard to case).
std::vector<std::string> UserNames(std::string_view list);

/// Reads the key=value lines of a request; keys without regard to case, missing
/// keys empty, every other line ignored.  Never fails.
SearchRequest ParseSearchRequest(std::string_view text);

/// The month (yyyymm) of a monthly file name such as "D200406.DAT_NET", or "".
std::string MonthOfFile(std::string_view fileName);
/// Whether a monthly file may hold events of the request's dates.
bool MonthInRange(const SearchRequest& request, std::string_view fileName);
/// Whether one event line answers the request: its date within the range and the
/// detail somewhere in the line.
bool EventMatches(const SearchRequest& request, std::string_view line);

/// The header line that opens the section of one file of one user: the user's name
/// between its first "." and the next blank, the file's place in the server's store
/// from the 19th character on.
std::string ResultsHeader(const std::string& user, const std::string& fileName);
/// The folder of the store that keeps one user's files.
std::string StoreFolderName(const std::string& user);

}  // namespace orbidex::server
