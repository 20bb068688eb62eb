// The state of one running program, and the instructions that work on it.
#pragma once

#include <cstddef>
#include <cstdint>

#include "expr/evaluation_error.h"
#include "expr/program.h"
#include "model/field_value.h"

namespace vrel {

struct FormulaContext;

/// Whether a formula field holds the value that it has to have by now.
enum class FieldState : std::uint8_t {
  Idle,
  /// Must be computed before it is used.
  Pending,
  /// Being computed: whoever asks for it now asks in a circle.
  InProgress,
};

struct Machine {
  const Program* program = nullptr;
  std::size_t tuple = 0;
  /// The tuple's cells.
  const Cell* cells = nullptr;
  /// By column.
  const FieldState* states = nullptr;
  /// Null for an expression that is not about a table.
  FormulaContext* context = nullptr;
  double variable = 0;
  /// Next free place of the value stack.
  double* top = nullptr;

  int error = kNoError;
  /// Waits for a formula field of a tuple, to go on at an instruction with a value.
  bool waiting = false;
  std::int32_t wantedColumn = 0;
  std::size_t wantedTuple = 0;
  Step resume = {nullptr, 0};
};

/// What an instruction computes with, beside the value so far.
enum class Operand : std::uint8_t { Constant, Number, Formula, Stack };

/// The order in which value and operand stand around an operator.
enum class Order : std::uint8_t { ValueFirst, OperandFirst };

using Handler = decltype(Instruction::run);

Handler loadHandler(Operand operand);
Handler pushHandler(Operand operand);
/// Of a binary operator's node kind.
Handler binaryHandler(NodeKind operation, Operand operand, Order order);

Step loadVariable(const Instruction& at, Machine& machine, double value);
Step loadBoolean(const Instruction& at, Machine& machine, double value);
Step loadScratch(const Instruction& at, Machine& machine, double value);
Step loadOffset(const Instruction& at, Machine& machine, double value);
/// Puts the value on the stack.
Step pushValue(const Instruction& at, Machine& machine, double value);
/// Fails when the value is 0.
Step requireDivisor(const Instruction& at, Machine& machine, double value);
Step fail(const Instruction& at, Machine& machine, double value);
Step jump(const Instruction& at, Machine& machine, double value);
Step jumpIfZero(const Instruction& at, Machine& machine, double value);
/// Fails when the value on the stack is above this one.
Step requireAscending(const Instruction& at, Machine& machine, double value);
/// Takes `index` values, the upper bounds of bands, from the stack and goes on at the jump behind
/// it that belongs to the band which holds the probe; behind those stands the one for no band at
/// all.
Step selectBand(const Instruction& at, Machine& machine, double value);
Step callFunction(const Instruction& at, Machine& machine, double value);
Step finish(const Instruction& at, Machine& machine, double value);

}  // namespace vrel
