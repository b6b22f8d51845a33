#include "dialogs/frmRescheduleEvent.h"

#include <algorithm>

#include "config/clsConfigDiary.h"
#include "dialogs/DialogDates.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

constexpr int kMoveAsChosen = 3;
constexpr int kMoveSameDay = 4;
constexpr int kWhenSameTime = 1;

// Days added to the present date by each "How Far Ahead" choice.
constexpr int kDaysAhead[] = {1, 7, 14, 0, 0};

// Selects the option; one already selected raises no Click, so its handler runs here.
template <typename Handler>
void choose(OptionButton& option, Handler handler) {
    if (option.Value)
        handler();
    else
        option.Value = true;
}

}  // namespace

frmRescheduleEvent::frmRescheduleEvent() : Form("frmRescheduleEvent") {
    Caption = "Rescheduling...";
    Width = 5760;
    Height = 4560;
    placeControls();
    bindEvents();
}

void frmRescheduleEvent::placeControls() {
    lblNow.Caption = "Now on";
    lblNow.Move(120, 165, 900, 255);
    dtPickDate.Move(1020, 120, 2100, 315);
    dtPickDate.Format = dtpCustom;
    dtPickDate.CustomFormat = "ddd d-MMM-yyyy";
    dtPickTime.Move(3180, 120, 2340, 315);
    dtPickTime.Format = dtpTime;
    // The present date and time are what the choices count from: shown, not changed.
    dtPickDate.Enabled = false;
    dtPickTime.Enabled = false;
    txtDetails.Move(120, 540, 5400, 315);

    fraMoveAhead.Caption = "How Far Ahead";
    fraMoveAhead.Move(120, 960, 2160, 1980);
    const char* const aheadCaptions[] = {"The next day", "Next week", "Next Fortnight", "As chosen below",
                                         "The Same day"};
    const int aheadOrder[] = {kMoveSameDay, 0, 1, 2, kMoveAsChosen};
    for (int row = 0; row < 5; ++row) {
        OptionButton& option = optMoveAhead(aheadOrder[row]);
        option.Caption = aheadCaptions[aheadOrder[row]];
        option.SetContainer(&fraMoveAhead);
        option.Move(120, 270 + row * 330, 1920, 285);
    }

    fraWhen.Caption = "At What Time";
    fraWhen.Move(2400, 960, 3120, 1980);
    const char* const whenCaptions[] = {"Find Next Available Time Slot", "Same Time", "Morning", "Afternoon"};
    const int whenOrder[] = {1, 2, 3, 0};
    for (int row = 0; row < 4; ++row) {
        OptionButton& option = optWhen(whenOrder[row]);
        option.Caption = whenCaptions[whenOrder[row]];
        option.SetContainer(&fraWhen);
        option.Move(120, 270 + row * 330, 2940, 285);
    }

    lblFinal.Caption = "Moves to";
    lblFinal.Move(120, 3105, 1500, 255);
    cmbBrowse(0).Caption = "<<";
    cmbBrowse(0).ToolTipText = "Back by the days the diary shows";
    cmbBrowse(0).Move(120, 3360, 420, 315);
    dpFinalDate.Move(600, 3360, 2100, 315);
    dpFinalDate.Format = dtpCustom;
    dpFinalDate.CustomFormat = "ddd d-MMM-yyyy";
    cmbBrowse(1).Caption = ">>";
    cmbBrowse(1).ToolTipText = "Forward by the days the diary shows";
    cmbBrowse(1).Move(2760, 3360, 420, 315);
    dpFinalTime.Move(3300, 3360, 2220, 315);
    dpFinalTime.Format = dtpTime;

    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Move(3000, 3900, 1200, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(4320, 3900, 1200, 375);
}

void frmRescheduleEvent::bindEvents() {
    for (int index : optMoveAhead.Indexes()) optMoveAhead(index).onClick = [this, index] { optMoveAhead_Click(index); };
    for (int index : optWhen.Indexes()) optWhen(index).onClick = [this, index] { optWhen_Click(index); };
    for (int index : cmbBrowse.Indexes()) cmbBrowse(index).onClick = [this, index] { cmbBrowse_Click(index); };
    dpFinalDate.onChange = [this] { dpFinalDate_Change(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmRescheduleEvent::Form_Load() {
    answered_ = false;
    glbConfig.dialogCancelled = false;
    placeBehindMainWindow();
    dtPickDate.Value = DateOfText(gCurrentEvent.DateEvent);
    dtPickTime.Value = AtTimeOfDay(dtPickDate.Value, TimeOfText(gCurrentEvent.TimeEvent));
    txtDetails.Text = gCurrentEvent.details;
    choose(optMoveAhead(kMoveSameDay), [this] { optMoveAhead_Click(kMoveSameDay); });
    choose(optWhen(kWhenSameTime), [this] { optWhen_Click(kWhenSameTime); });
}

void frmRescheduleEvent::placeBehindMainWindow() {
    // Over the right-hand side of the main window, below its bars, so that the
    // calendar's grid stays in sight beside the dialog.
    const frmClientDiaryMain& main = MainForm();
    Left = main.Left + std::max(0L, main.Width - Width - 240);
    Top = main.Top + 1200;
}

void frmRescheduleEvent::Form_Unload(int&) {
    if (!answered_) glbConfig.dialogCancelled = true;
}

void frmRescheduleEvent::optMoveAhead_Click(int index) {
    if (index < 0 || index > kMoveSameDay) return;
    if (index != kMoveAsChosen) dpFinalDate.Value = dtPickDate.Value + kDaysAhead[index];
    ShowDiaryAppointments(dpFinalDate.Value);
}

void frmRescheduleEvent::optWhen_Click(int index) {
    // Finding a free slot is not worked out: that choice leaves the time as it is.
    switch (index) {
        case 1:
            dpFinalTime.Value = dtPickTime.Value;
            break;
        case 2:
            dpFinalTime.Value = TimeSerial(9, 0, 0);
            break;
        case 3:
            dpFinalTime.Value = TimeSerial(14, 0, 0);
            break;
        default:
            break;
    }
}

void frmRescheduleEvent::cmbBrowse_Click(int index) {
    const int step = index == 0 ? -glbNumDaysToDisplay : glbNumDaysToDisplay;
    dpFinalDate.Value = dpFinalDate.Value + step;
    ShowDiaryAppointments(dpFinalDate.Value);
}

void frmRescheduleEvent::dpFinalDate_Change() {
    ShowDiaryAppointments(dpFinalDate.Value);
}

void frmRescheduleEvent::ShowDiaryAppointments(VbDate date) {
    frmClientDiaryMain& main = MainForm();
    main.MonthView1.Value = date;
    glbEvents.CalendarDateClicked(main, date);
    glbEvents.DiaryTopLevelDisplay(main.MonthView1.Value);
}

void frmRescheduleEvent::cmdOK_Click() {
    glbLog.pimlog(gStrDataPath + "debug.log",
                  "reschedule-OK : finalDate=" + FormatDate(dpFinalDate.Value, "yyyy-mm-dd"), 2, 0);
    gCurrentEvent.DateEvent = FormatDate(dpFinalDate.Value, "yyyymmdd");
    gCurrentEvent.TimeEvent = FormatDate(dpFinalTime.Value, "hhmm");
    gCurrentEvent.details = txtDetails.Text;
    answered_ = true;
    glbConfig.dataChanged = true;
    glbConfig.dialogCancelled = false;
    glbLog.log("Reschedule form: cmdOK_Click - final record = " +
               gCurrentEvent.FormatDiaryRecordAsCSV(kFieldDelimiter, ""));
    Unload();
}

void frmRescheduleEvent::cmdCancel_Click() {
    answered_ = true;
    glbConfig.dialogCancelled = true;
    Unload();
}

}  // namespace orbidex
