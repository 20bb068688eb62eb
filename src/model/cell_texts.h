// The shown texts of many cells of a report: what does not change from cell to cell is settled
// once.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/format_settings.h"
#include "model/report_grid.h"
#include "model/row_cells.h"
#include "model/value_writer.h"

namespace vrel {

/// The texts are those of `cellText`. Texts handed out are valid until the next call. The grid
/// outlives the object; later changes of the settings do not count.
class CellTexts {
 public:
  CellTexts(const ReportGrid& grid, const FormatSettings& settings);

  std::string_view label(std::size_t row, std::size_t column);
  std::string_view text(const RowCell& cell);
  /// The number whose text a cell shows; nothing for cells that show a word, a text or a date.
  std::optional<double> number(const RowCell& cell) const {
    if (cell.tuple == RowCell::kSummary) {
      return cell.number;
    }
    const Cell value = grid_.table->cell(cell.tuple, grid_.dataFields[cell.data]);
    return data_[cell.data].isPlainNumber(value) ? std::optional(value.number) : std::nullopt;
  }

 private:
  const ReportGrid& grid_;
  FormatSettings settings_;
  std::vector<ValueWriter> labels_;
  std::vector<ValueWriter> data_;
  std::string scratch_;
  std::array<char, kMaxNumberLength> number_;
};

}  // namespace vrel
