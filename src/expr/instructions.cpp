#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "expr/formula_context.h"
#include "expr/function_arguments.h"
#include "expr/machine.h"

namespace vrel {
namespace {

// What the bands of RANGEMAP are asked for: the value of its first argument does not count.
constexpr double kRangeProbe = 0;

double truth(bool holds) {
  return holds ? 1.0 : 0.0;
}

// Either factor says how often the unbounded quantity is taken: not at all or once leaves it exact.
double product(double a, double b) {
  if ((a < kUnbounded && b < kUnbounded) || a == 1 || b == 1 || a == 0 || b == 0) {
    return a * b;
  }
  return kUnbounded;
}

struct Add {
  static bool apply(double a, double b, double& result) {
    result = a + b;
    return true;
  }
};
struct Subtract {
  static bool apply(double a, double b, double& result) {
    result = a - b;
    return true;
  }
};
struct Multiply {
  static bool apply(double a, double b, double& result) {
    result = product(a, b);
    return true;
  }
};
struct Divide {
  static bool apply(double a, double b, double& result) {
    result = a >= kUnbounded ? kUnbounded : a / b;
    return b != 0;
  }
};
struct Remainder {
  static bool apply(double a, double b, double& result) {
    if (b == 0) {
      return false;
    }
    result = a >= kUnbounded ? kUnbounded : std::fmod(a, b);
    return true;
  }
};
struct Less {
  static bool apply(double a, double b, double& result) {
    result = truth(a < b);
    return true;
  }
};
struct Greater {
  static bool apply(double a, double b, double& result) {
    result = truth(a > b);
    return true;
  }
};
struct Equal {
  static bool apply(double a, double b, double& result) {
    result = truth(a == b);
    return true;
  }
};
struct LessOrEqual {
  static bool apply(double a, double b, double& result) {
    result = truth(a <= b);
    return true;
  }
};
struct GreaterOrEqual {
  static bool apply(double a, double b, double& result) {
    result = truth(a >= b);
    return true;
  }
};
struct NotEqual {
  static bool apply(double a, double b, double& result) {
    result = truth(a != b);
    return true;
  }
};
struct And {
  static bool apply(double a, double b, double& result) {
    result = truth(a != 0 && b != 0);
    return true;
  }
};
struct Or {
  static bool apply(double a, double b, double& result) {
    result = truth(a != 0 || b != 0);
    return true;
  }
};
struct Xor {
  static bool apply(double a, double b, double& result) {
    result = truth((a != 0) != (b != 0));
    return true;
  }
};

Step failWith(Machine& machine, int error) {
  machine.error = error;
  return {nullptr, 0};
}

const Cell& cellOf(const Machine& machine, std::int32_t column) {
  return machine.cells[static_cast<std::size_t>(column)];
}

FieldState stateOf(const Machine& machine, std::int32_t column) {
  return machine.states[static_cast<std::size_t>(column)];
}

// A formula field has to be computed before the instruction can run.
Step awaitField(const Instruction& at, Machine& machine, double value, std::int32_t column,
                std::size_t tuple) {
  if (stateOf(machine, column) == FieldState::InProgress) {
    return failWith(machine, kUnresolvedField);
  }
  machine.waiting = true;
  machine.wantedColumn = column;
  machine.wantedTuple = tuple;
  machine.resume = {&at, value};
  return {nullptr, value};
}

template <Operand operand>
bool mustWait(const Instruction& at, const Machine& machine) {
  if constexpr (operand == Operand::Formula) {
    return stateOf(machine, at.column) != FieldState::Idle;
  } else {
    return false;
  }
}

template <Operand operand>
double fetch(const Instruction& at, Machine& machine) {
  if constexpr (operand == Operand::Constant) {
    return at.number;
  } else if constexpr (operand == Operand::Stack) {
    return *--machine.top;
  } else {
    return numberOf(cellOf(machine, at.column));
  }
}

template <Operand operand>
Step load(const Instruction& at, Machine& machine, double value) {
  if (mustWait<operand>(at, machine)) {
    return awaitField(at, machine, value, at.column, machine.tuple);
  }
  return {&at + 1, fetch<operand>(at, machine)};
}

template <Operand operand>
Step push(const Instruction& at, Machine& machine, double value) {
  if (mustWait<operand>(at, machine)) {
    return awaitField(at, machine, value, at.column, machine.tuple);
  }
  *machine.top++ = fetch<operand>(at, machine);
  return {&at + 1, value};
}

template <typename Operation, Operand operand, Order order>
Step apply(const Instruction& at, Machine& machine, double value) {
  if (mustWait<operand>(at, machine)) {
    return awaitField(at, machine, value, at.column, machine.tuple);
  }
  double left = value;
  double right = fetch<operand>(at, machine);
  if constexpr (order == Order::OperandFirst) {
    std::swap(left, right);
  }
  double result = 0;
  if (!Operation::apply(left, right, result)) {
    return failWith(machine, kDivisionByZero);
  }
  return {&at + 1, result};
}

struct BinaryHandlers {
  NodeKind operation;
  // By operand and order.
  std::array<std::array<Handler, 2>, 4> handlers;
};

template <typename Operation, Operand operand>
constexpr std::array<Handler, 2> kBothOrders = {apply<Operation, operand, Order::ValueFirst>,
                                                apply<Operation, operand, Order::OperandFirst>};

template <typename Operation>
constexpr BinaryHandlers handlersOf(NodeKind operation) {
  return {operation,
          {kBothOrders<Operation, Operand::Constant>, kBothOrders<Operation, Operand::Number>,
           kBothOrders<Operation, Operand::Formula>, kBothOrders<Operation, Operand::Stack>}};
}

constexpr std::array<BinaryHandlers, 14> kBinaryHandlers = {
    handlersOf<Add>(NodeKind::Add),
    handlersOf<Subtract>(NodeKind::Subtract),
    handlersOf<Multiply>(NodeKind::Multiply),
    handlersOf<Divide>(NodeKind::Divide),
    handlersOf<Remainder>(NodeKind::Remainder),
    handlersOf<Less>(NodeKind::Less),
    handlersOf<Greater>(NodeKind::Greater),
    handlersOf<Equal>(NodeKind::Equal),
    handlersOf<LessOrEqual>(NodeKind::LessOrEqual),
    handlersOf<GreaterOrEqual>(NodeKind::GreaterOrEqual),
    handlersOf<NotEqual>(NodeKind::NotEqual),
    handlersOf<And>(NodeKind::And),
    handlersOf<Or>(NodeKind::Or),
    handlersOf<Xor>(NodeKind::Xor),
};

constexpr std::array<Handler, 4> kLoadHandlers = {load<Operand::Constant>, load<Operand::Number>,
                                                  load<Operand::Formula>, load<Operand::Stack>};
constexpr std::array<Handler, 4> kPushHandlers = {push<Operand::Constant>, push<Operand::Number>,
                                                  push<Operand::Formula>, push<Operand::Stack>};

}  // namespace

Handler loadHandler(Operand operand) {
  return kLoadHandlers[static_cast<std::size_t>(operand)];
}

Handler pushHandler(Operand operand) {
  return kPushHandlers[static_cast<std::size_t>(operand)];
}

Handler binaryHandler(NodeKind operation, Operand operand, Order order) {
  const auto* const row =
      std::find_if(kBinaryHandlers.begin(), kBinaryHandlers.end(),
                   [operation](const BinaryHandlers& each) { return each.operation == operation; });
  return row->handlers[static_cast<std::size_t>(operand)][static_cast<std::size_t>(order)];
}

Step loadVariable(const Instruction& at, Machine& machine, double /*value*/) {
  return {&at + 1, machine.variable};
}

Step loadBoolean(const Instruction& at, Machine& machine, double /*value*/) {
  return {&at + 1, truth(cellOf(machine, at.column).boolean)};
}

Step loadScratch(const Instruction& at, Machine& machine, double /*value*/) {
  return {&at + 1, numberOf(machine.context->scratch)};
}

Step loadOffset(const Instruction& at, Machine& machine, double value) {
  const OffsetReference& reference =
      machine.program->references[static_cast<std::size_t>(at.index)];
  FormulaContext& context = *machine.context;
  const std::size_t tuple = resolveTuple(context, machine.tuple, reference).value_or(machine.tuple);
  if (reference.place.kind == PlaceKind::Formula &&
      stateOf(machine, reference.place.column) != FieldState::Idle) {
    return awaitField(at, machine, value, reference.place.column, tuple);
  }
  return {&at + 1, numberAt(context, tuple, reference.place)};
}

Step pushValue(const Instruction& at, Machine& machine, double value) {
  *machine.top++ = value;
  return {&at + 1, value};
}

Step requireDivisor(const Instruction& at, Machine& machine, double value) {
  return value == 0 ? failWith(machine, kDivisionByZero) : Step{&at + 1, value};
}

Step fail(const Instruction& at, Machine& machine, double /*value*/) {
  return failWith(machine, at.error);
}

Step jump(const Instruction& at, Machine& /*machine*/, double value) {
  return {&at + at.distance, value};
}

Step jumpIfZero(const Instruction& at, Machine& /*machine*/, double value) {
  return {&at + (value == 0 ? at.distance : 1), value};
}

Step requireAscending(const Instruction& at, Machine& machine, double value) {
  return machine.top[-1] > value ? failWith(machine, kFunctionFailed) : Step{&at + 1, value};
}

Step selectBand(const Instruction& at, Machine& machine, double value) {
  machine.top -= at.index;
  std::int32_t band = 0;
  for (; band < at.index; ++band) {
    const double bound = machine.top[band];
    if (bound < 0) {
      return failWith(machine, kFunctionFailed);
    }
    const bool aboveLast = band == 0 ? kRangeProbe >= 0 : kRangeProbe > machine.top[band - 1];
    if (aboveLast && bound >= kRangeProbe) {
      break;
    }
  }
  return {&at + 1 + band, value};
}

Step callFunction(const Instruction& at, Machine& machine, double /*value*/) {
  const BoundCall& call = machine.program->calls[static_cast<std::size_t>(at.index)];
  machine.top -= call.numbers;
  double result = 0;
  const FunctionArguments arguments(call, machine.top, machine.context, machine.tuple);
  return call.function(arguments, result) ? Step{&at + 1, result}
                                          : failWith(machine, kFunctionFailed);
}

Step finish(const Instruction& /*at*/, Machine& /*machine*/, double value) {
  return {nullptr, value};
}

}  // namespace vrel
