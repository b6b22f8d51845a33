// The commands of messages and chat.
#include "foundation/ProgramState.h"
#include "network/cComms.h"
#include "network/cMessages.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

// Outside the staff view nobody can be chosen in a list, so the user names them.
void clsDiaryCommand::CommandChat() {
    if (form_ == nullptr) return;
    std::string users = glbComms.GetSelectedUsers(form_->lvUsers, false);
    if (users.empty()) {
        users = AsUserList(platform().InputBox(
            "Who do you want to send a message to?  Separate the user names with commas.", "Send a Message", ""));
        if (users.empty()) return;
    }
    glbMessages.EnterChatMode(*form_, users);
}

void clsDiaryCommand::serverCheckForWork() {
    if (form_ == nullptr) return;
    timerOn(false);
    const bool arrived = glbComms.CheckForServerRequests();
    form_->status.Panels(1).Text = !glbServerAlive ? "Running in Local Mode (Server not responding)"
                                   : arrived       ? "New messages or meetings have arrived"
                                                   : "No new messages or meetings";
    if (arrived) glbScreen.SwitchMode(glbScreen.Mode(), true);
    timerOn(true);
}

}  // namespace orbidex
