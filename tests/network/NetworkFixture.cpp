#include "NetworkFixture.h"

#include <algorithm>
#include <cmath>

#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "network/cComms.h"

namespace orbidex::test {

void NetworkFixture::SetUp() {
    ProgramFixture::SetUp();
    MakeFolder(Share());
    for (const char* user : {"fred", "mary"}) MakeFolder(UserFolder(user));
    server_ =
        std::make_unique<server::DiaryServer>(Share(), [this](const std::string& line) { serverLog_.push_back(line); });
    platform_.SetDoEventsTick(1);
    platform_.AddDoEventsHook([this] {
        if (serverUp_) server_->Poll();
    });
    glbConfig.runLocalModeOnly = "0";
    glbConfig.waitTime = 12;
    glbConfig.security = "3";
}

void NetworkFixture::Connect(const std::string& user) {
    glbNetworkDatapath = UserFolder(user);
    glbComms.InitClient(DataPath());
}

void NetworkFixture::As(const std::string& user) {
    MakeFolder(Data(user));
    gStrDataPath = Data(user);
    glbSavingToServer = false;
    Connect(user);
    ASSERT_TRUE(glbServerAlive);
}

bool NetworkFixture::LogHas(const std::string& message) const {
    const auto messages = LogMessages();
    return std::find(messages.begin(), messages.end(), message) != messages.end();
}

std::vector<std::string> NetworkFixture::LogFrom(const std::string& first) const {
    const auto messages = LogMessages();
    auto at = first.empty() ? messages.begin() : std::find(messages.begin(), messages.end(), first);
    return {at, messages.end()};
}

long NetworkFixture::SecondsSince(VbDate start) {
    return std::lround((platform_.Now() - start) * 86400);
}

}  // namespace orbidex::test
