#include "pim/cData.h"

#include "diary/cDiaryRecords.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/PimSupport.h"

namespace orbidex {

namespace {

const std::string kNoLine;

bool isBlank(const std::string& line) {
    return line.find_first_not_of(' ') == std::string::npos;
}

}  // namespace

void cData::init(const std::string& fileName) {
    fname_ = fileName;
    lines_.assign(2, "");
    count_ = 0;
    stamp_.clear();
    if (fileName.empty()) {
        const std::string text = "Error in cData class - trying to initialise a blank file";
        glbLog.log(text, 0);
        platform().MsgBox(text, vbOKOnly, "Blank Filename passed to cData class");
        lines_.clear();
        return;
    }
    if (!FileExists(fileName) && !FolderExists(GetFolderOfPath(fileName))) {
        glbLog.log(
            "Error in cData class - trying to initialise the file " + fileName + " but the directory does not exist",
            0);
        platform().MsgBox("Error in cData class - trying to initialise the file\r\n" + fileName +
                              "\r\nbut the directory does not exist",
                          vbOKOnly, "Folder does not exist");
    }
}

const std::string& cData::Item(long index) const {
    if (index < 0 || index > UpperBound()) return kNoLine;
    return lines_[static_cast<size_t>(index)];
}

void cData::Item(long index, const std::string& line) {
    if (index < 0 || index > UpperBound()) return;
    lines_[static_cast<size_t>(index)] = line;
}

void cData::Sort() {
    SortTexts(lines_);
}

void cData::Delete(long index) {
    platform().SetBusyCursor(true);
    if (index < 0 || index > count_ || count_ < 1 || count_ > UpperBound()) {
        ReportDataError("cData.Delete", kSubscriptOutOfRange);
        platform().SetBusyCursor(false);
        return;
    }
    for (long i = index; i < count_; ++i) lines_[static_cast<size_t>(i)] = lines_[static_cast<size_t>(i + 1)];
    --count_;
    lines_.resize(static_cast<size_t>(count_ + 1));
    SaveToFile();
    platform().SetBusyCursor(false);
}

void cData::Add(const std::string& line) {
    ++count_;
    lines_.resize(static_cast<size_t>(count_ + 1));
    lines_[static_cast<size_t>(count_)] = line;
    SaveToFile();
}

long cData::FindByID(const std::string& id) const {
    for (long i = 1; i <= count_ && i <= UpperBound(); ++i)
        if (StartsWith(lines_[static_cast<size_t>(i)], id)) return i;
    return 0;
}

void cData::DisplayInHtml() {
    platform().MsgBox("TODO - cData.DisplayInHTML - the generic function to display in table", vbOKOnly, "");
}

void cData::SaveToFile() {
    Sort();
    std::string bytes;
    const long last = std::min(count_, UpperBound());
    for (long i = 0; i <= last; ++i) {
        const std::string& line = lines_[static_cast<size_t>(i)];
        if (isBlank(line)) continue;
        bytes.append(line).append("\r\n");
    }
    if (fname_.empty()) {
        ReportDataError("cData.SaveToFile", kBadFileName);
        return;
    }
    if (!WriteWholeFile(fname_, bytes)) {
        ReportDataError("cData.SaveToFile", kPathFileAccess);
        return;
    }
    stamp_ = stampOf(fname_);
}

bool cData::LoadFromFile() {
    if (fname_.empty()) {
        lines_.assign(101, "");
        glbLog.log("No note file to load", 0);
        return true;
    }
    if (!FileExists(fname_)) {
        lines_.assign(101, "");
        glbLog.log("file not found - " + fname_, 3);
        count_ = 0;
        stamp_.clear();
        return true;
    }
    std::string bytes;
    if (!ReadWholeFile(fname_, bytes)) {
        ReportDataError("cData.LoadFromFile", kPathFileAccess);
        return false;
    }
    lines_.clear();
    for (std::string& line : SplitLines(bytes))
        if (!isBlank(line)) lines_.push_back(std::move(line));
    count_ = static_cast<long>(lines_.size());
    lines_.emplace_back();
    stamp_ = stampOf(fname_);
    return true;
}

bool cData::FileChangedOnDisk() const {
    return !fname_.empty() && stampOf(fname_) != stamp_;
}

bool cData::ReloadIfChangedOnDisk() {
    if (!FileChangedOnDisk()) return true;
    glbLog.log("The file changed on disk - loading it again: " + fname_, 1);
    return LoadFromFile();
}

std::string cData::stampOf(const std::string& file) {
    VbDate stamp = 0;
    if (!FileExists(file) || !FileTimeStamp(file, stamp)) return "";
    return CStr(stamp) + " " + CStr(static_cast<double>(FileLength(file)));
}

// Tasks and notes number their identifiers as events do.
std::string cData::IdConvertToString(VbDate date, long number) const {
    return glbEvents.IdConvertToString(date, number);
}

int32_t cData::IdConvertToLong(const std::string& id) const {
    return glbEvents.IdConvertToLong(id);
}

std::string cData::createNextID(VbDate date, const std::string& oldID) const {
    return glbEvents.createNextID(date, oldID);
}

// The key is the first letter of the file's first line (C for a heading line that
// starts with "ID", the file name's first letter for an empty line) and the date.  The
// highest identifier with that key gives the next one; with none, the day's sequence
// of "N" identifiers goes on, from N + date + 0001.
std::string cData::getUniqueID(const std::string& file, VbDate date, std::string_view) const {
    if (!FileExists(file)) return "N" + FormatDate(Now(), "yyyymmdd") + "0001";
    std::string bytes;
    ReadWholeFile(file, bytes);
    const std::vector<std::string> lines = SplitLines(bytes);
    const std::string firstLine = lines.empty() ? "" : lines.front();
    const std::string day = FormatDate(date, "yyyymmdd");
    std::string key;
    if (firstLine.empty())
        key = Trim(Left(GetFileNameOnly(file), 1)) + day;
    else if (StartsWith(firstLine, "ID"))
        key = "C" + day;
    else
        key = Trim(Left(firstLine, 1)) + day;

    const std::string nKey = "N" + day;
    std::string highest, highestN;
    for (const std::string& line : lines) {
        const std::string id = Left(line, 13);
        const std::string head = Left(id, 9);
        if (head == key && id > highest) highest = id;
        if (head == nKey && id > highestN) highestN = id;
    }
    if (!highest.empty()) {
        glbLog.log("GetUniqueID : old ID = " + highest, 3);
        return createNextID(date, highest);
    }
    if (!highestN.empty()) return createNextID(date, highestN);
    return nKey + "0001";
}

}  // namespace orbidex
