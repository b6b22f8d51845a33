#include "controls/MonthView.h"

#include <algorithm>
#include <cmath>

namespace orbidex {

namespace {
VbDate wholeDay(VbDate d) { return std::trunc(d); }
}  // namespace

MonthView::MonthView(Form* form, std::string name) : Control(form, std::move(name)) { BackColor = vbWindowBackground; }

bool MonthView::DayBold(VbDate day) const { return boldDays_.count(static_cast<long>(wholeDay(day))) != 0; }

void MonthView::SetDayBold(VbDate day, bool bold) {
    const auto key = static_cast<long>(wholeDay(day));
    if (bold == DayBold(day)) return;
    if (bold)
        boldDays_.insert(key);
    else
        boldDays_.erase(key);
    Changed();
}

void MonthView::UserClickDate(VbDate day) {
    if (!Enabled) return;
    Value = day;
    Raise(onSelChange, SelStart(), SelEnd());
    Raise(onDateClick, wholeDay(day));
}

void MonthView::UserDblClickDate(VbDate day) {
    if (!Enabled) return;
    Value = day;
    Raise(onDateDblClick, wholeDay(day));
}

void MonthView::UserSelectRange(VbDate start, VbDate end) {
    if (!Enabled) return;
    if (!MultiSelect) end = start;
    if (end < start) std::swap(start, end);
    end = std::min(end, start + static_cast<double>(std::max(MaxSelCount(), 1L) - 1));
    Value.setQuietly(wholeDay(start));
    SelStart.setQuietly(wholeDay(start));
    SelEnd.setQuietly(wholeDay(end));
    Changed();
    Raise(onSelChange, SelStart(), SelEnd());
}

void MonthView::UserDateDragOver(Control& source, VbDate day) { Raise(onDateDragOver, source, wholeDay(day)); }

void MonthView::UserDateDragDrop(Control& source, VbDate day) {
    source.Drag(vbEndDrag);
    Raise(onDateDragDrop, source, wholeDay(day));
}

void MonthView::PropertyChanged(const void* property) {
    if (property == &Value) {
        Value.setQuietly(wholeDay(Value));
        SelStart.setQuietly(Value);
        SelEnd.setQuietly(Value);
    } else if (property == &SelStart) {
        SelStart.setQuietly(wholeDay(SelStart));
        if (!MultiSelect || SelEnd < SelStart) SelEnd.setQuietly(SelStart);
    } else if (property == &SelEnd) {
        SelEnd.setQuietly(wholeDay(SelEnd));
        if (!MultiSelect || SelEnd < SelStart) SelStart.setQuietly(SelEnd);
    }
    Control::PropertyChanged(property);
}

}  // namespace orbidex
