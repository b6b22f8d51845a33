#pragma once
// The main window: one mode at a time, its controls driven by clsDiaryScreen and
// its handlers dispatching to clsDiaryCommand.  The form itself holds only event
// handlers and the code of its two splitters.

#include <array>
#include <string>

#include "controls/FlexGrid.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/MonthView.h"
#include "controls/StatusBar.h"
#include "controls/Timer.h"
#include "controls/Toolbar.h"
#include "controls/TreeView.h"
#include "controls/WebBrowser.h"

namespace orbidex {

class frmClientDiaryMain : public Form {
public:
    frmClientDiaryMain();

    // The window
    /// Browser blank, timer off (no tick before the start-up ends), today drawn.
    void Form_Load() override;
    void Form_Resize() override;
    /// Closing the window by any means ends the program through CommandExit.
    void Form_Unload(int& cancel) override;
    /// Widens the day columns to the grid, when the settings ask for it.
    void ResizeGridColumns();
    /// Runs once for each new second however the timer's ticks fall, with the timer
    /// off while it works: a client hands changed files over (and polls the server
    /// while asked to); on the full minute a client pings a server that is down and
    /// polls it, and every program shows the reminders that fell due.
    void timerSecond_Timer();

    // Menu entries whose operation this version of the program does not have stay
    // disabled whatever the view asks; so do tool bar buttons with such a key.
    /// Enables or disables `entry`; an entry without operation stays disabled.
    void EnableEntry(Menu& entry, bool enabled);
    static bool HasOperation(const Menu& entry);
    /// Whether the button has an operation in `mode`.
    static bool HasOperation(const Button& button, const std::string& mode);
    static bool HasOperation(const ButtonMenu& entry);

    // What the user does to the controls
    void tv_NodeClick(Node& node);
    void lvView_ItemClick(ListItem& item);
    void Toolbar1_ButtonClick(Button& button);
    void Toolbar1_ButtonMenuClick(ButtonMenu& entry);
    void MonthView1_DateClick(VbDate day);
    void gridDays_Click();
    void gridDays_DblClick();
    void gridDays_MouseUp(int button, int shift, long x, long y);
    /// Enter does what a double click does; Delete deletes the selected event.
    void gridDays_KeyDown(int& keyCode, int shift);
    /// A key that moved the current cell selects it as a click on it does.
    void gridDays_KeyUp(int& keyCode, int shift);
    void lvDiary_ItemClick(ListItem& item);
    void lvDiary_DblClick();
    /// Sorts the event list by the column, turning the order round at a second click.
    void lvDiary_ColumnClick(ColumnHeader& column);
    void lvCat_ItemClick(ListItem& item);
    /// Opens the row's task, note or message, or adds a task or note to an empty list.
    void lvCat_DblClick();
    /// Enter does what a double click does; Delete deletes the selected task or note,
    /// or in the message mode the message log.
    void lvCat_KeyDown(int& keyCode, int shift);
    /// Sorts the list by the column, turning the order round at a second click.
    void lvCat_ColumnClick(ColumnHeader& column);

    // Drags and drops.  An event is dragged out of the grid, a task out of the task
    // list beside the calendar; the grid and the task and note lists take files and
    // text from other programs.
    void gridDays_MouseDown(int button, int shift, long x, long y);
    void gridDays_MouseMove(int button, int shift, long x, long y);
    /// An event dragged from the grid moves to the cell; a task from the list is
    /// copied into it as an event.
    void gridDays_DragDrop(Control& source, long x, long y);
    /// Text dropped on a cell becomes an event there.
    void gridDays_OLEDragDrop(const DataObject& data);
    /// The status bar names the day an event dragged from the grid would move to.
    void MonthView1_DragOver(Control& source, VbDate day);
    /// An event dragged from the grid moves to the day, at its time.
    void MonthView1_DragDrop(Control& source, VbDate day);
    void lvCat_MouseDown(int button, int shift, long x, long y);
    void lvCat_MouseMove(int button, int shift, long x, long y);
    /// An event dragged from the grid is copied to the task list.
    void lvCat_DragDrop(Control& source, long x, long y);
    /// Files or text dropped on the task list or the note list become tasks or notes.
    void lvCat_OLEDragDrop(const DataObject& data);

    // The splitters: imgSplitter moves the border between the calendar column and the
    // main area, imgVert the border between the events and the browser pane under them.
    void imgSplitter_MouseDown(int button, int shift, long x, long y);
    void imgSplitter_MouseMove(int button, int shift, long x, long y);
    void imgSplitter_MouseUp(int button, int shift, long x, long y);
    void imgVert_MouseDown(int button, int shift, long x, long y);
    void imgVert_MouseMove(int button, int shift, long x, long y);
    void imgVert_MouseUp(int button, int shift, long x, long y);

    // Menus, in the order of the menu bar
    Menu mnuFile{this, "mnuFile", "&File"};
    Menu mnuFileImport{this, "mnuFileImport", "&Import Appointments ...", &mnuFile};
    Menu mnuFileExport{this, "mnuFileExport", "&Export Appointments ...", &mnuFile};
    Menu mnuFileImportICal{this, "mnuFileImportICal", "Import from i&Calendar ...", &mnuFile};
    Menu mnuFileExportICal{this, "mnuFileExportICal", "Export to iCa&lendar ...", &mnuFile};
    Menu mnuFileSep1{this, "mnuFileSep1", "-", &mnuFile};
    Menu mnuFilePrint{this, "mnuFilePrint", "Print ...", &mnuFile};
    Menu mnuFileSep2{this, "mnuFileSep2", "-", &mnuFile};
    Menu mnuFileExit{this, "mnuFileExit", "E&xit", &mnuFile};

    Menu mnuApp{this, "mnuApp", "&Appointments"};
    Menu mnuAppAdd{this, "mnuAppAdd", "&Add Appointment", &mnuApp};
    Menu mnuAppEdit{this, "mnuAppEdit", "&Edit", &mnuApp};
    Menu mnuAppDelete{this, "mnuAppDelete", "&Delete", &mnuApp};
    Menu mnuAppReschedule{this, "mnuAppReschedule", "&Reschedule this Appointment", &mnuApp};
    Menu mnuAppRecurring{this, "mnuAppRecurring", "Add &Multiple Day Event", &mnuApp};
    Menu mnuAppSep1{this, "mnuAppSep1", "-", &mnuApp};
    Menu mnuAppPlanMeeting{this, "mnuAppPlanMeeting", "&Plan a Meeting with other users", &mnuApp};

    Menu mnuTask{this, "mnuTask", "&Tasks"};
    std::array<Menu, 3> mnuTaskMenu{{
        {this, "mnuTaskMenu", "&Add Task", &mnuTask},
        {this, "mnuTaskMenu", "&Edit Selected Task", &mnuTask},
        {this, "mnuTaskMenu", "&Delete Selected Task", &mnuTask},
    }};
    Menu mnuTaskSep1{this, "mnuTaskSep1", "-", &mnuTask};
    Menu mnuTaskHeadings{this, "mnuTaskHeadings", "Choose Task Headings", &mnuTask};

    Menu mnuNotes{this, "mnuNotes", "&Notes"};
    std::array<Menu, 6> mnuNotesMenu{{
        {this, "mnuNotesMenu", "&Add Note", &mnuNotes},
        {this, "mnuNotesMenu", "&Edit Selected Note", &mnuNotes},
        {this, "mnuNotesMenu", "&Delete Selected Note", &mnuNotes},
        {this, "mnuNotesMenu", "Choose Notes Headings", &mnuNotes},
        {this, "mnuNotesMenu", "Recreate Notes Index using First line as title", &mnuNotes},
        {this, "mnuNotesMenu", "Recreate Notes Index using FileName as title", &mnuNotes},
    }};

    Menu mnuSearch{this, "mnuSearch", "&Search"};
    Menu mnuSearchQuick{this, "mnuSearchQuick", "Quick &Find", &mnuSearch};

    Menu mnuView{this, "mnuView", "&View"};
    std::array<Menu, 7> mnuViewMode{{
        {this, "mnuViewMode", "&Home", &mnuView},
        {this, "mnuViewMode", "&Calendar", &mnuView},
        {this, "mnuViewMode", "&Tasks", &mnuView},
        {this, "mnuViewMode", "&Notes", &mnuView},
        {this, "mnuViewMode", "&Contacts", &mnuView},
        {this, "mnuViewMode", "&Staff Planner", &mnuView},
        {this, "mnuViewMode", "&History", &mnuView},
    }};
    Menu mnuViewSep1{this, "mnuViewSep1", "-", &mnuView};
    /// Day, week, fortnight and month, in this order.
    std::array<Menu, 4> mnuViewType{{
        {this, "mnuViewType", "Daily View", &mnuView},
        {this, "mnuViewType", "Weekly View", &mnuView},
        {this, "mnuViewType", "Fortnightly View", &mnuView},
        {this, "mnuViewType", "Monthly View", &mnuView},
    }};
    Menu mnuViewSep2{this, "mnuViewSep2", "-", &mnuView};
    Menu mnuViewGrid{this, "mnuViewGrid", "View Events in Grid mode", &mnuView};
    Menu mnuViewList{this, "mnuViewList", "View Events in List mode", &mnuView};
    Menu mnuViewSep3{this, "mnuViewSep3", "-", &mnuView};
    Menu mnuViewBrowser{this, "mnuViewBrowser", "Read Past Diary notes in Browser", &mnuView};
    Menu mnuViewRefresh{this, "mnuViewRefresh", "&Refresh", &mnuView};

    Menu mnuTools{this, "mnuTools", "T&ools"};
    Menu mnuOptScrapPaper{this, "mnuOptScrapPaper", "Scrap Paper", &mnuTools};
    Menu mnuToolsCalendar{this, "mnuToolsCalendar", "Perpetual Calendar", &mnuTools};
    Menu mnuToolsTobrin{this, "mnuToolsTobrin", "Date Calculator", &mnuTools};
    Menu mnuToolsQuickAdd{this, "mnuToolsQuickAdd", "Quick Event Adder (Favourites)", &mnuTools};
    Menu mnuToolsTimesheet{this, "mnuToolsTimesheet", "Produce Timesheet &Report", &mnuTools};
    Menu mnuToolsSep1{this, "mnuToolsSep1", "-", &mnuTools};
    Menu mnuViewSetup{this, "mnuViewSetup", "&Diary Options...", &mnuTools};
    Menu mnuOptionsDisplay{this, "mnuOptionsDisplay", "&Choose Colours...", &mnuTools};
    Menu mnuOptionsListView{this, "mnuOptionsListView", "&Diary Headings in List mode...", &mnuTools};
    Menu mnuOptionsTaskHeadings{this, "mnuOptionsTaskHeadings", "&Task Headings...", &mnuTools};

    Menu mnuServer{this, "mnuServer", "Se&rver"};
    Menu mnuPingServer{this, "mnuPingServer", "Ping Server", &mnuServer};
    Menu mnuServerLoggon{this, "mnuServerLoggon", "Force Logon to Server", &mnuServer};
    Menu mnuServerLogoff{this, "mnuServerLogoff", "Force Logoff from Server", &mnuServer};
    Menu mnuServerSep1{this, "mnuServerSep1", "-", &mnuServer};
    Menu mnuServerMessages{this, "mnuServerMessages", "&Messages", &mnuServer};
    Menu mnuServerChat{this, "mnuServerChat", "Send a &Message...", &mnuServer};
    Menu mnuServerCheck{this, "mnuServerCheck", "&Check for Messages Now", &mnuServer};

    Menu mnuBeta{this, "mnuBeta", "&Beta"};
    Menu mnuBetaServerEnforce{this, "mnuBetaServerEnforce", "Enforce Confirm save from server", &mnuBeta};
    Menu mnuBetaTestLog{this, "mnuBetaTestLog", "Choose Detailed Logging Level", &mnuBeta};
    Menu mnuBetaReindexTask{this, "mnuBetaReindexTask", "Task File", &mnuBeta};
    Menu mnuBetaRestart{this, "mnuBetaRestart", "Restart Diary (checks server for new version)", &mnuBeta};
    Menu mnuBetaSep1{this, "mnuBetaSep1", "-", &mnuBeta};
    std::array<Menu, 4> mnuBetaTest{{
        {this, "mnuBetaTest", "View Events in Browser", &mnuBeta},
        {this, "mnuBetaTest", "View Tasks in Web Browser", &mnuBeta},
        {this, "mnuBetaTest", "Show info", &mnuBeta},
        {this, "mnuBetaTest", "Dump Event info", &mnuBeta},
    }};

    Menu mnuHelp{this, "mnuHelp", "&Help"};
    Menu mnuHelpContents{this, "mnuHelpContents", "Contents...", &mnuHelp};
    Menu mnuHelpSep1{this, "mnuHelpSep1", "-", &mnuHelp};
    Menu mnuHelpShowcase{this, "mnuHelpShowcase", "Orbidex on the &Web", &mnuHelp};
    Menu mnuHelpSuggest{this, "mnuHelpSuggest", "&Suggest an Improvement", &mnuHelp};
    Menu mnuHelpBugReport{this, "mnuHelpBugReport", "Report a &Bug", &mnuHelp};
    Menu mnuHelpSep2{this, "mnuHelpSep2", "-", &mnuHelp};
    Menu mnuHelpAbout{this, "mnuHelpAbout", "&About Orbidex...", &mnuHelp};

    /// The pop-up menu of the grid (hidden from the menu bar).
    Menu mnuPopupGrid{this, "mnuPopupGrid", "PopupGrid"};
    Menu mnuPopupGridAdd{this, "mnuPopupGridAdd", "&Add Appointment", &mnuPopupGrid};
    Menu mnuPopupGridEdit{this, "mnuPopupGridEdit", "&Edit Appointment", &mnuPopupGrid};
    Menu mnuPopupGridDelete{this, "mnuPopupGridDelete", "&Delete Appointment", &mnuPopupGrid};
    Menu mnuPopupGridReschedule{this, "mnuPopupGridReschedule", "&Reschedule Appointment", &mnuPopupGrid};

    // Navigation
    Toolbar Toolbar1{this, "Toolbar1"};
    ListView lvView{this, "lvView"};  ///< shortcut bar of large icons
    TreeView tv{this, "tv"};          ///< navigation tree

    // The calendar column
    MonthView MonthView1{this, "MonthView1"};  ///< the view's date
    ListView lvCat{this, "lvCat"};             ///< tasks, notes, messages
    ListView lvUsers{this, "lvUsers"};
    Label lblUsers{this, "lblUsers"};
    Label Label1{this, "Label1"};  ///< PC usage totals
    Label Label2{this, "Label2"};  ///< task totals
    Label imgSplitter{this, "imgSplitter"};

    // The main area
    Label lblHeading{this, "lblHeading"};
    FlexGrid gridDays{this, "gridDays"};  ///< time grid and staff grid
    ListView lvDiary{this, "lvDiary"};    ///< event list
    Label imgVert{this, "imgVert"};
    WebBrowser web{this, "web"};  ///< overview and read-only pages
    ListBox lstTasks{this, "lstTasks"};

    StatusBar status{this, "status"};  ///< panel 1 messages, panel 2 the mode
    Timer timerSecond{this, "timerSecond"};

private:
    void placeControls();
    void bindControls();
    /// The menu dispatch: what each entry calls.
    void bindMenus();
    void bindViewMenus();
    void disableEntriesWithoutOperation();
    void bindDrops();
    /// The drag starts once the mouse has moved far enough with the left button down.
    void dragWhenMoved(Control& control, int button, long x, long y);
    /// Makes the cell under the pointer the grid's current one; false when it is no
    /// time slot of a day.
    bool currentCellFromPointer();
    /// The day of the grid's current column: the calendar's in the day view.
    VbDate currentCellDay();
    /// The calendar drawn again for its date, with the months it shows loaded.
    void redrawAfterDrop();

    std::string dragText_;  ///< not "" while an event or a task is dragged out
    long pressX_ = 0;       ///< where the drag's button went down, in twips
    long pressY_ = 0;
    bool movingSplitter_ = false;
    bool movingVert_ = false;
    long grabbedAt_ = 0;      ///< where on the splitter the mouse took hold of it
    std::string lastSecond_;  ///< the time of day at which the timer's body last ran
};

/// The main window, created at its first use.
frmClientDiaryMain& MainForm();
/// Forgets the main window (tests).
void ResetMainForm();

}  // namespace orbidex
