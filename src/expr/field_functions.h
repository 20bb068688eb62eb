// The functions of formulas about a table: neighbours in the series, assignment, messages, time.
#pragma once

#include "expr/function_registry.h"

namespace vrel {

/// Fills a registry with everything that formulas of a table may call.
void addAllFunctions(FunctionRegistry& functions);

}  // namespace vrel
