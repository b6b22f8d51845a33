#include "search/frmInfoSearch.h"

#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "network/cComms.h"

namespace orbidex {

namespace {

constexpr int kAnyDate = 0;
constexpr int kPickTheDates = 4;

constexpr int kAllEventTypes = 0;
constexpr int kNormalEventsOnly = 1;
constexpr int kPCUsageLogged = 2;
constexpr int kFileUsageRecorded = 3;

// The height of the window's client area without and with the details, in twips.
constexpr long kChoicesHeight = 2760;
constexpr long kDetailsHeight = 5010;
// What the window adds around its client area (title bar and frame).
constexpr long kWindowFrame = 300;

/// The dates of a choice of cmbDateRange, counted from `today`.
struct DateRange {
    VbDate from;
    VbDate to;
};

DateRange rangeOf(int choice, VbDate today) {
    const VbDate first = DateSerial(1984, 1, 1);
    switch (choice) {
        case 1:
            return {today - 60, today + 15};
        case 2:
            return {today, today + 42};
        case 3:
            return {first, today - 1};
        case kPickTheDates:
            return {DateSerial(Year(today), 1, 1), DateSerial(Year(today), 12, 31)};
        default:
            return {first, DateSerial(2999, 12, 31)};
    }
}

void tick(CheckBox& box, bool ticked) {
    box.Value = ticked ? vbChecked : vbUnchecked;
}

}  // namespace

frmInfoSearch::frmInfoSearch() : Form("frmInfoSearch") {
    Caption = "Search the Diary";
    Width = 7620;
    placeControls();
    bindEvents();
}

void frmInfoSearch::placeControls() {
    auto caption = [](Label& label, const char* text, long left, long top, long width) {
        label.Caption = text;
        label.Move(left, top, width, 255);
    };
    caption(lblDetails, "Look for:", 120, 165, 1260);
    txtDetails.Move(1440, 120, 4440, 345);
    caption(lblEventType, "Kind of event:", 120, 645, 1260);
    cmbEventType.Move(1440, 600, 2640, 315);
    cmbEventType.Style = vbComboDropdownList;
    caption(lblDateRange, "When:", 120, 1065, 1260);
    cmbDateRange.Move(1440, 1020, 2640, 315);
    cmbDateRange.Style = vbComboDropdownList;
    chkAnyDate.Caption = "Any Date";
    chkAnyDate.Move(4140, 1035, 1680, 285);
    caption(lblDate(0), "From:", 120, 1485, 1260);
    DTPicker1(0).Move(1440, 1440, 2040, 315);
    caption(lblDate(1), "To:", 3540, 1485, 420);
    DTPicker1(1).Move(3960, 1440, 1860, 315);
    for (int i = 0; i < 2; ++i) {
        DTPicker1(i).Format = dtpCustom;
        DTPicker1(i).CustomFormat = "ddd d-MMM-yyyy";
    }
    chkPCUsage.Caption = "Search PC usage";
    chkPCUsage.Move(1440, 1890, 2040, 285);
    chkFileUsage.Caption = "Search File usage";
    chkFileUsage.Move(3540, 1890, 2280, 285);
    Check1.Caption = "Cases Sens";
    Check1.Move(1440, 2250, 2040, 285);
    chkLocalFilesOnly.Caption = "Look in Local Files only";
    chkLocalFilesOnly.Move(3540, 2250, 2280, 285);

    cmdSearch.Caption = "&Search";
    cmdSearch.Default = true;
    cmdSearch.Move(6060, 120, 1380, 375);
    cmdCancel.Caption = "Close";
    cmdCancel.Cancel = true;
    cmdCancel.Move(6060, 570, 1380, 375);
    cmdDetails.Caption = "Details >>";
    cmdDetails.Move(6060, 1020, 1380, 375);

    chkAllUsers.Caption = "All Users";
    chkAllUsers.Move(120, 2760, 2400, 285);
    lvUsers.Move(120, 3090, 2400, 1800);
    lvUsers.Checkboxes = true;
    lvUsers.ColumnHeaders.Add("User Name", 2340);
    lblUsers.Move(2640, 2790, 4800, 255);
    lvLocations.Move(2640, 3090, 2340, 1800);
    lvLocations.ColumnHeaders.Add("Locations", 2280);
    lvReferences.Move(5100, 3090, 2340, 1800);
    lvReferences.ColumnHeaders.Add("References", 2280);
    lvFolders.Visible = false;  // the search does not look into folders
    details_ = {&chkAllUsers, &lvUsers, &lblUsers, &lvLocations, &lvReferences};
    for (ListView* list : {&lvUsers, &lvLocations, &lvReferences}) list->FullRowSelect = true;
    showDetails(false);
}

void frmInfoSearch::bindEvents() {
    cmbDateRange.onClick = [this] { cmbDateRange_Click(); };
    cmbEventType.onClick = [this] { cmbEventType_Click(); };
    chkAnyDate.onClick = [this] { chkAnyDate_Click(); };
    chkLocalFilesOnly.onClick = [this] { chkLocalFilesOnly_Click(); };
    chkAllUsers.onClick = [this] { chkAllUsers_Click(); };
    // The kind of event follows the two usage boxes, as they follow it.
    auto kindFromBoxes = [this] {
        const bool pc = chkPCUsage.Value == vbChecked, file = chkFileUsage.Value == vbChecked;
        cmbEventType.ListIndex = pc && file ? kAllEventTypes
                                 : pc       ? kPCUsageLogged
                                 : file     ? kFileUsageRecorded
                                            : kNormalEventsOnly;
    };
    chkPCUsage.onClick = kindFromBoxes;
    chkFileUsage.onClick = kindFromBoxes;
    lvUsers.onItemClick = [this](ListItem& item) { lvUsers_ItemClick(item); };
    lvUsers.onItemCheck = [this](ListItem& item) { lvUsers_ItemCheck(item); };
    lvLocations.onItemClick = [this](ListItem& item) { lvWords_ItemClick(item); };
    lvReferences.onItemClick = [this](ListItem& item) { lvWords_ItemClick(item); };
    cmdDetails.onClick = [this] { cmdDetails_Click(); };
    cmdSearch.onClick = [this] { cmdSearch_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmInfoSearch::Form_Load() {
    cmbEventType.Clear();
    for (const char* kind : {"All Event Types", "Normal Events only", "PC Usage logged", "File usage recorded!"})
        cmbEventType.AddItem(kind);
    cmbEventType.ListIndex = kNormalEventsOnly;
    cmbDateRange.Clear();
    for (const char* range :
         {"Any Date", "Recent Information", "Upcoming Appointments", "Past Information", "Pick the Dates...!"})
        cmbDateRange.AddItem(range);
    cmbDateRange.ListIndex = kAnyDate;

    glbComms.ListUsers(lvUsers, true);
    glbEvents.DisplayLocations(lvLocations);
    glbEvents.DisplayReferences(lvReferences);
    rebuildUserList();
    // The program that runs alone has nobody else's diary to look into.
    tick(chkLocalFilesOnly, true);
    chkLocalFilesOnly.Enabled = NETWORK_STRING != "LOCAL";
    chkLocalFilesOnly_Click();
    txtDetails.SetFocus();
}

void frmInfoSearch::Form_Unload(int&) {
    if (Visible) glbCancelClicked = true;
}

void frmInfoSearch::cmbDateRange_Click() {
    const int choice = static_cast<int>(cmbDateRange.ListIndex);
    tick(chkAnyDate, choice == kAnyDate);
    const DateRange range = rangeOf(choice, Today());
    DTPicker1(0).Value = range.from;
    DTPicker1(1).Value = range.to;
    for (int i = 0; i < 2; ++i) DTPicker1(i).Enabled = choice == kPickTheDates;
}

void frmInfoSearch::cmbEventType_Click() {
    const long kind = cmbEventType.ListIndex;
    tick(chkPCUsage, kind == kAllEventTypes || kind == kPCUsageLogged);
    tick(chkFileUsage, kind == kAllEventTypes || kind == kFileUsageRecorded);
}

void frmInfoSearch::chkAnyDate_Click() {
    const bool any = chkAnyDate.Value == vbChecked;
    for (int i = 0; i < 2; ++i) {
        DTPicker1(i).Enabled = !any;
        lblDate(i).Visible = !any;
    }
    if (any)
        cmbDateRange.ListIndex = kAnyDate;
    else if (cmbDateRange.ListIndex == kAnyDate)
        cmbDateRange.ListIndex = kPickTheDates;
}

void frmInfoSearch::chkLocalFilesOnly_Click() {
    const bool local = chkLocalFilesOnly.Value == vbChecked;
    lvUsers.Enabled = !local;
    chkAllUsers.Enabled = !local;
}

void frmInfoSearch::chkAllUsers_Click() {
    for (long i = 1; i <= lvUsers.ListItems.Count(); ++i) lvUsers.ListItems(i).Checked = chkAllUsers.Value == vbChecked;
    rebuildUserList();
}

void frmInfoSearch::lvUsers_ItemClick(ListItem&) {
    rebuildUserList();
}

void frmInfoSearch::lvUsers_ItemCheck(ListItem& item) {
    rebuildUserList();
    if (item.Checked) tick(chkLocalFilesOnly, false);
}

void frmInfoSearch::lvWords_ItemClick(ListItem& item) {
    txtDetails.Text = item.Text();
}

void frmInfoSearch::cmdDetails_Click() {
    showDetails(cmdDetails.Caption() == "Details >>");
}

void frmInfoSearch::cmdSearch_Click() {
    glbCancelClicked = false;
    Hide();
}

void frmInfoSearch::cmdCancel_Click() {
    glbCancelClicked = true;
    Unload();
}

void frmInfoSearch::rebuildUserList() {
    std::string users;
    for (long i = 1; i <= lvUsers.ListItems.Count(); ++i) {
        const ListItem& item = lvUsers.ListItems(i);
        if (item.Checked) users += item.Tag() + ",";
    }
    lblUsers.Caption = users;
}

void frmInfoSearch::showDetails(bool shown) {
    cmdDetails.Caption = shown ? "Details <<" : "Details >>";
    for (Control* control : details_) control->Visible = shown;
    Height = (shown ? kDetailsHeight : kChoicesHeight) + kWindowFrame;
}

}  // namespace orbidex
