#pragma once
// Draws a TextBox, as a one-line or a multi-line edit field, and hands the user's
// typing and selection to the model.

#include "qt/views/ControlWidget.h"

class QLineEdit;
class QPlainTextEdit;

namespace orbidex {

class TextBox;

class TextBoxWidget : public ControlWidget {
    Q_OBJECT
public:
    TextBoxWidget(TextBox& model, QWidget* parent = nullptr);
    /// The edit field: a QLineEdit, or a QPlainTextEdit for a multi-line box.
    QLineEdit* lineEdit() const { return line_; }
    QPlainTextEdit* plainTextEdit() const { return plain_; }

protected:
    void syncFromModel() override;

private:
    void build(bool multiLine);
    void userEdited();
    void userSelected();

    TextBox& text_;
    QLineEdit* line_ = nullptr;
    QPlainTextEdit* plain_ = nullptr;
};

}  // namespace orbidex
