#include "config/PrivateProfile.h"

#include "config/IniDocument.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

// Time stamps of a file written this many seconds or less before a read may not tell
// that write from the next one: the file system's clock moves in ticks (two seconds
// on some disks), and the program's clock in whole seconds.
constexpr int kUnsettledSeconds = 3;

// The last INI file read, as parsed, with the version of the file it came from.
struct ParsedFile {
    FileVersion version;
    bool settled = false;  ///< its time stamps were well behind the clock when it was read
    IniDocument document{""};
};

ParsedFile gParsed;
long gIniFileReads = 0;

// The file parsed, or null when it can't be read.  The file system is asked at every
// read, so that a change made by another program is seen at once; the parse is kept
// only while the file's version stays the same and was settled when it was read.
const IniDocument* parsedFile(std::string_view file) {
    FileVersion version;
    if (!FileVersionOf(file, version)) return nullptr;
    if (gParsed.settled && gParsed.version == version) return &gParsed.document;
    std::string text;
    if (!ReadWholeFile(file, text, version)) return nullptr;
    ++gIniFileReads;
    gParsed.version = version;
    gParsed.settled =
        PlatformInstalled() && LastTouched(version) <= platform().Now() - TimeSerial(0, 0, kUnsettledSeconds);
    gParsed.document = IniDocument(std::move(text));
    return &gParsed.document;
}

}  // namespace

long IniFileReads() {
    return gIniFileReads;
}

long GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view defaultValue,
                             std::string& returned, long size, std::string_view file) {
    std::string value;
    const IniDocument* document = parsedFile(file);
    if (document == nullptr || !document->Find(section, key, value)) value = defaultValue;
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
