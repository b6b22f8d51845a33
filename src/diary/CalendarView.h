#pragma once
// Small pieces shared by the drawings of the calendar side: the time slot table in
// use, colours from the settings, and the kinds of event the grid treats apart.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "config/clsConfigDiary.h"
#include "controls/OleColor.h"
#include "diary/cDiaryRecord.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/clsTimeSlots.h"

namespace orbidex {

/// The settings' time slot table; an empty one when the settings were never read.
inline clsTimeSlots& CalendarTimeSlots() {
    if (!glbConfig.timeSlots) glbConfig.timeSlots = std::make_shared<clsTimeSlots>();
    return *glbConfig.timeSlots;
}

/// A colour of the settings as the controls take it.
inline OleColor SettingColour(int32_t colour) {
    return static_cast<OleColor>(colour);
}

/// The Monday on or before `date`, found a day at a time by the day's name.
inline VbDate MondayOnOrBefore(VbDate date) {
    VbDate day = date;
    for (int step = 0; step < 7 && FormatDate(day, "ddd") != "Mon"; ++step) day -= 1;
    return day;
}

/// An event that the file launcher or the usage recorder wrote, as the grid sees it:
/// by its reference or by its action.
inline bool IsGridFileEvent(const cDiaryRecord& event) {
    return event.Reference == "PCFile" || event.Reference == "Edit" || event.Reference == "View" ||
           event.Action == "Usage";
}

/// Adds the minutes of an event's `length` (its leading number) to a total, which
/// stays within 32 bits however odd the text.
inline void AddMinutes(int32_t& total, const std::string& length) {
    const double sum = RoundHalfEven(static_cast<double>(total) + Val(length));
    const double low = std::numeric_limits<int32_t>::min(), high = std::numeric_limits<int32_t>::max();
    total = static_cast<int32_t>(std::clamp(sum, low, high));
}

}  // namespace orbidex
