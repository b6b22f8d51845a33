#pragma once
// Dates as the diary writes and shows them.

#include <string>

#include "platform/Platform.h"

namespace orbidex {

/// The years the diary lists: the month calendar and the date pickers offer them, and
/// monthly files are kept for them only.
constexpr int kFirstDiaryYear = 1900;
constexpr int kLastDiaryYear = 9999;
/// True for a day within the diary's years.
bool IsDiaryDate(VbDate date);

/// The date from characters 1 to 4, 5 and 6, and the last two of a "yyyymmdd" text.
VbDate DateFromYYYYMMDD(const std::string& text);
/// Two digits each, joined: FormatHHMM(9, 5) is "0905".
std::string FormatHHMM(int hour, int minute);
/// A "yyyymmdd" text in one of the display styles (0 to 7, 9); other styles give "".
std::string FormatDiaryDate(const std::string& yyyymmdd, int style);
/// The first date a view of glbNumDaysToDisplay days shows for `date`; 0 when the
/// number of days has no rule.
VbDate GetViewStartDate(VbDate date);
/// The hour of a time text: its first two characters, plus 12 when it ends in "PM".
int ParseHourText(const std::string& timeText);

}  // namespace orbidex
