// What edits cost, on one thread, from the typed text to the announced message and the summaries of
// the report: one cell, and ten thousand pasted ones.
#include <benchmark/benchmark.h>

#include <string>

#include "edited_report.h"
#include "expr/paste.h"

namespace {

using namespace vrel;

using bench::editedReport;
using bench::EditedReport;
using bench::kSupply;
using bench::kTuples;

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
