#pragma once
// The users of the share and their state, as USERS.TXT holds them: one user a
// line, the name, a comma, the state.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orbidex::server {

inline constexpr std::string_view kLoggedOn = "Logged On";
inline constexpr std::string_view kOffline = "Offline";

class UserList {
public:
    /// Reads USERS.TXT text; a line without a comma after its first character is
    /// all name, blank lines and blank names are skipped.  Never fails.
    void Load(std::string_view text);
    /// The file's text, users in the order of their names without regard to case.
    std::string Text() const;
    /// Adds a user as offline; a user already listed (in any case) stays as it is.
    void Add(const std::string& user);
    void SetStatus(const std::string& user, std::string_view status);
    std::string Status(const std::string& user) const;

private:
    std::pair<std::string, std::string>* find(const std::string& user);

    std::vector<std::pair<std::string, std::string>> users_;  ///< name, state
};

}  // namespace orbidex::server
