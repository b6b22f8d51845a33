#pragma once
// Where a user's intent, from a menu, the toolbar, the tree or the mouse, is turned
// into work.  The main form's handlers only dispatch to these operations.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "screen/PrintDocument.h"

namespace orbidex {

class FlexGrid;
struct DataObject;
class ListItem;
class ListView;
class frmClientDiaryMain;

class clsDiaryCommand {
public:
    /// Keeps the main form.
    void init(frmClientDiaryMain& form) { form_ = &form; }
    /// The one way the program stops: log off, keep the window's place, end at once.
    void CommandExit();

    // The view of the calendar
    /// Set the days the view shows (1, 7, 14, 31) and tick the matching menu entry;
    /// they do not draw, the caller does.
    void ViewDay();
    void ViewWeek();
    void ViewFortnight();
    void ViewMonth();
    /// Events in the grid or the list; the choice is saved and the view drawn.
    void ViewGrid();
    void ViewList();
    /// Moves the view to today.
    void ViewToday();
    /// The perpetual calendar on the view's year; a day clicked in it is shown in
    /// the calendar behind it.
    void ViewYear();
    /// Reads the present mode's data again (the server's too, for a client).
    void viewRefresh();
    /// Shows or hides the browser pane with the program's page of past notes.
    void viewBrowser();
    /// Asks the server whether it is there and shows the answer.
    void serverPing();
    /// Opens the chat window with the users chosen in the user list, or, when none
    /// is, with the users the user names.
    void CommandChat();
    /// Looks for the work the server left at once, as the timer does each minute, and
    /// draws the view again when it changed the diary.
    void serverCheckForWork();

    // The mouse on the views
    /// A cell of the grid clicked: its event becomes the current one.
    void MouseGridClicked(FlexGrid& grid);
    /// A cell of the grid double-clicked: a blank cell adds an event at its date and
    /// time, an event's cell edits it, a cell of several events asks what to do.
    void MouseGridDbleClicked(FlexGrid& grid);
    /// A row of a list clicked.
    void MouseListClicked(ListView& list);
    /// A list double-clicked: its row is edited, or an empty list gets a new item.
    void MouseListDbleClicked(ListView& list);

    // The events.  Each turns timerSecond off while its dialog is open, so that no
    // exchange with the server runs in the middle of it, and draws the view after.
    /// A new event through the editor.  An empty `time` is the grid's selected row;
    /// a `date` not of this year (0 for none) is the view's day or the grid's
    /// selected column.
    void EventAdd(VbDate date, const std::string& time);
    /// The current event in the editor.
    void EventEdit();
    /// The current event deleted, after the user agrees.
    void EventDelete();
    /// The event under the grid's selected cell (or the current one, in the list)
    /// moved to another date and time.
    void EventReschedule();
    /// The current event moved to another date and time, as it stands.
    void RescheduleCurrentEvent();
    /// One event on many dates, through the multi-day dialog.
    void EventAddMultidayEvent();

    // Printing: the present view as an HTML file in the data folder
    /// Writes the view's HTML page as CommandPrint always has, then shows the print
    /// preview of the view, from which the user prints it or saves it as PDF.
    void CommandPrint();
    /// The printed form of the view on screen; an empty table for a view that has none.
    PrintDocument PrintDocumentOfView();
    void ConvertListViewToHtml(ListView& list, const std::string& file);
    void ConvertGridToHtml(FlexGrid& grid, const std::string& file);

    // Importing and exporting events, and the scratch pad
    /// A comma-separated file or a file of event lines, picked by the user, into the diary.
    void ImportAppointments();
    /// After the user agrees, the diary as HTML pages, one per month; the page of the
    /// month on screen then opens in the browser pane.
    void ExportAppointments();
    /// The diary as HTML pages; the page of the month on screen opens in the desktop's browser.
    void ViewEventsInBrowser();
    /// The events of the days the user names (or of the whole diary) and their
    /// tasks, into an iCalendar file the user picks.
    void ExportICalendar();
    /// An iCalendar file the user picks, into the diary and the task list.
    void ImportICalendar();
    /// The iCalendar files among `files` (by the name's end ".ics" when `byName`),
    /// into the diary one after the other; false when there is none.
    bool ImportICalendarFiles(const std::vector<std::string>& files, bool byName = true);
    /// Opens the scratch pad beside the window, or brings it to the front.
    void ShowScratchPad();

    // Entries of the tools, beta and help menus
    /// Starts a companion program that stands beside this one.
    void StartCompanionTool(const std::string& exeName);
    /// Turns the log up to the detailed trace, or back down to errors.
    void ToggleDetailedLogging();
    /// Turns on, or off, the demand that the server confirm every save.
    void ToggleServerEnforce();
    /// Starts the updater beside the program and ends this run.
    void RestartProgram();
    /// The totals of the view in the status bar.
    void ShowViewTotals();
    /// How many events are in memory, in a message.
    void ShowEventCount();
    /// The help page for this kind of program, in the browser pane.
    void OpenHelpContents();
    enum class MakersPage { Showcase, Suggestion, BugReport };
    /// One of the maker's web pages, in the desktop's browser.
    void OpenMakersPage(MakersPage page);

    /// The search form, then the results of what it asked for; the timer is off
    /// meanwhile.
    void Search();

    /// A tree node clicked: by its key (or its text) a mode, or a mode and a command.
    void NavigationClicked(const std::string& key, const std::string& text);
    /// A tool bar button, or an entry of its drop-down menu, by its key.
    void ToolbarClicked(const std::string& key);

    // The tasks.  Each turns timerSecond off while its dialog is open and draws the
    // task list after, where the mode shows one.
    /// A new task through the task editor.  The editor starts at the present moment,
    /// whatever `date`.
    void TaskAdd(VbDate date);
    /// The current task in the editor; a task the list does not hold is added.
    void TaskEdit();
    /// The current task deleted, after the user agrees.
    void TaskDelete();
    /// The task of that identifier in the editor, as a double click on its row does;
    /// false, and nothing opened, for an identifier the list does not hold.
    bool OpenTask(const std::string& id);
    /// Lists the tasks in lvCat: only the active ones, or all.  The calendar's task
    /// list and its "Tasks" label, or the task mode's list with its filter buttons;
    /// other modes keep their list.
    void ShowTasks(bool onlyActive);
    /// Numbers every task anew, by its date and line.
    void ReIndexTasks();
    /// The unfinished tasks as a page in the data folder, opened in the browser.
    void ShowTasksInBrowser();

    // The notes.  Each ends in the note mode, the notes listed.
    /// A new note through the note editor.
    void NoteAdd();
    /// The current note in the editor; a note the list does not hold is added.
    void NoteEdit();
    /// The current note's line deleted, after the user agrees; its body file stays.
    void NoteDelete();
    /// The note of that identifier in the editor; false, and nothing opened, for an
    /// identifier the list does not hold.
    bool OpenNote(const std::string& id);
    /// Rebuilds the note list from the notes folder, after the user agrees.
    void RecreateNotes(bool keepFileNameAsTitle);

    /// The options dialog, on the tab of the present mode; afterwards every setting
    /// is read again and the mode drawn anew with it.
    void ShowOptions();

    // The display settings dialogs, the perpetual calendar and the about box
    /// The colours dialog; afterwards every setting is read again and the mode drawn
    /// anew with it.
    void ShowColours();
    /// The columns of the event list ("ListViewHeadings") or of the task list
    /// ("TaskHeadings"); afterwards the list is drawn with them.  The note's fields
    /// ("NoteHeadings") are only written: the note list shows the title alone.
    void ShowHeadings(const std::string& section);
    /// The about box.
    void ShowAbout();

    // Drops between the views, and from other programs.  Each turns timerSecond off
    // while it changes the files.
    /// The current event moved to `date` ("yyyymmdd") at `time` ("hhmm"), into
    /// another month too; a reminder moves with it to the new moment.
    void MoveSelectedEventToNewTime(const std::string& date, const std::string& time);
    /// The list's selected task copied into the grid's current cell as an event;
    /// the task stays.
    void MoveSelectedTaskToEvent(ListView& list, FlexGrid& grid);
    /// The current event copied to the task list as a task; the event stays.
    void MoveCurrentEventToTask();
    /// A task for each dropped file, or one of the dropped text.
    void TaskAddFromDroppedFiles(const DataObject& data);
    /// A note of each dropped file, or one of the dropped text.
    void NoteAddFromDroppedFiles(const DataObject& data);

    // The staff planner and meetings.
    /// Books a meeting with the users ticked in the staff planner (shown first when
    /// another mode is on screen), then looks for work from the server at once, so
    /// that a meeting booked for oneself shows up soon.
    void BookMeeting(VbDate date, const std::string& time);
    /// In the staff planner: pings the server and draws the planner from a new request.
    void serverRefreshStaffData();
    /// The ticks of lvUsers changed: the planner asks for the users now ticked.
    void StaffUsersTicked();

    /// A boolean property pair, read and written, with no other effect.
    bool IsMenuTicked() const { return isMenuTicked_; }
    void IsMenuTicked(bool ticked) { isMenuTicked_ = ticked; }

private:
    void setViewLength(int days, int menuIndex);
    /// Redraws the calendar for its date, as a click on the month calendar would.
    void redrawView();
    /// An event added from the tool bar, then the view drawn again.
    void addEventFromToolbar();
    /// In calendar mode, the calendar drawn again for its date from the events in memory.
    void redrawCalendar();
    /// The date of the grid's selected cell: the view's day, or the column's date.
    VbDate selectedCellDate() const;
    /// Enables the pop-up menu's entries that act on the current event when there is
    /// one, and with `menuBarToo` those of the Appointments menu.
    void enableEventEntries(bool menuBarToo);
    /// What a list holds, by the mode: the task list beside the calendar holds tasks.
    std::string listKind(const ListView& list) const;
    /// A row of the task or note list becomes the current task or note.
    void selectTask(const ListItem* item);
    void selectNote(const ListItem* item);
    void timerOn(bool on);
    /// Tasks and notes read from the new data folder, and the user told that the
    /// files of the old one stay there.
    void dataFolderChanged(const std::string& oldDataPath);
    /// Exports the diary; the page of the month on screen, or of the last month, or "".
    std::string exportPages();

    frmClientDiaryMain* form_ = nullptr;
    bool isMenuTicked_ = false;
};

extern clsDiaryCommand glbCmd;

}  // namespace orbidex
