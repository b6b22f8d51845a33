// SortTexts over a full month of event lines: the sort behind every month save.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "ScriptedPlatform.h"
#include "foundation/StringHelpers.h"

namespace {

std::vector<std::string> eventLines(int count) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<size_t>(count));
    unsigned seed = 12345;
    for (int i = 0; i < count; ++i) {
        seed = seed * 1103515245U + 12345U;
        const unsigned day = 1 + seed % 28, minute = (seed >> 8) % 1440;
        char head[32];
        std::snprintf(head, sizeof head, "200406%02u\x1F%02u%02u\x1F", day, minute / 60, minute % 60);
        lines.push_back(std::string(head) + "Meeting about item " + std::to_string(seed % 100000) +
                        "\x1F" "60\x1F" "\x1F\x1F" "20040605" + std::to_string(i));
    }
    return lines;
}

void BM_SortTexts(benchmark::State& state) {
    orbidex::test::ScriptedPlatform platform;
    platform.SetRandomValues({0.13, 0.71, 0.42, 0.98, 0.05, 0.66, 0.27, 0.84});
    orbidex::SetPlatform(&platform);
    const auto lines = eventLines(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto copy = lines;
        state.ResumeTiming();
        orbidex::SortTexts(copy);
        benchmark::DoNotOptimize(copy.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["time_per_line"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                       benchmark::Counter::kIsIterationInvariantRate |
                                                           benchmark::Counter::kInvert);
    orbidex::SetPlatform(nullptr);
}

}  // namespace

BENCHMARK(BM_SortTexts)->Arg(32767)->Unit(benchmark::kMillisecond);
