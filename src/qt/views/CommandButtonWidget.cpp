#include "qt/views/CommandButtonWidget.h"

#include <QPushButton>

#include "controls/CommandButton.h"
#include "qt/QtText.h"

namespace orbidex {

CommandButtonWidget::CommandButtonWidget(CommandButton& control, QWidget* parent)
    : ControlWidget(control, parent), command_(control), button_(new QPushButton) {
    setInner(button_);
    connect(button_, &QPushButton::clicked, this, [this] {
        if (model() != nullptr) command_.UserClick();
    });
    refresh();
}

void CommandButtonWidget::syncFromModel() {
    button_->setText(ToQString(command_.Caption));
    button_->setDefault(command_.Default);
    applyFont(button_);
}

}  // namespace orbidex
