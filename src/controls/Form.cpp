#include "controls/Form.h"

#include "platform/Platform.h"

namespace orbidex {

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    unloaded_ = false;
    Form_Load();
}

void Form::Show(bool modal) {
    Load();
    unloaded_ = false;
    Visible = true;
    if (modal)
        platform().ShowModal(*this);
    else
        platform().ShowModeless(*this);
}

void Form::Hide() {
    Visible = false;
    platform().HideForm(*this);
}

void Form::Unload() {
    unloaded_ = true;
    loaded_ = false;
    Hide();
}

}  // namespace orbidex
