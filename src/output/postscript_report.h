// The report as a PostScript document.
#pragma once

#include "base/task_progress.h"
#include "base/text_output.h"
#include "model/report_pages.h"
#include "output/print_job.h"

namespace vrel {

/// Writes the whole document: the pages of all z pages, headed by their names, under one count of
/// pages. All texts are gone through twice, and nothing but the widths of the columns is kept. A
/// column that is wider than the paper ends the document with a page that says so. False when
/// cancelled.
bool writePostScript(const PrintJob& job, ReportPages& pages, const FormatSettings& settings,
                     TextOutput& output, TaskProgress& progress);

}  // namespace vrel
