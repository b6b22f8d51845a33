// The main window's one-second timer: its body once for each new second, off while
// it works, and the network steps each second and on the full minute.
#include <gtest/gtest.h>

#include <algorithm>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

const VbDate kDay = DateSerial(2004, 6, 5);

}  // namespace

class TimerTest : public test::MainScreenFixture {
protected:
    void TickAt(int hour, int minute, int second) {
        platform_.SetNow(kDay + TimeSerial(hour, minute, second));
        Form().timerSecond.Tick();
    }
    long NotesShown() {
        const auto forms = platform_.FormsShown();
        return static_cast<long>(std::count(forms.begin(), forms.end(), "frmStickyNote"));
    }
};

TEST_F(TimerTest, TheBodyRunsOnceASecondWithTheTimerOff) {
    // Below log level 3 a reminder is not remembered, so each run of the minute's
    // work that takes in 09:31 shows it again.
    WriteBytes(DataPath() + "D200406.dat", test::Fields({"D200406050001", "20040605", "", "1000", "30", "", "", "", "",
                                                         "20040605", "0931", "", "", "", "Call Ann"}) +
                                               "\r\n");
    StartProgram();
    gLogLevel = 0;
    std::vector<bool> timerAtPump;
    platform_.AddDoEventsHook([&] { timerAtPump.push_back(Form().timerSecond.Enabled); });
    TickAt(9, 31, 0);
    TickAt(9, 31, 0);  // the event loop ticks twice in one second
    EXPECT_EQ(NotesShown(), 1);
    EXPECT_TRUE(Form().timerSecond.Enabled);
    ASSERT_FALSE(timerAtPump.empty());
    EXPECT_EQ(std::count(timerAtPump.begin(), timerAtPump.end(), true), 0);
    TickAt(9, 31, 1);
    EXPECT_EQ(NotesShown(), 1);
    // The second before the clock was set back runs again: only a change is looked for.
    TickAt(9, 32, 0);
    TickAt(9, 31, 59);
    TickAt(9, 32, 0);
    EXPECT_EQ(NotesShown(), 2);
}

TEST_F(TimerTest, AClientHandsOverEachSecondAndPingsAndRefreshesOnTheMinute) {
    struct Case {
        const char* kind;
        const char* runLocalModeOnly;
        int16_t retryAfterOutage;
        bool handsOver, pings;
    };
    const Case cases[] = {{"LOCAL", "1", 0, false, false},
                          {"CLIENT", "0", 0, true, true},
                          {"CLIENT", "0", 1, true, false},
                          {"CLIENT", "1", 0, false, false}};
    const std::string pingLine = "Server is down - checking to see if its alive";
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.kind) + " runLocalModeOnly=" + c.runLocalModeOnly);
        ResetProgramState();
        DeleteFile(DataPath() + "orbidex.ini");
        DeleteFile(DataPath() + "OX_LOG.log");
        StartProgram(c.kind);
        glbConfig.runLocalModeOnly = c.runLocalModeOnly;
        glbNetworkDatapath = Stored("share\\fred\\");  // away: the server is down
        glbConfig.RetryAfterOutage = c.retryAfterOutage;
        const std::string changes = DataPath() + "_CHANGE_REQUEST.TXT";
        WriteBytes(changes, "change\r\n");
        glbRefreshNeeded = true;  // as work from the server asks
        TickAt(9, 30, 13);
        EXPECT_EQ(FileExists(changes), !c.handsOver);
        EXPECT_FALSE(LogHas(pingLine));
        EXPECT_TRUE(glbRefreshNeeded);
        TickAt(9, 31, 0);
        EXPECT_EQ(LogHas(pingLine), c.pings);
        // The calendar drawn again clears the request.
        EXPECT_EQ(glbRefreshNeeded, !c.handsOver);
        EXPECT_TRUE(Form().timerSecond.Enabled);
    }
}

TEST_F(TimerTest, TheMinutesRefreshIsMadeOnceInEveryMode) {
    StartProgram("CLIENT");
    glbConfig.runLocalModeOnly = "0";
    glbNetworkDatapath = Stored("share\\fred\\");  // away: nothing to hand over
    glbConfig.RetryAfterOutage = 1;
    int minute = 31;
    for (const char* mode : {"TASK", "NOTE", "HOME", "MESSAGE", "STAFF", "CALENDAR"}) {
        SCOPED_TRACE(mode);
        glbScreen.SwitchMode(mode);
        glbRefreshNeeded = true;  // as work from the server asks
        TickAt(9, minute++, 0);
        EXPECT_FALSE(glbRefreshNeeded);
        EXPECT_EQ(glbScreen.Mode(), mode);
    }
    // A view the user draws is as good as the minute's refresh.
    glbRefreshNeeded = true;
    glbScreen.SwitchMode("NOTE");
    EXPECT_FALSE(glbRefreshNeeded);
}
