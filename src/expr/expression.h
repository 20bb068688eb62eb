// A parsed formula: a flat array of nodes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "expr/function_registry.h"

namespace vrel {

enum class NodeKind : char {
  Number = 'n',
  Field = 'f',
  Call = 'F',
  Variable = 'v',
  Add = '+',
  Subtract = '-',
  Multiply = '*',
  Divide = '/',
  Remainder = '%',
  Less = '<',
  Greater = '>',
  Equal = '=',
  LessOrEqual = 'L',
  GreaterOrEqual = 'G',
  NotEqual = 'N',
  And = '&',
  Or = '|',
  Xor = '^',
  // Made of functions, never read.
  Largest = 'M',
  Smallest = 'm',
};

/// Stands for no node.
inline constexpr std::int32_t kNoNode = -1;

/// The operands of an operator; both stand before it in the node array.
struct Operands {
  std::int32_t left;
  std::int32_t right;
};

struct Node {
  NodeKind kind;
  union {
    double number;
    Operands operands;
    /// Of a field: which of the expression's references; of a call: which of its calls.
    std::int32_t index;
  };
};

/// An argument as it was written.
struct CallArgument {
  /// Root of the argument's expression; `kNoNode` for a text argument.
  std::int32_t node = kNoNode;
  /// Of a text argument, its "#" included.
  std::string text;

  bool isText() const { return node == kNoNode; }
};

struct Call {
  std::string name;
  BuiltinFunction function;
  CallForm form;
  /// See `FunctionRecord`.
  bool varies;
  std::vector<CallArgument> arguments;
};

struct Expression {
  std::int32_t root = kNoNode;
  std::vector<Node> nodes;
  /// Field names as written, offset suffixes included.
  std::vector<std::string> references;
  std::vector<Call> calls;
};

}  // namespace vrel
