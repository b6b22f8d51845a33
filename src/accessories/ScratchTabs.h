#pragma once
// The list of the scratch pad's tabs, kept in scratch.ini in the program's folder:
// a comment, the heading "[TabDefinitions]", then a line per tab of its name, the
// file of its text and its mode, separated by commas.

#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace orbidex {

struct ScratchTab {
    std::string name;
    std::string file;  ///< the file of the tab's text
    std::string mode;  ///< "FREE", "LOCKED" or "APPEND"
    bool operator==(const ScratchTab&) const = default;
};

/// The tabs of a scratch.ini text: each line after "[TabDefinitions]" whose first
/// part (trimmed) is not empty gives name, file and mode; an empty mode is "FREE".
std::vector<ScratchTab> ReadScratchTabs(std::string_view text);
/// The text of scratch.ini: the comment naming the user and the moment, the heading,
/// and a line per tab, whose mode is always written as "FREE".
std::string ScratchIniText(const std::vector<ScratchTab>& tabs, const std::string& user, VbDate moment);
/// The three tabs of a scratch pad that has none, their files in `folder` (with "\").
std::vector<ScratchTab> DefaultScratchTabs(const std::string& folder);

}  // namespace orbidex
