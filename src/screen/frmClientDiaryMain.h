#pragma once
// The main window: one mode at a time, its controls driven by clsDiaryScreen and
// its handlers dispatching to clsDiaryCommand.

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
    frmClientDiaryMain() : Form("frmClientDiaryMain") {}

    /// Closing the window by any means ends the program through CommandExit.
    void Form_Unload(int& cancel) override;

    // Menus (the bar in this order; the grid's pop-up menu is hidden)
    Menu mnuFile{this, "mnuFile", "&File"};
    Menu mnuApp{this, "mnuApp", "&Appointments"};
    Menu mnuTask{this, "mnuTask", "&Tasks"};
    Menu mnuNotes{this, "mnuNotes", "&Notes"};
    Menu mnuSearch{this, "mnuSearch", "&Search"};
    Menu mnuView{this, "mnuView", "&View"};
    Menu mnuViewBrowser{this, "mnuViewBrowser", "Read Past Diary notes in Browser", &mnuView};
    Menu mnuTools{this, "mnuTools", "T&ools"};
    Menu mnuServer{this, "mnuServer", "Se&rver"};
    Menu mnuBeta{this, "mnuBeta", "&Beta"};
    Menu mnuHelp{this, "mnuHelp", "&Help"};
    Menu mnuPopupGrid{this, "mnuPopupGrid", "PopupGrid"};

    // Navigation
    Toolbar Toolbar1{this, "Toolbar1"};
    ListView lvView{this, "lvView"};  ///< shortcut bar of large icons
    TreeView tv{this, "tv"};          ///< navigation tree

    // The calendar column
    MonthView MonthView1{this, "MonthView1"};  ///< the view's date
    ListView lvCat{this, "lvCat"};             ///< tasks, notes, messages
    ListView lvUsers{this, "lvUsers"};
    Label lblUsers{this, "lblUsers"};

    // The main area
    Label lblHeading{this, "lblHeading"};
    FlexGrid gridDays{this, "gridDays"};  ///< time grid and staff grid
    ListView lvDiary{this, "lvDiary"};    ///< event list
    WebBrowser web{this, "web"};          ///< overview and read-only pages
    Label Label1{this, "Label1"};         ///< PC usage totals
    Label Label2{this, "Label2"};         ///< task totals
    ListBox lstTasks{this, "lstTasks"};

    StatusBar status{this, "status"};  ///< panel 1 messages, panel 2 the mode
    Timer timerSecond{this, "timerSecond"};
};

/// The main window, created at its first use.
frmClientDiaryMain& MainForm();
/// Forgets the main window (tests).
void ResetMainForm();

}  // namespace orbidex
