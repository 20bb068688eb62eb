#include "expr/function_registry.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace vrel {
namespace {

constexpr std::size_t kMaxFunctions = 256;
constexpr std::size_t kMaxFunctionName = 63;
constexpr std::size_t kMaxUsageLength = 131;

bool nameBefore(const FunctionRecord& record, std::string_view name) {
  return record.name < name;
}

}  // namespace

void FunctionRegistry::add(FunctionRecord record) {
  record.name = record.name.substr(0, kMaxFunctionName);
  record.usage = record.usage.substr(0, kMaxUsageLength);
  const auto place = std::lower_bound(records_.begin(), records_.end(), record.name, nameBefore);
  if (place != records_.end() && place->name == record.name) {
    *place = std::move(record);
    return;
  }
  if (records_.size() >= kMaxFunctions) {
    std::fputs("DRegisterFunc: out of available functions.\n", stderr);
    std::abort();
  }
  records_.insert(place, std::move(record));
}

const FunctionRecord* FunctionRegistry::find(std::string_view name) const {
  const auto place = std::lower_bound(records_.begin(), records_.end(), name, nameBefore);
  return place != records_.end() && place->name == name ? &*place : nullptr;
}

}  // namespace vrel
