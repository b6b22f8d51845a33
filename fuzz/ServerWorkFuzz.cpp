// Random bytes as the work a server leaves for a client (_4CLIENT.CHANGE,
// _4CLIENT.ADD, _4CLIENT.MESSAGE) and as the client's message log: the poll takes
// every file, the user's own event that nothing names stays, and the message list
// of the day is drawn.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "FuzzProgram.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "network/cMessages.h"
#include "screen/frmClientDiaryMain.h"

namespace {

// The user's own event: only work that names its details can take it out.
// clang-format off
const std::string kOwn = std::string("D200406010001\x1F" "20040601\x1FPhone\x1F" "0900\x1F" "30\x1F\x1F\x1F\x1F\x1F\x1F"
                                     "\x1F\x1F\x1F\x1F") + "Own\x7F event\x1F\r\n";
// clang-format on

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    orbidex::test::FuzzProgram& program = orbidex::test::StartFuzzInput();
    orbidex::test::ScriptedPlatform& platform = program.platform;
    const orbidex::test::TempFolder& folder = program.folder;
    platform.AllowUnscriptedForms(true);
    std::filesystem::remove_all(folder.Native() + "/fred");
    std::filesystem::remove_all(folder.Native() + "/data");
    const std::string share = folder.Stored() + "\\fred\\";
    orbidex::MakeFolder(share);
    orbidex::MakeFolder(folder.Stored() + "\\data");
    orbidex::gStrDataPath = folder.Stored() + "\\data\\";
    orbidex::glbClientsNetworkDatapath = share;
    orbidex::glbNetworkAlive = orbidex::glbServerAlive = true;
    orbidex::glbConfig.runLocalModeOnly = "0";
    orbidex::glbConfig.ShowPopupMessages = 1;
    orbidex::WriteWholeFile(orbidex::gStrDataPath + "D200406.dat", kOwn);

    // The parts are cut at the byte 0xFE.
    std::vector<std::string> parts = orbidex::Split(std::string(reinterpret_cast<const char*>(data), size), "\xFE", 4);
    parts.resize(4);
    const char* names[] = {"_4CLIENT.CHANGE", "_4CLIENT.ADD", "_4CLIENT.MESSAGE"};
    for (int i = 0; i < 3; ++i) orbidex::WriteWholeFile(share + names[i], parts[static_cast<size_t>(i)]);
    orbidex::WriteWholeFile(orbidex::gStrDataPath + "messages.log", parts[3]);

    orbidex::glbComms.CheckForServerRequests();
    orbidex::glbComms.CheckForServerRequests();
    for (const char* name : names)
        if (orbidex::FileExists(share + name)) std::abort();
    std::string june;
    orbidex::ReadWholeFile(orbidex::gStrDataPath + "D200406.dat", june);
    const bool named = std::string(reinterpret_cast<const char*>(data), size).find("Own\x7F") != std::string::npos;
    if (!named && june.find("Own\x7F event") == std::string::npos) std::abort();

    orbidex::frmClientDiaryMain& form = orbidex::MainForm();
    form.MonthView1.Value = orbidex::DateSerial(2004, 6, 5);
    orbidex::glbMessages.DisplayMessages(orbidex::glbMessages.fname(), form.lvCat, 1);
    if (form.lvCat.ListItems.Count() == 0) std::abort();
    orbidex::glbMessages.ShowMessageFromList(form.lvCat.ListItems(1));
    return 0;
}
