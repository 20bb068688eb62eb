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
  if (cell.tuple == RowCell::kSummary) {
    scratch_ = formatNumber(cell.number, settings_);
    return scratch_;
  }
  return data_[cell.data].text(grid_.table->cell(cell.tuple, grid_.dataFields[cell.data]));
}

bool CellTexts::write(TextPen& pen, const RowCell& cell) {
  if (cell.tuple == RowCell::kSummary) {
    pen.advance(formatNumber(pen.room(kMaxNumberLength), cell.number, settings_));
    return true;
  }
  const int field = grid_.dataFields[cell.data];
  const Cell value = grid_.table->cell(cell.tuple, field);
  if (grid_.table->field(field).hasNumbers()) {
    data_[cell.data].write(pen, value);
    return true;
  }
  const std::string_view text = data_[cell.data].text(value);
  pen.write(text);
  return !text.empty();
}

}  // namespace vrel
