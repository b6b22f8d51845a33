#include "controls/Control.h"

#include "controls/Form.h"

namespace orbidex {

Control::Control(Form* form, std::string name) : form_(form), name_(std::move(name)) {
    if (form_ != nullptr) form_->RegisterControl(*this);
}

Control::~Control() {
    notifyView(ViewNotice::Destroyed);
    if (form_ != nullptr) form_->UnregisterControl(*this);
}

void Control::SetFocus() {
    if (form_ != nullptr) form_->SetActiveControl(this);
    notifyView(ViewNotice::Focus);
}

void Control::UserGotFocus() {
    if (form_ != nullptr) form_->SetActiveControl(this);
    Raise(onGotFocus);
}

void Control::SetContainer(Control* container) {
    if (container == this) return;
    container_ = container;
    Changed();
}

void Control::Move(long left, long top, long width, long height) {
    Left = left;
    Top = top;
    if (width >= 0) Width = width;
    if (height >= 0) Height = height;
}

void Control::Drag(int action) {
    const bool start = action == vbBeginDrag;
    if (start == dragging_) return;
    dragging_ = start;
    if (start) notifyView(ViewNotice::BeginDrag);
}

int Control::UserKeyDown(int keyCode, int shift) {
    Raise(onKeyDown, keyCode, shift);
    return keyCode;
}

int Control::UserKeyUp(int keyCode, int shift) {
    Raise(onKeyUp, keyCode, shift);
    return keyCode;
}

int Control::UserKeyPress(int keyAscii) {
    Raise(onKeyPress, keyAscii);
    return keyAscii;
}

void Control::UserDragDrop(Control& source, long x, long y) {
    source.dragging_ = false;
    Raise(onDragDrop, source, x, y);
}

void Control::PropertyChanged(const void*) { Changed(); }

}  // namespace orbidex
