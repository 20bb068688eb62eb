// What the changes behind the configuration dialogs cost on a million tuples, on one thread, from
// the decision to the report laid out anew. Laying the report out as it is is the yardstick.
#include <benchmark/benchmark.h>

#include "edited_report.h"
#include "expr/fill_cells.h"
#include "expr/formula_fields.h"
#include "model/field_order.h"
#include "model/field_type_change.h"

namespace {

using namespace vrel;
using bench::editedReport;
using bench::EditedReport;
using bench::kSupply;

void recalculateAndLayOut(EditedReport& report) {
  recalculateTable(report.plan.context, report.plan.functions);
  report.grid = layOut(report.view);
}

void layOutAgain(benchmark::State& state) {
  EditedReport& report = editedReport();
  for (auto _ : state) {
    report.grid = layOut(report.view);
  }
}
BENCHMARK(layOutAgain)->Unit(benchmark::kMillisecond);

// The fields of the rows change places, and back.
void moveFieldInTheLayout(benchmark::State& state) {
  EditedReport& report = editedReport();
  const auto move = [&report] {
    moveField(report.view, report.view.axis(Axis::X).front(), {Axis::X, 2});
    report.grid = layOut(report.view);
  };
  for (auto _ : state) {
    move();
  }
  if (report.view.axis(Axis::X).front() != 0) {
    move();
  }
}
BENCHMARK(moveFieldInTheLayout)->Unit(benchmark::kMillisecond);

void addAndDeleteFormulaField(benchmark::State& state) {
  EditedReport& report = editedReport();
  for (auto _ : state) {
    const auto added =
        addFormulaField(report.view, {.name = "Twice", .expression = "Supply * 2", .inverse = ""});
    recalculateAndLayOut(report);
    deleteFormulaField(report.view, *added);
    recalculateAndLayOut(report);
  }
}
BENCHMARK(addAndDeleteFormulaField)->Unit(benchmark::kMillisecond);

void lookForValuesLostAsTexts(benchmark::State& state) {
  EditedReport& report = editedReport();
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        lostValues(report.plan.table, kSupply, FieldType::String, report.format));
  }
}
BENCHMARK(lookForValuesLostAsTexts)->Unit(benchmark::kMillisecond);

// A column of the report, with the message of the whole table.
void fillColumn(benchmark::State& state) {
  EditedReport& report = editedReport();
  std::size_t cells = 0;
  for (auto _ : state) {
    const auto outcome = fillCells({.area = FillArea::Column, .row = 1, .column = 2, .text = "12"},
                                   report.editor, report.grid);
    report.grid = layOut(report.view);
    cells = outcome ? outcome->filled : 0;
  }
  state.counters["cells"] = static_cast<double>(cells);
  clear(report.editor.history);
}
BENCHMARK(fillColumn)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
