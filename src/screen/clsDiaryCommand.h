#pragma once
// Where a user's intent, from a menu, the toolbar, the tree or the mouse, is turned
// into work.

namespace orbidex {

class frmClientDiaryMain;

class clsDiaryCommand {
public:
    void init(frmClientDiaryMain& form) { form_ = &form; }
    /// The one way the program stops: log off, keep the window's place, end at once.
    void CommandExit();

private:
    frmClientDiaryMain* form_ = nullptr;
};

extern clsDiaryCommand glbCmd;

}  // namespace orbidex
