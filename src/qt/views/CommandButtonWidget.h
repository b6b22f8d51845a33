#pragma once
// Draws a CommandButton and hands its clicks to the model.

#include "qt/views/ControlWidget.h"

class QPushButton;

namespace orbidex {

class CommandButton;

class CommandButtonWidget : public ControlWidget {
    Q_OBJECT
public:
    CommandButtonWidget(CommandButton& model, QWidget* parent = nullptr);
    QPushButton* button() const { return button_; }

protected:
    void syncFromModel() override;

private:
    CommandButton& command_;
    QPushButton* button_;
};

}  // namespace orbidex
