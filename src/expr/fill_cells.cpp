#include "expr/fill_cells.h"

#include <fmt/format.h>

#include <string>
#include <utility>

#include "base/words.h"
#include "expr/cell_edit.h"
#include "model/edit_text.h"

namespace vrel {
namespace {

constexpr const char* kOutside = translatable("vrel", "Invalid Row or Column to fill.");
constexpr const char* kNoCell = translatable("vrel", "Invalid Row or Column.");
constexpr const char* kReadOnly =
    translatable("vrel", "Cannot perform change - field is read-only.");
constexpr const char* kFilling = translatable("vrel", "Filling cells...");

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

bool isWithin(const ReportGrid& grid, const FillRequest& request) {
  return request.row >= 1 && std::cmp_less_equal(request.row, grid.rows) && request.column >= 1 &&
         std::cmp_less_equal(request.column, grid.columns - grid.labelColumns);
}

// The request's place in the grid.
GridPlace placeIn(const ReportGrid& grid, const FillRequest& request) {
  return {.row = static_cast<std::size_t>(request.row) - 1,
          .column = grid.labelColumns + static_cast<std::size_t>(request.column) - 1};
}

bool mayBeEdited(const ReportGrid& grid, CellRef cell) {
  return grid.table->field(cell.field).classification == Classification::DataReadWrite;
}

// What keeps the request from being met; empty when nothing does.
std::string_view obstacle(const ReportGrid& grid, const FillRequest& request) {
  if (!isWithin(grid, request)) {
    return kOutside;
  }
  const GridPlace place = placeIn(grid, request);
  const std::optional<CellRef> cell = cellAt(grid, place.row, place.column);
  if (!cell) {
    return kNoCell;
  }
  return mayBeEdited(grid, *cell) ? std::string_view() : kReadOnly;
}

// Sets a cell; false when the text is no value of its field. That an empty text would count as 0 is
// hardly what anybody means who fills many cells.
bool fillCell(Evaluator& evaluator, CellRef cell, std::string_view text) {
  const FieldDef& field = evaluator.context().table.field(cell.field);
  if (field.type != FieldType::String && trimBlanks(text).empty()) {
    return false;
  }
  return setCell(evaluator, cell.tuple, cell.field, typedText(field, text)).accepted();
}

// What was filled when the user stops it stays.
FillOutcome fillBlock(const Block& block, const ReportGrid& grid, std::string_view text,
                      Evaluator& evaluator) {
  Notice& notice = evaluator.context().notice;
  const std::string task = notice.translate(kFilling);
  const std::size_t rows = block.lastRow - block.firstRow;
  FillOutcome outcome;
  for (std::size_t row = block.firstRow; row < block.lastRow; ++row) {
    if (!notice.progress(task, row - block.firstRow, rows)) {
      return outcome;
    }
    for (std::size_t column = block.firstColumn; column < block.lastColumn; ++column) {
      const std::optional<CellRef> cell = cellAt(grid, row, column);
      if (cell && mayBeEdited(grid, *cell)) {
        ++(fillCell(evaluator, *cell, text) ? outcome.filled : outcome.refused);
      }
    }
  }
  notice.progress(task, rows, rows);
  return outcome;
}

}  // namespace

std::optional<FillOutcome> fillCells(const FillRequest& request, ReportEditor& editor,
                                     const ReportGrid& grid) {
  Notice& notice = *editor.notice;
  const auto fixedColumns = static_cast<int>(grid.labelColumns);
  editor.host.debug(
      fmt::format("rows = {}, row = {}, columns = {}, column = {}, fixed_columns = {}", grid.rows,
                  request.row - 1, grid.columns, request.column - 1 + fixedColumns, fixedColumns));
  if (const std::string_view reason = obstacle(grid, request); !reason.empty()) {
    notice.critical(editorTitle(notice), notice.translate(reason));
    return std::nullopt;
  }
  const GridPlace place = placeIn(grid, request);
  const Block block = blockOf(grid, request.area, place.row, place.column);
  FillOutcome outcome;
  const TableEdit edit = editTable(editor, [&](Evaluator& evaluator) {
    outcome = fillBlock(block, grid, request.text, evaluator);
  });
  outcome.messageLost = edit.messageLost;
  return outcome;
}

}  // namespace vrel
