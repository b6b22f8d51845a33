#include "dialogs/LaunchDocument.h"

#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

// Files the program writes itself: no desktop has a useful handler for them.
bool isProgramTextFile(const std::string& path) {
    const std::string upper = UCase(path);
    return EndsWith(upper, ".DAT") || EndsWith(upper, ".LOG");
}

}  // namespace

std::string LaunchFailureMessage(int code, const std::string& path) {
    switch (code) {
        case 2:
            return path + "\r\nFile not found";
        case 3:
            return "Path not found";
        case 5:
            return "Access denied";
        case 8:
            return "Out of memory";
        case 11:
            return "Invalid EXE file or error in EXE image";
        case 26:
            return "A sharing violation occurred";
        case 27:
            return "Incomplete or invalid file association";
        case 28:
            return "DDE Time out";
        case 29:
            return "DDE transaction failed";
        case 30:
            return "DDE busy";
        case 31:
            return "No association for file extension";
        case 32:
            return "DLL not found";
        default:
            return "Unknown error";
    }
}

bool LaunchDocument(const std::string& path) {
    if (path.empty()) return false;
    if (isProgramTextFile(path) && platform().StartProcess("notepad.exe " + path)) {
        glbLog.log("Started Program '" + path + "'", 0);
        return true;
    }
    const int code = platform().OpenDocument(path);
    if (code > 32) {
        glbLog.log("Successfully ShellExecute '" + path + "'", 3);
        return true;
    }
    glbLog.log("Failed to ShellExecute '" + path + "'", 0);
    platform().MsgBox(LaunchFailureMessage(code, path), vbOKOnly, "");
    return false;
}

}  // namespace orbidex
