#include "qt/views/FrameWidget.h"

#include <QGroupBox>

#include "controls/Frame.h"
#include "qt/QtText.h"

namespace orbidex {

FrameWidget::FrameWidget(Frame& control, QWidget* parent) : ControlWidget(control, parent), frame_(control), box_(new QGroupBox) {
    setInner(box_);
    setPlainClicks(true);
    refresh();
}

void FrameWidget::syncFromModel() {
    box_->setTitle(ToQString(frame_.Caption));
    box_->setFlat(frame_.BorderStyle == 0);
    box_->setStyleSheet(frame_.BorderStyle == 0 ? QStringLiteral("QGroupBox { border: none; }") : QString());
    box_->setAutoFillBackground(true);
    applyColors(box_, QPalette::Window, QPalette::WindowText);
    applyFont(box_);
    box_->lower();  // the controls it holds stand above it
}

}  // namespace orbidex
