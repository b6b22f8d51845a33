#include "screen/frmAbout.h"

#include "config/clsConfigDiary.h"
#include "config/frmOptions.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

namespace {

constexpr long kRowsTop = 1260;
constexpr long kRowStep = 330;
constexpr long kCaptionWidth = 1740;
constexpr long kValueLeft = 120 + kCaptionWidth + 60;
constexpr long kFormWidth = 8400;

// A path as the user reads it: the doubled separator the settings path may hold
// (the data folder's own behind it) shown once.
std::string shown(const std::string& storedPath) {
    return ShownPath(Replace(storedPath, "\\\\", "\\"));
}

std::string serverState() {
    if (glbConfig.runLocalModeOnly == "1") return "not used: the diary runs in local mode only";
    if (glbServerAlive) return "connected as " + glbMyUserName;
    return "not answering: the diary works on its own copy";
}

}  // namespace

frmAbout::frmAbout() : Form("frmAbout") {
    Caption = "About Orbidex";
    Width = kFormWidth;
    lblTitle.Caption = "Orbidex";
    lblTitle.FontSize = 18;
    lblTitle.FontBold = true;
    lblTitle.Move(120, 120, 4000, 540);
    lblVersion.Caption = "Version " + cLog::getAppVersionNum();
    lblVersion.Move(120, 720, 4000, 255);
    lblMaker.Caption = "A desktop diary and personal organiser by Brindlewick Software.";
    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Cancel = true;
    cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmAbout::addRow(const std::string& caption, const std::string& value) {
    const long top = kRowsTop + rows_ * kRowStep;
    lblCaption(rows_).Caption = caption;
    lblCaption(rows_).Move(120, top, kCaptionWidth, 255);
    lblValue(rows_).Caption = value;
    lblValue(rows_).Move(kValueLeft, top, kFormWidth - kValueLeft - 240, 255);
    lblValue(rows_).ToolTipText = value;
    ++rows_;
}

void frmAbout::Form_Load() {
    rows_ = 0;
    addRow("Kind of program",
           NETWORK_STRING == "CLIENT" ? "CLIENT - the client of a diary server" : "LOCAL - a diary of its own");
    addRow("Data folder", shown(gStrDataPath));
    addRow("Settings file", shown(gStrIniFile));
    if (NETWORK_STRING == "CLIENT") {
        addRow("Server folder", glbConfig.datapath.empty() ? "(none chosen)" : shown(glbConfig.datapath));
        addRow("Server", serverState());
    }
    // The maker and the button under the last row.
    const long bottom = kRowsTop + rows_ * kRowStep;
    lblMaker.Move(120, bottom + 120, kFormWidth - 360, 255);
    cmdOK.Move(kFormWidth - 1500, bottom + 480, 1080, 375);
    Height = bottom + 480 + 375 + 600;
}

void frmAbout::cmdOK_Click() {
    Unload();
}

}  // namespace orbidex
