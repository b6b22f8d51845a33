// Drawing the calendar over a busy month of 2,000 events: the month grid, the week
// grid and the month's list; and finding the slot of a time.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

#include "BenchProgram.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace {

constexpr int kEventsInMonth = 2000;

// A program with its settings from a first run, the clock at 2004-06-05 09:30:12,
// and June 2004 holding 2,000 events spread over its days and hours.
class CalendarProgram : public orbidex::bench::BenchProgram {
public:
    CalendarProgram() : BenchProgram("data") {
        orbidex::glbConfig.fname = orbidex::gStrIniFile;
        orbidex::glbConfig.ReadAllSettings();
        writeBusyJune();
        orbidex::glbEvents.LoadDiaryData(june(7));
    }

    static orbidex::VbDate june(int day) { return orbidex::DateSerial(2004, 6, day); }

    // Draws the view of `days` days for `date`, agreeing to every crowded day.
    void draw(int days, orbidex::VbDate date, const std::string& gridOrList) {
        orbidex::glbConfig.DayWeekMonth = static_cast<int16_t>(days);
        orbidex::glbConfig.GridOrList = gridOrList;
        if (gridOrList == "GRID") {
            const orbidex::VbDate start = orbidex::glbEvents.GetDisplayStartDate(date);
            for (int d = 0; d < days; ++d)
                if (eventsOn_[orbidex::Day(start + d) + 100 * orbidex::Month(start + d)] > 50)
                    platform_.QueueMsgBoxAnswer(orbidex::vbOK);
        }
        orbidex::MainForm().MonthView1.Value = date;
        orbidex::glbEvents.DiaryTopLevelDisplay(date);
    }

private:
    void writeBusyJune() {
        std::string bytes = "\r\n";
        for (int i = 0; i < kEventsInMonth; ++i) {
            const int day = 1 + i % 30, minutes = 8 * 60 + (i * 37) % 660;
            ++eventsOn_[day + 600];
            char head[64];
            std::snprintf(head, sizeof head,
                          "D200406%02d%04d\x1F"
                          "200406%02d\x1FPhone\x1F%02d%02d\x1F%d\x1F",
                          day, 1 + i / 30, day, minutes / 60, minutes % 60, 15 * (1 + i % 6));
            bytes += std::string(head) +
                     "Call\x1F"
                     "fred\x1F\x1F\x1F\x1F\x1FNormal\x1F\x1FOffice\x1F" +
                     "Meeting about item " + std::to_string(i) + "\x1F\r\n";
        }
        orbidex::WriteWholeFile(orbidex::gStrDataPath + "D200406.dat", bytes);
    }

    std::map<int, int> eventsOn_;  ///< by day + 100 * month
};

benchmark::Counter perUnit(double units) {
    return benchmark::Counter(units, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_DiaryTopLevelDisplay_MonthGrid(benchmark::State& state) {
    CalendarProgram program;
    for (auto _ : state) program.draw(31, CalendarProgram::june(7), "GRID");
    state.counters["time_per_event"] = perUnit(kEventsInMonth);
    state.counters["events_shown"] = orbidex::glbEvents.eventsShown();
}

// A week holds about a quarter of the month's events; the time is still per event
// of the month, which the week's filtering walks through for each of its days.
void BM_DiaryTopLevelDisplay_WeekGrid(benchmark::State& state) {
    CalendarProgram program;
    for (auto _ : state) program.draw(7, CalendarProgram::june(7), "GRID");
    state.counters["time_per_event"] = perUnit(kEventsInMonth);
    state.counters["events_shown"] = orbidex::glbEvents.eventsShown();
}

void BM_DiaryTopLevelDisplay_MonthList(benchmark::State& state) {
    CalendarProgram program;
    for (auto _ : state) program.draw(31, CalendarProgram::june(7), "LIST");
    state.counters["time_per_event"] = perUnit(kEventsInMonth);
    state.counters["events_shown"] = orbidex::glbEvents.eventsShown();
}

void BM_FindTimeSlot(benchmark::State& state) {
    orbidex::clsTimeSlots slots;
    slots.startHr = 7;
    slots.stopHr = 20;
    slots.numSlotsPerHour = 4;
    slots.InitTimeArray();
    constexpr int kTimes = 24 * 60;
    for (auto _ : state) {
        for (int t = 0; t < kTimes; ++t) {
            long hour = t / 60;
            benchmark::DoNotOptimize(slots.FindTimeSlot(hour, t % 60));
        }
    }
    state.counters["time_per_event"] = perUnit(kTimes);
}

}  // namespace

BENCHMARK(BM_DiaryTopLevelDisplay_MonthGrid)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DiaryTopLevelDisplay_WeekGrid)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DiaryTopLevelDisplay_MonthList)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FindTimeSlot);
