#pragma once
// The string helpers of the program's algorithms, with VB's 1-based positions, so
// that an algorithm reads like its description.  Strings hold bytes (Windows-1252).

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orbidex {

/// Characters from 1-based position `start`; `length` < 0 means to the end.  A start
/// below 1 counts as 1; positions past the end give "".
std::string Mid(std::string_view s, long start, long length = -1);
std::string Left(std::string_view s, long length);
std::string Right(std::string_view s, long length);
inline long Len(std::string_view s) { return static_cast<long>(s.size()); }

/// 1-based position of `find` in `s` from `start`, or 0.  An empty `find` gives
/// `start` (when it is within the text), as VB does.
long InStr(long start, std::string_view s, std::string_view find);
long InStr(std::string_view s, std::string_view find);
/// Case-insensitive (text compare) search.
long InStrText(long start, std::string_view s, std::string_view find);
/// 1-based position of the last `find` in `s`, or 0.
long InStrRev(std::string_view s, std::string_view find);

/// Blanks only, as VB trims.
std::string Trim(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
std::string Space(long count);
std::string StringOf(long count, char c);
std::string Chr(int code);
int Asc(std::string_view s);
std::string Replace(std::string_view s, std::string_view find, std::string_view with);
/// Equal without regard to ASCII case.
bool EqualsText(std::string_view a, std::string_view b);
bool StartsWith(std::string_view s, std::string_view prefix);
bool EndsWith(std::string_view s, std::string_view suffix);

/// VB's Split: `s` cut at every `delimiter`; "" gives no pieces.  `limit` > 0 caps the
/// number of pieces, the last holding the rest.
std::vector<std::string> Split(std::string_view s, std::string_view delimiter, long limit = -1);
std::string Join(const std::vector<std::string>& parts, std::string_view delimiter);

/// VB's Val: the leading number of the text.  Blanks, tabs and line feeds anywhere
/// are skipped; "&H" and "&O" prefixes read hexadecimal and octal; no number is 0.
double Val(std::string_view s);

/// Val's number as a whole number, cut towards zero and held within the type's range
/// (a text such as "9e20" would not fit).
long ValLong(std::string_view s);
int ValInt(std::string_view s);

/// The strict number parse (CLng of a text): decimal with optional sign, blanks
/// around, a decimal part rounded half to even, or "&H"/"&O" forms.  False for
/// anything else, the empty text included.
bool TryParseNumber(std::string_view s, double& result);
bool TryParseLong(std::string_view s, int32_t& result);
bool IsNumeric(std::string_view s);

/// VB's CStr of a number: no exponent for ordinary values, up to 15 significant
/// digits, no trailing zeros.
std::string CStr(double value);
std::string CStr(long value);
inline std::string CStr(int value) { return CStr(static_cast<long>(value)); }
inline std::string CStr(int16_t value) { return CStr(static_cast<long>(value)); }
inline std::string CStr(bool value) { return value ? "True" : "False"; }

/// Round half to even, as CInt, CLng and Round do.
double RoundHalfEven(double value);
/// VB's Int (towards minus infinity) and Fix (towards zero), held within the range of
/// a long.
long Int(double value);
long Fix(double value);

/// Hexadecimal digits in capitals, as VB's Hex.
std::string Hex(long value);

}  // namespace orbidex
