#pragma once
// Event lines for tests, written out field by field.

#include <string>
#include <vector>

namespace orbidex::test {

/// The fields, each followed by the byte 0x1F.
inline std::string Fields(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& f : fields) line += f + "\x1F";
    return line;
}

/// A full event line with the usual fields filled and the others empty.
inline std::string EventLine(const std::string& id, const std::string& date, const std::string& time,
                             const std::string& details, const std::string& reference = "Phone",
                             const std::string& length = "30") {
    return Fields({id, date, reference, time, length, "Call", "fred", "", "", "", "", "Normal", "", "Office", details});
}

}  // namespace orbidex::test
