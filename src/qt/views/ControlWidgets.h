#pragma once
// The view of any control model.

class QWidget;

namespace orbidex {

class Control;
class ControlWidget;

/// A new view of the kind that draws `control`, or null for a control drawn
/// elsewhere (menus).
ControlWidget* CreateControlWidget(Control& control, QWidget* parent = nullptr);

}  // namespace orbidex
