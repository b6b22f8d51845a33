#pragma once
// A made-up diary of many years, written into a data folder: a monthly file for each
// month, each holding a few hundred events of a working office, sorted as a save
// leaves them.  The same arguments always give the same bytes.
//
// Two words are planted at known rates, so that a search can be measured against
// them: "Zanzibar" in one event of 1,500 and "Lunch" in exactly one of 10.  Neither
// appears anywhere else in a line, in any case.

#include <string>

namespace orbidex::bench {

struct GeneratedDiary {
    long files = 0;
    long events = 0;
    long long bytes = 0;
};

/// The rare word and the common one.
inline constexpr const char* kSelectiveTerm = "zanzibar";
inline constexpr const char* kCommonTerm = "lunch";

/// Writes `years` years of monthly files from January of `firstYear` into the data
/// folder `storedDataPath` (ending in "\"), `eventsPerMonth` events each.
GeneratedDiary GenerateDiary(const std::string& storedDataPath, int firstYear, int years, int eventsPerMonth = 500);

}  // namespace orbidex::bench
