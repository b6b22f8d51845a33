// Random bytes as the files a diary server reads: a search request, a handed-over
// month, its own user list and the name of a handed-over file.  The server answers
// the request, and the handed-over file is either still in the folder or in the store.
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "DiaryServer.h"
#include "TempFolder.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace {

// A name the share can hold as one file: letters, digits, ".", "_" and "-".
std::string fileName(const std::string& bytes) {
    std::string name;
    for (char c : bytes.substr(0, 40))
        if (std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.' || c == '_' || c == '-') name += c;
    return name == "." || name == ".." ? "" : name;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static orbidex::test::TempFolder folder;
    const std::string share = folder.Stored() + "\\share\\";
    std::filesystem::remove_all(folder.Native() + "/share");
    for (const char* user : {"", "fred", "mary", ".server"}) orbidex::MakeFolder(share + user);

    // The parts are cut at the byte 0xFE.
    std::vector<std::string> parts = orbidex::Split(std::string(reinterpret_cast<const char*>(data), size), "\xFE", 4);
    parts.resize(4);
    const std::string fred = share + "fred\\";
    const std::string mary = share + "mary\\";
    orbidex::WriteWholeFile(fred + "REQUEST.TXT", parts[0]);
    orbidex::WriteWholeFile(fred + "REQUEST.TXT.OK", "Finished writing request to server\r\n");
    orbidex::WriteWholeFile(mary + "D200406.dat_NET", parts[1]);
    orbidex::WriteWholeFile(mary + "D200406.dat_NET.OK", "saved\r\n");
    orbidex::WriteWholeFile(share + ".server\\USERS.TXT", parts[2]);
    const std::string handed = fileName(parts[3]);
    if (!handed.empty()) {
        orbidex::WriteWholeFile(mary + handed, parts[3]);
        orbidex::AppendToFile(mary + handed + ".OK", "saved\r\n");
    }

    orbidex::server::DiaryServer server(share);
    server.Poll();
    server.Poll();

    if (!orbidex::FileExists(fred + "RESULTS.TXT.OK")) std::abort();
    std::string month;
    const bool kept = orbidex::ReadWholeFile(mary + "D200406.dat_NET", month) ||
                      orbidex::ReadWholeFile(server.StoreFolder("mary") + "D200406.dat_NET", month);
    if (!kept) std::abort();
    return 0;
}
