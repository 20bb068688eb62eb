// Long work over a table: shown to the user, who may stop it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "expr/formula_context.h"

namespace vrel {

/// Tuples between two signs of progress: some milliseconds of work.
inline constexpr std::size_t kProgressStep = 1 << 14;

/// Runs `compute` for every tuple of the context's table; false as soon as the user stops it.
template <typename Compute>
bool forEachTuple(FormulaContext& context, std::string_view task, Compute compute) {
  const std::size_t count = context.table.tupleCount;
  const std::string name = context.notice.translate(task);
  for (std::size_t tuple = 0; tuple < count; ++tuple) {
    if (tuple % kProgressStep == 0 && !context.notice.progress(name, tuple, count)) {
      return false;
    }
    compute(tuple);
  }
  return context.notice.progress(name, count, count);
}

}  // namespace vrel
