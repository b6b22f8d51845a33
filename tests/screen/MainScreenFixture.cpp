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

long MainScreenFixture::ColumnHeaded(const std::string& heading) {
    const FlexGrid& grid = Form().gridDays;
    for (long col = 2; col < grid.Cols; ++col)
        if (grid.TextMatrix(0, col) == heading) return col;
    return -1;
}

}  // namespace orbidex::test
