#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "qt/views/DrawnIcon.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {
namespace {

TEST(DrawnIconTest, AnIconIsDrawnWhenFirstPaintedOnceForEachSize) {
    std::vector<QSize> drawn;
    const QIcon icon = DrawnIcon([&](QPixmap& canvas) {
        drawn.push_back(canvas.size());
        QPainter(&canvas).fillRect(0, 0, canvas.width(), canvas.height() / 2, Qt::red);
    });
    EXPECT_TRUE(drawn.empty()) << "nothing is drawn before a view paints the icon";
    EXPECT_FALSE(icon.isNull());

    const QImage small = icon.pixmap(16, 16).toImage();
    EXPECT_EQ(small.size(), QSize(16, 16));
    EXPECT_EQ(small.pixelColor(8, 2), QColor(Qt::red));
    EXPECT_EQ(small.pixelColor(8, 12).alpha(), 0) << "what the drawing leaves stays transparent";
    icon.pixmap(16, 16);
    icon.pixmap(32, 32);
    EXPECT_EQ(drawn, (std::vector<QSize>{QSize(16, 16), QSize(32, 32)}));

    // A disabled look is made from the drawing by the style: grey, not red.
    const QColor disabled = icon.pixmap(QSize(16, 16), QIcon::Disabled).toImage().pixelColor(8, 2);
    EXPECT_EQ(disabled.red(), disabled.green());
    EXPECT_GT(disabled.alpha(), 0);
    EXPECT_EQ(drawn.size(), 2U) << "from the drawing made already";
}

TEST(DrawnIconTest, TheTileOfANameIsTheSameIconEveryTimeAndShowsSomething) {
    const QIcon tile = IconNamed("Calendar");
    EXPECT_EQ(tile.cacheKey(), IconNamed("calendar").cacheKey());
    EXPECT_NE(tile.cacheKey(), IconNamed("clock").cacheKey());
    const QImage image = tile.pixmap(24, 24).toImage();
    EXPECT_GT(image.pixelColor(12, 1).alpha(), 0) << "the tile fills its square";
    EXPECT_TRUE(IconNamed("").isNull());
}

}  // namespace
}  // namespace orbidex
