// How long a tuple's period lasts, in the units that formulas count time in.
#pragma once

#include <cstddef>
#include <string_view>

#include "expr/formula_context.h"

namespace vrel {

/// A unit of time, known by the first letter of its name.
struct TimeUnit {
  std::string_view name;
  /// Length of a period of which nothing is known: a month of 20 working days.
  double usual;
  /// Of a month: 28 days, for dates that lie on different days of theirs.
  double seconds;
};

/// The unit that a word stands for; null when there is none of that letter, or when the table's
/// periods are no dates and the unit is hours.
const TimeUnit* findTimeUnit(const Table& table, std::string_view word);

/// How many units the period of a tuple lasts: as the period file states it; of a dated period,
/// the time since the tuple before; else the usual length.
double periodLength(FormulaContext& context, std::size_t tuple, const TimeUnit& unit);

}  // namespace vrel
