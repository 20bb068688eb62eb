// One laid-out page of a report as an HTML table.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/task_progress.h"
#include "base/text_pen.h"
#include "model/report_grid.h"

namespace vrel {

struct HtmlTable {
  const ReportGrid& grid;
  const FormatSettings& settings;
  /// Names the report to the script of the edit form.
  std::string_view title;
  /// Stands above the table; empty for none.
  std::string caption;
  bool border = true;
};

/// Writes a table, within a form when the table of the report has an editable field. Cells hold the
/// texts that the grid shows, as they are: a text may bring markup of its own. `part` is that of
/// the progress. False when cancelled.
bool writeHtmlTable(const HtmlTable& table, TextPen& pen, TaskProgress& progress, std::size_t part);

}  // namespace vrel
