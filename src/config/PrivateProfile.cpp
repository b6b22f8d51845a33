#include "config/PrivateProfile.h"

#include "config/IniDocument.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

namespace orbidex {

long GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view defaultValue,
                             std::string& returned, long size, std::string_view file) {
    std::string text;
    std::string value;
    if (!ReadWholeFile(file, text) || !IniDocument(std::move(text)).Find(section, key, value)) value = defaultValue;
    value = Left(value, size < 0 ? 0 : size);
    const size_t nul = value.find('\0');
    if (nul != std::string::npos) value.resize(nul);
    returned = Trim(value);
    return Len(returned);
}

bool WritePrivateProfileString(std::string_view section, std::string_view key, std::string_view value,
                               std::string_view file) {
    std::string text;
    // A file that is there but can't be read must not be overwritten with one key.
    if (FileExists(file) && !ReadWholeFile(file, text)) return false;
    IniDocument document(std::move(text));
    document.Set(section, key, value);
    return WriteWholeFile(file, document.Text());
}

}  // namespace orbidex
