// Random text through the number and date readers and the format patterns.
#include <cstddef>
#include <cstdint>
#include <string>

#include "foundation/VbDate.h"
#include "foundation/VbString.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    double number = orbidex::Val(text);
    orbidex::TryParseNumber(text, number);
    int32_t whole = 0;
    orbidex::TryParseLong(text, whole);
    orbidex::VbDate date = 0;
    orbidex::TryParseDate(text, date);
    const std::string pattern = text.substr(0, 64);
    orbidex::FormatDate(orbidex::DateSerial(2004, 6, 5) + orbidex::TimeSerial(17, 5, 9), pattern);
    orbidex::FormatNumber(number, pattern);
    orbidex::Split(text, ",");
    return 0;
}
