#include "screen/frmCalendarView.h"

#include <algorithm>

#include "config/clsConfigDiary.h"
#include "foundation/DateHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

namespace {

constexpr long kMonthsWidth = 14700;
constexpr long kMonthsHeight = 7200;
constexpr long kBarHeight = 420;

}  // namespace

frmCalendarView::frmCalendarView() : Form("frmCalendarView") {
    Caption = "Perpetual Calendar";
    Width = kMonthsWidth + 360;
    Height = kMonthsHeight + 2 * kBarHeight + 900;
    placeControls();
    cmdPrevYear.onClick = [this] { cmdPrevYear_Click(); };
    cmdNextYear.onClick = [this] { cmdNextYear_Click(); };
    cmdThisYear.onClick = [this] { cmdThisYear_Click(); };
    cmdClose.onClick = [this] { cmdClose_Click(); };
    mvYear.onDateClick = [this](VbDate day) { mvYear_DateClick(day); };
}

void frmCalendarView::placeControls() {
    cmdPrevYear.Caption = "<<";
    cmdPrevYear.ToolTipText = "The year before";
    cmdPrevYear.Move(120, 90, 600, 375);
    lblYear.Alignment = 2;
    lblYear.FontSize = 14;
    lblYear.FontBold = true;
    lblYear.Move(780, 60, 1500, kBarHeight);
    cmdNextYear.Caption = ">>";
    cmdNextYear.ToolTipText = "The year after";
    cmdNextYear.Move(2340, 90, 600, 375);
    cmdThisYear.Caption = "This Year";
    cmdThisYear.ToolTipText = "Back to this year";
    cmdThisYear.Move(3120, 90, 1200, 375);
    mvYear.MonthRows = 3;
    mvYear.MonthColumns = 4;
    mvYear.Move(120, 120 + kBarHeight, kMonthsWidth, kMonthsHeight);
    const long bottom = 120 + kBarHeight + kMonthsHeight + 90;
    lblHint.Caption = "Click a day to show it in the diary.";
    lblHint.Move(120, bottom + 60, 6000, 255);
    cmdClose.Caption = "Close";
    cmdClose.Cancel = true;
    cmdClose.Move(120 + kMonthsWidth - 1200, bottom, 1200, 375);
}

void frmCalendarView::Form_Load() {
    const std::string font = glbConfig.GetValue("calendarView", "fontName");
    if (!font.empty()) mvYear.FontName = font;
    const double size = Val(glbConfig.GetValue("calendarView", "fontSize"));
    if (size > 0) mvYear.FontSize = size;
    mvYear.ShowToday = Trim(glbConfig.GetValue("calendarView", "showtoday")) != "0";
    mvYear.ShowWeekNumbers = Val(glbConfig.GetValue("calendarView", "showWeeks")) != 0;
}

void frmCalendarView::ShowYear(VbDate day) {
    year_ = std::clamp(orbidex::Year(day), kFirstDiaryYear, kLastDiaryYear);
    lblYear.Caption = CStr(year_);
    mvYear.FirstMonth = DateSerial(year_, 1, 1);
    mvYear.Value = orbidex::Year(day) == year_ ? DateOnly(day) : DateSerial(year_, 1, 1);
    cmdPrevYear.Enabled = year_ > kFirstDiaryYear;
    cmdNextYear.Enabled = year_ < kLastDiaryYear;
}

void frmCalendarView::moveYears(int years) {
    const VbDate day = mvYear.Value;
    const int target = year_ + years;
    // The same day of the other year; 29 February becomes the 28th.
    const int dayOfMonth = std::min(orbidex::Day(day), DaysInMonth(target, Month(day)));
    ShowYear(DateSerial(target, Month(day), dayOfMonth));
}

void frmCalendarView::cmdPrevYear_Click() {
    moveYears(-1);
}

void frmCalendarView::cmdNextYear_Click() {
    moveYears(1);
}

void frmCalendarView::cmdThisYear_Click() {
    ShowYear(Today());
}

void frmCalendarView::cmdClose_Click() {
    Unload();
}

void frmCalendarView::mvYear_DateClick(VbDate day) {
    if (onDayChosen) onDayChosen(DateOnly(day));
}

}  // namespace orbidex
