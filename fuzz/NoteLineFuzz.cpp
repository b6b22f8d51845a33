// Random bytes as one line of the note list: a broken line is reported, never a
// crash; a line that reads whole is written back as the same fields; the title and
// the body file's name made from the bytes hold no line break.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "controls/ListView.h"
#include "foundation/ProgramState.h"
#include "pim/cNote.h"
#include "pim/cNotes.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::ScriptedPlatform platform;
    static orbidex::test::TempFolder folder;
    platform.ClearTranscript();
    orbidex::SetPlatform(&platform);
    orbidex::gLogLevel = -2;
    orbidex::gStrDataPath = folder.Stored() + "\\";
    const std::string line(reinterpret_cast<const char*>(data), size);

    orbidex::cNote note;
    const bool whole = note.CreateNoteFromTextLine(line, orbidex::kFieldDelimiter);
    orbidex::ListView list;
    note.AddToListView(list, line);
    const std::string written = note.FormatRecordAsCSV(orbidex::kFieldDelimiter, "");
    // A note without ID can't come back: its line starts with the delimiter a reader
    // takes for an extra one.
    if (whole && !note.ID.empty()) {
        orbidex::cNote reread;
        if (!reread.CreateNoteFromTextLine(written, orbidex::kFieldDelimiter)) std::abort();
        if (reread.FormatRecordAsCSV(orbidex::kFieldDelimiter, "") != written) std::abort();
    }

    const std::string title = orbidex::cNotes::GetNoteTitleFromDetails(line);
    orbidex::cNote named;
    named.title = title;
    named.CreateNewFileName();
    if (title.find_first_of("\r\n") != std::string::npos || named.Filename.find_first_of("\r\n") != std::string::npos)
        std::abort();
    return 0;
}
