#include "qt/views/DrawnIcon.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <utility>

namespace orbidex {

DrawnIconEngine::DrawnIconEngine(Draw draw) : draw_(std::move(draw)) {}

void DrawnIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
}

QPixmap DrawnIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    if (size.isEmpty()) return {};
    const QString key = QStringLiteral("%1x%2/%3").arg(size.width()).arg(size.height()).arg(int(mode));
    if (const auto it = drawn_.constFind(key); it != drawn_.constEnd()) return *it;
    QPixmap drawing;
    if (mode == QIcon::Normal) {
        drawing = QPixmap(size);
        drawing.fill(Qt::transparent);
        draw_(drawing);
    } else {
        QStyleOption option;
        option.palette = QApplication::palette();
        drawing = QApplication::style()->generatedIconPixmap(mode, pixmap(size, QIcon::Normal, state), &option);
    }
    drawn_.insert(key, drawing);
    return drawing;
}

QIconEngine* DrawnIconEngine::clone() const {
    return new DrawnIconEngine(draw_);
}

QString DrawnIconEngine::key() const {
    return QStringLiteral("orbidex-drawn");
}

QIcon DrawnIcon(DrawnIconEngine::Draw draw) {
    return QIcon(new DrawnIconEngine(std::move(draw)));
}

}  // namespace orbidex
