#pragma once
// An iCalendar file written by another calendar program, read into the diary's
// events and tasks.  A time in a time zone or in UTC becomes the local wall-clock
// time; a repeating event becomes one event per date between two dates; an all-day
// event one event at "0000" on each of its days.  What cannot be taken over is listed
// with the reason.

#include <string>
#include <vector>

#include "diary/cDiaryRecord.h"
#include "foundation/VbDate.h"
#include "pim/cTask.h"

namespace orbidex {

struct ICalendarContents {
    bool isCalendar = false;           ///< false: the text holds no calendar at all
    std::vector<cDiaryRecord> events;  ///< without identifiers
    std::vector<cTask> tasks;          ///< without identifiers
    std::vector<std::string> skipped;  ///< what was not taken, " - " and why
    std::vector<std::string> unread;   ///< what the library could not read in a line
};

/// True when the calendar holds an event that repeats.
bool ICalendarRepeats(const std::string& text);

/// The events and to-dos of the calendar `text` (UTF-8); repeating events give
/// their dates from `repeatFrom` to `repeatTo`, both days included.
ICalendarContents ReadICalendar(const std::string& text, VbDate repeatFrom, VbDate repeatTo);

}  // namespace orbidex
