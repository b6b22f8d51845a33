#include "diary/ProfileKeys.h"

#include <vector>

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex {

namespace {

// "[name]" with blanks around allowed; "" for any other line.
std::string sectionName(const std::string& line) {
    const std::string t = Trim(line);
    if (t.size() < 2 || t.front() != '[' || t.back() != ']') return "";
    return Trim(t.substr(1, t.size() - 2));
}

bool isKeyLine(const std::string& line, const std::string& key) {
    const long equals = InStr(line, "=");
    return equals > 0 && EqualsText(Trim(Left(line, equals - 1)), key);
}

std::vector<std::string> fileLines(const std::string& file) {
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) return {};
    return SplitLines(bytes);
}

}  // namespace

std::string ReadProfileKey(const std::string& file, const std::string& section, const std::string& key) {
    bool inSection = false;
    for (const std::string& line : fileLines(file)) {
        const std::string name = sectionName(line);
        if (!name.empty()) {
            inSection = EqualsText(name, section);
        } else if (inSection && isKeyLine(line, key)) {
            return Trim(Mid(line, InStr(line, "=") + 1));
        }
    }
    return "";
}

void WriteProfileKey(const std::string& file, const std::string& section, const std::string& key,
                     const std::string& value) {
    std::vector<std::string> lines = fileLines(file);
    const std::string entry = key + "=" + value;
    long sectionStart = -1;   // index of the section's heading
    long lastOfSection = -1;  // index of the section's last non-blank line
    for (long i = 0; i < static_cast<long>(lines.size()); ++i) {
        const std::string name = sectionName(lines[i]);
        if (!name.empty()) {
            if (sectionStart >= 0) break;
            if (EqualsText(name, section)) sectionStart = lastOfSection = i;
        } else if (sectionStart >= 0) {
            if (isKeyLine(lines[i], key)) {
                lines[i] = entry;
                WriteWholeFile(file, Join(lines, "\r\n") + "\r\n");
                return;
            }
            if (!Trim(lines[i]).empty()) lastOfSection = i;
        }
    }
    if (sectionStart >= 0) {
        lines.insert(lines.begin() + lastOfSection + 1, entry);
    } else {
        lines.push_back("[" + section + "]");
        lines.push_back(entry);
    }
    WriteWholeFile(file, Join(lines, "\r\n") + "\r\n");
}

}  // namespace orbidex
