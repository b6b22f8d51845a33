#pragma once
// VB dates: a double counting days since 1899-12-30, the fraction the time of day.
// Negative dates keep their time as a positive fraction (-1.25 is 29 Dec 1899 06:00).

#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace orbidex {

/// A date from year, month and day; months and days out of range roll over as in VB
/// (month 13 is January of the next year, day 0 the last day of the month before).
VbDate DateSerial(int year, int month, int day);
VbDate TimeSerial(int hour, int minute, int second);

int Year(VbDate d);
int Month(VbDate d);
int Day(VbDate d);
int Hour(VbDate d);
int Minute(VbDate d);
int Second(VbDate d);
/// 1 = Sunday ... 7 = Saturday when `firstDayOfWeek` is 1 (vbSunday); with 2 (vbMonday)
/// Monday is 1.
int Weekday(VbDate d, int firstDayOfWeek = 1);
/// The date part (midnight) and the time part.
VbDate DateOnly(VbDate d);
VbDate TimeOnly(VbDate d);
int DaysInMonth(int year, int month);

/// VB's DateAdd: interval "yyyy", "q", "m", "y", "d", "w", "ww", "h", "n" or "s".
/// Adding months keeps the day, cut to the month's last day.
VbDate DateAdd(std::string_view interval, double number, VbDate d);
/// VB's DateDiff for the same intervals: boundaries crossed from `a` to `b`.
long DateDiff(std::string_view interval, VbDate a, VbDate b);

/// Reads a date, a time or both from text: "yyyy-mm-dd", "yyyymmdd", "d-MMM-yy[yy]",
/// "d MMM yyyy", "dd/mm/yyyy", times "h:mm[:ss]" with an optional "am"/"pm".  False
/// when the text is none of these.
bool TryParseDate(std::string_view text, VbDate& result);

/// The present moment, today at midnight and the time of day, from the platform's clock.
VbDate Now();
VbDate Today();
/// Seconds since midnight, as VB's Timer.
double SecondsSinceMidnight();

/// VB's Format of a date with a pattern ("yyyymmdd", "hhmm", "DDD, d-MMM-yy",
/// "hh:mm:ss AMPM", ...).  Date tokens are read without regard to case; "m" and
/// "mm" next to an hour or a second mean minutes; names are English whatever the
/// machine's locale.
std::string FormatDate(VbDate d, std::string_view pattern);

/// VB's Format of a number with a pattern of "#", "0", "," and "." ("###,###",
/// "###.##", "00").  Zero formatted with only "#" digits gives "".
std::string FormatNumber(double value, std::string_view pattern);

}  // namespace orbidex
