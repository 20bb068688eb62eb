// How long periods last: as computed from the table's own dates, and as a period file states it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
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

/// The units are "days", "weeks" and "months".
inline constexpr std::size_t kPeriodUnitCount = 3;
bool isPeriodUnit(std::string_view unit);

/// The lengths that a file states for one period, by unit.
using StatedLengths = std::array<std::optional<double>, kPeriodUnitCount>;

/// Lets a map of texts be asked by views.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const {
    return std::hash<std::string_view>{}(text);
  }
};

/// The store of period lengths of one table.
struct PeriodLengths {
  /// By period start, in seconds since 1970.
  std::unordered_map<std::int64_t, PeriodLength> computed;
  /// From the period file, by the period's text.
  std::unordered_map<std::string, StatedLengths, TextHash, std::equal_to<>> statedByText;
  /// From the period file, by the period's start, for texts that are dates.
  std::unordered_map<std::int64_t, StatedLengths> statedByStart;
};

/// Adds the computed length of the period that starts at `start`, unless it has one already.
void addComputedLength(PeriodLengths& lengths, std::int64_t start, std::int64_t seconds);
void clearComputedLengths(PeriodLengths& lengths);
/// Length in "days", "weeks" or "months"; nothing for another unit or an unknown period.
std::optional<double> computedLength(const PeriodLengths& lengths, std::int64_t start,
                                     std::string_view unit);

/// Adds a length that a period file states, under the period's text and, when that is a date, its
/// time. Of several for the same period and unit the first one stays; another unit adds nothing.
void addStatedLength(PeriodLengths& lengths, std::string_view period, std::string_view unit,
                     double length);
void clearStatedLengths(PeriodLengths& lengths);
/// The length that the period file states for a period of this text; nothing when it does not.
std::optional<double> statedLength(const PeriodLengths& lengths, std::string_view period,
                                   std::string_view unit);
/// The length that the period file states for the period that starts at a time; nothing when it
/// names no period by that date.
std::optional<double> statedLengthFrom(const PeriodLengths& lengths, std::int64_t start,
                                       std::string_view unit);

}  // namespace vrel
