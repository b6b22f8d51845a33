#include "diary/Currency.h"

#include <cmath>

namespace orbidex {

Currency Currency::FromNumber(double value) {
    const double scaled = std::round(value * 10000.0);
    constexpr double kLimit = 9.2e18;  // inside the range of int64_t
    if (std::isnan(scaled)) return {};
    if (scaled >= kLimit) return {static_cast<int64_t>(kLimit)};
    if (scaled <= -kLimit) return {static_cast<int64_t>(-kLimit)};
    return {static_cast<int64_t>(scaled)};
}

std::string Currency::Text() const {
    const bool negative = tenThousandths < 0;
    // Work on the magnitude as unsigned so that the lowest value negates safely.
    const uint64_t magnitude =
        negative ? 0 - static_cast<uint64_t>(tenThousandths) : static_cast<uint64_t>(tenThousandths);
    std::string text = std::to_string(magnitude / 10000);
    uint64_t fraction = magnitude % 10000;
    if (fraction != 0) {
        std::string digits = std::to_string(fraction);
        digits.insert(0, 4 - digits.size(), '0');
        while (digits.back() == '0') digits.pop_back();
        text += "." + digits;
    }
    return negative ? "-" + text : text;
}

}  // namespace orbidex
