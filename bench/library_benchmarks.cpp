// What the steps of a job cost by themselves, on one thread and without files: reading, sorting,
// grouping, laying out, exporting, dumping, what the window does with the cells of a report; the
// floor for comparison.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "floor_reader.h"
#include "model/copied_block.h"
#include "model/grid_search.h"
#include "model/grid_statistics.h"
#include "model/key_ranks.h"
#include "model/longest_texts.h"
#include "model/report_grid.h"
#include "model/report_layout.h"
#include "model/table_dump.h"
#include "model/table_reader.h"
#include "model/table_sort.h"
#include "output/text_export.h"
#include "plan_table.h"
#include "silent_notice.h"
#include "table_generator.h"

namespace {

using namespace vrel;

ReportView viewOver(Table& table) {
  bench::SilentNotice notice;
  ReportView view = makeReportView(table, notice);
  view.precision = 2;
  view.axis(Axis::Data) = {3, 4, 5, 6};
  view.axis(Axis::Hidden) = {7};
  return view;
}

// Totals of all data per item, location, and over the periods.
ReportView viewWithBreaks(Table& table) {
  ReportView view = viewOver(table);
  for (const auto& [field, frequency] : {std::pair{0, 1}, {1, 4}, {2, kBreakAtEnd}}) {
    BreakDefinition& definition = view.breaks[static_cast<std::size_t>(field)];
    definition.frequency = frequency;
    for (const int data : view.axis(Axis::Data)) {
      setOperation(definition, data, BreakOperation::Sum);
    }
  }
  return view;
}

// Takes everything and counts it.
TextOutput counting(std::size_t& bytes) {
  return TextOutput([&bytes](std::string_view text) {
    bytes += text.size();
    return true;
  });
}

void countTuples(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void floorOf(benchmark::State& state) {
  const std::string& file = bench::planFile(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(bench::readFloor(file).rows);
  }
  countTuples(state);
}

void reading(benchmark::State& state) {
  bench::planFile(state.range(0));
  for (auto _ : state) {
    Table table;
    bench::load(table, state.range(0));
    benchmark::DoNotOptimize(table.tupleCount);
  }
  countTuples(state);
}

void sorting(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto table = std::make_unique<Table>();
    bench::load(*table, state.range(0));
    state.ResumeTiming();
    sortTuples(*table);
    state.PauseTiming();
    table.reset();
    state.ResumeTiming();
  }
  countTuples(state);
}

void grouping(benchmark::State& state) {
  Table table;
  bench::load(table, state.range(0));
  const std::array<int, 2> keys = {0, 1};
  for (auto _ : state) {
    benchmark::DoNotOptimize(groupTuples(table, keys).size());
  }
  countTuples(state);
}

void layingOut(benchmark::State& state) {
  Table table;
  bench::load(table, state.range(0));
  ReportView view = viewOver(table);
  sortTuples(table);
  for (auto _ : state) {
    benchmark::DoNotOptimize(layOut(view).rows);
  }
  countTuples(state);
}

void layingOutWithBreaks(benchmark::State& state) {
  Table table;
  bench::load(table, state.range(0));
  ReportView view = viewWithBreaks(table);
  sortTuples(table);
  for (auto _ : state) {
    benchmark::DoNotOptimize(layOut(view).rows);
  }
  countTuples(state);
}

void exportReport(benchmark::State& state, ReportView (*makeView)(Table&)) {
  Table table;
  bench::load(table, state.range(0));
  ReportView view = makeView(table);
  const ReportGrid grid = layOut(view);
  FormatSettings settings;
  applyFormatSettings(view, settings);
  const PlainNumbers plain(settings);
  Log log;
  std::size_t bytes = 0;
  for (auto _ : state) {
    TextOutput output = counting(bytes);
    writeReportText(view, grid, Quoting::None, settings, log, output);
  }
  countTuples(state);
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

void exporting(benchmark::State& state) {
  exportReport(state, viewOver);
}

void exportingWithBreaks(benchmark::State& state) {
  exportReport(state, viewWithBreaks);
}

void dumping(benchmark::State& state) {
  Table table;
  bench::load(table, state.range(0));
  const FormatSettings settings;
  std::size_t bytes = 0;
  for (auto _ : state) {
    TextOutput output = counting(bytes);
    dumpTable(table, settings, output);
  }
  countTuples(state);
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

// A report of 100,000 rows and 500 columns in which a million cells are filled.
struct WideReport {
  WideReport() {
    std::string file;
    TextOutput output = TextOutput::toMemory(file);
    bench::writeSparse({.columns = 500}, output);
    output.flush();
    TextInput input = bench::inputOver(file);
    loadFromFile(table, input);
    settleTypes(table);
    view = viewOver(table);
    view.axis(Axis::X) = {0, 1};
    view.axis(Axis::Y) = {2};
    view.axis(Axis::Data) = {3};
    grid = layOut(view);
    applyFormatSettings(view, settings);
  }

  Table table;
  ReportView view;
  ReportGrid grid;
  FormatSettings settings;
};

const WideReport& wideReport() {
  static const WideReport report;
  return report;
}

void searchingInVain(benchmark::State& state, std::string_view text) {
  const WideReport& report = wideReport();
  state.counters["rows"] = static_cast<double>(report.grid.rows);
  state.counters["columns"] = static_cast<double>(report.grid.columns);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        findNext(report.grid, report.settings, text, GridPlace{50'000, 10}).outcome);
  }
}

void statisticsOfArea(benchmark::State& state, std::size_t columns) {
  const ReportGrid& grid = wideReport().grid;
  for (auto _ : state) {
    GridStatistics statistics =
        startStatistics(grid, {0, grid.labelColumns + 100, grid.rows, columns});
    advance(statistics, grid, grid.rows);
    benchmark::DoNotOptimize(resultOf(statistics).sum);
  }
}

void copyingColumns(benchmark::State& state) {
  const WideReport& report = wideReport();
  const auto first = static_cast<std::int64_t>(report.grid.labelColumns);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        copyRegion(report.grid, report.settings, {0, first, CopiedRegion::kWhole, 50}).rows());
  }
}

void sizingColumn(benchmark::State& state) {
  const WideReport& report = wideReport();
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        longestTexts(report.grid, report.settings, report.grid.labelColumns + 100, 8).size());
  }
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(24'000)->Arg(240'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(floorOf)->Name("floor")->Apply(sizes);
BENCHMARK(reading)->Apply(sizes);
BENCHMARK(sorting)->Apply(sizes);
BENCHMARK(grouping)->Apply(sizes);
BENCHMARK(layingOut)->Apply(sizes);
BENCHMARK(layingOutWithBreaks)->Apply(sizes);
BENCHMARK(exporting)->Apply(sizes);
BENCHMARK(exportingWithBreaks)->Apply(sizes);
BENCHMARK(dumping)->Apply(sizes);
BENCHMARK_CAPTURE(searchingInVain, name, "no such name")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchingInVain, number, "31,415.9")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(statisticsOfArea, wide, 300)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(statisticsOfArea, column, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(copyingColumns)->Unit(benchmark::kMillisecond);
BENCHMARK(sizingColumn)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
