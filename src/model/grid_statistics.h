// Count, sum, average, smallest and largest number of a block of cells.
//
// They are computed in slices of rows, so that a window can spread the work over idle moments;
// empty stretches of the report cost next to nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/grid_area.h"
#include "model/report_grid.h"
#include "model/row_cells.h"

namespace vrel {

/// What cells of one kind come to.
struct CellTally {
  /// Cells that show something.
  std::uint64_t cells = 0;
  /// Those of them that show a number: undefined values and failed formulas are none.
  std::uint64_t numbers = 0;
  double sum = 0;
  /// What rounding has taken from the sum so far.
  double lost = 0;
  double minimum = 0;
  double maximum = 0;
};

/// Statistics under way.
struct GridStatistics {
  GridArea area;
  /// The rows before it are counted.
  std::size_t nextRow = 0;
  CellTally plain;
  CellTally summaries;
  /// Labels that show something, those of summary rows apart.
  std::uint64_t plainLabels = 0;
  std::uint64_t summaryLabels = 0;
  /// Memory for one row, used again and again.
  std::vector<RowCell> rowCells;

  bool isComplete() const { return nextRow >= area.endRow(); }
};

/// Begins the statistics of an area; what reaches beyond the grid is cut off.
GridStatistics startStatistics(const ReportGrid& grid, const GridArea& area);

/// Counts up to `rowsAtMost` more rows. The grid and its table must be as they were at the start.
void advance(GridStatistics& statistics, const ReportGrid& grid, std::size_t rowsAtMost);

struct StatisticsResult {
  /// Cells that show something, labels included.
  std::uint64_t cells = 0;
  std::uint64_t numbers = 0;
  /// 0, like the next three, without numbers.
  double sum = 0;
  double average = 0;
  double minimum = 0;
  double maximum = 0;

  bool operator==(const StatisticsResult&) const = default;
};

/// What was counted so far. Summaries count only where no plain data cell shows anything:
/// otherwise a column selected with its totals would count twice.
StatisticsResult resultOf(const GridStatistics& statistics);

}  // namespace vrel
