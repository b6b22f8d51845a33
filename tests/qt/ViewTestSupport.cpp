#include "ViewTestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImage>
#include <QPixmap>

#include "controls/Control.h"
#include "qt/views/ControlWidget.h"

namespace orbidex::test {

QString SaveScreenshot(QWidget& widget, const QString& name) {
    QDir().mkpath(QStringLiteral("screenshots"));
    const QString path = QDir(QStringLiteral("screenshots")).absoluteFilePath(name + QStringLiteral(".png"));
    widget.grab().save(path);
    return path;
}

QColor ColorAt(QWidget& widget, QPoint pos) {
    return widget.grab().toImage().pixelColor(pos);
}

void ProcessEvents() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

bool DragAndDrop(QWidget& target, QPoint at, const QMimeData& mime, Qt::DropAction action) {
    QDragEnterEvent enter(at, action, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(at, action, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &drop);
    return true;
}

bool DropControl(Control& source, QWidget& target, QPoint at) {
    const ControlWidget::DragScope dragging(source);
    QMimeData mime;
    mime.setData(ControlWidget::controlMimeType(), QByteArray::fromStdString(source.Name()));
    return DragAndDrop(target, at, mime, Qt::MoveAction);
}

}  // namespace orbidex::test
