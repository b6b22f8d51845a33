#pragma once
// Helpers of the view tests: screenshots and the colour drawn at a point.

#include <QColor>
#include <QPoint>
#include <QString>
#include <QWidget>

namespace orbidex::test {

/// Saves what `widget` shows as screenshots/<name>.png under the test's working
/// folder and gives the file's path.
QString SaveScreenshot(QWidget& widget, const QString& name);
/// The colour `widget` draws at `pos`.
QColor ColorAt(QWidget& widget, QPoint pos);
/// Lets posted events (queued refreshes, layouts) run.
void ProcessEvents();

}  // namespace orbidex::test
