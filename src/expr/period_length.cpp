#include "expr/period_length.h"

#include <array>
#include <cstdint>
#include <optional>

#include "base/platform.h"

namespace vrel {
namespace {

constexpr std::array<TimeUnit, 4> kTimeUnits = {{
    {"days", 20, 86400},
    {"hours", 20, 3600},
    {"weeks", 4, 604800},
    {"months", 1, 2.4192e6},
}};

constexpr char kHours = 'h';
constexpr char kMonths = 'm';
constexpr double kMonthsPerYear = 12;

bool hasDates(const Table& table) {
  return table.dateColumn >= 0 && table.field(table.dateColumn).type == FieldType::Date;
}

// Calendar months between two dates that lie on the same day of their months.
std::optional<double> wholeMonths(std::int64_t from, std::int64_t to) {
  const std::tm first = platform::localTime(from);
  const std::tm second = platform::localTime(to);
  if (first.tm_mday != second.tm_mday) {
    return std::nullopt;
  }
  return (second.tm_year - first.tm_year) * kMonthsPerYear + second.tm_mon - first.tm_mon;
}

double lengthBetween(std::int64_t from, std::int64_t to, const TimeUnit& unit) {
  if (unit.name.front() == kMonths) {
    if (const std::optional<double> months = wholeMonths(from, to)) {
      return *months;
    }
  }
  return static_cast<double>(to - from) / unit.seconds;
}

double datedLength(const Table& table, std::size_t tuple, const TimeUnit& unit) {
  const std::int64_t date = table.cell(tuple, table.dateColumn).time;
  if (const auto stated = statedLengthFrom(table.periodLengths, date, unit.name)) {
    return *stated;
  }
  if (tuple == 0) {
    return unit.usual;
  }
  const std::int64_t before = table.cell(tuple - 1, table.dateColumn).time;
  return date > before ? lengthBetween(before, date, unit) : unit.usual;
}

}  // namespace

const TimeUnit* findTimeUnit(const Table& table, std::string_view word) {
  for (const TimeUnit& unit : kTimeUnits) {
    if (word.starts_with(unit.name.front())) {
      return unit.name.front() == kHours && !hasDates(table) ? nullptr : &unit;
    }
  }
  return nullptr;
}

double periodLength(FormulaContext& context, std::size_t tuple, const TimeUnit& unit) {
  const Table& table = context.table;
  if (hasDates(table)) {
    return datedLength(table, tuple, unit);
  }
  const FieldDef& period = table.field(table.dateColumn);
  if (period.type != FieldType::String) {
    return unit.usual;
  }
  const std::string_view name = stringText(period, table.cell(tuple, table.dateColumn));
  return statedLength(table.periodLengths, name, unit.name).value_or(unit.usual);
}

}  // namespace vrel
