// The report, exported into a file of a type that the user chose.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/log.h"
#include "base/notice.h"
#include "base/paths.h"
#include "base/task_progress.h"
#include "base/text_output.h"
#include "model/format_settings.h"
#include "model/report_view.h"
#include "output/text_export.h"

namespace vrel {

/// What an export reads and changes.
struct ReportExport {
  ReportView& view;
  FormatSettings& format;
  ExportSwitches& switches;
  Log& log;
  Notice& notice;
  TextOutput& errors;
  const EnvironmentLookup& environment;
  /// Where the user was last.
  std::string& lastVisitedDirectory;
};

struct ExportJob;

/// A type of export files.
struct ExportFileType {
  /// What a dialog shows, before its translation; it also tells the types apart.
  std::string_view filter;
  /// The endings by which its files are known. The first one is added to a name without any.
  std::span<const std::string_view> endings;
  /// Writes the file.
  bool (*write)(ExportJob& job, TaskProgress& progress);
};

/// The types, in the order in which they are offered.
std::span<const ExportFileType> exportFileTypes();

/// The type whose ending a name has; null for none.
const ExportFileType* exportTypeOfName(std::string_view name);

/// Exports the report to a file of the type with that translated filter text. The name gets the
/// type's ending when it lacks it; it is the view's export file name from then on, and its
/// directory the last visited one. Returns whether the report was exported: a failure is one line
/// on `errors` and, with a window, a box; a cancelled export is silent. Both leave the names as
/// they were, and an existing file too: only a graph document takes its place up to the line that
/// does not match the fields, which the box alone tells.
bool exportInGivenFormatFile(const std::string& name, std::string_view filter,
                             const ReportExport& report);

}  // namespace vrel
