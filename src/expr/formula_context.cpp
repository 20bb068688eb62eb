#include "expr/formula_context.h"

namespace vrel {
namespace {

bool sameSeries(const Table& table, std::size_t a, std::size_t b) {
  return compareTuples(table, table.tuple(a), table.tuple(b), table.groupKeys) == 0;
}

// The farthest tuple in one direction, at most `most` away, that belongs to the tuple's series: by
// doubling steps, then by halves, so that long series cost little more than short ones.
template <typename At>
std::size_t reach(const Table& table, std::size_t tuple, std::size_t most, At at) {
  std::size_t inside = 0;
  std::size_t step = 1;
  while (inside + step <= most && sameSeries(table, tuple, at(inside + step))) {
    inside += step;
    step *= 2;
  }
  for (; step > 0; step /= 2) {
    if (inside + step <= most && sameSeries(table, tuple, at(inside + step))) {
      inside += step;
    }
  }
  return inside;
}

}  // namespace

Series seriesOf(FormulaContext& context, std::size_t tuple) {
  if (!context.lastSeries || !context.lastSeries->holds(tuple)) {
    const Table& table = context.table;
    const std::size_t before =
        reach(table, tuple, tuple, [tuple](std::size_t distance) { return tuple - distance; });
    const std::size_t after = reach(table, tuple, table.tupleCount - 1 - tuple,
                                    [tuple](std::size_t distance) { return tuple + distance; });
    context.lastSeries = {.first = tuple - before, .last = tuple + after};
  }
  return *context.lastSeries;
}

std::optional<std::size_t> resolveTuple(FormulaContext& context, std::size_t tuple,
                                        const OffsetReference& reference) {
  const Series series = seriesOf(context, tuple);
  const auto length = static_cast<std::int64_t>(series.last - series.first) + 1;
  // Compared before they are added, so that no offset can overflow.
  const auto place = reference.absolute ? 0 : static_cast<std::int64_t>(tuple - series.first);
  const std::int64_t offset = reference.absolute ? reference.offset - 1 : reference.offset;
  if (offset < -place || offset >= length - place) {
    return std::nullopt;
  }
  return series.first + static_cast<std::size_t>(place + offset);
}

void storeCell(FormulaContext& context, CellRef place, Cell stored) {
  Cell& cell = context.table.cell(place.tuple, place.field);
  if (context.changes != nullptr && !context.recalculating) {
    context.changes->push_back({.cell = place, .before = cell, .after = stored});
  }
  if (context.table.field(place.field).isKey() && cell.bits != stored.bits) {
    context.table.sortedBy.clear();
    context.lastSeries.reset();
  }
  cell = stored;
}

void storeNumber(FormulaContext& context, std::size_t tuple, int column, double number) {
  Cell stored = numberCell(number);
  if (context.table.field(column).type == FieldType::Boolean) {
    stored = emptyCell();
    stored.boolean = number != 0;
  }
  storeCell(context, {static_cast<std::uint32_t>(tuple), column}, stored);
}

double numberAt(const FormulaContext& context, std::size_t tuple, FieldPlace place) {
  switch (place.kind) {
    case PlaceKind::Number:
    case PlaceKind::Formula:
      return numberOf(context.table.cell(tuple, place.column));
    case PlaceKind::Boolean:
      return context.table.cell(tuple, place.column).boolean ? 1 : 0;
    case PlaceKind::Scratch:
      return numberOf(context.scratch);
    case PlaceKind::None:
      break;
  }
  return 0;
}

}  // namespace vrel
