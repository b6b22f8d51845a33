#include "qt/views/RichTextBoxWidget.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>

#include "controls/RichTextBox.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

namespace {

QTextCharFormat toCharFormat(const CharFormat& format) {
    QTextCharFormat chars;
    chars.setFont(ToQFont(format.fontName, format.size, format.bold, format.italic));
    chars.setForeground(ToQColor(format.color));
    return chars;
}

OleColor toOleColor(const QColor& color) { return RGB(color.red(), color.green(), color.blue()); }

CharFormat fromCharFormat(const QTextCharFormat& chars, const CharFormat& fallback) {
    CharFormat format = fallback;
    const QFont font = chars.font();
    format.fontName = font.family().toStdString();
    format.size = font.pointSizeF() > 0 ? font.pointSizeF() : fallback.size;
    format.bold = font.bold();
    format.italic = font.italic();
    if (chars.hasProperty(QTextFormat::ForegroundBrush)) format.color = toOleColor(chars.foreground().color());
    return format;
}

}  // namespace

RichTextBoxWidget::RichTextBoxWidget(RichTextBox& control, QWidget* parent)
    : ControlWidget(control, parent), rich_(control), edit_(new QTextEdit) {
    setInner(edit_, edit_->viewport(), edit_);
    edit_->setAcceptRichText(false);
    connect(edit_, &QTextEdit::textChanged, this, [this] { userEdited(); });
    connect(edit_, &QTextEdit::cursorPositionChanged, this, [this] { userSelected(); });
    connect(edit_, &QTextEdit::selectionChanged, this, [this] { userSelected(); });
    rich_.SetUndoHandler([this] { edit_->undo(); });
    // A control with a right-button handler shows its own menu.
    if (control.onMouseDown) edit_->setContextMenuPolicy(Qt::NoContextMenu);
    refresh();
}

RichTextBoxWidget::~RichTextBoxWidget() {
    if (model() != nullptr) rich_.SetUndoHandler(nullptr);
}

void RichTextBoxWidget::userEdited() {
    if (syncing() || model() == nullptr) return;
    std::vector<TextRun> runs;
    const std::vector<TextRun> before = rich_.Runs();
    const CharFormat fallback = before.empty() ? CharFormat{} : before.front().format;
    for (QTextBlock block = edit_->document()->begin(); block.isValid(); block = block.next()) {
        if (block != edit_->document()->begin()) {
            // The line end takes the format of what stands before it.
            runs.push_back({"\r\n", runs.empty() ? fallback : runs.back().format});
        }
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.isValid()) runs.push_back({FromQString(fragment.text()), fromCharFormat(fragment.charFormat(), fallback)});
        }
    }
    std::string text;
    for (const TextRun& run : runs) text += run.text;
    shownVersion_ = rich_.ContentVersion() + 1;  // what the widget shows is the model's next version
    rich_.UserEdit(runs, FromWidgetPosition(text, edit_->textCursor().position()));
    shownVersion_ = rich_.ContentVersion();
}

void RichTextBoxWidget::userSelected() {
    if (syncing() || model() == nullptr) return;
    const QTextCursor cursor = edit_->textCursor();
    const std::string text = rich_.Text;
    // The caret moves before the text change is told: wait for the change.
    if (edit_->document()->characterCount() - 1 != ToWidgetPosition(text, static_cast<long>(text.size()))) return;
    const long start = FromWidgetPosition(text, cursor.selectionStart());
    rich_.UserSelect(start, FromWidgetPosition(text, cursor.selectionEnd()) - start);
}

void RichTextBoxWidget::syncFromModel() {
    if (shownVersion_ != rich_.ContentVersion()) {
        // Only the user's edits can be taken back, not a text the program put there.
        edit_->setUndoRedoEnabled(false);
        edit_->clear();
        QTextCursor cursor(edit_->document());
        for (const TextRun& run : rich_.Runs()) cursor.insertText(ToQString(run.text), toCharFormat(run.format));
        edit_->setUndoRedoEnabled(true);
        shownVersion_ = rich_.ContentVersion();
    }
    const std::string text = rich_.Text;
    QTextCursor cursor = edit_->textCursor();
    cursor.setPosition(ToWidgetPosition(text, rich_.SelStart));
    cursor.setPosition(ToWidgetPosition(text, rich_.SelStart + rich_.SelLength), QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
    edit_->setReadOnly(rich_.Locked);
    applyColors(edit_, QPalette::Base, QPalette::Text);
    applyFont(edit_);
}

}  // namespace orbidex
