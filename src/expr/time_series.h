// How long a stock lasts, and how much stock a time takes: functions that walk along a series,
// taking from the stock what each period needs.
//
// Where the series ends and the stock does not, the last period repeats. It repeats so alike that
// the end needs no walking: what is left is divided by what a period takes.
#pragma once

#include "expr/function_registry.h"

namespace vrel {

/// `Cover`, `InvCover`, `Depletion` and `InverseDepletion`.
void addTimeSeriesFunctions(FunctionRegistry& functions);

}  // namespace vrel
