#pragma once
// Bulk ways in and out of the monthly files.  In: a comma-separated file with a
// heading line becomes a file of event lines beside it, whose events are added to
// their months.  Out: the diary as HTML pages, one per month, each headed by an
// index of every month that has events.

#include <string>
#include <vector>

#include "foundation/VbDate.h"

namespace orbidex {

class cDiaryFileUtils {
public:
    /// Writes the events of the comma-separated `file` (read in Windows-1252, or
    /// converted from UTF-8 or UTF-16) to `eventFile` as event lines, each timed
    /// "0000".  Returns the number of events, or -1 when `eventFile` cannot be
    /// written, which the user is told.
    long convertCSVFiletoRecords(const std::string& file, const std::string& eventFile);
    /// Adds the events of a file of event lines to their months; an event without a
    /// URL gets the file's name as its URL.
    void AddDiaryRecordsFromFile(const std::string& eventFile);
    /// Writes the page of every month that has events, and their index, into the
    /// data folder.  Returns the pages written, in the order of the months.
    std::vector<std::string> ExportDiaryFilesToHTML();

    /// Writes the events of the days from `from` to `to` and the tasks of those
    /// days (the whole diary and every task when `from` is 0) to `file` as one
    /// iCalendar file, and tells the user what it wrote.  False when nothing was
    /// written.
    bool ExportToICalendar(const std::string& file, VbDate from, VbDate to);
    /// Adds the events of an iCalendar file to their months and its to-dos to the
    /// task list, asking first for the dates of repeating events; then shows what was
    /// added and what was not, and why.  An event or a task the diary holds already
    /// is not added again.
    void ImportICalendar(const std::string& file);
};

/// A monthly file's month as "yyyymm": "D" + six digits + ".dat", of the diary's
/// years; "" for the other D*.dat files (tasks, notes, the dump of memory).
std::string MonthOfDiaryFile(const std::string& file);

/// Two dates as the user types them, "yyyy-mm-dd to yyyy-mm-dd"; false for anything
/// else, or when the second comes before the first.
bool ParseDateRange(const std::string& text, VbDate& from, VbDate& to);

extern cDiaryFileUtils glbFileUtils;

/// The name of the index that heads every exported page, in the data folder.
inline constexpr const char* kExportIndexFile = "_include_index.html";

}  // namespace orbidex
