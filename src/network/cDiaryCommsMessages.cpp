// Messages arriving from other users, and the message log that keeps all that went
// in or out.
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/ServerWork.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/cMessages.h"
#include "platform/Platform.h"
#include "screen/frmStickyNote.h"

namespace orbidex {

namespace {

void ringThreeTimes() {
    for (int i = 0; i < 3; ++i) {
        platform().Beep();
        platform().DoEvents();
    }
}

}  // namespace

std::string cDiaryComms::MessageLogFile() {
    return GetLocalDataPath() + "messages.log";
}

void cDiaryComms::CreateMessageLogEntry(const std::string& user, const std::string& type, const std::string& text) {
    if (Trim(user).empty() && Trim(text).empty()) return;
    const std::string line = FormatDate(Now(), "yyyymmdd hh:mm:ss") + ";" + type + ";" + user + ";" + text;
    glbLog.pimlog(MessageLogFile(), ReplaceLineBreaks(line), 0, 0);
}

// Outside the chat the user hears the message, and sees it where the settings ask
// for pop-ups; receipts ring but pop nothing up.
bool cDiaryComms::RecieveMessage(const std::string& name) {
    const std::string file = networkFile(name);
    std::string bytes;
    const bool read = ReadWholeFile(file, bytes);
    std::string popup;
    for (const MessageRecord& message : ReadMessageRecords(bytes)) {
        if (glbChatMode) {
            glbMessages.AddMessageToTextBox("\r\n " + message.sender + ": ", vbWindowText, 0);
            glbMessages.AddMessageToTextBox("\r\n" + message.text, vbRed, 0);
        } else {
            ringThreeTimes();
            glbMessageWaiting = true;
            if (!StartsWith(message.text, "CONFIRM:")) popup += message.sender + ": " + message.text + "\r\n";
        }
        CreateMessageLogEntry(message.sender, "RX", message.text);
        ringThreeTimes();
    }
    DeleteServerFile(file);
    if (!popup.empty() && glbConfig.ShowPopupMessages != 0) ShowPopupMessage(popup, "New Message");
    return read;
}

void ShowPopupMessage(const std::string& text, const std::string& title) {
    frmStickyNote& note = StickyNote();
    note.Load();
    note.txtNote.Text = text;
    note.lblNote.Visible = false;
    note.cmdRemindLater.Visible = false;
    note.Form_Resize();
    note.Caption = title + " : " + glbComms.GetMyUserName();
    note.Show(false);
}

}  // namespace orbidex
