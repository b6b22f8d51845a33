#pragma once
// The base of every control model: its name on its form, place and size in twips,
// visibility, colours and font, the events every control raises, and the link to
// the view that draws it.
//
// Events are std::function members named after the event (`onClick`,
// `onKeyDown`); the form sets them to its handlers.  The `User...` operations act
// as the user would: the Qt views call them, and so can a test script.

#include <functional>
#include <string>

#include "controls/DataObject.h"
#include "controls/OleColor.h"
#include "controls/Property.h"

namespace orbidex {

class Form;

/// What a model tells its view.
enum class ViewNotice {
    Changed,    ///< some property changed: draw again
    Focus,      ///< the program gave the control the focus
    BeginDrag,  ///< the program started dragging the control
    Destroyed,  ///< the model is going away: forget it
};
using ViewCallback = std::function<void(ViewNotice)>;

// Mouse buttons and shift states, as the events pass them.
constexpr int vbLeftButton = 1;
constexpr int vbRightButton = 2;
constexpr int vbMiddleButton = 4;
constexpr int vbShiftMask = 1;
constexpr int vbCtrlMask = 2;
constexpr int vbAltMask = 4;

// Drag modes and actions.
constexpr int vbManual = 0;
constexpr int vbAutomatic = 1;
constexpr int vbCancelDrag = 0;
constexpr int vbBeginDrag = 1;
constexpr int vbEndDrag = 2;
// Drag-over states.
constexpr int vbEnter = 0;
constexpr int vbLeave = 1;
constexpr int vbOver = 2;

// Drop of outside data.
constexpr int vbOLEDropNone = 0;
constexpr int vbOLEDropManual = 1;

class Control : public PropertyOwner {
public:
    /// A control of `form` (which may be null) named `name`.
    Control(Form* form, std::string name);
    explicit Control(std::string name = "") : Control(nullptr, std::move(name)) {}
    ~Control() override;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    /// The form the control is on, or null.
    Form* Parent() const { return form_; }
    /// The frame or other control that holds this one, or null for the form itself.
    Control* Container() const { return container_; }
    void SetContainer(Control* container);
    /// The index within a control array, or -1.
    int Index() const { return index_; }
    void SetIndex(int index) { index_ = index; }

    Property<bool> Visible{this, true};
    Property<bool> Enabled{this, true};
    Property<long> Left{this, 0};
    Property<long> Top{this, 0};
    Property<long> Width{this, 0};
    Property<long> Height{this, 0};
    Property<std::string> Tag{this};
    Property<std::string> ToolTipText{this};
    Property<OleColor> BackColor{this, vbWindowBackground};
    Property<OleColor> ForeColor{this, vbWindowText};
    Property<std::string> FontName{this, "MS Sans Serif"};
    Property<double> FontSize{this, 8.25};
    Property<bool> FontBold{this, false};
    Property<bool> FontItalic{this, false};
    Property<bool> FontUnderline{this, false};
    Property<int> DragMode{this, vbManual};
    Property<int> OLEDropMode{this, vbOLEDropNone};

    /// Places the control; a negative width or height keeps the one it has.
    void Move(long left, long top, long width = -1, long height = -1);
    /// Gives the control the focus; its form keeps it as the active control.
    void SetFocus();
    /// vbBeginDrag starts dragging this control (the view follows the mouse);
    /// vbEndDrag and vbCancelDrag end it.
    void Drag(int action = vbBeginDrag);
    bool IsDragging() const { return dragging_; }

    // Events
    std::function<void()> onClick;
    std::function<void()> onDblClick;
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;
    std::function<void(int& keyCode, int shift)> onKeyDown;
    std::function<void(int& keyCode, int shift)> onKeyUp;
    std::function<void(int& keyAscii)> onKeyPress;
    std::function<void(int button, int shift, long x, long y)> onMouseDown;
    std::function<void(int button, int shift, long x, long y)> onMouseUp;
    std::function<void(int button, int shift, long x, long y)> onMouseMove;
    /// Another control of the program was dropped here; x and y in twips.
    std::function<void(Control& source, long x, long y)> onDragDrop;
    std::function<void(Control& source, long x, long y, int state)> onDragOver;
    /// Files or text from outside the program were dropped here.
    std::function<void(const DataObject& data)> onOLEDragDrop;

    // What the user does
    virtual void UserClick() { Raise(onClick); }
    void UserDblClick() { Raise(onDblClick); }
    /// Raises KeyDown; gives back the key code as the handler left it (0: eaten).
    int UserKeyDown(int keyCode, int shift);
    int UserKeyUp(int keyCode, int shift);
    /// Raises KeyPress; gives back the character as the handler left it (0: eaten).
    int UserKeyPress(int keyAscii);
    void UserMouseDown(int button, int shift, long x, long y) { Raise(onMouseDown, button, shift, x, y); }
    void UserMouseUp(int button, int shift, long x, long y) { Raise(onMouseUp, button, shift, x, y); }
    void UserMouseMove(int button, int shift, long x, long y) { Raise(onMouseMove, button, shift, x, y); }
    void UserGotFocus();
    void UserLostFocus() { Raise(onLostFocus); }
    virtual void UserDragOver(Control& source, long x, long y, int state) { Raise(onDragOver, source, x, y, state); }
    /// A drop of `source` here; the drag of the source ends.
    virtual void UserDragDrop(Control& source, long x, long y);
    void UserOLEDragDrop(const DataObject& data) { Raise(onOLEDragDrop, data); }

    // The view
    /// Links the one view that draws this control (`owner` names the view), in
    /// place of any other; an empty callback unlinks it.
    void SetViewCallback(ViewCallback callback, const void* owner = nullptr) {
        view_ = std::move(callback);
        viewOwner_ = owner;
    }
    /// Unlinks the view `owner`, if it is still the linked one.
    void ReleaseView(const void* owner) {
        if (viewOwner_ == owner) SetViewCallback(nullptr);
    }
    bool HasView() const { return static_cast<bool>(view_); }
    void PropertyChanged(const void* property) override;

protected:
    /// Tells the view to draw again.
    void Changed() { notifyView(ViewNotice::Changed); }
    void notifyView(ViewNotice notice) {
        if (view_) view_(notice);
    }

    template <typename F, typename... Args>
    static void Raise(const F& handler, Args&&... args) {
        if (handler) handler(std::forward<Args>(args)...);
    }

private:
    Form* form_;
    std::string name_;
    Control* container_ = nullptr;
    int index_ = -1;
    bool dragging_ = false;
    ViewCallback view_;
    const void* viewOwner_ = nullptr;
};

}  // namespace orbidex
