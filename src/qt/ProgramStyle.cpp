#include "qt/ProgramStyle.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

#include "qt/views/DrawnIcon.h"

namespace orbidex {

namespace {

bool isExtensionButton(QStyle::StandardPixmap icon) {
    return icon == QStyle::SP_ToolBarHorizontalExtensionButton || icon == QStyle::SP_ToolBarVerticalExtensionButton;
}

// Two chevrons, pointing right for a horizontal bar and down for a vertical one, in
// the colour of the window's text.
void drawChevrons(QPixmap& canvas, Qt::Orientation orientation) {
    const qreal side = qMin(canvas.width(), canvas.height());
    const qreal unit = side / 8;
    QPainterPath path;
    for (const qreal start : {2 * unit, 4 * unit}) {
        path.moveTo(start, 2 * unit);
        path.lineTo(start + 2 * unit, 4 * unit);
        path.lineTo(start, 6 * unit);
    }
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    if (orientation == Qt::Vertical) painter.setTransform(QTransform(0, 1, 1, 0, 0, 0));
    painter.setPen(QPen(QApplication::palette().color(QPalette::WindowText), qMax<qreal>(1, unit), Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

QIcon extensionIcon(QStyle::StandardPixmap icon) {
    const Qt::Orientation orientation =
        icon == QStyle::SP_ToolBarHorizontalExtensionButton ? Qt::Horizontal : Qt::Vertical;
    return DrawnIcon([orientation](QPixmap& canvas) { drawChevrons(canvas, orientation); });
}

}  // namespace

ProgramStyle::ProgramStyle(QStyle* base) : QProxyStyle(base) {}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (isExtensionButton(icon)) return extensionIcon(icon);
    return QProxyStyle::standardIcon(icon, option, widget);
}

QPixmap ProgramStyle::standardPixmap(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (isExtensionButton(icon)) {
        const int size = pixelMetric(PM_ToolBarExtensionExtent, option, widget);
        return extensionIcon(icon).pixmap(size, size);
    }
    return QProxyStyle::standardPixmap(icon, option, widget);
}

void UseProgramStyle() {
    QApplication::setStyle(new ProgramStyle(QApplication::style()));
}

}  // namespace orbidex
