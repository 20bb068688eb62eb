#include "expr/fill_cells.h"

#include <fmt/format.h>

#include <string>
#include <utility>

#include "expr/cell_edit.h"

namespace vrel {
namespace {

constexpr std::string_view kOutside = "Invalid Row or Column to fill.";
constexpr std::string_view kNoCell = "Invalid Row or Column.";
constexpr std::string_view kReadOnly = "Cannot perform change - field is read-only.";
constexpr std::string_view kFilling = "Filling cells...";

// The rows and columns of an area of the grid: from the first up to, not including, the last.
struct Block {
  std::size_t firstRow;
  std::size_t lastRow;
  std::size_t firstColumn;
  std::size_t lastColumn;
};

Block blockOf(const ReportGrid& grid, FillArea area, std::size_t row, std::size_t column) {
  Block block = {row, row + 1, column, column + 1};
  if (area != FillArea::Row) {
    block.firstRow = 0;
    block.lastRow = grid.rows;
  }
  if (area != FillArea::Column) {
    block.firstColumn = grid.labelColumns;
    block.lastColumn = grid.columns;
  }
  return block;
}

// What keeps the request from being met; empty when nothing does.
std::string_view obstacle(const ReportGrid& grid, const FillRequest& request) {
  if (request.row < 1 || std::cmp_greater(request.row, grid.rows) || request.column < 1 ||
      std::cmp_greater(request.column, grid.columns - grid.labelColumns)) {
    return kOutside;
  }
  const std::optional<CellRef> cell =
      cellAt(grid, static_cast<std::size_t>(request.row) - 1,
             grid.labelColumns + static_cast<std::size_t>(request.column) - 1);
  if (!cell) {
    return kNoCell;
  }
  const FieldDef& field = grid.table->field(cell->field);
  return field.classification == Classification::DataReadWrite ? std::string_view() : kReadOnly;
}

// Read-only cells refuse the text. What was filled when the user stops it stays.
void fillBlock(const Block& block, const ReportGrid& grid, std::string_view text,
               Evaluator& evaluator) {
  Notice& notice = evaluator.context().notice;
  const std::string task = notice.translate(kFilling);
  const std::size_t rows = block.lastRow - block.firstRow;
  for (std::size_t row = block.firstRow; row < block.lastRow; ++row) {
    if (!notice.progress(task, row - block.firstRow, rows)) {
      return;
    }
    for (std::size_t column = block.firstColumn; column < block.lastColumn; ++column) {
      if (const std::optional<CellRef> cell = cellAt(grid, row, column)) {
        setCell(evaluator, cell->tuple, cell->field, text);
      }
    }
  }
  notice.progress(task, rows, rows);
}

}  // namespace

std::optional<TableEdit> fillCells(const FillRequest& request, ReportEditor& editor,
                                   const ReportGrid& grid) {
  Notice& notice = *editor.notice;
  const auto fixedColumns = static_cast<int>(grid.labelColumns);
  const int row = request.row - 1;
  const int column = request.column - 1 + fixedColumns;
  editor.host.debug(
      fmt::format("rows = {}, row = {}, columns = {}, column = {}, fixed_columns = {}", grid.rows,
                  row, grid.columns, column, fixedColumns));
  if (const std::string_view reason = obstacle(grid, request); !reason.empty()) {
    notice.critical(editorTitle(notice), notice.translate(reason));
    return std::nullopt;
  }
  const Block block =
      blockOf(grid, request.area, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
  const std::string text = withoutSeparators(request.text);
  return editTable(editor, [&](Evaluator& evaluator) { fillBlock(block, grid, text, evaluator); });
}

}  // namespace vrel
