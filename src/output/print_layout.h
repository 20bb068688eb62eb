// How a report is laid out on pages of paper: the size of the font, the widths of the columns, and
// where columns and rows are cut.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/task_progress.h"
#include "model/report_pages.h"
#include "output/print_job.h"

namespace vrel {

/// Every text has a gap of one line's height behind it.
inline constexpr double kLineSpacing = 1.5;

/// What one pass over the texts of a z page tells, whatever the size of the font.
struct MeasuredPage {
  /// Per grid column, thousandths of the font size: its widest text and the gap.
  std::vector<std::uint32_t> units;
  std::size_t labelColumns = 0;
  std::size_t rows = 0;
  /// Lines of the highest heading.
  std::size_t headingLines = 0;
  bool isBeyondAscii = false;
};

/// Measures all headings and cells; progress is that of one part of the task. False when cancelled.
bool measurePage(const ReportGrid& grid, const FormatSettings& settings, TaskProgress& progress,
                 std::size_t part, MeasuredPage& measured);

/// The paper as it is read; points.
struct PageFrame {
  double width;
  double height;
  double sideMargin;
  double endMargin;

  double right() const { return width - sideMargin; }
};
PageFrame frameOf(const PrintJob& job);

/// A column's width in points.
inline double columnWidth(const MeasuredPage& measured, std::size_t column, double fontSize) {
  return measured.units[column] * fontSize / 1000;
}

/// The width of all label columns in points.
double labelWidth(const MeasuredPage& measured, double fontSize);

/// More pages than anybody asks for: counted when a single column or row does not fit.
inline constexpr std::size_t kNeverFits = 999999999;

/// How many pages the search for a font size counts beside each other, and below each other.
std::size_t pagesAcross(const PrintJob& job, const MeasuredPage& measured, double fontSize);
std::size_t pagesDown(const PrintJob& job, const MeasuredPage& measured, double fontSize);

/// The size of the font without any fit.
double fixedFontSize(const PrintJob& job);
/// The size with which a z page meets all fits of the job.
double fitFontSize(const PrintJob& job, const MeasuredPage& measured);

/// Rows, at most `rows`, that stand on a page under `headingLines` lines of headings; may be 0.
std::size_t rowsOnPage(const PageFrame& frame, std::size_t headingLines, double lineHeight,
                       std::size_t rows);

/// Pages for a report's rows; a report without any has one page.
std::size_t pagesFor(std::size_t rows, std::size_t rowsOnEach);

/// The columns of a page across.
struct ColumnBlock {
  bool hasLabels;
  /// Data columns by their grid columns.
  std::size_t first;
  std::size_t end;
  /// The first of them is wider than the page: the document ends here.
  bool isTooWide;
};

/// Cuts the columns of a z page; there is one block at least.
std::vector<ColumnBlock> cutColumns(const PrintJob& job, const MeasuredPage& measured,
                                    double fontSize);

/// What is settled before the first page is written.
struct PrintLayout {
  double fontSize = 0;
  /// Headings that are too high for the paper are left out of the whole document.
  bool hasHeadings = true;
  /// Some text of the report takes more than ASCII.
  bool isBeyondAscii = false;
  std::size_t totalPages = 0;
  /// One per z page. To get one with its units, call `recallPage`.
  std::vector<MeasuredPage> pages;
  /// The last one that was measured again.
  MeasuredPage recalled;

  double lineHeight() const { return kLineSpacing * fontSize; }
  std::size_t headingLines(const MeasuredPage& page) const {
    return hasHeadings ? page.headingLines : 0;
  }
};

/// What the steps of a print work on.
struct PrintTask {
  const PrintJob& job;
  ReportPages& pages;
  const FormatSettings& settings;
  TaskProgress& progress;
};

/// The units of so many columns are kept from one pass to the next. A document of many z pages may
/// have more: those are measured again.
inline constexpr std::size_t kMostKeptColumns = 1'000'000;

/// Lays out the whole document in one pass over all texts; each z page is a part of the task. False
/// when cancelled.
bool layOutPrint(const PrintTask& task, PrintLayout& layout,
                 std::size_t mostKeptColumns = kMostKeptColumns);

/// The measures of a z page; measured again, as a part of the task, when they were not kept. Null
/// when cancelled.
const MeasuredPage* recallPage(const PrintTask& task, PrintLayout& layout, std::size_t page,
                               std::size_t part);

/// Rows on each page of a z page, 1 at least.
std::size_t rowsPerPage(const PrintJob& job, const PrintLayout& layout, const MeasuredPage& page);

}  // namespace vrel
