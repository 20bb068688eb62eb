// What edits cost, on one thread, from the typed text to the announced message and the summaries of
// the report: one cell, and ten thousand pasted ones.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "expr/paste.h"
#include "expr/recalculation.h"
#include "model/report_layout.h"
#include "plan_with_formulas.h"

namespace {

using namespace vrel;

constexpr std::int64_t kTuples = 1'000'000;
constexpr int kSupply = 4;

// A report of the plan in which supplies can be edited, with sums over all levels. Messages go to
// a directory of their own.
struct EditedReport {
  EditedReport() : plan(kTuples), directory(std::filesystem::temp_directory_path() / "vrel_bench") {
    std::filesystem::create_directories(directory);
    Table& table = plan.table;
    table.field(kSupply).classification = Classification::DataReadWrite;
    view = makeReportView(table, plan.notice);
    view.axis(Axis::X) = {0, 1};
    view.axis(Axis::Y) = {2};
    view.axis(Axis::Data) = {3, kSupply, 8, 10};
    view.dataInColumns = true;
    for (const int field : {0, 1, 2}) {
      BreakDefinition& definition = view.breaks[static_cast<std::size_t>(field)];
      definition.frequency = field == 1 ? 2 : kBreakAtEnd;
      for (const int data : view.axis(Axis::Data)) {
        setOperation(definition, data, BreakOperation::Sum);
      }
    }
    recalculateTable(plan.context, plan.functions);
    grid = layOut(view);
  }
  EditedReport(const EditedReport&) = delete;
  EditedReport& operator=(const EditedReport&) = delete;
  ~EditedReport() { std::filesystem::remove_all(directory); }

  bench::PlanWithFormulas plan;
  std::filesystem::path directory;
  ReportView view;
  ReportGrid grid;
  FormatSettings format;
  EnvironmentLookup environment = [this](const char* name) {
    return std::string_view(name) == "TMPDIR" ? directory.string() : std::string();
  };
  Log log;
  // The host takes its messages away.
  HostLink host{.format = format,
                .environment = environment,
                .log = log,
                .debug = [](std::string_view) {},
                .announce =
                    [this](std::string_view line) {
                      std::filesystem::remove(directory / line.substr(3, line.size() - 4));
                    }};
  Notice* notice = &plan.notice;
  Cell scratch = emptyCell();
  ReportEditor editor{.view = view,
                      .functions = plan.functions,
                      .scratch = scratch,
                      .notice = notice,
                      .host = host};
};

EditedReport& editedReport() {
  static EditedReport report;
  return report;
}

void typeNumber(benchmark::State& state) {
  EditedReport& report = editedReport();
  std::uint32_t tuple = 0;
  for (auto _ : state) {
    tuple = (tuple + 7919) % kTuples;
    EditBatch batch(report.editor);
    batch.set({tuple, kSupply}, std::to_string(tuple % 1000));
    const EditOutcome outcome = batch.finish();
    refreshSummaries(report.grid, outcome.tuples);
  }
  clear(report.editor.history);
}
BENCHMARK(typeNumber)->Unit(benchmark::kMillisecond);

void pasteTenThousand(benchmark::State& state) {
  EditedReport& report = editedReport();
  const GridArea area = {.firstRow = 3, .firstColumn = 2, .rows = 1000, .columns = 40};
  const CopiedBlock copied = blockFromClipboard("12.5");
  const PastePlan plan = planPaste(copied, {.dataCells = {.firstColumn = 2,
                                                          .rows = report.grid.rows,
                                                          .columns = report.grid.columns - 2},
                                            .selection = area,
                                            .current = {3, 2}});
  std::size_t cells = 0;
  for (auto _ : state) {
    const PasteOutcome outcome = pasteTexts(report.editor, report.grid, plan, copied);
    refreshSummaries(report.grid, outcome.edit.tuples);
    cells = outcome.edit.stored.size();
  }
  state.counters["cells"] = static_cast<double>(cells);
  clear(report.editor.history);
}
BENCHMARK(pasteTenThousand)->Unit(benchmark::kMillisecond);

void undoAndRedoTenThousand(benchmark::State& state) {
  EditedReport& report = editedReport();
  EditBatch batch(report.editor);
  for (std::uint32_t tuple = 0; tuple < 10'000; ++tuple) {
    batch.set({tuple, kSupply}, "3");
  }
  batch.finish();
  for (auto _ : state) {
    refreshSummaries(report.grid, undoEdit(report.editor)->tuples);
    refreshSummaries(report.grid, redoEdit(report.editor)->tuples);
  }
  clear(report.editor.history);
}
BENCHMARK(undoAndRedoTenThousand)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
