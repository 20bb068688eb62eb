// How wide the report's columns are at first, judged from a sample of its texts.
#pragma once

#include <QFont>
#include <vector>

#include "model/format_settings.h"
#include "model/report_grid.h"

namespace vrel {

struct ColumnWidths {
  /// One per label column.
  std::vector<int> labels;
  /// One per data field that stands beside others in a column group: all groups look the same.
  /// With summaries among the columns, one per column behind the labels.
  std::vector<int> data;
};

/// Widths for cells of this font, in which summaries are bold. The time for measuring does not grow
/// with the report.
ColumnWidths sampleColumnWidths(const ReportGrid& grid, const FormatSettings& settings,
                                const QFont& font);

/// The width that a column needs for its heading and the longest of its texts, as far as a column
/// may be useful wide.
int fullColumnWidth(const ReportGrid& grid, const FormatSettings& settings, const QFont& font,
                    std::size_t column);

}  // namespace vrel
