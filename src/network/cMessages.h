#pragma once
// The message log (messages.log in the local folder) as the user sees it: the list
// of one date's messages and event notices, a message opened from the list, the
// chat window's text, and the deletion of the whole log.
//
// A line of the log: "yyyymmdd hh:mm:ss;type;partner;text", the type "TX" sent,
// "RX" received, "SV" from the server, "EV" an event another user added or changed.

#include <string>

#include "controls/OleColor.h"
#include "platform/Platform.h"

namespace orbidex {

class ListItem;
class ListView;
class frmClientDiaryMain;

class cMessages {
public:
    /// The message log in the local folder.
    std::string fname() const;
    /// Opens the chat window with `users` (a user list), or with the users selected
    /// in the main window's user list; without users it only tells the user's name.
    void EnterChatMode(frmClientDiaryMain& mainWindow, std::string users);
    /// Lists in `list` the messages of `file` that the filter lets through for the
    /// calendar's date, without receipts and without notices about the user's own
    /// doings; "No messages on ..." when there is none.
    void DisplayMessages(const std::string& file, ListView& list, int filterMode);
    /// Filter 0 lets every line through, 1 those of `date`, 2 those of its month
    /// (of any year), 3 those of its year; any other none.
    bool IsMessageInDateRange(const std::string& line, int filterMode, VbDate date) const;
    /// A message without content: the end marker alone.
    std::string fullText() const;
    /// Deletes the whole log once the user agrees, and draws the mode again.
    void DeleteMessages();
    /// Adds `text` at the end of the chat window's text in `colour` (and `size`
    /// when it is above 0), by way of the clipboard.
    void AddMessageToTextBox(const std::string& text, OleColor colour, double size);
    /// Shows the message of the item; a received one offers a reply.
    void ShowMessageFromList(const ListItem& item);

private:
    /// The four fields of a log line; a ";" in the text cuts it.
    static void splitTag(const std::string& tag, std::string fields[4]);
};

extern cMessages glbMessages;

}  // namespace orbidex
