#include "model/breaks.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/notice.h"

namespace vrel {
namespace {

double stay(double result, double /*number*/, std::uint32_t /*before*/) {
  return result;
}
double keepSmaller(double result, double number, std::uint32_t /*before*/) {
  return std::min(result, number);
}
double keepLarger(double result, double number, std::uint32_t /*before*/) {
  return std::max(result, number);
}
double takeFirst(double result, double number, std::uint32_t before) {
  return before == 0 ? number : result;
}
double takeAny(double /*result*/, double number, std::uint32_t /*before*/) {
  return number;
}

double asItIs(double result, std::uint32_t /*count*/) {
  return result;
}
double bounded(double result, std::uint32_t /*count*/) {
  return result < kUnbounded ? result : kUnbounded;
}
double divided(double result, std::uint32_t count) {
  return result < kUnbounded ? result / count : kUnbounded;
}

struct OperationRow {
  BreakOperation operation;
  std::string_view name;
  std::string_view shortName;
  BreakArithmetic arithmetic;
};

constexpr double kLargest = std::numeric_limits<double>::max();

// In the order of the codes. View files have the names as they stand here, users their
// translations. The maximum starts at 0, so that only negative numbers give 0.
constexpr std::array<OperationRow, 7> kOperations = {{
    {BreakOperation::Nothing,
     translatable("vrel", "Nothing"),
     translatable("vrel", "Nil"),
     {0, stay, asItIs}},
    {BreakOperation::Sum,
     translatable("vrel", "Sum"),
     translatable("vrel", "Sum"),
     {0, addBounded, bounded}},
    {BreakOperation::Minimum,
     translatable("vrel", "Minimum"),
     translatable("vrel", "Min"),
     {kLargest, keepSmaller, bounded}},
    {BreakOperation::Maximum,
     translatable("vrel", "Maximum"),
     translatable("vrel", "Max"),
     {0, keepLarger, bounded}},
    {BreakOperation::Average,
     translatable("vrel", "Average"),
     translatable("vrel", "Avg"),
     {0, addBounded, divided}},
    {BreakOperation::First,
     translatable("vrel", "First"),
     translatable("vrel", "1st"),
     {0, takeFirst, asItIs}},
    {BreakOperation::Last,
     translatable("vrel", "Last"),
     translatable("vrel", "Last"),
     {0, takeAny, asItIs}},
}};

const OperationRow& rowOf(BreakOperation operation) {
  return kOperations[static_cast<std::size_t>(operation)];
}

}  // namespace

std::string_view operationName(BreakOperation operation) {
  return rowOf(operation).name;
}

std::string_view operationShortName(BreakOperation operation) {
  return rowOf(operation).shortName;
}

const BreakArithmetic& arithmeticOf(BreakOperation operation) {
  return rowOf(operation).arithmetic;
}

std::optional<BreakOperation> operationFromName(std::string_view name) {
  const auto row = std::find_if(kOperations.begin(), kOperations.end(),
                                [name](const OperationRow& each) { return each.name == name; });
  return row == kOperations.end() ? std::nullopt : std::optional(row->operation);
}

BreakOperation operationOf(const BreakDefinition& definition, int field) {
  const auto index = static_cast<std::size_t>(field);
  return index < definition.operations.size() ? definition.operations[index]
                                              : BreakOperation::Nothing;
}

void setOperation(BreakDefinition& definition, int field, BreakOperation operation) {
  const auto index = static_cast<std::size_t>(field);
  if (index >= definition.operations.size()) {
    definition.operations.resize(index + 1, BreakOperation::Nothing);
  }
  definition.operations[index] = operation;
}

}  // namespace vrel
