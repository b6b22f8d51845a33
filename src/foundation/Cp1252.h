#pragma once
// Windows-1252, the code page of every file the program reads and writes, to and from
// UTF-8, which the window toolkit speaks.

#include <string>
#include <string_view>

namespace orbidex {

/// Every byte maps to a character; the five bytes that Windows-1252 leaves undefined
/// map to the control characters of the same number, so a round trip is exact.
std::string Utf8FromCp1252(std::string_view bytes);

/// Characters without a Windows-1252 byte become "?"; broken UTF-8 sequences too.
std::string Cp1252FromUtf8(std::string_view utf8);

}  // namespace orbidex
