#include "ViewTestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>

namespace orbidex::test {

QString SaveScreenshot(QWidget& widget, const QString& name) {
    QDir().mkpath(QStringLiteral("screenshots"));
    const QString path = QDir(QStringLiteral("screenshots")).absoluteFilePath(name + QStringLiteral(".png"));
    widget.grab().save(path);
    return path;
}

QColor ColorAt(QWidget& widget, QPoint pos) { return widget.grab().toImage().pixelColor(pos); }

void ProcessEvents() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

}  // namespace orbidex::test
