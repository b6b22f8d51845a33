// Random bytes as one task line: a broken line is reported, never a crash; a line
// that reads whole is written back as the same fields; the list row is built.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ScriptedPlatform.h"
#include "controls/ListView.h"
#include "diary/cDiaryRecord.h"
#include "foundation/ProgramState.h"
#include "pim/cTask.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::ScriptedPlatform platform;
    platform.ClearTranscript();
    orbidex::SetPlatform(&platform);
    orbidex::gLogLevel = -2;  // nothing reaches a log file
    const std::string line(reinterpret_cast<const char*>(data), size);

    orbidex::cTask task;
    const bool whole = task.CreateTaskFromTextLine(line, orbidex::kFieldDelimiter);
    task.isTaskActive();
    orbidex::ListView list;
    task.AddToListView(list, line);
    const std::string written = task.FormatRecordAsCSV(orbidex::kFieldDelimiter, "\r\n");
    if (whole && !written.empty()) {
        orbidex::cTask reread;
        if (!reread.CreateTaskFromTextLine(written, orbidex::kFieldDelimiter)) std::abort();
        if (reread.FormatRecordAsCSV(orbidex::kFieldDelimiter, "") != written) std::abort();
    }
    return 0;
}
