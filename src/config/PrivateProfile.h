#pragma once
// Reading and writing one key of an INI file, each call going to the file itself: the
// companion toolbar program may change the file at any moment.  A read asks the file
// system for the file's version (length, times to the nanosecond, place on the disk)
// and parses the file again only when that changed: a start reads some hundred keys.

#include <string>
#include <string_view>

namespace orbidex {

/// The value of `key` in `section` of `file`, or `defaultValue` when the file, the
/// section or the key is missing: at most `size` characters, cut at the first NUL and
/// trimmed of blanks.  Returns the length of `returned`.
long GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view defaultValue,
                             std::string& returned, long size, std::string_view file);

/// How many times an INI file was read and parsed since the program started.
long IniFileReads();

/// Sets `key` in `section` of `file` (see IniDocument::Set), creating the file when it
/// is missing.  False when the file can't be read or written.
bool WritePrivateProfileString(std::string_view section, std::string_view key, std::string_view value,
                               std::string_view file);

}  // namespace orbidex
