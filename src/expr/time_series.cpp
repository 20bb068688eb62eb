#include "expr/time_series.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "expr/formula_context.h"
#include "expr/function_arguments.h"
#include "expr/number_range.h"
#include "expr/period_length.h"

namespace vrel {
namespace {

using Arguments = const FunctionArguments&;

// Where an argument of each meaning stands in a call; -1 where the function has none.
struct Positions {
  int depletor;
  int offset;
  /// The field with the stock or with the time to cover.
  int amount;
  int unit;
  int direction;
  int aggregate;
};

constexpr Positions kDepletion = {0, 1, 2, 3, 4, 5};
constexpr Positions kCover = {1, -1, 2, 0, -1, 3};
/// Without an offset argument the walk begins with the period after the tuple's own.
constexpr double kCoverOffset = 1;

// One walk along a series, ready to start.
struct Walk {
  FormulaContext& context;
  Series series;
  std::size_t tuple;
  FieldPlace depletor;
  const TimeUnit& unit;
  double amount;
  std::int64_t offset;
  std::int64_t step;
  bool average;

  double demand(std::size_t row) const { return numberAt(context, row, depletor); }
  double length(std::size_t row) const { return periodLength(context, row, unit); }
};

// Whether the argument at a position, when the call has it, is of the right kind.
bool isKind(Arguments arguments, int position, bool text) {
  return position < 0 || position >= arguments.count() || arguments.isText(position) == text;
}

bool kindsMatch(Arguments arguments, const Positions& at) {
  return isKind(arguments, at.depletor, true) && isKind(arguments, at.offset, false) &&
         isKind(arguments, at.amount, true) && isKind(arguments, at.unit, true) &&
         isKind(arguments, at.direction, true) && isKind(arguments, at.aggregate, true);
}

// The first letter of an optional word: one of two, the first of which stands for a missing word.
// Nothing for any other letter.
std::optional<char> choice(Arguments arguments, int position, char usual, char other) {
  if (position < 0 || position >= arguments.count()) {
    return usual;
  }
  const std::string_view word = arguments.text(position);
  if (word.starts_with(usual) || word.starts_with(other)) {
    return word.front();
  }
  return std::nullopt;
}

std::optional<Walk> walkOf(Arguments arguments, const Positions& at) {
  FormulaContext* const context = arguments.context();
  if (context == nullptr || context->table.dateColumn < 0 || !kindsMatch(arguments, at)) {
    return std::nullopt;
  }
  const FieldPlace depletor = arguments.place(at.depletor);
  const FieldPlace amount = arguments.place(at.amount);
  const TimeUnit* const unit = findTimeUnit(context->table, arguments.text(at.unit));
  const std::optional<char> direction = choice(arguments, at.direction, 'f', 'b');
  const std::optional<char> aggregate = choice(arguments, at.aggregate, 'l', 'a');
  if (depletor.kind == PlaceKind::None || amount.kind == PlaceKind::None || unit == nullptr ||
      !direction || !aggregate) {
    return std::nullopt;
  }
  const double offset = at.offset < 0 ? kCoverOffset : arguments.number(at.offset);
  return Walk{.context = *context,
              .series = seriesOf(*context, arguments.tuple()),
              .tuple = arguments.tuple(),
              .depletor = depletor,
              .unit = *unit,
              .amount = numberAt(*context, arguments.tuple(), amount),
              .offset = toInt32(offset),
              .step = *direction == 'b' ? -1 : 1,
              .average = *aggregate == 'a'};
}

// A row of the walk as a position from the series' first tuple on.
struct Place {
  std::int64_t row;
  std::int64_t length;

  bool inSeries() const { return row >= 0 && row < length; }
};

// A walk that would begin before the series begins with it.
Place placeAt(const Walk& walk, std::int64_t offset) {
  const auto own = static_cast<std::int64_t>(walk.tuple - walk.series.first);
  const auto length = static_cast<std::int64_t>(walk.series.last - walk.series.first) + 1;
  return {.row = std::max<std::int64_t>(own + offset, 0), .length = length};
}

std::size_t rowOf(const Walk& walk, const Place& place) {
  return walk.series.first + static_cast<std::size_t>(place.row);
}

// What each period beyond the series' end is taken to need.
double demandBeyond(const Walk& walk) {
  if (!walk.average) {
    return walk.demand(walk.step > 0 ? walk.series.last : walk.tuple);
  }
  double sum = 0;
  for (std::size_t row = walk.tuple; row <= walk.series.last; ++row) {
    sum += walk.demand(row);
  }
  for (std::size_t row = walk.tuple; row > walk.series.first; --row) {
    sum += walk.demand(row - 1);
  }
  return sum / static_cast<double>(walk.series.last - walk.series.first + 1);
}

// The length of the periods beyond the series' end: that of the last one before it.
double lengthBeyond(const Walk& walk, Place place) {
  place.row = std::clamp<std::int64_t>(place.row, 0, place.length - 1);
  return walk.length(rowOf(walk, place));
}

double depletionTime(const Walk& walk) {
  double stock = walk.amount;
  if (stock >= kUnbounded) {
    return kUnbounded;
  }
  double total = 0;
  Place place = placeAt(walk, walk.offset);
  for (; place.inSeries(); place.row += walk.step) {
    const std::size_t row = rowOf(walk, place);
    const double demand = walk.demand(row);
    if (stock < demand) {
      return demand == 0 ? total : total + walk.length(row) * stock / demand;
    }
    total += walk.length(row);
    stock -= demand;
  }
  const double demand = demandBeyond(walk);
  return demand <= 0 ? kUnbounded : total + lengthBeyond(walk, place) * stock / demand;
}

// The stock for all of the time, of which `cover` is left behind the series, where every period is
// as long and needs as much.
double stockWithRest(double total, double cover, double length, double demand) {
  const bool endless = cover > 0 && (length == 0 || cover >= kUnbounded);
  if (endless && demand > 0) {
    return kUnbounded;
  }
  return length == 0 ? total : total + cover / length * demand;
}

double stockForCover(const Walk& walk) {
  double cover = walk.amount;
  double total = 0;
  Place place = placeAt(walk, walk.step * walk.offset);
  std::optional<double> entryDemand;
  if (place.row >= place.length && walk.step < 0) {
    // From behind the series the walk comes back into it, by its last period with what is needed
    // beyond.
    entryDemand = demandBeyond(walk);
    place.row = place.length - 1;
  }
  for (; place.inSeries() && entryDemand != 0; place.row += walk.step) {
    const std::size_t row = rowOf(walk, place);
    const double demand = entryDemand ? *entryDemand : walk.demand(row);
    const double length = walk.length(row);
    if (cover <= length) {
      return length == 0 ? total : total + cover / length * demand;
    }
    total += demand;
    cover -= length;
    if (cover == 0) {
      return total;
    }
    entryDemand.reset();
  }
  const double demand = demandBeyond(walk);
  return demand == 0 ? total : stockWithRest(total, cover, lengthBeyond(walk, place), demand);
}

template <const Positions& positions, double (*compute)(const Walk&)>
bool walked(Arguments arguments, double& result) {
  const std::optional<Walk> walk = walkOf(arguments, positions);
  if (!walk) {
    return false;
  }
  result = compute(*walk);
  return true;
}

}  // namespace

void addTimeSeriesFunctions(FunctionRegistry& functions) {
  const std::array records = {
      FunctionRecord{.name = "Cover",
                     .function = walked<kCover, depletionTime>,
                     .minimum = 3,
                     .maximum = 4,
                     .usage = "(#timeUnit, #demand, #storage, [#last/avg])"},
      FunctionRecord{.name = "InvCover",
                     .function = walked<kCover, stockForCover>,
                     .minimum = 3,
                     .maximum = 4,
                     .usage = "(#timeUnit, #demand, #cover, [#last/avg])"},
      FunctionRecord{
          .name = "Depletion",
          .function = walked<kDepletion, depletionTime>,
          .minimum = 4,
          .maximum = 6,
          .usage = "(#depletor, depletorOffset, #depletee, #timeUnit, [#f/b], [#last/avg])"},
      FunctionRecord{
          .name = "InverseDepletion",
          .function = walked<kDepletion, stockForCover>,
          .minimum = 4,
          .maximum = 6,
          .usage = "(#depletor, depletorOffset, #unitOfCover, #timeUnit, [#f/b], [#last/avg])"},
  };
  for (FunctionRecord record : records) {
    // They may read fields of the tuple that are computed after the formula.
    record.varies = true;
    functions.add(record);
  }
}

}  // namespace vrel
