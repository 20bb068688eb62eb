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

/// Stopped because it has to wait.
inline constexpr int kWaiting = -1;

struct Machine {
  const Program* program = nullptr;
  std::size_t tuple = 0;
  /// By column.
  const FieldState* states = nullptr;
  /// Null for an expression that is not about a table.
  FormulaContext* context = nullptr;
  double variable = 0;

  /// An error, or `kWaiting`.
  int stopped = kNoError;
  // Of one that waits: the formula field and the tuple that it waits for, and the instruction to go
  // on at with what it had then.
  std::int64_t wantedColumn = 0;
  std::size_t wantedTuple = 0;
  const Instruction* resumeAt = nullptr;
  double* resumeTop = nullptr;
  double value = 0;
};

/// Where an instruction takes an operand from.
enum class Operand : std::uint8_t { Constant, Number, Formula, Stack };

/// The order in which value and operand stand around an operator.
enum class Order : std::uint8_t { ValueFirst, OperandFirst };

/// What becomes of the value so far when an instruction does not use it.
enum class Former : std::uint8_t { Dropped, Pushed };

Handler loadHandler(Operand operand, Former former);
/// Puts the operand on the stack and keeps the value.
Handler pushHandler(Operand operand);
/// An operator between the value and an operand.
Handler binaryHandler(NodeKind operation, Operand operand, Order order);
/// An operator between two operands that are not on the stack.
Handler pairHandler(NodeKind operation, Operand left, Operand right, Former former);

/// The handlers without variants. Their operands are the instruction's first one.
struct PlainHandlers {
  Handler loadVariable;
  Handler loadBoolean;
  Handler loadScratch;
  /// A reference with an offset.
  Handler loadOffset;
  /// Puts the value on the stack.
  Handler pushValue;
  /// Fails when the value is 0.
  Handler requireDivisor;
  Handler fail;
  Handler jump;
  Handler jumpIfZero;
  /// Fails when the value on the stack is above this one.
  Handler requireAscending;
  /// Takes `index` values, the upper bounds of bands, from the stack and goes on at the jump behind
  /// it that belongs to the band which holds the probe; behind those stands the one for no band.
  Handler selectBand;
  Handler callFunction;
  Handler finish;
};
extern const PlainHandlers kPlain;

}  // namespace vrel
