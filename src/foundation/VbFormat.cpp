// VB's Format for dates and numbers, and the reading of dates from text.
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

namespace {

constexpr std::array<const char*, 12> kMonthNames = {"January", "February", "March",     "April",
                                                     "May",     "June",     "July",      "August",
                                                     "September", "October", "November", "December"};
constexpr std::array<const char*, 7> kDayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                  "Thursday", "Friday", "Saturday"};

std::string twoDigits(int v) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d", v);
    return buf;
}

char lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

// One piece of a date pattern: a run of one token letter, an AM/PM marker, or literal text.
struct Token {
    enum Kind { Literal, Day, Month, Year, Hour, Minute, Second, Weekday, Week, Quarter, AmPm } kind;
    int count = 0;          // letters in the run
    std::string text;       // literal text, or the AM/PM form as written
};

bool startsWithText(std::string_view s, size_t at, std::string_view word) {
    return s.size() - at >= word.size() && EqualsText(s.substr(at, word.size()), word);
}

std::vector<Token> tokenize(std::string_view p) {
    std::vector<Token> tokens;
    size_t i = 0;
    while (i < p.size()) {
        const char c = lower(p[i]);
        if (startsWithText(p, i, "am/pm") || startsWithText(p, i, "a/p") || startsWithText(p, i, "ampm")) {
            const size_t n = startsWithText(p, i, "am/pm") ? 5 : startsWithText(p, i, "ampm") ? 4 : 3;
            tokens.push_back({Token::AmPm, 0, std::string(p.substr(i, n))});
            i += n;
            continue;
        }
        if (p[i] == '"') {
            const size_t end = p.find('"', i + 1);
            const size_t stop = end == std::string_view::npos ? p.size() : end;
            tokens.push_back({Token::Literal, 0, std::string(p.substr(i + 1, stop - i - 1))});
            i = stop == p.size() ? stop : stop + 1;
            continue;
        }
        if (p[i] == '\\' && i + 1 < p.size()) {
            tokens.push_back({Token::Literal, 0, std::string(1, p[i + 1])});
            i += 2;
            continue;
        }
        Token::Kind kind = Token::Literal;
        switch (c) {
            case 'd': kind = Token::Day; break;
            case 'm': kind = Token::Month; break;
            case 'y': kind = Token::Year; break;
            case 'h': kind = Token::Hour; break;
            case 'n': kind = Token::Minute; break;
            case 's': kind = Token::Second; break;
            case 'w': kind = Token::Weekday; break;
            case 'q': kind = Token::Quarter; break;
            default: break;
        }
        if (kind == Token::Literal) {
            tokens.push_back({Token::Literal, 0, std::string(1, p[i])});
            ++i;
            continue;
        }
        size_t j = i;
        while (j < p.size() && lower(p[j]) == c) ++j;
        int count = static_cast<int>(j - i);
        if (kind == Token::Weekday && count >= 2) kind = Token::Week;
        tokens.push_back({kind, count, {}});
        i = j;
    }
    // "m" next to an hour or a second means minutes.
    for (size_t k = 0; k < tokens.size(); ++k) {
        if (tokens[k].kind != Token::Month || tokens[k].count > 2) continue;
        int before = -1, after = -1;
        for (size_t b = k; b-- > 0;)
            if (tokens[b].kind != Token::Literal) { before = static_cast<int>(b); break; }
        for (size_t a = k + 1; a < tokens.size(); ++a)
            if (tokens[a].kind != Token::Literal) { after = static_cast<int>(a); break; }
        if ((before >= 0 && tokens[static_cast<size_t>(before)].kind == Token::Hour) ||
            (after >= 0 && tokens[static_cast<size_t>(after)].kind == Token::Second))
            tokens[k].kind = Token::Minute;
    }
    return tokens;
}

std::string dayText(VbDate d, int count) {
    switch (count) {
        case 1: return CStr(static_cast<long>(Day(d)));
        case 2: return twoDigits(Day(d));
        case 3: return std::string(kDayNames[static_cast<size_t>(Weekday(d) - 1)]).substr(0, 3);
        case 4: return kDayNames[static_cast<size_t>(Weekday(d) - 1)];
        case 5: return FormatDate(d, "dd/mm/yyyy");
        default: return FormatDate(d, "dddd, d mmmm yyyy");
    }
}

std::string monthText(VbDate d, int count) {
    switch (count) {
        case 1: return CStr(static_cast<long>(Month(d)));
        case 2: return twoDigits(Month(d));
        case 3: return std::string(kMonthNames[static_cast<size_t>(Month(d) - 1)]).substr(0, 3);
        default: return kMonthNames[static_cast<size_t>(Month(d) - 1)];
    }
}

int dayOfYear(VbDate d) { return static_cast<int>(DateOnly(d) - DateSerial(Year(d), 1, 1)) + 1; }

std::string yearText(VbDate d, int count) {
    switch (count) {
        case 1: return CStr(static_cast<long>(dayOfYear(d)));
        case 2: return twoDigits(Year(d) % 100);
        case 3: return twoDigits(Year(d) % 100) + CStr(static_cast<long>(dayOfYear(d)));
        default: return CStr(static_cast<long>(Year(d)));
    }
}

std::string ampmText(const std::string& form, bool pm) {
    if (EqualsText(form, "ampm")) return pm ? "PM" : "AM";
    if (form == "a/p") return pm ? "p" : "a";
    if (form == "A/P") return pm ? "P" : "A";
    const std::string marker = pm ? "PM" : "AM";
    return form[0] == 'a' ? LCase(marker) : marker;
}

}  // namespace

std::string FormatDate(VbDate d, std::string_view pattern) {
    const std::vector<Token> tokens = tokenize(pattern);
    bool twelveHour = false;
    for (const Token& t : tokens) twelveHour = twelveHour || t.kind == Token::AmPm;
    std::string out;
    const bool pm = Hour(d) >= 12;
    for (const Token& t : tokens) {
        switch (t.kind) {
            case Token::Literal: out += t.text; break;
            case Token::Day: out += dayText(d, t.count); break;
            case Token::Month: out += monthText(d, t.count); break;
            case Token::Year: out += yearText(d, t.count); break;
            case Token::Hour: {
                int h = Hour(d);
                if (twelveHour) h = h % 12 == 0 ? 12 : h % 12;
                out += t.count >= 2 ? twoDigits(h) : CStr(static_cast<long>(h));
                break;
            }
            case Token::Minute: out += t.count >= 2 ? twoDigits(Minute(d)) : CStr(static_cast<long>(Minute(d))); break;
            case Token::Second: out += t.count >= 2 ? twoDigits(Second(d)) : CStr(static_cast<long>(Second(d))); break;
            case Token::Weekday: out += CStr(static_cast<long>(Weekday(d))); break;
            case Token::Week: out += CStr(DateDiff("ww", DateSerial(Year(d), 1, 1), d) + 1); break;
            case Token::Quarter: out += CStr(static_cast<long>((Month(d) - 1) / 3 + 1)); break;
            case Token::AmPm: out += ampmText(t.text, pm); break;
        }
    }
    return out;
}

std::string FormatNumber(double value, std::string_view pattern) {
    // Literal text before the first and after the last placeholder is kept as it is.
    const size_t first = pattern.find_first_of("#0.,");
    if (first == std::string_view::npos) return std::string(pattern);
    const size_t last = pattern.find_last_of("#0.,");
    const std::string prefix(pattern.substr(0, first));
    const std::string suffix(pattern.substr(last + 1));
    const std::string_view body = pattern.substr(first, last - first + 1);

    const size_t point = body.find('.');
    const std::string_view intPart = body.substr(0, point);
    const std::string_view decPart = point == std::string_view::npos ? std::string_view{} : body.substr(point + 1);
    int minIntDigits = 0, minDecimals = 0, maxDecimals = 0;
    for (char c : intPart) minIntDigits += c == '0';
    for (char c : decPart) {
        if (c == '0') ++minDecimals;
        if (c == '0' || c == '#') ++maxDecimals;
    }
    const bool thousands = intPart.find(',') != std::string_view::npos;

    // Format rounds half away from zero.
    const double scale = std::pow(10.0, maxDecimals);
    const double rounded = std::round(std::fabs(value) * scale) / scale;
    char buf[512];
    std::snprintf(buf, sizeof buf, "%.*f", maxDecimals, rounded);
    std::string digits = buf;
    std::string whole = digits.substr(0, digits.find('.'));
    std::string fraction = maxDecimals > 0 ? digits.substr(digits.find('.') + 1) : "";

    if (whole == "0") whole.clear();
    while (static_cast<int>(whole.size()) < minIntDigits) whole.insert(0, "0");
    if (thousands) {
        for (int k = static_cast<int>(whole.size()) - 3; k > 0; k -= 3) whole.insert(static_cast<size_t>(k), ",");
    }
    while (static_cast<int>(fraction.size()) > minDecimals && !fraction.empty() && fraction.back() == '0')
        fraction.pop_back();

    std::string out = whole;
    if (point != std::string_view::npos) out += "." + fraction;
    const bool negative = value < 0 && rounded != 0;
    return (negative ? "-" : "") + prefix + out + suffix;
}

namespace {

int monthFromName(std::string_view name) {
    for (size_t i = 0; i < kMonthNames.size(); ++i) {
        const std::string full = kMonthNames[i];
        if (name.size() >= 3 && EqualsText(name, full.substr(0, name.size()))) return static_cast<int>(i) + 1;
    }
    return 0;
}

bool allDigits(std::string_view s) {
    if (s.empty()) return false;
    for (char c : s)
        if (c < '0' || c > '9') return false;
    return true;
}

// The value of a run of digits, held at 99999 so that no run is too long to read: a
// date or time part that large is no valid part anyway.
int digitsValue(std::string_view digits) {
    constexpr int kMost = 99999;
    int value = 0;
    for (char c : digits) {
        value = value * 10 + (c - '0');
        if (value > kMost) return kMost;
    }
    return value;
}

int fullYear(const std::string& y) {
    const int v = digitsValue(y);
    if (y.size() > 2) return v;
    return v < 30 ? 2000 + v : 1900 + v;  // VB's two-digit year window
}

bool validDate(int y, int m, int d) { return m >= 1 && m <= 12 && d >= 1 && d <= DaysInMonth(y, m) && y >= 100; }

bool parseDatePart(std::string_view text, VbDate& out) {
    std::string s(text);
    if (allDigits(s) && s.size() == 8) {
        const int y = digitsValue(s.substr(0, 4)), m = digitsValue(s.substr(4, 2)), d = digitsValue(s.substr(6, 2));
        if (!validDate(y, m, d)) return false;
        out = DateSerial(y, m, d);
        return true;
    }
    for (char& c : s)
        if (c == '/' || c == ' ' || c == '.' || c == ',') c = '-';
    std::vector<std::string> parts;
    for (const std::string& p : Split(s, "-"))
        if (!p.empty()) parts.push_back(p);
    if (parts.size() != 3) return false;
    int y = 0, m = 0, d = 0;
    if (allDigits(parts[0]) && parts[0].size() == 4 && allDigits(parts[1]) && allDigits(parts[2])) {
        y = digitsValue(parts[0]);  // yyyy-mm-dd
        m = digitsValue(parts[1]);
        d = digitsValue(parts[2]);
    } else if (allDigits(parts[0]) && allDigits(parts[2]) && parts[0].size() <= 2 && parts[2].size() <= 4) {
        d = digitsValue(parts[0]);
        m = allDigits(parts[1]) && parts[1].size() <= 2 ? digitsValue(parts[1]) : monthFromName(parts[1]);
        y = fullYear(parts[2]);
    } else {
        return false;
    }
    if (!validDate(y, m, d)) return false;
    out = DateSerial(y, m, d);
    return true;
}

bool parseTimePart(std::string_view text, VbDate& out) {
    std::string s = LCase(Trim(text));
    bool pm = false, am = false;
    if (EndsWith(s, "pm") || EndsWith(s, "am")) {
        pm = EndsWith(s, "pm");
        am = !pm;
        s = Trim(s.substr(0, s.size() - 2));
    }
    const std::vector<std::string> parts = Split(s, ":");
    if (parts.size() < 2 || parts.size() > 3) return false;
    for (const std::string& p : parts)
        if (!allDigits(p) || p.size() > 2) return false;
    int h = digitsValue(parts[0]);
    const int m = digitsValue(parts[1]);
    const int sec = parts.size() == 3 ? digitsValue(parts[2]) : 0;
    if ((am || pm) && (h < 1 || h > 12)) return false;
    if (pm && h < 12) h += 12;
    if (am && h == 12) h = 0;
    if (h > 23 || m > 59 || sec > 59) return false;
    out = TimeSerial(h, m, sec);
    return true;
}

}  // namespace

bool TryParseDate(std::string_view text, VbDate& result) {
    const std::string s = Trim(text);
    if (s.empty()) return false;
    VbDate datePart = 0, timePart = 0;
    if (parseTimePart(s, timePart)) {
        result = timePart;
        return true;
    }
    if (parseDatePart(s, datePart)) {
        result = datePart;
        return true;
    }
    // A date, a blank and a time.
    const long space = InStrRev(s, " ");
    if (space > 0) {
        std::string head = Trim(Left(s, space - 1));
        std::string tail = Mid(s, space + 1);
        if (EqualsText(tail, "am") || EqualsText(tail, "pm")) {  // "... 9:00 am"
            const long before = InStrRev(head, " ");
            if (before == 0) return false;
            tail = Mid(head, before + 1) + tail;
            head = Trim(Left(head, before - 1));
        }
        if (parseDatePart(head, datePart) && parseTimePart(tail, timePart)) {
            result = datePart + timePart;
            return true;
        }
    }
    return false;
}

}  // namespace orbidex
