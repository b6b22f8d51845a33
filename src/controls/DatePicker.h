#pragma once
// A date picker, a time picker, or both, by its Format.  Its Value is a VB date
// with the time of day as its fraction; what the user picks changes only the part
// the picker shows, so a date picker keeps the time it was given, and a time
// picker the date.

#include "controls/Control.h"
#include "platform/Platform.h"

namespace orbidex {

constexpr int dtpLongDate = 0;
constexpr int dtpShortDate = 1;
constexpr int dtpTime = 2;
constexpr int dtpCustom = 3;

class DatePicker : public Control {
public:
    DatePicker(Form* form, std::string name);
    explicit DatePicker(std::string name = "") : DatePicker(nullptr, std::move(name)) {}

    Property<VbDate> Value{this, 0};
    Property<int> Format{this, dtpShortDate};
    /// The pattern shown with dtpCustom, as FormatDate takes it ("d-MMM-yyyy").
    Property<std::string> CustomFormat{this};
    /// Arrows to step the value instead of a drop-down calendar.
    Property<bool> UpDown{this, false};

    /// Raised when the user changes the value.
    std::function<void()> onChange;

    /// True when the picker shows a time and no date.
    bool ShowsTimeOnly() const;
    /// The text the picker shows for its value.
    std::string DisplayText() const;

    /// The user picked a date: the day changes, the time of day stays.
    void UserPickDate(VbDate day);
    /// The user picked a time of day: the time changes, the day stays.
    void UserPickTime(VbDate time);
    /// The user picked both.
    void UserPick(VbDate value);

private:
    void userChange(VbDate value);
};

}  // namespace orbidex
