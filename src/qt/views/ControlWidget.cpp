#include "qt/views/ControlWidget.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "foundation/FileSystem.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

namespace {
Control* gDragged = nullptr;  // the control of the program being dragged now
}

ControlWidget::ControlWidget(Control& control, QWidget* parent) : QWidget(parent), model_(&control) {
    setObjectName(QString::fromStdString(control.Name()));  // for accessibility tools and test drivers
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    model_->SetViewCallback([this](ViewNotice notice) { onNotice(notice); }, this);
}

ControlWidget::~ControlWidget() {
    if (model_ != nullptr) model_->ReleaseView(this);
}

QString ControlWidget::controlMimeType() { return QStringLiteral("application/x-orbidex-control"); }

Control* ControlWidget::draggedControl() { return gDragged; }

ControlWidget::DragScope::DragScope(Control& control) { gDragged = &control; }

ControlWidget::DragScope::~DragScope() { gDragged = nullptr; }

void ControlWidget::setPlacedByForm(bool placed) {
    placedByForm_ = placed;
    if (model_ == nullptr) return;
    const bool wasSyncing = syncing_;
    syncing_ = true;
    place();  // what the view draws was drawn as it was made
    syncing_ = wasSyncing;
}

void ControlWidget::setInner(QWidget* inner, QWidget* mousePart, QWidget* keyPart) {
    if (inner_ != nullptr) {
        layout()->removeWidget(inner_);
        inner_->hide();
        inner_->deleteLater();
    }
    inner_ = inner;
    layout()->addWidget(inner_);
    setFocusProxy(inner_);
    mousePart_ = mousePart != nullptr ? mousePart : inner;
    keyPart_ = keyPart != nullptr ? keyPart : inner;
    mousePart_->installEventFilter(this);
    mousePart_->setAcceptDrops(true);
    mousePart_->setMouseTracking(true);
    keyPart_->installEventFilter(this);
}

void ControlWidget::takeDropsOn(QWidget* part) {
    part->setAcceptDrops(true);
    part->installEventFilter(this);
    dropParts_.emplace_back(part);
}

void ControlWidget::refresh() {
    if (model_ == nullptr) return;
    const bool wasSyncing = syncing_;
    syncing_ = true;
    setEnabled(model_->Enabled);
    setToolTip(ToQString(model_->ToolTipText));
    place();
    if (!drawnWhenShown_ || parentWidget() == nullptr || model_->Visible) syncFromModel();
    syncing_ = wasSyncing;
}

void ControlWidget::place() {
    if (placedByForm_) {
        // A size hint measures the text, which loads the fonts: only when it is needed.
        const bool sized = model_->Width > 0 && model_->Height > 0;
        const QSize hint = sized ? QSize() : sizeHint();
        const int width = model_->Width > 0 ? TwipsToPixels(model_->Width) : hint.width();
        const int height = model_->Height > 0 ? TwipsToPixels(model_->Height) : hint.height();
        setGeometry(TwipsToPixels(model_->Left), TwipsToPixels(model_->Top), width, height);
    }
    if (parentWidget() != nullptr) setVisible(model_->Visible);
}

void ControlWidget::onNotice(ViewNotice notice) {
    switch (notice) {
        case ViewNotice::Changed:
            if (!deferred_) {
                refresh();
            } else if (!refreshPending_) {
                refreshPending_ = true;
                QMetaObject::invokeMethod(
                    this,
                    [this] {
                        refreshPending_ = false;
                        refresh();
                    },
                    Qt::QueuedConnection);
            }
            break;
        case ViewNotice::Focus:
            if (inner_ != nullptr) inner_->setFocus(Qt::OtherFocusReason);
            break;
        case ViewNotice::BeginDrag: startDrag(); break;
        case ViewNotice::Destroyed:
            model_ = nullptr;
            hide();
            deleteLater();
            break;
    }
}

long ControlWidget::twipsX(QWidget* part, QPoint pos) const { return PixelsToTwips(part->mapTo(this, pos).x()); }

long ControlWidget::twipsY(QWidget* part, QPoint pos) const { return PixelsToTwips(part->mapTo(this, pos).y()); }

void ControlWidget::applyFont(QWidget* widget) const {
    widget->setFont(ToQFont(model_->FontName, model_->FontSize, model_->FontBold, model_->FontItalic));
}

void ControlWidget::applyColors(QWidget* widget, QPalette::ColorRole backRole, QPalette::ColorRole foreRole) const {
    QPalette palette = QApplication::palette(widget);
    palette.setColor(backRole, ToQColor(model_->BackColor, palette));
    palette.setColor(foreRole, ToQColor(model_->ForeColor, palette));
    widget->setPalette(palette);
}

void ControlWidget::startDrag() {
    if (model_ == nullptr || QApplication::mouseButtons() == Qt::NoButton) {
        if (model_ != nullptr) model_->Drag(vbEndDrag);
        return;
    }
    auto* drag = new QDrag(this);
    auto* mime = new QMimeData;
    mime->setData(controlMimeType(), QByteArray::fromStdString(model_->Name()));
    drag->setMimeData(mime);
    QPointer<ControlWidget> self(this);
    {
        const DragScope dragging(*model_);
        drag->exec(Qt::MoveAction | Qt::CopyAction);
    }
    if (!self.isNull() && model_ != nullptr) model_->Drag(vbEndDrag);
}

void ControlWidget::controlDropped(Control& source, QPoint pos) {
    model_->UserDragDrop(source, PixelsToTwips(pos.x()), PixelsToTwips(pos.y()));
}

void ControlWidget::controlDraggedOver(Control& source, QPoint pos) {
    model_->UserDragOver(source, PixelsToTwips(pos.x()), PixelsToTwips(pos.y()), vbOver);
}

bool ControlWidget::eventFilter(QObject* watched, QEvent* event) {
    auto* part = qobject_cast<QWidget*>(watched);
    if (model_ == nullptr || part == nullptr) return false;
    const bool mousePart = part == mousePart_;
    const bool keyPart = part == keyPart_;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove: return mousePart && mouseEvent(part, event);
        case QEvent::KeyPress:
        case QEvent::KeyRelease: return keyPart && keyEvent(event);
        case QEvent::FocusIn:
            if (keyPart) model_->UserGotFocus();
            return false;
        case QEvent::FocusOut:
            if (keyPart) model_->UserLostFocus();
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: {
            const bool dropPart = std::find(dropParts_.begin(), dropParts_.end(), part) != dropParts_.end();
            return (mousePart || dropPart) && dragOrDrop(part, event);
        }
        default: return false;
    }
}

bool ControlWidget::mouseEvent(QWidget* part, QEvent* event) {
    if (ownMouse_) return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QPoint pos = mouse->position().toPoint();
    const int shift = ToVbShift(mouse->modifiers());
    const long x = twipsX(part, pos);
    const long y = twipsY(part, pos);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            pressed_ = true;
            pressPos_ = pos;
            model_->UserMouseDown(ToVbButton(mouse->button()), shift, x, y);
            break;
        case QEvent::MouseButtonRelease:
            pressed_ = false;
            model_->UserMouseUp(ToVbButton(mouse->button()), shift, x, y);
            if (plainClicks_ && model_ != nullptr && mouse->button() == Qt::LeftButton && part->rect().contains(pos))
                model_->UserClick();
            break;
        case QEvent::MouseButtonDblClick:
            if (plainClicks_ && mouse->button() == Qt::LeftButton) model_->UserDblClick();
            break;
        default:
            model_->UserMouseMove(ToVbButton(mouse->buttons()), shift, x, y);
            if (model_ != nullptr && pressed_ && model_->DragMode == vbAutomatic && !model_->IsDragging() &&
                (pos - pressPos_).manhattanLength() >= QApplication::startDragDistance()) {
                pressed_ = false;
                model_->Drag(vbBeginDrag);
                return true;
            }
            break;
    }
    return false;
}

bool ControlWidget::keyEvent(QEvent* event) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const int shift = ToVbShift(key->modifiers());
    const int code = ToVbKeyCode(*key);
    if (event->type() == QEvent::KeyRelease) {
        if (code != 0) model_->UserKeyUp(code, shift);
        return false;
    }
    if (code != 0 && model_->UserKeyDown(code, shift) == 0) return true;
    if (model_ == nullptr || key->text().isEmpty()) return false;
    const std::string typed = FromQString(key->text().left(1));
    if (typed.empty()) return false;
    return model_->UserKeyPress(static_cast<unsigned char>(typed[0])) == 0;
}

bool ControlWidget::dragOrDrop(QWidget* part, QEvent* event) {
    auto* drop = static_cast<QDropEvent*>(event);
    const QMimeData* mime = drop->mimeData();
    const bool internal = mime->hasFormat(controlMimeType()) && gDragged != nullptr;
    const bool external = !internal && model_->OLEDropMode == vbOLEDropManual && (mime->hasUrls() || mime->hasText());
    if (!internal && !external) return false;
    const QPoint pos = part->mapTo(this, drop->position().toPoint());
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
        if (internal && gDragged != model_) controlDraggedOver(*gDragged, pos);
        drop->acceptProposedAction();
        return true;
    }
    drop->acceptProposedAction();
    if (internal) {
        controlDropped(*gDragged, pos);
        return true;
    }
    DataObject dropped;
    QStringList addresses;
    for (const QUrl& url : mime->urls()) {
        if (url.isLocalFile())
            dropped.Files.push_back(ToStoredPath(url.toLocalFile().toStdString()));
        else
            addresses.push_back(url.toString());
    }
    // Text proper, or the addresses of a link dragged from a browser.
    if (mime->hasFormat(QStringLiteral("text/plain")))
        dropped.Text = FromWidgetText(mime->text());
    else if (!addresses.isEmpty())
        dropped.Text = FromQString(addresses.join(QLatin1Char('\n')));
    dataDroppedAt(pos);
    model_->UserOLEDragDrop(dropped);
    return true;
}

}  // namespace orbidex
