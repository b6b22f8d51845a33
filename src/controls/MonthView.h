#pragma once
// The month calendar of the main window.

#include "platform/Platform.h"

namespace orbidex {

class MonthView {
public:
    VbDate Value = 0;  ///< the date the calendar shows
};

}  // namespace orbidex
