// How long periods last, as computed from the table's own dates.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace vrel {

/// Time from one period's start to the next one's, in each unit. A month counts as 4.3 weeks.
struct PeriodLength {
  double days = 0;
  double weeks = 0;
  double months = 0;
};

PeriodLength periodLengthFromSeconds(std::int64_t seconds);

/// The store of period lengths of one table.
struct PeriodLengths {
  /// By period start, in seconds since 1970.
  std::unordered_map<std::int64_t, PeriodLength> computed;
};

/// Adds the computed length of the period that starts at `start`, unless it has one already.
void addComputedLength(PeriodLengths& lengths, std::int64_t start, std::int64_t seconds);
void clearComputedLengths(PeriodLengths& lengths);
/// Length in "days", "weeks" or "months"; nothing for another unit or an unknown period.
std::optional<double> computedLength(const PeriodLengths& lengths, std::int64_t start,
                                     std::string_view unit);

}  // namespace vrel
