#pragma once
// The controller of the main window: the present mode, what each mode shows and
// hides, the tool bar, the tree and the status bar.

#include <string>

namespace orbidex {

class frmClientDiaryMain;

class clsDiaryScreen {
public:
    void setForm(frmClientDiaryMain& form) { form_ = &form; }
    /// Shows `mode` ("HOME", "CALENDAR", "TASK", ...); the present mode again only
    /// with `force`.
    void SwitchMode(const std::string& mode, bool force = false);
    /// Lays out the visible controls in the window.
    void resize();
    /// The present mode.
    const std::string& Mode() const { return mode_; }

private:
    frmClientDiaryMain* form_ = nullptr;
    std::string mode_;
};

extern clsDiaryScreen glbScreen;

}  // namespace orbidex
