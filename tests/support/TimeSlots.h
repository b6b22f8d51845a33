#pragma once
// The settings' time slot table made for a test, a benchmark or a fuzz target, as
// the settings file would give it.

#include <memory>

#include "config/clsConfigDiary.h"

namespace orbidex::test {

/// From `startHr` to the last slots of `stopHr`, `perHour` slots an hour.
inline void UseTimeSlots(int startHr, int stopHr, int perHour) {
    glbConfig.timeSlots = std::make_shared<clsTimeSlots>();
    glbConfig.timeSlots->startHr = static_cast<int16_t>(startHr);
    glbConfig.timeSlots->stopHr = static_cast<int16_t>(stopHr);
    glbConfig.timeSlots->numSlotsPerHour = static_cast<int16_t>(perHour);
    glbConfig.timeSlots->InitTimeArray();
}

}  // namespace orbidex::test
