#pragma once
// The one place where a stored path ("\" separators, as the data and the messages hold
// them) meets the operating system's, and file operations that match names without
// regard to case, as the data folders of a Windows installation expect.

#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace orbidex {

/// "\" becomes "/", and every part of the path that exists in another case is taken
/// in the case it has on disk.  The part that does not exist keeps the case given.  A
/// path that does not start at the root counts from the program's folder, never from
/// the working folder.
std::string ToNativePath(std::string_view storedPath);

/// A native path ("/" separators) in stored form.
std::string ToStoredPath(std::string_view nativePath);

/// Matches a Dir-style pattern ("D*.DAT", "*.*", "?") against a name, without regard
/// to case.  "*.*" also matches names without a dot.
bool WildcardMatch(std::string_view pattern, std::string_view name);

bool FileExists(std::string_view storedPath);    ///< a plain file
bool FolderExists(std::string_view storedPath);  ///< a folder
/// Deletes a plain file; false when there is none or it can't be deleted.
bool DeleteFile(std::string_view storedPath);
/// Copies a plain file over `destination`; false on any failure.
bool CopyFile(std::string_view source, std::string_view destination);
bool RenameFile(std::string_view from, std::string_view to);
/// Makes one folder; its parent must exist.
bool MakeFolder(std::string_view storedPath);
/// Length of a plain file in bytes, or -1.
long long FileLength(std::string_view storedPath);
/// Last-written time of a file or folder, in local time; false when it is missing.
bool FileTimeStamp(std::string_view storedPath, VbDate& stamp);

/// What tells one version of a file from another without reading it: its length,
/// its last-written and last-changed times to the nanosecond, and where it lies on
/// its disk (a file replaced whole lies elsewhere, even with the same times).
struct FileVersion {
    long long length = -1;
    long long writtenNs = 0;  ///< since 1970, as the file system keeps it
    long long changedNs = 0;
    unsigned long long device = 0;
    unsigned long long inode = 0;
    bool operator==(const FileVersion&) const = default;
};
/// The version of a plain file; false when there is none.
bool FileVersionOf(std::string_view storedPath, FileVersion& version);
/// The later of the version's two times, in local time, to the second.
VbDate LastTouched(const FileVersion& version);

/// Names (not paths) of the entries of a folder that match the pattern at the end of
/// `storedPattern` ("C:\data\D*.dat"), in the order of the folder, without "." and "..".
/// With `includeFolders` folders are listed too, otherwise only plain files.
std::vector<std::string> ListFolder(std::string_view storedPattern, bool includeFolders);

/// Why a write failed, as the program's error messages tell it: a number and its
/// description (61, "Disk full").
struct FileError {
    int number = 0;
    std::string description;
};

/// The whole file as bytes; false on any failure.
bool ReadWholeFile(std::string_view storedPath, std::string& bytes);
/// The same, and the version of the file the bytes were read from.
bool ReadWholeFile(std::string_view storedPath, std::string& bytes, FileVersion& version);
/// Replaces the file's content with `bytes`, so that at every moment the file holds
/// either its old content or the whole new one: the bytes go to a temporary file in
/// the same folder, reach the disk, and that file is renamed over the name.  A write
/// that fails leaves the old file as it was and tells why in `error`.  Every file the
/// program rewrites whole is written here.
bool WriteWholeFile(std::string_view storedPath, std::string_view bytes, FileError* error = nullptr);
/// Adds bytes at the end of the file, making it when it is missing; false on failure.
bool AppendToFile(std::string_view storedPath, std::string_view bytes);

/// The lines of a text, cut at CR LF, at a lone CR or at a lone LF.  A last line
/// without a line end counts; a line end at the very end adds no empty line.
std::vector<std::string> SplitLines(std::string_view text);

}  // namespace orbidex
