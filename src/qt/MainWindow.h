#pragma once
// The Qt window of frmClientDiaryMain: the form's window with its menus, tool bar,
// views and status bar, the program's icons, and splitters that show they move.

#include "qt/views/ControlWidget.h"  // FormWindow.h needs it whole
#include "qt/views/FormWindow.h"

namespace orbidex {

class frmClientDiaryMain;

class MainWindow : public FormWindow {
    Q_OBJECT
public:
    explicit MainWindow(frmClientDiaryMain& form, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
};

}  // namespace orbidex
