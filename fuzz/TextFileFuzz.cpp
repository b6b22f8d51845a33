// Random bytes as a text file, read line by line as every data file is.
#include <cstddef>
#include <cstdint>
#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/cFileIO.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::ScriptedPlatform platform;
    static orbidex::test::TempFolder folder;
    orbidex::SetPlatform(&platform);
    const std::string file = folder.Stored() + "\\fuzz.dat";
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    orbidex::WriteWholeFile(file, bytes);

    orbidex::cFileIO io;
    io.init(file);
    io.OpenFile("INPUT");
    size_t lines = 0;
    while (io.moreData() && lines <= size + 1) {
        io.getLine();
        ++lines;
    }
    io.closeFile();
    orbidex::SplitLines(bytes);
    orbidex::ReadFileToString(file, true);
    return 0;
}
