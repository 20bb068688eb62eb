#include "expr/evaluator.h"

#include <algorithm>

#include "expr/formula.h"

namespace vrel {
namespace {

// Runs from an instruction on until the program is done, failed or has to wait; the value is left
// in `resume`.
void proceed(Machine& machine, Step step) {
  while (step.next != nullptr) {
    step = step.next->run(*step.next, machine, step.value);
  }
  if (!machine.waiting) {
    machine.resume = step;
  }
}

Evaluation resultOf(const Machine& machine) {
  return {.value = machine.error == kNoError ? machine.resume.value : 0, .error = machine.error};
}

}  // namespace

Evaluation evaluate(const Expression& expression, double x) {
  const Program program = compileProgram(expression, FieldPlaces({}));
  std::vector<double> stack(program.stackDepth);
  Machine machine;
  machine.program = &program;
  machine.variable = x;
  machine.top = stack.data();
  proceed(machine, {program.code.data(), 0});
  return resultOf(machine);
}

Evaluator::Evaluator(FormulaContext& context, const FunctionRegistry& functions)
    : context_(context), functions_(functions), states_(context.table.fieldCount()) {}

const Program* Evaluator::program(Formula& formula) {
  if (!formula.compiled) {
    if (!places_) {
      places_.emplace(context_.table.fields);
    }
    compileFormula(formula, functions_, *places_);
  }
  return formula.compiled->program ? &*formula.compiled->program : nullptr;
}

Evaluation Evaluator::run(const Program& program, std::size_t tuple) {
  if (stack_.size() < program.stackDepth) {
    stack_.resize(program.stackDepth);
  }
  Machine machine = machineFor(program, tuple, stack_.data());
  proceed(machine, {program.code.data(), 0});
  return machine.waiting ? runWaiting(machine) : resultOf(machine);
}

Machine Evaluator::machineFor(const Program& program, std::size_t tuple, double* stack) {
  Machine machine;
  machine.program = &program;
  machine.tuple = tuple;
  machine.cells = context_.table.tuple(tuple);
  machine.states = states_.data();
  machine.context = &context_;
  machine.top = stack;
  return machine;
}

// Room for so many values above those of the machines that wait.
void Evaluator::reserveStack(std::size_t depth) {
  double* const old = stack_.data();
  const auto used = static_cast<std::size_t>(machines_.back().top - old);
  if (used + depth <= stack_.size()) {
    return;
  }
  stack_.resize(std::max(used + depth, 2 * stack_.size()));
  for (Machine& machine : machines_) {
    machine.top = stack_.data() + (machine.top - old);
  }
}

Evaluation Evaluator::runWaiting(const Machine& first) {
  machines_.assign(1, first);
  for (;;) {
    beginField();
    while (!machines_.back().waiting) {
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
  const Program* program = this->program(context_.table.field(waiting.wantedColumn).expression);
  if (program == nullptr) {
    Machine failed;
    failed.error = kUnresolvedField;
    machines_.push_back(failed);
    return;
  }
  reserveStack(program->stackDepth);
  machines_.push_back(machineFor(*program, tuple, machines_.back().top));
  proceed(machines_.back(), {program->code.data(), 0});
}

// Hands a field's result to the machine that waits for it, which is the last one now.
void Evaluator::endField(const Machine& ended) {
  Machine& waiting = machines_.back();
  const Evaluation result = resultOf(ended);
  context_.table.cell(waiting.wantedTuple, waiting.wantedColumn) =
      numberCell(result.ok() ? result.value : kErrorValue);
  states_[static_cast<std::size_t>(waiting.wantedColumn)] = FieldState::Idle;
  waiting.waiting = false;
  if (result.ok()) {
    proceed(waiting, waiting.resume);
  } else {
    waiting.error = kUnresolvedField;
  }
}

}  // namespace vrel
