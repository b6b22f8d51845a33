#pragma once
// Draws a Label: its caption, alignment, wrapping, colours and font.

#include "qt/views/ControlWidget.h"

class QLabel;

namespace orbidex {

class Label;

class LabelWidget : public ControlWidget {
    Q_OBJECT
public:
    LabelWidget(Label& model, QWidget* parent = nullptr);
    QLabel* label() const { return label_; }

protected:
    void syncFromModel() override;

private:
    Label& caption_;
    QLabel* label_;
};

}  // namespace orbidex
