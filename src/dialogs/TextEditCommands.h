#pragma once
// The edit commands of the pop-up menu that the note editor and the scratch pad
// share, and what a drop of files or text from other programs adds to their text.

#include <string>

namespace orbidex {

class RichTextBox;
struct DataObject;

/// The selection to the desktop's clipboard, then out of the text.
void CutSelection(RichTextBox& text);
/// The selection to the desktop's clipboard.
void CopySelection(RichTextBox& text);
void SelectAllText(RichTextBox& text);
/// Selects the whole text and puts it on the desktop's clipboard.
void SelectAllAndCopy(RichTextBox& text);
/// Adds a line break and `line` at the end of the text.
void AppendLine(RichTextBox& text, const std::string& line);
/// Dropped text is added as a line; the content of dropped files too (after asking,
/// for several), or one file's content becomes an empty text.
void DropIntoText(RichTextBox& text, const DataObject& data);

}  // namespace orbidex
