#include "dialogs/frmEditEvent.h"

#include <iterator>
#include <utility>

#include "config/clsConfigDiary.h"
#include "dialogs/DialogDates.h"
#include "dialogs/EditorSupport.h"
#include "dialogs/LaunchDocument.h"
#include "dialogs/frmListAndDetailsSubForm.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/ListAndDetails.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

constexpr OleColor kPrivateGrey = 0xC0C0C0;
constexpr OleColor kWhite = 0xFFFFFF;
constexpr OleColor kRed = 255;
constexpr OleColor kBlack = 0;

// The lead times offered for a reminder.  The blanks behind "hour" and "hours" belong
// to the entries: the unit is read from the last seven characters.
const char* const kLeadTimes[] = {"0 minutes",  "5 minutes", "10 minutes", "15 minutes",
                                  "30 minutes", "1 hour   ", "2 hours  ",  "4 hours  "};
constexpr long kFifteenMinutes = 3;

// Indexes of the captions in the label array.
enum LabelIndex {
    kLblTitle = 0,
    kLblStart,
    kLblLength,
    kLblLocation,
    kLblStatus,
    kLblPriority,
    kLblAction,
    kLblReference,
    kLblContact,
    kLblJob,
    kLblURL,
    kLblID,
    kLblReminderWillOccur = 12,
    kLblBeforeStart = 13,
};

// Window sizes, in twips.
constexpr long kLoadWidth = 5600;
constexpr long kLoadHeight = 4400;
constexpr long kNarrowWidth = 4230;
constexpr long kWideWidth = 9000;
constexpr long kToggledHeight = 3695;

// Rows of the two tabs and of the details panel.
constexpr long kRowHeight = 315;
constexpr long kRowStep = 390;

}  // namespace

frmEditEvent::frmEditEvent() : Form("frmEditEvent") {
    Caption = "Edit Diary Event";
    Width = kLoadWidth;
    Height = kLoadHeight;
    placeControls();
    fillLists();
    bindEvents();
}

void frmEditEvent::placeControls() {
    tabEvent.Move(60, 30, 4110, 330);
    tabEvent.Tabs.Add("Event", "event");
    tabEvent.Tabs.Add("Advanced", "advanced");
    placeEventTab(frameEvents(0));
    placeAdvancedTab(frameEvents(1));
    placeDetailsPanel();

    cmdOK.Caption = "Save and Close";
    cmdOK.Move(60, 3090, 1330, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(1450, 3090, 760, 375);
    cmdDetails.Caption = "Details >>";
    cmdDetails.Move(2270, 3090, 930, 375);
    cmdTemplate.Caption = "Templates...";
    cmdTemplate.Move(3240, 3090, 960, 375);
}

void frmEditEvent::placeEventTab(Frame& tab) {
    tab.Move(90, 360, 4020, 2620);
    auto row = [&tab](Control& control, long top, long left, long width) {
        control.SetContainer(&tab);
        control.Move(left, top, width, kRowHeight);
    };
    auto caption = [this, &tab](int index, const std::string& text, long top) {
        Label& label = lbl(index);
        label.Caption = text;
        label.SetContainer(&tab);
        label.Move(60, top + 45, 700, 255);
    };

    txtDetails.SetContainer(&tab);
    txtDetails.Move(60, 60, 3900, 1000);
    txtDetails.ToolTipText = "What the event is about: Enter twice saves it";
    const long start = 1130;
    caption(kLblStart, "Start:", start);
    row(dtPickDate, start, 780, 1740);
    row(dtPickTime, start, 2580, 1380);
    caption(kLblLength, "Length", start + kRowStep);
    row(txtLength, start + kRowStep, 780, 700);
    row(cmbLengthUnits, start + kRowStep, 1540, 800);
    caption(kLblLocation, "Location :", start + 2 * kRowStep);
    row(cmbActionToPerform, start + 2 * kRowStep, 780, 3180);

    const long reminder = start + 3 * kRowStep;
    chkRemind.Caption = "Reminder";
    row(chkRemind, reminder, 60, 1100);
    row(cmbReminder, reminder, 1200, 1440);
    Label& before = lbl(kLblBeforeStart);
    before.Caption = "before the start";
    before.SetContainer(&tab);
    before.Move(2700, reminder + 45, 1300, 255);

    dtPickDate.Format = dtpCustom;
    dtPickDate.CustomFormat = "ddd d-MMM-yyyy";
    dtPickTime.Format = dtpTime;
    cmbLengthUnits.Style = vbComboDropdownList;
    cmbReminder.Style = vbComboDropdownList;
}

void frmEditEvent::placeAdvancedTab(Frame& tab) {
    tab.Move(90, 360, 4020, 2620);
    const long fieldLeft = 1860;
    const long fieldWidth = 2100;
    auto place = [&tab](Control& control, long left, long top, long width, long height) {
        control.SetContainer(&tab);
        control.Move(left, top, width, height);
    };
    auto caption = [this, &place](int index, const std::string& text, long left, long top, long width) {
        Label& label = lbl(index);
        label.Caption = text;
        place(label, left, top + 45, width, 255);
    };

    caption(kLblReminderWillOccur, "Reminder will occur", 60, 15, 3900);
    place(DTPicker1, 60, 330, 2000, kRowHeight);
    place(DTPicker2, 2120, 330, 1500, kRowHeight);
    DTPicker1.Format = dtpCustom;
    DTPicker1.CustomFormat = "ddd d-MMM-yyyy";
    DTPicker2.Format = dtpTime;

    long top = 780;
    chkPrivate.Caption = "Private";
    place(chkPrivate, 60, top, 1000, kRowHeight);
    caption(kLblStatus, "Status", 1140, top, 660);
    place(txtStatus, fieldLeft, top, fieldWidth, kRowHeight);
    const std::pair<int, const char*> rows[] = {
        {kLblPriority, "Priority"}, {kLblAction, "Action (type of event)"}, {kLblReference, "Reference"}};
    ComboBox* const lists[] = {&cmbPriority, &cmbAction, &cmbReference};
    for (int row = 0; row < 3; ++row) {
        top += kRowStep;
        caption(rows[row].first, rows[row].second, 60, top, 1780);
        place(*lists[row], fieldLeft, top, fieldWidth, kRowHeight);
    }
    top += kRowStep;
    caption(kLblID, "ID :", 60, top, 1780);
    place(lblID, fieldLeft, top + 45, fieldWidth, 255);
}

void frmEditEvent::placeDetailsPanel() {
    // Two columns: the short fields just behind the tabs, so that the window at its
    // first width shows them whole; the long ones further right, for the wide window.
    const long shortLeft = 4320;
    const long shortWidth = 1200;
    const long longLeft = 5640;
    const long longWidth = 3240;
    auto caption = [this](int index, const std::string& text, long left, long top, long width) {
        Label& label = lbl(index);
        label.Caption = text;
        label.Move(left, top, width, 255);
    };

    caption(kLblContact, "ContactID", shortLeft, 120, shortWidth);
    txtContact.Move(shortLeft, 375, shortWidth, kRowHeight);
    caption(kLblJob, "Job to Do ID", shortLeft, 750, shortWidth);
    txtJobToDo.Move(shortLeft, 1005, shortWidth, kRowHeight);

    caption(kLblTitle, "Title :", longLeft, 120, longWidth);
    txtTitle.Move(longLeft, 375, longWidth, kRowHeight);
    txtTitle.Locked = true;
    caption(kLblURL, "Full Filename or website address for this event", longLeft, 750, longWidth);
    lbl(kLblURL).WordWrap = true;
    lbl(kLblURL).Height = 450;
    txtURL.Move(longLeft, 1245, longWidth, 900);
    txtURL.OLEDropMode = vbOLEDropManual;
    txtURL.ToolTipText = "Drop a file or a link here";
    cmdLaunch.Caption = "Run file";
    cmdLaunch.ToolTipText = "Launch this file or URL";
    cmdLaunch.Move(longLeft + longWidth - 1110, 2220, 1110, 375);
}

void frmEditEvent::fillLists() {
    cmbLengthUnits.AddItem("min");
    cmbLengthUnits.AddItem("hrs");
    for (const char* priority : {"High", "Normal", "Low"}) cmbPriority.AddItem(priority);
}

void frmEditEvent::bindEvents() {
    tabEvent.onClick = [this] { tabEvent_Click(); };
    chkRemind.onClick = [this] { chkRemind_Click(); };
    cmbReminder.onClick = [this] { cmbReminder_Click(); };
    dtPickTime.onChange = [this] { dtPickTime_Change(); };
    dtPickDate.onChange = [this] { dtPickDate_Change(); };
    chkPrivate.onClick = [this] { chkPrivate_Click(); };
    txtDetails.onChange = [this] { txtDetails_Change(); };
    txtDetails.onKeyDown = [this](int& keyCode, int shift) { txtDetails_KeyDown(keyCode, shift); };
    txtURL.onOLEDragDrop = [this](const DataObject& data) { txtURL_OLEDragDrop(data); };
    cmdDetails.onClick = [this] { cmdDetails_Click(); };
    cmdLaunch.onClick = [this] { cmdLaunch_Click(); };
    cmdTemplate.onClick = [this] { cmdTemplate_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmEditEvent::Form_Load() {
    answered_ = false;
    ShowFirstTab(tabEvent, frameEvents);
    cmbReminder.Clear();
    for (const char* lead : kLeadTimes) cmbReminder.AddItem(lead);
    cmbReminder.ListIndex = kFifteenMinutes;
    cmbLengthUnits.ListIndex = 0;
    txtDetails.Text = "";

    Width = kLoadWidth;
    Height = kLoadHeight;

    if (glbConfig.dialogEditing) {
        Caption = "Editing event in Diary";
    } else {
        Caption = "Adding event to Diary";
        if (gintcur < 0) {
            platform().MsgBox("Warning - adding event without id being generated - BUG", vbOKOnly, "");
            return;
        }
    }
    showRecord();
    reminder().Show(gCurrentEvent.DateRemind, gCurrentEvent.TimeRemind);
    caretToEndOfDetails();
    platform().SetBusyCursor(false);
}

void frmEditEvent::showRecord() {
    const cDiaryRecord& event = gCurrentEvent;
    lblID.Caption = event.ID;
    dtPickDate.Value = DateOfText(event.DateEvent);
    dtPickTime.Value = AtTimeOfDay(dtPickDate.Value, TimeOfText(event.TimeEvent));
    txtDetails.Text = event.details;
    txtURL.Text = event.URL;
    txtContact.Text = event.ContactID;
    txtLength.Text = event.length;
    txtJobToDo.Text = event.JobToDoID;

    const bool isPrivate = event.status == "Private";
    chkPrivate.Value = isPrivate ? vbChecked : vbUnchecked;
    txtDetails.BackColor = isPrivate ? kPrivateGrey : kWhite;
    txtStatus.Text = event.status;
    cmbPriority.Text = event.Priority;

    cmbAction.Clear();
    glbEvents.DisplayReferences(cmbReference);
    glbEvents.DisplayLocations(cmbActionToPerform);
    cmbReference.Text = event.Reference;
    cmbActionToPerform.Text = event.ActionToPerform;
    if (cmbAction.ListCount() == 0)
        for (const char* action : kDefaultActions) cmbAction.AddItem(action);
    cmbAction.Text = event.Action;
}

ReminderControls frmEditEvent::reminder() {
    return {chkRemind,  DTPicker1, DTPicker2, cmbReminder, lbl(kLblReminderWillOccur), lbl(kLblBeforeStart),
            dtPickDate, dtPickTime};
}

void frmEditEvent::Form_Unload(int&) {
    if (answered_) return;
    glbConfig.dataChanged = false;
    glbConfig.dialogCancelled = true;
}

void frmEditEvent::tabEvent_Click() {
    ShowSelectedTab(tabEvent, frameEvents);
}

void frmEditEvent::chkRemind_Click() {
    reminder().TickClicked();
}

void frmEditEvent::cmbReminder_Click() {
    reminder().ApplyLeadTime();
}

void frmEditEvent::dtPickTime_Change() {
    reminder().ApplyLeadTime();
}

void frmEditEvent::dtPickDate_Change() {
    DTPicker1.Value = dtPickDate.Value;
}

void frmEditEvent::chkPrivate_Click() {
    const bool isPrivate = chkPrivate.Value == vbChecked;
    txtDetails.BackColor = isPrivate ? kPrivateGrey : kWhite;
    txtTitle.BackColor = isPrivate ? kPrivateGrey : kWhite;
    txtTitle.ForeColor = isPrivate ? kRed : kBlack;
    caretToEndOfDetails();
}

void frmEditEvent::txtDetails_Change() {
    txtTitle.Text = orbidex::Left(txtDetails.Text(), 80);
}

void frmEditEvent::txtDetails_KeyDown(int& keyCode, int) {
    if (!SecondEnterSaves(txtDetails, keyCode)) return;
    cmdOK_Click();
    if (IsUnloaded()) keyCode = 0;  // the Enter saved; it adds no line
}

void frmEditEvent::txtURL_OLEDragDrop(const DataObject& data) {
    txtURL.Text = DroppedAddress(data);
}

void frmEditEvent::cmdDetails_Click() {
    ToggleDetails(*this, cmdDetails, kWideWidth, kNarrowWidth, kToggledHeight);
}

void frmEditEvent::cmdLaunch_Click() {
    LaunchDocument(txtURL.Text);
}

void frmEditEvent::cmdTemplate_Click() {
    // The fields of an event template, in the order the form shows them.
    struct TemplateField {
        const char* caption;
        int fieldType;
        long listWidth;
        long maxLength;
        long height;
    };
    static constexpr TemplateField kFields[] = {{"ID     ", fieldKey, 0, 6, 255},
                                                {"Name     ", fieldText, 1760, 50, 315},
                                                {"Length     ", fieldText, 550, 10, 315},
                                                {"Category ", fieldText, 1440, 140, 315},
                                                {"Details  ", fieldRichText, 1440, 5550, 2400}};
    // The layout of the template's fields: left of the controls, width, row step.
    constexpr long kTemplateLeft = 500, kTemplateWidth = 5000, kTemplateRowStep = 3 * 120;

    ListAndDetailsDefinition& definition = gListAndDetails;
    definition = ListAndDetailsDefinition();
    definition.formTitle = "EventTemplate";
    definition.fileName = gStrDataPath + "template_event.dat";
    definition.numFields = 5;
    definition.keyField = 0;
    definition.delimiter = kFieldDelimiter;
    long row = 0;
    for (size_t i = 0; i < std::size(kFields); ++i) {
        ListAndDetailsField& field = definition.fields[i];
        const TemplateField& shown = kFields[i];
        field = {shown.caption, shown.fieldType, shown.maxLength, kTemplateLeft, 120 + row * kTemplateRowStep,
                 kTemplateWidth, shown.height, shown.listWidth};
        if (shown.fieldType != fieldKey) ++row;
    }

    // The list keeps its own changes: the event's answer stays as it was.
    const bool eventChanged = glbConfig.dataChanged;
    frmListAndDetailsSubForm templates;
    templates.BuildForm();
    platform().DoEvents();
    templates.LoadFileToListBox();
    templates.Show(true);
    glbConfig.dataChanged = eventChanged;
}

void frmEditEvent::cmdCancel_Click() {
    answered_ = true;
    glbConfig.dataChanged = false;
    glbConfig.dialogCancelled = true;
    glbLog.log("User clicked cancel in frmEditEvent", 3);
    Unload();
}

void frmEditEvent::cmdOK_Click() {
    // Reminders are looked for only in the month file of their day.
    const bool remind = chkRemind.Value == vbChecked;
    if (remind && YearAndMonth(DTPicker1.Value) != YearAndMonth(dtPickDate.Value)) {
        platform().MsgBox("The remind date must be within the same month as the date of the event", vbOKOnly, "");
        return;
    }
    cDiaryRecord& event = gCurrentEvent;
    if (glbConfig.dialogEditing) {
        if (lblID.Caption().empty()) platform().MsgBox("ID missing ?", vbOKOnly, "");
        event.ID = lblID.Caption;
    } else {
        if (gintcur < 0) platform().MsgBox("Error ", vbOKOnly, "");
        const std::string file = glbEvents.GetDiaryFileNameForDate(dtPickDate.Value);
        event.ID = glbEvents.getUniqueID(file, dtPickDate.Value, kFieldDelimiter);
    }

    // A status typed by hand gives way to the tick box.
    txtStatus.Text = chkPrivate.Value == vbChecked ? "Private" : "";
    event.status = txtStatus.Text;
    event.DateEvent = FormatDate(dtPickDate.Value, "yyyymmdd");
    event.TimeEvent = FormatDate(dtPickTime.Value, "hhmm");
    event.details = ReplaceLineBreaks(txtDetails.Text);
    event.URL = ReplaceLineBreaks(txtURL.Text);
    event.ContactID = txtContact.Text;
    event.length = cmbLengthUnits.ListIndex == 0 ? txtLength.Text() : Trim(CStr(Val(txtLength.Text) * 60));
    event.Action = cmbAction.Text;
    event.Reference = cmbReference.Text;
    event.JobToDoID = txtJobToDo.Text;
    event.ActionToPerform = cmbActionToPerform.Text;
    event.Priority = cmbPriority.Text;
    event.DateRemind = remind ? FormatDate(DTPicker1.Value, "yyyymmdd") : "";
    event.TimeRemind = remind ? FormatDate(DTPicker2.Value, "hhmm") : "";

    answered_ = true;
    glbConfig.dataChanged = true;
    glbConfig.dialogCancelled = false;
    glbLog.log("Edit form: cmdOK_Click - final record = " +
               event.FormatDiaryRecordAsCSV(kFieldDelimiter, kFieldDelimiter));
    Unload();
}

void frmEditEvent::caretToEndOfDetails() {
    txtDetails.SelStart = Len(txtDetails.Text());
    txtDetails.SetFocus();
}

}  // namespace orbidex
