#include "dialogs/TextEditCommands.h"

#include "controls/DataObject.h"
#include "controls/RichTextBox.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

std::string fileContent(const std::string& path) {
    std::string bytes;
    if (FileExists(path)) ReadWholeFile(path, bytes);
    return bytes;
}

}  // namespace

void CutSelection(RichTextBox& text) {
    if (text.SelLength == 0) return;
    platform().SetClipboardText(text.SelText);
    text.SelText = "";
}

void CopySelection(RichTextBox& text) {
    if (text.SelLength > 0) platform().SetClipboardText(text.SelText);
}

void SelectAllText(RichTextBox& text) {
    text.SelStart = 0;
    text.SelLength = Len(text.Text());
}

void SelectAllAndCopy(RichTextBox& text) {
    SelectAllText(text);
    platform().SetClipboardText("");
    platform().SetClipboardText(text.Text);
}

void AppendLine(RichTextBox& text, const std::string& line) {
    text.Text = text.Text() + "\r\n" + line;
}

void DropIntoText(RichTextBox& text, const DataObject& data) {
    if (!data.HasFiles()) {
        AppendLine(text, data.Text);
        return;
    }
    if (data.Files.size() == 1 && text.Text().empty()) {
        text.Text = fileContent(data.Files.front());
        return;
    }
    if (data.Files.size() > 1) {
        const std::string question =
            "Copy contents from " + CStr(static_cast<long>(data.Files.size())) + " files into Textbox?";
        if (platform().MsgBox(question, vbYesNo, "Pasting Text from Files") != vbYes) return;
    }
    for (const std::string& file : data.Files) AppendLine(text, file + "\r\n" + fileContent(file) + "\r\n");
}

}  // namespace orbidex
