#pragma once
// Draws a Toolbar: its buttons with image, caption and tool tip, pressed buttons
// shown pressed, drop-down buttons with their menu; hands clicks to the model.

#include <QHash>

#include "qt/views/ControlWidget.h"

class QAction;
class QToolBar;

namespace orbidex {

class Toolbar;
class Button;

class ToolbarWidget : public ControlWidget {
    Q_OBJECT
public:
    ToolbarWidget(Toolbar& model, QWidget* parent = nullptr);
    QToolBar* toolBar() const { return bar_; }
    /// The action that draws `button`, or null.
    QAction* actionOf(const Button* button) const { return actions_.value(button); }

protected:
    void syncFromModel() override;

private:
    void rebuild();

    Toolbar& toolbar_;
    QToolBar* bar_;
    QHash<const Button*, QAction*> actions_;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
