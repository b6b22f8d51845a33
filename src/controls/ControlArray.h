#pragma once
// A control array: controls of one kind sharing one name, told apart by an index
// (`optFinish(0)`, `lbl(12)`).  Elements are made by Load and go by Unload; using
// an index that is not loaded loads it.

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orbidex {

class Form;

template <typename T>
class ControlArray {
public:
    ControlArray(Form* form, std::string name) : form_(form), name_(std::move(name)) {}
    ControlArray(const ControlArray&) = delete;
    ControlArray& operator=(const ControlArray&) = delete;

    const std::string& Name() const { return name_; }

    /// The element at `index`, loaded first if need be.
    T& operator()(int index) { return Load(index); }
    /// Makes the element at `index` (a new control of the form), or gives the one
    /// that is there.
    T& Load(int index) {
        auto& element = elements_[index];
        if (!element) {
            element = std::make_unique<T>(form_, name_);
            element->SetIndex(index);
        }
        return *element;
    }
    void Unload(int index) { elements_.erase(index); }
    bool Exists(int index) const { return elements_.count(index) != 0; }
    long Count() const { return static_cast<long>(elements_.size()); }
    /// The lowest and highest index loaded (0 and -1 when none is).
    int LBound() const { return elements_.empty() ? 0 : elements_.begin()->first; }
    int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }
    std::vector<int> Indexes() const {
        std::vector<int> indexes;
        for (const auto& [index, element] : elements_) indexes.push_back(index);
        return indexes;
    }

private:
    Form* form_;
    std::string name_;
    std::map<int, std::unique_ptr<T>> elements_;
};

}  // namespace orbidex
