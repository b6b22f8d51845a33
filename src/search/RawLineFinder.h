#pragma once
// Finds the lines of a file's bytes that hold a text, without cutting the bytes into
// lines first: the text is looked for in the whole buffer, and only around a hit are
// the line's start and end found.  So a search over years of monthly files costs one
// pass over their bytes, and only the lines that hold the text are ever copied.
//
// Without regard to case, the letters a to z and A to Z count as the same, as UCase
// has them; every other byte counts as itself.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orbidex {

class RawLineFinder {
public:
    RawLineFinder(std::string_view text, bool caseSensitive);

    /// Calls `found(line)` for each line of `bytes` that holds the text, in order and
    /// once per line.  Lines end at CR LF, a lone CR or a lone LF, as SplitLines cuts
    /// them.  An empty text is found in every line; a text holding a line break in
    /// none.
    template <typename Found>
    void ForEachLine(std::string_view bytes, Found&& found) const;

private:
    /// The place of the next hit at or after `from`, or npos.
    size_t find(std::string_view bytes, size_t from) const;
    unsigned char fold(unsigned char c) const { return fold_[c]; }

    std::string text_;  ///< folded when the search ignores case
    bool never_ = false;
    std::array<unsigned char, 256> fold_{};
    std::array<size_t, 256> skip_{};
};

namespace detail {
inline bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}
}  // namespace detail

template <typename Found>
void RawLineFinder::ForEachLine(std::string_view bytes, Found&& found) const {
    if (never_) return;
    size_t from = 0;
    while (from < bytes.size()) {
        const size_t hit = text_.empty() ? from : find(bytes, from);
        if (hit == std::string_view::npos) return;
        size_t start = hit;
        while (start > from && !detail::IsLineEnd(bytes[start - 1])) --start;
        size_t end = hit;
        while (end < bytes.size() && !detail::IsLineEnd(bytes[end])) ++end;
        found(bytes.substr(start, end - start));
        if (end < bytes.size() && bytes[end] == '\r' && end + 1 < bytes.size() && bytes[end + 1] == '\n') ++end;
        from = end + 1;
    }
}

}  // namespace orbidex
