// The lists of the office's users from USERS.TXT, the users ticked or chosen in
// them, and the booking of a meeting for those users through ADD.TXT.
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/OleColor.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/clsArray.h"
#include "network/ServerFolder.h"
#include "network/cComms.h"
#include "platform/Platform.h"

namespace orbidex {

namespace sf = serverfolder;

namespace {

constexpr std::string_view kYou = "(you)";
constexpr OleColor kHuhColour = RGB(0, 128, 0);

// Adds one name of a list row to a user list: a row that holds "(you)" stands for
// the user, and counts only when the user is wanted.
void appendUser(std::string& users, const std::string& text, bool includeMe) {
    if (InStr(text, std::string(kYou)) == 0)
        users += text + ", ";
    else if (includeMe)
        users += glbComms.GetMyUserName() + ", ";
}

void markByStatus(ListItem& item, const std::string& status) {
    const std::string upper = UCase(status);
    if (upper == "LOGGED ON") item.Bold = true;
    if (upper == "N/A" || upper == "OFFLINE") item.ForeColor = vbRed;
    if (upper == "HUH") item.ForeColor = kHuhColour;
}

}  // namespace

std::string cComms::GetTickedListOfUsers(ListView& list) {
    std::string users;
    for (long i = 1; i <= list.ListItems.Count(); ++i)
        if (list.ListItems(i).Checked) users += list.ListItems(i).Text() + ", ";
    return users;
}

std::string cComms::GetTickedUsers(ListView& list) {
    std::string users;
    for (long i = 1; i <= list.ListItems.Count(); ++i)
        if (list.ListItems(i).Checked) appendUser(users, list.ListItems(i).Text(), false);
    return users;
}

std::string cComms::GetSelectedUsers(Control& list, bool includeMe) {
    std::string users;
    if (auto* view = dynamic_cast<ListView*>(&list)) {
        for (long i = 1; i <= view->ListItems.Count(); ++i)
            if (view->ListItems(i).Selected) appendUser(users, view->ListItems(i).Text(), includeMe);
    } else if (auto* box = dynamic_cast<ListBox*>(&list)) {
        for (long i = 0; i < box->ListCount(); ++i)
            if (box->Selected(i)) appendUser(users, box->List(i), includeMe);
    }
    return users;
}

void cComms::ListUsers(Control& list, bool showStatus) {
    const std::string file =
        glbServerAlive ? networkFile(sf::kUsers) : AddFileToPath(localDataPath_, std::string(sf::kUsers));
    if (auto* box = dynamic_cast<ListBox*>(&list)) box->Clear();
    if (auto* view = dynamic_cast<ListView*>(&list)) {
        view->ListItems.Clear();
        view->ColumnHeaders.Clear();
        view->ColumnHeaders.Add("User Name", 1200);
        if (showStatus) view->ColumnHeaders.Add("Status", 1900);
    }
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) return;
    for (const std::string& line : SplitLines(bytes))
        if (!Trim(line).empty()) ParseUserItemToList(list, line, showStatus);
}

void cComms::ParseUserItemToList(Control& list, const std::string& line, bool showStatus) {
    std::string name = line;
    std::string status;
    if (const long comma = InStr(line, ","); comma >= 2) {
        name = Trim(Left(line, comma - 1));
        status = Trim(Mid(line, comma + 1));
    }
    if (status.empty()) status = "Offline";
    if (!glbServerAlive) status = "unknown";
    if (auto* box = dynamic_cast<ListBox*>(&list)) {
        box->AddItem(line);
        return;
    }
    auto* view = dynamic_cast<ListView*>(&list);
    if (view == nullptr) return;
    ListItem& item = view->ListItems.Add(name);
    item.Tag = name;
    if (EqualsText(name, GetMyUserName())) {
        item.ForeColor = vbBlue;
        item.Bold = true;
    }
    if (showStatus) item.SetSubItems(1, status);
    markByStatus(item, status);
    // Everybody starts ticked; the user clears those who are not wanted.
    if (view->Checkboxes) item.Checked = true;
}

// Each name gets its own line; the server passes it on to that user alone.  The
// booker is among the users when ticked: there is no shortcut into the own diary.
void cComms::MakeMeetingBooking(const cDiaryRecord& record, const std::string& users) {
    clsArray names;
    names.init(99);
    names.CreateByParsingText(" ," + users + ",", ",");
    const std::string file = networkFile(sf::kAdd);
    const std::string event = record.FormatAsText(kFieldDelimiter, true);
    for (long i = 1; i <= names.Count(); ++i)
        if (!Trim(names.Item(i)).empty())
            AppendToFile(file, Trim(names.Item(i)) + std::string(kFieldDelimiter) + event + "\r\n");
    AppendToFile(file + std::string(sf::kOK), "done\r\n");
    platform().MsgBox(
        "Finished creating appointments for " + users + "\r\nThey will be notified in the next few minutes", vbOKOnly,
        "Made Meeting Requests");
}

}  // namespace orbidex
