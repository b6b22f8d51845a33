#include "foundation/FileHelpers.h"

#include <algorithm>

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "foundation/cFileIO.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {
std::string gCachedUserName;
std::string gCachedComputerName;
}  // namespace

std::string GetFileNameOnly(const std::string& path) {
    const long cut = InStrRev(path, "\\");
    return cut == 0 ? "" : Mid(path, cut + 1);
}

std::string GetFolderOfPath(const std::string& path) {
    const long cut = InStrRev(path, "\\");
    return cut == 0 ? "" : Left(path, cut);
}

std::string AddFileToPath(std::string& folder, const std::string& file) {
    if (Right(folder, 1) != "\\") folder += "\\";
    return folder + file;
}

std::string ReadFileToString(const std::string& file, bool byLines) {
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) return "";
    if (!byLines) return bytes;
    std::string text;
    for (const std::string& line : SplitLines(bytes)) text += line + "\r\n";
    return text;
}

void WriteStringToFile(const std::string& file, const std::string& text) { WriteWholeFile(file, text + "\r\n"); }

long ReadUniqueFieldValues(const std::string& file, long start, long length, std::vector<std::string>& list) {
    std::string bytes;
    if (ReadWholeFile(file, bytes)) {
        for (const std::string& line : SplitLines(bytes)) {
            if (line.empty()) continue;
            const std::string piece = Mid(line, start, length);
            if (std::find(list.begin(), list.end(), piece) == list.end()) list.push_back(piece);
        }
    }
    return static_cast<long>(list.size());
}

bool IsPathWritable(std::string& folder) {
    if (Trim(folder).empty()) return false;
    const std::string testFile = AddFileToPath(folder, Trim(platform().ExeName()) + ".tmp");
    DeleteFile(testFile);
    // A throwaway file: written plainly, without waiting for the disk.
    return AppendToFile(testFile,
                        "this is a temp file to check the datapath   \r\n"
                        "You can delete it to save space (wow - 100 bytes!)\r\n\r\n");
}

std::string GetPCUserName() {
    if (gCachedUserName.empty()) gCachedUserName = Left(platform().UserName(), 128);
    return gCachedUserName;
}

std::string GetPCComputerName() {
    if (gCachedComputerName.empty()) gCachedComputerName = platform().ComputerName();
    return gCachedComputerName;
}

void ResetCachedNames() {
    gCachedUserName.clear();
    gCachedComputerName.clear();
}

std::string GetWindowsFolder() { return FolderExists("\\etc") ? "\\etc\\" : ""; }

void SafeFileCopy(const std::string& source, const std::string& destination, bool noBackup, bool showMessage) {
    if (!noBackup) {
        const std::string backup = GetFolderOfPath(destination) + GetFileNameOnly(destination) + ".BAK";
        DeleteFile(backup);
        CopyFile(destination, backup);
    }
    if (!FileExists(source)) {
        glbLog.log("SafeFileCopy Failed - source file doesnt exist: " + source);
        return;
    }
    // The copy replaces the destination in one step: a copy that fails leaves it whole.
    if (CopyFile(source, destination)) return;
    glbLog.log("SafeFileCopy Failed to copy " + source + " to " + destination);
    glbLog.pimlog(platform().ProgramFolder() + "\\err.log",
                  "SafeFileCopy - could not copy " + source + " to " + destination, 1, 0);
    if (showMessage) {
        platform().MsgBox("Error copying the file \r\n" + source + "  to \r\n" + destination, vbOKOnly,
                          "Error in SafeFileCopy");
    }
}

void ShowFileError(const std::string& source, const FileError& error) {
    const std::string text =
        "Error in " + source + " Error=" + CStr(static_cast<long>(error.number)) + " = " + error.description;
    glbLog.log(text, 0);
    platform().MsgBox(text, vbOKOnly + vbCritical, "");
}

bool MakePathAux(const std::string& path) {
    std::string full = path;
    if (Right(full, 1) != "\\") full += "\\";
    // The first "\" is the one after the drive (or the root); every later one ends a
    // folder that must exist.
    const long first = InStr(full, "\\");
    for (long pos = InStr(first + 1, full, "\\"); pos > 0; pos = InStr(pos + 1, full, "\\")) {
        const std::string folder = Left(full, pos - 1);
        if (!FolderExists(folder)) MakeFolder(folder);
    }
    return true;
}

}  // namespace orbidex
