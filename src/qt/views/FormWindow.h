#pragma once
// The window of a form: its caption, place and size follow the form, and each of
// the form's controls is drawn by its view at the control's place in twips (tool
// bars along the top, status bars along the bottom).  Closing the window asks the
// form (Form_Unload may refuse); resizing it runs Form_Resize; Enter and Escape
// press the form's Default and Cancel buttons.  Shown, it gives the focus to the
// control the form's code gave it, also when that was before the window existed.

#include <QHash>
#include <QPointer>
#include <QWidget>

#include "controls/Form.h"

class QMenuBar;

namespace orbidex {

class Control;
class ControlWidget;
class MenuBuilder;

class FormWindow : public QWidget {
    Q_OBJECT
public:
    explicit FormWindow(Form& form, QWidget* parent = nullptr);
    ~FormWindow() override;

    /// The form, or null once it is gone.
    Form* form() const { return form_; }
    /// The view of one of the form's controls, or null.
    ControlWidget* viewOf(const Control& control) const { return views_.value(&control).data(); }
    /// The client area the controls are placed in.
    QWidget* canvas() const { return canvas_; }
    QMenuBar* menuBar() const { return menuBar_; }

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onNotice(FormNotice notice);
    void syncControls();
    void syncWindow();
    void layoutAligned();
    void pressButton(bool defaultButton);
    QSize naturalSize() const;

    Form* form_;
    QMenuBar* menuBar_;
    QWidget* canvas_;
    MenuBuilder* menus_;
    QHash<const Control*, QPointer<ControlWidget>> views_;
    bool applying_ = false;
    bool alwaysOnTop_ = false;
};

}  // namespace orbidex
