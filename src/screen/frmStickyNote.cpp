#include "screen/frmStickyNote.h"

#include <algorithm>
#include <memory>

#include "platform/Platform.h"

namespace orbidex {

namespace {

std::unique_ptr<frmStickyNote> gStickyNote;

constexpr long kMargin = 120;
constexpr long kLabelHeight = 255;
constexpr long kButtonHeight = 375;

}  // namespace

frmStickyNote::frmStickyNote() : Form("frmStickyNote") {
    Caption = "Sticky Note";
    Move(0, 0, 4800, 3600);
    BackColor = 0x80FFFF;  // a pale yellow note
    txtNote.MultiLine = true;
    txtNote.Locked = true;
    txtNote.FontName = "Comic Sans MS";
    txtNote.FontSize = 11;
    txtNote.BackColor = 0xC0FFFF;
    lblNote.BackStyle = 0;
    cmdRemindLater.Caption = "Remind me again later";
    Command1.Caption = "&OK";
    Command1.Default = true;
    Command1.Cancel = true;
    for (Control* closer : {static_cast<Control*>(&cmdRemindLater), static_cast<Control*>(&Command1)})
        closer->onClick = [this] { Unload(); };
    txtNote.onDblClick = [this] { Unload(); };
    ScaleWidth = 4680;
    ScaleHeight = 3210;
    Form_Resize();
}

void frmStickyNote::Form_Load() {
    const ScreenSize screen = platform().Screen();
    Move(screen.widthTwips / 2 - Width / 2, screen.heightTwips / 2 - Height / 2);
    AlwaysOnTop = true;
    SetActiveControl(&Command1);
}

void frmStickyNote::Form_Resize() {
    const long width = std::max(1500L, static_cast<long>(ScaleWidth) - 2 * kMargin);
    const long height = std::max(1500L, static_cast<long>(ScaleHeight));
    long top = kMargin;
    if (lblNote.Visible) {
        lblNote.Move(kMargin, top, width, kLabelHeight);
        top += kLabelHeight + kMargin / 2;
    }
    const long buttonTop = height - kMargin - kButtonHeight;
    txtNote.Move(kMargin, top, width, std::max(kButtonHeight, buttonTop - kMargin - top));
    Command1.Move(kMargin + width - 1095, buttonTop, 1095, kButtonHeight);
    cmdRemindLater.Move(kMargin + width - 1095 - kMargin - 2055, buttonTop, 2055, kButtonHeight);
}

frmStickyNote& StickyNote() {
    if (!gStickyNote) gStickyNote = std::make_unique<frmStickyNote>();
    return *gStickyNote;
}

void ResetStickyNote() {
    gStickyNote.reset();
}

}  // namespace orbidex
