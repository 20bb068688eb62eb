// One pass over all texts of a page, for writers that must know how wide the columns are before
// they write the first line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/task_progress.h"
#include "base/words.h"
#include "model/cell_texts.h"

namespace vrel {

/// Shows the lines of all headings and all labels to the measurer's `add(column, text)` and all
/// filled cells to its `addCell(texts, cell)`. The progress is that of one part of the task.
/// Returns how many lines the highest heading has; nothing when cancelled.
template <typename Measurer>
std::optional<std::size_t> measureTexts(const ReportGrid& grid, const FormatSettings& settings,
                                        TaskProgress& progress, std::size_t part,
                                        Measurer& measurer) {
  std::size_t headingLines = 0;
  for (std::size_t column = 0; column < grid.columns; ++column) {
    const std::string heading = columnHeading(grid, settings, column);
    const std::vector<std::string_view> lines = linesOf(heading);
    for (const std::string_view line : lines) {
      measurer.add(column, line);
    }
    headingLines = std::max(headingLines, lines.size());
  }
  CellTexts texts(grid, settings);
  std::vector<RowCell> cells;
  for (std::size_t row = 0; row < grid.rows; ++row) {
    if (!progress.at(part, row, grid.rows)) {
      return std::nullopt;
    }
    for (std::size_t column = 0; column < grid.labelColumns; ++column) {
      measurer.add(column, texts.label(row, column));
    }
    findRowCells(grid, row, cells);
    for (const RowCell& cell : cells) {
      measurer.addCell(texts, cell);
    }
  }
  return headingLines;
}

}  // namespace vrel
