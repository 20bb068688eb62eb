// The filled cells of one grid row, for writers that pass over a whole report: empty stretches cost
// nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/report_grid.h"

namespace vrel {

/// A data cell that shows something.
struct RowCell {
  static constexpr std::uint32_t kSummary = 0xffffffff;

  /// Grid column, label columns included.
  std::size_t column;
  /// Its place among the report's data fields.
  std::size_t data;
  /// The tuple whose value it shows; `kSummary` when it shows `number`.
  std::uint32_t tuple;
  double number;
};

/// Grid columns from `first` up to, but not including, `end`.
struct ColumnRange {
  std::size_t first;
  std::size_t end;
};

/// Puts the filled cells of a row into `cells`, in the order of their columns. What `cells` held
/// before is dropped; its memory is used again.
void findRowCells(const ReportGrid& grid, std::size_t row, std::vector<RowCell>& cells);

/// The same for those cells that stand in a range of columns; label columns in it have none.
void findRowCells(const ReportGrid& grid, std::size_t row, ColumnRange columns,
                  std::vector<RowCell>& cells);

}  // namespace vrel
