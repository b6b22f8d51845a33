// Random text as a settings file: reading never fails, and a key that was set reads
// back, whatever the lines around it hold.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "config/IniDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    orbidex::IniDocument document(text);
    std::string value;
    document.Find("general", "loglevel", value);
    document.Find(text.substr(0, 12), text.substr(size / 2, 8), value);

    document.Set("Network", "dataPath", "\\\\srv\\diary\\");
    if (!document.Find("network", "DATAPATH", value) || value != "\\\\srv\\diary\\") std::abort();
    document.Set("brand new", "key", "v");
    if (!document.Find("Brand New", "key", value) || value != "v") std::abort();
    return 0;
}
