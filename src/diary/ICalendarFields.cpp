#include "diary/ICalendarFields.h"

#include "foundation/DateHelpers.h"
#include "foundation/VbString.h"

namespace orbidex::ical {

namespace {

bool allDigits(const std::string& text, size_t length) {
    if (text.size() != length) return false;
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

}  // namespace

bool FloatingTime(const std::string& yyyymmdd, const std::string& hhmm, icaltimetype& result) {
    if (!allDigits(yyyymmdd, 8)) return false;
    const VbDate date = DateFromYYYYMMDD(yyyymmdd);
    if (!IsDiaryDate(date) || FormatDate(date, "yyyymmdd") != yyyymmdd) return false;
    result = icaltime_null_time();
    result.year = Year(date);
    result.month = Month(date);
    result.day = Day(date);
    if (hhmm.empty()) {
        result.is_date = 1;
        return true;
    }
    if (!allDigits(hhmm, 4)) return false;
    result.hour = ValInt(Left(hhmm, 2));
    result.minute = ValInt(Right(hhmm, 2));
    return result.hour < 24 && result.minute < 60;
}

VbDate ToVbDate(const icaltimetype& time) {
    return DateSerial(time.year, time.month, time.day) + TimeSerial(time.hour, time.minute, 0);
}

icaltimetype FromVbDate(VbDate date) {
    icaltimetype result = icaltime_null_time();
    // A minute's rounding keeps 09:59:59.9999 from reading as 09:59.
    const VbDate rounded = DateAdd("s", 30, date);
    result.year = Year(rounded);
    result.month = Month(rounded);
    result.day = Day(rounded);
    result.hour = Hour(rounded);
    result.minute = Minute(rounded);
    return result;
}

}  // namespace orbidex::ical
