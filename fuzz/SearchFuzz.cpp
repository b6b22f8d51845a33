// Random bytes as a monthly file, searched for a text taken from their first bytes:
// the lines found are exactly the lines that hold the text, the same with and
// without regard to case as a plain line-by-line test finds them.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzProgram.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "search/RawLineFinder.h"

namespace {

// The lines of `bytes` that hold `text`, the slow way.
std::vector<std::string> linesHolding(const std::string& bytes, const std::string& text, bool caseSensitive) {
    std::vector<std::string> found;
    for (const std::string& line : orbidex::SplitLines(bytes)) {
        const bool holds = caseSensitive ? orbidex::InStr(line, text) > 0 : orbidex::InStrText(1, line, text) > 0;
        if (holds) found.push_back(line);
    }
    return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    orbidex::test::StartFuzzInput();

    const bool caseSensitive = (data[0] & 0x80) != 0;
    const size_t textLength = std::min<size_t>(data[0] & 0x0F, size - 1);
    const std::string text(reinterpret_cast<const char*>(data + 1), textLength);
    const std::string bytes(reinterpret_cast<const char*>(data + 1 + textLength), size - 1 - textLength);

    std::vector<std::string> byFinder;
    orbidex::RawLineFinder(text, caseSensitive).ForEachLine(bytes, [&](std::string_view line) {
        byFinder.emplace_back(line);
    });
    std::vector<std::string> expected = linesHolding(bytes, text, caseSensitive);
    if (text.find_first_of("\r\n") != std::string::npos) expected.clear();
    if (byFinder != expected) std::abort();

    // The whole search over the bytes as a month: never more than the finder's lines.
    const std::string file = orbidex::gStrDataPath + "D200406.dat";
    orbidex::WriteWholeFile(file, bytes);
    long found = 0;
    const std::vector<std::string> lines = orbidex::glbEvents.SearchListOfDiaryFiles(
        caseSensitive, {file}, "29991231", "00000000", text, found, (data[0] & 0x40) != 0, (data[0] & 0x20) != 0);
    if (found != static_cast<long>(lines.size()) || lines.size() > byFinder.size()) std::abort();
    return 0;
}
