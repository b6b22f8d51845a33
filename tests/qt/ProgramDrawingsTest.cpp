#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cstdlib>

#include "ViewTestSupport.h"
#include "qt/ProgramDrawings.h"

namespace orbidex {
namespace {

// The largest difference of one channel between two pictures of the same size, -1
// when their sizes differ.
int largestDifference(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return -1;
    const QImage left = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage right = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int largest = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QRgb p = left.pixel(x, y);
            const QRgb q = right.pixel(x, y);
            for (const int shift : {0, 8, 16, 24})
                largest = std::max(largest, std::abs(int((p >> shift) & 0xff) - int((q >> shift) & 0xff)));
        }
    return largest;
}

TEST(ProgramDrawingsTest, EachBakedPictureIsItsDrawingRenderedAtThatSize) {
    ASSERT_FALSE(BakedPictures().empty());
    for (const BakedPicture& baked : BakedPictures()) {
        const QString name = QString::fromLatin1(baked.name);
        const QSize size(baked.size, baked.size);
        SCOPED_TRACE(qPrintable(QStringLiteral("%1 at %2").arg(name).arg(baked.size)));
        const QImage picture = BakedDrawing(name, size);
        ASSERT_EQ(picture.size(), size);
        EXPECT_GT(test::VisiblePixels(picture), baked.size) << "the picture shows the drawing";
        EXPECT_LE(largestDifference(picture, RenderedDrawing(name, size)), 1);
    }

    // Every drawing the program has is baked at the sizes a start paints.
    const QStringList drawings = QDir(QFileInfo(DrawingFile(QStringLiteral("x"))).path()).entryList({"*.svg"});
    ASSERT_FALSE(drawings.isEmpty());
    for (const QString& file : drawings)
        for (const int size : {16, 24, 32})
            EXPECT_FALSE(BakedDrawing(QFileInfo(file).completeBaseName(), QSize(size, size)).isNull())
                << qPrintable(file) << " " << size;
}

TEST(ProgramDrawingsTest, TheIconIsTheDrawingAtEverySizeBakedOrNot) {
    struct Case {
        int size;
        bool baked;
    };
    const Case cases[] = {{16, true}, {20, false}, {24, true}, {40, false}, {48, true}, {64, false}};
    for (const char* drawing : {"today", "server"}) {
        const QString name = QString::fromLatin1(drawing);
        const QIcon icon = ProgramDrawing(name);
        for (const Case& c : cases) {
            const QSize size(c.size, c.size);
            SCOPED_TRACE(qPrintable(QStringLiteral("%1 at %2").arg(name).arg(c.size)));
            EXPECT_EQ(BakedDrawing(name, size).isNull(), !c.baked);
            const QImage shown = icon.pixmap(size).toImage();
            EXPECT_GT(test::VisiblePixels(shown), c.size);
            EXPECT_LE(largestDifference(shown, RenderedDrawing(name, size)), 1);
        }
    }
    EXPECT_TRUE(BakedDrawing(QStringLiteral("nothing-by-this-name"), QSize(24, 24)).isNull());
    EXPECT_TRUE(BakedDrawing(QStringLiteral("today"), QSize(24, 16)).isNull());
}

}  // namespace
}  // namespace orbidex
