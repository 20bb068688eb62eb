#include "model/breaks.h"

#include <algorithm>
#include <array>

namespace vrel {
namespace {

struct OperationRow {
  BreakOperation operation;
  std::string_view name;
  std::string_view shortName;
};

// In the order of the codes.
constexpr std::array<OperationRow, 7> kOperations = {{
    {BreakOperation::Nothing, "Nothing", "Nil"},
    {BreakOperation::Sum, "Sum", "Sum"},
    {BreakOperation::Minimum, "Minimum", "Min"},
    {BreakOperation::Maximum, "Maximum", "Max"},
    {BreakOperation::Average, "Average", "Avg"},
    {BreakOperation::First, "First", "1st"},
    {BreakOperation::Last, "Last", "Last"},
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
