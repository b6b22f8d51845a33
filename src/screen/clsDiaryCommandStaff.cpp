// The commands of the staff planner: booking a meeting, a new request to the
// server, and the choice of users.
#include "foundation/ProgramState.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

// The meeting is booked for the users ticked in the planner; from another mode the
// planner comes first, so that the user sees whom the meeting is for.
void clsDiaryCommand::BookMeeting(VbDate, const std::string&) {
    if (form_ == nullptr) return;
    timerOn(false);
    if (glbScreen.Mode() != "STAFF") glbScreen.SwitchMode("STAFF");
    glbDiaryComms.BookMeeting(*form_);
    glbComms.CheckForServerRequests();
    timerOn(true);
}

void clsDiaryCommand::serverRefreshStaffData() {
    if (form_ == nullptr) return;
    timerOn(false);
    if (glbScreen.Mode() == "STAFF") {
        serverPing();
        if (glbServerAlive) {
            bool force = true;
            glbDiaryComms.GetStaffEvents(form_->MonthView1.Value, force);
            glbScreen.DisplayStaffEvents();
        }
    }
    timerOn(true);
}

void clsDiaryCommand::StaffUsersTicked() {
    if (form_ == nullptr || glbScreen.Mode() != "STAFF") return;
    timerOn(false);
    glbTickedUsers = glbComms.GetTickedListOfUsers(form_->lvUsers);
    bool force = true;
    glbDiaryComms.GetStaffEvents(form_->MonthView1.Value, force);
    glbScreen.DisplayStaffEvents();
    timerOn(true);
}

}  // namespace orbidex
