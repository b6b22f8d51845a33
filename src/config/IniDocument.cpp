#include "config/IniDocument.h"

#include "foundation/VbString.h"

namespace orbidex {

namespace {

constexpr const char* kLineEnd = "\r\n";

bool isBlankOrTab(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimBlanksAndTabs(std::string_view s) {
    while (!s.empty() && isBlankOrTab(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlankOrTab(s.back())) s.remove_suffix(1);
    return s;
}

// A name or value as one line can hold it: up to the first NUL, CR or LF.
std::string_view oneLine(std::string_view s) {
    const size_t cut = s.find_first_of(std::string_view("\0\r\n", 3));
    return cut == std::string_view::npos ? s : s.substr(0, cut);
}

bool isComment(std::string_view line) {
    return !line.empty() && line.front() == ';';
}

// The name of a "[name]" line, or false for any other line.
bool sectionNameOf(std::string_view line, std::string_view& name) {
    line = trimBlanksAndTabs(line);
    if (line.empty() || line.front() != '[') return false;
    line.remove_prefix(1);
    const size_t close = line.find(']');
    name = trimBlanksAndTabs(close == std::string_view::npos ? line : line.substr(0, close));
    return true;
}

// The key and value of a "key=value" line, or false for any other line.
bool keyValueOf(std::string_view line, std::string_view& key, std::string_view& value) {
    line = trimBlanksAndTabs(line);
    if (isComment(line) || (!line.empty() && line.front() == '[')) return false;
    const size_t equals = line.find('=');
    if (equals == std::string_view::npos) return false;
    key = trimBlanksAndTabs(line.substr(0, equals));
    value = trimBlanksAndTabs(line.substr(equals + 1));
    return true;
}

}  // namespace

IniDocument::IniDocument(std::string text) : text_(std::move(text)) {
    scan();
}

void IniDocument::scan() {
    lines_.clear();
    size_t start = 0;
    for (size_t i = 0; i < text_.size(); ++i) {
        if (text_[i] != '\r' && text_[i] != '\n') continue;
        size_t next = i + 1;
        if (text_[i] == '\r' && next < text_.size() && text_[next] == '\n') ++next;
        lines_.push_back({start, i, next});
        start = next;
        i = next - 1;
    }
    if (start < text_.size()) lines_.push_back({start, text_.size(), text_.size()});
}

std::string_view IniDocument::textOf(const Line& line) const {
    return std::string_view(text_).substr(line.start, line.end - line.start);
}

bool IniDocument::findSection(std::string_view section, SectionRange& range) const {
    section = trimBlanksAndTabs(oneLine(section));
    for (size_t i = 0; i < lines_.size(); ++i) {
        std::string_view name;
        if (!sectionNameOf(textOf(lines_[i]), name) || !EqualsText(name, section)) continue;
        range.heading = i;
        range.last = i;
        for (size_t j = i + 1; j < lines_.size() && !sectionNameOf(textOf(lines_[j]), name); ++j) range.last = j;
        return true;
    }
    return false;
}

bool IniDocument::findKey(const SectionRange& range, std::string_view key, size_t& index) const {
    key = trimBlanksAndTabs(oneLine(key));
    for (size_t i = range.heading + 1; i <= range.last; ++i) {
        std::string_view name, value;
        if (keyValueOf(textOf(lines_[i]), name, value) && EqualsText(name, key)) {
            index = i;
            return true;
        }
    }
    return false;
}

bool IniDocument::Find(std::string_view section, std::string_view key, std::string& value) const {
    SectionRange range;
    size_t index = 0;
    if (!findSection(section, range) || !findKey(range, key, index)) return false;
    std::string_view name, found;
    keyValueOf(textOf(lines_[index]), name, found);
    value.assign(found);
    return true;
}

void IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
    const std::string sectionName(trimBlanksAndTabs(oneLine(section)));
    const std::string keyName(trimBlanksAndTabs(oneLine(key)));
    const std::string newValue(oneLine(value));

    SectionRange range;
    if (!findSection(sectionName, range)) {
        appendLines("[" + sectionName + "]" + kLineEnd + keyName + "=" + newValue + kLineEnd);
        return;
    }
    size_t index = 0;
    if (findKey(range, keyName, index)) {
        // The key keeps the spelling it has in the file; only the value changes.
        std::string_view existingKey, oldValue;
        keyValueOf(textOf(lines_[index]), existingKey, oldValue);
        const std::string lineText = std::string(existingKey) + "=" + newValue;
        text_.replace(lines_[index].start, lines_[index].end - lines_[index].start, lineText);
        scan();
        return;
    }
    // Trailing blank lines keep separating this section from the next.
    size_t last = range.last;
    while (last > range.heading && trimBlanksAndTabs(textOf(lines_[last])).empty()) --last;
    insertAfter(last, keyName + "=" + newValue);
}

void IniDocument::insertAfter(size_t index, const std::string& lineText) {
    const Line& line = lines_[index];
    if (line.next == line.end) {
        // The last line of the file has no line end yet.
        text_.insert(line.end, kLineEnd + lineText + kLineEnd);
    } else {
        text_.insert(line.next, lineText + kLineEnd);
    }
    scan();
}

void IniDocument::appendLines(const std::string& lines) {
    if (!text_.empty() && text_.back() != '\n' && text_.back() != '\r') text_ += kLineEnd;
    text_ += lines;
    scan();
}

}  // namespace orbidex
