#pragma once
// A timer: while Enabled and with an Interval (milliseconds) above 0, its view
// raises Timer at that interval.

#include "controls/Control.h"

namespace orbidex {

class Timer : public Control {
public:
    using Control::Control;

    Property<long> Interval{this, 0};

    std::function<void()> onTimer;

    bool Running() const { return Enabled && Interval > 0; }
    /// One tick of the clock: raises Timer when the timer runs.
    void Tick() {
        if (Running()) Raise(onTimer);
    }
};

}  // namespace orbidex
