#pragma once
// What a bulk add of events did not do as it was given, for the message at its end.
// Every entry is logged as well.

#include <string>
#include <vector>

#include "diary/cDiaryRecord.h"

namespace orbidex {

class BulkReport {
public:
    void NotAdded(const cDiaryRecord& event, const std::string& why) { note(notAdded_, event, why); }
    void KeptWithOddDate(const cDiaryRecord& event, const std::string& file);
    bool Empty() const { return notAdded_.empty() && oddDates_.empty(); }
    /// "Finished adding n records." and the lists, ten entries of each at most.
    std::string Text(long added) const { return "Finished adding " + std::to_string(added) + " records." + Sections(); }
    /// The lists alone.
    std::string Sections() const;
    /// A list under its title and count, behind an empty line; "" for no entry.
    static std::string Section(const std::string& title, const std::vector<std::string>& list);

private:
    static void note(std::vector<std::string>& list, const cDiaryRecord& event, const std::string& why);

    std::vector<std::string> notAdded_;
    std::vector<std::string> oddDates_;
};

}  // namespace orbidex
