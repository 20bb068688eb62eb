#include "model/row_cells.h"

#include <algorithm>

namespace vrel {
namespace {

// Finds the cells of one row that stand in a range of columns, in pieces: those of the column
// groups and those of each break on the columns.
class RowCellFinder {
 public:
  RowCellFinder(const ReportGrid& grid, std::size_t row, ColumnRange columns,
                std::vector<RowCell>& cells)
      : grid_(grid), line_(rowLineAt(grid, row)), columns_(columns), cells_(cells) {}

  void find() {
    if (line_.kind == LineKind::Group) {
      addEntries();
      for (std::size_t i = 0; i < grid_.columnLines.breaks.size(); ++i) {
        addAcross(grid_.summaries.columns[i], line_.index, i);
      }
    } else if (line_.kind == LineKind::Summary) {
      addSummary(grid_.rowLines.summaries[line_.index]);
    }
    if (grid_.columnLines.summaries.empty()) {
      // Entries stand in the order of their columns.
      return;
    }
    const auto byColumn = [](const RowCell& a, const RowCell& b) { return a.column < b.column; };
    if (!std::is_sorted(cells_.begin(), cells_.end(), byColumn)) {
      std::sort(cells_.begin(), cells_.end(), byColumn);
    }
  }

 private:
  std::size_t columnOf(std::uint32_t group) const {
    const AxisLines& lines = grid_.columnLines;
    return grid_.labelColumns +
           (lines.summaries.empty() ? group * lines.linesPerGroup : firstLineOf(lines, group));
  }

  // The data field of a group's column that is `within` its first; the row has one field of its
  // own when data run down the rows.
  std::size_t dataAt(std::size_t within) const {
    return grid_.dataInColumns ? within : dataFieldOf(grid_.rowLines, line_);
  }

  void add(const RowCell& cell) {
    if (cell.column >= columns_.first && cell.column < columns_.end) {
      cells_.push_back(cell);
    }
  }

  // The first entry of the row with a column in the range, or one behind it.
  const GridEntry* firstEntry(const GridEntry* begin, const GridEntry* end) const {
    if (columns_.first <= grid_.labelColumns) {
      return begin;
    }
    const std::size_t width = grid_.columnsPerGroup();
    return std::partition_point(begin, end, [this, width](const GridEntry& entry) {
      return columnOf(entry.columnGroup) + width <= columns_.first;
    });
  }

  void addEntries() {
    const std::size_t width = grid_.columnsPerGroup();
    const GridEntry* const end = grid_.entries.data() + grid_.rowStart[line_.index + 1];
    const GridEntry* entry = firstEntry(grid_.entries.data() + grid_.rowStart[line_.index], end);
    for (; entry != end; ++entry) {
      const std::size_t column = columnOf(entry->columnGroup);
      if (column >= columns_.end) {
        return;
      }
      for (std::size_t within = 0; within < width; ++within) {
        add({column + within, dataAt(within), entry->tuple, 0});
      }
    }
  }

  void addSummary(const SummaryPlace& summary) {
    const SummaryNumbers& own = grid_.summaries.rows[summary.breakIndex];
    if (own.width == 0) {
      return;
    }
    const std::size_t width = grid_.columnsPerGroup();
    for (std::size_t i = own.start[summary.turn]; i < own.start[summary.turn + 1]; ++i) {
      const std::size_t column = columnOf(own.keys[i]);
      for (std::size_t within = 0; within < width; ++within) {
        addNumber(own, i, dataAt(within), column + within);
      }
    }
    const std::size_t across = grid_.columnLines.breaks.size();
    for (std::size_t i = 0; i < across; ++i) {
      addAcross(grid_.summaries.crossings[summary.breakIndex * across + i], summary.turn, i);
    }
  }

  // The cells of one break on the columns, for a range of rows.
  void addAcross(const SummaryNumbers& numbers, std::size_t range, std::size_t breakIndex) {
    const AxisBreak& one = grid_.columnLines.breaks[breakIndex];
    if (numbers.width == 0) {
      return;
    }
    for (std::size_t i = numbers.start[range]; i < numbers.start[range + 1]; ++i) {
      const std::size_t column = grid_.labelColumns + one.firstLines[numbers.keys[i]];
      for (std::size_t within = 0; within < one.lines; ++within) {
        const std::size_t data = grid_.dataInColumns ? one.computed[within] : dataAt(0);
        addNumber(numbers, i, data, column + within);
      }
    }
  }

  void addNumber(const SummaryNumbers& numbers, std::size_t position, std::size_t data,
                 std::size_t column) {
    if (numbers.placeOf[data] != SummaryNumbers::kNoNumber) {
      add({column, data, RowCell::kSummary, numbers.numberAt(position, data)});
    }
  }

  const ReportGrid& grid_;
  const GridLine line_;
  const ColumnRange columns_;
  std::vector<RowCell>& cells_;
};

}  // namespace

void findRowCells(const ReportGrid& grid, std::size_t row, std::vector<RowCell>& cells) {
  findRowCells(grid, row, {0, grid.columns}, cells);
}

void findRowCells(const ReportGrid& grid, std::size_t row, ColumnRange columns,
                  std::vector<RowCell>& cells) {
  cells.clear();
  RowCellFinder(grid, row, columns, cells).find();
}

}  // namespace vrel
