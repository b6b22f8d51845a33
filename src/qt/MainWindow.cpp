#include "qt/MainWindow.h"

#include "qt/ProgramIcons.h"
#include "qt/views/ControlWidget.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

MainWindow::MainWindow(frmClientDiaryMain& form, QWidget* parent) : FormWindow(form, parent) {
    setObjectName(QStringLiteral("frmClientDiaryMain"));
    if (ControlWidget* splitter = viewOf(form.imgSplitter)) splitter->setCursor(Qt::SplitHCursor);
    if (ControlWidget* splitter = viewOf(form.imgVert)) splitter->setCursor(Qt::SplitVCursor);
    UseProgramIcons(*this);
}

}  // namespace orbidex
