#pragma once
// Draws a ListBox, plain or with tick boxes, and hands choices, ticks and double
// clicks to the model.

#include "qt/views/ControlWidget.h"

class QListWidget;

namespace orbidex {

class ListBox;

class ListBoxWidget : public ControlWidget {
    Q_OBJECT
public:
    ListBoxWidget(ListBox& model, QWidget* parent = nullptr);
    QListWidget* listWidget() const { return list_; }

protected:
    void syncFromModel() override;

private:
    ListBox& box_;
    QListWidget* list_;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
