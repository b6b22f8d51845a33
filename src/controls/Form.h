#pragma once
// The base of every form: its place in twips, its caption, the load, resize and
// unload handlers, the controls it owns, and its showing through the platform.
//
// A form owns its control models as members, each made with the form and its
// name (`TextBox txtDetails{this, "txtDetails"};`), and so knows them all; the
// window toolkit builds a window for it when it is shown and binds a widget to
// each control.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/OleColor.h"
#include "controls/Property.h"

namespace orbidex {

class Control;
class Menu;

constexpr int vbNormal = 0;
constexpr int vbMinimized = 1;
constexpr int vbMaximized = 2;

/// What a form tells its window.
enum class FormNotice {
    Changed,          ///< caption, place, size or state changed
    ControlsChanged,  ///< a control was added or removed at run time
    Destroyed,        ///< the form is going away
};

class Form : public PropertyOwner {
public:
    explicit Form(std::string name) : name_(std::move(name)) {}
    ~Form() override;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// The form's name, as the settings file and the window toolkit know it.
    const std::string& Name() const { return name_; }

    /// Runs Form_Load once, at the first use after each unload.
    void Load();
    bool IsLoaded() const { return loaded_; }
    /// Loads the form and shows it, modally (returning when it is unloaded or
    /// hidden) or not.
    void Show(bool modal);
    /// Runs Form_Unload; unless the handler cancels, hides the form and marks it
    /// unloaded, so that a modal form returns to its caller and the next Show runs
    /// Form_Load again.  False when the handler cancelled.
    bool Unload();
    bool IsUnloaded() const { return unloaded_; }
    /// Hides the form; it stays loaded and keeps what its controls hold.
    void Hide();
    /// Places the window; a negative width or height keeps the one it has.
    void Move(long left, long top, long width = -1, long height = -1);
    /// Shows `menu`'s items as a pop-up menu at the mouse pointer.
    void PopupMenu(Menu& menu);

    virtual void Form_Load() {}
    /// Called before the form unloads, by Unload() or by the user closing the
    /// window; setting `cancel` keeps it loaded and open.
    virtual void Form_Unload(int& cancel) { (void)cancel; }
    /// Called after the user changed the window's size.
    virtual void Form_Resize() {}
    /// Called when the window becomes the active one.
    virtual void Form_Activate() {}

    Property<std::string> Caption{this};
    Property<long> Left{this, 0};
    Property<long> Top{this, 0};
    /// The window's outer size.
    Property<long> Width{this, 0};
    Property<long> Height{this, 0};
    /// The size of the client area that the controls are placed in.
    Property<long> ScaleWidth{this, 0};
    Property<long> ScaleHeight{this, 0};
    /// The client area's size as the window gave it, or the outer size while no window
    /// has shown the form yet.
    long InsideWidth() const { return ScaleWidth > 0 ? static_cast<long>(ScaleWidth) : static_cast<long>(Width); }
    long InsideHeight() const { return ScaleHeight > 0 ? static_cast<long>(ScaleHeight) : static_cast<long>(Height); }
    Property<int> WindowState{this, vbNormal};  ///< 0 normal, 1 minimised, 2 maximised
    Property<bool> Visible{this, false};
    Property<bool> AlwaysOnTop{this, false};
    Property<OleColor> BackColor{this, vbButtonFace};

    // What the user does to the window
    /// The close button: unloads unless Form_Unload cancels.  True when unloaded.
    bool UserClose() { return Unload(); }
    /// The user resized the window: the new outer and client sizes, then Form_Resize.
    void UserResize(long width, long height, long scaleWidth, long scaleHeight);
    void UserActivate() { Form_Activate(); }

    // Controls and menus
    /// The form's controls and menus in the order they were made.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control that got the focus last, from the program or the user; null for
    /// none.  The window gives it the focus when it is shown.
    Control* ActiveControl() const { return activeControl_; }
    void SetActiveControl(Control* control) { activeControl_ = control; }
    /// The control of that name (the first element of a control array), or null.
    Control* FindControl(const std::string& name) const;
    /// Called by the controls themselves.
    void RegisterControl(Control& control);
    void UnregisterControl(Control& control);

    // The window
    /// Links the window that shows this form (`owner` names it), in place of any other.
    void SetViewCallback(std::function<void(FormNotice)> callback, const void* owner = nullptr) {
        view_ = std::move(callback);
        viewOwner_ = owner;
    }
    /// Unlinks the window `owner`, if it is still the linked one.
    void ReleaseView(const void* owner) {
        if (viewOwner_ == owner) {
            SetViewCallback(nullptr);
            popup_ = nullptr;
        }
    }
    bool HasView() const { return static_cast<bool>(view_); }
    void SetPopupHandler(std::function<void(Menu&)> handler) { popup_ = std::move(handler); }
    void PropertyChanged(const void* property) override;

private:
    void notifyView(FormNotice notice) {
        if (view_) view_(notice);
    }

    std::string name_;
    bool loaded_ = false;
    bool unloaded_ = false;
    bool unloading_ = false;
    bool showing_ = false;
    std::vector<Control*> controls_;
    Control* activeControl_ = nullptr;
    std::function<void(FormNotice)> view_;
    const void* viewOwner_ = nullptr;
    std::function<void(Menu&)> popup_;
};

}  // namespace orbidex
