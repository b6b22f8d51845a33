#pragma once
// The program's own drawings (src/qt/icons/*.svg, in the resource ":/icons").  The
// build renders each into pictures at the sizes the windows paint them, so that a
// start needs neither the SVG reader nor its library; any other size is rendered
// from the drawing when it is first painted.

#include <QIcon>
#include <QImage>
#include <QString>
#include <span>

namespace orbidex {

/// A drawing rendered by the build: `size` x `size` premultiplied ARGB32 pixels.
struct BakedPicture {
    const char* name;
    int size;
    const unsigned char* argb;
};

/// Every picture the build rendered (made by tools/bake-icons).
std::span<const BakedPicture> BakedPictures();

/// The resource path of the drawing `name` (":/icons/<name>.svg").
QString DrawingFile(const QString& name);
/// The drawing `name` as rendered by the build at `size`, or a null image when the
/// build did not render it at that size.
QImage BakedDrawing(const QString& name, QSize size);
/// The drawing `name` rendered from its file at `size`.
QImage RenderedDrawing(const QString& name, QSize size);
/// The drawing `name` as an icon, made when a view first paints it.
QIcon ProgramDrawing(const QString& name);

}  // namespace orbidex
