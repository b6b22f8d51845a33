#pragma once
// The sticky note: a small always-on-top window that shows one reminder (or one
// message) in a handwriting font on yellow.  There is one note: a new reminder
// replaces the text of the note already open.

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmStickyNote : public Form {
public:
    frmStickyNote();

    /// Centres the note on the screen and keeps it above every other window.
    void Form_Load() override;
    /// The text fills the note between the line of when and the buttons.
    void Form_Resize() override;
    // All three close the note; "Remind me again later" schedules nothing.
    void cmdRemindLater_Click();
    void Command1_Click();
    void txtNote_DblClick();

    Label lblNote{this, "lblNote"};  ///< when the event is; hidden for a message
    TextBox txtNote{this, "txtNote"};
    CommandButton cmdRemindLater{this, "cmdRemindLater"};
    CommandButton Command1{this, "Command1"};

private:
    void placeControls(long width, long height);
};

/// The one sticky note, made at its first use.
frmStickyNote& StickyNote();
/// Forgets the note (tests).
void ResetStickyNote();

}  // namespace orbidex
