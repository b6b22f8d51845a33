#pragma once
// The controller of the main window: the present mode, what each mode shows and
// hides, the tool bar, the tree, the shortcut bar, the status bar and the layout.

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace orbidex {

class FlexGrid;
class cDiaryRecord;
class frmClientDiaryMain;

class clsDiaryScreen {
public:
    void setForm(frmClientDiaryMain& form) { form_ = &form; }
    /// The one-time set-up of the window: tree, shortcut bar, tool bar, status bar,
    /// the window's place from the settings file; then the window is shown and the
    /// first view drawn.
    void drawForm(frmClientDiaryMain& form);
    /// Draws the first view: an empty calendar for today, then today's events.
    void InitDiaryScreen();
    /// Shows `mode` ("HOME", "CALENDAR", "TASK", ...); the present mode again only
    /// with `force`.
    void SwitchMode(const std::string& mode, bool force = false);
    /// Makes the tool bar's buttons once; `showText` shows their captions.
    void CreateToolbarButtons(bool showText);
    /// Presses the tool bar's view button that matches the days the view shows.
    void PressViewButton();
    /// The state of the server connection on the tool bar and the status bar.
    void showStatus();
    /// The title the companion program shows for this one.
    std::string DisplayCaption();
    /// The present date and time in the companion's format.
    std::string DisplayTime();
    /// A line about work in progress in the status bar, drawn at once.
    void ShowProgress(const std::string& text);
    /// Shares the grid's width among its day columns (when Autosize is 1).
    void ResizeGridColumns(FlexGrid& grid);
    /// Lays out the visible controls in the window's client area.
    void resize();

    /// The present mode.
    const std::string& Mode() const { return mode_; }

    /// Draws the staff planner from the local results file: the ticked users of
    /// lvUsers over the days the calendar's selection or the view setting gives.
    void DisplayStaffEvents();

    // Reminders.  The reminder of an event or a task is due when its date is today
    // and its time lies between the last check and now, both included.
    /// Shows every reminder due now that has not been shown yet, and stores the time
    /// of this check in the settings file.
    void CheckReminders();
    /// The lines of today's month file and of the task file that mention `today`
    /// (yyyymmdd) anywhere, PC file lines left out, at `lines`[1] to [`count`].
    void grepReminders(const std::string& today, std::vector<std::string>& lines, long& count);
    /// Beeps and shows the sticky note for `record` (as the settings ask), and
    /// writes its key to reminded.log, unless the log holds the key already.
    void ShowReminder(const cDiaryRecord& record);
    /// Whether a line of `logFile` is exactly `key`; false when there is no file.
    static bool HasReminderAlreadyBeenDisplayed(const std::string& logFile, const std::string& key);

    // The overview page
    /// The title of the overview: the user's name in a client, then the date, and
    /// with `withTime` the time.
    std::string GetOverViewTitle(bool withTime) const;
    /// In the overview, writes the page again when the day, today's or tomorrow's
    /// month file or the task file changed since it was written.
    void RefreshOverviewIfStale();

    // The borders the splitters move (twips); kept for the run only.
    long ColumnWidth() const { return columnWidth_; }
    void SetColumnWidth(long width);
    long BrowserHeight() const { return browserHeight_; }
    void SetBrowserHeight(long height);

    // Values the companion keeps in the shared settings file.
    std::string TimeFormat;   ///< format of DisplayTime
    int16_t WorkingFlag = 0;  ///< 0 while the user is away from the desk

private:
    void drawTree();
    void drawShortcuts();
    void drawStatusBar();
    void showBars();
    void setUpMode(const std::string& mode);
    void setUpHome();
    void setUpCalendar();
    void setUpTasks();
    void setUpNotes();
    void setUpStaff();
    void setUpMessages();
    void setUpFiles();
    void setUpMoney();
    void toolbarForMode(const std::string& mode);
    void selectTreeNode(const std::string& key);
    /// The waiting page in the browser pane, then the overview written and shown.
    void showOverview();
    void writeWaitingPage(const std::string& file);
    void writeOverview(const std::string& file);
    /// Logs `message` at level 0 the first time only in this run that `what` is told.
    void logOnce(const std::string& what, const std::string& message);

    frmClientDiaryMain* form_ = nullptr;
    std::string mode_;
    long columnWidth_ = 0;    ///< 0: the month calendar's own width
    long browserHeight_ = 0;  ///< 0: a third of the main area
    // The day and the stamps of the files the overview on screen was written from.
    std::string overviewSources_;
    // What the minute's reminder scan has logged once in this run.
    std::set<std::string> loggedOnce_;
    bool drawingStaff_ = false;  ///< the staff planner is being drawn
};

extern clsDiaryScreen glbScreen;

}  // namespace orbidex
