#include "dialogs/frmDateGenerator.h"

#include <algorithm>

#include "dialogs/DialogDates.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

namespace {

// The interval of each entry of cmbDays.  31, 90 and 365 are codes, not distances:
// the same day of each month, of every third month, of each year.
constexpr long kIntervals[] = {1, 7, 14, 31, 90, 365};
constexpr long kMonthly = 31;
constexpr long kQuarterly = 90;

// Days in each unit of cmbLengthUnit after the first (days).
constexpr double kUnitDays[] = {1, 7, 14, 30.35, 91, 364.25};

long roundedDay(double value) {
    return static_cast<long>(RoundHalfEven(std::clamp(value, FirstPickerDate(), LastPickerDate())));
}

}  // namespace

frmDateGenerator::frmDateGenerator() : Form("frmDateGenerator") {
    Caption = "Create List of Dates";
    Width = 5340;
    Height = 5400;
    placeControls();
    Command1.onClick = [this] { Command1_Click(); };
    cmdOk.onClick = [this] { cmdOk_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmDateGenerator::placeControls() {
    fraStart.Caption = "Starting";
    fraStart.Move(120, 120, 2400, 720);
    dtPickDate.SetContainer(&fraStart);
    dtPickDate.Move(120, 300, 2160, 315);
    dtPickDate.Format = dtpCustom;
    dtPickDate.CustomFormat = "ddd d-MMM-yyyy";

    fraInterval.Caption = "Date Interval runs every";
    fraInterval.Move(120, 900, 2400, 2580);
    cmbDays.SetContainer(&fraInterval);
    cmbDays.Move(120, 300, 2160, 315);
    cmbDays.Style = vbComboDropdownList;
    for (const char* interval : {"Day", "Week", "Fortnight", "Month", "Quarter", "Year"}) cmbDays.AddItem(interval);
    lblDays.Caption = "on these days";
    lblDays.SetContainer(&fraInterval);
    lblDays.Move(120, 705, 2160, 255);
    lvDays.SetContainer(&fraInterval);
    lvDays.Move(120, 960, 2160, 1500);
    lvDays.Checkboxes = true;
    lvDays.HideColumnHeaders = true;
    lvDays.ColumnHeaders.Add("Day", 1800);

    fraFinish.Caption = "Finishing";
    fraFinish.Move(120, 3540, 2400, 1680);
    OptionButton& onDate = optFinish(0);
    onDate.Caption = "on this date";
    onDate.SetContainer(&fraFinish);
    onDate.Move(120, 270, 2160, 285);
    dtPickEndDate.SetContainer(&fraFinish);
    dtPickEndDate.Move(360, 570, 1920, 315);
    dtPickEndDate.Format = dtpCustom;
    dtPickEndDate.CustomFormat = "ddd d-MMM-yyyy";
    OptionButton& afterLength = optFinish(1);
    afterLength.Caption = "after running for";
    afterLength.SetContainer(&fraFinish);
    afterLength.Move(120, 960, 2160, 285);
    txtNumDays.SetContainer(&fraFinish);
    txtNumDays.Move(360, 1260, 600, 315);
    txtNumDays.Text = "1";
    cmbLengthUnit.SetContainer(&fraFinish);
    cmbLengthUnit.Move(1020, 1260, 1260, 315);
    cmbLengthUnit.Style = vbComboDropdownList;
    for (const char* unit : {"days", "weeks", "fortnights", "months", "quarters", "years"}) cmbLengthUnit.AddItem(unit);
    onDate.Value = true;

    lvDateList.Move(2640, 180, 2580, 4560);
    lvDateList.ColumnHeaders.Add("Dates", 2100);
    lvDateList.FullRowSelect = true;

    Command1.Caption = "Calculate ";
    Command1.Move(2640, 4860, 900, 375);
    cmdOk.Caption = "OK";
    cmdOk.Default = true;
    cmdOk.Move(3600, 4860, 780, 375);
    cmdCancel.Caption = "Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Move(4440, 4860, 780, 375);
}

void frmDateGenerator::Form_Load() {
    dtPickDate.Value = Now();
    dtPickEndDate.Value = Now() + 3;
    cmbDays.ListIndex = 0;
    cmbLengthUnit.ListIndex = 0;
    lvDays.ListItems.Clear();
    for (const char* day : {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"}) lvDays.ListItems.Add(day);
    for (long row = 1; row <= 5; ++row) lvDays.ListItems(row).Checked = true;
}

void frmDateGenerator::Form_Unload(int&) {
    lvDateList.ListItems.Clear();
}

void frmDateGenerator::CalcDateRange() {
    platform().SetBusyCursor(true);
    lvDateList.ListItems.Clear();
    const long start = roundedDay(dtPickDate.Value);
    const long end = lastDay(start);
    const long choice = cmbDays.ListIndex;
    const long interval = choice >= 0 && choice < 6 ? kIntervals[choice] : 1;

    if (interval < 30) {
        for (long day = start - 1; day <= end; day += interval) addDate(day);
    } else {
        int quarterCount = 4;
        for (long day = start; day <= end; ++day) {
            const bool sameDayOfMonth = Day(day) == Day(start);
            if (interval == kMonthly) {
                if (sameDayOfMonth) addDate(day);
            } else if (interval == kQuarterly) {
                // The first match is taken, then every third.
                if (!sameDayOfMonth) continue;
                if (quarterCount == 4) {
                    addDate(day);
                    quarterCount = 1;
                }
                ++quarterCount;
            } else if (sameDayOfMonth && Month(day) == Month(start)) {
                addDate(day);
            }
        }
    }
    platform().SetBusyCursor(false);
}

long frmDateGenerator::lastDay(long start) {
    double end = 0;
    if (optFinish(0).Value) {
        end = RoundHalfEven(dtPickEndDate.Value - 1);
    } else {
        const double count = Val(txtNumDays.Text);
        const long unit = std::max(cmbLengthUnit.ListIndex(), 0L);
        const double days = unit == 0 ? count - 1 : RoundHalfEven(count * kUnitDays[std::min(unit, 5L)] - count);
        end = start + days - 1;
    }
    return static_cast<long>(
        std::clamp(end, static_cast<double>(start - 2), static_cast<double>(start + kLongestRange)));
}

void frmDateGenerator::addDate(long day) {
    ListItem& row = lvDateList.ListItems.Add(FormatDate(day, "DDD, dd-MMM-yy"));
    row.Tag = FormatDate(day, "yyyymmdd");
    platform().DoEvents();
}

void frmDateGenerator::Command1_Click() {
    CalcDateRange();
}

void frmDateGenerator::cmdOk_Click() {
    CalcDateRange();
    Hide();
}

void frmDateGenerator::cmdCancel_Click() {
    Unload();
}

}  // namespace orbidex
