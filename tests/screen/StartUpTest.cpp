// The start-up steps that build the main window, and its first view.
#include <gtest/gtest.h>

#include <algorithm>

#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/ProgramState.h"

using namespace orbidex;

class StartUpTest : public test::MainScreenFixture {
protected:
    // The log messages from `first` on, as many as `expected` holds.
    std::vector<std::string> logFrom(const std::string& first, size_t count) {
        const auto messages = LogMessages();
        auto at = std::find(messages.begin(), messages.end(), first);
        std::vector<std::string> found;
        for (; at != messages.end() && found.size() < count; ++at) found.push_back(*at);
        return found;
    }
};

TEST_F(StartUpTest, TheWindowOpensWhereTheSettingsSayAndTheTimerStartsLast) {
    StartProgram();
    EXPECT_TRUE(Form().timerSecond.Enabled);
    EXPECT_EQ(Form().web.LocationURL(), "about:blank");
    EXPECT_EQ(glbConfig.runLocalModeOnly, "1");
    // The window opens where the settings file says.
    EXPECT_EQ(Form().Width(), 11000);
    EXPECT_EQ(Form().Height(), 7545);
    EXPECT_EQ(Form().Left(), 100);
}

TEST_F(StartUpTest, AClientPumpsEventsWithTheTimerStillOff) {
    std::vector<bool> timerAtPump;
    platform_.AddDoEventsHook([&] { timerAtPump.push_back(MainForm().timerSecond.Enabled); });
    StartProgram("CLIENT");
    EXPECT_EQ(logFrom("TOK - mainForm.SwitchMode CALENDAR", 2),
              (std::vector<std::string>{"TOK - mainForm.SwitchMode CALENDAR", "NETWORK_STRING = CLIENT"}));
    ASSERT_FALSE(timerAtPump.empty());
    EXPECT_EQ(std::count(timerAtPump.begin(), timerAtPump.end(), true), 0);
    EXPECT_TRUE(Form().timerSecond.Enabled);
}
