// Printed reports for tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/report_pages.h"
#include "output/print_job.h"

namespace vrel::test {

/// A job by ann of January 5th 2026, 10:20:30, titled "Plan", on a small page: 300 x 200 points
/// with margins of 20, in letters of 10 points.
PrintJob smallJob();

/// The document of a view's pages; numbers have one decimal.
std::string postScriptOf(const PrintJob& job, ReportView& view,
                         PageChoice choice = PageChoice::All);

/// The pages of a document, each from behind its "%%Page: " on.
std::vector<std::string> pagesOf(std::string_view document);

/// The strings that a page or a document shows, in their order.
std::vector<std::string> shownOn(std::string_view page);

/// How often a piece stands in a text.
std::size_t countOf(std::string_view piece, std::string_view text);

/// What stands between the parentheses when a pen shows a text; empty for a blank one.
std::string postScriptString(std::string_view text);

}  // namespace vrel::test
