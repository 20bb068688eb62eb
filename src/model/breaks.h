// Break definitions: where summary rows stand and what they summarise.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/field_value.h"

namespace vrel {

enum class BreakOperation : std::int32_t {
  Nothing = 0,
  Sum = 1,
  Minimum = 2,
  Maximum = 3,
  Average = 4,
  First = 5,
  Last = 6,
};

/// Name of an operation in view files; dialogs translate it.
std::string_view operationName(BreakOperation operation);
/// Short label of an operation, to be translated.
std::string_view operationShortName(BreakOperation operation);
/// Operation by its name in view files; nothing for any other word.
std::optional<BreakOperation> operationFromName(std::string_view name);

/// How an operation makes one number of many. The result starts at `start`; each number brings a
/// step, which is told how many came before; `finish` is told how many there were, at least one.
struct BreakArithmetic {
  double start;
  double (*step)(double result, double number, std::uint32_t before);
  double (*finish)(double result, std::uint32_t count);
};

/// The step of sums and averages: an unbounded number makes the total unbounded.
inline double addBounded(double result, double number, std::uint32_t /*before*/) {
  return result < kUnbounded && number < kUnbounded ? result + number : kUnbounded;
}

/// The arithmetic of an operation; "Nothing" stays at 0.
const BreakArithmetic& arithmeticOf(BreakOperation operation);

/// The break of one field: a summary row or column after every so many changes of its value.
struct BreakDefinition {
  /// The label of the summary.
  std::string name = "Result";
  /// An empty row or column follows the summary.
  bool breakAfter = false;
  bool active = true;
  /// Number of the change that brings the first summary; 0 means the same as `frequency`.
  std::int32_t firstBreak = 0;
  /// Changes between two summaries; 0 means never, `kBreakAtEnd` only at the end.
  std::int32_t frequency = 0;
  std::int32_t fieldIndex = 0;
  /// By table field, in column order. Fields beyond its end have the operation Nothing, so that
  /// the breaks of a table with thousands of fields stay small; see `operationOf`.
  std::vector<BreakOperation> operations;
};

/// The operation for one table field.
BreakOperation operationOf(const BreakDefinition& definition, int field);
/// Sets the operation for one table field.
void setOperation(BreakDefinition& definition, int field, BreakOperation operation);

inline constexpr std::int32_t kBreakAtEnd = 2097152;

}  // namespace vrel
