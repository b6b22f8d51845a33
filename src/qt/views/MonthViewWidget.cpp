#include "qt/views/MonthViewWidget.h"

#include <QGridLayout>

#include "controls/MonthView.h"
#include "foundation/DateHelpers.h"
#include "foundation/VbDate.h"
#include "platform/Platform.h"
#include "qt/views/MonthCalendar.h"

namespace orbidex {

namespace {

QDate toQDate(VbDate value) {
    return {Year(value), Month(value), Day(value)};
}
VbDate fromQDate(QDate date) {
    return DateSerial(date.year(), date.month(), date.day());
}

}  // namespace

MonthViewWidget::MonthViewWidget(MonthView& control, QWidget* parent)
    : ControlWidget(control, parent), month_(control), panel_(new QWidget), layout_(new QGridLayout(panel_)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(2);
    setInner(panel_);
    refresh();
}

void MonthViewWidget::build(long rows, long columns) {
    for (MonthCalendar* calendar : calendars_) delete calendar;
    calendars_.clear();
    rows_ = rows;
    columns_ = columns;
    for (long r = 0; r < rows; ++r)
        for (long c = 0; c < columns; ++c) {
            auto* calendar = new MonthCalendar;
            calendar->setDateRange(QDate(kFirstDiaryYear, 1, 1), QDate(kLastDiaryYear, 12, 31));
            takeDropsOn(calendar);
            const auto index = calendars_.size();
            connect(calendar, &MonthCalendar::clicked, this, [this](QDate date) {
                if (!syncing() && model() != nullptr) month_.UserClickDate(fromQDate(date));
            });
            connect(calendar, &MonthCalendar::activated, this, [this](QDate date) {
                if (!syncing() && model() != nullptr) month_.UserDblClickDate(fromQDate(date));
            });
            connect(calendar, &MonthCalendar::currentPageChanged, this, [this, index](int year, int month) {
                if (syncing()) return;
                // The user turned one calendar's page: the others follow it.
                firstShown_ = QDate(year, month, 1).addMonths(-static_cast<int>(index));
                showMonthsFrom(firstShown_.year(), firstShown_.month());
            });
            layout_->addWidget(calendar, static_cast<int>(r), static_cast<int>(c));
            calendars_.push_back(calendar);
        }
    // The view's keyboard is the first calendar's.
    panel_->setFocusProxy(calendars_.front());
}

void MonthViewWidget::showMonthsFrom(int year, int month) {
    for (size_t i = 0; i < calendars_.size(); ++i) {
        const QDate first = QDate(year, month, 1).addMonths(static_cast<int>(i));
        calendars_[i]->setCurrentPage(first.year(), first.month());
        if (model() != nullptr) markBoldDays(*calendars_[i]);
    }
}

void MonthViewWidget::markBoldDays(MonthCalendar& calendar) const {
    std::vector<QDate> bold;
    const QDate first = calendar.dateOfCell(0, 0);
    for (int i = 0; i < MonthCalendar::kRows * MonthCalendar::kDaysInWeek; ++i) {
        const QDate day = first.addDays(i);
        if (month_.DayBold(fromQDate(day))) bold.push_back(day);
    }
    calendar.setBoldDays(std::move(bold));
}

void MonthViewWidget::syncFromModel() {
    const long rows = std::max(1L, static_cast<long>(month_.MonthRows));
    const long columns = std::max(1L, static_cast<long>(month_.MonthColumns));
    if (rows != rows_ || columns != columns_) build(rows, columns);

    const QDate value = toQDate(month_.Value);
    // Today comes from the program's clock; a view shown without the program frames no day.
    const QDate today = month_.ShowToday && PlatformInstalled() ? toQDate(Today()) : QDate();
    for (MonthCalendar* calendar : calendars_) {
        // 1 is Sunday for the model, 7 for Qt.
        calendar->setFirstDayOfWeek(static_cast<Qt::DayOfWeek>((month_.StartOfWeek + 5) % 7 + 1));
        calendar->setWeekNumbersShown(month_.ShowWeekNumbers);
        calendar->setChosenRange(toQDate(month_.SelStart), toQDate(month_.SelEnd));
        calendar->setCurrentDate(value);
        calendar->setToday(today);
        applyFont(calendar);
    }
    // The first calendar shows the month asked for, else the month of the value unless
    // the value is shown already.
    const QDate first(firstShown_.year(), firstShown_.month(), 1);
    const long months = static_cast<long>(calendars_.size());
    if (month_.FirstMonth != 0)
        firstShown_ = toQDate(month_.FirstMonth);
    else if (!firstShown_.isValid() || value < first || value >= first.addMonths(static_cast<int>(months)))
        firstShown_ = QDate(value.year(), value.month(), 1);
    showMonthsFrom(firstShown_.year(), firstShown_.month());
}

QDate MonthViewWidget::dateAt(QPoint pos) const {
    for (MonthCalendar* calendar : calendars_) {
        const QPoint local = calendar->mapFrom(this, pos);
        if (calendar->rect().contains(local)) return calendar->dateAt(local);
    }
    return {};
}

void MonthViewWidget::controlDropped(Control& source, QPoint pos) {
    const QDate date = dateAt(pos);
    if (date.isValid())
        month_.UserDateDragDrop(source, fromQDate(date));
    else
        ControlWidget::controlDropped(source, pos);
}

void MonthViewWidget::controlDraggedOver(Control& source, QPoint pos) {
    const QDate date = dateAt(pos);
    if (date.isValid()) month_.UserDateDragOver(source, fromQDate(date));
}

}  // namespace orbidex
