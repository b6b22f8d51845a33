#include "accessories/ScratchTabs.h"

#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex {

namespace {

// At most this many parts of a line are looked at.
constexpr long kLineParts = 10;

}  // namespace

std::vector<ScratchTab> ReadScratchTabs(std::string_view text) {
    std::vector<ScratchTab> tabs;
    bool inDefinitions = false;
    for (const std::string& line : SplitLines(text)) {
        if (!inDefinitions) {
            inDefinitions = UCase(Trim(line)) == "[TABDEFINITIONS]";
            continue;
        }
        std::vector<std::string> parts = Split(line, ",", kLineParts);
        parts.resize(3);
        for (std::string& part : parts) part = Trim(part);
        if (parts[0].empty()) continue;
        tabs.push_back({parts[0], parts[1], parts[2].empty() ? "FREE" : parts[2]});
    }
    return tabs;
}

std::string ScratchIniText(const std::vector<ScratchTab>& tabs, const std::string& user, VbDate moment) {
    // The comment has no line end of its own: the blank line printed after it ends it.
    std::string text = "; SCRATCH.INI created by " + user + " on " + FormatDate(moment, "DDD,dd-MMM-yyyy hh:mm:ss");
    text += "\r\n[TabDefinitions]\r\n\r\n";
    for (const ScratchTab& tab : tabs) text += tab.name + "," + tab.file + ",FREE,\r\n";
    return text;
}

std::vector<ScratchTab> DefaultScratchTabs(const std::string& folder) {
    std::vector<ScratchTab> tabs;
    for (int i = 1; i <= 3; ++i)
        tabs.push_back({"Scratch Pad " + CStr(i), folder + "~scratchpad00" + CStr(i) + ".tmp", "FREE"});
    return tabs;
}

}  // namespace orbidex
