#include "TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "foundation/FileSystem.h"

namespace orbidex::test {

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orbidex-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
    native_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ec;
    std::filesystem::remove_all(native_, ec);
}

std::string TempFolder::Stored() const { return ToStoredPath(native_); }

}  // namespace orbidex::test
