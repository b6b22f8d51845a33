#include "foundation/FileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace fs = std::filesystem;

namespace orbidex {

namespace {

enum class Kind { Missing, File, Folder, Other };

Kind kindOf(const std::string& native) {
    struct stat st {};
    if (native.empty() || ::stat(native.c_str(), &st) != 0) return Kind::Missing;
    if (S_ISREG(st.st_mode)) return Kind::File;
    if (S_ISDIR(st.st_mode)) return Kind::Folder;
    return Kind::Other;
}

// The entry of `folder` whose name equals `name` without regard to case, or "".
std::string findEntryInOtherCase(const std::string& folder, const std::string& name) {
    std::error_code ec;
    for (fs::directory_iterator it(folder.empty() ? "." : folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string entry = it->path().filename().string();
        if (EqualsText(entry, name)) return entry;
    }
    return "";
}

constexpr long long kNanoseconds = 1000000000LL;

FileVersion versionOf(const struct stat& st) {
    FileVersion version;
    version.length = static_cast<long long>(st.st_size);
    version.writtenNs = static_cast<long long>(st.st_mtim.tv_sec) * kNanoseconds + st.st_mtim.tv_nsec;
    version.changedNs = static_cast<long long>(st.st_ctim.tv_sec) * kNanoseconds + st.st_ctim.tv_nsec;
    version.device = static_cast<unsigned long long>(st.st_dev);
    version.inode = static_cast<unsigned long long>(st.st_ino);
    return version;
}

// A moment of the system's clock as a VB date in local time, to the second.
bool localDateOf(std::time_t seconds, VbDate& date) {
    std::tm local{};
    if (localtime_r(&seconds, &local) == nullptr) return false;
    date = DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
           TimeSerial(local.tm_hour, local.tm_min, local.tm_sec);
    return true;
}

std::string joinNative(const std::string& folder, const std::string& name) {
    if (folder.empty()) return name;
    if (folder.back() == '/') return folder + name;
    return folder + "/" + name;
}

// A relative path joined to the program's folder, so that no file lands in whatever
// folder the process was started from.
std::string fromProgramFolder(std::string native) {
    if (native.empty() || native[0] == '/' || !PlatformInstalled()) return native;
    const std::string folder = Replace(platform().ProgramFolder(), "\\", "/");
    if (folder.empty() || folder[0] != '/') return native;
    return joinNative(folder, native);
}

}  // namespace

std::string ToStoredPath(std::string_view nativePath) { return Replace(nativePath, "/", "\\"); }

std::string ToNativePath(std::string_view storedPath) {
    const std::string native = fromProgramFolder(Replace(storedPath, "\\", "/"));
    if (native.empty() || kindOf(native) != Kind::Missing) return native;

    const bool absolute = native[0] == '/';
    const bool trailing = native.back() == '/';
    std::string resolved = absolute ? "/" : "";
    bool resolving = true;
    for (const std::string& part : Split(native, "/")) {
        if (part.empty()) continue;
        std::string name = part;
        if (resolving && part != "." && part != "..") {
            const std::string exact = joinNative(resolved, part);
            if (kindOf(exact) == Kind::Missing) {
                const std::string other = findEntryInOtherCase(resolved, part);
                if (!other.empty()) name = other;
                else resolving = false;
            }
        }
        resolved = joinNative(resolved, name);
    }
    if (trailing && !resolved.empty() && resolved.back() != '/') resolved += "/";
    return resolved;
}

bool WildcardMatch(std::string_view pattern, std::string_view name) {
    if (pattern == "*.*" || pattern == "*") return true;
    // Iterative match with backtracking on the last star.
    size_t p = 0, n = 0, star = std::string_view::npos, mark = 0;
    auto same = [](char a, char b) { return EqualsText(std::string_view(&a, 1), std::string_view(&b, 1)); };
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || same(pattern[p], name[n]))) {
            ++p;
            ++n;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            mark = n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++mark;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    // "name.*" matches "name" too.
    if (p + 2 == pattern.size() && pattern[p] == '.' && pattern[p + 1] == '*') return true;
    return p == pattern.size();
}

bool FileExists(std::string_view storedPath) { return kindOf(ToNativePath(storedPath)) == Kind::File; }

bool FolderExists(std::string_view storedPath) { return kindOf(ToNativePath(storedPath)) == Kind::Folder; }

bool DeleteFile(std::string_view storedPath) {
    const std::string native = ToNativePath(storedPath);
    if (kindOf(native) != Kind::File) return false;
    return std::remove(native.c_str()) == 0;
}

bool CopyFile(std::string_view source, std::string_view destination) {
    const std::string from = ToNativePath(source);
    if (kindOf(from) != Kind::File) return false;
    std::string bytes;
    if (!ReadWholeFile(source, bytes)) return false;
    return WriteWholeFile(destination, bytes);
}

bool RenameFile(std::string_view from, std::string_view to) {
    std::error_code ec;
    fs::rename(ToNativePath(from), ToNativePath(to), ec);
    return !ec;
}

bool MakeFolder(std::string_view storedPath) {
    std::error_code ec;
    return fs::create_directory(ToNativePath(storedPath), ec) && !ec;
}

long long FileLength(std::string_view storedPath) {
    struct stat st {};
    const std::string native = ToNativePath(storedPath);
    if (::stat(native.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return -1;
    return static_cast<long long>(st.st_size);
}

bool FileTimeStamp(std::string_view storedPath, VbDate& stamp) {
    struct stat st {};
    const std::string native = ToNativePath(storedPath);
    if (::stat(native.c_str(), &st) != 0) return false;
    return localDateOf(st.st_mtim.tv_sec, stamp);
}

bool FileVersionOf(std::string_view storedPath, FileVersion& version) {
    struct stat st {};
    const std::string native = ToNativePath(storedPath);
    if (::stat(native.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return false;
    version = versionOf(st);
    return true;
}

VbDate LastTouched(const FileVersion& version) {
    VbDate touched = 0;
    localDateOf(static_cast<std::time_t>(std::max(version.writtenNs, version.changedNs) / kNanoseconds), touched);
    return touched;
}

std::vector<std::string> ListFolder(std::string_view storedPattern, bool includeFolders) {
    std::vector<std::string> names;
    const long cut = InStrRev(storedPattern, "\\");
    const std::string folder = cut > 0 ? Left(storedPattern, cut) : "";
    std::string pattern = cut > 0 ? Mid(storedPattern, cut + 1) : std::string(storedPattern);
    if (pattern.empty()) pattern = "*";
    std::string nativeFolder = ToNativePath(folder);
    if (nativeFolder.empty()) nativeFolder = ".";
    std::error_code ec;
    for (fs::directory_iterator it(nativeFolder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        std::error_code kindError;
        const bool isFolder = it->is_directory(kindError);
        const bool isFile = it->is_regular_file(kindError);
        if (!(isFile || (includeFolders && isFolder))) continue;
        if (WildcardMatch(pattern, name)) names.push_back(name);
    }
    return names;
}

bool ReadWholeFile(std::string_view storedPath, std::string& bytes) {
    FileVersion version;
    return ReadWholeFile(storedPath, bytes, version);
}

bool ReadWholeFile(std::string_view storedPath, std::string& bytes, FileVersion& version) {
    const std::string native = ToNativePath(storedPath);
    // Without blocking, so that a pipe or a device of that name is refused, not waited on.
    const int fd = ::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return false;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return false;
    }
    version = versionOf(st);
    // One read of the size the file has, then on until the end, in case it grew.
    bool ok = true;
    size_t length = 0;
    bytes.resize(static_cast<size_t>(st.st_size) + 1);
    while (true) {
        if (length == bytes.size()) bytes.resize(bytes.size() * 2);
        const ssize_t got = ::read(fd, bytes.data() + length, bytes.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) {
            ok = got == 0;
            break;
        }
        length += static_cast<size_t>(got);
    }
    ::close(fd);
    bytes.resize(ok ? length : 0);
    return ok;
}

namespace {

// The error numbers and descriptions of the program's messages for a system error.
FileError fileErrorOf(int code) {
    switch (code) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return {61, "Disk full"};
        case EACCES:
        case EPERM:
        case EROFS:
        case ETXTBSY:
            return {70, "Permission denied"};
        case ENOENT:
        case ENOTDIR:
            return {76, "Path not found"};
        case EIO:
            return {57, "Device I/O error"};
        default:
            return {75, "Path/File access error"};
    }
}

bool failWith(FileError* error, int code) {
    if (error != nullptr) *error = fileErrorOf(code);
    return false;
}

std::string folderOfNative(const std::string& native) {
    const size_t cut = native.rfind('/');
    if (cut == std::string::npos) return ".";
    return cut == 0 ? "/" : native.substr(0, cut);
}

// A new, empty file beside `native` that no other writer uses; -1 when none can be made.
int createTemporaryBeside(const std::string& native, std::string& temporary) {
    static unsigned counter = 0;
    const size_t cut = native.rfind('/');
    const std::string folder = cut == std::string::npos ? "" : native.substr(0, cut + 1);
    const std::string name = cut == std::string::npos ? native : native.substr(cut + 1);
    for (int attempt = 0; attempt < 100; ++attempt) {
        // A leading dot keeps it out of the folder listings that look for data files.
        temporary = folder + "." + name + "." + std::to_string(::getpid()) + "-" + std::to_string(++counter);
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    return -1;
}

bool writeAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) {
            if (written == 0) errno = ENOSPC;
            return false;
        }
        bytes.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

// The new file takes the place of the old one with its permissions and, where the
// system allows, its owner.
bool takeOverAttributes(int fd, const std::string& native) {
    struct stat old {};
    if (::stat(native.c_str(), &old) != 0) return true;
    [[maybe_unused]] const int ignored = ::fchown(fd, old.st_uid, old.st_gid);
    return ::fchmod(fd, old.st_mode & 07777) == 0;
}

// Makes the rename itself reach the disk.  Some file systems refuse this for folders;
// the file is whole either way.
void syncFolder(const std::string& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

bool WriteWholeFile(std::string_view storedPath, std::string_view bytes, FileError* error) {
    std::string native = ToNativePath(storedPath);
    switch (kindOf(native)) {
        case Kind::Missing:
            if (native.empty()) return failWith(error, ENOENT);
            break;
        case Kind::File: {
            // A file the user made read-only stays as it is.
            if (::access(native.c_str(), W_OK) != 0) return failWith(error, errno);
            // A link keeps pointing at the file, which is replaced where it lies.
            std::error_code ec;
            const fs::path target = fs::canonical(native, ec);
            if (!ec) native = target.string();
            break;
        }
        case Kind::Folder:
            return failWith(error, EISDIR);
        case Kind::Other:
            return failWith(error, EINVAL);
    }

    std::string temporary;
    const int fd = createTemporaryBeside(native, temporary);
    if (fd < 0) return failWith(error, errno);
    bool written = takeOverAttributes(fd, native) && writeAll(fd, bytes) && ::fsync(fd) == 0;
    int code = errno;
    if (::close(fd) != 0 && written) {
        written = false;
        code = errno;
    }
    if (written && ::rename(temporary.c_str(), native.c_str()) != 0) {
        written = false;
        code = errno;
    }
    if (!written) {
        ::unlink(temporary.c_str());
        return failWith(error, code);
    }
    syncFolder(folderOfNative(native));
    return true;
}

bool AppendToFile(std::string_view storedPath, std::string_view bytes) {
    const std::string native = ToNativePath(storedPath);
    if (kindOf(native) == Kind::Folder) return false;
    std::ofstream out(native, std::ios::binary | std::ios::app);
    if (!out) return false;
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out);
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') continue;
        lines.emplace_back(text.substr(start, i - start));
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        start = i + 1;
    }
    if (start < text.size()) lines.emplace_back(text.substr(start));
    return lines;
}

}  // namespace orbidex
