#pragma once
// A one-dimensional array of texts with a count; items are added from index 1.

#include <string>
#include <vector>

namespace orbidex {

class ListView;

class clsArray {
public:
    /// Count 0, upper bound `size` (1 when `size` is 0).
    void init(long size);
    /// Adds the trimmed non-empty pieces of the text, split at `delimiter` into at
    /// most 100 pieces; the piece at index 0 is left out.
    void CreateByParsingText(const std::string& text, const std::string& delimiter);
    /// Only index 1 (the end) is supported; any other shows a message.
    void Add(const std::string& text, long index = 1);
    /// One item per line; with `report` a message tells how many lines were read.
    void LoadFromDisk(const std::string& file, bool report);
    /// Items 1 to Count, one per line, overwriting the file.
    void SaveToDisk(const std::string& file) const;
    /// Index of the first item equal to `text`, or 0.
    long GetIndexByText(const std::string& text, bool ignoreCase) const;

    std::string Item(long index) const;
    void SetItem(long index, const std::string& text);
    long Count() const { return count_; }
    void SetCount(long count) { count_ = count; }
    /// The array's upper bound, as UBound.
    long UpperBound() const { return static_cast<long>(items_.size()) - 1; }

    void Sort() {}
    void Remove() {}
    void DisplayInListView(ListView&) {}

private:
    long count_ = 0;
    std::vector<std::string> items_ = std::vector<std::string>(1);
};

}  // namespace orbidex
