#include "controls/RichTextBox.h"

#include <algorithm>

#include "foundation/FileSystem.h"
#include "platform/Platform.h"

namespace orbidex {

RichTextBox::RichTextBox(Form* form, std::string name)
    : Control(form, std::move(name)),
      Text([this] { return text_; }, [this](const std::string& text) { setText(text); }),
      SelText([this] { return text_.substr(static_cast<size_t>(SelStart), static_cast<size_t>(SelLength)); },
              [this](const std::string& text) { replaceSelection(text); }),
      SelColor([this] { return formatAtSelection().color; },
               [this](const OleColor& c) { changeFormat([c](CharFormat& f) { f.color = c; }); }),
      SelFontSize([this] { return formatAtSelection().size; },
                  [this](const double& s) { changeFormat([s](CharFormat& f) { f.size = s; }); }),
      SelBold([this] { return formatAtSelection().bold; },
              [this](const bool& b) { changeFormat([b](CharFormat& f) { f.bold = b; }); }),
      SelItalic([this] { return formatAtSelection().italic; },
                [this](const bool& i) { changeFormat([i](CharFormat& f) { f.italic = i; }); }),
      SelFontName([this] { return formatAtSelection().fontName; },
                  [this](const std::string& n) { changeFormat([n](CharFormat& f) { f.fontName = n; }); }) {
    BackColor = vbWindowBackground;
}

CharFormat RichTextBox::defaultFormat() const {
    CharFormat format;
    format.color = ForeColor;
    format.size = FontSize;
    format.bold = FontBold;
    format.italic = FontItalic;
    format.fontName = FontName;
    return format;
}

CharFormat RichTextBox::formatAtSelection() const {
    if (SelLength == 0 && hasTypingFormat_) return typingFormat_;
    if (text_.empty()) return defaultFormat();
    size_t at = static_cast<size_t>(SelStart);
    if (SelLength == 0 && at > 0) --at;  // text typed at the caret continues what stands before it
    at = std::min(at, text_.size() - 1);
    return palette_[formatOf_[at]];
}

uint16_t RichTextBox::formatIndex(const CharFormat& format) {
    const auto it = std::find(palette_.begin(), palette_.end(), format);
    if (it != palette_.end()) return static_cast<uint16_t>(it - palette_.begin());
    if (palette_.size() >= 0xFFFF) return 0;  // a pathological number of formats: reuse the first
    palette_.push_back(format);
    return static_cast<uint16_t>(palette_.size() - 1);
}

std::vector<TextRun> RichTextBox::Runs() const {
    std::vector<TextRun> runs;
    for (size_t i = 0; i < text_.size(); ++i) {
        const CharFormat& format = palette_[formatOf_[i]];
        if (runs.empty() || !(runs.back().format == format)) runs.push_back({"", format});
        runs.back().text += text_[i];
    }
    return runs;
}

void RichTextBox::setText(const std::string& text) {
    text_ = text;
    palette_.clear();
    formatOf_.assign(text_.size(), formatIndex(defaultFormat()));
    hasTypingFormat_ = false;
    SelStart.setQuietly(0);
    SelLength.setQuietly(0);
    contentChanged();
}

void RichTextBox::replaceSelection(const std::string& text) {
    clampSelection();
    const uint16_t format = formatIndex(formatAtSelection());
    const auto start = static_cast<size_t>(SelStart);
    const auto length = static_cast<size_t>(SelLength);
    text_.replace(start, length, text);
    formatOf_.erase(formatOf_.begin() + static_cast<long>(start), formatOf_.begin() + static_cast<long>(start + length));
    formatOf_.insert(formatOf_.begin() + static_cast<long>(start), text.size(), format);
    SelStart.setQuietly(static_cast<long>(start + text.size()));
    SelLength.setQuietly(0);
    hasTypingFormat_ = false;  // the new text carries it now
    contentChanged();
}

template <typename Change>
void RichTextBox::changeFormat(Change change) {
    clampSelection();
    if (SelLength == 0) {
        typingFormat_ = formatAtSelection();
        change(typingFormat_);
        hasTypingFormat_ = true;
        Changed();
        return;
    }
    const auto start = static_cast<size_t>(SelStart);
    for (size_t i = start; i < start + static_cast<size_t>(SelLength); ++i) {
        CharFormat format = palette_[formatOf_[i]];
        change(format);
        formatOf_[i] = formatIndex(format);
    }
    ++contentVersion_;
    Changed();
}

void RichTextBox::Paste() { replaceSelection(platform().ClipboardText()); }

bool RichTextBox::LoadFile(const std::string& path, int) {
    std::string bytes;
    if (!ReadWholeFile(path, bytes)) return false;
    Text = bytes;
    return true;
}

bool RichTextBox::SaveFile(const std::string& path, int) const { return WriteWholeFile(path, text_); }

void RichTextBox::UserEdit(const std::vector<TextRun>& runs, long caret) {
    if (Locked) return;
    text_.clear();
    formatOf_.clear();
    palette_.clear();
    for (const TextRun& run : runs) {
        text_ += run.text;
        formatOf_.insert(formatOf_.end(), run.text.size(), formatIndex(run.format));
    }
    SelStart.setQuietly(caret);
    SelLength.setQuietly(0);
    clampSelection();
    contentChanged();
}

void RichTextBox::UserSelect(long start, long length) {
    hasTypingFormat_ = false;
    SelStart.setQuietly(start);
    SelLength.setQuietly(length);
    clampSelection();
    Changed();
    Raise(onSelChange);
}

void RichTextBox::contentChanged() {
    ++contentVersion_;
    Changed();
    Raise(onChange);
}

void RichTextBox::clampSelection() {
    const long length = static_cast<long>(text_.size());
    SelStart.setQuietly(std::clamp<long>(SelStart, 0, length));
    SelLength.setQuietly(std::clamp<long>(SelLength, 0, length - SelStart));
}

void RichTextBox::PropertyChanged(const void* property) {
    if (property == &SelStart || property == &SelLength) clampSelection();
    Control::PropertyChanged(property);
}

}  // namespace orbidex
