#pragma once
// The perpetual calendar: the twelve months of a year at a glance, any year, moved a
// year at a time.  A click on a day hands the day to `onDayChosen`, which shows it in
// the diary behind the window.  The font, today's mark and the week numbers are
// those of [calendarView] in the settings file.

#include <functional>

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/MonthView.h"

namespace orbidex {

class frmCalendarView : public Form {
public:
    frmCalendarView();

    void Form_Load() override;
    /// Shows the year of `day`, the day chosen.
    void ShowYear(VbDate day);
    int Year() const { return year_; }

    void cmdPrevYear_Click();
    void cmdNextYear_Click();
    void cmdThisYear_Click();
    void cmdClose_Click();
    void mvYear_DateClick(VbDate day);

    std::function<void(VbDate day)> onDayChosen;

    CommandButton cmdPrevYear{this, "cmdPrevYear"};
    Label lblYear{this, "lblYear"};
    CommandButton cmdNextYear{this, "cmdNextYear"};
    CommandButton cmdThisYear{this, "cmdThisYear"};
    MonthView mvYear{this, "mvYear"};
    Label lblHint{this, "lblHint"};
    CommandButton cmdClose{this, "cmdClose"};

private:
    void placeControls();
    void moveYears(int years);

    int year_ = 0;
};

}  // namespace orbidex
