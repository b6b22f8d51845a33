#include "search/RawLineFinder.h"

namespace orbidex {

RawLineFinder::RawLineFinder(std::string_view text, bool caseSensitive) : text_(text) {
    for (size_t c = 0; c < fold_.size(); ++c) {
        const bool lower = c >= 'a' && c <= 'z';
        fold_[c] = static_cast<unsigned char>(lower && !caseSensitive ? c - 'a' + 'A' : c);
    }
    never_ = text_.find_first_of("\r\n") != std::string::npos;
    for (char& c : text_) c = static_cast<char>(fold(static_cast<unsigned char>(c)));

    // Horspool's table: how far the window may move when its last byte is c.
    skip_.fill(text_.size());
    for (size_t i = 0; i + 1 < text_.size(); ++i) {
        const auto folded = static_cast<unsigned char>(text_[i]);
        for (size_t c = 0; c < skip_.size(); ++c)
            if (fold_[c] == folded) skip_[c] = text_.size() - 1 - i;
    }
}

size_t RawLineFinder::find(std::string_view bytes, size_t from) const {
    const size_t n = text_.size();
    if (n == 0) return from <= bytes.size() ? from : std::string_view::npos;
    if (bytes.size() < n) return std::string_view::npos;
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* text = reinterpret_cast<const unsigned char*>(text_.data());
    const unsigned char last = text[n - 1];
    for (size_t at = from; at + n <= bytes.size();) {
        const unsigned char tail = data[at + n - 1];
        if (fold(tail) == last) {
            size_t i = 0;
            while (i + 1 < n && fold(data[at + i]) == text[i]) ++i;
            if (i + 1 >= n) return at;
        }
        at += skip_[tail];
    }
    return std::string_view::npos;
}

}  // namespace orbidex
