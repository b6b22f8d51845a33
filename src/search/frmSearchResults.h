#pragma once
// The window of search results: one row for each event, task or note found, with
// the user, date, time, type and text.  A double click (or Enter) opens what the row
// stands for; the list can be sorted by any column and saved to a file.  The window
// stays open beside the diary while it fills.

#include <array>
#include <string>

#include "controls/Form.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/StatusBar.h"

namespace orbidex {

class frmSearchResults : public Form {
public:
    frmSearchResults();

    void Form_Load() override;
    void Form_Resize() override;
    /// Gives the text column the width the other columns leave, at least its own.
    void FitDetailsColumn();

    /// Opens the task, the note or the event behind the selected row.
    void lvResults_DblClick();
    void lvResults_KeyDown(int& keyCode, int shift);
    /// Sorts by the column, ascending or descending in turn.
    void lvResults_ColumnClick(ColumnHeader& column);
    void mnuResultsClear_Click();
    void mnuResultsExit_Click();
    /// 0: comma-separated, 1: tab-separated, 2: no delimiter; asks for the file.
    void mnuResultsSaveAs_Click(int kind);

    /// Opens the event of `row` in the diary, loading its month, which may be of
    /// another year; an event that cannot be found is told in a box.
    void ViewRecordInSearchResults(ListItem& row);
    /// Writes the list with its heading to `file`; every cell but the last of a row
    /// is followed by `delimiter`.
    void SaveResults(const std::string& file, const std::string& delimiter);

    ListView lvResults{this, "lvResults"};
    StatusBar status{this, "status"};
    Menu mnuResults{this, "mnuResults", "&Results"};
    std::array<Menu, 3> mnuResultsSaveAs{{
        {this, "mnuResultsSaveAs", "Save as &Comma Separated...", &mnuResults},
        {this, "mnuResultsSaveAs", "Save as &Tab Separated...", &mnuResults},
        {this, "mnuResultsSaveAs", "Save as &Plain Text...", &mnuResults},
    }};
    Menu mnuResultsBar{this, "mnuResultsBar", "-", &mnuResults};
    Menu mnuResultsClear{this, "mnuResultsClear", "C&lear the List", &mnuResults};
    Menu mnuResultsExit{this, "mnuResultsExit", "&Close", &mnuResults};

private:
    /// The box for a row whose event is not in this diary.
    static void tellNoMoreInformation(const ListItem& row);
};

/// The one results window of the program, made at its first use.
frmSearchResults& SearchResultsForm();
void ResetSearchResultsForm();

}  // namespace orbidex
