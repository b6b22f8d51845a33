#pragma once
// A text box whose characters each carry a colour, size, weight and font.  The
// `Sel...` properties read the format at the selection and, when assigned, format
// the selected characters, or with nothing selected the text typed next at the
// caret.  Text holds Windows-1252 bytes with lines ending in CR LF; positions count
// from 0.  Every change of the text raises Change.

#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

constexpr int rtfRTF = 0;
constexpr int rtfText = 1;

struct CharFormat {
    OleColor color = vbWindowText;
    double size = 8.25;
    bool bold = false;
    bool italic = false;
    std::string fontName = "MS Sans Serif";
    bool operator==(const CharFormat&) const = default;
};

/// A stretch of characters that share one format.
struct TextRun {
    std::string text;
    CharFormat format;
};

class RichTextBox : public Control {
public:
    RichTextBox(Form* form, std::string name);
    explicit RichTextBox(std::string name = "") : RichTextBox(nullptr, std::move(name)) {}

    /// The whole text; assigning it gives every character the control's own font
    /// and colour and puts the caret at the start.
    Accessor<std::string> Text;
    Property<long> SelStart{this, 0};
    Property<long> SelLength{this, 0};
    /// Assigning replaces the selection with text in the format at the caret.
    Accessor<std::string> SelText;
    Accessor<OleColor> SelColor;
    Accessor<double> SelFontSize;
    Accessor<bool> SelBold;
    Accessor<bool> SelItalic;
    Accessor<std::string> SelFontName;
    Property<bool> Locked{this, false};
    Property<bool> MultiLine{this, true};
    Property<int> ScrollBars{this, 3};

    std::function<void()> onChange;
    std::function<void()> onSelChange;

    /// The text in runs of one format, for drawing.
    std::vector<TextRun> Runs() const;
    /// Inserts the clipboard's text at the selection, in the format at the caret.
    void Paste();
    /// Reads a file into the box (its bytes as text; rtfRTF and rtfText alike).
    /// False when the file can't be read; the box then keeps its text.
    bool LoadFile(const std::string& path, int fileType = rtfText);
    /// Writes the text to a file; false on failure.
    bool SaveFile(const std::string& path, int fileType = rtfText) const;
    /// Takes back the user's last edit, as the window's edit command does; without a
    /// window there is none to take back.
    void Undo() {
        if (undo_) undo_();
    }
    /// Set by the view, which keeps the user's edits.
    void SetUndoHandler(std::function<void()> handler) { undo_ = std::move(handler); }

    /// The user edited: the box now holds these runs, the caret at `caret`.
    void UserEdit(const std::vector<TextRun>& runs, long caret);
    void UserSelect(long start, long length);
    /// A counter that moves with each change of text or format (views compare it).
    unsigned long ContentVersion() const { return contentVersion_; }

    void PropertyChanged(const void* property) override;

private:
    CharFormat defaultFormat() const;
    CharFormat formatAtSelection() const;
    uint16_t formatIndex(const CharFormat& format);
    void setText(const std::string& text);
    void replaceSelection(const std::string& text);
    template <typename Change>
    void changeFormat(Change change);
    void contentChanged();
    void clampSelection();

    std::string text_;
    std::vector<uint16_t> formatOf_;    ///< one entry per character, into palette_
    std::vector<CharFormat> palette_;
    bool hasTypingFormat_ = false;
    CharFormat typingFormat_;           ///< the format of text typed at the caret
    unsigned long contentVersion_ = 0;
    std::function<void()> undo_;
};

}  // namespace orbidex
