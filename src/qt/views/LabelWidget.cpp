#include "qt/views/LabelWidget.h"

#include <QLabel>

#include "controls/Label.h"
#include "qt/QtText.h"

namespace orbidex {

LabelWidget::LabelWidget(Label& control, QWidget* parent)
    : ControlWidget(control, parent), caption_(control), label_(new QLabel) {
    setInner(label_);
    setPlainClicks(true);
    refresh();
}

void LabelWidget::syncFromModel() {
    label_->setText(ToQString(caption_.Caption));
    const Qt::Alignment horizontal = caption_.Alignment == vbRightJustify ? Qt::AlignRight
                                     : caption_.Alignment == vbCenter     ? Qt::AlignHCenter
                                                                              : Qt::AlignLeft;
    label_->setAlignment(horizontal | Qt::AlignTop);
    label_->setWordWrap(caption_.WordWrap);
    label_->setFrameStyle(caption_.BorderStyle == 1 ? QFrame::Panel | QFrame::Sunken : QFrame::NoFrame);
    label_->setAutoFillBackground(caption_.BackStyle == vbOpaque);
    applyColors(label_, QPalette::Window, QPalette::WindowText);
    applyFont(label_);
}

}  // namespace orbidex
