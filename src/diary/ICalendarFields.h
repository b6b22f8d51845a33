#pragma once
// Helpers shared by the iCalendar writer and reader: the names of the properties
// that carry the diary's own fields, and the step between a wall-clock time of the
// diary and the library's time.

#include <libical/ical.h>

#include <memory>
#include <string>

#include "foundation/VbDate.h"

namespace orbidex::ical {

struct ComponentDeleter {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Component = std::unique_ptr<icalcomponent, ComponentDeleter>;

/// The product that writes the diary's own calendars.
inline constexpr const char* kOurProduct = "-//Orbidex//Orbidex Diary//EN";

inline constexpr const char* kReference = "X-ORBIDEX-REFERENCE";
inline constexpr const char* kAction = "X-ORBIDEX-ACTION";
inline constexpr const char* kContact = "X-ORBIDEX-CONTACT";
inline constexpr const char* kUrl = "X-ORBIDEX-URL";
inline constexpr const char* kJob = "X-ORBIDEX-JOB";
inline constexpr const char* kPriority = "X-ORBIDEX-PRIORITY";
inline constexpr const char* kStatus = "X-ORBIDEX-STATUS";
inline constexpr const char* kLength = "X-ORBIDEX-LENGTH";
inline constexpr const char* kToPerform = "X-ORBIDEX-TO-PERFORM";

/// "yyyymmdd" and "hhmm" (or "" for a date) as a floating time; false when they are
/// not a real date and time.
bool FloatingTime(const std::string& yyyymmdd, const std::string& hhmm, icaltimetype& result);
/// A wall-clock time as a VB date.
VbDate ToVbDate(const icaltimetype& time);
/// A VB date as a floating time, to the minute.
icaltimetype FromVbDate(VbDate date);

}  // namespace orbidex::ical
