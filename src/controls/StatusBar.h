#pragma once
// A status bar of panels, counted from 1.  A new status bar has one panel.

#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class StatusBar;

constexpr int sbrNoAutoSize = 0;
constexpr int sbrSpring = 1;
constexpr int sbrContents = 2;

constexpr int sbrNormal = 0;
constexpr int sbrSimple = 1;

class Panel : public PropertyOwner {
public:
    explicit Panel(StatusBar* owner) : owner_(owner) {}
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    Property<std::string> Text{this};
    Property<std::string> Key{this};
    Property<std::string> Tag{this};
    Property<std::string> ToolTipText{this};
    Property<long> Width{this, 1440};     ///< twips
    Property<long> MinWidth{this, 1440};  ///< twips
    Property<int> AutoSize{this, sbrNoAutoSize};
    Property<int> Alignment{this, 0};     ///< 0 left, 1 centre, 2 right
    Property<bool> Visible{this, true};
    long Index() const { return index_; }

    void PropertyChanged(const void* property) override;
    /// Back to a new panel, without telling anyone.
    void Reset();

private:
    friend class PanelCollection;
    StatusBar* owner_;
    long index_ = 0;
};

class PanelCollection {
public:
    explicit PanelCollection(StatusBar& owner);
    PanelCollection(const PanelCollection&) = delete;
    PanelCollection& operator=(const PanelCollection&) = delete;

    Panel& Add(const std::string& text = "", const std::string& key = "");
    /// The panel at `index` (from 1) or with that key; a panel that is not there
    /// gives one of no status bar, so that what is done to it changes nothing.
    Panel& operator()(long index);
    Panel& operator()(const std::string& key);
    Panel* Item(long index) const;
    Panel* Item(const std::string& key) const;
    long Count() const { return static_cast<long>(panels_.size()); }
    void Remove(long index);
    void Clear();

private:
    Panel& detached();
    void renumber();

    StatusBar& owner_;
    std::vector<std::unique_ptr<Panel>> panels_;
    Panel detached_;
};

class StatusBar : public Control {
public:
    StatusBar(Form* form, std::string name);
    explicit StatusBar(std::string name = "") : StatusBar(nullptr, std::move(name)) {}

    PanelCollection Panels{*this};
    Property<int> Style{this, sbrNormal};
    /// The text shown across the bar in the simple style.
    Property<std::string> SimpleText{this};
    Property<int> Align{this, 2};  ///< at the bottom of the form

    std::function<void(Panel& panel)> onPanelClick;
    std::function<void(Panel& panel)> onPanelDblClick;
    void UserClickPanel(Panel& panel) { Raise(onPanelClick, panel); }
    void UserDblClickPanel(Panel& panel) { Raise(onPanelDblClick, panel); }

    unsigned long StructureVersion() const { return structureVersion_; }
    void StructureChanged();
    void ContentChanged() { Changed(); }

private:
    unsigned long structureVersion_ = 0;
};

}  // namespace orbidex
