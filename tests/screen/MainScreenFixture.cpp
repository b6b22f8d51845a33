#include "MainScreenFixture.h"

#include <algorithm>

#include "foundation/modMain.h"

namespace orbidex::test {

void MainScreenFixture::StartProgram(const std::string& kind) {
    platform_.AllowUnscriptedForms(true);
    if (kind == "CLIENT") platform_.QueueMsgBoxAnswer(vbNo);
    modMain(kind);
}

bool MainScreenFixture::LogHas(const std::string& message) const {
    const auto messages = LogMessages();
    return std::find(messages.begin(), messages.end(), message) != messages.end();
}

}  // namespace orbidex::test
