#include "dialogs/frmEditTask.h"

#include <algorithm>

#include "config/clsConfigDiary.h"
#include "controls/LoadFileToListBox.h"
#include "dialogs/DialogDates.h"
#include "dialogs/EditorSupport.h"
#include "dialogs/LaunchDocument.h"
#include "dialogs/frmTemplateEdit.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cTask.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

const char* const kStatuses[] = {"Not Started",
                                 "In Progress",
                                 "Waiting for available funds",
                                 "Waiting for other Task to finish",
                                 "Waiting on someone else",
                                 "Deferred",
                                 "Completed"};

// The lead times of the reminder (and of the time to complete, which offers them
// without reading them).  The blanks behind "hour" and "hours" belong to the
// entries; the "day" entries move nothing.
const char* const kLeadTimes[] = {"0 minutes", "10 minutes", "15 minutes", "30 minutes", "45 minutes", "1 hour   ",
                                  "2 hours  ", "3 hours  ",  "4 hours  ",  "5 hours  ",  "6 hours  ",  "8 hours  ",
                                  "1 day",     "2 days ",    "3 days ",    "4 days ",    "5 days "};
constexpr long kTwoHours = 6;

// A first character "1" marks an urgent task.
const char* const kPriorities[] = {"1 - Urgent", "2 - Normal", "3 - Low"};

// Indexes of the captions in the label array.
enum LabelIndex {
    kLblDue = 1,
    kLblLength,
    kLblCost,
    kLblStatus,
    kLblPriority,
    kLblAction,
    kLblReference,
    kLblContact,
    kLblJob,
    kLblURL,
    kLblID,
    kLblReminderWillOccur = 12,
    kLblBefore = 13,
};

// Window sizes, in twips.
constexpr long kLoadWidth = 5600;
constexpr long kLoadHeight = 4400;
constexpr long kNarrowWidth = 4085;
constexpr long kWideWidth = 9000;
constexpr long kToggledHeight = 3695;

// The tabs fit the narrow window; rows of the tabs and the details panel.
constexpr long kTabWidth = 3840;
constexpr long kTabHeight = 2800;
constexpr long kRowHeight = 315;
constexpr long kRowStep = 390;

}  // namespace

frmEditTask::frmEditTask() : Form("frmEditTask") {
    Caption = "Edit Task";
    Width = kLoadWidth;
    Height = kLoadHeight;
    placeControls();
    fillLists();
    bindEvents();
}

void frmEditTask::placeControls() {
    tabEvent.Move(60, 30, kTabWidth + 60, 330);
    tabEvent.Tabs.Add("Task", "task");
    tabEvent.Tabs.Add("Advanced", "advanced");
    placeTaskTab(frameEvents(0));
    placeAdvancedTab(frameEvents(1));
    placeDetailsPanel();

    // The four buttons stand whole in the narrow window in a smaller type.
    const long top = 360 + kTabHeight + 80;
    const struct {
        CommandButton* button;
        const char* caption;
        long width;
    } buttons[] = {{&cmdOK, "Save and Close", 1290},
                   {&cmdCancel, "Cancel", 690},
                   {&cmdDetails, "Details >>", 900},
                   {&cmdTemplate, "Templates...", 990}};
    long left = 60;
    for (const auto& [button, caption, width] : buttons) {
        button->Caption = caption;
        button->FontSize = 7;
        button->Move(left, top, width, 375);
        left += width + 30;
    }
    cmdCancel.Cancel = true;

    cmdDebug.Caption = "Fill all fields";
    for (Control* unused : std::initializer_list<Control*>{&cmdDebug, &lstProducts, &lstReference, &chkPrivate})
        unused->Visible = false;
}

void frmEditTask::placeTaskTab(Frame& tab) {
    tab.Move(90, 360, kTabWidth, kTabHeight);
    auto place = [&tab](Control& control, long left, long top, long width) {
        control.SetContainer(&tab);
        control.Move(left, top, width, kRowHeight);
    };
    auto caption = [this, &tab](int index, const std::string& text, long top, long width) {
        Label& label = lbl(index);
        label.Caption = text;
        label.SetContainer(&tab);
        label.Move(60, top + 45, width, 255);
    };

    txtDetails.SetContainer(&tab);
    txtDetails.Move(60, 60, kTabWidth - 120, 820);
    txtDetails.ToolTipText = "What the task is: Enter twice saves it";

    caption(kLblDue, "Date Task is Due by:", 905, kTabWidth - 120);
    place(dtPickDate, 60, 1215, 2100);
    place(dtPickTime, 2220, 1215, kTabWidth - 2280);
    dtPickDate.Format = dtpCustom;
    dtPickDate.CustomFormat = "ddd d-MMM-yyyy";
    dtPickTime.Format = dtpTime;

    const long fieldLeft = 1740;
    long top = 1215 + kRowStep;
    caption(kLblLength, "Time to complete  :", top, fieldLeft - 60);
    place(txtLength, fieldLeft, top, 540);
    place(cmbLength, fieldLeft + 600, top, kTabWidth - fieldLeft - 660);
    top += kRowStep;
    caption(kLblCost, "Cost :", top, fieldLeft - 60);
    place(txtCost, fieldLeft, top, 1200);
    txtCost.Text = "$0.00";

    top += kRowStep;
    chkRemind.Caption = "Set Reminder";
    place(chkRemind, 60, top, fieldLeft - 60);
    place(cmbReminder, fieldLeft, top, 1320);
    Label& before = lbl(kLblBefore);
    before.Caption = "before";
    before.SetContainer(&tab);
    before.Move(fieldLeft + 1380, top + 45, kTabWidth - fieldLeft - 1440, 255);
    cmbLength.Style = vbComboDropdownList;
    cmbReminder.Style = vbComboDropdownList;
}

void frmEditTask::placeAdvancedTab(Frame& tab) {
    tab.Move(90, 360, kTabWidth, kTabHeight);
    auto place = [&tab](Control& control, long left, long top, long width, long height) {
        control.SetContainer(&tab);
        control.Move(left, top, width, height);
    };
    auto caption = [this, &place](int index, const std::string& text, long top, long width) {
        Label& label = lbl(index);
        label.Caption = text;
        place(label, 60, top + 45, width, 255);
    };

    caption(kLblReminderWillOccur, "Reminder to start task will occur on", 15, kTabWidth - 120);
    place(DTPicker1, 60, 330, 2100, kRowHeight);
    place(DTPicker2, 2220, 330, kTabWidth - 2280, kRowHeight);
    DTPicker1.Format = dtpCustom;
    DTPicker1.CustomFormat = "ddd d-MMM-yyyy";
    DTPicker2.Format = dtpTime;

    // The status takes a whole row: its entries are long.
    long top = 780;
    caption(kLblStatus, "Status", top, 660);
    place(cmbStatus, 780, top, kTabWidth - 840, kRowHeight);
    const long fieldLeft = 1860;
    const struct {
        int label;
        const char* caption;
        ComboBox* list;
    } rows[] = {{kLblPriority, "Priority", &cmbPriority},
                {kLblAction, "Action (type of task)", &cmbAction},
                {kLblReference, "Reference", &cmbReference}};
    for (const auto& row : rows) {
        top += kRowStep;
        caption(row.label, row.caption, top, fieldLeft - 120);
        place(*row.list, fieldLeft, top, kTabWidth - fieldLeft - 60, kRowHeight);
    }
    top += kRowStep;
    caption(kLblID, "ID :", top, fieldLeft - 120);
    place(lblID, fieldLeft, top + 45, kTabWidth - fieldLeft - 60, 255);
}

void frmEditTask::placeDetailsPanel() {
    // Two columns: the short fields just behind the tabs, so that the window at its
    // first width shows them whole; the address further right, for the wide window.
    const long shortLeft = 4080;
    const long shortWidth = 1380;
    const long longLeft = 5580;
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

    caption(kLblURL, "Full Filename or website address for this event", longLeft, 120, longWidth);
    lbl(kLblURL).WordWrap = true;
    lbl(kLblURL).Height = 450;
    txtURL.Move(longLeft, 615, longWidth, 900);
    txtURL.OLEDropMode = vbOLEDropManual;
    txtURL.ToolTipText = "Drop a file or a link here";
    cmdLaunch.Caption = "Run file";
    cmdLaunch.ToolTipText = "Launch this file or URL";
    cmdLaunch.Move(longLeft + longWidth - 1110, 1590, 1110, 375);
}

void frmEditTask::fillLists() {
    for (const char* priority : kPriorities) cmbPriority.AddItem(priority);
}

void frmEditTask::bindEvents() {
    tabEvent.onClick = [this] { tabEvent_Click(); };
    chkRemind.onClick = [this] { chkRemind_Click(); };
    cmbReminder.onClick = [this] { cmbReminder_Click(); };
    dtPickTime.onChange = [this] { dtPickTime_Change(); };
    dtPickDate.onChange = [this] { dtPickDate_Change(); };
    txtDetails.onKeyDown = [this](int& keyCode, int shift) { txtDetails_KeyDown(keyCode, shift); };
    txtURL.onOLEDragDrop = [this](const DataObject& data) { txtURL_OLEDragDrop(data); };
    cmdDetails.onClick = [this] { cmdDetails_Click(); };
    cmdLaunch.onClick = [this] { cmdLaunch_Click(); };
    cmdTemplate.onClick = [this] { cmdTemplate_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmEditTask::Form_Load() {
    answered_ = false;
    ShowFirstTab(tabEvent, frameEvents);
    cmbStatus.Clear();
    for (const char* status : kStatuses) cmbStatus.AddItem(status);
    cmbStatus.ListIndex = 0;
    for (ComboBox* list : {&cmbReminder, &cmbLength}) {
        list->Clear();
        for (const char* lead : kLeadTimes) list->AddItem(lead);
        list->ListIndex = kTwoHours;
    }
    txtDetails.Text = "";
    Width = kLoadWidth;
    Height = kLoadHeight;

    const cTask& task = gCurrentTask;
    if (glbConfig.dialogEditing) {
        Caption = "Editing Task Details";
        dtPickDate.Value = DateOfText(task.DateCreated);
        dtPickTime.Value = AtTimeOfDay(dtPickDate.Value, TimeOfText(task.timeCreated));
    } else {
        Caption = "Adding Task";
        dtPickDate.Value = Now();
        dtPickTime.Value = Now();
    }
    showTask();
    reminder().Show(gCurrentTask.RemindDate, gCurrentTask.RemindTime);
    txtDetails.SelStart = 0;
    txtDetails.SetFocus();
}

void frmEditTask::showTask() {
    const cTask& task = gCurrentTask;
    lblID.Caption = task.ID;
    txtDetails.Text = task.details;
    txtURL.Text = task.UrlID;
    txtContact.Text = task.ContactID;
    if (task.length.empty()) {
        // A slot of the calendar's grid: a table without slots counts one an hour.
        const int slots = std::max<int>(1, CalendarTimeSlots().numSlotsPerHour);
        txtLength.Text = CStr(Fix(60.0 / slots));
    } else {
        txtLength.Text = task.length;
    }
    glbEvents.DisplayReferences(cmbReference);
    glbEvents.DisplayLocations(cmbAction);
    cmbReference.Text = task.Reference;
    txtJobToDo.Text = task.JobToDoID;
    txtCost.Text = task.ActionToPerform;
    cmbStatus.Text = task.status;
    cmbPriority.Text = task.Priority;

    cmbAction.Clear();
    LoadFileToListBox(cmbAction, gStrDataPath + "common_references.txt");
    if (cmbAction.ListCount() == 0)
        for (const char* action : kDefaultActions) cmbAction.AddItem(action);
    cmbAction.Text = task.ActionID;
}

ReminderControls frmEditTask::reminder() {
    return {chkRemind,       DTPicker1,  DTPicker2, cmbReminder, lbl(kLblReminderWillOccur),
            lbl(kLblBefore), dtPickDate, dtPickTime};
}

void frmEditTask::Form_Unload(int&) {
    if (answered_) return;
    glbConfig.dataChanged = false;
    glbConfig.dialogCancelled = true;
}

void frmEditTask::tabEvent_Click() {
    ShowSelectedTab(tabEvent, frameEvents);
}

void frmEditTask::chkRemind_Click() {
    reminder().TickClicked();
}

void frmEditTask::cmbReminder_Click() {
    reminder().ApplyLeadTime();
}

void frmEditTask::dtPickTime_Change() {
    reminder().ApplyLeadTime();
}

// A new due date keeps the reminder's date.
void frmEditTask::dtPickDate_Change() {
    reminder().ApplyLeadTime();
}

void frmEditTask::txtDetails_KeyDown(int& keyCode, int) {
    if (!SecondEnterSaves(txtDetails, keyCode)) return;
    cmdOK_Click();
    if (IsUnloaded()) keyCode = 0;  // the Enter saved; it adds no line
}

void frmEditTask::txtURL_OLEDragDrop(const DataObject& data) {
    txtURL.Text = DroppedAddress(data);
}

void frmEditTask::cmdDetails_Click() {
    ToggleDetails(*this, cmdDetails, kWideWidth, kNarrowWidth, kToggledHeight);
}

void frmEditTask::cmdLaunch_Click() {
    LaunchDocument(txtURL.Text);
}

void frmEditTask::cmdTemplate_Click() {
    frmTemplateEdit templates;
    templates.Show(true);
}

void frmEditTask::cmdCancel_Click() {
    answered_ = true;
    glbConfig.dataChanged = false;
    glbConfig.dialogCancelled = true;
    Unload();
}

void frmEditTask::cmdOK_Click() {
    // Reminders are looked for only in the month file of their day; the reminder's
    // date counts even when no reminder is set.
    if (YearAndMonth(DTPicker1.Value) != YearAndMonth(dtPickDate.Value)) {
        platform().MsgBox("The remind date must be within the same month as the date of the event", vbOKOnly, "");
        return;
    }
    cTask& task = gCurrentTask;
    task.SetDefault();
    task.DateCreated = FormatDate(dtPickDate.Value, "yyyymmdd");
    task.timeCreated = FormatDate(dtPickTime.Value, "hhmm");
    task.details = ReplaceLineBreaks(txtDetails.Text);
    task.ID = lblID.Caption;
    task.UrlID = ReplaceLineBreaks(txtURL.Text);
    task.ContactID = txtContact.Text;
    task.length = txtLength.Text;
    task.ActionID = cmbAction.Text;
    task.Reference = cmbReference.Text;
    task.JobToDoID = txtJobToDo.Text;
    task.ActionToPerform = txtCost.Text;
    task.status = cmbStatus.Text;
    task.Priority = cmbPriority.Text;
    const bool remind = chkRemind.Value == vbChecked;
    task.RemindDate = remind ? FormatDate(DTPicker1.Value, "yyyymmdd") : "";
    task.RemindTime = remind ? FormatDate(DTPicker2.Value, "hhmm") : "";

    answered_ = true;
    glbConfig.dataChanged = true;
    glbConfig.dialogCancelled = false;
    Unload();
}

}  // namespace orbidex
