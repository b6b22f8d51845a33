#pragma once
// A small object around one folder.

#include <string>

#include "platform/Platform.h"

namespace orbidex {

class clsArray;

class clsPath {
public:
    /// Trims the name and removes one trailing "\" (also from the caller's variable);
    /// with `create` makes the folder when it is missing.
    void initFull(std::string& name, bool create);
    /// The older entry: the same, with its own message on failure.
    void init(std::string& name, bool create);
    /// The name, with "\" when `withSlash`; a message and "" when no name was set.
    std::string getFullName(bool withSlash);
    bool Exists() const;
    /// The folder's time stamp (its last change: this file system keeps no creation time).
    VbDate DateCreated() const;
    static std::string ExtractParent(const std::string& path);
    static bool MakePathAux(const std::string& path);
    /// Adds the full path of each file matching `mask` to `list` (given a start size
    /// of 99); returns the count.
    long GetListOFiles(clsArray& list, const std::string& mask);
    /// Adds the names of all entries, then blanks those that are plain files; returns
    /// the number of entries, blanked ones included.
    long GetListOfSubDirectories(clsArray& list);
    void deleteAllFiles() {}
    void createSubDir() {}

    short numfiles = 0;
    short numSubFolders = 0;

private:
    std::string name_;
};

}  // namespace orbidex
