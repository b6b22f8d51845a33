// Random bytes as a comma-separated file to import: reading it in any encoding,
// the heading, each line and the events added to their months never fail, and the
// event file beside it holds one line for every line of the file that is not blank.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzProgram.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecords.h"
#include "foundation/Cp1252.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/frmClientDiaryMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto& folder = orbidex::test::StartFuzzInput().folder;
    orbidex::gStrDataPath = folder.Stored() + "\\";
    orbidex::MainForm().MonthView1.Value = orbidex::DateSerial(2004, 6, 5);
    for (const std::string& name : orbidex::ListFolder(orbidex::gStrDataPath + "*.*", false))
        orbidex::DeleteFile(orbidex::gStrDataPath + name);

    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string file = orbidex::gStrDataPath + "import.csv";
    orbidex::WriteWholeFile(file, bytes);
    orbidex::glbEvents.ImportData(file);

    std::string events;
    orbidex::ReadWholeFile(orbidex::gStrDataPath + "import.DAT", events);
    long rows = 0;
    bool heading = true;
    for (const std::string& line : orbidex::SplitLines(orbidex::Cp1252FromForeignText(bytes))) {
        if (!heading && !orbidex::Trim(line).empty()) ++rows;
        heading = false;
    }
    if (static_cast<long>(orbidex::SplitLines(events).size()) != rows) std::abort();
    return 0;
}
