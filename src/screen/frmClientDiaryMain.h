#pragma once
// The main window: one mode at a time, its controls driven by clsDiaryScreen and
// its handlers dispatching to clsDiaryCommand.

#include "controls/Form.h"
#include "controls/MonthView.h"

namespace orbidex {

class frmClientDiaryMain : public Form {
public:
    frmClientDiaryMain() : Form("frmClientDiaryMain") {}

    /// Closing the window by any means ends the program through CommandExit.
    void Form_Unload(int& cancel) override;

    MonthView MonthView1{this, "MonthView1"};
};

/// The main window, created at its first use.
frmClientDiaryMain& MainForm();
/// Forgets the main window (tests).
void ResetMainForm();

}  // namespace orbidex
