// What formulas cost, on one thread: evaluating one, against muParser on the same formula and the
// same numbers; recalculating a table, against reading it; recalculating one tuple after an edit.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <array>
#include <string>
#include <vector>

#include "expr/cell_edit.h"
#include "expr/field_functions.h"
#include "expr/formula.h"
#include "expr/recalculation.h"
#include "model/table_sort.h"
#include "plan_table.h"
#include "plan_with_formulas.h"

namespace {

using namespace vrel;

// One formula in both languages.
struct FormulaPair {
  const char* name;
  std::string ours;
  std::string theirs;
};

std::string repeated(const std::string& term, int times) {
  std::string text = term;
  for (int i = 1; i < times; ++i) {
    text += "+" + term;
  }
  return text;
}

const std::vector<FormulaPair>& formulas() {
  static const std::vector<FormulaPair> kFormulas = {
      {"product", "Demand*Price", "Demand*Price"},
      {"balance", "Stock+Supply-Demand", "Stock+Supply-Demand"},
      {"margin", "(Price-1.25)*Demand/100", "(Price-1.25)*Demand/100"},
      {"shortage", "IF(Stock<Demand,(Demand-Stock)*Price,0)",
       "Stock<Demand?(Demand-Stock)*Price:0"},
      {"bounded", "MAX(Stock+Supply-Demand,0)/MAX(Demand,1)*7",
       "max(Stock+Supply-Demand,0)/max(Demand,1)*7"},
      {"nested",
       "((Demand+Supply)*(Stock-Price)+(Demand-Price)*(Supply+Stock))/"
       "((Demand+1)*(Supply+2))",
       "((Demand+Supply)*(Stock-Price)+(Demand-Price)*(Supply+Stock))/"
       "((Demand+1)*(Supply+2))"},
      {"condition", "Demand>10 AND Supply<20 OR Stock=0", "(Demand>10&&Supply<20)||Stock==0"},
      {"long", repeated("Demand*0.5+Supply", 20), repeated("Demand*0.5+Supply", 20)},
  };
  return kFormulas;
}

const FormulaPair& formulaOf(const benchmark::State& state) {
  return formulas()[static_cast<std::size_t>(state.range(0))];
}

// One evaluation after the other, for one tuple after the other of a table that fits into the
// cache.
class Walk {
 public:
  explicit Walk(const Table& table) : count_(table.tupleCount) {}

  std::size_t next() {
    at_ = at_ + 1 < count_ ? at_ + 1 : 0;
    return at_;
  }

 private:
  std::size_t count_;
  std::size_t at_ = 0;
};

constexpr std::int64_t kCachedTuples = 240;
constexpr std::size_t kNumbers = 4;
constexpr std::size_t kFirstNumber = 3;

void evaluateFormula(benchmark::State& state) {
  bench::PlanWithFormulas plan(kCachedTuples);
  Evaluator evaluator(plan.context, plan.functions);
  Formula formula{.text = formulaOf(state).ours};
  const Program* program = evaluator.program(formula);
  Walk walk(plan.table);
  for (auto _ : state) {
    benchmark::DoNotOptimize(evaluator.run(*program, walk.next()).value);
  }
  state.SetLabel(formulaOf(state).name);
}

// Its variables have fixed places, so that the tuple's numbers are copied there.
void evaluateMuParser(benchmark::State& state) {
  bench::PlanWithFormulas plan(kCachedTuples);
  std::array<double, kNumbers> values = {};
  mu::Parser parser;
  for (std::size_t i = 0; i < kNumbers; ++i) {
    parser.DefineVar(plan.table.fields[kFirstNumber + i].name, &values[i]);
  }
  parser.SetExpr(formulaOf(state).theirs);
  Walk walk(plan.table);
  for (auto _ : state) {
    const Cell* cells = plan.table.tuple(walk.next()) + kFirstNumber;
    for (std::size_t i = 0; i < kNumbers; ++i) {
      values[i] = cells[i].number;
    }
    benchmark::DoNotOptimize(parser.Eval());
  }
  state.SetLabel(formulaOf(state).name);
}

// The yardstick at its best: the same numbers every time, nothing to copy.
void evaluateMuParserUnchanged(benchmark::State& state) {
  bench::PlanWithFormulas plan(kCachedTuples);
  std::array<double, kNumbers> values = {};
  mu::Parser parser;
  for (std::size_t i = 0; i < kNumbers; ++i) {
    values[i] = plan.table.tuple(7)[kFirstNumber + i].number;
    parser.DefineVar(plan.table.fields[kFirstNumber + i].name, &values[i]);
  }
  parser.SetExpr(formulaOf(state).theirs);
  for (auto _ : state) {
    benchmark::DoNotOptimize(parser.Eval());
  }
  state.SetLabel(formulaOf(state).name);
}

BENCHMARK(evaluateFormula)->DenseRange(0, 7);
BENCHMARK(evaluateMuParser)->DenseRange(0, 7);
BENCHMARK(evaluateMuParserUnchanged)->DenseRange(0, 7);

// Parsing and compiling: the time has to grow with the length, however the formula is built.
struct Shape {
  const char* name;
  const char* begin;
  const char* end;
};

constexpr std::array<Shape, 5> kShapes = {{{"terms", "", "+Demand*2"},
                                           {"parentheses", "1-(", ")"},
                                           {"conditions", "IF(Demand,", ",0)"},
                                           {"calls", "ABS(", ")"},
                                           {"bands", "RANGEMAP(0,", ",2)"}}};

void compile(benchmark::State& state) {
  bench::PlanWithFormulas plan(kCachedTuples);
  Evaluator evaluator(plan.context, plan.functions);
  const Shape& shape = kShapes[static_cast<std::size_t>(state.range(0))];
  std::string begin;
  std::string end;
  for (std::int64_t i = 0; i < state.range(1); ++i) {
    begin += shape.begin;
    end += shape.end;
  }
  const std::string text = begin + "Supply" + end;
  for (auto _ : state) {
    Formula formula{.text = text};
    benchmark::DoNotOptimize(evaluator.program(formula));
  }
  state.SetLabel(shape.name);
  state.SetItemsProcessed(state.iterations() * state.range(1));
}

BENCHMARK(compile)
    ->ArgsProduct({benchmark::CreateDenseRange(0, kShapes.size() - 1, 1), {1'000, 10'000, 100'000}})
    ->Unit(benchmark::kMillisecond);

void readPlan(benchmark::State& state) {
  for (auto _ : state) {
    Table table;
    bench::load(table, state.range(0));
    benchmark::DoNotOptimize(table.tupleCount);
  }
}

void recalculatePlan(benchmark::State& state) {
  bench::PlanWithFormulas plan(state.range(0));
  for (auto _ : state) {
    Evaluator evaluator(plan.context, plan.functions);
    recalculateAll(evaluator);
  }
}

BENCHMARK(readPlan)->Arg(24'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(recalculatePlan)->Arg(24'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void editCell(benchmark::State& state) {
  bench::PlanWithFormulas plan(state.range(0));
  plan.table.field(4).classification = Classification::DataReadWrite;
  for (auto _ : state) {
    Evaluator evaluator(plan.context, plan.functions);
    benchmark::DoNotOptimize(setCell(evaluator, 77, 4, "12+3*2"));
  }
}

BENCHMARK(editCell)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
