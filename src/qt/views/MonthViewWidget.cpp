#include "qt/views/MonthViewWidget.h"

#include <QCalendarWidget>
#include <QGridLayout>
#include <QTableView>
#include <QTextCharFormat>

#include "controls/MonthView.h"
#include "foundation/DateHelpers.h"
#include "foundation/VbDate.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

namespace {

QDate toQDate(VbDate value) { return {Year(value), Month(value), Day(value)}; }
VbDate fromQDate(QDate date) { return DateSerial(date.year(), date.month(), date.day()); }

}  // namespace

MonthViewWidget::MonthViewWidget(MonthView& control, QWidget* parent)
    : ControlWidget(control, parent), month_(control), panel_(new QWidget), layout_(new QGridLayout(panel_)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(2);
    setInner(panel_);
    refresh();
}

void MonthViewWidget::build(long rows, long columns) {
    for (QCalendarWidget* calendar : calendars_) delete calendar;
    calendars_.clear();
    rows_ = rows;
    columns_ = columns;
    for (long r = 0; r < rows; ++r)
        for (long c = 0; c < columns; ++c) {
            auto* calendar = new QCalendarWidget;
            calendar->setGridVisible(false);
            calendar->setDateEditEnabled(false);
            calendar->setDateRange(QDate(kFirstDiaryYear, 1, 1), QDate(kLastDiaryYear, 12, 31));
            if (auto* table = calendar->findChild<QTableView*>()) takeDropsOn(table->viewport());
            const auto index = calendars_.size();
            connect(calendar, &QCalendarWidget::clicked, this, [this](QDate date) {
                if (!syncing() && model() != nullptr) month_.UserClickDate(fromQDate(date));
            });
            connect(calendar, &QCalendarWidget::activated, this, [this](QDate date) {
                if (!syncing() && model() != nullptr) month_.UserDblClickDate(fromQDate(date));
            });
            connect(calendar, &QCalendarWidget::currentPageChanged, this, [this, index](int year, int month) {
                if (syncing()) return;
                // The user turned one calendar's page: the others follow it.
                firstShown_ = QDate(year, month, 1).addMonths(-static_cast<int>(index));
                showMonthsFrom(firstShown_.year(), firstShown_.month());
            });
            layout_->addWidget(calendar, static_cast<int>(r), static_cast<int>(c));
            calendars_.push_back(calendar);
        }
}

void MonthViewWidget::showMonthsFrom(int year, int month) {
    for (size_t i = 0; i < calendars_.size(); ++i) {
        const QDate first = QDate(year, month, 1).addMonths(static_cast<int>(i));
        const QSignalBlocker block(calendars_[i]);
        calendars_[i]->setCurrentPage(first.year(), first.month());
    }
}

void MonthViewWidget::syncFromModel() {
    const long rows = std::max(1L, static_cast<long>(month_.MonthRows));
    const long columns = std::max(1L, static_cast<long>(month_.MonthColumns));
    if (rows != rows_ || columns != columns_) build(rows, columns);

    const QDate value = toQDate(month_.Value);
    const QDate start = toQDate(month_.SelStart);
    const QDate end = toQDate(month_.SelEnd);
    QTextCharFormat chosen;
    chosen.setBackground(ToQColor(vbHighlight));
    chosen.setForeground(ToQColor(vbHighlightText));
    for (QCalendarWidget* calendar : calendars_) {
        // 1 is Sunday for the model, 7 for Qt.
        calendar->setFirstDayOfWeek(static_cast<Qt::DayOfWeek>((month_.StartOfWeek + 5) % 7 + 1));
        calendar->setVerticalHeaderFormat(month_.ShowWeekNumbers ? QCalendarWidget::ISOWeekNumbers
                                                                 : QCalendarWidget::NoVerticalHeader);
        calendar->setDateTextFormat(QDate(), QTextCharFormat());  // clears the marks
        for (QDate day = start; day.isValid() && day <= end; day = day.addDays(1)) calendar->setDateTextFormat(day, chosen);
        const QDate shownFirst = QDate(calendar->yearShown(), calendar->monthShown(), 1).addDays(-7);
        for (QDate day = shownFirst; day <= shownFirst.addDays(49); day = day.addDays(1))
            if (month_.DayBold(fromQDate(day))) {
                QTextCharFormat bold = calendar->dateTextFormat(day);
                bold.setFontWeight(QFont::Bold);
                calendar->setDateTextFormat(day, bold);
            }
        const QSignalBlocker block(calendar);
        calendar->setSelectedDate(value);
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
    for (QCalendarWidget* calendar : calendars_) {
        auto* table = calendar->findChild<QTableView*>();
        if (table == nullptr) continue;
        const QPoint local = table->viewport()->mapFrom(this, pos);
        if (!table->viewport()->rect().contains(local)) continue;
        const QModelIndex index = table->indexAt(local);
        if (!index.isValid()) return {};
        bool isDay = false;
        const int day = index.data(Qt::DisplayRole).toInt(&isDay);
        if (!isDay) return {};
        // Days of the month before stand in the first rows, of the month after in the last.
        QDate page(calendar->yearShown(), calendar->monthShown(), 1);
        if (index.row() <= 2 && day > 20) page = page.addMonths(-1);
        if (index.row() >= 4 && day < 15) page = page.addMonths(1);
        return {page.year(), page.month(), day};
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
