#include <gtest/gtest.h>

#include <QAction>
#include <QMainWindow>
#include <QStyleFactory>
#include <QToolBar>
#include <QToolButton>
#include <memory>

#include "ViewTestSupport.h"
#include "qt/ProgramStyle.h"

namespace orbidex {
namespace {

QImage pictureOf(const QIcon& icon) {
    return icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

TEST(ProgramStyleTest, TheBarsMoreButtonsAreDrawnAndEverythingElseIsTheStylesOwn) {
    std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    const ProgramStyle style(QStyleFactory::create(QStringLiteral("Fusion")));

    const QImage across = pictureOf(style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton));
    const QImage down = pictureOf(style.standardIcon(QStyle::SP_ToolBarVerticalExtensionButton));
    EXPECT_GT(test::VisiblePixels(across), 10);
    EXPECT_GT(test::VisiblePixels(down), 10);
    EXPECT_NE(across, down) << "the chevrons point along the bar";
    EXPECT_NE(across, pictureOf(fusion->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton)));
    EXPECT_GT(test::VisiblePixels(style.standardPixmap(QStyle::SP_ToolBarHorizontalExtensionButton).toImage()), 10);

    for (const QStyle::StandardPixmap other : {QStyle::SP_DialogOkButton, QStyle::SP_ArrowLeft,
                                               QStyle::SP_MessageBoxWarning, QStyle::SP_TitleBarCloseButton}) {
        SCOPED_TRACE(int(other));
        const QImage own = pictureOf(fusion->standardIcon(other));
        EXPECT_EQ(pictureOf(style.standardIcon(other)), own);
        EXPECT_GT(test::VisiblePixels(own), 0);
    }
}

// The tests run under the program's style, as the program does.
TEST(ProgramStyleTest, ATooShortToolBarShowsTheDrawnMoreButton) {
    QMainWindow window;
    QToolBar* bar = window.addToolBar(QStringLiteral("Tools"));
    for (int i = 0; i < 12; ++i) bar->addAction(QStringLiteral("Action %1").arg(i));
    window.resize(200, 80);
    window.show();
    test::ProcessEvents();
    auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    ASSERT_NE(more, nullptr);
    EXPECT_TRUE(more->isVisible());
    const ProgramStyle style(QStyleFactory::create(QStringLiteral("Fusion")));
    EXPECT_EQ(pictureOf(more->icon()), pictureOf(style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton)));
    test::SaveScreenshot(window, QStringLiteral("toolbar-more-button"));
}

}  // namespace
}  // namespace orbidex
