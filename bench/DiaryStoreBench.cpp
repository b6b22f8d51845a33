// The event store's everyday work on a busy month of 2,000 events: loading it, saving
// it, finding a new identifier in it; and listing 20 years of monthly files.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "BenchProgram.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"

namespace {

constexpr int kEventsInMonth = 2000;
constexpr int kYearsOfFiles = 20;

// A program with its data folder, the clock at 2004-06-05 09:30:12 and the log open.
class StoreProgram : public orbidex::bench::BenchProgram {
public:
    StoreProgram() { platform_.SetRandomValues({0.13, 0.71, 0.42, 0.98, 0.05, 0.66, 0.27, 0.84}); }

    std::string Data(const std::string& name) const { return orbidex::gStrDataPath + name; }

    // June 2004 with its events spread over the days and hours.
    std::string WriteBusyJune() const {
        std::string bytes = "\r\n";
        for (int i = 0; i < kEventsInMonth; ++i) {
            char head[64];
            const int day = 1 + i % 30, minutes = (i * 37) % 1440;
            std::snprintf(head, sizeof head,
                          "D200406%02d%04d\x1F"
                          "200406%02d\x1FPhone\x1F%02d%02d\x1F"
                          "30\x1F",
                          day, 1 + i / 30, day, minutes / 60, minutes % 60);
            bytes += std::string(head) +
                     "Call\x1F"
                     "fred\x1F\x1F\x1F\x1F\x1FNormal\x1F\x1FOffice\x1F" +
                     "Meeting about item " + std::to_string(i) + "\x1F\r\n";
        }
        const std::string file = Data("D200406.dat");
        orbidex::WriteWholeFile(file, bytes);
        return file;
    }

private:
};

benchmark::Counter perUnit(double units) {
    return benchmark::Counter(units, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

orbidex::VbDate june5() {
    return orbidex::DateSerial(2004, 6, 5);
}

void BM_LoadDiaryData(benchmark::State& state) {
    StoreProgram program;
    program.WriteBusyJune();
    for (auto _ : state) orbidex::glbEvents.LoadDiaryData(june5());
    state.counters["time_per_event"] = perUnit(kEventsInMonth);
}

void BM_SaveDiaryArray(benchmark::State& state) {
    StoreProgram program;
    program.WriteBusyJune();
    orbidex::glbEvents.LoadDiaryData(june5());
    for (auto _ : state) orbidex::glbEvents.SaveDiaryArray(orbidex::kFieldDelimiter, nullptr);
    state.counters["time_per_event"] = perUnit(kEventsInMonth);
}

void BM_getUniqueID(benchmark::State& state) {
    StoreProgram program;
    const std::string file = program.WriteBusyJune();
    for (auto _ : state)
        benchmark::DoNotOptimize(orbidex::glbEvents.getUniqueID(file, june5(), orbidex::kFieldDelimiter));
    state.counters["time_per_event"] = perUnit(kEventsInMonth);
}

// The list of every file of the folder, and the list of a range of months.
void BM_CreateDiaryDataFileList(benchmark::State& state) {
    StoreProgram program;
    const orbidex::VbDate first = orbidex::DateSerial(1985, 1, 1);
    const orbidex::VbDate last = orbidex::DateSerial(1985 + kYearsOfFiles - 1, 12, 1);
    for (orbidex::VbDate month = first; month <= last; month = orbidex::DateAdd("m", 1, month))
        orbidex::glbEvents.GetDiaryFileNameForDate(month);
    const bool allFiles = state.range(0) != 0;
    std::vector<std::string> files;
    for (auto _ : state)
        benchmark::DoNotOptimize(orbidex::glbEvents.CreateDiaryDataFileList(first, last, files, allFiles));
    state.counters["time_per_file"] = perUnit(kYearsOfFiles * 12);
}

}  // namespace

BENCHMARK(BM_LoadDiaryData)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveDiaryArray)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_getUniqueID)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateDiaryDataFileList)->ArgName("allFiles")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
