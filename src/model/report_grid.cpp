#include "model/report_grid.h"

#include <algorithm>

namespace vrel {
namespace {

// How many leading levels of an axis a group shares with the group before it. None when labels
// are repeated.
std::size_t repeatedLevels(const ReportGrid& grid, const std::vector<std::uint32_t>& groups,
                           const std::vector<int>& fields, std::size_t group) {
  return group == 0 || grid.repeatLabels
             ? 0
             : firstDifference(*grid.table, fields, groups[group - 1], groups[group]);
}

// Line feeds in the headings of data columns, by which label headings are centred.
std::size_t headingLineFeeds(const ReportGrid& grid) {
  if (grid.columnGroups.empty() || grid.yFields.empty()) {
    return 0;
  }
  return grid.columnsPerGroup() > 1 ? grid.yFields.size() : grid.yFields.size() - 1;
}

std::string labelHeading(const ReportGrid& grid, std::size_t column) {
  if (column >= grid.xFields.size()) {
    return " ";
  }
  const FieldDef& field = grid.table->field(grid.xFields[column]);
  const std::size_t lineFeeds = headingLineFeeds(grid);
  const std::size_t above = (lineFeeds + 1) / 2;
  return std::string(above, '\n') + (field.hidden ? std::string() : field.name) +
         std::string(lineFeeds - above, '\n');
}

// The values of a column group, a line each; values that repeat the group before are empty lines.
std::string groupHeading(const ReportGrid& grid, const FormatSettings& settings,
                         std::size_t group) {
  const std::size_t repeated = repeatedLevels(grid, grid.columnGroups, grid.yFields, group);
  std::string heading(repeated, '\n');
  for (std::size_t level = repeated; level < grid.yFields.size(); ++level) {
    const FieldValue value = grid.table->value(grid.columnGroups[group], grid.yFields[level]);
    appendValue(heading, *value.owner, value.cell, settings, Quoting::None);
    heading += '\n';
  }
  return heading;
}

// The lines of a heading that the y fields make, each ended by a line feed. The first column of a
// group or a summary has the texts, the others have as many empty lines.
std::string yHeading(const ReportGrid& grid, const FormatSettings& settings, const GridLine& line) {
  std::string heading(grid.yFields.size(), '\n');
  if (line.within == 0 && line.kind == LineKind::Group) {
    return groupHeading(grid, settings, line.index);
  }
  if (line.within == 0 && line.kind == LineKind::Summary) {
    const SummaryPlace& summary = grid.columnLines.summaries[line.index];
    const AxisBreak& one = grid.columnLines.breaks[summary.breakIndex];
    heading.insert(one.level, one.name);
  }
  return heading;
}

bool isDataCell(const ReportGrid& grid, std::size_t row, std::size_t column) {
  return row < grid.rows && column >= grid.labelColumns && column < grid.columns;
}

const SummaryNumbers& crossingOf(const ReportGrid& grid, std::size_t rowBreak,
                                 std::size_t columnBreak) {
  return grid.summaries.crossings[rowBreak * grid.columnLines.breaks.size() + columnBreak];
}

PlainCells plainCells(const ReportGrid& grid) {
  return {*grid.table, grid.dataFields, grid.columnGroups.size(), grid.rowStart, grid.entries};
}

// The entry in which a row group and a column group meet; null when there is none.
const GridEntry* findEntry(const ReportGrid& grid, std::uint32_t rowGroup,
                           std::uint32_t columnGroup) {
  const GridEntry* const first = grid.entries.data() + grid.rowStart[rowGroup];
  const GridEntry* const last = grid.entries.data() + grid.rowStart[rowGroup + 1];
  const GridEntry* const found = std::lower_bound(
      first, last, columnGroup,
      [](const GridEntry& entry, std::uint32_t group) { return entry.columnGroup < group; });
  return found != last && found->columnGroup == columnGroup ? found : nullptr;
}

// The group of an axis that has a tuple's values.
std::optional<std::uint32_t> groupOf(const Table& table, const std::vector<std::uint32_t>& groups,
                                     const std::vector<int>& fields, std::uint32_t tuple) {
  const Cell* const wanted = table.tuple(tuple);
  const auto found = std::lower_bound(
      groups.begin(), groups.end(), wanted, [&](std::uint32_t group, const Cell* cells) {
        return compareTuples(table, table.tuple(group), cells, fields) < 0;
      });
  const bool has =
      found != groups.end() && compareTuples(table, table.tuple(*found), wanted, fields) == 0;
  return has ? std::optional(static_cast<std::uint32_t>(found - groups.begin())) : std::nullopt;
}

// The text in a label column of the row of a summary.
std::string summaryLabel(const ReportGrid& grid, const GridLine& line, std::size_t column) {
  const SummaryPlace& summary = grid.rowLines.summaries[line.index];
  const AxisBreak& one = grid.rowLines.breaks[summary.breakIndex];
  return line.within == 0 && column == one.level ? one.name : std::string();
}

std::string labelText(const ReportGrid& grid, const FormatSettings& settings, std::size_t row,
                      std::size_t column) {
  const GridLine line = rowLineAt(grid, row);
  if (line.kind != LineKind::Blank && column >= grid.xFields.size()) {
    return grid.table->field(grid.dataFields[dataFieldOf(grid.rowLines, line)]).name;
  }
  if (line.kind == LineKind::Summary) {
    return summaryLabel(grid, line, column);
  }
  const std::optional<CellRef> label = labelAt(grid, row, column);
  return label ? formatValue(grid.table->value(label->tuple, label->field), settings, Quoting::None)
               : std::string();
}

}  // namespace

std::size_t ReportGrid::rowsPerGroup() const {
  return dataInColumns ? 1 : dataFields.size();
}

std::size_t ReportGrid::columnsPerGroup() const {
  return dataInColumns ? dataFields.size() : 1;
}

void refreshSummaries(ReportGrid& grid) {
  grid.summaries = computeSummaries(plainCells(grid), grid.rowLines, grid.columnLines);
}

void refreshSummaries(ReportGrid& grid, std::span<const std::uint32_t> tuples) {
  if (grid.rowLines.breaks.empty() && grid.columnLines.breaks.empty()) {
    return;
  }
  // Beyond this part of the cells, all at once is faster.
  constexpr std::size_t kLargestPart = 8;
  if (tuples.size() > grid.entries.size() / kLargestPart) {
    refreshSummaries(grid);
    return;
  }
  std::vector<GroupPlace> changed;
  changed.reserve(tuples.size());
  for (const std::uint32_t tuple : tuples) {
    if (const std::optional<GroupPlace> place = placeOf(grid, tuple)) {
      changed.push_back(*place);
    }
  }
  updateSummaries(grid.summaries, plainCells(grid), grid.rowLines, grid.columnLines, changed);
}

std::optional<GroupPlace> placeOf(const ReportGrid& grid, std::uint32_t tuple) {
  const auto row = groupOf(*grid.table, grid.rowGroups, grid.xFields, tuple);
  const auto column = groupOf(*grid.table, grid.columnGroups, grid.yFields, tuple);
  if (!row || !column) {
    return std::nullopt;
  }
  const GridEntry* const entry = findEntry(grid, *row, *column);
  return entry != nullptr && entry->tuple == tuple
             ? std::optional(GroupPlace{.row = *row, .column = *column})
             : std::nullopt;
}

GridArea dataCellsOf(const ReportGrid& grid) {
  return {0, grid.labelColumns, grid.rows, grid.columns - grid.labelColumns};
}

std::optional<GridPlace> placeOfCell(const ReportGrid& grid, CellRef cell) {
  const std::optional<GroupPlace> group = placeOf(grid, cell.tuple);
  const auto data = std::find(grid.dataFields.begin(), grid.dataFields.end(), cell.field);
  if (!group || data == grid.dataFields.end()) {
    return std::nullopt;
  }
  const auto within = static_cast<std::size_t>(data - grid.dataFields.begin());
  return GridPlace{
      .row = firstLineOf(grid.rowLines, group->row) + (grid.dataInColumns ? 0 : within),
      .column = grid.labelColumns + firstLineOf(grid.columnLines, group->column) +
                (grid.dataInColumns ? within : 0)};
}

std::optional<int> pageOf(const ReportGrid& grid, std::uint32_t tuple) {
  if (grid.zFields.empty()) {
    return 0;
  }
  const auto page = groupOf(*grid.table, grid.zGroups, grid.zFields, tuple);
  return page ? std::optional(static_cast<int>(*page)) : std::nullopt;
}

GridLine rowLineAt(const ReportGrid& grid, std::size_t row) {
  return lineAt(grid.rowLines, row);
}

GridLine columnLineAt(const ReportGrid& grid, std::size_t column) {
  return lineAt(grid.columnLines, column - grid.labelColumns);
}

std::optional<CellRef> cellAt(const ReportGrid& grid, std::size_t row, std::size_t column) {
  if (!isDataCell(grid, row, column)) {
    return std::nullopt;
  }
  const GridLine rowLine = rowLineAt(grid, row);
  const GridLine columnLine = columnLineAt(grid, column);
  if (rowLine.kind != LineKind::Group || columnLine.kind != LineKind::Group) {
    return std::nullopt;
  }
  const GridEntry* const found = findEntry(grid, rowLine.index, columnLine.index);
  const std::size_t data = grid.dataInColumns ? columnLine.within : rowLine.within;
  if (found == nullptr || data >= grid.dataFields.size()) {
    return std::nullopt;
  }
  return CellRef{found->tuple, grid.dataFields[data]};
}

std::optional<double> summaryAt(const ReportGrid& grid, std::size_t row, std::size_t column) {
  if (!isDataCell(grid, row, column)) {
    return std::nullopt;
  }
  const GridLine rowLine = rowLineAt(grid, row);
  const GridLine columnLine = columnLineAt(grid, column);
  if (rowLine.kind == LineKind::Blank || columnLine.kind == LineKind::Blank) {
    return std::nullopt;
  }
  const std::size_t data = grid.dataInColumns ? dataFieldOf(grid.columnLines, columnLine)
                                              : dataFieldOf(grid.rowLines, rowLine);
  if (rowLine.kind == LineKind::Summary) {
    const SummaryPlace& down = grid.rowLines.summaries[rowLine.index];
    if (columnLine.kind == LineKind::Group) {
      return numberAt(grid.summaries.rows[down.breakIndex], down.turn, columnLine.index, data);
    }
    const SummaryPlace& across = grid.columnLines.summaries[columnLine.index];
    return numberAt(crossingOf(grid, down.breakIndex, across.breakIndex), down.turn, across.turn,
                    data);
  }
  if (columnLine.kind == LineKind::Summary) {
    const SummaryPlace& across = grid.columnLines.summaries[columnLine.index];
    return numberAt(grid.summaries.columns[across.breakIndex], rowLine.index, across.turn, data);
  }
  return std::nullopt;
}

std::optional<CellRef> labelAt(const ReportGrid& grid, std::size_t row, std::size_t column) {
  if (row >= grid.rows || column >= grid.xFields.size() ||
      grid.table->field(grid.xFields[column]).hidden) {
    return std::nullopt;
  }
  const GridLine line = rowLineAt(grid, row);
  if (line.kind != LineKind::Group || (line.within != 0 && !grid.repeatLabels) ||
      column < repeatedLevels(grid, grid.rowGroups, grid.xFields, line.index)) {
    return std::nullopt;
  }
  return CellRef{grid.rowGroups[line.index], grid.xFields[column]};
}

std::string cellText(const ReportGrid& grid, const FormatSettings& settings, std::size_t row,
                     std::size_t column) {
  if (column < grid.labelColumns) {
    return row < grid.rows ? labelText(grid, settings, row, column) : std::string();
  }
  if (const std::optional<CellRef> shown = cellAt(grid, row, column)) {
    return formatValue(grid.table->value(shown->tuple, shown->field), settings, Quoting::None);
  }
  const std::optional<double> summary = summaryAt(grid, row, column);
  return summary ? formatNumber(*summary, settings) : std::string();
}

std::string columnHeading(const ReportGrid& grid, const FormatSettings& settings,
                          std::size_t column) {
  if (column < grid.labelColumns) {
    return labelHeading(grid, column);
  }
  const GridLine line = columnLineAt(grid, column);
  const bool named = grid.columnsPerGroup() > 1;
  std::string heading = " ";
  if (!grid.yFields.empty()) {
    heading = yHeading(grid, settings, line);
  }
  if (named && line.kind != LineKind::Blank) {
    const std::size_t data = dataFieldOf(grid.columnLines, line);
    return heading + grid.table->field(grid.dataFields[data]).name;
  }
  if (!named && !grid.yFields.empty()) {
    heading.pop_back();
  }
  return heading;
}

std::string zPageText(const ReportGrid& grid, const FormatSettings& settings, int zIndex) {
  std::string text;
  if (zIndex < 0 || static_cast<std::size_t>(zIndex) >= grid.zGroups.size()) {
    return text;
  }
  const std::uint32_t tuple = grid.zGroups[static_cast<std::size_t>(zIndex)];
  for (const int field : grid.zFields) {
    if (field != grid.zFields.front()) {
      text += ", ";
    }
    appendValue(text, grid.table->field(field), grid.table->cell(tuple, field), settings,
                Quoting::None);
  }
  return text;
}

std::string notEnoughKeysWarning(const ReportView& view, Notice& notice) {
  std::string text = notice.translate(translatable(
      "vrel", "Not enough keys to properly display data\nextracted by report\n\"%s\"."));
  const std::size_t place = text.find("%s");
  return place == std::string::npos ? text : text.replace(place, 2, reportName(view));
}

}  // namespace vrel
