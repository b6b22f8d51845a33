// The Qt window of each form of the program.
#include "qt/MainWindow.h"
#include "qt/QtFormRegistry.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void RegisterProgramWindows(QtFormRegistry& registry) {
    registry.Register("frmClientDiaryMain",
                      [](Form& form) { return new MainWindow(static_cast<frmClientDiaryMain&>(form)); });
}

}  // namespace orbidex
