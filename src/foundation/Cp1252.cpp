#include "foundation/Cp1252.h"

#include <array>
#include <cstdint>

namespace orbidex {

namespace {

// Code points of the bytes 0x80 to 0x9F.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char b) { return (b >= 0x80 && b <= 0x9F) ? kHighControls[b - 0x80] : b; }

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

char byteOf(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == cp) return static_cast<char>(0x80 + i);
    return '?';
}

// Decodes one UTF-8 sequence at `i`; returns its length, 0 when it is broken.
size_t decode(std::string_view s, size_t i, char32_t& cp) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    size_t len = b0 < 0x80 ? 1 : (b0 >> 5) == 0x6 ? 2 : (b0 >> 4) == 0xE ? 3 : (b0 >> 3) == 0x1E ? 4 : 0;
    if (len == 0 || i + len > s.size()) return 0;
    cp = len == 1 ? b0 : len == 2 ? (b0 & 0x1F) : len == 3 ? (b0 & 0x0F) : (b0 & 0x07);
    for (size_t k = 1; k < len; ++k) {
        const auto b = static_cast<unsigned char>(s[i + k]);
        if ((b >> 6) != 0x2) return 0;
        cp = (cp << 6) | (b & 0x3F);
    }
    return len;
}

bool isUtf8BeyondAscii(std::string_view bytes) {
    bool beyondAscii = false;
    for (size_t i = 0; i < bytes.size();) {
        char32_t cp = 0;
        const size_t len = decode(bytes, i, cp);
        if (len == 0) return false;
        beyondAscii = beyondAscii || len > 1;
        i += len;
    }
    return beyondAscii;
}

std::string cp1252FromUtf16(std::string_view bytes, bool bigEndian) {
    std::string out;
    out.reserve(bytes.size() / 2);
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        const char32_t unit = bigEndian ? (first << 8 | second) : (second << 8 | first);
        // A surrogate pair stands for one character beyond the code page: one "?".
        if (unit >= 0xDC00 && unit <= 0xDFFF) continue;
        out.push_back(unit >= 0xD800 && unit <= 0xDBFF ? '?' : byteOf(unit));
    }
    return out;
}

}  // namespace

std::string Cp1252FromForeignText(std::string_view bytes) {
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF") return Cp1252FromUtf8(bytes.substr(3));
    if (bytes.substr(0, 2) == "\xFF\xFE") return cp1252FromUtf16(bytes.substr(2), false);
    if (bytes.substr(0, 2) == "\xFE\xFF") return cp1252FromUtf16(bytes.substr(2), true);
    if (isUtf8BeyondAscii(bytes)) return Cp1252FromUtf8(bytes);
    return std::string(bytes);
}

std::string Utf8FromCp1252(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (char c : bytes) appendUtf8(out, codePointOf(static_cast<unsigned char>(c)));
    return out;
}

std::string Cp1252FromUtf8(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        char32_t cp = 0;
        const size_t len = decode(utf8, i, cp);
        if (len == 0) {
            out.push_back('?');
            ++i;
            continue;
        }
        out.push_back(byteOf(cp));
        i += len;
    }
    return out;
}

}  // namespace orbidex
