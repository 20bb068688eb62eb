// Filling many cells of the report with one value.
#pragma once

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

/// Sets every cell of the area that may be edited, as one edit of the table; see `editTable`. A
/// request that cannot be met is told to the user, and nothing is returned with nothing changed.
std::optional<TableEdit> fillCells(const FillRequest& request, ReportEditor& editor,
                                   const ReportGrid& grid);

}  // namespace vrel
