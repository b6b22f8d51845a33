// The control models under the diary's heaviest uses: a month drawn cell by cell
// into the grid, and a month of events listed in a list view, sorted or not.
#include <benchmark/benchmark.h>

#include <string>

#include "controls/FlexGrid.h"
#include "controls/ListView.h"

namespace {

// A month view: 31 day columns and 20 half-hour rows, every cell placed through the
// current cell as the drawing does (text, colours, bold), per cell.
void BM_GridMonthOfCells(benchmark::State& state) {
    for (auto _ : state) {
        orbidex::FlexGrid grid("gridDays");
        grid.Rows = 21;
        grid.Cols = 33;
        grid.FixedCols = 2;
        for (long col = 2; col < 33; ++col)
            for (long row = 1; row < 21; ++row) {
                grid.Row = row;
                grid.Col = col;
                if (grid.Text().empty()) grid.Text = "Meeting about the budget";
                grid.CellBackColor = 0xFFFFFF;
                grid.CellForeColor = 0xFF;
                grid.CellFontBold = (row % 3) == 0;
                grid.SetRowData(row, 20040605.0 + static_cast<double>(col));
            }
        benchmark::DoNotOptimize(grid.TextMatrix(5, 5));
    }
    state.counters["time_per_cell"] =
        benchmark::Counter(31.0 * 20.0, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Events of a month in the event list: a key, an icon and five sub-items per row.
void BM_ListViewMonthOfEvents(benchmark::State& state) {
    const long rows = state.range(0);
    const bool sorted = state.range(1) != 0;
    for (auto _ : state) {
        orbidex::ListView lv("lvDiary");
        lv.Sorted = sorted;
        for (long i = 0; i < rows; ++i) {
            const std::string id = "D20040605" + std::to_string(10000 + i);
            orbidex::ListItem& item = lv.ListItems.Add(std::to_string((i * 7919) % rows), id, "", "general");
            for (long k = 1; k <= 5; ++k) item.SetSubItems(k, "field " + std::to_string(k));
        }
        benchmark::DoNotOptimize(lv.ListItems.Item("D2004060510000"));
    }
    state.counters["time_per_row"] = benchmark::Counter(static_cast<double>(rows),
                                                      benchmark::Counter::kIsIterationInvariantRate |
                                                          benchmark::Counter::kInvert);
}

}  // namespace

BENCHMARK(BM_GridMonthOfCells)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ListViewMonthOfEvents)->Args({5000, 0})->Args({5000, 1})->Unit(benchmark::kMillisecond);
