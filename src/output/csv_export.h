// The table as comma-separated text.
#pragma once

#include <string>

#include "base/task_progress.h"
#include "output/text_export.h"

namespace vrel {

/// The name of an export file with its extension: ".csv" in CSV mode, ".sp" otherwise, appended
/// when it is missing.
std::string exportFileNameWithExtension(const std::string& name, const ExportSwitches& switches);

/// Writes all fields and tuples of the table to `view.exportFileName`; returns whether it did. A
/// failure is one line on `errors`; that, or a cancelled task, leaves an existing file as it was.
bool TextExportViewData(const ReportView& view, FormatSettings& settings, Log& log,
                        TaskProgress& progress, TextOutput& errors);

}  // namespace vrel
