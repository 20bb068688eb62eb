// The shown texts of many cells of a report: what does not change from cell to cell is settled
// once.
#pragma once

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
  /// Writes the same text without a detour; returns whether there is any.
  bool write(TextPen& pen, const RowCell& cell);

 private:
  const ReportGrid& grid_;
  FormatSettings settings_;
  std::vector<ValueWriter> labels_;
  std::vector<ValueWriter> data_;
  std::string scratch_;
};

}  // namespace vrel
