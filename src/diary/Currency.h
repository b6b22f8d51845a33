#pragma once
// A money value: a 64-bit count of ten-thousandths, so that sums of amounts stay exact.

#include <cstdint>
#include <string>

namespace orbidex {

struct Currency {
    int64_t tenThousandths = 0;

    /// The nearest value with four decimals; values beyond the range stop at its ends.
    static Currency FromNumber(double value);
    /// Decimal text without trailing zeros: "12.5", "-3", "0".
    std::string Text() const;

    friend bool operator==(Currency a, Currency b) { return a.tenThousandths == b.tenThousandths; }
};

}  // namespace orbidex
