#include "network/frmBookMeeting.h"

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

constexpr long kLabelLeft = 120;
constexpr long kFieldLeft = 1560;
constexpr long kRowHeight = 315;
constexpr long kLabelWidth = 1380;

}  // namespace

frmBookMeeting::frmBookMeeting() : Form("frmBookMeeting") {
    Caption = "Book a Meeting";
    placeControls();
    dtPickDate.onChange = [this] { dtPickDate_Change(); };
    dtPickTime.onChange = [this] { dtPickTime_Change(); };
    chkRemind.onClick = [this] { chkRemind_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmBookMeeting::placeControls() {
    Move(0, 0, 5400, 4560);
    ScaleWidth = 5280;
    ScaleHeight = 4170;
    lblUsers.Move(kLabelLeft, 120, 5040, 495);
    lblUsers.FontBold = true;
    lblUsers.WordWrap = true;
    struct Row {
        Label& label;
        const char* caption;
        long top;
    } rows[] = {{lblDate, "Date and time", 720},
                {lblLength, "Length", 1140},
                {lblLocation, "Location", 1560},
                {lblDetails, "Details", 1980}};
    for (const Row& row : rows) {
        row.label.Caption = row.caption;
        row.label.Move(kLabelLeft, row.top + 45, kLabelWidth, 255);
    }
    dtPickDate.Format = dtpCustom;
    dtPickDate.CustomFormat = "ddd d-MMM-yyyy";
    dtPickDate.Move(kFieldLeft, 720, 1980, kRowHeight);
    dtPickTime.Format = dtpTime;
    dtPickTime.Move(3660, 720, 1500, kRowHeight);
    txtLength.Move(kFieldLeft, 1140, 720, kRowHeight);
    cmbLengthUnits.Style = vbComboDropdownList;
    cmbLengthUnits.Move(2340, 1140, 1080, kRowHeight);
    cmbLengthUnits.AddItem("min");
    cmbLengthUnits.AddItem("hrs");
    cmbLocation.Move(kFieldLeft, 1560, 3600, kRowHeight);
    txtDetails.MultiLine = true;
    txtDetails.Move(kFieldLeft, 1980, 3600, 900);
    chkRemind.Caption = "Remind me";
    chkRemind.Move(kLabelLeft, 3030, kLabelWidth, kRowHeight);
    DTPicker1.Format = dtpCustom;
    DTPicker1.CustomFormat = "ddd d-MMM-yyyy";
    DTPicker1.Move(kFieldLeft, 3030, 1980, kRowHeight);
    DTPicker2.Format = dtpTime;
    DTPicker2.Move(3660, 3030, 1500, kRowHeight);
    cmdOK.Caption = "&Book";
    cmdOK.Default = true;
    cmdOK.Move(2520, 3600, 1260, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(3900, 3600, 1260, 375);
}

void frmBookMeeting::Form_Load() {
    answered_ = false;
    glbConfig.dialogCancelled = false;
    cmdOK.Enabled = true;
    cmbLengthUnits.ListIndex = 1;
    txtLength.Text = "1";
    glbEvents.DisplayLocations(cmbLocation);
    chkRemind_Click();
    txtDetails.SetFocus();
}

void frmBookMeeting::Form_Unload(int&) {
    if (!answered_) glbConfig.dialogCancelled = true;
}

void frmBookMeeting::dtPickDate_Change() {
    DTPicker1.Value = dtPickDate.Value;
}

void frmBookMeeting::dtPickTime_Change() {
    DTPicker2.Value = dtPickTime.Value;
}

void frmBookMeeting::chkRemind_Click() {
    const bool remind = chkRemind.Value == vbChecked;
    DTPicker1.Enabled = remind;
    DTPicker2.Enabled = remind;
}

void frmBookMeeting::cmdOK_Click() {
    platform().SetBusyCursor(true);
    cDiaryRecord record;
    record.DateEvent = FormatDate(dtPickDate.Value, "yyyymmdd");
    record.TimeEvent = FormatDate(dtPickTime.Value, "hhmm");
    record.details = ReplaceLineBreaks(txtDetails.Text);
    if (const std::string problems = record.Validation(); !problems.empty()) {
        platform().MsgBox(problems, vbOKOnly, "Invalid Meeting Request");
        platform().SetBusyCursor(false);
        return;
    }
    // The receivers answer whoever stands here.
    record.ContactID = glbComms.GetMyUserName();
    record.length = cmbLengthUnits.ListIndex == 0 ? txtLength.Text() : Trim(CStr(Val(txtLength.Text) * 60));
    record.ActionToPerform = cmbLocation.Text;
    const bool remind = chkRemind.Value == vbChecked;
    record.DateRemind = remind ? FormatDate(DTPicker1.Value, "yyyymmdd") : "";
    record.TimeRemind = remind ? FormatDate(DTPicker2.Value, "hhmm") : "";
    record.Reference = "Meeting";
    record.UserCreatedBy = glbComms.GetMyUserName();
    record.Action = "Meeting request for " + glbTickedUsers;
    glbComms.MakeMeetingBooking(record, glbTickedUsers);
    cmdOK.Enabled = false;
    platform().SetBusyCursor(false);
    answered_ = true;
    glbConfig.dialogCancelled = false;
    Unload();
}

void frmBookMeeting::cmdCancel_Click() {
    answered_ = true;
    glbConfig.dialogCancelled = true;
    Unload();
}

}  // namespace orbidex
