// Runs programs. A program that needs a formula field that is not computed yet waits while that
// field's own formula runs; the waiting ones are kept in a list, so that fields may refer to each
// other as deeply as a table has columns.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "expr/formula_context.h"
#include "expr/function_registry.h"
#include "expr/machine.h"

namespace vrel {

/// A value, or why there is none.
struct Evaluation {
  double value = 0;
  int error = kNoError;

  bool ok() const { return error == kNoError; }
};

/// Evaluates an expression that is not about a table: every field name in it fails.
Evaluation evaluate(const Expression& expression, double x = 0);

/// Evaluates formulas over one table.
class Evaluator {
 public:
  /// The context and the registry must outlive the object, and the table keep its fields.
  Evaluator(FormulaContext& context, const FunctionRegistry& functions);
  Evaluator(const Evaluator&) = delete;
  Evaluator& operator=(const Evaluator&) = delete;

  FormulaContext& context() { return context_; }
  const FunctionRegistry& functions() const { return functions_; }

  /// The program of a formula of the table, compiled when it was not yet; null when its text is no
  /// formula, with the error noted in it.
  const Program* program(Formula& formula);

  /// Runs a program, which comes from `program`, for a tuple. Formula fields that it needs and that
  /// are pending are computed and stored first.
  Evaluation run(const Program& program, std::size_t tuple) {
    machine_.program = &program;
    machine_.tuple = tuple;
    const Cell* const cells = context_.table.cells.data() + tuple * states_.size();
    const Instruction* const first = program.code.data();
    const double value = first->run(first, machine_, cells, stack_.data(), 0);
    return machine_.stopped == kNoError ? Evaluation{.value = value, .error = kNoError}
                                        : endStopped(value);
  }

  /// By column. All idle unless the caller makes them pending.
  std::vector<FieldState>& states() { return states_; }

 private:
  // The same as `program`, without making room on the stack: machines that wait point into it.
  const Program* compiled(Formula& formula);
  void reserveStack(std::size_t depth);
  Evaluation endStopped(double value);
  void beginField();
  void endField(const Machine& ended);

  FormulaContext& context_;
  const FunctionRegistry& functions_;
  // Made when the first formula is compiled.
  std::optional<FieldPlaces> places_;
  std::vector<FieldState> states_;
  std::vector<double> stack_;
  // The one that runs when none waits.
  Machine machine_;
  // Programs that wait, each for the next one.
  std::vector<Machine> machines_;
};

}  // namespace vrel
