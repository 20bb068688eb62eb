#include "model/grid_search.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/case_folding.h"
#include "model/cell_texts.h"

namespace vrel {
namespace {

// All that numbers are written with.
constexpr std::string_view kNumberBytes = "0123456789.,-*_";
// Cells, an empty row counting as one, between two signs of progress.
constexpr std::size_t kCellsPerSign = 50'000;

// Looks at the cells of one row after the other.
class RowSearcher {
 public:
  RowSearcher(const ReportGrid& grid, const FormatSettings& settings, std::string_view text)
      : grid_(grid), texts_(grid, settings), wanted_(text) {
    foldCase(wanted_);
    mayBeInNumbers_ = wanted_.find_first_not_of(kNumberBytes) == std::string::npos;
  }

  std::optional<std::size_t> first(std::size_t row, ColumnRange columns) {
    for (std::size_t column = columns.first; column < labelEnd(columns); ++column) {
      if (matches(texts_.label(row, column))) {
        return column;
      }
    }
    findRowCells(grid_, row, columns, cells_);
    const auto matchesCell = [this](const RowCell& cell) { return matches(cell); };
    const auto found = std::find_if(cells_.begin(), cells_.end(), matchesCell);
    return found == cells_.end() ? std::nullopt : std::optional(found->column);
  }

  std::optional<std::size_t> last(std::size_t row, ColumnRange columns) {
    findRowCells(grid_, row, columns, cells_);
    const auto matchesCell = [this](const RowCell& cell) { return matches(cell); };
    const auto found = std::find_if(cells_.rbegin(), cells_.rend(), matchesCell);
    if (found != cells_.rend()) {
      return found->column;
    }
    for (std::size_t column = labelEnd(columns); column > columns.first; --column) {
      if (matches(texts_.label(row, column - 1))) {
        return column - 1;
      }
    }
    return std::nullopt;
  }

  // The cells of the row that was looked at last.
  std::size_t cellCount() const { return cells_.size(); }

 private:
  std::size_t labelEnd(ColumnRange columns) const {
    return std::min(columns.end, grid_.labelColumns);
  }

  bool matches(std::string_view text) {
    folded_ = text;
    foldCase(folded_);
    return folded_.find(wanted_) != std::string::npos;
  }

  bool matches(const RowCell& cell) {
    // Making the texts of numbers is what takes the time.
    return (mayBeInNumbers_ || !isPlainNumber(cell)) && matches(texts_.text(cell));
  }

  // Whether the cell shows a number and no word in its place.
  bool isPlainNumber(const RowCell& cell) const {
    if (cell.tuple == RowCell::kSummary) {
      return true;
    }
    const FieldValue value = grid_.table->value(cell.tuple, grid_.dataFields[cell.data]);
    return value.owner->hasNumbers() && std::isfinite(value.cell.number) &&
           value.cell.number != kErrorValue;
  }

  const ReportGrid& grid_;
  CellTexts texts_;
  std::string wanted_;
  bool mayBeInNumbers_;
  std::string folded_;
  std::vector<RowCell> cells_;
};

// Passes on how far a search is, but not for each row.
class ProgressSigns {
 public:
  ProgressSigns(const SearchProgress& progress, std::size_t rows)
      : progress_(progress), rows_(rows) {}

  // False when the search is to stop.
  bool rowDone(std::size_t rowsDone, std::size_t cells) {
    cells_ += cells + 1;
    if (!progress_ || cells_ < kCellsPerSign) {
      return true;
    }
    cells_ = 0;
    return progress_(rowsDone, rows_);
  }

 private:
  const SearchProgress& progress_;
  std::size_t rows_;
  std::size_t cells_ = 0;
};

SearchResult foundAt(GridPlace place, bool wrapped) {
  return {SearchOutcome::Found, place, wrapped};
}

}  // namespace

SearchResult findNext(const ReportGrid& grid, const FormatSettings& settings, std::string_view text,
                      std::optional<GridPlace> from, const SearchProgress& progress) {
  if (text.empty() || grid.rows == 0) {
    return {};
  }
  RowSearcher searcher(grid, settings, text);
  ProgressSigns signs(progress, grid.rows);
  const bool inGrid = from && from->row < grid.rows;
  const std::size_t start = inGrid ? from->row : 0;
  const std::size_t startColumn = inGrid ? std::min(from->column + 1, grid.columns) : 0;
  // The first row is looked at twice: behind the start, and in the end up to it.
  for (std::size_t done = 0; done <= grid.rows; ++done) {
    const std::size_t row = (start + done) % grid.rows;
    const ColumnRange columns{done == 0 ? startColumn : 0,
                              done == grid.rows ? startColumn : grid.columns};
    if (const std::optional<std::size_t> column = searcher.first(row, columns)) {
      return foundAt({row, *column}, start + done >= grid.rows);
    }
    if (!signs.rowDone(done, searcher.cellCount())) {
      return {.outcome = SearchOutcome::Cancelled};
    }
  }
  return {};
}

SearchResult findPrevious(const ReportGrid& grid, const FormatSettings& settings,
                          std::string_view text, std::optional<GridPlace> from,
                          const SearchProgress& progress) {
  if (text.empty() || grid.rows == 0) {
    return {};
  }
  RowSearcher searcher(grid, settings, text);
  ProgressSigns signs(progress, grid.rows);
  const bool inGrid = from && from->row < grid.rows;
  const std::size_t start = inGrid ? from->row : grid.rows - 1;
  const std::size_t startColumn = inGrid ? std::min(from->column, grid.columns) : grid.columns;
  for (std::size_t done = 0; done <= grid.rows; ++done) {
    const std::size_t row = (start + grid.rows - done) % grid.rows;
    const ColumnRange columns{done == grid.rows ? startColumn : 0,
                              done == 0 ? startColumn : grid.columns};
    if (const std::optional<std::size_t> column = searcher.last(row, columns)) {
      return foundAt({row, *column}, done > start);
    }
    if (!signs.rowDone(done, searcher.cellCount())) {
      return {.outcome = SearchOutcome::Cancelled};
    }
  }
  return {};
}

}  // namespace vrel
