// The entries of the tools, beta and help menus: companion programs, the log level,
// the server's confirmation, the totals of the view, help and the maker's pages.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "config/frmOptions.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

constexpr int16_t kDetailedLogLevel = 3;

}  // namespace

void clsDiaryCommand::StartCompanionTool(const std::string& exeName) {
    const std::string program = platform().ProgramFolder() + "\\" + exeName;
    if (!platform().StartProcess(program)) platform().MsgBox("Could not start " + program, vbOKOnly, "");
}

void clsDiaryCommand::ToggleDetailedLogging() {
    const bool detailed = gLogLevel < kDetailedLogLevel;
    gLogLevel = detailed ? kDetailedLogLevel : int16_t{0};
    if (form_ != nullptr) form_->mnuBetaTestLog.Checked = detailed;
    if (detailed)
        platform().MsgBox("Logging Level turned Up", vbOKOnly, "Logging turned up to detailed");
    else
        platform().MsgBox("Logging Level turned down to Errors only", vbOKOnly, "Logging turned down to normal");
}

void clsDiaryCommand::ToggleServerEnforce() {
    glbServerConfirm = !glbServerConfirm;
    if (form_ != nullptr) form_->mnuBetaServerEnforce.Checked = glbServerConfirm;
    const std::string title = "Enforce Confirm save from server";
    if (glbServerConfirm)
        platform().MsgBox("Server Enforced is on", vbOKOnly, title);
    else
        platform().MsgBox("Server Enforced is Off\r\nServer does not have to respond to all requests", vbOKOnly, title);
}

void clsDiaryCommand::RestartProgram() {
    StartCompanionTool("plindor.exe");
    CommandExit();
}

void clsDiaryCommand::ShowViewTotals() {
    const long days = std::max<long>(1, glbConfig.DayWeekMonth);
    const std::string totals = glbEvents.ShowStats("TOTTIME", "", days, "", "");
    if (form_ != nullptr) form_->status.Panels(1).Text = totals;
}

void clsDiaryCommand::ShowEventCount() {
    platform().MsgBox("There are " + CStr(gIntTotalEvents) + " events", vbOKOnly, "Dump Event info");
}

void clsDiaryCommand::OpenHelpContents() {
    const std::string page = platform().ProgramFolder() +
                             (NETWORK_STRING == "LOCAL" ? "\\help\\help-diary.html" : "\\help\\help-client.html");
    if (!FileExists(page)) {
        platform().MsgBox("The help page " + ShownPath(page) + " is missing.", vbOKOnly + vbExclamation, "Help");
        return;
    }
    if (form_ == nullptr) return;
    form_->web.Navigate2(page);
    form_->web.Visible = true;
    form_->mnuViewBrowser.Checked = true;
    glbScreen.resize();
}

void clsDiaryCommand::OpenMakersPage(MakersPage page) {
    switch (page) {
        case MakersPage::Showcase:
            platform().OpenDocument("https://www.brindlewick.example/orbidex/");
            break;
        case MakersPage::Suggestion:
            platform().OpenDocument("https://www.brindlewick.example/orbidex/suggest.html");
            break;
        case MakersPage::BugReport:
            platform().OpenDocument("https://www.brindlewick.example/orbidex/bugs.html");
            break;
    }
}

}  // namespace orbidex
