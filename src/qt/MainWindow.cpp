#include "qt/MainWindow.h"

#include <QCloseEvent>

#include "qt/QtText.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

MainWindow::MainWindow(frmClientDiaryMain& form) : form_(form) {
    setWindowTitle(form.Caption().empty() ? QStringLiteral("Orbidex") : ToQString(form.Caption));
    if (form.Width > 0 && form.Height > 0) resize(TwipsToPixels(form.Width), TwipsToPixels(form.Height));
    else resize(733, 503);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    int cancel = 0;
    form_.Form_Unload(cancel);
    if (cancel != 0) event->ignore();
}

}  // namespace orbidex
