// What a key of the navigation tree or of the tool bar leads to.
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void clsDiaryCommand::NavigationClicked(const std::string& key, const std::string& text) {
    glbLog.log("DEBUG -  key = " + key + " text = " + text, 3);
    const std::string caption = UCase(text);
    const VbDate date = form_ != nullptr ? static_cast<VbDate>(form_->MonthView1.Value) : Today();
    if (key == "CALENDAR_ADDNEW" || caption == "ADD NEW EVENT") {
        glbScreen.SwitchMode("CALENDAR");
        EventAdd(0, "");
    } else if (key == "TASK_ADDNEW" || caption == "ADD NEW TASK") {
        glbScreen.SwitchMode("TASK");
        TaskAdd(date);
    } else if (key == "NOTE_ADDNEW" || caption == "ADD NEW NOTE") {
        glbScreen.SwitchMode("NOTE");
        NoteAdd();
    } else if (key == "CALENDAR_VIEWYEAR") {
        glbScreen.SwitchMode("CALENDAR");
        ViewYear();
    } else if (key == "STAFF_BOOKMEETING") {
        glbScreen.SwitchMode("STAFF");
        BookMeeting(date, "");
    } else {
        // Any other node leads into the mode its key starts with.
        for (const char* word : {"NOTE", "TASK", "CONTACT", "STAFF", "HOME", "OVERVIEW", "CALENDAR"}) {
            if (!StartsWith(key, word)) continue;
            glbScreen.SwitchMode(std::string(word) == "OVERVIEW" ? "HOME" : word);
            return;
        }
    }
}

void clsDiaryCommand::addEventFromToolbar() {
    EventAdd(0, "");
    // The calendar is drawn where it is on screen; another mode (the overview) is
    // built again, so that the grid does not appear over it.
    if (glbScreen.Mode() == "CALENDAR")
        redrawView();
    else
        glbScreen.SwitchMode(glbScreen.Mode(), true);
}

void clsDiaryCommand::ToolbarClicked(const std::string& key) {
    const std::string& mode = glbScreen.Mode();
    const VbDate date = form_ != nullptr ? static_cast<VbDate>(form_->MonthView1.Value) : Today();
    if (key == "Event" || key == "Appointment") {
        addEventFromToolbar();
    } else if (key == "days" || key == "week" || key == "fortnight" || key == "month") {
        if (key == "days") ViewDay();
        if (key == "week") ViewWeek();
        if (key == "fortnight") ViewFortnight();
        if (key == "month") ViewMonth();
        redrawView();
    } else if (key == "year") {
        ViewYear();
    } else if (key == "today") {
        ViewToday();
        glbScreen.resize();
    } else if (key == "Find") {
        Search();
    } else if (key == "alltasks" || key == "showall" || key == "todaystasks" || key == "current") {
        const bool all = key == "alltasks" || key == "showall";
        if (mode == "NOTE" && form_ != nullptr)
            form_->status.Panels(1).Text = all ? "All Notes already displayed" : "current Notes already displayed";
        if (mode == "TASK") ShowTasks(!all);
    } else if (key == "properties") {
        ShowOptions();
    } else if (key == "refresh") {
        serverRefreshStaffData();
    } else if (key == "print") {
        CommandPrint();
    } else if (key == "new") {
        if (mode == "HOME" || mode == "CALENDAR") addEventFromToolbar();
        if (mode == "TASK") TaskAdd(date);
        if (mode == "STAFF") BookMeeting(date, "");
        if (mode == "NOTE") NoteAdd();
    } else if (key == "delete") {
        if (mode == "CALENDAR") EventDelete();
        if (mode == "TASK") TaskDelete();
        if (mode == "NOTE") NoteDelete();
    } else if (key == "grid") {
        ViewGrid();
        redrawView();
    } else if (key == "list") {
        ViewList();
        redrawView();
    } else if (key == "Task") {
        TaskAdd(date);
    } else if (key == "Note") {
        NoteAdd();
    } else if (key == "Meeting") {
        BookMeeting(date, "");
    }
}

}  // namespace orbidex
