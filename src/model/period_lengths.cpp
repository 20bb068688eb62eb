#include "model/period_lengths.h"

#include <array>

namespace vrel {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kDaysPerWeek = 7;
constexpr double kWeeksPerMonth = 4.3;

struct Unit {
  std::string_view name;
  double PeriodLength::*length;
};

constexpr std::array<Unit, 3> kUnits = {{
    {"days", &PeriodLength::days},
    {"weeks", &PeriodLength::weeks},
    {"months", &PeriodLength::months},
}};

}  // namespace

PeriodLength periodLengthFromSeconds(std::int64_t seconds) {
  PeriodLength length;
  length.days = static_cast<double>(seconds) / kSecondsPerDay;
  length.weeks = length.days / kDaysPerWeek;
  length.months = length.weeks / kWeeksPerMonth;
  return length;
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
  if (found == lengths.computed.end()) {
    return std::nullopt;
  }
  for (const Unit& known : kUnits) {
    if (known.name == unit) {
      return found->second.*known.length;
    }
  }
  return std::nullopt;
}

}  // namespace vrel
