// Reminders on the scripted clock: the main window's timer run through whole days,
// the program closed and started again, events deleted, clocks put forward and back.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/frmStickyNote.h"

using namespace orbidex;
using test::Fields;

namespace {

const VbDate kDay = DateSerial(2004, 6, 5);  // a Saturday

std::string eventLine(const std::string& id, const std::string& time, const std::string& details,
                      const std::string& remindDate, const std::string& remindTime) {
    return Fields({id, "20040605", "Phone", time, "30", "Call", "fred", "", "", remindDate, remindTime, "Normal", "",
                   "Office", details}) +
           "\r\n";
}

std::string hhmm(int minuteOfDay) {
    return FormatHHMM(minuteOfDay / 60, minuteOfDay % 60);
}

}  // namespace

class RemindersTest : public test::MainScreenFixture {
protected:
    /// Starts the program (again) at `when`; the settings file of an earlier start stays.
    void StartAt(VbDate when) {
        ResetProgramState();
        gStrDataPath = DataPath();
        platform_.SetNow(when);
        StartProgram();
    }
    /// The clock at `when`, then one tick of the main window's timer.
    void TickAt(VbDate when) {
        platform_.SetNow(when);
        Form().timerSecond.Tick();
    }
    /// A first start at `when` on a month of one event of today reminded of at `remindTime`:
    /// no settings, nothing reminded yet.
    void StartWithReminder(const std::string& time, const std::string& details, const std::string& remindTime,
                           VbDate when) {
        DeleteFile(DataPath() + "reminded.log");
        DeleteFile(DataPath() + "orbidex.ini");
        WriteBytes(DataPath() + "D200406.dat", eventLine("D200406050001", time, details, "20040605", remindTime));
        StartAt(when);
    }
    std::vector<std::string> Reminded() { return SplitLines(ReadBytes(DataPath() + "reminded.log")); }
    long NotesShown() {
        const auto forms = platform_.FormsShown();
        return static_cast<long>(std::count(forms.begin(), forms.end(), "frmStickyNote"));
    }
};

TEST_F(RemindersTest, ADayMinuteByMinuteShowsEachReminderOnceAtItsMinuteThroughARestartAndADeletion) {
    // 20 events and 10 tasks, each reminded of at its own minute, two of them sharing
    // one; around them lines that mention the day and are no reminders of today.
    std::map<std::string, int> due;  // key in reminded.log -> minute of the day
    std::string month = "\r\n";
    for (int i = 0; i < 20; ++i) {
        const int minute = 7 * 60 + i * 41 + (i == 19 ? -41 : 0);  // the last shares the minute of the one before
        const std::string details = "Event " + std::to_string(i);
        month +=
            eventLine("D20040605" + FormatNumber(i + 1, "0000"), hhmm(minute + 15), details, "20040605", hhmm(minute));
        due["20040605 " + hhmm(minute + 15) + " " + details] = minute;
    }
    month += eventLine("D200406050030", "1000", "Reminder yesterday", "20040604", "1000");
    month += eventLine("D200406050031", "1100", "No reminder, mentions 20040605", "", "");
    month += Fields({"D200406050032", "20040605", "PCFile", "1200", "5", "Usage", "", "", "", "20040605", "1200", "",
                     "", "", "word.exe"}) +
             "\r\n";
    month += eventLine("D200406050033", "1400", "Deleted before its time", "20040605", "1345");
    WriteBytes(DataPath() + "D200406.dat", month);
    std::string tasks;
    for (int i = 0; i < 10; ++i) {
        // One at the minute of the restart below, one at the day's last minute.
        const int minute = i == 4 ? 10 * 60 : i == 9 ? 24 * 60 - 1 : 30 + i * 137;
        const std::string details = "Task " + std::to_string(i);
        tasks += Fields({"N20040605" + FormatNumber(i + 1, "0000"), "20040605", "", "0800", "60", "", "", "", "",
                         "20040605", hhmm(minute), "", "", "", details}) +
                 "\r\n";
        due["20040605 0800 " + details] = minute;
    }
    WriteBytes(DataPath() + "D_tasks.dat", tasks);

    StartAt(kDay);
    std::map<std::string, int> shown;
    long notes = 0;
    const auto runMinutes = [&](int from, int to) {
        for (int minute = from; minute <= to; ++minute) {
            // A tick inside the minute does no minute's work.
            TickAt(kDay + TimeSerial(minute / 60, minute % 60, 30));
            TickAt(kDay + TimeSerial(minute / 60, minute % 60, 0));
            const auto keys = Reminded();
            EXPECT_EQ(NotesShown() - notes, static_cast<long>(keys.size() - shown.size())) << hhmm(minute);
            for (size_t k = shown.size(); k < keys.size(); ++k) EXPECT_TRUE(shown.emplace(keys[k], minute).second);
            notes = NotesShown();
        }
    };
    runMinutes(0, 10 * 60);
    // Closed and started again in the minute of a reminder just shown: nothing comes twice.
    StartAt(kDay + TimeSerial(10, 0, 40));
    runMinutes(10 * 60 + 1, 13 * 60);
    glbEvents.LoadDiaryData(kDay);
    gintcur = static_cast<int16_t>(glbEvents.SelectDiaryRecordFromID("D200406050033"));
    glbEvents.DiaryEventDelete(true);
    runMinutes(13 * 60 + 1, 24 * 60 - 1);

    EXPECT_EQ(shown, due);
    EXPECT_TRUE(
        LogHas("Event '20040605 0800 Task 4' was attempted to be reminded when it has already been acknowledged"));
    EXPECT_EQ(static_cast<long>(Reminded().size()), 30);
    EXPECT_EQ(platform_.BeepCount(), 30);
    EXPECT_EQ(StickyNote().Caption() + " | " + StickyNote().lblNote.Caption() + " | " + StickyNote().txtNote.Text(),
              "Reminder for 0800 | Saturday, 5 June 2004  at 08:00 | Task 9");
    EXPECT_EQ(glbConfig.GetValue("diary", "TimeRemindersLastChecked"), "2359");
    EXPECT_EQ(glbConfig.GetValue("diary", "DateRemindersLastChecked"), "20040605");
}

TEST_F(RemindersTest, AReminderAtHalfPastTwoComesOnceWhateverTheClockDoes) {
    // The clock of the program is the machine's wall clock; the times of the ticks are
    // what it reads.  A night when clocks go forward has no 02:00 to 02:59, one when
    // they go back has them twice; a machine asleep misses minutes; a busy one misses
    // the full minute.
    struct Case {
        const char* night;
        std::vector<int> ticks;  // hhmmss of each tick, in the order the clock shows them
        long shownAtTick;        // index of the tick at which the note comes
    };
    const Case cases[] = {
        {"clocks forward at 02:00", {15800, 15900, 30000, 30100}, 2},
        {"clocks back at 03:00", {22900, 23000, 23100, 25900, 20000, 22900, 23000, 23100, 25900, 30000}, 1},
        {"asleep from 02:10 to 02:45", {21000, 24520, 24600, 24700}, 2},
        {"busy from 02:29:59 to 02:31:01", {22959, 23101, 23200}, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.night);
        StartWithReminder("0300", "Feed the cat", "0230", kDay + TimeSerial(1, 50, 0));
        for (size_t i = 0; i < c.ticks.size(); ++i) {
            const int t = c.ticks[i];
            const long before = NotesShown();
            TickAt(kDay + TimeSerial(t / 10000, t / 100 % 100, t % 100));
            EXPECT_EQ(NotesShown() - before, static_cast<long>(i) == c.shownAtTick ? 1 : 0) << "tick " << i;
        }
        EXPECT_EQ(Reminded(), std::vector<std::string>{"20040605 0300 Feed the cat"});
    }
}

TEST_F(RemindersTest, TheSettingsDecideBeepAndNoteAndTheLogLevelWhetherItIsRemembered) {
    struct Case {
        const char* sound;
        const char* popupwindow;
        const char* loglevel;
        long beeps, notes, remembered;
    };
    // Two checks take in the reminder's minute: the one at it and the next.  Only a
    // log level of 3 or more writes reminded.log, so below it the reminder comes twice.
    const Case cases[] = {
        {"1", "1", "3", 1, 1, 1}, {"0", "0", "3", 0, 0, 1}, {"1", "0", "3", 1, 0, 1}, {"0", "1", "2", 0, 2, 0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string("sound=") + c.sound + " popupwindow=" + c.popupwindow + " loglevel=" + c.loglevel);
        StartWithReminder("1000", "Call Ann", "0931", kDay + TimeSerial(9, 30, 30));
        glbConfig.SetVal("reminders", "sound", c.sound);
        glbConfig.SetVal("reminders", "popupwindow", c.popupwindow);
        gLogLevel = static_cast<int16_t>(Val(c.loglevel));
        const long beeps = platform_.BeepCount(), notes = NotesShown();
        for (const int minute : {31, 32, 33}) TickAt(kDay + TimeSerial(9, minute, 0));
        EXPECT_EQ(platform_.BeepCount() - beeps, c.beeps);
        EXPECT_EQ(NotesShown() - notes, c.notes);
        EXPECT_EQ(static_cast<long>(Reminded().size()), c.remembered);
    }
}
