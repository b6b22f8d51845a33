#include "UserList.h"

#include <algorithm>

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex::server {

void UserList::Load(std::string_view text) {
    users_.clear();
    for (const std::string& line : SplitLines(text)) {
        const long comma = InStr(line, ",");
        const std::string name = Trim(comma > 1 ? Left(line, comma - 1) : line);
        if (name.empty()) continue;
        Add(name);
        if (comma > 1) SetStatus(name, Trim(Mid(line, comma + 1)));
    }
}

std::string UserList::Text() const {
    std::vector<std::pair<std::string, std::string>> sorted = users_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return UCase(a.first) < UCase(b.first); });
    std::string text;
    for (const auto& [name, status] : sorted) text += name + "," + status + "\r\n";
    return text;
}

std::pair<std::string, std::string>* UserList::find(const std::string& user) {
    auto it = std::find_if(users_.begin(), users_.end(), [&](const auto& u) { return EqualsText(u.first, user); });
    return it == users_.end() ? nullptr : &*it;
}

void UserList::Add(const std::string& user) {
    if (find(user) == nullptr) users_.emplace_back(user, std::string(kOffline));
}

void UserList::SetStatus(const std::string& user, std::string_view status) {
    Add(user);
    find(user)->second = std::string(status);
}

std::string UserList::Status(const std::string& user) const {
    for (const auto& [name, status] : users_)
        if (EqualsText(name, user)) return status;
    return "";
}

}  // namespace orbidex::server
