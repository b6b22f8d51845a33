#include "foundation/StringHelpers.h"

#include <cmath>
#include <utility>

#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

std::string FormatMinutes(long minutes) {
    if (gHoursPerDay >= 2 && minutes > gHoursPerDay * 60) {
        const double daysExact = static_cast<double>(minutes) / 60.0 / gHoursPerDay;
        const long days = static_cast<long>(std::floor(daysExact));
        const double hoursLeft = (daysExact - static_cast<double>(days)) * gHoursPerDay;
        const long hours = static_cast<long>(std::floor(hoursLeft));
        const long rest = minutes - static_cast<long>(std::lround((static_cast<double>(days) * gHoursPerDay + hours) * 60));
        return CStr(days) + " days " + CStr(hours) + " hours " + CStr(rest) + " min  ";
    }
    if (minutes >= 61) return CStr(minutes / 60) + " hr " + CStr(minutes % 60) + " min  ";
    return CStr(minutes) + " min  ";
}

std::string ReplaceLineBreaks(const std::string& text) {
    std::string r = text;
    for (char& c : r)
        if (c == '\r' || c == '\n') c = ' ';
    return r;
}

std::string KeepPlainCharacters(const std::string& text) {
    std::string r;
    for (char c : text) {
        const bool keep = c == ' ' || (c >= '0' && c <= '9') || (c >= 64 && c <= 91) || (c >= 'a' && c <= 'z');
        if (keep) r.push_back(c);
    }
    return r;
}

std::string TrimAtNull(const std::string& text) {
    const auto nul = text.find('\0');
    return nul == std::string::npos ? text : text.substr(0, nul);
}

std::string ProperCase(const std::string& text) { return UCase(Left(text, 1)) + LCase(Mid(text, 2)); }

std::string PadWithBlanks(const std::string& text, long width) {
    const long blanks = width - Len(text) + 1;
    return text + Space(blanks);
}

long SplitToArray(std::vector<std::string>& array, const std::string& delimiter, long maximum,
                  const std::string& text) {
    array = Split(text, delimiter, maximum);
    return static_cast<long>(array.size());
}

namespace {

// Hoare partition around a random pivot; equal texts split both ways, so a range of
// equal lines stays balanced.  The smaller side recurses, the larger one loops.
void quickSort(std::vector<std::string>& a, long low, long high) {
    while (low < high) {
        const long pick = low + static_cast<long>(platform().Rnd() * static_cast<double>(high - low + 1));
        std::swap(a[static_cast<size_t>(low)], a[static_cast<size_t>(std::min(pick, high))]);
        const std::string pivot = a[static_cast<size_t>(low)];
        long i = low - 1, j = high + 1;
        while (true) {
            do ++i; while (a[static_cast<size_t>(i)] < pivot);
            do --j; while (pivot < a[static_cast<size_t>(j)]);
            if (i >= j) break;
            std::swap(a[static_cast<size_t>(i)], a[static_cast<size_t>(j)]);
        }
        if (j - low < high - j) {
            quickSort(a, low, j);
            low = j + 1;
        } else {
            quickSort(a, j + 1, high);
            high = j;
        }
    }
}

}  // namespace

void SortTexts(std::vector<std::string>& texts, long low, long high) {
    if (low < 0 || high >= static_cast<long>(texts.size()) || low >= high) return;
    quickSort(texts, low, high);
}

void SortTexts(std::vector<std::string>& texts) { SortTexts(texts, 0, static_cast<long>(texts.size()) - 1); }

bool RunAndWait(const std::string& commandLine) { return platform().RunAndWait(commandLine); }

}  // namespace orbidex
