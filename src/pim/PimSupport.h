#pragma once
// What the table, task and note classes share: the failure routine that reports a
// broken line or a file that can't be used, and the user name their records carry.

#include <string>

namespace orbidex {

/// A failure as the data classes report it: its number and its description.
struct DataError {
    int number;
    const char* description;
};

inline constexpr DataError kInvalidArgument{5, "Invalid procedure call or argument"};
inline constexpr DataError kSubscriptOutOfRange{9, "Subscript out of range"};
inline constexpr DataError kBadFileName{52, "Bad file name or number"};
inline constexpr DataError kFileNotFound{53, "File not found"};
inline constexpr DataError kPathFileAccess{75, "Path/File access error"};

/// What the unfinished filters of the lists say.
inline constexpr const char* kFilterMessage =
    "FILTER = wrong...  you need to move the Filter to a global (like the plan says), and then set it via toolbar "
    "etc.";

/// The failure routine of the data classes: logs and shows "Error in " + source +
/// " Error=" + number + " = " + description.  The caller then leaves the operation,
/// keeping what it had.
void ReportDataError(const std::string& source, const DataError& error);

/// The user name tasks and notes carry: the session's user name, "" in a program that
/// has no network data path.
std::string MyUserName();

}  // namespace orbidex
