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

/// The bytes of a text file written by another program, in Windows-1252: UTF-8 (with
/// or without its byte-order mark) and UTF-16 with its byte-order mark are converted;
/// any other text is taken to be Windows-1252 already.  Text without a byte-order
/// mark counts as UTF-8 only when it holds characters beyond ASCII and all of it
/// reads as UTF-8, which Windows-1252 text practically never does.
std::string Cp1252FromForeignText(std::string_view bytes);

}  // namespace orbidex
