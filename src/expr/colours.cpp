#include "expr/colours.h"

#include <string>
#include <utility>

namespace vrel {
namespace {

template <std::size_t index>
bool colour(const FunctionArguments& /*arguments*/, double& result) {
  result = static_cast<double>(index);
  return true;
}

template <std::size_t... indices>
void addAll(FunctionRegistry& functions, std::index_sequence<indices...> /*all*/) {
  (functions.add({.name = std::string(kColours[indices].formulaName),
                  .function = colour<indices>,
                  .usage = "()",
                  .constant = true}),
   ...);
}

}  // namespace

void addColours(FunctionRegistry& functions) {
  addAll(functions, std::make_index_sequence<kColours.size()>());
}

}  // namespace vrel
