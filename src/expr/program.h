// A formula made ready to run over the tuples of one table: its field names are resolved to
// columns, its operators are a list of instructions.
//
// Each instruction is a function that takes the value computed so far and hands the next one on to
// the instruction behind it, by a tail call. Operands that stand in a column, or are numbers, are
// part of their operator's instruction; others wait on a stack. So evaluating allocates nothing and
// needs no more of the process's stack for a long formula than for a short one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "expr/expression.h"
#include "model/field_value.h"

namespace vrel {

/// What a field name stands for in a formula.
enum class PlaceKind : std::uint8_t {
  None,
  Number,
  Boolean,
  Formula,
  /// A number that belongs to no tuple, for formulas to keep something in.
  Scratch,
};

struct FieldPlace {
  PlaceKind kind = PlaceKind::None;
  std::int32_t column = 0;
};

/// Name of the scratch field.
inline constexpr std::string_view kScratchField = " ";

/// What the names of a table's fields stand for. The fields must keep their names as long as it
/// is used.
class FieldPlaces {
 public:
  /// No names at all: formulas that are not about a table.
  FieldPlaces() = default;
  explicit FieldPlaces(std::span<const FieldDef> fields);

  /// The first field of that name that holds numbers.
  FieldPlace find(std::string_view name) const;

 private:
  std::unordered_map<std::string_view, FieldPlace> places_;
};

/// A field name with an offset into the series of the tuple.
struct OffsetReference {
  FieldPlace place;
  /// Places after the tuple; when absolute, the place in the series, counted from 1.
  std::int64_t offset = 0;
  bool absolute = false;
};

struct BoundArgument {
  /// Of a text argument, without its "#".
  std::string text;
  /// The field that a text argument names.
  FieldPlace place;
  /// Of an expression, its position among the call's numbers; -1 for a text.
  std::int32_t slot = -1;
};

struct BoundCall {
  BuiltinFunction function = nullptr;
  std::vector<BoundArgument> arguments;
  /// How many of them are expressions.
  std::int32_t numbers = 0;
};

struct Machine;
struct Instruction;

/// Runs from an instruction on: over a tuple's cells, with the next free place of the value stack
/// and the value so far. Returns the program's value, which counts for nothing when the machine
/// then has an error or waits.
using Handler = double (*)(const Instruction* at, Machine& machine, const Cell* cells, double* top,
                           double value);

/// What an instruction works with, beside the value so far.
union InstructionOperand {
  double number;
  std::int64_t column;
  /// Which of the program's references or calls.
  std::int64_t index;
  /// How many instructions to go on from this one.
  std::int64_t distance;
  std::int64_t error;
};

struct Instruction {
  Handler run = nullptr;
  InstructionOperand first = {.number = 0};
  InstructionOperand second = {.number = 0};
};

struct Program {
  std::vector<Instruction> code;
  std::vector<OffsetReference> references;
  std::vector<BoundCall> calls;
  /// Run once more for a tuple, over cells that did not change, it gives the same value and changes
  /// no cell of another tuple.
  bool repeatable = true;
  /// Most values that wait on the stack at a time.
  std::size_t stackDepth = 0;
};

/// Never fails: a name that stands for nothing becomes an instruction that fails.
Program compileProgram(const Expression& expression, const FieldPlaces& places);

}  // namespace vrel
