#pragma once
// The note window: a reminder, or a notice from another user, shown on top of every
// window without waiting.  One window serves all: a new note replaces the text of
// the one open.

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmStickyNote : public Form {
public:
    frmStickyNote();

    /// Centred on the screen and on top of every window.
    void Form_Load() override;
    /// The note fills the window above the buttons.
    void Form_Resize() override;

    Label lblNote{this, "lblNote"};
    TextBox txtNote{this, "txtNote"};
    /// Closes the note: the reminder does not come back.
    CommandButton cmdRemindLater{this, "cmdRemindLater"};
    CommandButton Command1{this, "Command1"};
};

/// The note window, created at its first use.
frmStickyNote& StickyNote();
/// Forgets the note window (tests).
void ResetStickyNote();

}  // namespace orbidex
