#pragma once
// Draws a Frame: a caption over a border.  The controls the frame holds are
// placed inside it, their positions counted from its corner.

#include "qt/views/ControlWidget.h"

class QGroupBox;

namespace orbidex {

class Frame;

class FrameWidget : public ControlWidget {
    Q_OBJECT
public:
    FrameWidget(Frame& model, QWidget* parent = nullptr);
    QGroupBox* groupBox() const { return box_; }
    QWidget* childArea() override { return this; }

protected:
    void syncFromModel() override;

private:
    Frame& frame_;
    QGroupBox* box_;
};

}  // namespace orbidex
