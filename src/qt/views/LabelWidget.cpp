#include "qt/views/LabelWidget.h"

#include <QLabel>

#include "controls/Label.h"
#include "qt/QtText.h"

namespace orbidex {

LabelWidget::LabelWidget(Label& control, QWidget* parent)
    : ControlWidget(control, parent), label_model_(control), label_(new QLabel) {
    setInner(label_);
    setPlainClicks(true);
    refresh();
}

void LabelWidget::syncFromModel() {
    label_->setText(ToQString(label_model_.Caption));
    const Qt::Alignment horizontal = label_model_.Alignment == vbRightJustify ? Qt::AlignRight
                                     : label_model_.Alignment == vbCenter     ? Qt::AlignHCenter
                                                                              : Qt::AlignLeft;
    label_->setAlignment(horizontal | Qt::AlignTop);
    label_->setWordWrap(label_model_.WordWrap);
    label_->setFrameStyle(label_model_.BorderStyle == 1 ? QFrame::Panel | QFrame::Sunken : QFrame::NoFrame);
    label_->setAutoFillBackground(label_model_.BackStyle == vbOpaque);
    applyColors(label_, QPalette::Window, QPalette::WindowText);
    applyFont(label_);
}

}  // namespace orbidex
