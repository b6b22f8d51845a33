// Random bytes as a monthly file: loading, saving, identifiers and look-ups never
// fail, and a second save of what the first wrote changes nothing.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzProgram.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto& [platform, folder] = orbidex::test::StartFuzzInput();
    orbidex::gStrDataPath = folder.Stored() + "\\";
    orbidex::gStrIniFile = orbidex::gStrDataPath + "orbidex.ini";
    const std::string file = orbidex::gStrDataPath + "D200406.dat";
    orbidex::WriteWholeFile(file, std::string(reinterpret_cast<const char*>(data), size));

    const orbidex::VbDate june = orbidex::DateSerial(2004, 6, 5);
    orbidex::cDiaryRecords& store = orbidex::glbEvents;
    store.LoadDiaryData(june);
    store.getUniqueID(file, june, orbidex::kFieldDelimiter);
    store.DoesDiaryRecordAlreadyExist("20040605", "0930", "x");
    store.SelectDiaryRecordIndex(june, "0930", "x");
    std::vector<orbidex::cDiaryRecord> records;
    store.ReadDiaryFileToArray(file, records, true);

    store.SaveDiaryArray(orbidex::kFieldDelimiter, nullptr);
    std::string first;
    orbidex::ReadWholeFile(file, first);
    store.LoadDiaryData(june);
    store.SaveDiaryArray(orbidex::kFieldDelimiter, nullptr);
    std::string second;
    orbidex::ReadWholeFile(file, second);
    // A question (the size guard) may keep a save from writing; then there is nothing to compare.
    if (platform.Transcript().empty() && first != second) std::abort();

    orbidex::cDiaryRecord added;
    added.GetDiaryRecordFromText(first.substr(0, first.find('\r')));
    store.AddDiaryRecord(added, true, true);
    store.DeleteDiaryEventFromArray(0);
    return 0;
}
