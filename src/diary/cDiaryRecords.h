#pragma once
// The event store: the events of the month on screen (and of a second month when a
// view crosses a month end) in one array, the monthly files they come from and go
// back to, and the identifiers of new events.
//
// A month lives in gStrDataPath + "D" + yyyymm + ".dat", one event line per line.  It
// is loaded whole and saved whole; additions from elsewhere are appended.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/OleColor.h"
#include "diary/cDiaryRecord.h"
#include "platform/Platform.h"

namespace orbidex {

class BulkReport;
class ComboBox;
class FlexGrid;
class ListBox;
class ListItem;
class ListView;
class MonthView;
class StatusBar;
class clsTimeSlots;
class frmClientDiaryMain;
class frmSearchResults;

class cDiaryRecords {
public:
    // The monthly files

    /// Checks the data folder (asking the user if it is unusable), completes
    /// gStrDataPath and the names of the other data files, and makes sure this
    /// month's file exists.  An empty `settingsFile` means gStrIniFile.
    void InitDiary(frmClientDiaryMain* mainForm, const std::string& settingsFile);
    /// Asks for a folder when `path` cannot be written; a usable answer is stored in
    /// the settings for the next start.  The running program keeps its path.
    void ValidateDataPath(std::string path);
    /// The month's file name; a missing file of a month of the diary's years is
    /// created holding one line end.
    std::string GetDiaryFileNameForDate(VbDate date);
    /// Loads the month of `date` whole, and the neighbouring month when the view of
    /// 7 or 14 days crosses a month end.  The selected event stays selected, found
    /// again by its ID; none when it is no longer loaded.
    void LoadDiaryData(VbDate date);
    /// True when the last load was of `date`, from the file of its month in the data
    /// folder of now, and that file has not changed on disk since: loading `date`
    /// again would give what is loaded.
    bool HasLoaded(VbDate date) const;
    /// Adds the events of the month of `date` behind those loaded.
    void LoadExtraDiaryData(VbDate date);
    /// Full names of the monthly files, from index 1: every file of the data folder
    /// (`allFiles`), or those of the months from `fromDate` to `toDate`, which are
    /// created if missing.  Returns the count.
    long CreateDiaryDataFileList(VbDate fromDate, VbDate toDate, std::vector<std::string>& files, bool allFiles);
    /// Reads a monthly file into `records` from index 1, leaving out blank lines and,
    /// if asked, usage events.  Without `leaveOutUsage` only the result is of use.
    /// Returns the number of events kept + 1.
    long ReadDiaryFileToArray(const std::string& file, std::vector<cDiaryRecord>& records, bool leaveOutUsage);
    /// Reloads the month shown in the calendar when the file changed on disk since
    /// the last load or append.
    void CheckDataFileAndReloadIfNeccesary();
    /// Rewrites the loaded month from the array, sorted, after its guards; two loaded
    /// months go to their two files.  `mainForm` may be null.
    void SaveDiaryArray(std::string_view delimiter, frmClientDiaryMain* mainForm);
    void SaveMultipleMonthsDiaryDataToDisk();
    /// Writes every event in memory to D000101.DAT in the data folder.
    void SaveDumpOfDiaryRecords();
    /// The name the network side gives a monthly file: D200406.dat becomes X200406.dat.
    std::string GetNetworkFileName(const std::string& localFile) const;
    /// The older way to the data folder: an INI file beside the program, then the
    /// settings file, then the user.
    std::string GetDiaryDataPath();
    /// The modification time and length of the file at the last load or append.
    const std::string& FileStamp() const { return fileStamp_; }

    // The event array.  Its upper bound is the number of events loaded, so its top
    // slot is empty; slots emptied by changes stay until the next reload.

    /// The array's upper bound.
    long totEvents() const { return static_cast<long>(slots_.size()) - 1; }
    /// The record at `index`.  An empty slot or an index beyond the array gives a
    /// fresh blank record that is not stored; a negative index also shows a message.
    cDiaryRecord& events(long index);
    bool IsEmptySlot(long index) const;
    /// Sets the upper bound, keeping the contents; new slots are empty.
    void SetUpperBound(long upperBound);
    /// Puts a new blank record at `index`, which must lie within the array.
    cDiaryRecord& CreateRecordAt(long index);

    // Identifiers

    /// "D" + the year + `number` in 8 digits: the text form of a grid cell's event.
    std::string IdConvertToString(VbDate date, long number) const;
    /// The number in the last 8 characters of an identifier.
    int32_t IdConvertToLong(const std::string& id) const;
    /// The next free identifier of `date` in `file`.
    std::string getUniqueID(const std::string& file, VbDate date, std::string_view delimiter);
    /// The identifier after `lastID` for `date`: its sequence + 1 on the same date, 1 on another.
    std::string createNextID(VbDate date, const std::string& lastID);
    /// The letter that starts the identifiers of a file whose first line is `firstLine`.
    static std::string idLetterOf(const std::string& firstLine, const std::string& file);
    /// The test of an event already in a file: a line holds it when its date, time
    /// and text stand in the line as fields, wherever they stand.
    class EventInLine {
    public:
        EventInLine(const std::string& date, const std::string& time, const std::string& details);
        bool HeldBy(const std::string& line) const;

    private:
        std::string date_, time_, details_;  ///< each between two delimiters
    };

    // Finding, adding and taking out

    /// The first index with this ID, or -1.
    long SelectDiaryRecordFromID(const std::string& id);
    /// The index of the loaded event with this ID whose date lies in the month
    /// `yyyymm`, or -1 (also for an empty ID): an ID is unique within its month's
    /// file only, and two months may be loaded.
    long SelectDiaryRecordFromIDInMonth(const std::string& id, const std::string& yyyymm) const;
    /// True when gintcur names a loaded event: not a blank record, not an empty slot.
    bool HasSelectedEvent() const;
    /// The event the row of a day view's cell names, if it is the event the cell
    /// shows (on the column's day, with the cell's text); or -1.
    long SelectDiaryRecordFromDayViewRow(const FlexGrid& grid, long row, long col);
    /// The event of that date and details, at that time if there is one; or -1.
    long SelectDiaryRecordIndex(VbDate date, const std::string& time, const std::string& details);
    /// Appends an event from elsewhere to the file of its month under a new ID,
    /// unless the file in hand already holds it.  The array is untouched unless
    /// `reload`.  True when the event was appended; false when it was there already,
    /// blank, outside the diary's years, or the file could not be appended to.
    bool AddDiaryRecord(cDiaryRecord& record, bool reload = false, bool noServerCopy = false);
    /// True when a line of gStrDiaryDataFile holds the three texts as fields.
    bool DoesDiaryRecordAlreadyExist(const std::string& date, const std::string& time, const std::string& details);
    /// Shifts the events above `index` down one place, shortens the array and saves.
    /// The selection stays on its event, and is none when that is the one taken out.
    void DeleteDiaryEventFromArray(long index);
    /// Kept for its callers: the array stays in file order.
    void SortDiaryArray();

    // What the user does to one event: add, edit, reschedule, move, delete.  Each
    // works on gCurrentEvent through its dialog, saves the month and, for a meeting,
    // tells the other users through the change request file.

    /// A new event on `date` at `time` ("" for now).  Without `details` the event
    /// editor opens; with them the event is added as it stands.  A cancelled dialog
    /// leaves the file untouched.
    void DiaryEventAdd(VbDate date, const std::string& time, const std::string& details);
    /// Opens the event editor on the selected event and stores the result.
    void DiaryEventEdit();
    /// Opens the reschedule dialog on the selected event and stores the result.
    void DiaryEventReschedule();
    /// Appends `newRecord` to its own month and then takes `oldRecord` out of its
    /// month, whose file is rewritten; that month is then loaded.  When the append
    /// fails the old event stays and its month is loaded.  True when it moved.
    bool DiaryEventMove(const cDiaryRecord& oldRecord, cDiaryRecord newRecord);
    /// Deletes the selected event, after asking unless `noQuestion`; a meeting may
    /// be cancelled on the other users' diaries.
    void DiaryEventDelete(bool noQuestion);
    /// Adds `records` (from index 1 to `count`) to their months, each monthly file
    /// read and written once, and reports what was added and what was not: an event
    /// whose date is no date of the diary, or that its month holds already.
    void AddBulkRecords(std::vector<cDiaryRecord>& records, long count);
    /// The same without the message: what was not added goes into `report`; the
    /// answer is the number of events added.
    long AddBulkRecords(std::vector<cDiaryRecord>& records, long count, BulkReport& report);
    /// Imports a comma-separated file (X.CSV leaves its events as X.DAT beside it)
    /// or a file of event lines (a name ending in ".DAT").
    void ImportData(std::string file);
    /// Appends a change of a meeting to the change request file: a header line, the
    /// old event and the new one.
    void SendEventChanges(const cDiaryRecord& oldRecord, const cDiaryRecord& newRecord);
    /// Fills the list with the common locations, then the user's own in their place.
    void DisplayLocations(ComboBox& control);
    /// Fills the list with the common references, then the user's own in their place.
    void DisplayReferences(ComboBox& control);
    void DisplayLocations(ListView& control);
    void DisplayReferences(ListView& control);

    // The calendar side of the main window: the time grid and the event list

    /// Prepares the empty grid or list for the present GridOrList setting.
    void DiaryTopLevelInitDisplay(frmClientDiaryMain& form);
    /// Lays out the empty grid for `days` days from `startDate`.
    void InitGridForTimedSchedule(clsTimeSlots& slots, FlexGrid& grid, VbDate startDate, int days,
                                  frmClientDiaryMain& form);
    /// The one entry that draws the calendar side for the view around `date`.
    void DiaryTopLevelDisplay(VbDate date);
    /// Places the events of `days` days from `date` into the grid.
    void DisplayScheduleInGrid(clsTimeSlots& slots, FlexGrid& grid, VbDate date, int days, bool showFileEvents,
                               ListBox* fileList);
    /// Copies of the loaded events of one day, in array order; returns their count.
    long FilterEventsFromArray(VbDate date, std::vector<cDiaryRecord>& events, bool hideFileEvents,
                               const std::string& keyword);
    /// Makes the clicked cell's event the current one; true for a blank cell.
    bool GetEventFromGrid(FlexGrid& grid, MonthView& calendar, StatusBar& statusBar);
    /// Moves the view to `date`, loading what it needs.
    void CalendarDateClicked(frmClientDiaryMain& form, VbDate date);
    /// The raw lines of the month's file without the file events; returns their count.
    long GetMonthsEvents(VbDate date, std::vector<std::string>& lines);
    /// The first date the view of DayWeekMonth days shows for `date`.
    VbDate GetDisplayStartDate(VbDate date);
    /// Lays out the columns of the event list from the header record.
    void InitListViewForTimedSchedule(clsTimeSlots& slots, const cDiaryRecord& header, ListView& list);
    /// Fills the event list with the events of `days` days from `date`.
    void DisplayScheduleInListView(ListView& list, VbDate date, int days, const cDiaryRecord& header);
    /// Gives the item's text and its first `columns` sub-items one fore colour.
    void SetListViewColumnsColour(ListItem& item, long columns, OleColor colour);

    // Search over the monthly files and, through the server, other users' diaries;
    // the result rows go into a frmSearchResults (src/search).

    /// Lists in `form` the events of every monthly file that hold `text` and lie
    /// between the two dates ("yyyymmdd", both included), usage events only when
    /// asked for.  `date` is the moment of the search.
    void SearchForEvent(frmSearchResults& form, VbDate date, const std::string& text, const std::string& dateStart,
                        const std::string& dateEnd, bool includePCUsage, bool includeFileUsage,
                        bool caseSensitive = false);
    /// The raw lines of the files that hold `text` (looked for before any line is
    /// parsed), whose event lies between the two dates and is not a usage event left
    /// out.  `found` gets their number.  An unreadable file ends the search there.
    std::vector<std::string> SearchListOfDiaryFiles(bool caseSensitive, const std::vector<std::string>& fileList,
                                                    const std::string& dateEnd, const std::string& dateStart,
                                                    const std::string& text, long& found, bool includeFileUsage,
                                                    bool includePCUsage);
    /// The same over every D*.dat of the data folder, without regard to case and
    /// without the PC usage and file lines.
    std::vector<std::string> grepDiaryFilesForString(const std::string& text, long& found,
                                                     const std::string& dateStart, const std::string& dateEnd);
    /// Asks the server for the events of `users` (a list of names, each followed by
    /// ", ") and lists them in `form`.
    void SearchForNetworkEvents(frmSearchResults& form, const std::string& text, const std::string& users,
                                const std::string& dateStart, const std::string& dateEnd);
    /// Adds the row of an event to the result list, with its kind's icon, and counts it.
    ListItem& AddDiaryRecordToSearchResult(const cDiaryRecord& record, ListView& list, const std::string& user);
    /// The same with a cell for each field whose heading in the list mode is shown.
    ListItem& AddDiaryRecordToSearchResult_USER_DEFINED(const cDiaryRecord& record, ListView& list,
                                                        const std::string& user);
    /// Whether the upper-cased `text` holds the keywords (the first found, or with
    /// `matchAll` as many as the list's upper bound); the excluded words can only
    /// make the answer true, never false.
    static bool IsKeywordInText(const std::string& text, const std::vector<std::string>& keywords, bool matchAll,
                                const std::vector<std::string>& excludeWords, bool matchAllExcludes);
    /// The index of the event behind the selected line of a list of file events, or -1.
    long GetCurrentEventByClickingOnFileList(ListBox& list);

    /// Writes the month's page of the events in `records` (from index 0) to `htmlFile`;
    /// unless `always`, a page newer than the monthly file is left as it is.
    void ConvertEventsToHTML(const std::vector<cDiaryRecord>& records, long count, const std::string& htmlFile,
                             VbDate date, const std::string& includeFile, bool always);

    // Statistics of the view and of a search.  The drawings count the events they
    // show, apart from the usage and file events, which they count separately; a
    // search counts what it found.

    /// Events in the view and their minutes.
    int32_t eventsShown() const { return eventsShown_; }
    int32_t totTime() const { return totTime_; }
    void totTime(int32_t minutes) { totTime_ = minutes; }
    /// PC usage and file events in the view and their minutes.
    int32_t usageEvents() const { return usageEvents_; }
    int32_t usageTime() const { return usageTime_; }
    /// Events found by a search.
    int32_t totEventsFound() const { return totEventsFound_; }
    void totEventsFound(int32_t count) { totEventsFound_ = count; }
    /// The month number of the date the calendar was last moved to.
    int shownMonth() const { return shownMonth_; }
    /// The grid cell whose event GetEventFromGrid found last (-1 before any).
    long currentGridRow() const { return currentGridRow_; }
    long currentGridCol() const { return currentGridCol_; }

    /// Sets totTime and the found count to 0.
    void ClearTotals();
    /// The view's totals in the status bar and the labels of `form`.
    void DisplayStats(frmClientDiaryMain& form, StatusBar& statusBar, VbDate date);
    /// The sentence of a total ("TOTEVENTS" or "TOTTIME").
    std::string ShowStats(const std::string& what, const std::string& searchText, long days,
                          const std::string& fromDate, const std::string& toDate);

private:
    /// The file's modification time and length as text; "" when it is missing.
    static std::string stampOf(const std::string& file);
    std::string diaryFileName(VbDate date) const;

    long readLinesInto(const std::string& bytes, long from);
    /// The number of events the loads left, also beyond what gIntTotalEvents can hold.
    long loadedCount() const;
    void setTotalEvents(long count);
    void askAboutDuplicates(std::vector<std::string>& lines);
    bool sizeGuardAllows(long upperBound);
    void checkMonthOfFile(frmClientDiaryMain* mainForm);

    // The calendar side
    void clearViewCounters();
    /// Counts a file event that the grid does not place (adding it to `fileList`),
    /// or passes it over; false for an event the grid places.
    bool setAsideFileEvent(const cDiaryRecord& event, bool showFileEvents, ListBox* fileList);
    void placeEventInGrid(const cDiaryRecord& event, clsTimeSlots& slots, FlexGrid& grid, long col, int days);
    void reloadMonthIfNeeded(VbDate date);
    void showPageInBrowser(frmClientDiaryMain& form, VbDate date);

    std::vector<std::unique_ptr<cDiaryRecord>> slots_;
    cDiaryRecord blank_;  ///< what events() gives for a slot that holds nothing
    std::string fileStamp_;
    frmClientDiaryMain* mainForm_ = nullptr;
    std::string settingsFile_;
    int32_t eventsShown_ = 0;
    int32_t totTime_ = 0;
    int32_t usageEvents_ = 0;
    int32_t usageTime_ = 0;
    int32_t totEventsFound_ = 0;
    int shownMonth_ = 0;
    long currentGridRow_ = -1;  ///< the cell whose event GetEventFromGrid found last
    long currentGridCol_ = -1;
};

extern cDiaryRecords glbEvents;

/// An index as gintcur holds it: -1 for none and for one beyond its 16 bits.
int16_t AsCurrentIndex(long index);

}  // namespace orbidex
