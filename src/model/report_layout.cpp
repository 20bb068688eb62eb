#include "model/report_layout.h"

#include <algorithm>
#include <numeric>

#include "model/key_ranks.h"
#include "model/table_sort.h"

namespace vrel {
namespace {

std::vector<int> fieldsOf(const ReportView& view, Axis axis) {
  std::vector<int> fields = view.axis(axis);
  std::erase(fields, kNoField);
  return fields;
}

// A grid that is not laid out yet.
ReportGrid emptyGrid(const ReportView& view) {
  ReportGrid grid;
  grid.table = view.table;
  grid.xFields = fieldsOf(view, Axis::X);
  grid.yFields = fieldsOf(view, Axis::Y);
  grid.zFields = fieldsOf(view, Axis::Z);
  grid.dataFields = fieldsOf(view, Axis::Data);
  grid.dataInColumns = view.dataInColumns;
  grid.repeatLabels = view.repeatLabels;
  return grid;
}

// Groups the tuples by the z fields and brings the current page into range. Returns which tuples
// stand on that page; empty when all do.
std::vector<bool> choosePage(ReportGrid& grid, ReportView& view) {
  KeyGroups pages;
  if (!grid.zFields.empty()) {
    pages = groupTuples(*grid.table, grid.zFields);
  }
  const int last = std::max(static_cast<int>(pages.size()), 1) - 1;
  view.zIndex = std::clamp(view.zIndex, 0, last);
  grid.zIndex = view.zIndex;
  grid.zGroups = pages.representative;
  std::vector<bool> onPage;
  if (last > 0) {
    onPage.resize(grid.table->tupleCount);
    for (std::size_t i = 0; i < onPage.size(); ++i) {
      onPage[i] = pages.groupOf[i] == static_cast<std::uint32_t>(grid.zIndex);
    }
  }
  return onPage;
}

// One tuple in its cell.
struct PlacedTuple {
  std::uint32_t row;
  GridEntry entry;

  bool operator<(const PlacedTuple& other) const {
    return row != other.row ? row < other.row : entry.columnGroup < other.entry.columnGroup;
  }
};

// Stable order by a small key below `count`.
template <typename KeyOf>
void sortByGroup(std::vector<PlacedTuple>& placed, std::size_t count, KeyOf keyOf) {
  std::vector<std::uint32_t> next(count + 1, 0);
  for (const PlacedTuple& tuple : placed) {
    ++next[keyOf(tuple) + 1];
  }
  std::partial_sum(next.begin(), next.end(), next.begin());
  std::vector<PlacedTuple> sorted(placed.size());
  for (const PlacedTuple& tuple : placed) {
    sorted[next[keyOf(tuple)]++] = tuple;
  }
  placed.swap(sorted);
}

// Fills the grid's entries from tuples in table order. Of several tuples in one cell the last one
// stays.
void fillEntries(ReportGrid& grid, std::vector<PlacedTuple> placed) {
  if (!std::is_sorted(placed.begin(), placed.end())) {
    sortByGroup(placed, grid.columnGroups.size(),
                [](const PlacedTuple& tuple) { return tuple.entry.columnGroup; });
    sortByGroup(placed, grid.rowGroups.size(), [](const PlacedTuple& tuple) { return tuple.row; });
  }
  grid.rowStart.assign(grid.rowGroups.size() + 1, 0);
  grid.entries.reserve(placed.size());
  for (std::size_t i = 0; i < placed.size(); ++i) {
    if (i + 1 < placed.size() && !(placed[i] < placed[i + 1])) {
      grid.notEnoughKeys = true;
      continue;
    }
    grid.entries.push_back(placed[i].entry);
    ++grid.rowStart[placed[i].row + 1];
  }
  std::partial_sum(grid.rowStart.begin(), grid.rowStart.end(), grid.rowStart.begin());
}

// Finds the lines and the size of a grid whose cells are filled.
void measure(ReportGrid& grid, std::span<const BreakDefinition> breaks) {
  const bool dataNames = !grid.dataInColumns && grid.dataFields.size() >= 2;
  grid.labelColumns = grid.xFields.size() + (dataNames ? 1 : 0);
  grid.rowLines = placeLines(
      {*grid.table, grid.xFields, grid.rowGroups, grid.dataFields, !grid.dataInColumns}, breaks);
  grid.columnLines = placeLines(
      {*grid.table, grid.yFields, grid.columnGroups, grid.dataFields, grid.dataInColumns}, breaks);
  grid.rows = grid.rowLines.count;
  grid.columns = grid.labelColumns + grid.columnLines.count;
  refreshSummaries(grid);
}

}  // namespace

ReportGrid layOut(ReportView& view) {
  Table& table = *view.table;
  sortTuples(table);
  ReportGrid grid = emptyGrid(view);
  const std::vector<bool> onPage = choosePage(grid, view);
  const std::vector<bool> grouped = view.showEmptyRowsAndColumns ? std::vector<bool>() : onPage;
  const KeyGroups rows = groupTuples(table, grid.xFields, grouped);
  const KeyGroups columns = groupTuples(table, grid.yFields, grouped);
  grid.rowGroups = rows.representative;
  grid.columnGroups = columns.representative;
  std::vector<PlacedTuple> placed;
  placed.reserve(table.tupleCount);
  for (std::uint32_t i = 0; i < table.tupleCount; ++i) {
    if (onPage.empty() || onPage[i]) {
      placed.push_back({rows.groupOf[i], {columns.groupOf[i], i}});
    }
  }
  fillEntries(grid, std::move(placed));
  measure(grid, view.breaks);
  return grid;
}

PageLayouts::AxisGroups::AxisGroups(KeyGroups groups)
    : all(std::move(groups)), numbers(all.size(), 0) {}

std::vector<std::uint32_t> PageLayouts::AxisGroups::number(std::span<const std::uint32_t> tuples,
                                                           bool withEmpty) {
  if (withEmpty) {
    std::iota(numbers.begin(), numbers.end(), 0);
    return all.representative;
  }
  occurring.clear();
  for (const std::uint32_t tuple : tuples) {
    occurring.push_back(all.groupOf[tuple]);
  }
  std::sort(occurring.begin(), occurring.end());
  occurring.erase(std::unique(occurring.begin(), occurring.end()), occurring.end());
  for (std::uint32_t i = 0; i < occurring.size(); ++i) {
    numbers[occurring[i]] = i;
  }
  std::vector<std::uint32_t> representatives(occurring.size());
  for (const std::uint32_t tuple : tuples) {
    representatives[numbers[all.groupOf[tuple]]] = tuple;
  }
  return representatives;
}

PageLayouts::PageLayouts(ReportView& view) : view_(view) {
  Table& table = *view.table;
  sortTuples(table);
  common_ = emptyGrid(view);
  rows_ = AxisGroups(groupTuples(table, common_.xFields));
  columns_ = AxisGroups(groupTuples(table, common_.yFields));
  KeyGroups pages = groupTuples(table, common_.zFields);
  std::vector<std::uint32_t> next(pages.size() + 1, 0);
  for (const std::uint32_t page : pages.groupOf) {
    ++next[page + 1];
  }
  std::partial_sum(next.begin(), next.end(), next.begin());
  pageStart_ = next;
  tuples_.resize(table.tupleCount);
  for (std::uint32_t i = 0; i < table.tupleCount; ++i) {
    tuples_[next[pages.groupOf[i]]++] = i;
  }
  if (!common_.zFields.empty()) {
    common_.zGroups = std::move(pages.representative);
  }
}

ReportGrid PageLayouts::layOut(int zIndex) {
  view_.zIndex = zIndex;
  ReportGrid grid = common_;
  grid.zIndex = zIndex;
  const auto page = static_cast<std::size_t>(zIndex);
  std::span<const std::uint32_t> tuples;
  if (page + 1 < pageStart_.size()) {
    tuples = std::span(tuples_).subspan(pageStart_[page], pageStart_[page + 1] - pageStart_[page]);
  }
  grid.rowGroups = rows_.number(tuples, view_.showEmptyRowsAndColumns);
  grid.columnGroups = columns_.number(tuples, view_.showEmptyRowsAndColumns);
  std::vector<PlacedTuple> placed;
  placed.reserve(tuples.size());
  for (const std::uint32_t tuple : tuples) {
    placed.push_back({rows_.numbers[rows_.all.groupOf[tuple]],
                      {columns_.numbers[columns_.all.groupOf[tuple]], tuple}});
  }
  fillEntries(grid, std::move(placed));
  measure(grid, view_.breaks);
  return grid;
}

}  // namespace vrel
