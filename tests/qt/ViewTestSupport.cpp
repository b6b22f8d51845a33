#include "ViewTestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "controls/Control.h"
#include "qt/views/ControlWidget.h"

namespace orbidex::test {

QString SaveScreenshot(QWidget& widget, const QString& name) {
    QDir().mkpath(QStringLiteral("screenshots"));
    const QString path = QDir(QStringLiteral("screenshots")).absoluteFilePath(name + QStringLiteral(".png"));
    widget.grab().save(path);
    return path;
}

void SaveScreenshotOver(QWidget& main, QWidget& dialog, const QString& name) {
    ProcessEvents();
    QPixmap shot = main.grab();
    const QPixmap top = dialog.grab();
    QPoint at = dialog.mapToGlobal(QPoint(0, 0)) - main.mapToGlobal(QPoint(0, 0));
    if (dialog.pos().isNull() || at.x() < 0 || at.y() < 0) at = QPoint(shot.width() - top.width(), shot.height() - top.height()) / 2;
    at.setX(std::clamp(at.x(), 0, std::max(0, shot.width() - top.width())));
    at.setY(std::clamp(at.y(), 0, std::max(0, shot.height() - top.height())));
    QPainter painter(&shot);
    painter.drawPixmap(at, top);
    painter.setPen(Qt::darkGray);
    painter.drawRect(QRect(at, top.size()).adjusted(0, 0, -1, -1));
    painter.end();
    QDir().mkpath(QStringLiteral("screenshots"));
    shot.save(QStringLiteral("screenshots/") + name + QStringLiteral(".png"));
}

QColor ColorAt(QWidget& widget, QPoint pos) {
    return widget.grab().toImage().pixelColor(pos);
}

int VisiblePixels(const QImage& picture) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) count += qAlpha(picture.pixel(x, y)) > 0 ? 1 : 0;
    return count;
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
