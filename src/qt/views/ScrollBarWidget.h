#pragma once
// Draws a ScrollBar and hands the user's moves to the model.

#include "qt/views/ControlWidget.h"

class QScrollBar;

namespace orbidex {

class ScrollBar;

class ScrollBarWidget : public ControlWidget {
    Q_OBJECT
public:
    ScrollBarWidget(ScrollBar& model, QWidget* parent = nullptr);
    QScrollBar* scrollBar() const { return bar_; }

protected:
    void syncFromModel() override;

private:
    ScrollBar& scroll_;
    QScrollBar* bar_;
};

}  // namespace orbidex
