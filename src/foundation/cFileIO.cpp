#include "foundation/cFileIO.h"

#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

namespace {

// The folder a new file of this name would stand in exists.  A name without a folder
// lies in the program's folder.
bool folderExistsFor(const std::string& name) {
    const long cut = InStrRev(name, "\\");
    return cut <= 1 || FolderExists(Left(name, cut - 1));
}

// How long a wait lets the window run between two tries at the file.
constexpr int kRetryMilliseconds = 20;
}  // namespace

cFileIO::~cFileIO() { closeFile(); }

bool cFileIO::Exists() const { return FileExists(fname); }

bool cFileIO::tryOpenForInput() {
    if (!FileExists(fname)) return false;
    handle_ = std::fopen(ToNativePath(fname).c_str(), "rb");
    return handle_ != nullptr;
}

void cFileIO::OpenFile(const std::string& method) {
    closeFile();
    const std::string how = UCase(method);
    bool opened = false;
    if (how == "INPUT") {
        opened = tryOpenForInput();
    } else if (how == "OUTPUT") {
        output_ = !FolderExists(fname) && folderExistsFor(fname);
        outputText_.clear();
        opened = output_;
    } else if (how == "APPEND") {
        if (!FolderExists(fname)) handle_ = std::fopen(ToNativePath(fname).c_str(), "ab");
        opened = handle_ != nullptr;
    } else {
        platform().MsgBox("Invalid method of opening file", vbOKOnly, "");
        isOpen_ = true;
        moreData_ = true;
        return;
    }
    if (!opened) return;
    isOpen_ = true;
    moreData_ = true;
}

void cFileIO::printLine(const std::string& text) {
    if (output_) {
        outputText_ += text + "\r\n";
        return;
    }
    if (handle_ == nullptr) return;
    std::fwrite(text.data(), 1, text.size(), handle_);
    std::fwrite("\r\n", 1, 2, handle_);
}

void cFileIO::appendLine(const std::string& text) {
    if (isOpen_ && (handle_ != nullptr || output_)) {
        printLine(text);
        return;
    }
    OpenFile("APPEND");
    printLine(text);
    closeFile();
}

std::string cFileIO::getLine() {
    if (handle_ == nullptr) {
        moreData_ = false;
        return "";
    }
    int c = std::fgetc(handle_);
    if (c == EOF) {
        moreData_ = false;
        return "";
    }
    std::string line;
    while (c != EOF && c != '\r' && c != '\n') {
        line.push_back(static_cast<char>(c));
        c = std::fgetc(handle_);
    }
    if (c == '\r') {
        const int next = std::fgetc(handle_);
        if (next != '\n' && next != EOF) std::ungetc(next, handle_);
    }
    return line;
}

bool cFileIO::closeFile() {
    bool written = true;
    if (output_) written = WriteWholeFile(fname, outputText_);
    output_ = false;
    outputText_.clear();
    if (handle_ != nullptr) std::fclose(handle_);
    handle_ = nullptr;
    isOpen_ = false;
    return written;
}

void cFileIO::Clear() { DeleteFile(fname); }

std::string cFileIO::LoadFileToString(const std::string& separator) {
    closeFile();
    OpenFile("INPUT");
    std::string text;
    while (moreData_) text += getLine() + separator;
    return text;
}

bool cFileIO::waitUntilFileCanBeOpened(int seconds) {
    // The deadline is text: across midnight "00:00:03" is already below "23:59:58",
    // so such a wait gives up after its first failed attempt.
    const std::string endTime = FormatDate(DateAdd("s", seconds, Now()), "hh:mm:ss");
    closeFile();
    platform().SetBusyCursor(true);
    long attempts = 0;
    bool opened = tryOpenForInput();
    while (!opened) {
        if (endTime < FormatDate(Now(), "hh:mm:ss")) {
            glbLog.log("FAIL - waitUntilFileCanOpened Timed out waiting for file to be opened after " +
                           CStr(attempts) + " attempts for file " + fname,
                       1);
            platform().SetBusyCursor(false);
            return false;
        }
        platform().WaitForEvents(kRetryMilliseconds);
        ++attempts;
        opened = tryOpenForInput();
    }
    glbLog.log("SUCCESS - waitUntilFileCanOpened took " + CStr(attempts) + " attempts for " + fname, 1);
    closeFile();
    platform().SetBusyCursor(false);
    return true;
}

}  // namespace orbidex
