#include "qt/MainWindow.h"

#include "qt/ProgramIcons.h"
#include "qt/views/ControlWidget.h"
#include "qt/views/MonthCalendar.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

MainWindow::MainWindow(frmClientDiaryMain& form, QWidget* parent) : FormWindow(form, parent) {
    setObjectName(QStringLiteral("frmClientDiaryMain"));
    if (ControlWidget* splitter = viewOf(form.imgSplitter)) splitter->setCursor(Qt::SplitHCursor);
    if (ControlWidget* splitter = viewOf(form.imgVert)) splitter->setCursor(Qt::SplitVCursor);
    UseProgramIcons(*this);
}

void MainWindow::showEvent(QShowEvent* event) {
    FormWindow::showEvent(event);
    // Unless the program chose a control, the month calendar has the keyboard, so that
    // the arrow keys move from day to day as soon as the window is there.
    auto* form = static_cast<frmClientDiaryMain*>(this->form());
    if (form == nullptr || form->ActiveControl() != nullptr) return;
    if (ControlWidget* view = viewOf(form->MonthView1)) {
        if (auto* calendar = view->findChild<MonthCalendar*>()) calendar->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace orbidex
