#include "network/cMessages.h"

#include <algorithm>

#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/frmChat.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

cMessages glbMessages;

std::string cMessages::fname() const {
    return glbDiaryComms.MessageLogFile();
}

void cMessages::EnterChatMode(frmClientDiaryMain& mainWindow, std::string users) {
    if (users.empty()) users = glbComms.GetSelectedUsers(mainWindow.lvUsers, false);
    if (users.empty()) {
        platform().MsgBox("Your username is\r\n" + glbComms.GetMyUserName(), vbOKOnly, "");
        return;
    }
    if (!glbNetworkAlive) {
        platform().MsgBox(
            "You cant enter enter Chatmode or send Messages\r\n"
            "because the network directory cannot be found\r\n"
            "This is probably caused by the server PC being\r\n"
            "turned off, or it may be that the directory isnt\r\n"
            "setup correctly",
            vbInformation, "The Network Path cannot be found");
        return;
    }
    glbChatMode = true;
    frmChat& chat = ChatForm();
    chat.lblUsers.Caption = users;
    chat.Caption = (glbServerAlive ? "Chatting to " : "Send Message to ") + users;
    chat.Show(false);
}

void cMessages::DisplayMessages(const std::string& file, ListView& list, int filterMode) {
    const VbDate date = MainForm().MonthView1.Value;
    glbMessageWaiting = false;
    list.ListItems.Clear();
    list.ColumnHeaders.Clear();
    // As wide as the list inside its border, so that no scroll bar is needed.
    list.ColumnHeaders.Add("Messages - " + FormatDate(date, "DDD, d-MMM-yy"), std::max(0L, list.Width - 120));
    list.Sorted = false;

    const std::string me = UCase(glbComms.GetMyUserName());
    std::string bytes;
    ReadWholeFile(file, bytes);
    for (const std::string& line : SplitLines(bytes)) {
        std::string fields[4];
        splitTag(line, fields);
        const auto& [when, type, partner, text] = fields;
        if (when.empty() || text.empty() || !IsMessageInDateRange(line, filterMode, date)) continue;
        // Receipts, and notices about what the user did to others, stay in the log only.
        if (StartsWith(text, "CONFIRM:")) continue;
        if (StartsWith(text, "RECEIVED:") && UCase(partner) == me) continue;
        if (type == "EV" && UCase(partner) == me) continue;
        ListItem& item = list.ListItems.Add(type + ":" + partner + " " + text);
        item.Tag = line;
        item.ToolTipText = text;
    }
    if (list.ListItems.Count() == 0) list.ListItems.Add("No messages on " + FormatDate(date, "d-MMM"), "NULL");
}

bool cMessages::IsMessageInDateRange(const std::string& line, int filterMode, VbDate date) const {
    switch (filterMode) {
        case 0:
            return true;
        case 1:
            return Left(line, 8) == FormatDate(date, "yyyymmdd");
        case 2:
            return Mid(line, 5, 2) == FormatDate(date, "mm");
        case 3:
            return Left(line, 4) == FormatDate(date, "yyyy");
        default:
            return false;
    }
}

std::string cMessages::fullText() const {
    return "\r\n---END MESSAGE---\r\n\r\n";
}

void cMessages::DeleteMessages() {
    if (platform().MsgBox("Do you want to Delete the messages?", vbYesNo, "Delete Messages") != vbYes) return;
    DeleteFile(fname());
    glbScreen.SwitchMode(glbScreen.Mode(), true);
}

// The text goes in at the end whatever the user has selected in the conversation.
void cMessages::AddMessageToTextBox(const std::string& text, OleColor colour, double size) {
    RichTextBox& box = ChatForm().rtbChat;
    platform().SetClipboardText("");
    platform().SetClipboardText(text);
    box.SelStart = Len(box.Text.get());
    box.SelLength = 0;
    box.SelColor = colour;
    if (size > 0) box.SelFontSize = size;
    box.Paste();
    box.SelStart = Len(box.Text.get());
    ChatForm().SetActiveControl(&ChatForm().txtTalk);
}

void cMessages::ShowMessageFromList(const ListItem& item) {
    std::string fields[4];
    splitTag(item.Tag, fields);
    const auto& [when, type, partner, text] = fields;
    std::string message = "On " + when;
    if (type == "TX") message += " you sent a message to " + partner + " ";
    if (type == "RX") message += " you received a message from " + partner;
    if (type == "SV") message += " you received a server message from " + partner + "\r\n";
    if (type == "EV") message += " the user " + partner + " added an event to your database";
    message += "\r\n\r\n" + text;
    if (type != "RX") {
        platform().MsgBox(message, vbOKOnly, "Message Details - " + type);
        return;
    }
    message += "\r\nDo you want to reply to this message?";
    if (platform().MsgBox(message, vbYesNo, "Message Details - Reply ?") == vbYes) EnterChatMode(MainForm(), partner);
}

void cMessages::splitTag(const std::string& tag, std::string fields[4]) {
    const std::vector<std::string> parts = Split(tag, ";");
    for (size_t i = 0; i < 4 && i < parts.size(); ++i) fields[i] = parts[i];
}

}  // namespace orbidex
