// Random bytes as template_event.dat: the event editor's list of templates loads
// them, shows each record and saves, and a second save of what the first wrote
// changes nothing, unless a record's key starts with a line end: the line end read
// after a record is no part of the next.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzProgram.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmListAndDetailsSubForm.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"

namespace {

std::string saveThroughTheList(orbidex::test::ScriptedPlatform& platform, const std::string& file) {
    platform.QueueFormScript("frmListAndDetailsSubForm", [](orbidex::Form& form) {
        auto& list = static_cast<orbidex::frmListAndDetailsSubForm&>(form);
        for (long i = 1; i <= list.lstList.ListItems.Count(); ++i)
            list.lstList.UserClickItem(list.lstList.ListItems(i));
        list.cmdOK.UserClick();
    });
    static orbidex::frmEditEvent editor;
    editor.cmdTemplate_Click();
    std::string bytes;
    orbidex::ReadWholeFile(file, bytes);
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto& [platform, folder] = orbidex::test::StartFuzzInput();
    orbidex::gStrDataPath = folder.Stored() + "\\";
    const std::string file = orbidex::gStrDataPath + "template_event.dat";
    orbidex::WriteWholeFile(file, std::string(reinterpret_cast<const char*>(data), size));

    const std::string first = saveThroughTheList(platform, file);
    const bool keyAfterLineEnd = first.find("\x1E\r") != std::string::npos ||
                                 first.find("\x1E\n") != std::string::npos || first[0] == '\r' || first[0] == '\n';
    if (saveThroughTheList(platform, file) != first && !keyAfterLineEnd) std::abort();
    return 0;
}
