// Random bytes as one event line: the reader never fails, and whatever it reads is
// written and read back unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ScriptedPlatform.h"
#include "diary/cDiaryRecord.h"
#include "foundation/ProgramState.h"

namespace {

bool sameLineFields(const orbidex::cDiaryRecord& a, const orbidex::cDiaryRecord& b) {
    return a.ID == b.ID && a.DateEvent == b.DateEvent && a.Reference == b.Reference && a.TimeEvent == b.TimeEvent &&
           a.length == b.length && a.Action == b.Action && a.ContactID == b.ContactID && a.URL == b.URL &&
           a.JobToDoID == b.JobToDoID && a.DateRemind == b.DateRemind && a.TimeRemind == b.TimeRemind &&
           a.Priority == b.Priority && a.status == b.status && a.ActionToPerform == b.ActionToPerform &&
           a.details == b.details;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::ScriptedPlatform platform;
    orbidex::SetPlatform(&platform);
    orbidex::gLogLevel = -2;  // nothing reaches a log file
    const std::string line(reinterpret_cast<const char*>(data), size);

    orbidex::cDiaryRecord record;
    record.GetDiaryRecordFromText(line);
    const std::string written = record.FormatDiaryRecordAsCSV(orbidex::kFieldDelimiter, "");
    for (const char* level : {"0", "1", "2", "3", "4", "x"})
        record.FormatDiaryRecordForNetwork(record, orbidex::kFieldDelimiter, "", level);
    record.FormatAsText(orbidex::kFieldDelimiter, false);
    record.IsThisEventIsReminder();

    if (!written.empty()) {
        orbidex::cDiaryRecord reread;
        reread.GetDiaryRecordFromText(written);
        if (!sameLineFields(record, reread)) std::abort();
    }
    return 0;
}
