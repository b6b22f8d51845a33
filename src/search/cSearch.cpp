#include "search/cSearch.h"

#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "search/frmInfoSearch.h"
#include "search/frmSearchResults.h"

namespace orbidex {

void cSearch::init() {
    *this = cSearch();
    startDate = DateSerial(1984, 1, 1);
    EndDate = DateSerial(2999, 12, 31);
    results_ = &SearchResultsForm();
}

bool cSearch::ShowSearchInputForm() {
    frmInfoSearch form;
    input_ = &form;
    glbCancelClicked = true;  // until Search is pressed
    form.Show(true);
    const bool asked = !glbCancelClicked;
    if (asked) {
        searchString = form.txtDetails.Text;
        startDate = form.DTPicker1(0).Value;
        EndDate = form.DTPicker1(1).Value;
        localOnly_ = form.chkLocalFilesOnly.Value == vbChecked ? 1 : 0;
        users_ = form.lblUsers.Caption;
        includePCUsage_ = form.chkPCUsage.Value == vbChecked;
        includeFileUsage_ = form.chkFileUsage.Value == vbChecked;
        caseSensitive_ = form.Check1.Value == vbChecked;
        form.Unload();
    }
    input_ = nullptr;
    return asked;
}

void cSearch::PerformSearch() {
    if (results_ == nullptr) init();
    frmSearchResults& form = *results_;
    const std::string text = searchString;
    const std::string from = FormatDate(startDate, "yyyymmdd");
    const std::string to = FormatDate(EndDate, "yyyymmdd");

    ListView& list = form.lvResults;
    list.Sorted = false;  // rows go in as they are found
    list.ListItems.Clear();
    list.ColumnHeaders.Clear();
    list.ColumnHeaders.Add("User", localOnly_ != 0 ? 0 : 1300);  // a local search has one user
    list.ColumnHeaders.Add("Date", 1200);
    list.ColumnHeaders.Add("Time", 660);
    list.ColumnHeaders.Add("Type", 1500);  // "Event - Private" whole
    list.ColumnHeaders.Add("Details", 3870);
    list.ColumnHeaders.Add("", 0);  // what a row needs beyond the visible
    form.FitDetailsColumn();

    form.Caption = "Searching for " + text;
    platform().SetBusyCursor(true);
    form.Show(false);
    platform().DoEvents();
    glbSearching = true;

    if (localOnly_ != 0) {
        glbTasks.Search(list, text, caseSensitive_);
        glbNotes.Search(list, text, caseSensitive_);
        glbEvents.SearchForEvent(form, Now(), text, from, to, includePCUsage_, includeFileUsage_, caseSensitive_);
        totFound = list.ListItems.Count();
        totTime = glbEvents.totTime();
        const std::string found = CStr(totFound);
        form.Caption = form.Caption() + (totFound > 0 ? " - found " + found + " records " : " - no records found");
        form.status.Panels(1).Text =
            "Spent " + FormatMinutes(totTime) + " minutes on " + (text.empty() ? "<find all>" : text) + " ";
        form.status.Panels(2).Text = "Found " + found + " items";
    } else {
        glbEvents.SearchForNetworkEvents(form, text, users_, from, to);
        totFound = glbEvents.totEventsFound();
        totTime = glbEvents.totTime();
    }
    platform().SetBusyCursor(false);
    glbSearching = false;
}

}  // namespace orbidex
