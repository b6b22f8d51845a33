#include "ProgramWindowFixture.h"

#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "controls/CommandButton.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/modMain.h"
#include "qt/views/CommandButtonWidget.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex::test {

void ProgramWindowFixture::SetUp() {
    ResetProgramState();
    data_ = folder_.Stored() + "\\data\\";
    MakeFolder(data_);
    WriteData();
    RegisterProgramWindows(forms_);
    SetPlatform(&platform_);
    modMain("LOCAL");
    main_ = platform_.WindowOf(MainForm());
    ASSERT_NE(main_, nullptr);
    main_->resize(1100, 720);
    ProcessEvents();
}

void ProgramWindowFixture::TearDown() {
    ResetProgramState();
    ProcessEvents();
    SetPlatform(nullptr);
}

void ProgramWindowFixture::Press(QWidget& window, const CommandButton& button) {
    QTest::mouseClick(ViewOf<CommandButtonWidget>(window, button)->button(), Qt::LeftButton);
}

QAction* ProgramWindowFixture::MenuEntry(const QString& caption, const QString& menu) {
    for (QAction* top : static_cast<FormWindow*>(main_)->menuBar()->actions()) {
        if (top->menu() == nullptr || (!menu.isEmpty() && top->text() != menu)) continue;
        for (QAction* action : top->menu()->actions())
            if (action->text() == caption) return action;
    }
    return nullptr;
}

}  // namespace orbidex::test
