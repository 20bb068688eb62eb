// How wide the report's columns are at first, judged from a sample of its texts.
#pragma once

#include <QFontMetrics>
#include <vector>

#include "model/format_settings.h"
#include "model/report_grid.h"

namespace vrel {

struct ColumnWidths {
  /// One per label column.
  std::vector<int> labels;
  /// One per data field that stands beside others in a column group: all groups look the same.
  std::vector<int> data;
};

/// The time this takes does not grow with the report.
ColumnWidths sampleColumnWidths(const ReportGrid& grid, const FormatSettings& settings,
                                const QFontMetrics& metrics);

}  // namespace vrel
