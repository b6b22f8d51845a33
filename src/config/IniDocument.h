#pragma once
// The text of an INI file, read and changed by the rules of the system's private-profile
// functions: "[section]" lines, "key=value" lines and ";" comment lines; section and key
// names match without regard to case; the first section and the first key of a name win.
// A change touches only the bytes it must: every other line, comments and blank lines
// included, stays as it was.

#include <string>
#include <string_view>
#include <vector>

namespace orbidex {

class IniDocument {
public:
    explicit IniDocument(std::string text);

    const std::string& Text() const { return text_; }

    /// The value of `key` in `section`, without blanks and tabs around it; false when
    /// the section or the key is missing.
    bool Find(std::string_view section, std::string_view key, std::string& value) const;

    /// Replaces the key's value in place, or adds "key=value" after the last line of
    /// the section that is not blank, or adds the section with the key at the end.
    /// Names and value are cut at the first NUL, CR or LF, since a line holds one key.
    void Set(std::string_view section, std::string_view key, std::string_view value);

private:
    struct Line {
        size_t start = 0;  ///< first byte of the line
        size_t end = 0;    ///< the byte after its text, where the line end begins
        size_t next = 0;   ///< first byte of the following line
    };
    /// The lines of the section, from its heading to the line before the next one.
    struct SectionRange {
        size_t heading = 0;
        size_t last = 0;
    };

    void scan();
    std::string_view textOf(const Line& line) const;
    bool findSection(std::string_view section, SectionRange& range) const;
    /// Index of the key's line within the section, or false.
    bool findKey(const SectionRange& range, std::string_view key, size_t& index) const;
    void insertAfter(size_t index, const std::string& lineText);
    void appendLines(const std::string& lines);

    std::string text_;
    std::vector<Line> lines_;
};

}  // namespace orbidex
