#include "model/grid_statistics.h"

#include <algorithm>
#include <cmath>

namespace vrel {
namespace {

bool showsSomething(const FieldDef& field, Cell cell) {
  switch (field.type) {
    case FieldType::String:
      return !isEmptyText(stringText(field, cell));
    case FieldType::Period:
      return !periodName(field, cell).empty();
    case FieldType::Unset:
      return false;
    default:
      return true;
  }
}

// Compensated summation: the smaller addend's lost digits are kept apart.
void addToSum(CellTally& tally, double number) {
  const double sum = tally.sum + number;
  const bool sumIsLarger = std::abs(tally.sum) >= std::abs(number);
  tally.lost += sumIsLarger ? (tally.sum - sum) + number : (number - sum) + tally.sum;
  tally.sum = sum;
}

void addNumber(CellTally& tally, double number) {
  addToSum(tally, number);
  tally.minimum = tally.numbers == 0 ? number : std::min(tally.minimum, number);
  tally.maximum = tally.numbers == 0 ? number : std::max(tally.maximum, number);
  ++tally.numbers;
}

void addValue(CellTally& tally, const FieldDef& field, Cell cell) {
  if (!showsSomething(field, cell)) {
    return;
  }
  ++tally.cells;
  if (field.hasNumbers() && !isUndefined(cell) && cell.number != kErrorValue) {
    addNumber(tally, cell.number);
  }
}

bool showsLabel(const ReportGrid& grid, std::size_t row, std::size_t column) {
  if (const std::optional<CellRef> label = labelAt(grid, row, column)) {
    return showsSomething(grid.table->field(label->field),
                          grid.table->cell(label->tuple, label->field));
  }
  // A name, or nothing: no setting matters.
  return !cellText(grid, FormatSettings(), row, column).empty();
}

void countLabels(GridStatistics& statistics, const ReportGrid& grid, std::size_t row) {
  const GridArea& area = statistics.area;
  const std::size_t end = std::min(area.endColumn(), grid.labelColumns);
  if (area.firstColumn >= end) {
    return;
  }
  const bool isPlain = rowLineAt(grid, row).kind == LineKind::Group;
  std::uint64_t& count = isPlain ? statistics.plainLabels : statistics.summaryLabels;
  for (std::size_t column = area.firstColumn; column < end; ++column) {
    count += showsLabel(grid, row, column) ? 1 : 0;
  }
}

void countData(GridStatistics& statistics, const ReportGrid& grid, std::size_t row) {
  findRowCells(grid, row, {statistics.area.firstColumn, statistics.area.endColumn()},
               statistics.rowCells);
  for (const RowCell& cell : statistics.rowCells) {
    if (cell.tuple == RowCell::kSummary) {
      ++statistics.summaries.cells;
      addNumber(statistics.summaries, cell.number);
    } else {
      const int field = grid.dataFields[cell.data];
      addValue(statistics.plain, grid.table->field(field), grid.table->cell(cell.tuple, field));
    }
  }
}

// The sum with what rounding took. Beyond the largest number there is nothing left to mend.
double mendedSum(const CellTally& tally) {
  return std::isfinite(tally.sum) ? tally.sum + tally.lost : tally.sum;
}

}  // namespace

GridStatistics startStatistics(const ReportGrid& grid, const GridArea& area) {
  GridStatistics statistics;
  statistics.area.firstRow = std::min(area.firstRow, grid.rows);
  statistics.area.firstColumn = std::min(area.firstColumn, grid.columns);
  statistics.area.rows = std::min(area.rows, grid.rows - statistics.area.firstRow);
  statistics.area.columns = std::min(area.columns, grid.columns - statistics.area.firstColumn);
  statistics.nextRow = statistics.area.firstRow;
  return statistics;
}

void advance(GridStatistics& statistics, const ReportGrid& grid, std::size_t rowsAtMost) {
  const std::size_t rowsLeft = statistics.area.endRow() - statistics.nextRow;
  const std::size_t end = statistics.nextRow + std::min(rowsAtMost, rowsLeft);
  for (std::size_t& row = statistics.nextRow; row < end; ++row) {
    countLabels(statistics, grid, row);
    countData(statistics, grid, row);
  }
}

StatisticsResult resultOf(const GridStatistics& statistics) {
  const bool onlySummaries = statistics.plain.cells == 0;
  const CellTally& data = onlySummaries ? statistics.summaries : statistics.plain;
  StatisticsResult result;
  result.cells =
      data.cells + statistics.plainLabels + (onlySummaries ? statistics.summaryLabels : 0);
  result.numbers = data.numbers;
  if (data.numbers > 0) {
    result.sum = mendedSum(data);
    result.average = result.sum / static_cast<double>(data.numbers);
    result.minimum = data.minimum;
    result.maximum = data.maximum;
  }
  return result;
}

}  // namespace vrel
