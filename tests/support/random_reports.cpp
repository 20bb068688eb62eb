#include "support/random_reports.h"

#include <algorithm>
#include <array>

#include "model/report_layout.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel::test {
namespace {

constexpr std::size_t kKeys = 3;
constexpr std::size_t kFields = 8;
constexpr int kQty = 3;
constexpr int kCost = 4;
constexpr int kRate = 5;

Table randomTable(std::mt19937& random) {
  constexpr std::array<std::string_view, 5> kNames = {"Bolt", "nut", "Écrou", "\"\"", "Washer"};
  constexpr std::array<std::string_view, 4> kNotes = {"\"\"", "late", "LATE", "12"};
  const std::size_t density = 1 + randomBelow(random, 4);
  std::vector<std::string> lines;
  for (const std::string_view item : kNames) {
    for (const std::string_view place : {"North", "south", "East"}) {
      for (const std::string_view week : {"W1", "W2", "W3"}) {
        if (randomBelow(random, 4) < density) {
          lines.push_back(std::string(item) + " " + std::string(place) + " " + std::string(week) +
                          " " + std::to_string(randomBelow(random, 2000)) + " " +
                          std::to_string(randomBelow(random, 90)) + ".25 -0.5 " +
                          std::string(kNotes[randomBelow(random, kNotes.size())]) + " Yes");
        }
      }
    }
  }
  Table table = tableOf(
      "Item:String Place:String Week:Period Qty:Number Cost:Number Rate:Number Note:String "
      "Active:Boolean",
      "W1 W2 W3", lines);
  table.field(kRate).type = FieldType::Expression;
  const std::array<Cell, 3> odd = {undefinedCell(), numberCell(kErrorValue),
                                   numberCell(kUnbounded)};
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    const int field = static_cast<int>(kQty + randomBelow(random, 3));
    if (randomBelow(random, 4) == 0) {
      table.cell(tuple, field) = odd[randomBelow(random, odd.size())];
    }
  }
  return table;
}

BreakDefinition randomBreak(std::mt19937& random, int field) {
  BreakDefinition definition = breakOf(field, static_cast<int>(randomBelow(random, 3)),
                                       {{kQty, BreakOperation::Sum},
                                        {kCost, BreakOperation::Minimum},
                                        {kRate, BreakOperation::Last}});
  definition.breakAfter = randomBelow(random, 2) == 0;
  return definition;
}

ReportView randomView(std::mt19937& random, Table& table) {
  ReportView view;
  view.table = &table;
  std::array<int, kKeys> keys = {0, 1, 2};
  std::shuffle(keys.begin(), keys.end(), random);
  for (const int key : keys) {
    view.axis(randomBelow(random, 2) == 0 ? Axis::X : Axis::Y).push_back(key);
  }
  for (int field = kKeys; field < static_cast<int>(kFields); ++field) {
    if (randomBelow(random, 2) == 0) {
      view.axis(Axis::Data).push_back(field);
    }
  }
  if (view.axis(Axis::Data).empty()) {
    view.axis(Axis::Data).push_back(kQty);
  }
  view.dataInColumns = randomBelow(random, 2) == 0;
  view.repeatLabels = randomBelow(random, 2) == 0;
  for (const int key : keys) {
    view.breaks.push_back(randomBreak(random, key));
  }
  return view;
}

}  // namespace

RandomReport::RandomReport(std::mt19937& random)
    : table(randomTable(random)), view(randomView(random, table)), grid(layOut(view)) {}

std::size_t randomBelow(std::mt19937& random, std::size_t end) {
  return random() % end;
}

GridArea randomAreaIn(std::mt19937& random, const GridArea& area) {
  GridArea part;
  part.firstRow = area.firstRow + randomBelow(random, area.rows);
  part.firstColumn = area.firstColumn + randomBelow(random, area.columns);
  part.rows = 1 + randomBelow(random, area.endRow() - part.firstRow);
  part.columns = 1 + randomBelow(random, area.endColumn() - part.firstColumn);
  return part;
}

}  // namespace vrel::test
