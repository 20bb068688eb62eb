// The report as plain text pages: labels left, numbers right, as many columns beside each other as
// the page is wide, and the pages of each block of rows after one another.
#pragma once

#include <cstddef>
#include <string>

#include "base/task_progress.h"
#include "base/text_output.h"
#include "model/report_pages.h"

namespace vrel {

/// Where the pages go: a printer throws out the last page, too.
enum class PageTarget { File, Printer };

/// What is printed around the report, and how.
struct AsciiJob {
  std::string title;
  std::string footer;
  /// Stands at the top of every page, "%1" for the block of rows and "%2" for that of columns.
  std::string pageHeading;
  /// Characters. A single column that is wider has pages of its own and is not cut.
  std::size_t pageWidth = 132;
  /// Lines. A page has one row of the report at least.
  std::size_t pageHeight = 66;
  /// Lines between the columns and under the headings.
  bool gridLines = true;
  /// Label columns on every page across (but not where a column fits on the page only without
  /// them), headings on every page down; else on the first only.
  bool repeatLabels = true;
  bool repeatHeadings = true;
  PageTarget target = PageTarget::File;
};

/// Writes all pages of a document, each z page headed by its name. Form feeds stand between pages.
/// False when it was cancelled.
bool writeAsciiReport(const AsciiJob& job, ReportPages& pages, const FormatSettings& settings,
                      TextOutput& output, TaskProgress& progress);

}  // namespace vrel
