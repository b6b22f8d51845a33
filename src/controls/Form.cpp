#include "controls/Form.h"

#include <algorithm>

#include "controls/Control.h"
#include "controls/Menu.h"
#include "platform/Platform.h"

namespace orbidex {

Form::~Form() { notifyView(FormNotice::Destroyed); }

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    unloaded_ = false;
    Form_Load();
}

void Form::Show(bool modal) {
    Load();
    unloaded_ = false;
    showing_ = true;
    Visible = true;
    showing_ = false;
    if (modal)
        platform().ShowModal(*this);
    else
        platform().ShowModeless(*this);
}

void Form::Hide() {
    if (!Visible) {
        platform().HideForm(*this);
        return;
    }
    Visible = false;  // PropertyChanged hides the window
}

bool Form::Unload() {
    if (unloading_) return true;
    if (loaded_) {
        int cancel = 0;
        unloading_ = true;
        Form_Unload(cancel);
        unloading_ = false;
        if (cancel != 0) return false;
    }
    unloaded_ = true;
    loaded_ = false;
    Hide();
    notifyView(FormNotice::Changed);
    return true;
}

void Form::Move(long left, long top, long width, long height) {
    Left = left;
    Top = top;
    if (width >= 0) Width = width;
    if (height >= 0) Height = height;
}

void Form::PopupMenu(Menu& menu) {
    if (popup_) popup_(menu);
}

void Form::UserResize(long width, long height, long scaleWidth, long scaleHeight) {
    Width = width;
    Height = height;
    ScaleWidth = scaleWidth;
    ScaleHeight = scaleHeight;
    Form_Resize();
}

Control* Form::FindControl(const std::string& name) const {
    const auto it = std::find_if(controls_.begin(), controls_.end(),
                                 [&](const Control* c) { return c->Name() == name; });
    return it == controls_.end() ? nullptr : *it;
}

void Form::RegisterControl(Control& control) {
    controls_.push_back(&control);
    notifyView(FormNotice::ControlsChanged);
}

void Form::UnregisterControl(Control& control) {
    std::erase(controls_, &control);
    if (activeControl_ == &control) activeControl_ = nullptr;
    notifyView(FormNotice::ControlsChanged);
}

void Form::PropertyChanged(const void* property) {
    if (property == &Visible && !showing_) {
        // Assigning Visible shows the form without waiting, or hides it.
        if (Visible) {
            Load();
            unloaded_ = false;
            platform().ShowModeless(*this);
        } else {
            platform().HideForm(*this);
        }
    }
    notifyView(FormNotice::Changed);
}

}  // namespace orbidex
