#include "qt/ProgramDrawings.h"

#include <QImageReader>
#include <QPainter>

#include "qt/views/DrawnIcon.h"

// The drawings live in a static library: their resource is registered by hand.
static void registerDrawingResource() {
    Q_INIT_RESOURCE(icons);
}

namespace orbidex {

QString DrawingFile(const QString& name) {
    static const bool registered = (registerDrawingResource(), true);
    (void)registered;
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

QImage BakedDrawing(const QString& name, QSize size) {
    if (size.width() != size.height()) return {};
    for (const BakedPicture& picture : BakedPictures())
        if (picture.size == size.width() && name == QLatin1String(picture.name))
            return QImage(picture.argb, picture.size, picture.size, picture.size * 4,
                          QImage::Format_ARGB32_Premultiplied);
    return {};
}

QImage RenderedDrawing(const QString& name, QSize size) {
    QImageReader reader(DrawingFile(name));
    reader.setScaledSize(size);
    return reader.read();
}

QIcon ProgramDrawing(const QString& name) {
    return DrawnIcon([name](QPixmap& canvas) {
        if (const QImage baked = BakedDrawing(name, canvas.size()); !baked.isNull()) {
            canvas = QPixmap::fromImage(baked);
            return;
        }
        QPainter(&canvas).drawImage(0, 0, RenderedDrawing(name, canvas.size()));
    });
}

}  // namespace orbidex
