// The staff planner on a full window: 20 users' events of 150 days, about 20,000 in
// RESULTS.TXT, parsed and drawn for a day and for a week, beside the floor of
// reading the file once.  50 users are drawn too.  The planner should stand within
// 200 ms of the file's landing.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "BenchProgram.h"
#include "TimeSlots.h"
#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"
#include "network/StaffGrid.h"
#include "screen/frmClientDiaryMain.h"

namespace {

constexpr int kDays = 150;
constexpr int kEventsADay = 7;

// The results of one request: a section for each month of each user, events at
// the office's hours, 30 days before 5 June 2004 to 120 after it.
class StaffProgram : public orbidex::bench::BenchProgram {
public:
    explicit StaffProgram(int users) {
        orbidex::test::UseTimeSlots(9, 18, 2);
        orbidex::glbConfig.ShowDetails = 1;
        orbidex::glbConfig.ShowLocation = 1;
        orbidex::glbResultsFile = orbidex::gStrDataPath + "RESULTS.TXT";
        std::string results;
        for (int u = 0; u < users; ++u) {
            const std::string user = "user" + std::to_string(u);
            users_.ListItems.Add(user).Tag = user;
            results += "; results of user." + user + " diary\\D2004.dat_NET\r\n";
            for (int d = 0; d < kDays; ++d) {
                const std::string date = orbidex::FormatDate(Start() - 30 + d, "yyyymmdd");
                for (int e = 0; e < kEventsADay; ++e) {
                    const int minutes = 9 * 60 + ((u * 7 + e * 71) % 18) * 30;
                    const std::string time =
                        orbidex::FormatNumber(minutes / 60, "00") + orbidex::FormatNumber(minutes % 60, "00");
                    results += "D" + date + orbidex::FormatNumber(e + 1, "0000") + "\x1F" + date + "\x1FPhone\x1F" +
                               time + "\x1F" + "60\x1F" + "Call\x1F\x1F\x1F\x1F\x1F\x1F\x1F\x1FRoom " +
                               std::to_string(e) + "\x1F" + "Meeting about item " + std::to_string(e) + "\x1F\r\n";
                }
            }
        }
        for (long i = 1; i <= users_.ListItems.Count(); ++i) users_.ListItems(i).Checked = true;
        orbidex::WriteWholeFile(orbidex::glbResultsFile, results);
        events_ = users * kDays * kEventsADay;
    }

    static orbidex::VbDate Start() { return orbidex::DateSerial(2004, 6, 5); }
    void Draw(int days) {
        orbidex::GridInitStaff(orbidex::MainForm(), grid_, Start(), days, users_);
        if (days == 1)
            orbidex::GridFillOneDay(users_, grid_, Start(), true, true, false);
        else
            orbidex::GridFillManyDays(users_, grid_, Start(), days, true, true, false);
    }
    orbidex::FlexGrid& Grid() { return grid_; }
    long Events() const { return events_; }

private:
    orbidex::ListView users_{"lvUsers"};
    orbidex::FlexGrid grid_{"gridDays"};
    long events_ = 0;
};

void BM_StaffPlannerDay(benchmark::State& state) {
    StaffProgram program(static_cast<int>(state.range(0)));
    for (auto _ : state) program.Draw(1);
    state.counters["events"] = static_cast<double>(program.Events());
    state.counters["cells"] = static_cast<double>(program.Grid().Rows() * program.Grid().Cols());
}
BENCHMARK(BM_StaffPlannerDay)->Arg(20)->Arg(50)->Unit(benchmark::kMillisecond);

void BM_StaffPlannerWeek(benchmark::State& state) {
    StaffProgram program(20);
    for (auto _ : state) program.Draw(7);
    state.counters["events"] = static_cast<double>(program.Events());
}
BENCHMARK(BM_StaffPlannerWeek)->Unit(benchmark::kMillisecond);

// The floor: the same results file read once.
void BM_StaffResultsReadOnce(benchmark::State& state) {
    StaffProgram program(20);
    std::string bytes;
    for (auto _ : state) {
        orbidex::ReadWholeFile(orbidex::glbResultsFile, bytes);
        benchmark::DoNotOptimize(bytes);
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_StaffResultsReadOnce)->Unit(benchmark::kMillisecond);

}  // namespace
