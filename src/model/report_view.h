// The report view: how the table is shown.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/notice.h"
#include "model/breaks.h"
#include "model/format_settings.h"
#include "model/print_options.h"
#include "model/table.h"

namespace vrel {

/// The five lists of a view, in the order in which a view file defines them.
enum class Axis : std::size_t { X, Y, Z, Data, Hidden };
inline constexpr std::size_t kAxisCount = 5;

/// The central document over one table. Every field of the table stands in at most one list.
struct ReportView {
  /// Path of the view file last read or saved; empty for none.
  std::string fileName;
  std::string exportFileName;
  int precision = 10;
  /// Not owned; outlives the view.
  Table* table = nullptr;
  /// Field indices by axis, each list in its shown order.
  std::array<std::vector<int>, kAxisCount> axes;
  bool dataInColumns = false;
  bool repeatLabels = false;
  bool showEmptyRowsAndColumns = false;
  bool showSystemTitle = true;
  std::string dateFormat = "%d-%b-%Y";
  std::string periodFileName;
  std::string userTitle;
  /// One per table field at construction.
  std::vector<BreakDefinition> breaks;
  PrintOptions printOptions;
  /// The `ui` title after its last "/"; names the report in messages.
  std::string shortTitle;
  /// The current z page.
  int zIndex = 0;
  /// Closing the window offers to save the view.
  bool modified = false;

  std::vector<int>& axis(Axis which) { return axes[static_cast<std::size_t>(which)]; }
  const std::vector<int>& axis(Axis which) const { return axes[static_cast<std::size_t>(which)]; }
};

/// A fresh view over a table: keys on the axes (those that sound like time on y), everything else
/// among the data.
ReportView makeReportView(Table& table, Notice& notice);

/// Puts a view's precision and date format in force.
void applyFormatSettings(const ReportView& view, FormatSettings& settings);

/// Moves keys to axes and others among the data where they stand wrong. Always succeeds.
bool guessView(ReportView& view);
/// The same for some fields alone, by table field; all others stay where they are.
void guessView(ReportView& view, const std::vector<bool>& fields);

/// The title made from the view's field names: data, then rows by columns.
std::string systemTitle(const ReportView& view);

/// What the report is headed with: the user title, and the system title on lines of its own when
/// it is shown.
std::string reportTitle(const ReportView& view);

/// The fields by which the view places a tuple: z, then x, then y.
std::vector<int> viewKeys(const ReportView& view);

/// The name of the report in messages.
std::string reportName(const ReportView& view);

}  // namespace vrel
