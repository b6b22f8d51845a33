#include "controls/DatePicker.h"

#include <cmath>

#include "foundation/VbDate.h"

namespace orbidex {

namespace {

// The day and the time of day of a VB date, exactly (a negative date keeps its
// time as a positive fraction: -1.25 is 29 Dec 1899 06:00).
double dayPart(VbDate d) { return std::trunc(d); }
double timePart(VbDate d) { return std::fabs(d - std::trunc(d)); }
VbDate combine(double day, double time) { return day < 0 ? day - time : day + time; }

}  // namespace

DatePicker::DatePicker(Form* form, std::string name) : Control(form, std::move(name)) {
    BackColor = vbWindowBackground;
}

bool DatePicker::ShowsTimeOnly() const { return Format == dtpTime; }

std::string DatePicker::DisplayText() const {
    switch (Format) {
        case dtpLongDate: return FormatDate(Value, "dddd, d mmmm yyyy");
        case dtpTime: return FormatDate(Value, "h:nn:ss AMPM");
        case dtpCustom: return FormatDate(Value, CustomFormat().empty() ? "dd/mm/yyyy" : CustomFormat());
        default: return FormatDate(Value, "dd/mm/yyyy");
    }
}

void DatePicker::UserPickDate(VbDate day) { userChange(combine(dayPart(day), timePart(Value))); }

void DatePicker::UserPickTime(VbDate time) { userChange(combine(dayPart(Value), timePart(time))); }

void DatePicker::UserPick(VbDate value) { userChange(value); }

void DatePicker::userChange(VbDate value) {
    if (!Enabled || value == Value) return;
    Value = value;
    Raise(onChange);
}

}  // namespace orbidex
