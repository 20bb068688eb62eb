// What the display dialog shows of a view, and how it comes into the view.
#pragma once

#include <string>
#include <vector>

#include "base/notice.h"
#include "model/report_view.h"

namespace vrel {

struct DisplaySettings {
  /// The data fields in their order.
  std::vector<int> shownFields;
  bool duplicateLabels = false;
  bool systemTitle = false;
  bool emptyRowsAndColumns = false;
  std::string dateFormat;
  /// From 0 to `kMaxPrecision`.
  int precision = 0;
  /// Empty for none.
  std::string periodFile;
  std::string userTitle;

  bool operator==(const DisplaySettings&) const = default;
};

/// The settings of a view. A precision out of range is told as what it counts as.
DisplaySettings displaySettings(const ReportView& view);

/// The fields that could be shown as data: those on no axis and not among the data, in column
/// order.
std::vector<int> availableFields(const ReportView& view);

/// Gives the view these settings and puts precision and date format in force. What is no longer
/// shown as data is hidden, behind the fields that were hidden before. Returns whether anything
/// differs; the period file is not read.
bool applyDisplaySettings(ReportView& view, const DisplaySettings& chosen,
                          FormatSettings& settings);

/// Reads the view's period file, see `readPeriodFile`. Returns whether the file states other
/// lengths than those that were known.
bool rereadPeriodFile(const ReportView& view, Notice& notice);

/// A date and time of which day, month, hour and minute cannot be mistaken for one another,
/// written in a date format.
std::string exampleDate(const std::string& dateFormat);

}  // namespace vrel
