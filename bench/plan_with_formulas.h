// The generated plan with formula fields, and all that formulas need.
#pragma once

#include <cstdint>

#include "expr/evaluator.h"
#include "model/table.h"
#include "silent_notice.h"

namespace vrel::bench {

/// Four formula fields behind the plan's eight: two of the tuple's own numbers, one of another
/// formula's, one that continues along its series. They are not computed yet.
struct PlanWithFormulas {
  explicit PlanWithFormulas(std::int64_t tuples);
  PlanWithFormulas(const PlanWithFormulas&) = delete;
  PlanWithFormulas& operator=(const PlanWithFormulas&) = delete;

  Table table;
  SilentNotice notice;
  FunctionRegistry functions;
  FormulaContext context{.table = table, .notice = notice};
};

}  // namespace vrel::bench
