#pragma once
// One search from start to end: the search form asks what to look for, then the
// results window opens at once and fills with the tasks, notes and events of this
// diary that hold the text, or with other users' events through the server.

#include <cstdint>
#include <string>

#include "platform/Platform.h"

namespace orbidex {

class frmInfoSearch;
class frmSearchResults;

class cSearch {
public:
    /// A new search: no text, all dates, this diary only, no usage events; the
    /// program's results window.
    void init();
    /// Fills the results window with what was asked for.
    void PerformSearch();
    /// Shows the search form; true when the user pressed Search, and then its
    /// choices are taken over.
    bool ShowSearchInputForm();

    int32_t totTime = 0;  ///< minutes of the events found
    long totFound = 0;    ///< rows found
    VbDate EndDate = 0;
    VbDate startDate = 0;
    std::string searchString;
    frmSearchResults* ResultsForm() const { return results_; }
    frmInfoSearch* InputForm() const { return input_; }

private:
    frmSearchResults* results_ = nullptr;
    frmInfoSearch* input_ = nullptr;  ///< while it is shown
    int16_t localOnly_ = 1;
    std::string users_;  ///< the chosen users, each followed by ","
    bool includePCUsage_ = false;
    bool includeFileUsage_ = false;
    bool caseSensitive_ = false;
};

}  // namespace orbidex
