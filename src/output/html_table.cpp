#include "output/html_table.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "model/cell_texts.h"
#include "model/row_cells.h"
#include "output/html_form.h"
#include "output/html_headings.h"

namespace vrel {
namespace {

constexpr std::string_view kEmptyText = "&nbsp;";
constexpr std::string_view kCellBegin = "<td>";
constexpr std::string_view kCellEnd = "</td>\n";
constexpr std::string_view kEmptyCell = "<td>&nbsp;</td>\n";
/// Empty cells written at once.
constexpr std::size_t kEmptyRun = TextOutput::kMaxReserve / kEmptyCell.size();

std::string emptyCells() {
  std::string cells;
  for (std::size_t i = 0; i < kEmptyRun; ++i) {
    cells += kEmptyCell;
  }
  return cells;
}

class BodyWriter {
 public:
  /// `form` may be null.
  BodyWriter(const ReportGrid& grid, const FormatSettings& settings, EditForm* form, TextPen& pen)
      : grid_(grid),
        settings_(settings),
        form_(form),
        pen_(pen),
        texts_(grid, settings),
        emptyCells_(emptyCells()),
        labelEnds_(grid.labelColumns, 0) {}

  void writeRow(std::size_t row) {
    pen_.write("<tr align=right>\n");
    for (std::size_t column = 0; column < grid_.labelColumns; ++column) {
      if (row == labelEnds_[column]) {
        writeLabel(row, column);
      }
    }
    std::size_t column = grid_.labelColumns;
    findRowCells(grid_, row, cells_);
    for (const RowCell& cell : cells_) {
      writeEmptyCells(cell.column - column);
      writeCell(cell);
      column = cell.column + 1;
    }
    writeEmptyCells(grid_.columns - column);
    pen_.write("</tr>\n");
  }

 private:
  /// A label spans the rows below that have none. So does an empty cell at the top of a column,
  /// which no label above could span.
  void writeLabel(std::size_t row, std::size_t column) {
    std::size_t end = row + 1;
    while (end < grid_.rows && texts_.label(end, column).empty()) {
      ++end;
    }
    labelEnds_[column] = end;
    pen_.write("<th valign=top");
    if (end - row > 1) {
      const fmt::format_int rows(end - row);
      pen_.write(" rowspan=");
      pen_.write({rows.data(), rows.size()});
    }
    pen_.put('>');
    pen_.write(texts_.label(row, column));
    pen_.write("</th>\n");
  }

  void writeEmptyCells(std::size_t count) {
    for (; count > kEmptyRun; count -= kEmptyRun) {
      pen_.write(emptyCells_);
    }
    pen_.write(std::string_view(emptyCells_).substr(0, count * kEmptyCell.size()));
  }

  void writeCell(const RowCell& cell) {
    const bool isInput = form_ != nullptr && form_->takesInput(cell);
    const std::optional<double> number = texts_.number(cell);
    if (number && !isInput) {
      writeNumber(*number);
      return;
    }
    pen_.write(kCellBegin);
    const std::string_view text = texts_.text(cell);
    if (text.empty()) {
      pen_.write(kEmptyText);
    } else if (isInput) {
      form_->writeInput(pen_, cell, text);
    } else {
      pen_.write(text);
    }
    pen_.write(kCellEnd);
  }

  /// The bulk of most reports, in one stretch of the stream.
  void writeNumber(double number) {
    char* to = pen_.room(kCellBegin.size() + kMaxNumberLength + kCellEnd.size());
    to = std::copy(kCellBegin.begin(), kCellBegin.end(), to);
    to = formatNumber(to, number, settings_);
    pen_.advance(std::copy(kCellEnd.begin(), kCellEnd.end(), to));
  }

  const ReportGrid& grid_;
  const FormatSettings& settings_;
  EditForm* const form_;
  TextPen& pen_;
  CellTexts texts_;
  const std::string emptyCells_;
  /// By label column: the first row below the label written last.
  std::vector<std::size_t> labelEnds_;
  /// The present row's.
  std::vector<RowCell> cells_;
};

}  // namespace

bool writeHtmlTable(const HtmlTable& table, TextPen& pen, TaskProgress& progress,
                    std::size_t part) {
  const ReportGrid& grid = table.grid;
  std::optional<EditForm> form;
  if (hasEditForm(*grid.table)) {
    form.emplace(grid, table.settings);
    if (!form->measure(progress, part)) {
      return false;
    }
    form->writeBegin(pen, table.title);
  }
  pen.write(table.border ? "<table border>\n" : "<table>\n");
  if (!table.caption.empty()) {
    pen.write("<caption align=top>\n");
    pen.write(table.caption);
    pen.write("\n</caption>\n");
  }
  writeHtmlHeadings(grid, table.settings, pen);
  BodyWriter body(grid, table.settings, form ? &*form : nullptr, pen);
  const std::size_t measured = form ? grid.rows : 0;
  for (std::size_t row = 0; row < grid.rows; ++row) {
    if (!progress.at(part, measured + row, measured + grid.rows)) {
      return false;
    }
    body.writeRow(row);
  }
  pen.write("</table>\n");
  if (form) {
    EditForm::writeEnd(pen);
  }
  return true;
}

}  // namespace vrel
