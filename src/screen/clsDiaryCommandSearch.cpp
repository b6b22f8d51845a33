// The search command: the search form, then the results window filling beside the
// diary.
#include "foundation/ProgramState.h"
#include "screen/clsDiaryCommand.h"
#include "screen/frmClientDiaryMain.h"
#include "search/cSearch.h"

namespace orbidex {

void clsDiaryCommand::Search() {
    // The window runs while the results come in; a second search waits for the first.
    if (glbSearching) {
        if (form_ != nullptr) form_->status.Panels(1).Text = "A search is still running";
        return;
    }
    timerOn(false);
    cSearch search;
    search.init();
    if (search.ShowSearchInputForm()) search.PerformSearch();
    timerOn(true);
}

}  // namespace orbidex
