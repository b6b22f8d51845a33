#include "SearchRequest.h"

#include <algorithm>
#include <cctype>

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex::server {

namespace {

bool isDate(std::string_view text) {
    return text.size() == 8 && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool hasDateRange(const SearchRequest& request) {
    return isDate(request.dateStart) && isDate(request.dateEnd);
}

}  // namespace

std::vector<std::string> UserNames(std::string_view list) {
    std::vector<std::string> users;
    for (const std::string& part : Split(list, ",")) {
        const std::string name = Trim(part);
        if (name.empty()) continue;
        const bool seen =
            std::any_of(users.begin(), users.end(), [&](const std::string& u) { return EqualsText(u, name); });
        if (!seen) users.push_back(name);
    }
    return users;
}

SearchRequest ParseSearchRequest(std::string_view text) {
    SearchRequest request;
    for (const std::string& line : SplitLines(text)) {
        const long equals = InStr(line, "=");
        if (equals == 0) continue;
        const std::string key = Trim(Left(line, equals - 1));
        const std::string value = Mid(line, equals + 1);
        if (EqualsText(key, "detail")) request.detail = value;
        if (EqualsText(key, "dateStart")) request.dateStart = Trim(value);
        if (EqualsText(key, "dateEnd")) request.dateEnd = Trim(value);
        if (EqualsText(key, "users")) request.users = UserNames(value);
    }
    return request;
}

std::string MonthOfFile(std::string_view fileName) {
    const std::string month = Mid(fileName, 2, 6);
    if (!EqualsText(Left(fileName, 1), "D") || !isDate(month + "01")) return "";
    return month;
}

bool MonthInRange(const SearchRequest& request, std::string_view fileName) {
    if (!hasDateRange(request)) return true;
    const std::string month = MonthOfFile(fileName);
    return month.empty() || (month >= Left(request.dateStart, 6) && month <= Left(request.dateEnd, 6));
}

bool EventMatches(const SearchRequest& request, std::string_view line) {
    if (Trim(line).empty()) return false;
    if (hasDateRange(request)) {
        const std::vector<std::string> fields = Split(line, "\x1F", 3);
        const std::string date = fields.size() > 1 ? fields[1] : "";
        if (date < request.dateStart || date > request.dateEnd) return false;
    }
    const std::string detail = Trim(request.detail);
    return detail.empty() || InStrText(1, line, detail) > 0;
}

std::string StoreFolderName(const std::string& user) {
    return user + " diary";
}

std::string ResultsHeader(const std::string& user, const std::string& fileName) {
    // "; results of user." is 18 characters: the path begins at the 19th.
    return "; results of user." + StoreFolderName(user) + "\\" + fileName;
}

}  // namespace orbidex::server
