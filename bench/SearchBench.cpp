// The diary search over 20 years of monthly files (240 files, 120,000 events, about
// 13 MB, made in a temporary folder when the benchmark starts): a rare word (in
// under 0.1% of the lines) and a common one (in 10%), each timed beside
// `grep -c -F -i` of the same word over the same files, run in the same process
// run; and the wait from pressing Search to the first rows in the results window.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "BenchProgram.h"
#include "DiaryGenerator.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cLog.h"
#include "search/cSearch.h"
#include "search/frmSearchResults.h"

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// The program over the generated diary, made once for the whole run.
class SearchProgram : public orbidex::bench::BenchProgram {
public:
    SearchProgram() {
        platform_.AllowUnscriptedForms(true);
        diary_ = orbidex::bench::GenerateDiary(orbidex::gStrDataPath, 2000, 20);
        for (const std::string& name : orbidex::ListFolder(orbidex::gStrDataPath + "D*.dat", false))
            nativeFiles_ += " '" + folder_.Native() + "/" + name + "'";
        // The window would draw at each turn it gets: the first turn with rows is when
        // the user sees the first results.
        platform_.AddDoEventsHook([this] {
            if (firstRows_ == 0 && orbidex::SearchResultsForm().lvResults.ListItems.Count() > 0)
                firstRows_ = millisecondsSince(searchStarted_);
        });
    }

    static SearchProgram& Get() {
        static SearchProgram program;
        return program;
    }

    /// Starts the clock of a search shown in the results window.
    void StartSearch() {
        firstRows_ = 0;
        searchStarted_ = Clock::now();
    }
    /// Milliseconds from StartSearch to the first turn of the window with rows.
    double FirstRows() const { return firstRows_; }
    const orbidex::bench::GeneratedDiary& Diary() const { return diary_; }

    /// Lines holding `term`, counted by grep over every monthly file; its time in ms.
    long Grep(const std::string& term, double& milliseconds) const {
        const std::string command = "LC_ALL=C grep -c -F -i -- '" + term + "'" + nativeFiles_;
        const Clock::time_point start = Clock::now();
        FILE* out = popen(command.c_str(), "r");
        long total = 0;
        char line[4096];
        while (out != nullptr && std::fgets(line, sizeof line, out) != nullptr) {
            const std::string text(line);
            total += std::atol(text.substr(text.rfind(':') + 1).c_str());
        }
        if (out != nullptr) pclose(out);
        milliseconds = millisecondsSince(start);
        return total;
    }

private:
    orbidex::bench::GeneratedDiary diary_;
    std::string nativeFiles_;
    Clock::time_point searchStarted_;
    double firstRows_ = 0;
};

// 0 the rare word, 1 the common one, 2 no word at all: every event.
const char* termOf(const benchmark::State& state) {
    const char* const terms[] = {orbidex::bench::kSelectiveTerm, orbidex::bench::kCommonTerm, ""};
    return terms[state.range(0)];
}

// What SearchForEvent does before it draws a row: list the monthly files, find the
// lines that hold the word, parse those, keep those in the dates.
void BM_SearchBesideGrep(benchmark::State& state) {
    SearchProgram& program = SearchProgram::Get();
    const std::string term = termOf(state);
    std::vector<double> grepTimes(5);
    long grepCount = 0;
    for (double& time : grepTimes) grepCount = program.Grep(term, time);
    std::sort(grepTimes.begin(), grepTimes.end());

    long found = 0;
    double searchTime = 0;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        std::vector<std::string> files;
        orbidex::glbEvents.CreateDiaryDataFileList(0, 0, files, true);
        benchmark::DoNotOptimize(
            orbidex::glbEvents.SearchListOfDiaryFiles(false, files, "29991231", "19840101", term, found, false, false));
        searchTime += millisecondsSince(start);
    }
    const double mean = searchTime / static_cast<double>(state.iterations());
    state.counters["lines_found"] = static_cast<double>(found);
    state.counters["grep_lines"] = static_cast<double>(grepCount);
    state.counters["search_ms"] = mean;
    state.counters["grep_ms"] = grepTimes[grepTimes.size() / 2];
    state.counters["x_grep"] = mean / grepTimes[grepTimes.size() / 2];
    state.counters["MB"] = static_cast<double>(program.Diary().bytes) / 1e6;
    state.SetLabel(term);
}

// From pressing Search (the results window opening) to the first rows the window
// can draw, and to the last.
void BM_FirstResultsOnScreen(benchmark::State& state) {
    SearchProgram& program = SearchProgram::Get();
    double first = 0, all = 0;
    for (auto _ : state) {
        orbidex::cSearch search;
        search.init();
        search.searchString = termOf(state);
        program.StartSearch();
        const Clock::time_point start = Clock::now();
        search.PerformSearch();
        all += millisecondsSince(start);
        first += program.FirstRows();
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["first_rows_ms"] = first / runs;
    state.counters["all_rows_ms"] = all / runs;
    state.counters["rows"] = static_cast<double>(orbidex::SearchResultsForm().lvResults.ListItems.Count());
    state.SetLabel(termOf(state));
}

}  // namespace

BENCHMARK(BM_SearchBesideGrep)->ArgName("term")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FirstResultsOnScreen)->ArgName("term")->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
