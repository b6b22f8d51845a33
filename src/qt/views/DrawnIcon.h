#pragma once
// An icon drawn only when a view first paints it, at the size it is painted at: most
// of the icons a window makes are replaced or hidden before anybody sees them, and
// drawing one reads a drawing or needs a font.

#include <QHash>
#include <QIcon>
#include <QIconEngine>
#include <QPixmap>
#include <functional>

namespace orbidex {

class DrawnIconEngine : public QIconEngine {
public:
    /// Draws the icon's normal look into a transparent pixmap of the size asked for.
    using Draw = std::function<void(QPixmap& canvas)>;

    explicit DrawnIconEngine(Draw draw);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    /// The drawing at `size`; other modes than the normal one (disabled, selected)
    /// are made from it by the style, as for any other icon.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;

private:
    Draw draw_;
    QHash<QString, QPixmap> drawn_;  ///< by size and mode
};

/// An icon made by `draw` when it is first painted.
QIcon DrawnIcon(DrawnIconEngine::Draw draw);

}  // namespace orbidex
