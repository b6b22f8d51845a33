// The minute's reminder scan on a busy month: 2,000 events and 500 tasks, read
// again at every full minute, beside the floor of reading the month's file once.
// The scan ends with one write of the settings file, which waits for the disk: its
// CPU time is the scan's own cost, its wall time that of the disk as well.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "BenchProgram.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"
#include "screen/clsDiaryScreen.h"

namespace {

constexpr int kEventsInMonth = 2000;
constexpr int kTasks = 500;

// June 2004 with its events spread over the days and hours, each with a reminder a
// quarter of an hour before it; tasks for every day of the month, each reminded
// of.  The clock stands on 2004-06-05, the log at its usual level.
class ReminderProgram : public orbidex::bench::BenchProgram {
public:
    ReminderProgram() {
        platform_.AllowUnscriptedForms(true);
        orbidex::glbConfig.fname = orbidex::gStrIniFile;
        orbidex::gLogLevel = 3;
        orbidex::WriteWholeFile(orbidex::gStrIniFile,
                                "[diary]\r\nDateRemindersLastChecked=19990101\r\nTimeRemindersLastChecked=0000\r\n"
                                "[reminders]\r\nsound=1\r\npopupwindow=1\r\n");
        orbidex::WriteWholeFile(MonthFile(), month());
        orbidex::WriteWholeFile(orbidex::gStrDataPath + "D_tasks.dat", tasks());
    }

    std::string MonthFile() const { return orbidex::gStrDataPath + "D200406.dat"; }
    /// The clock at the `minute`th minute of 5 June, counted round the day.
    void SetMinute(long minute) {
        platform_.SetNow(orbidex::DateSerial(2004, 6, 5) + orbidex::TimeSerial(0, static_cast<int>(minute % 1440), 0));
    }

private:
    static std::string hhmm(int minutes) {
        char text[8];
        std::snprintf(text, sizeof text, "%02d%02d", minutes / 60 % 24, minutes % 60);
        return text;
    }
    static std::string month() {
        std::string bytes = "\r\n";
        for (int i = 0; i < kEventsInMonth; ++i) {
            char date[16];
            const int day = 1 + i % 30, minutes = 15 + (i * 37) % 1425;
            std::snprintf(date, sizeof date, "200406%02d", day);
            bytes += "D" + std::string(date) + std::to_string(1000 + i / 30) + "\x1F" + date + "\x1FPhone\x1F" +
                     hhmm(minutes) + "\x1F" + "30\x1F" + "Call\x1F" + "fred\x1F\x1F\x1F" + date + "\x1F" +
                     hhmm(minutes - 15) + "\x1FNormal\x1F\x1FOffice\x1FMeeting about item " + std::to_string(i) +
                     "\x1F\r\n";
        }
        return bytes;
    }
    static std::string tasks() {
        std::string bytes;
        for (int i = 0; i < kTasks; ++i) {
            char date[16];
            std::snprintf(date, sizeof date, "200406%02d", 1 + i % 30);
            bytes += "N" + std::string(date) + std::to_string(1000 + i / 30) + "\x1F" + date + "\x1F\x1F" + "0900\x1F" +
                     "60\x1F\x1F\x1F\x1F\x1F" + date + "\x1F" + hhmm(i * 7 % 1440) + "\x1F\x1F\x1F\x1FTask number " +
                     std::to_string(i) + "\x1F\r\n";
        }
        return bytes;
    }
};

// One full minute's scan as the timer runs it, the clock a minute on each time: the
// files read, today's lines parsed, the reminders due shown and remembered, the
// time of the check written to the settings file.
void BM_MinuteReminderScan(benchmark::State& state) {
    ReminderProgram program;
    long minute = 0;
    for (auto _ : state) {
        program.SetMinute(minute++);
        orbidex::glbScreen.CheckReminders();
    }
    state.counters["events"] = kEventsInMonth;
    state.counters["tasks"] = kTasks;
}

// The floor: the month's file read once, whole.
void BM_ReadMonthFileOnce(benchmark::State& state) {
    ReminderProgram program;
    std::string bytes;
    for (auto _ : state) benchmark::DoNotOptimize(orbidex::ReadWholeFile(program.MonthFile(), bytes));
    state.counters["events"] = kEventsInMonth;
}

}  // namespace

BENCHMARK(BM_MinuteReminderScan)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ReadMonthFileOnce)->Unit(benchmark::kMicrosecond);
