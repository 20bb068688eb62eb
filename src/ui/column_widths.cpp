#include "ui/column_widths.h"

#include <QFontMetrics>
#include <algorithm>
#include <functional>

#include "model/longest_texts.h"

namespace vrel {

namespace {

constexpr std::size_t kSampledTexts = 10'000;
constexpr std::size_t kSampledGroups = 500;
// In average characters.
constexpr int kNarrowest = 6;
constexpr int kWidest = 40;
constexpr int kWidestOnDemand = 200;
// In pixels: the margins of headings do not become smaller with the font.
constexpr int kLeastRoom = 10;

// Measures texts of one report and keeps the widest of each column.
class Ruler {
 public:
  Ruler(const ReportGrid& grid, const FormatSettings& settings, const QFont& font,
        int widest = kWidest)
      : grid_(grid),
        settings_(settings),
        metrics_(font),
        boldMetrics_(bold(font)),
        widest_(widest) {}

  int least() const { return columnWidth(0); }

  void fit(int& width, std::string_view text) const { fitIn(metrics_, width, text); }
  void fitBold(int& width, std::string_view text) const { fitIn(boldMetrics_, width, text); }

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

  void fitSummary(int& width, double number) const {
    fitBold(width, formatNumber(number, settings_));
  }

 private:
  static QFont bold(QFont font) {
    font.setBold(true);
    return font;
  }

  void fitIn(const QFontMetrics& metrics, int& width, std::string_view text) const {
    // What lies beyond the widest column need not be measured.
    const auto shown = text.substr(0, std::size_t{4} * static_cast<std::size_t>(widest_));
    const auto string = QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
    width = std::max(width, columnWidth(metrics.horizontalAdvance(string)));
  }

  int columnWidth(int textWidth) const {
    const int character = metrics_.averageCharWidth();
    return std::clamp(textWidth + std::max(2 * character, kLeastRoom), kNarrowest * character,
                      widest_ * character);
  }

  const ReportGrid& grid_;
  const FormatSettings& settings_;
  const QFontMetrics metrics_;
  const QFontMetrics boldMetrics_;
  // In average characters.
  const int widest_;
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

// The names of summary rows, and those of the data fields beside them.
void fitSummaryLabels(const ReportGrid& grid, const Ruler& ruler, std::vector<int>& labels) {
  for (const AxisBreak& one : grid.rowLines.breaks) {
    ruler.fitBold(labels[one.level], one.name);
    if (grid.hasDataNameColumn()) {
      for (const std::size_t position : one.computed) {
        ruler.fitBold(labels.back(), grid.table->field(grid.dataFields[position]).name);
      }
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

std::vector<const SummaryNumbers*> summariesOf(const ReportGrid& grid) {
  std::vector<const SummaryNumbers*> all;
  for (const auto* some :
       {&grid.summaries.rows, &grid.summaries.columns, &grid.summaries.crossings}) {
    for (const SummaryNumbers& numbers : *some) {
      all.push_back(&numbers);
    }
  }
  return all;
}

void fitSummaries(const ReportGrid& grid, const Ruler& ruler, std::vector<int>& data) {
  for (const AxisBreak& one : grid.columnLines.breaks) {
    ruler.fit(data[one.computed.front() % data.size()], one.name);
  }
  const std::vector<const SummaryNumbers*> all = summariesOf(grid);
  for (const SummaryNumbers* numbers : all) {
    const std::size_t texts = all.size() * std::max<std::size_t>(1, numbers->width);
    forSample(numbers->keys.size(), kSampledTexts / texts, [&](std::size_t key) {
      for (std::size_t position = 0; position < numbers->placeOf.size(); ++position) {
        if (numbers->placeOf[position] != SummaryNumbers::kNoNumber) {
          ruler.fitSummary(data[position % data.size()], numbers->numberAt(key, position));
        }
      }
    });
  }
}

// The width of every column behind the labels, from those of one group's.
std::vector<int> spread(const ReportGrid& grid, const std::vector<int>& group, int blank) {
  const AxisLines& axis = grid.columnLines;
  std::vector<int> widths;
  widths.reserve(axis.count);
  for (const SummaryPlace& summary : axis.summaries) {
    while (widths.size() < summary.firstLine) {
      widths.insert(widths.end(), group.begin(), group.end());
    }
    const AxisBreak& one = axis.breaks[summary.breakIndex];
    for (std::size_t line = 0; line < one.lines; ++line) {
      widths.push_back(group[one.computed[line] % group.size()]);
    }
    if (one.breakAfter) {
      widths.push_back(blank);
    }
  }
  return widths;
}

}  // namespace

int fullColumnWidth(const ReportGrid& grid, const FormatSettings& settings, const QFont& font,
                    std::size_t column) {
  constexpr std::size_t kMeasuredTexts = 50;
  const Ruler ruler(grid, settings, font, kWidestOnDemand);
  int width = ruler.least();
  ruler.fitHeading(width, column);
  // Summaries are bold, and a column may end in one.
  const bool bold = !grid.rowLines.summaries.empty() || !grid.columnLines.summaries.empty();
  for (const std::string& text : longestTexts(grid, settings, column, kMeasuredTexts)) {
    bold ? ruler.fitBold(width, text) : ruler.fit(width, text);
  }
  return width;
}

ColumnWidths sampleColumnWidths(const ReportGrid& grid, const FormatSettings& settings,
                                const QFont& font) {
  const Ruler ruler(grid, settings, font);
  ColumnWidths widths;
  widths.labels.assign(grid.labelColumns, ruler.least());
  widths.data.assign(std::max<std::size_t>(1, grid.columnsPerGroup()), ruler.least());
  if (grid.table != nullptr) {
    fitLabels(grid, ruler, widths.labels);
    fitSummaryLabels(grid, ruler, widths.labels);
    fitHeadings(grid, ruler, widths.data);
    fitCells(grid, ruler, widths.data);
    fitSummaries(grid, ruler, widths.data);
  }
  if (!grid.columnLines.summaries.empty()) {
    widths.data = spread(grid, widths.data, ruler.least());
  }
  return widths;
}

}  // namespace vrel
