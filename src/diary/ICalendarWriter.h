#pragma once
// The diary's events and tasks as one iCalendar file (UTF-8).  Each event is a VEVENT
// at its wall-clock time (floating, no time zone) with its length as a duration, each
// task a VTODO due at its date and time; a reminder is a VALARM before the start or
// the due time.  Every field of a line without a standard property travels in an
// X-ORBIDEX- property, so that the diary reads back exactly what it wrote.

#include <string>
#include <vector>

#include "diary/cDiaryRecord.h"
#include "foundation/VbDate.h"
#include "pim/cTask.h"

namespace orbidex {

/// The calendar text, stamped with `now` (local time).  Events whose date or time
/// is not "yyyymmdd" and "hhmm" are left out; `leftOut` counts them.
std::string WriteICalendar(const std::vector<cDiaryRecord>& events, const std::vector<cTask>& tasks, VbDate now,
                           long* leftOut = nullptr);

/// What the iCalendar library finds wrong with a calendar text: one line per
/// problem, none for a valid calendar.
std::vector<std::string> ICalendarProblems(const std::string& text);

}  // namespace orbidex
