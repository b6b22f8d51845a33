#include "foundation/VbString.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace orbidex {

namespace {

char upperByte(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }
char lowerByte(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Val and the strict parse skip these anywhere in a number.
bool isValBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

}  // namespace

std::string Mid(std::string_view s, long start, long length) {
    if (start < 1) start = 1;
    const auto from = static_cast<size_t>(start - 1);
    if (from >= s.size() || length == 0) return "";
    if (length < 0) return std::string(s.substr(from));
    return std::string(s.substr(from, static_cast<size_t>(length)));
}

std::string Left(std::string_view s, long length) {
    if (length <= 0) return "";
    return std::string(s.substr(0, static_cast<size_t>(length)));
}

std::string Right(std::string_view s, long length) {
    if (length <= 0) return "";
    const auto n = std::min(s.size(), static_cast<size_t>(length));
    return std::string(s.substr(s.size() - n));
}

long InStr(long start, std::string_view s, std::string_view find) {
    if (start < 1) start = 1;
    const auto from = static_cast<size_t>(start - 1);
    if (from > s.size()) return 0;
    if (find.empty()) return start;
    const auto pos = s.find(find, from);
    return pos == std::string_view::npos ? 0 : static_cast<long>(pos) + 1;
}

long InStr(std::string_view s, std::string_view find) { return InStr(1, s, find); }

long InStrText(long start, std::string_view s, std::string_view find) {
    return InStr(start, UCase(s), UCase(find));
}

long InStrRev(std::string_view s, std::string_view find) {
    if (find.empty()) return Len(s);
    const auto pos = s.rfind(find);
    return pos == std::string_view::npos ? 0 : static_cast<long>(pos) + 1;
}

std::string LTrim(std::string_view s) {
    const auto first = s.find_first_not_of(' ');
    return first == std::string_view::npos ? "" : std::string(s.substr(first));
}

std::string RTrim(std::string_view s) {
    const auto last = s.find_last_not_of(' ');
    return last == std::string_view::npos ? "" : std::string(s.substr(0, last + 1));
}

std::string Trim(std::string_view s) { return LTrim(RTrim(s)); }

std::string UCase(std::string_view s) {
    std::string r(s);
    std::transform(r.begin(), r.end(), r.begin(), upperByte);
    return r;
}

std::string LCase(std::string_view s) {
    std::string r(s);
    std::transform(r.begin(), r.end(), r.begin(), lowerByte);
    return r;
}

std::string Space(long count) { return count > 0 ? std::string(static_cast<size_t>(count), ' ') : ""; }

std::string StringOf(long count, char c) {
    return count > 0 ? std::string(static_cast<size_t>(count), c) : "";
}

std::string Chr(int code) { return std::string(1, static_cast<char>(code & 0xFF)); }

int Asc(std::string_view s) { return s.empty() ? 0 : static_cast<unsigned char>(s[0]); }

std::string Replace(std::string_view s, std::string_view find, std::string_view with) {
    if (find.empty()) return std::string(s);
    std::string r;
    size_t from = 0;
    for (auto pos = s.find(find); pos != std::string_view::npos; pos = s.find(find, from)) {
        r.append(s.substr(from, pos - from));
        r.append(with);
        from = pos + find.size();
    }
    r.append(s.substr(from));
    return r;
}

bool EqualsText(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (upperByte(a[i]) != upperByte(b[i])) return false;
    return true;
}

bool StartsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }

bool EndsWith(std::string_view s, std::string_view suffix) {
    return s.size() >= suffix.size() && s.substr(s.size() - suffix.size()) == suffix;
}

std::vector<std::string> Split(std::string_view s, std::string_view delimiter, long limit) {
    std::vector<std::string> parts;
    if (s.empty()) return parts;
    if (delimiter.empty()) return {std::string(s)};
    size_t from = 0;
    while (true) {
        if (limit > 0 && static_cast<long>(parts.size()) == limit - 1) break;
        const auto pos = s.find(delimiter, from);
        if (pos == std::string_view::npos) break;
        parts.emplace_back(s.substr(from, pos - from));
        from = pos + delimiter.size();
    }
    parts.emplace_back(s.substr(from));
    return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view delimiter) {
    std::string r;
    for (size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) r.append(delimiter);
        r.append(parts[i]);
    }
    return r;
}

namespace {

// Reads "&H..." or "&O..." at `i` (just after the ampersand's letter has been checked).
double radixValue(std::string_view s, size_t i, int radix) {
    long long v = 0;
    const size_t first = i;
    for (; i < s.size(); ++i) {
        const char c = upperByte(s[i]);
        int d = -1;
        if (isDigit(c)) d = c - '0';
        else if (radix == 16 && c >= 'A' && c <= 'F') d = c - 'A' + 10;
        if (d < 0 || d >= radix) break;
        v = v * radix + d;
        if (v > 0xFFFFFFFFLL) break;
    }
    // VB reads a number of up to four hex digits as 16-bit and a longer one as
    // 32-bit, both signed: &HFFFF is -1.
    if (radix == 16 && i - first <= 4 && v > 0x7FFF) v -= 0x10000;
    if (v > 0x7FFFFFFFLL && v <= 0xFFFFFFFFLL) v -= 0x100000000LL;
    return static_cast<double>(v);
}

}  // namespace

double Val(std::string_view text) {
    std::string s;
    for (char c : text)
        if (!isValBlank(c)) s.push_back(c);
    if (s.size() >= 2 && s[0] == '&') {
        const char k = upperByte(s[1]);
        if (k == 'H') return radixValue(s, 2, 16);
        if (k == 'O') return radixValue(s, 2, 8);
    }
    size_t i = 0;
    std::string number;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) number.push_back(s[i++]);
    bool digits = false;
    while (i < s.size() && isDigit(s[i])) { number.push_back(s[i++]); digits = true; }
    if (i < s.size() && s[i] == '.') {
        number.push_back(s[i++]);
        while (i < s.size() && isDigit(s[i])) { number.push_back(s[i++]); digits = true; }
    }
    if (!digits) return 0;
    if (i < s.size() && (upperByte(s[i]) == 'E' || upperByte(s[i]) == 'D')) {
        std::string exponent = "e";
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) exponent.push_back(s[j++]);
        bool expDigits = false;
        while (j < s.size() && isDigit(s[j])) { exponent.push_back(s[j++]); expDigits = true; }
        if (expDigits) number += exponent;
    }
    const double v = std::strtod(number.c_str(), nullptr);
    return std::isfinite(v) ? v : 0;
}

bool TryParseNumber(std::string_view text, double& result) {
    const std::string s = Trim(text);
    if (s.empty()) return false;
    if (s.size() >= 3 && s[0] == '&' && (upperByte(s[1]) == 'H' || upperByte(s[1]) == 'O')) {
        const int radix = upperByte(s[1]) == 'H' ? 16 : 8;
        for (size_t i = 2; i < s.size(); ++i) {
            const char c = upperByte(s[i]);
            const bool ok = radix == 16 ? (isDigit(c) || (c >= 'A' && c <= 'F')) : (c >= '0' && c <= '7');
            if (!ok) return false;
        }
        if (s.size() > 10) return false;
        result = radixValue(s, 2, radix);
        return true;
    }
    size_t i = 0;
    if (s[i] == '+' || s[i] == '-') ++i;
    bool digits = false, point = false;
    for (; i < s.size(); ++i) {
        if (isDigit(s[i])) digits = true;
        else if (s[i] == '.' && !point) point = true;
        else return false;
    }
    if (!digits) return false;
    result = std::strtod(s.c_str(), nullptr);
    return std::isfinite(result);
}

bool TryParseLong(std::string_view text, int32_t& result) {
    double v = 0;
    if (!TryParseNumber(text, v)) return false;
    v = RoundHalfEven(v);
    if (v < -2147483648.0 || v > 2147483647.0) return false;
    result = static_cast<int32_t>(v);
    return true;
}

bool IsNumeric(std::string_view s) {
    double ignored = 0;
    return TryParseNumber(s, ignored);
}

std::string CStr(long value) { return std::to_string(value); }

std::string CStr(double value) {
    if (!std::isfinite(value)) return "0";
    if (value == std::floor(value) && std::fabs(value) < 1e15) {
        return std::to_string(static_cast<long long>(value));
    }
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15g", value);
    std::string r = buf;
    if (r.find('e') != std::string::npos) {
        // VB writes 1E-05 and 1E+20.
        const auto e = r.find('e');
        std::string mantissa = r.substr(0, e);
        std::string exponent = r.substr(e + 1);
        const char sign = exponent[0];
        exponent = exponent.substr(1);
        while (exponent.size() > 2 && exponent[0] == '0') exponent.erase(0, 1);
        r = mantissa + "E" + sign + exponent;
    }
    return r;
}

double RoundHalfEven(double value) {
    const double floorValue = std::floor(value);
    const double diff = value - floorValue;
    if (diff > 0.5) return floorValue + 1;
    if (diff < 0.5) return floorValue;
    return std::fmod(floorValue, 2.0) == 0 ? floorValue : floorValue + 1;
}

namespace {

template <typename T>
T clampedWhole(double value) {
    if (std::isnan(value)) return 0;
    constexpr auto low = static_cast<double>(std::numeric_limits<T>::min());
    constexpr auto high = static_cast<double>(std::numeric_limits<T>::max());
    if (value <= low) return std::numeric_limits<T>::min();
    if (value >= high) return std::numeric_limits<T>::max();
    return static_cast<T>(value);
}

}  // namespace

long Int(double value) { return clampedWhole<long>(std::floor(value)); }

long Fix(double value) { return clampedWhole<long>(std::trunc(value)); }

long ValLong(std::string_view s) { return clampedWhole<long>(std::trunc(Val(s))); }

int ValInt(std::string_view s) { return clampedWhole<int>(std::trunc(Val(s))); }

std::string Hex(long value) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%lX", static_cast<unsigned long>(value) & 0xFFFFFFFFUL);
    return buf;
}

}  // namespace orbidex
