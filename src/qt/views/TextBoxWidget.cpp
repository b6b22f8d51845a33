#include "qt/views/TextBoxWidget.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "controls/TextBox.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

TextBoxWidget::TextBoxWidget(TextBox& control, QWidget* parent) : ControlWidget(control, parent), text_(control) {
    build(control.MultiLine);
    refresh();
}

void TextBoxWidget::build(bool multiLine) {
    if (multiLine) {
        plain_ = new QPlainTextEdit;
        line_ = nullptr;
        setInner(plain_, plain_->viewport(), plain_);
        connect(plain_, &QPlainTextEdit::textChanged, this, [this] { userEdited(); });
        connect(plain_, &QPlainTextEdit::cursorPositionChanged, this, [this] { userSelected(); });
        connect(plain_, &QPlainTextEdit::selectionChanged, this, [this] { userSelected(); });
    } else {
        line_ = new QLineEdit;
        plain_ = nullptr;
        setInner(line_);
        connect(line_, &QLineEdit::textEdited, this, [this] { userEdited(); });
        connect(line_, &QLineEdit::cursorPositionChanged, this, [this] { userSelected(); });
        connect(line_, &QLineEdit::selectionChanged, this, [this] { userSelected(); });
    }
}

void TextBoxWidget::userEdited() {
    if (syncing() || model() == nullptr) return;
    const QString text = line_ != nullptr ? line_->text() : plain_->toPlainText();
    const int caret = line_ != nullptr ? line_->cursorPosition() : plain_->textCursor().position();
    const std::string bytes = FromWidgetText(text);
    text_.UserEdit(bytes, FromWidgetPosition(bytes, caret));
}

void TextBoxWidget::userSelected() {
    if (syncing() || model() == nullptr) return;
    int start = 0;
    int end = 0;
    if (line_ != nullptr) {
        start = line_->hasSelectedText() ? line_->selectionStart() : line_->cursorPosition();
        end = line_->hasSelectedText() ? line_->selectionEnd() : start;
    } else {
        const QTextCursor cursor = plain_->textCursor();
        start = cursor.selectionStart();
        end = cursor.selectionEnd();
    }
    const std::string& text = text_.Text();
    // The caret may move before the text change is told: wait for the change.
    const int shownLength = line_ != nullptr ? static_cast<int>(line_->text().size()) : plain_->document()->characterCount() - 1;
    if (shownLength != ToWidgetPosition(text, static_cast<long>(text.size()))) return;
    const long from = FromWidgetPosition(text, start);
    text_.UserSelect(from, FromWidgetPosition(text, end) - from);
}

void TextBoxWidget::syncFromModel() {
    if ((plain_ != nullptr) != static_cast<bool>(text_.MultiLine)) build(text_.MultiLine);
    const std::string& text = text_.Text();
    const QString shown = ToWidgetText(text);
    const int start = ToWidgetPosition(text, text_.SelStart);
    const int end = ToWidgetPosition(text, text_.SelStart + text_.SelLength);
    QWidget* edit = line_ != nullptr ? static_cast<QWidget*>(line_) : plain_;
    if (line_ != nullptr) {
        line_->setReadOnly(text_.Locked);
        // A new maximum length sets the text anew and loses the selection: set it first.
        const int maxLength = text_.MaxLength > 0 ? static_cast<int>(text_.MaxLength) : 32767;
        if (line_->maxLength() != maxLength) line_->setMaxLength(maxLength);
        line_->setEchoMode(text_.PasswordChar().empty() ? QLineEdit::Normal : QLineEdit::Password);
        line_->setAlignment(text_.Alignment == 1 ? Qt::AlignRight : text_.Alignment == 2 ? Qt::AlignHCenter : Qt::AlignLeft);
        if (line_->text() != shown) line_->setText(shown);
        line_->setSelection(start, end - start);
    } else {
        if (plain_->toPlainText() != shown) plain_->setPlainText(shown);
        QTextCursor cursor = plain_->textCursor();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        plain_->setTextCursor(cursor);
        plain_->setReadOnly(text_.Locked);
        plain_->setLineWrapMode(text_.ScrollBars == 1 || text_.ScrollBars == 3 ? QPlainTextEdit::NoWrap
                                                                               : QPlainTextEdit::WidgetWidth);
    }
    applyColors(edit, QPalette::Base, QPalette::Text);
    applyFont(edit);
}

}  // namespace orbidex
