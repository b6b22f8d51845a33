#pragma once
// Bulk ways in and out of the monthly files.  In: a comma-separated file with a
// heading line becomes a file of event lines beside it, whose events are added to
// their months.  Out: the diary as HTML pages, one per month, each headed by an
// index of every month that has events.

#include <string>
#include <vector>

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
};

extern cDiaryFileUtils glbFileUtils;

/// The name of the index that heads every exported page, in the data folder.
inline constexpr const char* kExportIndexFile = "_include_index.html";

}  // namespace orbidex
