#include "model/period_lengths.h"

#include <algorithm>

#include "model/date.h"

namespace vrel {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kDaysPerWeek = 7;
constexpr double kWeeksPerMonth = 4.3;

struct Unit {
  std::string_view name;
  double PeriodLength::*length;
};

constexpr std::array<Unit, kPeriodUnitCount> kUnits = {{
    {"days", &PeriodLength::days},
    {"weeks", &PeriodLength::weeks},
    {"months", &PeriodLength::months},
}};

// Position of a unit in the table; the table's size for another word.
std::size_t unitIndex(std::string_view name) {
  const auto* const unit = std::find_if(kUnits.begin(), kUnits.end(),
                                        [name](const Unit& known) { return known.name == name; });
  return static_cast<std::size_t>(unit - kUnits.begin());
}

void addUnlessThere(std::optional<double>& stated, double length) {
  if (!stated) {
    stated = length;
  }
}

template <typename Map, typename Key>
std::optional<double> lengthIn(const Map& map, const Key& key, std::string_view unitName) {
  const auto found = map.find(key);
  const std::size_t unit = unitIndex(unitName);
  return found == map.end() || unit == kUnits.size() ? std::nullopt : found->second[unit];
}

}  // namespace

PeriodLength periodLengthFromSeconds(std::int64_t seconds) {
  PeriodLength length;
  length.days = static_cast<double>(seconds) / kSecondsPerDay;
  length.weeks = length.days / kDaysPerWeek;
  length.months = length.weeks / kWeeksPerMonth;
  return length;
}

bool isPeriodUnit(std::string_view unit) {
  return unitIndex(unit) < kUnits.size();
}

void addComputedLength(PeriodLengths& lengths, std::int64_t start, std::int64_t seconds) {
  lengths.computed.try_emplace(start, periodLengthFromSeconds(seconds));
}

void clearComputedLengths(PeriodLengths& lengths) {
  lengths.computed.clear();
}

std::optional<double> computedLength(const PeriodLengths& lengths, std::int64_t start,
                                     std::string_view unit) {
  const auto found = lengths.computed.find(start);
  const std::size_t index = unitIndex(unit);
  if (found == lengths.computed.end() || index == kUnits.size()) {
    return std::nullopt;
  }
  return found->second.*kUnits[index].length;
}

void addStatedLength(PeriodLengths& lengths, std::string_view period, std::string_view unitName,
                     double length) {
  const std::size_t unit = unitIndex(unitName);
  if (unit == kUnits.size()) {
    return;
  }
  addUnlessThere(lengths.statedByText[std::string(period)][unit], length);
  const ParsedDate date = parseDate(period);
  if (date.accepted) {
    addUnlessThere(lengths.statedByStart[date.seconds][unit], length);
  }
}

void clearStatedLengths(PeriodLengths& lengths) {
  lengths.statedByText.clear();
  lengths.statedByStart.clear();
}

std::optional<double> statedLength(const PeriodLengths& lengths, std::string_view period,
                                   std::string_view unit) {
  return lengthIn(lengths.statedByText, period, unit);
}

std::optional<double> statedLengthFrom(const PeriodLengths& lengths, std::int64_t start,
                                       std::string_view unit) {
  return lengthIn(lengths.statedByStart, start, unit);
}

}  // namespace vrel
