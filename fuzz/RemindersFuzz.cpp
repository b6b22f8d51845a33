// Random bytes as today's month file and the task file (the input cut at its first
// zero byte), scanned for reminders at two minutes: the scan never fails, and no
// reminder is remembered twice.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzProgram.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"
#include "screen/clsDiaryScreen.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    orbidex::test::ScriptedPlatform& platform = orbidex::test::StartFuzzInput().platform;
    orbidex::gStrIniFile = orbidex::gStrDataPath + "orbidex.ini";
    orbidex::glbConfig.fname = orbidex::gStrIniFile;
    orbidex::glbLog.init(orbidex::gStrDataPath + "OX_LOG.log", "", "", true, 0);
    orbidex::gLogLevel = 3;  // reminded.log is written from this level on
    orbidex::DeleteFile(orbidex::gStrDataPath + "OX_LOG.log");
    orbidex::DeleteFile(orbidex::gStrDataPath + "reminded.log");
    orbidex::WriteWholeFile(orbidex::gStrIniFile,
                            "[diary]\r\nTimeRemindersLastChecked=0000\r\n[reminders]\r\nsound=1\r\npopupwindow=1\r\n");
    const std::string input(reinterpret_cast<const char*>(data), size);
    const size_t cut = std::min(input.find('\0'), input.size());
    orbidex::WriteWholeFile(orbidex::gStrDataPath + "D200406.dat", input.substr(0, cut));
    orbidex::WriteWholeFile(orbidex::gStrDataPath + "D_tasks.dat", input.substr(std::min(cut + 1, input.size())));

    for (int minute : {30, 31}) {
        platform.SetNow(orbidex::DateSerial(2004, 6, 5) + orbidex::TimeSerial(9, minute, 0));
        orbidex::glbScreen.CheckReminders();
    }
    std::string remembered;
    orbidex::ReadWholeFile(orbidex::gStrDataPath + "reminded.log", remembered);
    std::vector<std::string> keys = orbidex::SplitLines(remembered);
    std::sort(keys.begin(), keys.end());
    if (std::adjacent_find(keys.begin(), keys.end()) != keys.end()) std::abort();
    return 0;
}
