// A formula made ready to run over the tuples of one table: its field names are resolved to
// columns, its operators are a list of instructions.
//
// Each instruction is a function that takes the value computed so far and returns the next one,
// together with the instruction to go on with. Operands that stand in a column, or are numbers, are
// part of their operator's instruction; others wait on a stack. So evaluating allocates nothing
// and never recurses, whatever the formula looks like.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "expr/expression.h"
#include "model/field.h"

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

/// Where to go on, and with which value; nowhere when the program is done, failed or has to wait.
struct Step {
  const Instruction* next;
  double value;
};

struct Instruction {
  Step (*run)(const Instruction& at, Machine& machine, double value);
  union {
    double number;
    std::int32_t column;
    /// Which of the program's references or calls.
    std::int32_t index;
    /// How many instructions to go on from this one.
    std::int32_t distance;
    std::int32_t error;
  };
};
static_assert(sizeof(Instruction) == 16);

struct Program {
  std::vector<Instruction> code;
  std::vector<OffsetReference> references;
  std::vector<BoundCall> calls;
  /// Most values that wait on the stack at a time.
  std::size_t stackDepth = 0;
};

/// Never fails: a name that stands for nothing becomes an instruction that fails.
Program compileProgram(const Expression& expression, const FieldPlaces& places);

}  // namespace vrel
