#include "screen/clsDiaryScreen.h"

#include "foundation/VbString.h"

namespace orbidex {

clsDiaryScreen glbScreen;

void clsDiaryScreen::SwitchMode(const std::string& mode, bool force) {
    const std::string upper = UCase(mode);
    if (upper == mode_ && !force) return;
    mode_ = upper;
}

void clsDiaryScreen::resize() {}

}  // namespace orbidex
