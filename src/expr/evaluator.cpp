#include "expr/evaluator.h"

#include <algorithm>

#include "expr/formula.h"

namespace vrel {
namespace {

// Runs from where the machine stopped.
void proceed(Machine& machine, const Table& table) {
  machine.value = machine.resumeAt->run(machine.resumeAt, machine, table.tuple(machine.tuple),
                                        machine.resumeTop, machine.value);
}

Evaluation resultOf(const Machine& machine) {
  return {.value = machine.stopped == kNoError ? machine.value : 0, .error = machine.stopped};
}

}  // namespace

Evaluation evaluate(const Expression& expression, double x) {
  const Program program = compileProgram(expression, FieldPlaces());
  std::vector<double> stack(program.stackDepth);
  Machine machine;
  machine.program = &program;
  machine.variable = x;
  machine.value = program.code.front().run(program.code.data(), machine, nullptr, stack.data(), 0);
  return resultOf(machine);
}

Evaluator::Evaluator(FormulaContext& context, const FunctionRegistry& functions)
    : context_(context), functions_(functions), states_(context.table.fieldCount()) {
  machine_.states = states_.data();
  machine_.context = &context_;
}

const Program* Evaluator::program(Formula& formula) {
  const Program* program = compiled(formula);
  if (program != nullptr && stack_.size() < program->stackDepth) {
    stack_.resize(program->stackDepth);
  }
  return program;
}

const Program* Evaluator::compiled(Formula& formula) {
  if (!formula.compiled) {
    if (!places_) {
      places_.emplace(context_.table.fields);
    }
    compileFormula(formula, functions_, *places_);
  }
  const std::optional<Program>& program = formula.compiled->program;
  return program ? &*program : nullptr;
}

// Room for so many values above those of the machines that wait.
void Evaluator::reserveStack(std::size_t depth) {
  double* const old = stack_.data();
  const auto used = static_cast<std::size_t>(machines_.back().resumeTop - old);
  if (used + depth <= stack_.size()) {
    return;
  }
  stack_.resize(std::max(used + depth, 2 * stack_.size()));
  for (Machine& machine : machines_) {
    machine.resumeTop = stack_.data() + (machine.resumeTop - old);
  }
}

// Ends the program that stopped with a value.
Evaluation Evaluator::endStopped(double value) {
  machine_.value = value;
  const Machine stopped = machine_;
  machine_.stopped = kNoError;
  if (stopped.stopped != kWaiting) {
    return resultOf(stopped);
  }
  machines_.assign(1, stopped);
  for (;;) {
    beginField();
    while (machines_.back().stopped != kWaiting) {
      const Machine ended = machines_.back();
      machines_.pop_back();
      if (machines_.empty()) {
        return resultOf(ended);
      }
      endField(ended);
    }
  }
}

// Starts the program of the field that the last machine waits for.
void Evaluator::beginField() {
  const Machine& waiting = machines_.back();
  states_[static_cast<std::size_t>(waiting.wantedColumn)] = FieldState::InProgress;
  const std::size_t tuple = waiting.wantedTuple;
  const Program* program =
      compiled(context_.table.field(static_cast<int>(waiting.wantedColumn)).expression);
  if (program == nullptr) {
    Machine failed;
    failed.stopped = kUnresolvedField;
    machines_.push_back(failed);
    return;
  }
  reserveStack(program->stackDepth);
  Machine machine = machine_;
  machine.program = program;
  machine.tuple = tuple;
  machine.resumeAt = program->code.data();
  machine.resumeTop = machines_.back().resumeTop;
  machine.value = 0;
  proceed(machine, context_.table);
  machines_.push_back(machine);
}

// Hands a field's result to the machine that waits for it, which is the last one now.
void Evaluator::endField(const Machine& ended) {
  Machine& waiting = machines_.back();
  const Evaluation result = resultOf(ended);
  storeNumber(context_, waiting.wantedTuple, static_cast<int>(waiting.wantedColumn),
              result.ok() ? result.value : kErrorValue);
  states_[static_cast<std::size_t>(waiting.wantedColumn)] = FieldState::Idle;
  waiting.stopped = result.ok() ? kNoError : kUnresolvedField;
  if (result.ok()) {
    proceed(waiting, context_.table);
  }
}

}  // namespace vrel
