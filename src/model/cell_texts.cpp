#include "model/cell_texts.h"

namespace vrel {
namespace {

std::vector<ValueWriter> writersOf(const ReportGrid& grid, const std::vector<int>& fields,
                                   const FormatSettings& settings) {
  std::vector<ValueWriter> writers;
  writers.reserve(fields.size());
  for (const int field : fields) {
    writers.emplace_back(grid.table->field(field), settings, Quoting::None);
  }
  return writers;
}

}  // namespace

CellTexts::CellTexts(const ReportGrid& grid, const FormatSettings& settings)
    : grid_(grid),
      settings_(settings),
      labels_(writersOf(grid, grid.xFields, settings)),
      data_(writersOf(grid, grid.dataFields, settings)) {}

std::string_view CellTexts::label(std::size_t row, std::size_t column) {
  if (const std::optional<CellRef> label = labelAt(grid_, row, column)) {
    return labels_[column].text(grid_.table->cell(label->tuple, label->field));
  }
  if (column < grid_.xFields.size() && rowLineAt(grid_, row).kind == LineKind::Group) {
    return {};
  }
  scratch_ = cellText(grid_, settings_, row, column);
  return scratch_;
}

std::string_view CellTexts::text(const RowCell& cell) {
  if (const std::optional<double> shown = number(cell)) {
    return {number_.data(), formatNumber(number_.data(), *shown, settings_)};
  }
  return data_[cell.data].text(grid_.table->cell(cell.tuple, grid_.dataFields[cell.data]));
}

}  // namespace vrel
