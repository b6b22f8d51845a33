#pragma once
// The date generator: a list of dates made from a start, an interval and an end by
// date or by length.  OK hides the window, so that the caller can copy the list.
//
// Dates are whole day numbers, the pickers' values rounded, so a picker that holds
// an afternoon time counts as the next day.  The list starts one day before the
// start on purpose: that undoes the rounding of an afternoon value.

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListView.h"
#include "controls/OptionButton.h"
#include "controls/TextBox.h"
#include "platform/Platform.h"

namespace orbidex {

class frmDateGenerator : public Form {
public:
    frmDateGenerator();

    void Form_Load() override;
    /// The list goes with the window.
    void Form_Unload(int& cancel) override;

    /// Fills lvDateList from the start, the interval and the end.
    void CalcDateRange();
    void Command1_Click();
    void cmdOk_Click();
    void cmdCancel_Click();

    Frame fraStart{this, "fraStart"};
    DatePicker dtPickDate{this, "dtPickDate"};
    Frame fraInterval{this, "fraInterval"};
    ComboBox cmbDays{this, "cmbDays"};  ///< Day, Week, Fortnight, Month, Quarter, Year
    Label lblDays{this, "lblDays"};
    ListView lvDays{this, "lvDays"};  ///< weekdays, shown and never read
    Frame fraFinish{this, "fraFinish"};
    ControlArray<OptionButton> optFinish{this, "optFinish"};  ///< 0 on a date, 1 after a length
    DatePicker dtPickEndDate{this, "dtPickEndDate"};
    TextBox txtNumDays{this, "txtNumDays"};
    ComboBox cmbLengthUnit{this, "cmbLengthUnit"};  ///< days, weeks, ... years
    ListView lvDateList{this, "lvDateList"};
    CommandButton Command1{this, "Command1"};
    CommandButton cmdOk{this, "cmdOk"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();
    /// The last day of the range, from the end date or the length asked for.
    long lastDay(long start);
    void addDate(long day);

    // A range longer than this is cut there: no diary needs more, and the list of
    // dates would fill the memory.
    static constexpr long kLongestRange = 36525;  // a hundred years
};

}  // namespace orbidex
