#include "expr/recalculation.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "expr/formula.h"
#include "expr/progress.h"
#include "model/table_sort.h"

namespace vrel {
namespace {

constexpr std::string_view kRecalculating = translatable("vrel", "Recalculating formulas...");
constexpr std::string_view kHighlighting = translatable("vrel", "Computing colours...");

/// Colours from this value on are none.
constexpr double kColourLimit = 2147483647;
/// Colours repeat after so many.
constexpr int kColourCount = 127;

// The formula fields of a table, ready to run.
struct FormulaColumn {
  std::size_t column;
  // Null when the text is no formula.
  const Program* program;
};

// All formula fields, and what has become of one by the end of its turn.
struct Formulas {
  std::vector<FormulaColumn> columns;
  // A field computed in its turn is pending afterwards: it is computed once more when a later one
  // names it. Where that can make no difference it is left out.
  FieldState afterSuccess = FieldState::Idle;
};

Formulas findFormulas(Evaluator& evaluator) {
  Formulas formulas;
  std::vector<FieldDef>& fields = evaluator.context().table.fields;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].isExpression()) {
      const Program* const program = evaluator.program(fields[i].expression);
      formulas.columns.push_back({i, program});
      if (program != nullptr && !program->repeatable) {
        formulas.afterSuccess = FieldState::Pending;
      }
    }
  }
  return formulas;
}

// A field that was computed for another one is idle by its turn.
void recalculate(Evaluator& evaluator, const Formulas& formulas, std::size_t tuple) {
  std::vector<FieldState>& states = evaluator.states();
  for (const FormulaColumn& formula : formulas.columns) {
    states[formula.column] = FieldState::Pending;
  }
  for (const FormulaColumn& formula : formulas.columns) {
    if (states[formula.column] != FieldState::Pending) {
      continue;
    }
    const Evaluation result = formula.program != nullptr
                                  ? evaluator.run(*formula.program, tuple)
                                  : Evaluation{.value = 0, .error = kUnresolvedField};
    storeNumber(evaluator.context(), tuple, static_cast<int>(formula.column),
                result.ok() ? result.value : kErrorValue);
    // A field that its own formula named, in another tuple, is idle already.
    if (result.ok() && states[formula.column] == FieldState::Pending) {
      states[formula.column] = formulas.afterSuccess;
    }
  }
}

// Formulas recalculate while the object lives; afterwards all fields are idle.
class Recalculating {
 public:
  explicit Recalculating(Evaluator& evaluator)
      : states_(evaluator.states()), forwardOnly_(evaluator.context()) {}
  Recalculating(const Recalculating&) = delete;
  Recalculating& operator=(const Recalculating&) = delete;
  ~Recalculating() { std::fill(states_.begin(), states_.end(), FieldState::Idle); }

 private:
  std::vector<FieldState>& states_;
  ForwardOnly forwardOnly_;
};

std::uint8_t colourOf(const Evaluation& result) {
  const double value = result.ok() ? result.value : kErrorValue;
  const bool isColour = value >= 0 && value < kColourLimit;
  return static_cast<std::uint8_t>(isColour ? static_cast<std::int32_t>(value) % kColourCount : 0);
}

// Whether a program computes a number that is the same for every tuple.
bool isConstant(const Program& program) {
  return program.code.size() == 2 &&
         program.code.front().run == loadHandler(Operand::Constant, Former::Dropped);
}

// Gives every field room for its colours and returns those fields whose colours differ by tuple.
std::vector<FormulaColumn> prepareHighlights(Evaluator& evaluator) {
  Table& table = evaluator.context().table;
  table.highlights.resize(table.fieldCount());
  std::vector<FormulaColumn> columns;
  for (std::size_t i = 0; i < table.fieldCount(); ++i) {
    Highlights& highlights = table.highlights[i];
    const Program* program = evaluator.program(table.fields[i].highlightExpression);
    highlights.common = 0;
    if (program != nullptr && !isConstant(*program)) {
      highlights.byTuple.resize(table.tupleCount);
      columns.push_back({i, program});
    } else {
      highlights.byTuple.clear();
      highlights.common =
          program == nullptr ? 0 : colourOf({.value = program->code.front().first.number});
    }
  }
  return columns;
}

// The functions that walk along a series are told by name which field to look at.
bool reaches(const Program* program) {
  return program != nullptr &&
         (!program->references.empty() ||
          std::any_of(program->calls.begin(), program->calls.end(), [](const BoundCall& call) {
            return std::any_of(call.arguments.begin(), call.arguments.end(),
                               [](const BoundArgument& argument) { return argument.slot < 0; });
          }));
}

void highlight(Evaluator& evaluator, const std::vector<FormulaColumn>& columns, std::size_t tuple) {
  for (const FormulaColumn& formula : columns) {
    evaluator.context().table.highlights[formula.column].byTuple[tuple] =
        colourOf(evaluator.run(*formula.program, tuple));
  }
}

}  // namespace

void recalculateTuple(Evaluator& evaluator, std::size_t tuple) {
  const auto only = static_cast<std::uint32_t>(tuple);
  recalculateTuples(evaluator, {&only, 1});
}

void recalculateTuples(Evaluator& evaluator, std::span<const std::uint32_t> tuples) {
  const Formulas formulas = findFormulas(evaluator);
  const Recalculating recalculating(evaluator);
  for (const std::uint32_t tuple : tuples) {
    recalculate(evaluator, formulas, tuple);
  }
}

bool recalculateAll(Evaluator& evaluator) {
  const Formulas formulas = findFormulas(evaluator);
  const Recalculating recalculating(evaluator);
  return formulas.columns.empty() || forEachTuple(evaluator.context(), kRecalculating,
                                                  [&evaluator, &formulas](std::size_t tuple) {
                                                    recalculate(evaluator, formulas, tuple);
                                                  });
}

bool computeHighlights(Evaluator& evaluator) {
  const std::vector<FormulaColumn> columns = prepareHighlights(evaluator);
  return columns.empty() || forEachTuple(evaluator.context(), kHighlighting,
                                         [&evaluator, &columns](std::size_t tuple) {
                                           highlight(evaluator, columns, tuple);
                                         });
}

void computeHighlights(Evaluator& evaluator, std::span<const std::uint32_t> tuples) {
  const std::vector<FormulaColumn> columns = prepareHighlights(evaluator);
  for (const std::uint32_t tuple : tuples) {
    highlight(evaluator, columns, tuple);
  }
}

bool reachesOtherTuples(Evaluator& evaluator) {
  std::vector<FieldDef>& fields = evaluator.context().table.fields;
  return std::any_of(fields.begin(), fields.end(), [&evaluator](FieldDef& field) {
    return (field.isExpression() && reaches(evaluator.program(field.expression))) ||
           reaches(evaluator.program(field.highlightExpression));
  });
}

bool recalculateTable(FormulaContext& context, const FunctionRegistry& functions) {
  sortTuples(context.table);
  context.lastSeries.reset();
  Evaluator evaluator(context, functions);
  return recalculateAll(evaluator) && computeHighlights(evaluator);
}

bool recalculateTable(Table& table, Notice& notice, Cell& scratch,
                      const FunctionRegistry& functions) {
  FormulaContext context{.table = table, .notice = notice, .scratch = scratch};
  const bool done = recalculateTable(context, functions);
  scratch = context.scratch;
  return done;
}

}  // namespace vrel
