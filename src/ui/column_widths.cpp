#include "ui/column_widths.h"

#include <algorithm>
#include <functional>

namespace vrel {

namespace {

constexpr std::size_t kSampledTexts = 10'000;
constexpr std::size_t kSampledGroups = 500;
// In average characters.
constexpr int kNarrowest = 6;
constexpr int kWidest = 40;

// Measures texts of one report and keeps the widest of each column.
class Ruler {
 public:
  Ruler(const ReportGrid& grid, const FormatSettings& settings, const QFontMetrics& metrics)
      : grid_(grid), settings_(settings), metrics_(metrics) {}

  int least() const { return columnWidth(0); }

  void fit(int& width, std::string_view text) const {
    // What lies beyond the widest column need not be measured.
    const auto shown = text.substr(0, std::size_t{4} * kWidest);
    const auto string = QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
    width = std::max(width, columnWidth(metrics_.horizontalAdvance(string)));
  }

  void fitHeading(int& width, std::size_t column) const {
    const std::string heading = columnHeading(grid_, settings_, column);
    std::string_view rest = heading;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      fit(width, rest.substr(0, end));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }

  void fitValue(int& width, std::uint32_t tuple, int field) const {
    fit(width, formatValue(grid_.table->value(tuple, field), settings_, Quoting::None));
  }

 private:
  int columnWidth(int textWidth) const {
    const int character = metrics_.averageCharWidth();
    return std::clamp(textWidth + 2 * character, kNarrowest * character, kWidest * character);
  }

  const ReportGrid& grid_;
  const FormatSettings& settings_;
  const QFontMetrics& metrics_;
};

// Calls `visit` with about `wanted` positions below `count`, evenly spread.
void forSample(std::size_t count, std::size_t wanted,
               const std::function<void(std::size_t)>& visit) {
  const std::size_t step = std::max<std::size_t>(1, count / std::max<std::size_t>(1, wanted));
  for (std::size_t position = 0; position < count; position += step) {
    visit(position);
  }
}

void fitLabels(const ReportGrid& grid, const Ruler& ruler, std::vector<int>& labels) {
  for (std::size_t level = 0; level < grid.xFields.size(); ++level) {
    const int field = grid.xFields[level];
    ruler.fit(labels[level], grid.table->field(field).name);
    forSample(grid.rowGroups.size(), kSampledGroups, [&](std::size_t group) {
      ruler.fitValue(labels[level], grid.rowGroups[group], field);
    });
  }
  if (grid.hasDataNameColumn()) {
    for (const int field : grid.dataFields) {
      ruler.fit(labels.back(), grid.table->field(field).name);
    }
  }
}

void fitHeadings(const ReportGrid& grid, const Ruler& ruler, std::vector<int>& data) {
  // The first group's headings show every line, the data-field names included.
  for (std::size_t position = 0; position < data.size(); ++position) {
    if (grid.labelColumns + position < grid.columns) {
      ruler.fitHeading(data[position], grid.labelColumns + position);
    }
  }
  // The values of the y fields stand above the first column of their group.
  for (const int field : grid.yFields) {
    forSample(grid.columnGroups.size(), kSampledGroups, [&](std::size_t group) {
      ruler.fitValue(data.front(), grid.columnGroups[group], field);
    });
  }
}

void fitCells(const ReportGrid& grid, const Ruler& ruler, std::vector<int>& data) {
  if (grid.dataFields.empty()) {
    return;
  }
  forSample(grid.entries.size(), kSampledTexts / grid.dataFields.size(), [&](std::size_t entry) {
    for (std::size_t position = 0; position < grid.dataFields.size(); ++position) {
      ruler.fitValue(data[position % data.size()], grid.entries[entry].tuple,
                     grid.dataFields[position]);
    }
  });
}

}  // namespace

ColumnWidths sampleColumnWidths(const ReportGrid& grid, const FormatSettings& settings,
                                const QFontMetrics& metrics) {
  const Ruler ruler(grid, settings, metrics);
  ColumnWidths widths;
  widths.labels.assign(grid.labelColumns, ruler.least());
  widths.data.assign(std::max<std::size_t>(1, grid.columnsPerGroup()), ruler.least());
  if (grid.table != nullptr) {
    fitLabels(grid, ruler, widths.labels);
    fitHeadings(grid, ruler, widths.data);
    fitCells(grid, ruler, widths.data);
  }
  return widths;
}

}  // namespace vrel
