#pragma once
// Draws a MonthView as MonthRows x MonthColumns month calendars side by side, the
// first showing the month of the value, with the chosen range and the bold days
// marked; hands clicks, double clicks and drops on a day to the model.

#include <QDate>
#include <vector>

#include "qt/views/ControlWidget.h"

class QGridLayout;

namespace orbidex {

class MonthCalendar;
class MonthView;

class MonthViewWidget : public ControlWidget {
    Q_OBJECT
public:
    MonthViewWidget(MonthView& model, QWidget* parent = nullptr);
    const std::vector<MonthCalendar*>& calendars() const { return calendars_; }
    /// The day drawn at `pos` (in this widget), or a null date.
    QDate dateAt(QPoint pos) const;

protected:
    void syncFromModel() override;
    void controlDropped(Control& source, QPoint pos) override;
    void controlDraggedOver(Control& source, QPoint pos) override;

private:
    void build(long rows, long columns);
    void showMonthsFrom(int year, int month);
    /// Marks in `calendar` the bold days among those it shows.
    void markBoldDays(MonthCalendar& calendar) const;

    MonthView& month_;
    QWidget* panel_;
    QGridLayout* layout_;
    std::vector<MonthCalendar*> calendars_;
    long rows_ = 0;
    long columns_ = 0;
    QDate firstShown_;  ///< the first day of the month the first calendar shows
};

}  // namespace orbidex
