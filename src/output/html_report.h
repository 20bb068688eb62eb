// The report as an HTML document: its pages as tables, with links to them when it has several.
//
// Texts are written as they are shown, in UTF-8 and without escaping; only the edit form masks what
// it must. The document streams: memory follows the columns and, in a form, the different keys.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/task_progress.h"
#include "base/text_output.h"
#include "model/report_pages.h"

namespace vrel {

/// What an HTML document holds beside the tables of its report.
struct HtmlReportWriter {
  /// Write the html, head and body elements around the tables.
  bool fullDocument = true;
  /// The tables have lines between their cells.
  bool border = true;
  /// Printing only: comments for someone who finds the source on paper.
  bool banner = false;
  /// Title of the document and of each table; empty for none.
  std::string title;
  /// Closing paragraph; an empty text is one, too.
  std::optional<std::string> footer;
  /// For whom the document is made: what the environment calls USERNAME.
  std::string userName;
  /// Seconds since 1970-01-01 UTC.
  std::int64_t creationTime = 0;
};

/// Writes a whole document. All pages of a report with z fields are a list of links and a table for
/// each page with a link back to the top; a report without z fields, and the current page alone,
/// are a single table. Sets the parts of the progress. False when cancelled.
bool writeHtmlReport(const HtmlReportWriter& writer, ReportPages& pages,
                     const FormatSettings& settings, TextOutput& output, TaskProgress& progress);

}  // namespace vrel
