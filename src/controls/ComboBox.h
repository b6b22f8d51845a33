#pragma once
// A drop-down list: its items, as the form's logic fills and reads them.

#include <string>
#include <vector>

namespace orbidex {

class ComboBox {
public:
    void Clear() { items_.clear(); }
    void AddItem(const std::string& text) { items_.push_back(text); }
    long ListCount() const { return static_cast<long>(items_.size()); }
    /// The item at 0-based `i`, or "" outside the list.
    std::string List(long i) const {
        return i >= 0 && i < ListCount() ? items_[static_cast<size_t>(i)] : std::string();
    }

private:
    std::vector<std::string> items_;
};

}  // namespace orbidex
