// The laid-out report of one z page, as the window shows it and every export reads it.
//
// The grid is sparse: it stores which tuple stands where, never texts. A cell's text is made when
// it is asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/break_positions.h"
#include "model/format_settings.h"
#include "model/grid_area.h"
#include "model/grid_entry.h"
#include "model/key_ranks.h"
#include "model/report_view.h"
#include "model/summaries.h"

namespace vrel {

struct ReportGrid {
  /// Not owned.
  const Table* table = nullptr;
  std::vector<int> xFields;
  std::vector<int> yFields;
  std::vector<int> zFields;
  std::vector<int> dataFields;
  bool dataInColumns = false;
  bool repeatLabels = false;

  /// One tuple that has the group's values, per group.
  std::vector<std::uint32_t> rowGroups;
  std::vector<std::uint32_t> columnGroups;
  /// One per z page; empty without z fields, when there is just one page.
  std::vector<std::uint32_t> zGroups;
  /// The z page that is laid out.
  int zIndex = 0;

  /// The entries of row group g are `entries[rowStart[g]]` up to `entries[rowStart[g + 1]]`, in
  /// the order of their column groups.
  std::vector<std::uint32_t> rowStart;
  std::vector<GridEntry> entries;

  /// Which grid rows, and which grid columns behind the label columns, are groups and which are
  /// summaries.
  AxisLines rowLines;
  AxisLines columnLines;
  /// The numbers of the summaries; see `refreshSummaries`.
  Summaries summaries;

  /// One per x field, and one for the data-field names when several data run down the rows.
  std::size_t labelColumns = 0;
  std::size_t rows = 0;
  /// Label columns included.
  std::size_t columns = 0;
  /// Several tuples fell into one cell; the later one stands there.
  bool notEnoughKeys = false;

  bool hasDataNameColumn() const { return labelColumns > xFields.size(); }
  /// Grid rows per row group.
  std::size_t rowsPerGroup() const;
  /// Grid columns per column group.
  std::size_t columnsPerGroup() const;
};

/// Computes the summaries anew, after cells of the table have changed. The layout stays.
void refreshSummaries(ReportGrid& grid);
/// The same after cells of these tuples alone have changed: what they take no part in is left as it
/// is.
void refreshSummaries(ReportGrid& grid, std::span<const std::uint32_t> tuples);

/// The groups in whose cells a tuple stands; nothing when it stands on another page or gave way to
/// a later tuple with the same keys.
std::optional<GroupPlace> placeOf(const ReportGrid& grid, std::uint32_t tuple);

/// The data cell that shows a value of the table; nothing when none on this page does.
std::optional<GridPlace> placeOfCell(const ReportGrid& grid, CellRef cell);

/// The z page on which a tuple stands; 0 without z fields.
std::optional<int> pageOf(const ReportGrid& grid, std::uint32_t tuple);

/// All data cells: everything but the label columns.
GridArea dataCellsOf(const ReportGrid& grid);

/// What a grid row is.
GridLine rowLineAt(const ReportGrid& grid, std::size_t row);
/// What a grid column behind the label columns is.
GridLine columnLineAt(const ReportGrid& grid, std::size_t column);

/// The value that a data cell shows; nothing for labels, empty cells and summaries.
std::optional<CellRef> cellAt(const ReportGrid& grid, std::size_t row, std::size_t column);

/// The number that a summary shows where a row or a column of summaries is; nothing for other cells
/// and for summaries without a number.
std::optional<double> summaryAt(const ReportGrid& grid, std::size_t row, std::size_t column);

/// The value that a label cell shows; nothing for data cells, repeated labels, hidden fields, data
/// names and the labels of summaries.
std::optional<CellRef> labelAt(const ReportGrid& grid, std::size_t row, std::size_t column);

/// The text of any cell, labels and summaries included.
std::string cellText(const ReportGrid& grid, const FormatSettings& settings, std::size_t row,
                     std::size_t column);

/// The heading of a column; its lines are separated by line feeds.
std::string columnHeading(const ReportGrid& grid, const FormatSettings& settings,
                          std::size_t column);

/// The text of a z page's tab: its z values joined with ", "; empty without z fields.
std::string zPageText(const ReportGrid& grid, const FormatSettings& settings, int zIndex);

/// The warning that is due when `notEnoughKeys` is set.
std::string notEnoughKeysWarning(const ReportView& view, Notice& notice);

}  // namespace vrel
