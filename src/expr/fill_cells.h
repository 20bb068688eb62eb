// Filling many cells of the report with one value.
#pragma once

#include <string_view>

#include "expr/evaluator.h"
#include "expr/host_messages.h"
#include "model/report_grid.h"
#include "model/report_view.h"

namespace vrel {

enum class FillArea { Row, Column, Table };

struct FillRequest {
  FillArea area = FillArea::Row;
  /// Among the data cells, counted from 1. The cell there decides whether anything may be filled.
  int row = 1;
  int column = 1;
  std::string_view text;
};

/// Sets every cell of the area that may be edited, brings formula fields and colours up to date,
/// sends the whole table to the host and marks the view as modified; the report has to be laid out
/// again. A request that cannot be met is told to the user, and false is returned with nothing
/// changed.
bool fillCells(const FillRequest& request, ReportView& view, const ReportGrid& grid,
               Evaluator& evaluator, const HostLink& host);

}  // namespace vrel
