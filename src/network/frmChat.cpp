#include "network/frmChat.h"

#include <algorithm>
#include <memory>

#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "network/cMessages.h"

namespace orbidex {

namespace {

std::unique_ptr<frmChat> gChatForm;

constexpr long kMargin = 120;
constexpr long kLabelHeight = 255;
constexpr long kToWidth = 375;
constexpr long kTalkHeight = 735;
constexpr long kButtonWidth = 1215;
constexpr long kButtonHeight = 375;

}  // namespace

frmChat::frmChat() : Form("frmChat") {
    Caption = "Chat";
    Move(0, 0, 6480, 5400);
    placeControls();
    txtTalk.onChange = [this] { txtTalk_Change(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmChat::placeControls() {
    rtbChat.Locked = true;
    rtbChat.FontName = "Arial";
    rtbChat.FontSize = 10;
    txtTalk.MultiLine = true;
    txtTalk.FontName = "Arial";
    txtTalk.FontSize = 10;
    lblTo.Caption = "To:";
    lblUsers.FontBold = true;
    cmdCancel.Caption = "&Close";
    cmdCancel.Cancel = true;
    ScaleWidth = 6360;
    ScaleHeight = 5010;
    Form_Resize();
}

void frmChat::Form_Load() {
    glbChatMode = true;
    SetActiveControl(&txtTalk);
    glbMessages.AddMessageToTextBox("Send a Message\r\n", vbBlue, 12);
    glbMessages.AddMessageToTextBox(
        "if any of the users you are chatting to are offline, they will get the messages once they logon\r\n\r\n",
        vbBlue, 10);
}

// The conversation takes what the line being written and the button leave.
void frmChat::Form_Resize() {
    const long width = std::max(1500L, static_cast<long>(ScaleWidth) - 2 * kMargin);
    const long height = std::max(3000L, static_cast<long>(ScaleHeight));
    lblTo.Move(kMargin, kMargin, kToWidth, kLabelHeight);
    lblUsers.Move(kMargin + kToWidth, kMargin, width - kToWidth, kLabelHeight);
    const long buttonTop = height - kMargin - kButtonHeight;
    const long talkTop = buttonTop - kMargin - kTalkHeight;
    const long chatTop = kMargin + kLabelHeight + kMargin / 2;
    rtbChat.Move(kMargin, chatTop, width, talkTop - kMargin - chatTop);
    txtTalk.Move(kMargin, talkTop, width, kTalkHeight);
    cmdCancel.Move(kMargin + width - kButtonWidth, buttonTop, kButtonWidth, kButtonHeight);
}

void frmChat::Form_Unload(int&) {
    glbChatMode = false;
}

// A line is sent when Enter ends it; line ends in its middle become blanks.
void frmChat::txtTalk_Change() {
    const std::string typed = txtTalk.Text;
    if (!EndsWith(typed, "\r\n")) return;
    const std::string line = Trim(ReplaceLineBreaks(typed));
    txtTalk.Text = line;
    if (!line.empty()) {
        const std::string shown = rtbChat.Text;
        if (!shown.empty() && !EndsWith(shown, "\r\n")) glbMessages.AddMessageToTextBox("\r\n", vbWindowText, 0);
        glbMessages.AddMessageToTextBox(FormatDate(Now(), "hh:mm:ss") + " " + glbComms.GetMyUserName() + ": ",
                                        vbWindowText, 0);
        glbMessages.AddMessageToTextBox(line, vbBlue, 0);
        glbComms.TransmitText(lblUsers.Caption, line);
    }
    txtTalk.Text = "";
}

void frmChat::cmdCancel_Click() {
    glbChatMode = false;
    Unload();
}

frmChat& ChatForm() {
    if (!gChatForm) gChatForm = std::make_unique<frmChat>();
    return *gChatForm;
}

void ResetChatForm() {
    gChatForm.reset();
}

}  // namespace orbidex
