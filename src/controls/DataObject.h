#pragma once
// What the user dropped on a control from outside the program: files (in stored
// form, "\" separators) or text (Windows-1252 bytes).

#include <string>
#include <vector>

namespace orbidex {

constexpr int vbCFText = 1;
constexpr int vbCFFiles = 15;

struct DataObject {
    std::vector<std::string> Files;
    std::string Text;

    bool HasFiles() const { return !Files.empty(); }
    bool HasText() const { return !Text.empty(); }
    /// True when the drop carries data of the format (vbCFText, vbCFFiles).
    bool GetFormat(int format) const { return format == vbCFFiles ? HasFiles() : format == vbCFText && HasText(); }
    /// The text of the drop, or "" for any other format.
    std::string GetData(int format) const { return format == vbCFText ? Text : std::string(); }
};

}  // namespace orbidex
