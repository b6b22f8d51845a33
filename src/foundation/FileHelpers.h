#pragma once
// The free file and folder helpers used throughout the program.  Paths are stored
// paths, with "\".

#include <string>
#include <vector>

namespace orbidex {

struct FileError;

/// Text after the last "\"; "" if there is none.
std::string GetFileNameOnly(const std::string& path);
/// Text up to and including the last "\"; "" if there is none.
std::string GetFolderOfPath(const std::string& path);
/// Adds "\" to `folder` if needed (the caller's variable changes too) and joins the two.
std::string AddFileToPath(std::string& folder, const std::string& file);
/// With `byLines` every line followed by CR LF; otherwise the whole file as it is.
/// A failure gives what was read so far.
std::string ReadFileToString(const std::string& file, bool byLines);
/// Overwrites the file with the text and a line end.
void WriteStringToFile(const std::string& file, const std::string& text);
/// Collects the distinct `length`-character pieces at 1-based `start` of the non-empty
/// lines of the file into `list`; returns the number of entries of `list`.
long ReadUniqueFieldValues(const std::string& file, long start, long length, std::vector<std::string>& list);
/// Writes a small test file (program name + ".tmp") into the folder; true if that
/// worked.  Adds "\" to the caller's folder.
bool IsPathWritable(std::string& folder);
/// The logged-on user, asked once and then kept.
std::string GetPCUserName();
/// The computer's name, asked once and then kept.
std::string GetPCComputerName();
/// The system's folder, with a trailing "\".
std::string GetWindowsFolder();
/// Copies `source` over `destination`, keeping the old destination as ".BAK" unless
/// `noBackup`.  Reports failure through the logs and, if asked, a message.
void SafeFileCopy(const std::string& source, const std::string& destination, bool noBackup, bool showMessage);
/// The report of a failed file operation that the user must see: logs and shows
/// "Error in " + source + " Error=" + number + " = " + description.
void ShowFileError(const std::string& source, const FileError& error);
/// Makes every missing folder of the path; always true.
bool MakePathAux(const std::string& path);

/// Forgets the cached user and computer names.
void ResetCachedNames();

}  // namespace orbidex
