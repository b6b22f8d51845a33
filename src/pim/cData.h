#pragma once
// The table behind tasks, notes and templates: raw text lines bound to one file,
// rewritten whole and sorted at each save, with the identifiers both lists use.
//
// The shape of the line array is a rule the callers depend on:
// - after init: indexes 0 and 1, both empty, Count 0;
// - after LoadFromFile: the file's non-blank lines at 0 to n - 1, index n empty,
//   Count n;
// - after any save, which sorts the whole array: the empty entry first, the lines
//   at 1 to n, index 0 empty.
// So a reader runs from 0 to Count and skips blank entries.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "diary/cDiaryRecord.h"
#include "platform/Platform.h"

namespace orbidex {

class cData {
public:
    const std::string& fname() const { return fname_; }
    void fname(const std::string& name) { fname_ = name; }
    long Count() const { return count_; }
    /// The array's upper bound (its last index).
    long UpperBound() const { return static_cast<long>(lines_.size()) - 1; }

    /// Binds the table to `fileName` and empties it.  An empty name, or a missing
    /// file in a missing folder, is logged and shown; a missing file in an existing
    /// folder is fine.
    void init(const std::string& fileName);
    /// The line at `index`; "" outside the array.
    const std::string& Item(long index) const;
    /// Stores a line; an index outside the array changes nothing.
    void Item(long index, const std::string& line);
    /// Sorts the whole array ascending by plain text comparison.
    void Sort();
    /// Takes out the line at `index` (0 to Count), moving those above it down, and
    /// saves.  Another index is reported and changes nothing.
    void Delete(long index);
    /// Stores the line behind the others and saves.
    void Add(const std::string& line);
    /// The first index from 1 to Count whose line begins with `id`; 0 when none does.
    long FindByID(const std::string& id) const;
    /// Does nothing.
    void Search() {}
    /// Only says that the table has no page of its own.
    void DisplayInHtml();
    /// Sorts, then rewrites the file whole with the non-blank lines from 0 to Count,
    /// each ended by CR LF.
    void SaveToFile();
    /// Reads the file's non-blank lines as they stand.  A missing file is logged and
    /// leaves the table empty.  A file that can't be read is reported and leaves the
    /// table as it was; the answer is then false.
    bool LoadFromFile();

    /// True when the file on disk is not the one the table last read or wrote: its
    /// time or length changed, it appeared or it went.
    bool FileChangedOnDisk() const;
    /// Loads the file again when FileChangedOnDisk, so that a change made outside the
    /// program is not overwritten by the next save.  False when the changed file can't
    /// be read: the caller then makes no change, so that no save overwrites it.
    [[nodiscard]] bool ReloadIfChangedOnDisk();

    // Identifiers: a letter, a date as yyyymmdd, four digits.

    /// "D" + the year of `date` + `number` padded with zeros to 8 digits.
    std::string IdConvertToString(VbDate date, long number) const;
    /// The number in the last 8 characters.
    int32_t IdConvertToLong(const std::string& id) const;
    /// The identifier after `oldID` for `date`: the same letter, the date, and the
    /// old sequence + 1 on the same date or 1 on another.  "" for an empty `oldID`.
    std::string createNextID(VbDate date, const std::string& oldID) const;
    /// The next free identifier of `date` in `file` (see cData.cpp for the rules).
    std::string getUniqueID(const std::string& file, VbDate date, std::string_view delimiter = kFieldDelimiter) const;

private:
    static std::string stampOf(const std::string& file);

    std::string fname_;
    std::vector<std::string> lines_;
    long count_ = 0;
    std::string stamp_;  ///< the file's time and length at the last load or save
};

}  // namespace orbidex
