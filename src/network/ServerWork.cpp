#include "network/ServerWork.h"

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex {

namespace {

// The lines three at a time; a last record cut short reads its missing lines as "".
template <typename Take>
void forEachRecord(const std::string& text, Take take) {
    std::vector<std::string> lines = SplitLines(text);
    lines.resize((lines.size() + 2) / 3 * 3);
    for (size_t i = 0; i < lines.size(); i += 3) take(lines[i], lines[i + 1], lines[i + 2]);
}

}  // namespace

std::vector<ChangeRecord> ReadChangeRecords(const std::string& text) {
    std::vector<ChangeRecord> records;
    forEachRecord(text, [&](const std::string& who, const std::string& before, const std::string& after) {
        if (who.empty() || before.empty() || after.empty()) return;
        records.push_back({Trim(Mid(who, 20)), Trim(Mid(before, 4)), Trim(Mid(after, 4))});
    });
    return records;
}

std::vector<MessageRecord> ReadMessageRecords(const std::string& text) {
    std::vector<MessageRecord> records;
    forEachRecord(text, [&](const std::string&, const std::string& sender, const std::string& message) {
        if (!message.empty()) records.push_back({sender, message});
    });
    return records;
}

}  // namespace orbidex
