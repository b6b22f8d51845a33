#pragma once
// A small object around one text file, read and written line by line.  Lines end in
// CR LF.  Failures never raise: they leave the flags as they were.  A file opened for
// output is rewritten whole when it is closed, so that it never stands half written.

#include <cstdio>
#include <string>

namespace orbidex {

class cFileIO {
public:
    cFileIO() = default;
    cFileIO(const cFileIO&) = delete;
    cFileIO& operator=(const cFileIO&) = delete;
    ~cFileIO();

    void init(const std::string& name) { fname = name; }
    std::string fname;

    /// True if a plain file of this name exists.
    bool Exists() const;
    /// "APPEND", "OUTPUT" or "INPUT", in any case.  Any other word shows "Invalid
    /// method of opening file".  A failed open leaves the flags as they were.  The lines
    /// printed after "OUTPUT" replace the file at closeFile.
    void OpenFile(const std::string& method);
    void printLine(const std::string& text);
    /// Writes to the open file, or opens for appending, writes and closes.
    void appendLine(const std::string& text);
    /// The next line; at the end of the file "" and moreData() turns false, so a
    /// reader that loops on moreData() sees one extra empty line.
    std::string getLine();
    /// Closes the file; after "OUTPUT" the file is replaced by the lines printed.  False
    /// when that replacement fails, and the file then keeps what it held.
    bool closeFile();
    /// Deletes the file; failures are ignored.
    void Clear();
    bool moreData() const { return moreData_; }
    bool isOpen() const { return isOpen_; }
    /// Every line followed by `separator`, plus one more separator for the final read.
    /// The file stays open.
    std::string LoadFileToString(const std::string& separator);
    /// Waits until the file can be opened for reading, at most `seconds`, pumping
    /// events; the deadline is compared as "hh:mm:ss" text.
    bool waitUntilFileCanBeOpened(int seconds);

private:
    bool tryOpenForInput();

    std::FILE* handle_ = nullptr;
    bool output_ = false;  ///< opened for "OUTPUT": the lines gather in outputText_
    std::string outputText_;
    bool moreData_ = false;
    bool isOpen_ = false;
};

}  // namespace orbidex
