#pragma once
// Helpers of the view tests: views shown, screenshots, the colour drawn at a point,
// and drops.

#include <QColor>
#include <QImage>
#include <QMimeData>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QWidget>
#include <memory>

namespace orbidex {
class Control;
}

namespace orbidex::test {

/// Lets posted events (queued refreshes, layouts) run.
void ProcessEvents();

/// A view of `model`, shown at `size` and drawn.
template <typename View, typename Model>
std::unique_ptr<View> Shown(Model& model, QSize size = QSize(300, 200)) {
    auto view = std::make_unique<View>(model);
    view->resize(size);
    view->show();
    ProcessEvents();
    return view;
}

/// Saves what `widget` shows as screenshots/<name>.png under the test's working
/// folder and gives the file's path.
QString SaveScreenshot(QWidget& widget, const QString& name);
/// Saves `main` with `dialog` drawn over it, framed: where the dialog stands, or, for
/// one that leaves its place to the window manager (or stands above or left of the
/// main window), in the middle.
void SaveScreenshotOver(QWidget& main, QWidget& dialog, const QString& name);
/// The colour `widget` draws at `pos`.
QColor ColorAt(QWidget& widget, QPoint pos);
/// How many pixels of `picture` are not wholly transparent.
int VisiblePixels(const QImage& picture);

/// Drags `mime` onto `target` at `at` and drops it there if the target takes it;
/// tells whether it took it.
bool DragAndDrop(QWidget& target, QPoint at, const QMimeData& mime, Qt::DropAction action = Qt::CopyAction);
/// Drags the program's own control `source` onto `target` at `at` and drops it.
bool DropControl(Control& source, QWidget& target, QPoint at);

}  // namespace orbidex::test
