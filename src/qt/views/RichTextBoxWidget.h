#pragma once
// Draws a RichTextBox with each stretch of text in its own colour, size, weight
// and font, and hands the user's edits (with their formats) and selection back.
// The model's Undo takes back the user's last edit in the widget.

#include "qt/views/ControlWidget.h"

class QTextEdit;

namespace orbidex {

class RichTextBox;

class RichTextBoxWidget : public ControlWidget {
    Q_OBJECT
public:
    RichTextBoxWidget(RichTextBox& model, QWidget* parent = nullptr);
    ~RichTextBoxWidget() override;
    QTextEdit* textEdit() const { return edit_; }

protected:
    void syncFromModel() override;

private:
    void userEdited();
    void userSelected();

    RichTextBox& rich_;
    QTextEdit* edit_;
    unsigned long shownVersion_ = 0;
};

}  // namespace orbidex
