// The bars of the main window: the navigation tree, the shortcut bar, the tool bar
// and the status bar, and the titles shown for the companion program.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

bool isLocalKind() {
    return NETWORK_STRING == "LOCAL";
}

struct TreeEntry {
    const char* key;
    const char* text;
    const char* relative;  ///< "" for a root
    const char* image;
    const char* expandedImage;
    bool networkOnly;
};

// The relative of each entry stands before it.  The project nodes name a relative
// the tree does not have, so the tree refuses them.
constexpr TreeEntry kTree[] = {
    {"HOME", "Home", "", "leaf", "", false},
    {"CALENDAR", "My Diary", "HOME", "calendar", "", false},
    {"TASK", "Tasks", "HOME", "task", "", false},
    {"NOTE", "Notes", "HOME", "note", "", false},
    {"STAFF", "Staff", "HOME", "staff", "", true},
    {"CALENDAR_ADDNEW", "Add New Event", "CALENDAR", "new", "", false},
    {"STAFF_BOOKMEETING", "Book a Meeting", "STAFF", "new", "", true},
    {"TASK_ADDNEW", "Add New Task", "TASK", "new", "", false},
    {"NOTE_ADDNEW", "Add New Note", "NOTE", "new", "", false},
    {"CALENDAR_VIEWYEAR", "Annual Calendar", "CALENDAR", "leaf", "", false},
    {"task_Proj1", "Project 1", "TASK_ByProj", "closed", "open", false},
    {"task_Proj2", "Project 2", "TASK_ByProj", "closed", "open", false},
    {"task_Proj3", "Project 3", "TASK_ByProj", "closed", "open", false},
    {"task_Proj4", "Project 4", "TASK_ByProj", "closed", "open", false},
    {"UnsortedNotes", "Unsorted Notes", "NOTE", "closed", "open", false},
    {"Development", "Development", "NOTE", "closed", "open", false},
    {"Marketing", "Marketing", "NOTE", "closed", "open", false},
    {"public", "Public Information", "", "leaf", "", false},
    {"CALENDARpublic_events", "Important Dates", "public", "closed", "open", false},
    {"public_contacts", "Contacts", "public", "closed", "open", false},
    {"TASK_public", "Task Templates", "public", "closed", "open", false},
    {"public_notes", "Notes", "public", "closed", "open", false},
    {"public_events0", "[company] Events", "CALENDARpublic_events", "leaf", "", false},
    {"public_events1", "Public Holidays", "CALENDARpublic_events", "leaf", "", false},
    {"public_events2", "School Holidays", "CALENDARpublic_events", "leaf", "", false},
};

struct ShortcutEntry {
    const char* key;
    const char* text;
    const char* icon;
    bool networkOnly;
};

constexpr ShortcutEntry kShortcuts[] = {
    {"HOME", "Home", "overview", false}, {"CALENDAR", "My Diary", "clock", false}, {"TASK", "Tasks", "bridge", false},
    {"NOTE", "Notes", "note", false},    {"STAFF", "Staff", "meeting", true},
};

struct ButtonEntry {
    const char* key;
    const char* caption;
    const char* toolTip;
    int style;
};

constexpr ButtonEntry kButtons[] = {
    {"new", "New     ", "Add a new item", tbrDropdown},
    {"Find", "Find    ", "Search for information", tbrDefault},
    {"delete", "Delete  ", "Delete the current selected item", tbrDefault},
    {"print", "Print   ", "Print the current view", tbrDefault},
    {"today", "Today   ", "Go to Todays date", tbrDefault},
    {"days", "Day     ", "Show events for a day", tbrButtonGroup},
    {"week", "Week    ", "Show events for a week", tbrButtonGroup},
    {"month", "Month   ", "Show events in a monthly grid", tbrButtonGroup},
    {"year", "Year    ", "View the 'Any year' Calendar", tbrDefault},
    {"showall", "All     ", "Show all items in the list", tbrDefault},
    {"current", "Current ", "Filter the list to show only current/todays items", tbrDefault},
    {"refresh", "Server  ", "Ping the server to get updated information", tbrDefault},
    {"grid", "Grid   ", "", tbrDefault},
    {"list", "List   ", "", tbrDefault},
    {"properties", "Options  ", "", tbrDefault},
};

// The image of each button: its key, but for the server button.
std::string imageOf(const std::string& key) {
    if (key == "refresh") return "server";
    return LCase(key);
}

void setButtons(Toolbar& bar, std::initializer_list<const char*> keys, bool visible) {
    for (const char* key : keys) bar.Buttons(key).Visible = visible;
}

}  // namespace

void clsDiaryScreen::drawTree() {
    TreeView& tree = form_->tv;
    tree.Nodes.Clear();
    for (const TreeEntry& entry : kTree) {
        if (entry.networkOnly && isLocalKind()) continue;
        const std::string relative = entry.relative;
        Node* node =
            tree.Nodes.Add(relative, relative.empty() ? tvwLast : tvwChild, entry.key, entry.text, entry.image);
        if (node != nullptr) node->ExpandedImage = entry.expandedImage;
    }
    if (Node* home = tree.Nodes.Item("HOME")) home->Expanded = true;
}

void clsDiaryScreen::drawShortcuts() {
    ListView& shortcuts = form_->lvView;
    shortcuts.ListItems.Clear();
    shortcuts.View = lvwIcon;
    for (const ShortcutEntry& entry : kShortcuts) {
        if (entry.networkOnly && isLocalKind()) continue;
        shortcuts.ListItems.Add(entry.text, entry.key, entry.icon, entry.icon);
    }
}

void clsDiaryScreen::drawStatusBar() {
    PanelCollection& panels = form_->status.Panels;
    while (panels.Count() < 2) panels.Add();
    panels(1).AutoSize = sbrSpring;
    panels(2).AutoSize = sbrContents;  // the mode, or the view's totals
    panels(2).MinWidth = 2400;
}

void clsDiaryScreen::CreateToolbarButtons(bool showText) {
    if (form_ == nullptr) return;
    Toolbar& bar = form_->Toolbar1;
    bar.Buttons.Clear();
    for (const ButtonEntry& entry : kButtons) {
        Button& button = bar.Buttons.Add(entry.key, entry.caption, entry.style, imageOf(entry.key));
        button.ToolTipText = entry.toolTip;
        button.Enabled = frmClientDiaryMain::HasOperation(button, mode_);
    }
    Button& add = bar.Buttons("new");
    add.AddButtonMenu("Event", "Event");
    add.AddButtonMenu("Task", "Task");
    add.AddButtonMenu("Note", "Note");
    if (!isLocalKind()) add.AddButtonMenu("Meeting", "Meeting");
    for (long i = 1; i <= add.ButtonMenuCount(); ++i)
        add.ButtonMenus(i)->Enabled = frmClientDiaryMain::HasOperation(*add.ButtonMenus(i));
    bar.ShowCaptions = showText;
}

void clsDiaryScreen::PressViewButton() {
    if (form_ == nullptr) return;
    const int days = glbConfig.DayWeekMonth;
    const std::string pressed = days == 1 ? "days" : days == 7 ? "week" : days >= 15 ? "month" : "";
    for (const char* key : {"days", "week", "month"})
        form_->Toolbar1.Buttons(key).Value = pressed == key ? tbrPressed : tbrUnpressed;
}

void clsDiaryScreen::toolbarForMode(const std::string& mode) {
    Toolbar& bar = form_->Toolbar1;
    // The overview keeps the bar as it was remade: every button shows.
    if (mode == "CALENDAR") {
        setButtons(bar, {"days", "week", "month", "grid", "list", "today"}, true);
        setButtons(bar, {"showall", "current", "year", "refresh"}, false);
        PressViewButton();
        bar.Buttons("new").Image = "calendar";
    } else if (mode == "TASK") {
        setButtons(bar, {"showall", "current"}, true);
        bar.Buttons("current").Value = tbrPressed;
        setButtons(bar, {"days", "week", "month", "refresh", "today"}, false);
        bar.Buttons("new").Image = "task";
    } else if (mode == "NOTE") {
        setButtons(bar, {"showall", "current", "days", "week", "month", "refresh", "today"}, false);
        bar.Buttons("new").Image = "note";
    } else if (mode == "STAFF") {
        setButtons(bar, {"days", "week", "month", "refresh", "today"}, true);
        PressViewButton();
        setButtons(bar, {"showall", "current", "year"}, false);
        bar.Buttons("new").Image = "staff";
    }
}

void clsDiaryScreen::showStatus() {
    if (form_ == nullptr || NETWORK_STRING != "CLIENT") return;
    Button& server = form_->Toolbar1.Buttons("refresh");
    if (glbServerAlive) {
        server.Image = "server";
        server.ToolTipText = "You are connected as " + glbMyUserName;
        form_->status.Panels(1).Text = "Connected to the Diary Server as " + glbMyUserName;
    } else {
        server.Image = "disconnect";
        server.ToolTipText = "Local mode (server unavailable)";
        form_->status.Panels(1).Text = "Running in Local Mode (Server not responding)";
    }
}

std::string clsDiaryScreen::DisplayCaption() {
    std::string text = "Tessaline - Local";
    if (glbNetworkAlive) text = glbChatMode ? "Tessaline - Chatting" : "Tessaline - Network";
    if (!glbServerAlive) text = "Tessaline - No Server";
    if (glbConfig.runLocalModeOnly == "1") text = "Tessaline";
    if (WorkingFlag == 0) text += " - Coffee Break";
    if (glbMessageWaiting) text = "(message) " + text;
    return text;
}

std::string clsDiaryScreen::DisplayTime() {
    if (TimeFormat.empty()) TimeFormat = "DDD d-MMM h:mm:ss ampm";
    return Trim(FormatDate(Now(), TimeFormat));
}

void clsDiaryScreen::ShowProgress(const std::string& text) {
    if (form_ == nullptr) return;
    form_->status.Panels(1).Text = text;
    platform().DoEvents();
}

}  // namespace orbidex
