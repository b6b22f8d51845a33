#include "qt/views/CheckBoxWidget.h"

#include <QCheckBox>

#include "controls/CheckBox.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

/// A tick box that takes a click anywhere on it, not only on the box and caption.
class WholeCheckBox : public QCheckBox {
protected:
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
};

}  // namespace

CheckBoxWidget::CheckBoxWidget(CheckBox& control, QWidget* parent)
    : ControlWidget(control, parent), check_(control), box_(new WholeCheckBox) {
    setInner(box_);
    box_->setTristate(true);
    connect(box_, &QCheckBox::clicked, this, [this] {
        if (model() == nullptr) return;
        check_.UserClick();  // the model decides the new state
        refresh();
    });
    refresh();
}

void CheckBoxWidget::syncFromModel() {
    box_->setText(ToQString(check_.Caption));
    box_->setCheckState(check_.Value == vbChecked ? Qt::Checked
                        : check_.Value == vbGrayed ? Qt::PartiallyChecked
                                                   : Qt::Unchecked);
    box_->setAutoFillBackground(true);
    applyColors(box_, QPalette::Window, QPalette::WindowText);
    applyFont(box_);
}

}  // namespace orbidex
