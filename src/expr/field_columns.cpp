#include "expr/field_columns.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace vrel {
namespace {

// By old column: the new one, or `kNoField`.
std::vector<int> newPlaces(std::size_t oldCount, std::span<const int> source) {
  std::vector<int> places(oldCount, kNoField);
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (source[i] != kNoField) {
      places[static_cast<std::size_t>(source[i])] = static_cast<int>(i);
    }
  }
  return places;
}

int placeOf(const std::vector<int>& places, int field) {
  const auto index = static_cast<std::size_t>(field);
  return field >= 0 && index < places.size() ? places[index] : kNoField;
}

void follow(std::vector<int>& fields, const std::vector<int>& places) {
  for (int& field : fields) {
    field = placeOf(places, field);
  }
  std::erase(fields, kNoField);
}

FieldDef newFormulaField() {
  FieldDef field;
  field.type = FieldType::Expression;
  return field;
}

// The definitions own their columns' texts and must survive the replacement, also a failed one.
bool replaceColumns(Table& table, std::span<const int> source) {
  std::vector<FieldDef> old(table.fieldCount());
  old.swap(table.fields);
  if (!replaceFields(table, std::vector<FieldDef>(source.size()), source)) {
    old.swap(table.fields);
    return false;
  }
  for (std::size_t i = 0; i < source.size(); ++i) {
    table.fields[i] = source[i] == kNoField ? newFormulaField()
                                            : std::move(old[static_cast<std::size_t>(source[i])]);
  }
  return true;
}

// The tuples have not moved. They stand in the same order still where no key has gone; values of
// formulas are about to change.
std::vector<int> keptOrder(const Table& table, std::vector<int> sortedBy,
                           const std::vector<int>& places) {
  const std::size_t keys = sortedBy.size();
  follow(sortedBy, places);
  const bool holds = sortedBy.size() == keys &&
                     std::none_of(sortedBy.begin(), sortedBy.end(),
                                  [&table](int key) { return table.field(key).isExpression(); });
  return holds ? std::move(sortedBy) : std::vector<int>();
}

void followBreak(BreakDefinition& definition, const std::vector<int>& places) {
  definition.fieldIndex = placeOf(places, definition.fieldIndex);
  const std::vector<BreakOperation> old = std::exchange(definition.operations, {});
  for (std::size_t i = 0; i < old.size(); ++i) {
    if (const int place = placeOf(places, static_cast<int>(i)); place != kNoField) {
      setOperation(definition, place, old[i]);
    }
  }
}

// View files may define several breaks for one field, and then none for others.
void completeBreaks(std::vector<BreakDefinition>& breaks, std::size_t fieldCount) {
  std::vector<int> breaksOf(fieldCount, 0);
  for (const BreakDefinition& definition : breaks) {
    ++breaksOf[static_cast<std::size_t>(definition.fieldIndex)];
  }
  for (std::size_t i = breaks.size(); i-- > 0 && breaks.size() > fieldCount;) {
    int& count = breaksOf[static_cast<std::size_t>(breaks[i].fieldIndex)];
    if (count > 1) {
      --count;
      breaks.erase(breaks.begin() + static_cast<std::ptrdiff_t>(i));
    }
  }
  for (std::size_t i = 0; i < fieldCount && breaks.size() < fieldCount; ++i) {
    if (breaksOf[i] == 0) {
      breaks.emplace_back().fieldIndex = static_cast<int>(i);
    }
  }
}

}  // namespace

bool arrangeFields(ReportView& view, std::span<const int> source) {
  Table& table = *view.table;
  const std::vector<int> places = newPlaces(table.fieldCount(), source);
  std::vector<int> sortedBy = table.sortedBy;
  if (!replaceColumns(table, source)) {
    return false;
  }
  table.sortedBy = keptOrder(table, std::move(sortedBy), places);
  follow(table.sortKeys, places);
  follow(table.groupKeys, places);
  if (table.dateColumn >= 0) {
    const int date = placeOf(places, table.dateColumn);
    table.dateColumn = date == kNoField ? -1 : date;
  }
  for (std::vector<int>& axis : view.axes) {
    follow(axis, places);
  }
  for (BreakDefinition& definition : view.breaks) {
    followBreak(definition, places);
  }
  std::erase_if(view.breaks, [](const BreakDefinition& definition) {
    return definition.fieldIndex == kNoField;
  });
  completeBreaks(view.breaks, table.fieldCount());
  return true;
}

}  // namespace vrel
