#pragma once
// A tool bar: buttons found by key, each with a caption, an image (by name), a
// tool tip, a pressed state, and for drop-down buttons a menu of entries.

#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class Toolbar;
class Button;

constexpr int tbrDefault = 0;
constexpr int tbrCheck = 1;
constexpr int tbrButtonGroup = 2;
constexpr int tbrSeparator = 3;
constexpr int tbrPlaceholder = 4;
constexpr int tbrDropdown = 5;

constexpr int tbrUnpressed = 0;
constexpr int tbrPressed = 1;

constexpr int vbAlignNone = 0;
constexpr int vbAlignTop = 1;
constexpr int vbAlignBottom = 2;
constexpr int vbAlignLeft = 3;
constexpr int vbAlignRight = 4;

class ButtonMenu : public PropertyOwner {
public:
    explicit ButtonMenu(Button* owner) : owner_(owner) {}
    ButtonMenu(const ButtonMenu&) = delete;
    ButtonMenu& operator=(const ButtonMenu&) = delete;

    Property<std::string> Key{this};
    Property<std::string> Text{this};
    Property<std::string> Tag{this};
    Property<bool> Enabled{this, true};
    Property<bool> Visible{this, true};
    long Index() const { return index_; }
    Button* Parent() const { return owner_; }

    void PropertyChanged(const void* property) override;

private:
    friend class Button;
    Button* owner_;
    long index_ = 0;
};

class Button : public PropertyOwner {
public:
    explicit Button(Toolbar* owner) : owner_(owner) {}
    Button(const Button&) = delete;
    Button& operator=(const Button&) = delete;

    Property<std::string> Key{this};
    Property<std::string> Caption{this};
    Property<std::string> Image{this};
    Property<std::string> ToolTipText{this};
    Property<std::string> Tag{this};
    Property<int> Style{this, tbrDefault};
    Property<int> Value{this, tbrUnpressed};
    Property<bool> Visible{this, true};
    Property<bool> Enabled{this, true};
    long Index() const { return index_; }

    /// The entries of a drop-down button's menu, counted from 1.
    ButtonMenu& AddButtonMenu(const std::string& text, const std::string& key = "");
    long ButtonMenuCount() const { return static_cast<long>(menus_.size()); }
    /// The entry at `index` (from 1), or null.
    ButtonMenu* ButtonMenus(long index) const;
    ButtonMenu* ButtonMenus(const std::string& key) const;
    void ClearButtonMenus();

    void PropertyChanged(const void* property) override;
    void Changed();
    /// Back to a new button, without telling anyone.
    void Reset();

private:
    friend class ButtonCollection;
    Toolbar* owner_;
    long index_ = 0;
    std::vector<std::unique_ptr<ButtonMenu>> menus_;
};

class ButtonCollection {
public:
    explicit ButtonCollection(Toolbar& owner) : owner_(owner), detached_(nullptr) {}
    ButtonCollection(const ButtonCollection&) = delete;
    ButtonCollection& operator=(const ButtonCollection&) = delete;

    /// Adds a button at the end.  A key already taken is not given to the new one.
    Button& Add(const std::string& key = "", const std::string& caption = "", int style = tbrDefault,
                const std::string& image = "");
    /// The button at `index` (from 1) or with that key.  A button that is not there
    /// gives one of no tool bar, so that what is done to it changes nothing.
    Button& operator()(long index);
    Button& operator()(const std::string& key);
    /// The button at `index` (from 1), or null.
    Button* Item(long index) const;
    /// The button with that key (without regard to case), or null.
    Button* Item(const std::string& key) const;
    long Count() const { return static_cast<long>(buttons_.size()); }
    void Remove(long index);
    void Clear();

private:
    Button& detached();

    Toolbar& owner_;
    std::vector<std::unique_ptr<Button>> buttons_;
    Button detached_;
};

class Toolbar : public Control {
public:
    Toolbar(Form* form, std::string name);
    explicit Toolbar(std::string name = "") : Toolbar(nullptr, std::move(name)) {}

    ButtonCollection Buttons{*this};
    Property<int> Align{this, vbAlignTop};
    /// Show each button's caption under its image.
    Property<bool> ShowCaptions{this, true};

    std::function<void(Button& button)> onButtonClick;
    std::function<void(ButtonMenu& entry)> onButtonMenuClick;

    /// A click on a button: a check button toggles, a group button is pressed and
    /// the others of its group are released; then ButtonClick.
    void UserClickButton(Button& button);
    void UserClickButtonMenu(ButtonMenu& entry);

    unsigned long StructureVersion() const { return structureVersion_; }
    void StructureChanged();
    void ContentChanged() { Changed(); }

private:
    void releaseGroupOf(Button& button);

    unsigned long structureVersion_ = 0;
};

}  // namespace orbidex
