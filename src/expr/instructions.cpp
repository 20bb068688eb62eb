// Each function here ends in a call of the next instruction's. The compiler turns that into a jump
// as long as nothing of the function outlives it: no local whose address was given away.

#include <algorithm>
#include <array>
#include <bit>
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

struct Add {
  static double apply(double a, double b) { return a + b; }
};
struct Subtract {
  static double apply(double a, double b) { return a - b; }
};
// Either factor says how often the unbounded quantity is taken: not at all or once leaves it exact.
struct Multiply {
  static double apply(double a, double b) {
    if ((a < kUnbounded && b < kUnbounded) || a == 1 || b == 1 || a == 0 || b == 0) {
      return a * b;
    }
    return kUnbounded;
  }
};
struct Divide {
  static constexpr bool kFailsByZero = true;
  static double apply(double a, double b) { return a >= kUnbounded ? kUnbounded : a / b; }
};
struct Remainder {
  static constexpr bool kFailsByZero = true;
  static double apply(double a, double b) { return a >= kUnbounded ? kUnbounded : std::fmod(a, b); }
};
struct Less {
  static double apply(double a, double b) { return truth(a < b); }
};
struct Greater {
  static double apply(double a, double b) { return truth(a > b); }
};
struct Equal {
  static double apply(double a, double b) { return truth(a == b); }
};
struct LessOrEqual {
  static double apply(double a, double b) { return truth(a <= b); }
};
struct GreaterOrEqual {
  static double apply(double a, double b) { return truth(a >= b); }
};
struct NotEqual {
  static double apply(double a, double b) { return truth(a != b); }
};
struct And {
  static double apply(double a, double b) { return truth(a != 0 && b != 0); }
};
struct Or {
  static double apply(double a, double b) { return truth(a != 0 || b != 0); }
};
struct Xor {
  static double apply(double a, double b) { return truth((a != 0) != (b != 0)); }
};
struct Largest {
  static double apply(double a, double b) { return b > a ? b : a; }
};
struct Smallest {
  static double apply(double a, double b) { return b < a ? b : a; }
};

template <typename Operation>
constexpr bool kFailsByZero = requires {
  Operation::kFailsByZero;
};

template <typename Operation>
bool mustFail(double divisor) {
  return kFailsByZero<Operation> && divisor == 0;
}

double goOn(const Instruction* at, Machine& machine, const Cell* cells, double* top, double value) {
  return at->run(at, machine, cells, top, value);
}

double failWith(Machine& machine, int error) {
  machine.stopped = error;
  return 0;
}

FieldState stateOf(const Machine& machine, std::int64_t column) {
  return machine.states[static_cast<std::size_t>(column)];
}

// A formula field has to be computed before the instruction can run.
double awaitField(const Instruction* at, Machine& machine, double* top, double value,
                  std::int64_t column, std::size_t tuple) {
  if (stateOf(machine, column) == FieldState::InProgress) {
    return failWith(machine, kUnresolvedField);
  }
  machine.stopped = kWaiting;
  machine.wantedColumn = column;
  machine.wantedTuple = tuple;
  machine.resumeAt = at;
  machine.resumeTop = top;
  return value;
}

template <Operand operand>
bool mustWait(const InstructionOperand& from, const Machine& machine) {
  if constexpr (operand == Operand::Formula) {
    return stateOf(machine, from.column) != FieldState::Idle;
  } else {
    return false;
  }
}

// The undefined number counts as 0; a result that is no number stays none.
double definedNumber(double number) {
  return std::bit_cast<std::uint64_t>(number) == kUndefinedBits ? 0 : number;
}

// An operand that is not on the stack.
template <Operand operand>
double fetch(const InstructionOperand& from, const Cell* cells) {
  if constexpr (operand == Operand::Constant) {
    return from.number;
  } else {
    const double number = cells[from.column].number;
    return std::isnan(number) ? definedNumber(number) : number;
  }
}

template <Operand operand, Former former>
double load(const Instruction* at, Machine& machine, const Cell* cells, double* top, double value) {
  if (mustWait<operand>(at->first, machine)) {
    return awaitField(at, machine, top, value, at->first.column, machine.tuple);
  }
  if constexpr (former == Former::Pushed) {
    *top++ = value;
  }
  return goOn(at + 1, machine, cells, top, fetch<operand>(at->first, cells));
}

template <Operand operand>
double push(const Instruction* at, Machine& machine, const Cell* cells, double* top, double value) {
  if (mustWait<operand>(at->first, machine)) {
    return awaitField(at, machine, top, value, at->first.column, machine.tuple);
  }
  *top++ = fetch<operand>(at->first, cells);
  return goOn(at + 1, machine, cells, top, value);
}

template <typename Operation, Operand operand, Order order>
double apply(const Instruction* at, Machine& machine, const Cell* cells, double* top,
             double value) {
  if (mustWait<operand>(at->first, machine)) {
    return awaitField(at, machine, top, value, at->first.column, machine.tuple);
  }
  double left = value;
  double right = 0;
  if constexpr (operand == Operand::Stack) {
    right = *--top;
  } else {
    right = fetch<operand>(at->first, cells);
  }
  if constexpr (order == Order::OperandFirst) {
    std::swap(left, right);
  }
  if (mustFail<Operation>(right)) {
    return failWith(machine, kDivisionByZero);
  }
  return goOn(at + 1, machine, cells, top, Operation::apply(left, right));
}

template <typename Operation, Operand leftOperand, Operand rightOperand, Former former>
double applyPair(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                 double value) {
  // The left one is computed first, except that a divisor is looked at before what is divided.
  if (!kFailsByZero<Operation> && mustWait<leftOperand>(at->first, machine)) {
    return awaitField(at, machine, top, value, at->first.column, machine.tuple);
  }
  if (mustWait<rightOperand>(at->second, machine)) {
    return awaitField(at, machine, top, value, at->second.column, machine.tuple);
  }
  const double right = fetch<rightOperand>(at->second, cells);
  if (mustFail<Operation>(right)) {
    return failWith(machine, kDivisionByZero);
  }
  if (mustWait<leftOperand>(at->first, machine)) {
    return awaitField(at, machine, top, value, at->first.column, machine.tuple);
  }
  if constexpr (former == Former::Pushed) {
    *top++ = value;
  }
  const double left = fetch<leftOperand>(at->first, cells);
  return goOn(at + 1, machine, cells, top, Operation::apply(left, right));
}

double loadVariable(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                    double /*value*/) {
  return goOn(at + 1, machine, cells, top, machine.variable);
}

double loadBoolean(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                   double /*value*/) {
  return goOn(at + 1, machine, cells, top, truth(cells[at->first.column].boolean));
}

double loadScratch(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                   double /*value*/) {
  return goOn(at + 1, machine, cells, top, definedNumber(machine.context->scratch.number));
}

// Beyond the series the tuple itself stands in.
[[gnu::noinline]] std::size_t tupleOf(const Machine& machine, const OffsetReference& reference) {
  return resolveTuple(*machine.context, machine.tuple, reference).value_or(machine.tuple);
}

double loadOffset(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                  double value) {
  const OffsetReference& reference =
      machine.program->references[static_cast<std::size_t>(at->first.index)];
  const FieldPlace& place = reference.place;
  const std::size_t tuple = tupleOf(machine, reference);
  if (place.kind == PlaceKind::Formula && stateOf(machine, place.column) != FieldState::Idle) {
    return awaitField(at, machine, top, value, place.column, tuple);
  }
  return goOn(at + 1, machine, cells, top, numberAt(*machine.context, tuple, place));
}

double pushValue(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                 double value) {
  *top = value;
  return goOn(at + 1, machine, cells, top + 1, value);
}

double requireDivisor(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                      double value) {
  if (value == 0) {
    return failWith(machine, kDivisionByZero);
  }
  return goOn(at + 1, machine, cells, top, value);
}

double fail(const Instruction* at, Machine& machine, const Cell* /*cells*/, double* /*top*/,
            double /*value*/) {
  return failWith(machine, static_cast<int>(at->first.error));
}

double jump(const Instruction* at, Machine& machine, const Cell* cells, double* top, double value) {
  return goOn(at + at->first.distance, machine, cells, top, value);
}

double jumpIfZero(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                  double value) {
  return goOn(value == 0 ? at + at->first.distance : at + 1, machine, cells, top, value);
}

double requireAscending(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                        double value) {
  if (top[-1] > value) {
    return failWith(machine, kFunctionFailed);
  }
  return goOn(at + 1, machine, cells, top, value);
}

// The first band whose bound is no less than the probe, which lies above the bound before it; as
// many as there are when there is none, -1 when a bound is below 0.
std::int64_t bandOfProbe(const double* bounds, std::int64_t count) {
  for (std::int64_t band = 0; band < count; ++band) {
    if (bounds[band] < 0) {
      return -1;
    }
    const bool aboveLast = band == 0 ? kRangeProbe >= 0 : kRangeProbe > bounds[band - 1];
    if (aboveLast && bounds[band] >= kRangeProbe) {
      return band;
    }
  }
  return count;
}

double selectBand(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                  double value) {
  const std::int64_t count = at->first.index;
  const std::int64_t band = bandOfProbe(top - count, count);
  if (band < 0) {
    return failWith(machine, kFunctionFailed);
  }
  return goOn(at + 1 + band, machine, cells, top - count, value);
}

// The result, kept in the machine. A function of its own, so that what the call needs is gone by
// the next instruction.
[[gnu::noinline]] bool call(Machine& machine, const BoundCall& bound, const double* numbers) {
  const FunctionArguments arguments(bound, numbers, machine.context, machine.tuple);
  machine.value = 0;
  return bound.function(arguments, machine.value);
}

double callFunction(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                    double /*value*/) {
  const BoundCall& bound = machine.program->calls[static_cast<std::size_t>(at->first.index)];
  if (!call(machine, bound, top - bound.numbers)) {
    return failWith(machine, kFunctionFailed);
  }
  return goOn(at + 1, machine, cells, top - bound.numbers, machine.value);
}

double finish(const Instruction* /*at*/, Machine& /*machine*/, const Cell* /*cells*/,
              double* /*top*/, double value) {
  return value;
}

constexpr std::size_t kOperands = 3;
using ByOrder = std::array<Handler, 2>;
using ByFormer = std::array<Handler, 2>;

struct BinaryHandlers {
  NodeKind operation;
  std::array<ByOrder, kOperands + 1> binary;
  std::array<std::array<ByFormer, kOperands>, kOperands> pair;
};

template <typename Operation, Operand operand>
constexpr ByOrder kBinary = {apply<Operation, operand, Order::ValueFirst>,
                             apply<Operation, operand, Order::OperandFirst>};

template <typename Operation, Operand left, Operand right>
constexpr ByFormer kPair = {applyPair<Operation, left, right, Former::Dropped>,
                            applyPair<Operation, left, right, Former::Pushed>};

template <typename Operation, Operand left>
constexpr std::array<ByFormer, kOperands> kPairs = {kPair<Operation, left, Operand::Constant>,
                                                    kPair<Operation, left, Operand::Number>,
                                                    kPair<Operation, left, Operand::Formula>};

template <typename Operation>
constexpr BinaryHandlers handlersOf(NodeKind operation) {
  return {operation,
          {kBinary<Operation, Operand::Constant>, kBinary<Operation, Operand::Number>,
           kBinary<Operation, Operand::Formula>, kBinary<Operation, Operand::Stack>},
          {kPairs<Operation, Operand::Constant>, kPairs<Operation, Operand::Number>,
           kPairs<Operation, Operand::Formula>}};
}

constexpr std::array<BinaryHandlers, 16> kOperators = {
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
    handlersOf<Largest>(NodeKind::Largest),
    handlersOf<Smallest>(NodeKind::Smallest),
};

template <Operand operand>
constexpr ByFormer kLoad = {load<operand, Former::Dropped>, load<operand, Former::Pushed>};

constexpr std::array<ByFormer, kOperands> kLoads = {
    kLoad<Operand::Constant>, kLoad<Operand::Number>, kLoad<Operand::Formula>};

constexpr std::array<Handler, kOperands> kPushes = {push<Operand::Constant>, push<Operand::Number>,
                                                    push<Operand::Formula>};

template <typename Enum>
constexpr std::size_t at(Enum value) {
  return static_cast<std::size_t>(value);
}

const BinaryHandlers& handlersOf(NodeKind operation) {
  return *std::find_if(
      kOperators.begin(), kOperators.end(),
      [operation](const BinaryHandlers& each) { return each.operation == operation; });
}

}  // namespace

const PlainHandlers kPlain = {
    .loadVariable = loadVariable,
    .loadBoolean = loadBoolean,
    .loadScratch = loadScratch,
    .loadOffset = loadOffset,
    .pushValue = pushValue,
    .requireDivisor = requireDivisor,
    .fail = fail,
    .jump = jump,
    .jumpIfZero = jumpIfZero,
    .requireAscending = requireAscending,
    .selectBand = selectBand,
    .callFunction = callFunction,
    .finish = finish,
};

Handler loadHandler(Operand operand, Former former) {
  return kLoads[at(operand)][at(former)];
}

Handler pushHandler(Operand operand) {
  return kPushes[at(operand)];
}

Handler binaryHandler(NodeKind operation, Operand operand, Order order) {
  return handlersOf(operation).binary[at(operand)][at(order)];
}

Handler pairHandler(NodeKind operation, Operand left, Operand right, Former former) {
  return handlersOf(operation).pair[at(left)][at(right)][at(former)];
}

}  // namespace vrel
