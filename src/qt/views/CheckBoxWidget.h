#pragma once
// Draws a CheckBox (clear, ticked or grey) and hands its clicks to the model.

#include "qt/views/ControlWidget.h"

class QCheckBox;

namespace orbidex {

class CheckBox;

class CheckBoxWidget : public ControlWidget {
    Q_OBJECT
public:
    CheckBoxWidget(CheckBox& model, QWidget* parent = nullptr);
    QCheckBox* checkBox() const { return box_; }

protected:
    void syncFromModel() override;

private:
    CheckBox& check_;
    QCheckBox* box_;
};

}  // namespace orbidex
