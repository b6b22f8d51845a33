#include "screen/frmStickyNote.h"

#include <algorithm>
#include <memory>

#include "platform/Platform.h"

namespace orbidex {

namespace {

std::unique_ptr<frmStickyNote> gStickyNote;

constexpr OleColor kNoteYellow = RGB(255, 245, 156);
constexpr long kMargin = 120;
constexpr long kLineHeight = 300;
constexpr long kButtonHeight = 375;

}  // namespace

frmStickyNote::frmStickyNote() : Form("frmStickyNote") {
    Caption = "Sticky Note";
    Width = 5400;
    Height = 3300;
    BackColor = kNoteYellow;
    lblNote.BackColor = kNoteYellow;
    lblNote.ForeColor = vbBlack;
    lblNote.FontName = "Arial";
    lblNote.FontSize = 10;
    lblNote.FontBold = true;
    txtNote.MultiLine = true;
    txtNote.Locked = true;
    txtNote.ScrollBars = vbVertical;
    txtNote.FontName = "Comic Sans MS";
    txtNote.FontSize = 14;
    txtNote.BackColor = kNoteYellow;
    txtNote.ForeColor = vbBlack;
    cmdRemindLater.Caption = "Remind me again later";
    Command1.Caption = "OK";
    Command1.Default = true;
    Command1.Cancel = true;
    // About the client area of a window of that size, until the window tells its own.
    placeControls(Width - 240, Height - 600);
    SetActiveControl(&Command1);

    cmdRemindLater.onClick = [this] { cmdRemindLater_Click(); };
    Command1.onClick = [this] { Command1_Click(); };
    txtNote.onDblClick = [this] { txtNote_DblClick(); };
}

void frmStickyNote::Form_Load() {
    const ScreenSize screen = platform().Screen();
    Left = std::max(0L, screen.widthTwips / 2 - Width / 2);
    Top = std::max(0L, screen.heightTwips / 2 - Height / 2);
    AlwaysOnTop = true;
}

void frmStickyNote::Form_Resize() {
    if (ScaleWidth > 0 && ScaleHeight > 0) placeControls(ScaleWidth, ScaleHeight);
}

void frmStickyNote::placeControls(long width, long height) {
    long top = kMargin;
    if (lblNote.Visible) {
        lblNote.Move(kMargin, top, width - 2 * kMargin, kLineHeight);
        top += kLineHeight + kMargin / 2;
    }
    const long buttonsTop = height - kMargin - kButtonHeight;
    txtNote.Move(kMargin, top, width - 2 * kMargin, std::max(kButtonHeight, buttonsTop - kMargin - top));
    Command1.Move(width - kMargin - 1200, buttonsTop, 1200, kButtonHeight);
    cmdRemindLater.Move(Command1.Left - kMargin - 2400, buttonsTop, 2400, kButtonHeight);
}

void frmStickyNote::cmdRemindLater_Click() {
    Unload();
}

void frmStickyNote::Command1_Click() {
    Unload();
}

void frmStickyNote::txtNote_DblClick() {
    Unload();
}

frmStickyNote& StickyNote() {
    if (!gStickyNote) gStickyNote = std::make_unique<frmStickyNote>();
    return *gStickyNote;
}

void ResetStickyNote() {
    gStickyNote.reset();
}

}  // namespace orbidex
