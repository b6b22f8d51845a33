#pragma once
// Reading and writing one key of a settings file in INI form: section and key names
// match without regard to case, a key is replaced where it stands or added at the end
// of its section, a missing section is added at the end of the file, and every other
// line (comments included) is kept as it is.

#include <string>

namespace orbidex {

/// The key's value, trimmed; "" when the file, the section or the key is missing.
std::string ReadProfileKey(const std::string& file, const std::string& section, const std::string& key);
/// Writes the key; failures are ignored.
void WriteProfileKey(const std::string& file, const std::string& section, const std::string& key,
                     const std::string& value);

}  // namespace orbidex
