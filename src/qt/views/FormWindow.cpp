#include "qt/views/FormWindow.h"

#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/CommandButton.h"
#include "controls/Control.h"
#include "controls/Menu.h"
#include "controls/StatusBar.h"
#include "controls/Toolbar.h"
#include "qt/QtText.h"
#include "qt/views/ControlWidget.h"
#include "qt/views/ControlWidgets.h"
#include "qt/views/MenuBuilder.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

FormWindow::FormWindow(Form& form, QWidget* parent)
    : QWidget(parent), form_(&form), menuBar_(new QMenuBar), canvas_(new QWidget), menus_(new MenuBuilder(this)) {
    setObjectName(QString::fromStdString(form.Name()));  // for accessibility tools and test drivers
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menuBar_);
    layout->addWidget(canvas_, 1);
    canvas_->installEventFilter(this);
    canvas_->setAutoFillBackground(true);

    form_->SetViewCallback([this](FormNotice notice) { onNotice(notice); }, this);
    form_->SetPopupHandler([this](Menu& menu) {
        QMenu* popup = MenuBuilder::BuildPopup(menu, this);
        popup->exec(QCursor::pos());
        delete popup;
    });
    menus_->FillMenuBar(*menuBar_, form);
    menuBar_->setVisible(!menuBar_->actions().isEmpty());
    syncControls();
    syncWindow();
}

FormWindow::~FormWindow() {
    if (form_ != nullptr) form_->ReleaseView(this);
}

void FormWindow::onNotice(FormNotice notice) {
    switch (notice) {
        case FormNotice::Changed:
            if (!applying_) syncWindow();
            break;
        case FormNotice::ControlsChanged:
            // Controls come and go inside handlers: draw them when the handler is done.
            QMetaObject::invokeMethod(this, [this] { syncControls(); }, Qt::QueuedConnection);
            break;
        case FormNotice::Destroyed:
            form_ = nullptr;
            hide();
            deleteLater();
            break;
    }
}

void FormWindow::syncControls() {
    if (form_ == nullptr) return;
    std::vector<ControlWidget*> added;
    for (Control* control : form_->Controls()) {
        // A view still bound to the control stays; a control made anew where an
        // unloaded one was gets a view of its own.
        const QPointer<ControlWidget> existing = views_.value(control);
        if (!existing.isNull() && existing->model() == control) continue;
        if (ControlWidget* view = CreateControlWidget(*control, canvas_)) {
            views_.insert(control, view);
            added.push_back(view);
        }
    }
    // Controls held by a frame go inside it, above its border.
    for (ControlWidget* view : added) {
        Control* container = view->model()->Container();
        ControlWidget* holder = container != nullptr ? viewOf(*container) : nullptr;
        if (holder != nullptr && holder->childArea() != nullptr) {
            view->setParent(holder->childArea());
            view->raise();
        }
        view->setPlacedByForm(true);
    }
    layoutAligned();
}

QSize FormWindow::naturalSize() const {
    QRect extent;
    for (const auto& view : views_)
        if (!view.isNull() && view->parentWidget() == canvas_) extent = extent.united(view->geometry());
    const int menuHeight = menuBar_->isVisible() ? menuBar_->sizeHint().height() : 0;
    return {std::max(extent.right() + 12, 200), std::max(extent.bottom() + 12, 120) + menuHeight};
}

void FormWindow::syncWindow() {
    if (form_ == nullptr) return;
    applying_ = true;
    setWindowTitle(ToQString(form_->Caption));
    if (form_->Width > 0 && form_->Height > 0)
        resize(TwipsToPixels(form_->Width), TwipsToPixels(form_->Height));
    else
        resize(naturalSize());
    if (form_->Left != 0 || form_->Top != 0) move(TwipsToPixels(form_->Left), TwipsToPixels(form_->Top));
    const Qt::WindowStates state = form_->WindowState == vbMaximized   ? Qt::WindowMaximized
                                   : form_->WindowState == vbMinimized ? Qt::WindowMinimized
                                                                       : Qt::WindowNoState;
    if (windowState() != state) setWindowState(state);
    if (alwaysOnTop_ != form_->AlwaysOnTop) {
        alwaysOnTop_ = form_->AlwaysOnTop;
        const bool shown = isVisible();
        setWindowFlag(Qt::WindowStaysOnTopHint, alwaysOnTop_);
        if (shown) show();
    }
    QPalette palette = canvas_->palette();
    palette.setColor(QPalette::Window, ToQColor(form_->BackColor));
    canvas_->setPalette(palette);
    applying_ = false;
}

void FormWindow::layoutAligned() {
    if (form_ == nullptr) return;
    long top = 0;
    long bottom = PixelsToTwips(canvas_->height());
    const long width = PixelsToTwips(canvas_->width());
    for (Control* control : form_->Controls()) {
        ControlWidget* view = viewOf(*control);
        if (view == nullptr || !control->Visible) continue;
        int align = vbAlignNone;
        if (auto* bar = dynamic_cast<Toolbar*>(control)) align = bar->Align;
        if (auto* status = dynamic_cast<StatusBar*>(control)) align = status->Align;
        if (align != vbAlignTop && align != vbAlignBottom) continue;
        const long height = PixelsToTwips(view->sizeHint().height());
        if (align == vbAlignTop) {
            control->Move(0, top, width, height);
            top += height;
        } else {
            bottom -= height;
            control->Move(0, bottom, width, height);
        }
    }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == canvas_ && event->type() == QEvent::Resize) layoutAligned();
    return QWidget::eventFilter(watched, event);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (form_ == nullptr || applying_) return;
    applying_ = true;
    form_->UserResize(PixelsToTwips(width()), PixelsToTwips(height()), PixelsToTwips(canvas_->width()),
                      PixelsToTwips(canvas_->height()));
    applying_ = false;
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (form_ == nullptr || applying_) return;
    applying_ = true;
    form_->Left = PixelsToTwips(x());
    form_->Top = PixelsToTwips(y());
    applying_ = false;
}

void FormWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Control* active = form_ != nullptr ? form_->ActiveControl() : nullptr;
    if (ControlWidget* view = active != nullptr ? viewOf(*active) : nullptr) view->setFocus(Qt::OtherFocusReason);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (form_ != nullptr && !form_->UserClose())
        event->ignore();
    else
        event->accept();
}

void FormWindow::pressButton(bool defaultButton) {
    if (form_ == nullptr) return;
    for (Control* control : form_->Controls()) {
        auto* button = dynamic_cast<CommandButton*>(control);
        if (button == nullptr || !button->Visible || !button->Enabled) continue;
        if (defaultButton ? button->Default() : button->Cancel()) {
            button->UserClick();
            return;
        }
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: pressButton(true); break;
        case Qt::Key_Escape: pressButton(false); break;
        default: QWidget::keyPressEvent(event); return;
    }
    event->accept();
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && form_ != nullptr) form_->UserActivate();
    if (event->type() == QEvent::WindowStateChange && form_ != nullptr && !applying_) {
        applying_ = true;
        form_->WindowState = isMaximized() ? vbMaximized : isMinimized() ? vbMinimized : vbNormal;
        applying_ = false;
    }
}

}  // namespace orbidex
