#pragma once
// Runs a Timer: an unseen widget whose clock raises the model's Timer event at
// its interval while the model is enabled.

#include "qt/views/ControlWidget.h"

class QTimer;

namespace orbidex {

class Timer;

class TimerWidget : public ControlWidget {
    Q_OBJECT
public:
    TimerWidget(Timer& model, QWidget* parent = nullptr);
    QTimer* clock() const { return clock_; }

protected:
    void syncFromModel() override;

private:
    Timer& timer_;
    QTimer* clock_;
};

}  // namespace orbidex
