#pragma once
// Draws a TabStrip and hands the user's choice of tab to the model.

#include "qt/views/ControlWidget.h"

class QTabBar;

namespace orbidex {

class TabStrip;

class TabStripWidget : public ControlWidget {
    Q_OBJECT
public:
    TabStripWidget(TabStrip& model, QWidget* parent = nullptr);
    QTabBar* tabBar() const { return bar_; }

protected:
    void syncFromModel() override;

private:
    TabStrip& tabs_;
    QTabBar* bar_;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
