// The functions of the formula language that need no table: arithmetic, conditions, tolerances,
// statistics, colours' fixed numbers.
#pragma once

#include "expr/function_registry.h"

namespace vrel {

void addBuiltins(FunctionRegistry& functions);

}  // namespace vrel
