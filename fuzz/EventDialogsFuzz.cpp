// Random bytes as the event line an editing dialog opens on: the event editor and
// the reschedule dialog open and save whatever the line holds, and the saved event
// is always one whole event line.  The monthly files the saves make stay in a
// temporary program folder.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecord.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmRescheduleEvent.h"
#include "foundation/ProgramState.h"

namespace {

void checkOneLine(const orbidex::cDiaryRecord& event) {
    const std::string line = event.FormatDiaryRecordAsCSV(orbidex::kFieldDelimiter, "");
    if (line.empty()) return;
    if (std::count(line.begin(), line.end(), '\x1F') != 15) std::abort();
    if (line.find_first_of("\r\n") != std::string::npos) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::ScriptedPlatform platform;
    static orbidex::test::TempFolder folder;
    platform.SetProgramFolder(folder.Stored());
    orbidex::SetPlatform(&platform);
    orbidex::gStrDataPath = folder.Stored() + "\\";
    orbidex::gLogLevel = -2;  // nothing reaches a log file
    // A line of a file: it ends at the first line break.
    std::string line(reinterpret_cast<const char*>(data), size);
    line = line.substr(0, line.find_first_of("\r\n"));

    orbidex::gintcur = 0;
    orbidex::glbConfig.dialogEditing = true;
    orbidex::gCurrentEvent.GetDiaryRecordFromText(line);
    {
        orbidex::frmEditEvent editor;
        editor.Load();
        editor.cmbReminder.UserSelect(static_cast<long>(size % 8));
        editor.cmdOK.UserClick();
    }
    checkOneLine(orbidex::gCurrentEvent);

    orbidex::gCurrentEvent.GetDiaryRecordFromText(line);
    {
        orbidex::frmRescheduleEvent reschedule;
        reschedule.Load();
        reschedule.optMoveAhead(static_cast<int>(size % 5)).UserClick();
        reschedule.optWhen(static_cast<int>(size % 4)).UserClick();
        reschedule.cmdOK.UserClick();
    }
    checkOneLine(orbidex::gCurrentEvent);
    return 0;
}
