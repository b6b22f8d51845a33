#include "foundation/VbDate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "foundation/VbString.h"

namespace orbidex {

namespace {

// Days from 1970-01-01 to a civil date, and back (proleptic Gregorian calendar).
constexpr long long daysFromCivil(long long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long long>(doe) - 719468;
}

struct Civil {
    int year;
    int month;
    int day;
};

Civil civilFromDays(long long z) {
    z += 719468;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long long y = static_cast<long long>(yoe) + era * 400;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    const unsigned d = doy - (153 * mp + 2) / 5 + 1;
    const unsigned m = mp < 10 ? mp + 3 : mp - 9;
    return {static_cast<int>(y + (m <= 2)), static_cast<int>(m), static_cast<int>(d)};
}

// Constant at compile time, so that dates work in the initialisers of other files too.
constexpr long long kVbEpoch = daysFromCivil(1899, 12, 30);

// A VB date split into its day number and the seconds of its time, rounded to the
// nearest second as VB does.
struct Parts {
    long long day;
    long seconds;
};

Parts split(VbDate d) {
    if (!std::isfinite(d)) return {0, 0};
    long long day = static_cast<long long>(std::trunc(d));
    long secs = std::lround(std::fabs(d - static_cast<double>(day)) * 86400.0);
    if (secs >= 86400) {
        secs -= 86400;
        day += d < 0 ? -1 : 1;
    }
    return {day, secs};
}

VbDate join(long long day, double seconds) {
    const double fraction = seconds / 86400.0;
    return day < 0 ? static_cast<double>(day) - fraction : static_cast<double>(day) + fraction;
}

Civil civilOf(VbDate d) { return civilFromDays(split(d).day + kVbEpoch); }

VbDate addMonths(VbDate d, long months) {
    const Parts p = split(d);
    const Civil c = civilFromDays(p.day + kVbEpoch);
    long total = static_cast<long>(c.year) * 12 + (c.month - 1) + months;
    const int year = static_cast<int>(Int(static_cast<double>(total) / 12.0));
    const int month = static_cast<int>(total - static_cast<long>(year) * 12) + 1;
    const int day = std::min(c.day, DaysInMonth(year, month));
    return join(static_cast<long long>(DateSerial(year, month, day)), static_cast<double>(p.seconds));
}

VbDate addSeconds(VbDate d, double seconds) {
    // Work on a continuous scale so that negative dates step correctly.
    const Parts p = split(d);
    double continuous = static_cast<double>(p.day) * 86400.0 + static_cast<double>(p.seconds) + seconds;
    const long long day = static_cast<long long>(std::floor(continuous / 86400.0));
    const double secs = continuous - static_cast<double>(day) * 86400.0;
    return join(day, secs);
}

}  // namespace

int DaysInMonth(int year, int month) {
    static constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month == 2) {
        const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        return leap ? 29 : 28;
    }
    return days[static_cast<size_t>((month - 1) % 12)];
}

VbDate DateSerial(int year, int month, int day) {
    // Months out of range move the year; days out of range move from the 1st.
    long total = static_cast<long>(year) * 12 + (month - 1);
    const long y = static_cast<long>(std::floor(static_cast<double>(total) / 12.0));
    const long m = total - y * 12 + 1;
    const long long first = daysFromCivil(y, static_cast<unsigned>(m), 1);
    return static_cast<double>(first - kVbEpoch + (day - 1));
}

VbDate TimeSerial(int hour, int minute, int second) {
    return (static_cast<double>(hour) * 3600.0 + minute * 60.0 + second) / 86400.0;
}

int Year(VbDate d) { return civilOf(d).year; }
int Month(VbDate d) { return civilOf(d).month; }
int Day(VbDate d) { return civilOf(d).day; }
int Hour(VbDate d) { return static_cast<int>(split(d).seconds / 3600); }
int Minute(VbDate d) { return static_cast<int>(split(d).seconds / 60 % 60); }
int Second(VbDate d) { return static_cast<int>(split(d).seconds % 60); }

int Weekday(VbDate d, int firstDayOfWeek) {
    // Day 0 (30 Dec 1899) was a Saturday.
    const long long day = split(d).day;
    const int sundayBased = static_cast<int>(((day + 6) % 7 + 7) % 7) + 1;  // 1 = Sunday
    const int first = firstDayOfWeek < 1 || firstDayOfWeek > 7 ? 1 : firstDayOfWeek;
    return (sundayBased - first + 7) % 7 + 1;
}

VbDate DateOnly(VbDate d) { return static_cast<double>(split(d).day); }

VbDate TimeOnly(VbDate d) { return static_cast<double>(split(d).seconds) / 86400.0; }

VbDate DateAdd(std::string_view interval, double number, VbDate d) {
    const long n = Fix(number);
    const std::string i = LCase(interval);
    if (i == "yyyy") return addMonths(d, n * 12);
    if (i == "q") return addMonths(d, n * 3);
    if (i == "m") return addMonths(d, n);
    if (i == "y" || i == "d" || i == "w") return addSeconds(d, static_cast<double>(n) * 86400.0);
    if (i == "ww") return addSeconds(d, static_cast<double>(n) * 7 * 86400.0);
    if (i == "h") return addSeconds(d, static_cast<double>(n) * 3600.0);
    if (i == "n") return addSeconds(d, static_cast<double>(n) * 60.0);
    if (i == "s") return addSeconds(d, static_cast<double>(n));
    return d;
}

long DateDiff(std::string_view interval, VbDate a, VbDate b) {
    const std::string i = LCase(interval);
    const Parts pa = split(a), pb = split(b);
    const long long sa = pa.day * 86400 + (pa.day < 0 ? -pa.seconds : pa.seconds);
    const long long sb = pb.day * 86400 + (pb.day < 0 ? -pb.seconds : pb.seconds);
    const Civil ca = civilOf(a), cb = civilOf(b);
    if (i == "yyyy") return cb.year - ca.year;
    if (i == "q") return (cb.year * 4 + (cb.month - 1) / 3) - (ca.year * 4 + (ca.month - 1) / 3);
    if (i == "m") return (cb.year * 12 + cb.month) - (ca.year * 12 + ca.month);
    if (i == "y" || i == "d") return static_cast<long>(pb.day - pa.day);
    if (i == "w") return static_cast<long>((pb.day - pa.day) / 7);
    if (i == "ww") {
        const long long weekA = pa.day - (Weekday(a) - 1);
        const long long weekB = pb.day - (Weekday(b) - 1);
        return static_cast<long>((weekB - weekA) / 7);
    }
    auto floorDiv = [](long long x, long long y) { return x >= 0 ? x / y : -((-x + y - 1) / y); };
    if (i == "h") return static_cast<long>(floorDiv(sb, 3600) - floorDiv(sa, 3600));
    if (i == "n") return static_cast<long>(floorDiv(sb, 60) - floorDiv(sa, 60));
    if (i == "s") return static_cast<long>(sb - sa);
    return 0;
}

VbDate Now() { return platform().Now(); }

VbDate Today() { return DateOnly(Now()); }

double SecondsSinceMidnight() { return static_cast<double>(split(Now()).seconds); }

}  // namespace orbidex
