#pragma once
// The small window in which the user writes to other users.  Each line ended with
// Enter goes to them at once; what arrives from them is added in red.  While the
// window is open the timer looks for messages every second.

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/RichTextBox.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmChat : public Form {
public:
    frmChat();

    /// Chat mode on, and the greeting in the conversation.
    void Form_Load() override;
    void Form_Resize() override;
    /// Chat mode off.
    void Form_Unload(int& cancel) override;
    /// A line ended with Enter is sent to the users of lblUsers.
    void txtTalk_Change();
    void cmdCancel_Click();

    Label lblTo{this, "lblTo"};
    Label lblUsers{this, "lblUsers"};      ///< the users written to, as a user list
    RichTextBox rtbChat{this, "rtbChat"};  ///< the conversation
    TextBox txtTalk{this, "txtTalk"};      ///< the line being written
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();
};

/// The chat window, created at its first use.
frmChat& ChatForm();
/// Forgets the chat window (tests).
void ResetChatForm();

}  // namespace orbidex
