#pragma once
// Draws a DatePicker as a date field with a drop-down calendar, a time field, or
// both, and hands the user's pick to the model, which keeps the part not shown.

#include "qt/views/ControlWidget.h"

class QDateTimeEdit;

namespace orbidex {

class DatePicker;

class DatePickerWidget : public ControlWidget {
    Q_OBJECT
public:
    DatePickerWidget(DatePicker& model, QWidget* parent = nullptr);
    QDateTimeEdit* dateTimeEdit() const { return edit_; }

protected:
    void syncFromModel() override;

private:
    void userChanged();

    DatePicker& picker_;
    QDateTimeEdit* edit_;
};

}  // namespace orbidex
