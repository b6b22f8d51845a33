#include "controls/LoadFileToListBox.h"

#include <functional>
#include <vector>

#include "controls/ComboBox.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

namespace {

/// The file's non-empty lines, or false when there is no file to read.
bool readEntries(const std::string& file, std::vector<std::string>& lines) {
    if (file.empty()) return false;
    std::string bytes;
    if (!FileExists(file) || !ReadWholeFile(file, bytes)) {
        glbLog.log("LoadFileToListBox : cant find " + file, 3);
        return false;
    }
    for (std::string& line : SplitLines(bytes))
        if (!line.empty()) lines.push_back(std::move(line));
    return true;
}

std::string withoutTrailingComma(const std::string& line) { return EndsWith(line, ",") ? Left(line, Len(line) - 1) : line; }

}  // namespace

void LoadFileToListBox(ListBox& list, const std::string& file, int keep) {
    std::vector<std::string> lines;
    if (!readEntries(file, lines)) return;
    if (keep != 1) list.Clear();
    const bool ticks = list.Style == vbListBoxCheckbox;
    for (const std::string& line : lines) {
        list.AddItem(ticks ? withoutTrailingComma(line) : line);
        if (ticks) list.SetSelected(list.NewIndex(), true);
    }
}

void LoadFileToListBox(ComboBox& list, const std::string& file, int keep) {
    std::vector<std::string> lines;
    if (!readEntries(file, lines)) return;
    if (keep != 1) list.Clear();
    for (const std::string& line : lines) list.AddItem(line);
}

void LoadFileToListBox(ListView& list, const std::string& file, int keep) {
    std::vector<std::string> lines;
    if (!readEntries(file, lines)) return;
    if (keep != 1) list.ListItems.Clear();
    const bool ticks = list.Checkboxes;
    for (const std::string& line : lines) {
        ListItem& item = list.ListItems.Add(ticks ? withoutTrailingComma(line) : line);
        if (ticks) item.Checked = true;
    }
}

}  // namespace orbidex
