#include "qt/views/OptionButtonWidget.h"

#include <QRadioButton>

#include "controls/OptionButton.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

/// An option button that takes a click anywhere on it.
class WholeRadioButton : public QRadioButton {
protected:
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
};

}  // namespace

OptionButtonWidget::OptionButtonWidget(OptionButton& control, QWidget* parent)
    : ControlWidget(control, parent), option_(control), radio_(new WholeRadioButton) {
    setInner(radio_);
    radio_->setAutoExclusive(false);  // the model keeps its group
    connect(radio_, &QRadioButton::clicked, this, [this] {
        if (model() == nullptr) return;
        option_.UserClick();
        refresh();
    });
    refresh();
}

void OptionButtonWidget::syncFromModel() {
    radio_->setText(ToQString(option_.Caption));
    radio_->setChecked(option_.Value);
    radio_->setAutoFillBackground(true);
    applyColors(radio_, QPalette::Window, QPalette::WindowText);
    applyFont(radio_);
}

}  // namespace orbidex
