#include "dialogs/frmEventMultiple.h"

#include <vector>

#include "config/clsConfigDiary.h"
#include "dialogs/DialogDates.h"
#include "dialogs/frmDateGenerator.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

constexpr long kNarrowWidth = 4200;
constexpr long kWideWidth = 6570;
constexpr long kHeight = 5000;

// The minutes of a time of day, read back from its "hh:nn:ssPM" text.
long minutesOfDay(VbDate time) {
    const std::string text = FormatDate(time, "hh:nn:ssPM");
    return ParseHourText(text) * 60L + ValLong(Mid(text, 4, 2));
}

}  // namespace

frmEventMultiple::frmEventMultiple() : Form("frmEventMultiple") {
    Caption = "Adding Mulitple Day Event";
    Width = kNarrowWidth;
    Height = kHeight;
    placeControls();
    placeDetailsPanel();
    bindEvents();
}

void frmEventMultiple::placeControls() {
    auto caption = [this](int index, const std::string& text, long left, long top, long width) {
        Label& label = lbl(index);
        label.Caption = text;
        label.Move(left, top, width, 255);
    };
    // The long captions take a smaller type, to stand whole in the narrow window.
    caption(0, "Details of Event (this will be repeated for all days)", 120, 120, 3960);
    lbl(0).FontSize = 7;
    txtDetails.Move(120, 390, 3900, 315);
    caption(1, "Action (type of event)", 120, 795, 1800);
    cmbAction.Move(1920, 750, 2100, 315);
    cmbAction.Style = vbComboDropdownList;

    caption(2, "from ", 120, 1185, 480);
    dtPickTime.Move(600, 1140, 1560, 315);
    dtPickTime.Format = dtpTime;
    caption(3, "to", 2280, 1185, 240);
    dtPickEndTime.Move(2520, 1140, 1500, 315);
    dtPickEndTime.Format = dtpTime;

    chkRemindOnce.Caption = "Remind Me ONCE before the first event starts at";
    chkRemindOnce.Move(60, 1590, 4080, 285);
    chkRemindOnce.FontSize = 7;
    dtPickFirstRemindDate.Move(360, 1890, 2040, 315);
    dtPickFirstRemindDate.Format = dtpCustom;
    dtPickFirstRemindDate.CustomFormat = "ddd d-MMM-yyyy";
    dtPickFirstRemindTime.Move(2460, 1890, 1560, 315);
    dtPickFirstRemindTime.Format = dtpTime;
    // The box starts clear, and so the first reminder's pickers start greyed.
    dtPickFirstRemindDate.Enabled = false;
    dtPickFirstRemindTime.Enabled = false;
    chkRemind.Caption = "The remaining events will remind me on each day at";
    chkRemind.Move(60, 2340, 4080, 285);
    chkRemind.FontSize = 7;
    DTPicker2.Move(360, 2640, 1560, 315);
    DTPicker2.Format = dtpTime;

    cmdPickDates.Caption = "Choose Dates";
    cmdPickDates.Move(120, 3120, 1260, 375);
    lvDateList.Move(1500, 3120, 2520, 1140);
    lvDateList.ColumnHeaders.Add("Dates", 2160);
    lvDateList.FullRowSelect = true;

    cmdOK.Caption = "OK";
    cmdOK.Move(120, 4380, 1000, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(1200, 4380, 1000, 375);
    cmdDetails.Caption = "Details >>";
    cmdDetails.Move(3020, 4380, 1000, 375);
}

void frmEventMultiple::placeDetailsPanel() {
    constexpr long left = 4260;
    constexpr long width = 2160;
    long top = 120;
    auto field = [this, &top](int index, const std::string& text, TextBox& box) {
        Label& label = lbl(index);
        label.Caption = text;
        label.Move(left, top, width, 255);
        box.Move(left, top + 270, width, 315);
        top += 675;
    };
    field(4, "Action to Perform", txtActionToPerform);
    field(5, "Reference", txtReference);
    field(6, "Contact", txtContact);
    field(7, "File Reference or URL", txtURL);
    field(8, "Status", txtStatus);
}

void frmEventMultiple::bindEvents() {
    cmbAction.onClick = [this] { cmbAction_Click(); };
    chkRemind.onClick = [this] { chkRemind_Click(); };
    chkRemindOnce.onClick = [this] { chkRemindOnce_Click(); };
    cmdDetails.onClick = [this] { cmdDetails_Click(); };
    cmdPickDates.onClick = [this] { cmdPickDates_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmEventMultiple::Form_Load() {
    answered_ = false;
    dtPickTime.Value = TimeSerial(9, 0, 0);
    dtPickEndTime.Value = TimeSerial(17, 0, 0);
    dtPickFirstRemindDate.Value = Now();
    dtPickFirstRemindTime.Value = Now();
    txtURL.Text = "";
    txtContact.Text = GetPCUserName();
    cmbAction.Clear();
    for (const char* action : {"General Reminder", "General Multiday Event", "Holidays", "Travel"})
        cmbAction.AddItem(action);
    cmbAction.ListIndex = 0;
    cmdDetails.Caption = "Details >>";
    Width = kNarrowWidth;
    Height = kHeight;
}

void frmEventMultiple::Form_Unload(int&) {
    if (!answered_) glbConfig.dialogCancelled = true;
}

void frmEventMultiple::cmbAction_Click() {
    const VbDate quarterBefore = DateAdd("n", -15, dtPickTime.Value);
    if (cmbAction.ListIndex == 0) {
        // A reminder of the day: it lasts five minutes and reminds each day.
        if (lvDateList.ListItems.Count() > 0) dtPickFirstRemindDate.Value = DateOfText(lvDateList.ListItems(1).Tag);
        dtPickEndTime.Value = DateAdd("n", 5, dtPickTime.Value);
        dtPickFirstRemindTime.Value = quarterBefore;
        chkRemind.Value = vbChecked;
    } else {
        dtPickEndTime.Value = TimeSerial(17, 0, 0);
        chkRemind.Value = vbUnchecked;
        chkRemindOnce.Value = vbChecked;
    }
    DTPicker2.Value = quarterBefore;
}

void frmEventMultiple::chkRemind_Click() {
    txtStatus.Text = chkRemind.Value == vbChecked ? "Multiday Reminder" : "Multiday Event";
}

void frmEventMultiple::chkRemindOnce_Click() {
    const bool on = chkRemindOnce.Value == vbChecked;
    dtPickFirstRemindDate.Enabled = on;
    dtPickFirstRemindTime.Enabled = on;
    // 15 taken as a number is 15 days: the time of day stays that of the start.
    if (on) DTPicker2.Value = DateAdd("d", -15, dtPickTime.Value);
}

void frmEventMultiple::cmdDetails_Click() {
    const bool widen = cmdDetails.Caption == "Details >>";
    cmdDetails.Caption = widen ? "Details <<" : "Details >>";
    Width = widen ? kWideWidth : kNarrowWidth;
    Height = kHeight;
}

void frmEventMultiple::cmdPickDates_Click() {
    frmDateGenerator generator;
    generator.Load();
    if (lvDateList.ListItems.Count() > 0) generator.dtPickDate.Value = DateOfText(lvDateList.ListItems(1).Tag);
    generator.Show(true);
    lvDateList.ListItems.Clear();
    for (long row = 1; row <= generator.lvDateList.ListItems.Count(); ++row) {
        const ListItem& date = generator.lvDateList.ListItems(row);
        lvDateList.ListItems.Add(date.Text).Tag = date.Tag();
    }
}

void frmEventMultiple::cmdOK_Click() {
    if (txtDetails.Text().empty()) {
        platform().MsgBox("Enter some details for this event", vbOKOnly, "");
        return;
    }
    if (lvDateList.ListItems.Count() == 0) cmdPickDates_Click();
    const long count = lvDateList.ListItems.Count();
    if (platform().MsgBox("Do you want to create these " + CStr(count) + " events ?", vbYesNo,
                          "Confirm Create Multiple Events") != vbYes)
        return;

    platform().SetBusyCursor(true);
    const std::string length = CStr(minutesOfDay(dtPickEndTime.Value) - minutesOfDay(dtPickTime.Value));
    std::vector<cDiaryRecord> records(static_cast<size_t>(count) + 1);
    for (long row = 1; row <= count; ++row) {
        cDiaryRecord& event = records[static_cast<size_t>(row)];
        // The event line is one line: a line break in the text would split it.
        event.details = ReplaceLineBreaks(txtDetails.Text);
        event.Action = cmbAction.Text;
        event.ActionToPerform = txtActionToPerform.Text;
        event.ContactID = txtContact.Text;
        event.URL = txtURL.Text;
        event.status = txtStatus.Text;
        event.Reference = txtReference.Text;
        event.DateEvent = lvDateList.ListItems(row).Tag;
        event.TimeEvent = FormatDate(dtPickTime.Value, "hhmm");
        event.length = length;
        if (chkRemind.Value == vbChecked) {
            event.DateRemind = event.DateEvent;
            event.TimeRemind = FormatDate(DTPicker2.Value, "hhmm");
        }
        if (row == 1 && chkRemindOnce.Value == vbChecked) {
            event.DateRemind = event.DateEvent;
            event.TimeRemind = FormatDate(dtPickFirstRemindTime.Value, "hhmm");
        }
    }
    glbEvents.AddBulkRecords(records, count);
    platform().SetBusyCursor(false);
    answered_ = true;
    Unload();
}

void frmEventMultiple::cmdCancel_Click() {
    answered_ = true;
    glbConfig.dialogCancelled = true;
    Unload();
}

}  // namespace orbidex
