#pragma once
// Draws an OptionButton and hands its clicks to the model, which clears the
// other buttons of its group.

#include "qt/views/ControlWidget.h"

class QRadioButton;

namespace orbidex {

class OptionButton;

class OptionButtonWidget : public ControlWidget {
    Q_OBJECT
public:
    OptionButtonWidget(OptionButton& model, QWidget* parent = nullptr);
    QRadioButton* radioButton() const { return radio_; }

protected:
    void syncFromModel() override;

private:
    OptionButton& option_;
    QRadioButton* radio_;
};

}  // namespace orbidex
