#include "qt/views/TimerWidget.h"

#include <QTimer>

#include "controls/Timer.h"

namespace orbidex {

TimerWidget::TimerWidget(Timer& control, QWidget* parent)
    : ControlWidget(control, parent), timer_(control), clock_(new QTimer(this)) {
    setInner(new QWidget);
    connect(clock_, &QTimer::timeout, this, [this] {
        if (model() != nullptr) timer_.Tick();
    });
    refresh();
}

void TimerWidget::syncFromModel() {
    hide();  // a timer is never seen
    const int interval = static_cast<int>(std::min<long>(timer_.Interval, 0x7FFFFFFF));
    if (!timer_.Running()) {
        clock_->stop();
    } else if (!clock_->isActive() || clock_->interval() != interval) {
        clock_->start(interval);
    }
}

}  // namespace orbidex
