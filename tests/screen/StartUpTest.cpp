// The start-up steps that build the main window, and its first view.
#include <gtest/gtest.h>

#include <algorithm>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryScreen.h"

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

TEST_F(StartUpTest, TasksAndNotesAreLoadedBeforeTheWindowAndCountedOnIt) {
    // "|" stands for the byte 0x1F that closes each field.
    const auto lines = [](const std::string& text) { return Replace(text, "|", "\x1F"); };
    WriteBytes(Stored("data\\D_tasks.dat"), lines("N200406050001|20040605||0900|30||||||||||Call Bob|\r\n"
                                                  "N200406050002|20040605||0900|30||||||||Done||Pay Ann|\r\n"
                                                  "N200406050003|20040605||0900|30||||||||||Fix the tap|\r\n"));
    WriteBytes(Stored("data\\allnotes.dat"), lines("N200406050001||||||a.txt|a|\r\n"));
    StartProgram();
    EXPECT_EQ(glbTasks.Count(), 3);
    EXPECT_EQ(glbNotes.Count(), 1);
    EXPECT_EQ(logFrom("TOK - Tasks setup", 3),
              (std::vector<std::string>{"TOK - Tasks setup", "TOK - Notes setup", "TOK - cmd.init"}));
    EXPECT_EQ(Form().Label2.Caption().substr(0, 20), " Tasks - 2  [approx:");
    glbScreen.SwitchMode("TASK");
    EXPECT_EQ(Panel(1), "2 of 3 Tasks shown");
    glbScreen.SwitchMode("NOTE");
    EXPECT_EQ(Panel(1), "1 Notes");
}

TEST_F(StartUpTest, ThisMonthIsLoadedOnceAndTheWindowShowsWithItsFirstViewDrawn) {
    WriteBytes(Stored("data\\D200406.dat"), test::EventLine("D200406050001", "20040605", "0900", "Dentist") + "\r\n");
    // What the window shows when it comes up.
    std::string modeShown;
    bool eventShown = false;
    platform_.QueueFormScript("frmClientDiaryMain", [&](orbidex::Form&) {
        modeShown = glbScreen.Mode();
        const FlexGrid& grid = MainForm().gridDays;
        for (long row = 0; row < grid.Rows; ++row)
            for (long col = 0; col < grid.Cols; ++col)
                eventShown = eventShown || grid.TextMatrix(row, col).find("Dentist") != std::string::npos;
    });
    StartProgram();
    EXPECT_EQ(modeShown, "CALENDAR");
    EXPECT_TRUE(eventShown);
    const auto messages = LogMessages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(),
                         "LoadDiaryData loaded 1 records from " + Stored("data\\D200406.dat")),
              1);
    EXPECT_EQ(platform_.FormsShown(), std::vector<std::string>{"frmClientDiaryMain"});
}

TEST_F(StartUpTest, ADataFolderWithoutItsBackslashIsCompletedBeforeTheMonthIsRead) {
    // A settings file edited by hand: the data folder without its closing "\".
    WriteBytes(Stored("data\\orbidex.ini"),
               "[general]\r\nloglevel=3\r\n[diary]\r\ndataPath=" + Stored("data") + "\r\n");
    WriteBytes(Stored("data\\D200406.dat"), test::EventLine("D200406050001", "20040605", "0900", "Dentist") + "\r\n");
    StartProgram();
    std::vector<std::string> loads;
    for (const std::string& message : LogMessages())
        if (StartsWith(message, "LoadDiaryData")) loads.push_back(message);
    EXPECT_EQ(loads, std::vector<std::string>{"LoadDiaryData loaded 1 records from " + Stored("data\\D200406.dat")});
    EXPECT_FALSE(FileExists(Stored("dataD200406.dat"))) << "no month file beside the data folder";
    EXPECT_EQ(gStrDataPath, Stored("data\\"));
}
