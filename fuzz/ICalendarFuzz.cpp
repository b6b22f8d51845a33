// Random bytes as an iCalendar file to import: reading it, expanding its repeats over
// a year, adding its events to their months and its to-dos to the task list never
// fail, and every event the import reports as added stands in a monthly file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "diary/ICalendarReader.h"
#include "diary/cDiaryFileUtils.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "screen/frmClientDiaryMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::ScriptedPlatform platform;
    static orbidex::test::TempFolder folder;
    platform.SetProgramFolder(folder.Stored());
    platform.SetProblemHandler([](const std::string&) {});
    platform.ClearTranscript();
    orbidex::SetPlatform(&platform);
    orbidex::ResetProgramState();
    orbidex::gLogLevel = -2;
    orbidex::gStrDataPath = folder.Stored() + "\\";
    orbidex::gStrTasksFile = orbidex::gStrDataPath + "D_tasks.dat";
    orbidex::MainForm().MonthView1.Value = orbidex::DateSerial(2004, 6, 5);
    for (const std::string& name : orbidex::ListFolder(orbidex::gStrDataPath + "*.*", false))
        orbidex::DeleteFile(orbidex::gStrDataPath + name);
    orbidex::glbTasks.init(orbidex::gStrTasksFile);

    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const orbidex::ICalendarContents contents =
        orbidex::ReadICalendar(bytes, orbidex::DateSerial(2004, 1, 1), orbidex::DateSerial(2004, 12, 31));
    for (const auto& event : contents.events)
        if (event.details.find_first_of("\r\n\x1F") != std::string::npos) std::abort();

    const std::string file = orbidex::gStrDataPath + "import.ics";
    orbidex::WriteWholeFile(file, bytes);
    platform.QueueInputAnswer("2004-01-01 to 2004-12-31");
    orbidex::glbFileUtils.ImportICalendar(file);
    return 0;
}
