#include "foundation/clsPath.h"

#include <cerrno>
#include <cstring>

#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "foundation/clsArray.h"

namespace orbidex {

namespace {

void stripOneTrailingSeparator(std::string& name) {
    name = Trim(name);
    if (Right(name, 1) == "\\") name.pop_back();
}

}  // namespace

void clsPath::initFull(std::string& name, bool create) {
    stripOneTrailingSeparator(name);
    name_ = name;
    if (create && !Exists() && !MakePathAux(name_)) {
        platform().MsgBox("initFull : Error creating the full directory\r\nErr = " + std::string(std::strerror(errno)),
                          vbOKOnly, "");
    }
}

void clsPath::init(std::string& name, bool create) {
    stripOneTrailingSeparator(name);
    name_ = name;
    if (create && !Exists() && !(MakePathAux(name_) && Exists())) {
        platform().MsgBox(
            "CreateFullDirectory : Error creating the full directory\r\nErr = " + std::string(std::strerror(errno)),
            vbOKOnly, "");
    }
    name_ = name;
}

std::string clsPath::getFullName(bool withSlash) {
    if (name_.empty()) {
        platform().MsgBox("The path hasnt been initialised yet (you havent told me the name!)", vbOKOnly, "");
        return "";
    }
    return withSlash ? name_ + "\\" : name_;
}

bool clsPath::Exists() const { return FolderExists(name_); }

VbDate clsPath::DateCreated() const {
    VbDate stamp = 0;
    FileTimeStamp(name_, stamp);
    return stamp;
}

std::string clsPath::ExtractParent(const std::string& path) { return GetFolderOfPath(path); }

bool clsPath::MakePathAux(const std::string& path) { return orbidex::MakePathAux(path); }

long clsPath::GetListOFiles(clsArray& list, const std::string& mask) {
    list.init(99);
    long count = 0;
    for (const std::string& name : ListFolder(name_ + "\\" + mask, false)) {
        list.Add(name_ + "\\" + name);
        ++count;
    }
    return count;
}

long clsPath::GetListOfSubDirectories(clsArray& list) {
    long count = 0;
    for (const std::string& name : ListFolder(name_ + "\\*", true)) {
        list.Add(name);
        ++count;
    }
    for (long i = 1; i <= list.Count(); ++i)
        if (FileExists(name_ + "\\" + list.Item(i))) list.SetItem(i, "");
    return count;
}

}  // namespace orbidex
