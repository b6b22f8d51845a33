// Importing a comma-separated file of 10,000 events across five years, and exporting
// those five years as HTML pages.  Each is measured beside its floor in the same run:
// writing the 60 monthly files once each, and reading each once and writing a copy
// of it beside it.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "BenchProgram.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "screen/frmClientDiaryMain.h"

namespace {

constexpr int kRows = 10000;
constexpr int kDaysInFiveYears = 1826;

// A program with its data folder and a comma file of 10,000 events from 2001 to 2005.
class ImportProgram : public orbidex::bench::BenchProgram {
public:
    ImportProgram() {
        orbidex::MainForm().MonthView1.Value = orbidex::DateSerial(2004, 6, 5);
        std::string csv = "Date,Title,Location\r\n";
        for (int row = 0; row < kRows; ++row) {
            const orbidex::VbDate day = orbidex::DateSerial(2001, 1, 1) + row * kDaysInFiveYears / kRows;
            csv +=
                orbidex::FormatDate(day, "yyyymmdd") + ",\"Visit " + std::to_string(row) + ", with notes\",Office\r\n";
        }
        csvFile_ = folder_.Stored() + "\\years.csv";
        orbidex::WriteWholeFile(csvFile_, csv);
    }

    const std::string& CsvFile() const { return csvFile_; }
    std::vector<std::string> MonthFiles() const {
        std::vector<std::string> files;
        for (const std::string& name : orbidex::ListFolder(orbidex::gStrDataPath + "D*.dat", false))
            files.push_back(orbidex::gStrDataPath + name);
        return files;
    }
    void DeleteMonths() const {
        for (const std::string& file : MonthFiles()) orbidex::DeleteFile(file);
    }

private:
    std::string csvFile_;
};

benchmark::Counter perUnit(double units) {
    return benchmark::Counter(units, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_ImportData(benchmark::State& state) {
    ImportProgram program;
    for (auto _ : state) {
        state.PauseTiming();
        program.DeleteMonths();
        state.ResumeTiming();
        orbidex::glbEvents.ImportData(program.CsvFile());
    }
    state.counters["time_per_row"] = perUnit(kRows);
    state.counters["month_files"] = static_cast<double>(program.MonthFiles().size());
}

// The floor of an import in one pass: every monthly file it makes written once.
void BM_WriteMonthsOnce(benchmark::State& state) {
    ImportProgram program;
    orbidex::glbEvents.ImportData(program.CsvFile());
    std::vector<std::pair<std::string, std::string>> months;
    for (const std::string& file : program.MonthFiles()) {
        std::string bytes;
        orbidex::ReadWholeFile(file, bytes);
        months.emplace_back(file, bytes);
    }
    for (auto _ : state)
        for (const auto& [file, bytes] : months) orbidex::WriteWholeFile(file, bytes);
    state.counters["time_per_row"] = perUnit(kRows);
}

void BM_ExportDiaryFilesToHTML(benchmark::State& state) {
    ImportProgram program;
    orbidex::glbEvents.ImportData(program.CsvFile());
    for (auto _ : state) benchmark::DoNotOptimize(orbidex::glbFileUtils.ExportDiaryFilesToHTML());
    state.counters["time_per_event"] = perUnit(kRows);
}

// The floor of an export: every monthly file read once and a file of its size written.
void BM_CopyMonthsOnce(benchmark::State& state) {
    ImportProgram program;
    orbidex::glbEvents.ImportData(program.CsvFile());
    const std::vector<std::string> files = program.MonthFiles();
    std::string bytes;
    for (auto _ : state)
        for (const std::string& file : files) {
            orbidex::ReadWholeFile(file, bytes);
            orbidex::WriteWholeFile(file + ".copy", bytes);
        }
    state.counters["time_per_event"] = perUnit(kRows);
}

}  // namespace

BENCHMARK(BM_ImportData)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteMonthsOnce)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ExportDiaryFilesToHTML)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CopyMonthsOnce)->Unit(benchmark::kMillisecond);
