#pragma once
// A month calendar of MonthRows x MonthColumns months.  Value is the chosen day
// (a whole day number: a time given with it is dropped); SelStart and SelEnd are
// the chosen range, one day unless MultiSelect is on.

#include <set>

#include "controls/Control.h"
#include "platform/Platform.h"

namespace orbidex {

class MonthView : public Control {
public:
    MonthView(Form* form, std::string name);
    explicit MonthView(std::string name = "") : MonthView(nullptr, std::move(name)) {}

    /// Assigning the value makes it the whole selection.
    Property<VbDate> Value{this, 0};
    Property<VbDate> SelStart{this, 0};
    Property<VbDate> SelEnd{this, 0};
    Property<bool> MultiSelect{this, false};
    Property<long> MaxSelCount{this, 7};
    Property<long> MonthRows{this, 1};
    Property<long> MonthColumns{this, 1};
    /// 1 Sunday ... 7 Saturday.
    Property<int> StartOfWeek{this, 2};
    Property<bool> ShowToday{this, true};
    Property<bool> ShowWeekNumbers{this, false};
    /// A day of the month shown first; 0 (the usual) shows first the month of the
    /// value, unless the value is shown already.
    Property<VbDate> FirstMonth{this, 0};

    /// Days drawn in bold (days with events, for one).
    bool DayBold(VbDate day) const;
    void SetDayBold(VbDate day, bool bold);

    std::function<void(VbDate day)> onDateClick;
    std::function<void(VbDate day)> onDateDblClick;
    std::function<void(VbDate start, VbDate end)> onSelChange;
    /// Another control of the program was dropped on, or dragged over, `day`.
    std::function<void(Control& source, VbDate day)> onDateDragDrop;
    std::function<void(Control& source, VbDate day)> onDateDragOver;

    /// A click on a day: it becomes the value, then SelChange and DateClick.
    void UserClickDate(VbDate day);
    void UserDblClickDate(VbDate day);
    /// The user chose a range of days (MultiSelect): SelStart and SelEnd, the value
    /// its first day, then SelChange.
    void UserSelectRange(VbDate start, VbDate end);
    void UserDateDragOver(Control& source, VbDate day);
    void UserDateDragDrop(Control& source, VbDate day);

    void PropertyChanged(const void* property) override;

private:
    std::set<long> boldDays_;
};

}  // namespace orbidex
