#include "qt/views/DatePickerWidget.h"

#include <QDateTimeEdit>

#include "controls/DatePicker.h"
#include "foundation/DateHelpers.h"
#include "foundation/VbDate.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

QDateTime toQDateTime(VbDate value) {
    // Universal time: a day without summer-time gaps, as the model's dates are.
    return {QDate(Year(value), Month(value), Day(value)), QTime(Hour(value), Minute(value), Second(value)), Qt::UTC};
}

/// A custom pattern of the picker in Qt's words: "tt" is the AM/PM mark.
QString toQtPattern(const std::string& pattern) {
    QString qt = QString::fromStdString(pattern);
    qt.replace(QStringLiteral("tt"), QStringLiteral("AP"));
    return qt;
}

}  // namespace

DatePickerWidget::DatePickerWidget(DatePicker& control, QWidget* parent)
    : ControlWidget(control, parent), picker_(control), edit_(new QDateTimeEdit) {
    setInner(edit_);
    edit_->setTimeSpec(Qt::UTC);
    edit_->setMinimumDate(QDate(kFirstDiaryYear, 1, 1));
    edit_->setMaximumDate(QDate(kLastDiaryYear, 12, 31));
    connect(edit_, &QDateTimeEdit::dateTimeChanged, this, [this] { userChanged(); });
    refresh();
}

void DatePickerWidget::userChanged() {
    if (syncing() || model() == nullptr) return;
    const QDateTime shown = edit_->dateTime();
    const VbDate day = DateSerial(shown.date().year(), shown.date().month(), shown.date().day());
    const VbDate time = TimeSerial(shown.time().hour(), shown.time().minute(), shown.time().second());
    switch (picker_.Format) {
        case dtpTime: picker_.UserPickTime(time); break;
        case dtpCustom: picker_.UserPick(day < 0 ? day - time : day + time); break;
        default: picker_.UserPickDate(day); break;
    }
}

void DatePickerWidget::syncFromModel() {
    switch (picker_.Format) {
        case dtpLongDate: edit_->setDisplayFormat(QStringLiteral("dddd, d MMMM yyyy")); break;
        case dtpTime: edit_->setDisplayFormat(QStringLiteral("h:mm:ss AP")); break;
        case dtpCustom:
            edit_->setDisplayFormat(picker_.CustomFormat().empty() ? QStringLiteral("dd/MM/yyyy")
                                                                   : toQtPattern(picker_.CustomFormat));
            break;
        default: edit_->setDisplayFormat(QStringLiteral("dd/MM/yyyy")); break;
    }
    edit_->setCalendarPopup(!picker_.UpDown && picker_.Format != dtpTime);
    edit_->setDateTime(toQDateTime(picker_.Value));
    applyColors(edit_, QPalette::Base, QPalette::Text);
    applyFont(edit_);
}

}  // namespace orbidex
