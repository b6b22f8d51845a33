#pragma once
// Rescheduling: the current event (gCurrentEvent) moved to another date and time.
// While the user chooses, the main window shows the diary of the chosen day behind
// the dialog, so that free time can be seen.

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/OptionButton.h"
#include "controls/TextBox.h"
#include "platform/Platform.h"

namespace orbidex {

class frmRescheduleEvent : public Form {
public:
    frmRescheduleEvent();

    void Form_Load() override;
    /// Closing the window without a button counts as Cancel.
    void Form_Unload(int& cancel) override;

    /// How far ahead: 0 a day, 1 a week, 2 a fortnight, 3 the date as chosen, 4 the same day.
    void optMoveAhead_Click(int index);
    /// At what time: 0 the next free slot (not worked out: the time stays), 1 the same
    /// time, 2 the morning, 3 the afternoon.
    void optWhen_Click(int index);
    /// 0 steps back, 1 forward, by the number of days the main view shows.
    void cmbBrowse_Click(int index);
    void dpFinalDate_Change();
    /// Shows the diary of `date` in the main window.
    void ShowDiaryAppointments(VbDate date);
    void cmdOK_Click();
    void cmdCancel_Click();

    Label lblNow{this, "lblNow"};
    DatePicker dtPickDate{this, "dtPickDate"};
    DatePicker dtPickTime{this, "dtPickTime"};
    TextBox txtDetails{this, "txtDetails"};
    Frame fraMoveAhead{this, "fraMoveAhead"};
    ControlArray<OptionButton> optMoveAhead{this, "optMoveAhead"};
    Frame fraWhen{this, "fraWhen"};
    ControlArray<OptionButton> optWhen{this, "optWhen"};
    Label lblFinal{this, "lblFinal"};
    DatePicker dpFinalDate{this, "dpFinalDate"};
    DatePicker dpFinalTime{this, "dpFinalTime"};
    ControlArray<CommandButton> cmbBrowse{this, "cmbBrowse"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();
    void bindEvents();
    void placeBehindMainWindow();

    bool answered_ = false;  ///< OK or Cancel has run since the load
};

}  // namespace orbidex
