#include "foundation/clsArray.h"

#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cFileIO.h"
#include "platform/Platform.h"

namespace orbidex {

void clsArray::init(long size) {
    count_ = 0;
    items_.assign(static_cast<size_t>(size <= 0 ? 1 : size) + 1, "");
}

void clsArray::CreateByParsingText(const std::string& text, const std::string& delimiter) {
    std::vector<std::string> pieces;
    const long n = SplitToArray(pieces, delimiter, 100, text);
    for (long i = 1; i < n; ++i) {
        const std::string piece = Trim(pieces[static_cast<size_t>(i)]);
        if (!piece.empty()) Add(piece);
    }
}

void clsArray::Add(const std::string& text, long index) {
    if (index != 1) {
        platform().MsgBox("ndx isnt setup to add at specific point yet", vbOKOnly, "");
        return;
    }
    ++count_;
    items_.resize(static_cast<size_t>(count_) + 1);
    items_[static_cast<size_t>(count_)] = text;
}

void clsArray::LoadFromDisk(const std::string& file, bool report) {
    cFileIO io;
    io.init(file);
    io.OpenFile("INPUT");
    while (io.moreData()) {
        const std::string line = io.getLine();
        if (io.moreData()) Add(line);
    }
    io.closeFile();
    if (report) {
        platform().MsgBox("Read in " + FormatNumber(static_cast<double>(count_), "###,###,###") + " lines \r\n" +
                              " from file " + file,
                          vbOKOnly, "");
    }
}

void clsArray::SaveToDisk(const std::string& file) const {
    cFileIO io;
    io.init(file);
    io.OpenFile("OUTPUT");
    for (long i = 1; i <= count_; ++i) io.printLine(Item(i));
    io.closeFile();
}

long clsArray::GetIndexByText(const std::string& text, bool ignoreCase) const {
    for (long i = 1; i <= count_; ++i) {
        const std::string item = Item(i);
        if (ignoreCase ? EqualsText(item, text) : item == text) return i;
    }
    return 0;
}

std::string clsArray::Item(long index) const {
    if (index < 0 || index >= static_cast<long>(items_.size())) return "";
    return items_[static_cast<size_t>(index)];
}

void clsArray::SetItem(long index, const std::string& text) {
    if (index < 0 || index >= static_cast<long>(items_.size())) return;
    items_[static_cast<size_t>(index)] = text;
}

}  // namespace orbidex
