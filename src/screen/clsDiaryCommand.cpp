// The command layer: the end of the program and the view commands.
#include "screen/clsDiaryCommand.h"

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

clsDiaryCommand glbCmd;

void clsDiaryCommand::CommandExit() {
    glbComms.Logoff();
    if (form_ != nullptr) glbConfig.SaveFormSettings(*form_, gStrIniFile);
    platform().EndProgram(0);
}

void clsDiaryCommand::timerOn(bool on) {
    if (form_ != nullptr) form_->timerSecond.Enabled = on;
}

void clsDiaryCommand::setViewLength(int days, int menuIndex) {
    glbConfig.DayWeekMonth = static_cast<int16_t>(days);
    glbNumDaysToDisplay = static_cast<int16_t>(days);
    if (form_ == nullptr) return;
    for (Menu& entry : form_->mnuViewType) entry.Checked = entry.Index() == menuIndex;
    glbScreen.PressViewButton();
}

void clsDiaryCommand::ViewDay() {
    setViewLength(1, 0);
}
void clsDiaryCommand::ViewWeek() {
    setViewLength(7, 1);
}
void clsDiaryCommand::ViewFortnight() {
    setViewLength(14, 2);
}
void clsDiaryCommand::ViewMonth() {
    setViewLength(31, 3);
}

void clsDiaryCommand::redrawView() {
    if (form_ == nullptr) return;
    form_->MonthView1_DateClick(form_->MonthView1.Value);
    glbScreen.resize();
}

void clsDiaryCommand::ViewGrid() {
    glbConfig.GridOrList = "GRID";
    glbConfig.SaveAllSettings();
    if (form_ == nullptr) return;
    form_->gridDays.Visible = true;
    form_->lvDiary.Visible = false;
    redrawView();
}

void clsDiaryCommand::ViewList() {
    glbConfig.GridOrList = "LIST";
    glbConfig.SaveAllSettings();
    if (form_ == nullptr) return;
    form_->gridDays.Visible = false;
    form_->lvDiary.Visible = true;
    redrawView();
}

void clsDiaryCommand::ViewToday() {
    if (form_ == nullptr) return;
    form_->MonthView1.Value = Today();
    const std::string& mode = glbScreen.Mode();
    if (mode == "CALENDAR") glbEvents.CalendarDateClicked(*form_, Today());
    if (mode == "STAFF") {
        bool force = true;
        glbDiaryComms.GetStaffEvents(Today(), force);
        glbScreen.DisplayStaffEvents();
    }
    if (mode == "HOME") glbScreen.SwitchMode("HOME");
}

void clsDiaryCommand::viewRefresh() {
    timerOn(false);
    if (glbScreen.Mode() != "STAFF") {
        if (Val(glbConfig.runLocalModeOnly) == 0) serverPing();
        glbScreen.SwitchMode(glbScreen.Mode(), true);
    } else {
        serverRefreshStaffData();
    }
    glbRefreshNeeded = false;
    timerOn(true);
}

void clsDiaryCommand::viewBrowser() {
    if (form_ == nullptr) return;
    Menu& entry = form_->mnuViewBrowser;
    entry.Checked = !entry.Checked;
    if (entry.Checked) {
        form_->web.Navigate2(platform().ProgramFolder() + "\\__view.html");
        form_->web.Visible = true;
    } else {
        form_->web.Visible = false;
    }
    glbScreen.resize();
}

void clsDiaryCommand::serverPing() {
    if (form_ == nullptr) return;
    timerOn(false);
    form_->status.Panels(1).Text = "Pinging Server....";
    glbComms.InitClient(glbDiaryComms.GetLocalDataPath());
    glbDiaryComms.PingClient();
    Button& server = form_->Toolbar1.Buttons("refresh");
    if (!glbServerAlive) {
        server.Image = "disconnect";
        form_->status.Panels(1).Text = "Orbidex - Local mode (server unavailable)";
    } else {
        server.Image = "server";
        form_->Caption = "Orbidex - Network mode.  Your username = " + glbMyUserName;
        form_->status.Panels(1).Text = "Orbidex - connected to server as " + glbMyUserName;
    }
    timerOn(true);
}

}  // namespace orbidex
