#pragma once
// Dates and times of the event line as the dialogs' pickers hold them.

#include <algorithm>
#include <optional>
#include <string>

#include "foundation/DateHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

/// The whole number a part of a date text reads as ("9D20" reads as 9E20), kept
/// within what date arithmetic can take.
inline int DatePartOfText(const std::string& text) {
    return static_cast<int>(std::clamp(Val(text), -100000.0, 100000.0));
}

/// The first and the last day a picker holds: those of the diary's years.
inline VbDate FirstPickerDate() {
    return DateSerial(kFirstDiaryYear, 1, 1);
}
inline VbDate LastPickerDate() {
    return DateSerial(kLastDiaryYear, 12, 31);
}

/// The date of a "yyyymmdd" text: characters 1 to 4, 5 and 6, 7 and 8.  A broken
/// text gives the nearest date a picker can hold.
inline VbDate DateOfText(const std::string& yyyymmdd) {
    const VbDate date = DateSerial(DatePartOfText(Mid(yyyymmdd, 1, 4)), DatePartOfText(Mid(yyyymmdd, 5, 2)),
                                   DatePartOfText(Mid(yyyymmdd, 7, 2)));
    return std::clamp(date, FirstPickerDate(), LastPickerDate());
}

/// The time of day of an "hhmm" text: the hour from its first two characters, the
/// minute from its last two.
inline VbDate TimeOfText(const std::string& hhmm) {
    return TimeSerial(DatePartOfText(Left(hhmm, 2)), DatePartOfText(Right(hhmm, 2)), 0);
}

/// A day with a time of day, kept as a VB date keeps it: a day before 1900 holds its
/// time as a positive fraction too.
inline VbDate AtTimeOfDay(VbDate day, VbDate time) {
    return day < 0 ? day - time : day + time;
}

/// The year and month of a date: the first six characters of "yyyymmdd".
inline std::string YearAndMonth(VbDate date) {
    return Left(FormatDate(date, "yyyymmdd"), 6);
}

/// The reminder's time for an entry of a lead-time list ("15 minutes", "1 hour   "):
/// `start` less the lead time.  The unit is read from the entry's last seven
/// characters, so the blanks behind "hour" and "hours" belong to the entries.  An
/// entry of any other unit gives none, and the reminder stays as it is.
inline std::optional<VbDate> RemindTimeBefore(const std::string& entry, VbDate start) {
    const std::string unit = Trim(Right(entry, 7));
    const double amount = Val(entry);
    if (unit == "minutes") return DateAdd("n", -amount, start);
    if (unit == "hours" || unit == "hour") return DateAdd("h", -amount, start);
    return std::nullopt;
}

}  // namespace orbidex
