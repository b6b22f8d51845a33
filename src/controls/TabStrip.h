#pragma once
// A strip of tabs, counted from 1; one is selected.  Selecting a tab, by the user
// or by the program, raises Click.

#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class TabStrip;

class Tab : public PropertyOwner {
public:
    explicit Tab(TabStrip* owner) : owner_(owner) {}
    Tab(const Tab&) = delete;
    Tab& operator=(const Tab&) = delete;

    Property<std::string> Caption{this};
    Property<std::string> Key{this};
    Property<std::string> Tag{this};
    Property<std::string> ToolTipText{this};
    Property<std::string> Image{this};
    /// Assigning true selects this tab.
    Property<bool> Selected{this, false};
    long Index() const { return index_; }

    void PropertyChanged(const void* property) override;
    void Reset();

private:
    friend class TabCollection;
    TabStrip* owner_;
    long index_ = 0;
};

class TabCollection {
public:
    explicit TabCollection(TabStrip& owner) : owner_(owner), detached_(nullptr) {}
    TabCollection(const TabCollection&) = delete;
    TabCollection& operator=(const TabCollection&) = delete;

    /// Adds a tab at the end; the first tab added is selected.
    Tab& Add(const std::string& caption = "", const std::string& key = "", const std::string& image = "");
    /// The tab at `index` (from 1) or with that key; a tab that is not there gives
    /// one of no strip, so that what is done to it changes nothing.
    Tab& operator()(long index);
    Tab& operator()(const std::string& key);
    Tab* Item(long index) const;
    Tab* Item(const std::string& key) const;
    long Count() const { return static_cast<long>(tabs_.size()); }
    void Remove(long index);
    void Clear();

private:
    Tab& detached();
    void renumber();

    TabStrip& owner_;
    std::vector<std::unique_ptr<Tab>> tabs_;
    Tab detached_;
};

class TabStrip : public Control {
public:
    TabStrip(Form* form, std::string name);
    explicit TabStrip(std::string name = "") : TabStrip(nullptr, std::move(name)) {}

    TabCollection Tabs{*this};
    Property<int> Style{this, 0};  ///< 0 tabs, 1 buttons

    Tab* SelectedItem() const { return selected_; }
    void SetSelectedItem(Tab* tab);

    /// A click on a tab selects it (Click is raised when the selection changes).
    void UserClickTab(Tab& tab) {
        if (Enabled) SetSelectedItem(&tab);
    }

    unsigned long StructureVersion() const { return structureVersion_; }
    // Called by the tabs
    void TabChanged(Tab& tab, const void* property);
    void TabRemoved(Tab& tab);
    void StructureChanged();

private:
    Tab* selected_ = nullptr;
    unsigned long structureVersion_ = 0;
};

}  // namespace orbidex
