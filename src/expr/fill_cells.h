// Filling many cells of the report with one value.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "expr/report_edit.h"
#include "model/report_grid.h"

namespace vrel {

enum class FillArea { Row, Column, Table };

struct FillRequest {
  FillArea area = FillArea::Row;
  /// Among the data cells, counted from 1. The cell there decides whether anything may be filled.
  int row = 1;
  int column = 1;
  std::string_view text;
};

/// What has become of a fill.
struct FillOutcome {
  /// Cells that have the value of the text now.
  std::size_t filled = 0;
  /// Cells that may be edited and of which the text is no value.
  std::size_t refused = 0;
  /// The host could not be told; the log says so.
  bool messageLost = false;
};

/// Sets every cell of the area that may be edited, from the text as it would be typed there, as one
/// edit of the table; see `editTable`. An empty text is a value of text fields alone. A request
/// that cannot be met is told to the user, and nothing is returned with nothing changed.
std::optional<FillOutcome> fillCells(const FillRequest& request, ReportEditor& editor,
                                     const ReportGrid& grid);

}  // namespace vrel
