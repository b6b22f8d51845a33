// Random bytes as scratch.ini: the scratch pad opens on them, and the list it
// writes back reads as the same tabs, each mode "FREE".  The tabs' files are only
// read: a random list may name any file of the machine.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzProgram.h"
#include "accessories/ScratchTabs.h"
#include "accessories/frmClipboard.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    orbidex::test::StartFuzzInput();
    const std::string ini = orbidex::frmClipboard::IniPath();
    orbidex::WriteWholeFile(ini, std::string(reinterpret_cast<const char*>(data), size));

    orbidex::frmClipboard& pad = orbidex::ScratchPad();
    pad.Load();
    std::vector<orbidex::ScratchTab> tabs = pad.ScratchTabs();
    if (tabs.empty() || static_cast<long>(tabs.size()) != pad.tabClip.Tabs.Count()) std::abort();
    for (orbidex::ScratchTab& tab : tabs) tab.mode = "FREE";
    const std::string text = orbidex::ScratchIniText(pad.ScratchTabs(), "fred", 0);
    if (orbidex::ReadScratchTabs(text) != tabs) std::abort();
    return 0;
}
