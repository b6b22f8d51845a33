#pragma once
// Draws a ComboBox: its entries, the chosen one, and the edit field of styles 0
// and 1; hands choices, typing and the opening of the list to the model.

#include "qt/views/ControlWidget.h"

class QComboBox;

namespace orbidex {

class ComboBox;

class ComboBoxWidget : public ControlWidget {
    Q_OBJECT
public:
    ComboBoxWidget(ComboBox& model, QWidget* parent = nullptr);
    QComboBox* comboBox() const { return combo_; }

protected:
    void syncFromModel() override;

private:
    ComboBox& list_;
    QComboBox* combo_;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
