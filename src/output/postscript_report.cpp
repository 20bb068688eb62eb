#include "output/postscript_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/words.h"
#include "model/cell_texts.h"
#include "model/date.h"
#include "output/postscript_pen.h"
#include "output/postscript_prolog.h"
#include "output/print_layout.h"

namespace vrel {
namespace {

constexpr const char* kTooWide = "Error: Column {} is too wide - cannot print report.";
constexpr const char* kTrySmaller = "Try a smaller font: font size currently equals {:f})";
constexpr const char* kPageNumber = "Page: {}.{}   ({} of {})";
constexpr const char* kDatePattern = "%d %b %Y %H:%M";

constexpr double kErrorFontSize = 20;
constexpr double kTitleScale = 1.25;
constexpr double kLargestTitleSize = 500;

/// A page may have all rows of the report, but mostly it has few.
constexpr std::size_t kRowsAtOnce = 16;

/// The labels of pages with more rows are drawn anew on every page.
constexpr std::size_t kMostKeptRows = 10'000;

/// Headings of further columns are drawn anew on every page.
constexpr std::size_t kMostKeptBytes = std::size_t{4} << 20;

/// What stands on every page of a document.
struct Furniture {
  std::string title;
  std::string footer;
  std::string date;
  /// The z page's name.
  std::string header;
};

Furniture furnitureOf(const PrintJob& job) {
  Furniture furniture{.title = job.title, .footer = job.footer, .date = {}, .header = {}};
  appendDate(furniture.date, job.created, kDatePattern, Quoting::None);
  return furniture;
}

std::string headerOf(const PrintTask& task, std::size_t page) {
  return task.pages.hasNames() ? task.pages.name(page, task.settings) : " ";
}

bool isBeyondAscii(std::string_view text) {
  return measureText(findFontMetrics(kBodyFont), text).isBeyondAscii;
}

/// Whether any text of the document is.
bool isBeyondAscii(const PrintTask& task, const PrintLayout& layout, const Furniture& furniture) {
  if (layout.isBeyondAscii || isBeyondAscii(furniture.title) || isBeyondAscii(furniture.footer) ||
      isBeyondAscii(furniture.date)) {
    return true;
  }
  for (std::size_t page = 0; page < task.pages.count(); ++page) {
    if (isBeyondAscii(headerOf(task, page))) {
      return true;
    }
  }
  return false;
}

/// Where a page of paper stands in the report: counted from 0.
struct PagePlace {
  std::size_t rowBlock;
  std::size_t columnBlock;
};

enum class Outcome { Done, TooWide, Cancelled };

/// Writes the pages of one z page.
class PageWriter {
 public:
  PageWriter(const PrintTask& task, const PrintLayout& layout, const MeasuredPage& measured,
             const ReportGrid& grid, PostScriptPen& pen, CoordinateTexts& coordinates)
      : task_(task),
        job_(task.job),
        frame_(frameOf(task.job)),
        layout_(layout),
        measured_(measured),
        grid_(grid),
        pen_(pen),
        coordinates_(coordinates),
        texts_(grid, task.settings),
        numbers_(kBodyFont, layout.fontSize, task.settings),
        blocks_(cutColumns(task.job, measured, layout.fontSize)),
        rowsPerPage_(rowsPerPage(task.job, layout, measured)),
        lineHeight_(layout.lineHeight()),
        firstLine_(frame_.height - frame_.endMargin -
                   static_cast<double>(layout.headingLines(measured) + 3) * lineHeight_),
        headings_(blocks_.size()) {}

  /// `pageNumber` is that of the page before; `part` is the task's part.
  Outcome write(const Furniture& furniture, std::size_t part, std::int64_t& pageNumber) {
    for (std::size_t rowBlock = 0; rowBlock < pagesDown(); ++rowBlock) {
      for (std::size_t columnBlock = 0; columnBlock < blocks_.size(); ++columnBlock) {
        const Outcome outcome = writePage(furniture, {rowBlock, columnBlock}, part, ++pageNumber);
        if (outcome != Outcome::Done) {
          return outcome;
        }
      }
    }
    return Outcome::Done;
  }

 private:
  std::size_t pagesDown() const { return pagesFor(grid_.rows, rowsPerPage_); }
  double widthOf(std::size_t column) const {
    return columnWidth(measured_, column, layout_.fontSize);
  }
  double lineAt(std::size_t row) const {
    return firstLine_ - static_cast<double>(row) * lineHeight_;
  }
  std::size_t rowsOf(std::size_t rowBlock) const {
    return std::min(rowsPerPage_, grid_.rows - rowBlock * rowsPerPage_);
  }

  Outcome writePage(const Furniture& furniture, const PagePlace& place, std::size_t part,
                    std::int64_t pageNumber) {
    const ColumnBlock& block = blocks_[place.columnBlock];
    pen_.text().write(fmt::format("%%Page: {0} {0}\n", pageNumber));
    setUpPage();
    if (block.isTooWide) {
      writeErrorPage(block.first);
      return Outcome::TooWide;
    }
    placeColumns(block);
    writeLabels(block, place.rowBlock);
    writeHeadings(block, place);
    writeFurniture(furniture, place, pageNumber);
    if (!writeRows(block, place, part)) {
      return Outcome::Cancelled;
    }
    if (job_.gridLines && block.first < block.end && grid_.rows > 0) {
      writeGridLines(rowsOf(place.rowBlock));
    }
    pen_.text().write("showpage\n");
    return Outcome::Done;
  }

  void setUpPage() {
    if (job_.landscape) {
      pen_.text().write(fmt::format("90 rotate 0 -{:.4f} translate\n", frame_.height));
    }
    if (job_.gridLines) {
      pen_.text().write("0.25 setlinewidth\n");
    }
  }

  void writeErrorPage(std::size_t column) {
    pen_.selectFont(kBodyFont, kErrorFontSize);
    pen_.show(100, 100, fmt::format(kTooWide, column + 1));
    pen_.show(100, 130, fmt::format(kTrySmaller, layout_.fontSize));
    pen_.text().write("showpage\n");
  }

  void placeColumns(const ColumnBlock& block) {
    double x = frame_.sideMargin;
    labelEdges_.assign(1, x);
    for (std::size_t column = 0; block.hasLabels && column < grid_.labelColumns; ++column) {
      x += widthOf(column);
      labelEdges_.push_back(x);
    }
    edges_.assign(1, x);
    widths_.clear();
    for (std::size_t column = block.first; column < block.end; ++column) {
      widths_.push_back(widthOf(column));
      x += widths_.back();
      edges_.push_back(x);
    }
  }

  void writeLabels(const ColumnBlock& block, std::size_t rowBlock) {
    if (!block.hasLabels) {
      return;
    }
    if (blocks_.size() == 1 || rowsPerPage_ > kMostKeptRows) {
      drawLabels(rowBlock, pen_);
      return;
    }
    if (labelsOf_ != rowBlock) {
      labels_ = marks([this, rowBlock](PostScriptPen& pen) { drawLabels(rowBlock, pen); });
      labelsOf_ = rowBlock;
    }
    pen_.text().write(labels_);
  }

  void writeHeadings(const ColumnBlock& block, const PagePlace& place) {
    if (!layout_.hasHeadings || (place.rowBlock > 0 && !job_.repeatHeadings)) {
      return;
    }
    std::string& kept = headings_[place.columnBlock];
    if (!kept.empty()) {
      pen_.text().write(kept);
      return;
    }
    std::string drawn = marks([this, &block](PostScriptPen& pen) { drawHeadings(block, pen); });
    pen_.text().write(drawn);
    if (keptBytes_ + drawn.size() <= kMostKeptBytes) {
      keptBytes_ += drawn.size();
      kept = std::move(drawn);
    }
  }

  // What a drawing with a pen of its own writes.
  template <typename Draw>
  std::string marks(Draw draw) {
    drawn_.clear();
    {
      PostScriptPen pen(drawnOutput_, coordinates_);
      pen.assumeFont(kBodyFont, layout_.fontSize);
      draw(pen);
    }
    drawnOutput_.flush();
    return drawn_;
  }

  void drawLabels(std::size_t rowBlock, PostScriptPen& pen) {
    const std::size_t firstRow = rowBlock * rowsPerPage_;
    for (std::size_t row = 0; row < rowsOf(rowBlock); ++row) {
      for (std::size_t column = 0; column < grid_.labelColumns; ++column) {
        pen.show(labelEdges_[column], lineAt(row), texts_.label(firstRow + row, column));
      }
    }
  }

  void drawHeadings(const ColumnBlock& block, PostScriptPen& pen) {
    for (std::size_t column = 0; block.hasLabels && column < grid_.labelColumns; ++column) {
      drawHeading(column, labelEdges_[column], pen);
    }
    for (std::size_t column = block.first; column < block.end; ++column) {
      drawHeading(column, edges_[column - block.first], pen);
    }
  }

  // The last line of each heading stands right above the first row.
  void drawHeading(std::size_t column, double x, PostScriptPen& pen) {
    const std::string heading = columnHeading(grid_, task_.settings, column);
    const std::vector<std::string_view> lines = linesOf(heading);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const double y = firstLine_ + static_cast<double>(lines.size() - i) * lineHeight_;
      pen.showCentred(x + lineHeight_ / 4, widthOf(column), y, lines[i]);
    }
  }

  void writeFurniture(const Furniture& furniture, const PagePlace& place, std::int64_t pageNumber) {
    const double left = frame_.sideMargin;
    const double width = frame_.width - 2 * frame_.sideMargin;
    const double top = frame_.height - frame_.endMargin - lineHeight_;
    const double bottom = frame_.endMargin;
    pen_.selectFont(kTitleFont, std::min(kTitleScale * layout_.fontSize, kLargestTitleSize));
    pen_.showCentred(left, width, top, furniture.title);
    pen_.selectFont(kBodyFont, layout_.fontSize);
    pen_.showRight(left, width, top, furniture.header);
    pen_.show(left, bottom, furniture.date);
    pen_.showCentred(left, width, bottom, furniture.footer);
    pen_.showRight(left, width, bottom,
                   fmt::format(kPageNumber, place.rowBlock + 1, place.columnBlock + 1, pageNumber,
                               layout_.totalPages));
  }

  // The data cells. False when cancelled.
  bool writeRows(const ColumnBlock& block, const PagePlace& place, std::size_t part) {
    const std::size_t firstRow = place.rowBlock * rowsPerPage_;
    const std::size_t page = place.rowBlock * blocks_.size() + place.columnBlock;
    const std::size_t steps = pagesDown() * blocks_.size() * rowsPerPage_;
    const std::size_t rows = rowsOf(place.rowBlock);
    for (std::size_t row = 0; row < rows; row += kRowsAtOnce) {
      if (!task_.progress.at(part, page * rowsPerPage_ + row, steps)) {
        return false;
      }
      const std::size_t count = std::min(kRowsAtOnce, rows - row);
      for (std::size_t i = 0; i < count; ++i) {
        findRowCells(grid_, firstRow + row + i, {block.first, block.end}, cells_[i]);
        for (const RowCell& cell : cells_[i]) {
          if (cell.tuple != RowCell::kSummary) {
            // A page's cells stand far apart in the table.
            __builtin_prefetch(grid_.table->tuple(cell.tuple) + grid_.dataFields[cell.data]);
          }
        }
      }
      for (std::size_t i = 0; i < count; ++i) {
        const double y = lineAt(row + i);
        for (const RowCell& cell : cells_[i]) {
          writeCell(cell, cell.column - block.first, y);
        }
      }
    }
    return true;
  }

  // `place` is the column's place on the page.
  void writeCell(const RowCell& cell, std::size_t place, double y) {
    const double x = edges_[place];
    const double width = widths_[place];
    if (const std::optional<double> number = texts_.number(cell)) {
      pen_.showRight(x, width, y, numbers_.make(*number));
    } else {
      pen_.showRight(x, width, y, texts_.text(cell));
    }
  }

  // Each cell's box begins a quarter of a line right of its column's edge and below its text.
  void writeGridLines(std::size_t rows) {
    const double shift = lineHeight_ / 4;
    const double above = lineHeight_ - shift;
    const double bottom = lineAt(rows - 1) - shift;
    LineSet across(pen_);
    for (std::size_t row = 0; row < rows; ++row) {
      const double y = lineAt(row) + above;
      across.add(edges_.front() + shift, y, edges_.back() + shift, y);
    }
    across.add(edges_.front() + shift, bottom, edges_.back() + shift, bottom);
    across.finish();
    LineSet down(pen_);
    for (const double edge : edges_) {
      down.add(edge + shift, lineAt(0) + above, edge + shift, bottom);
    }
    down.finish();
  }

  const PrintTask& task_;
  const PrintJob& job_;
  const PageFrame frame_;
  const PrintLayout& layout_;
  const MeasuredPage& measured_;
  const ReportGrid& grid_;
  PostScriptPen& pen_;
  CoordinateTexts& coordinates_;
  CellTexts texts_;
  NumberTexts numbers_;
  const std::vector<ColumnBlock> blocks_;
  const std::size_t rowsPerPage_;
  const double lineHeight_;
  /// The base of the first row.
  const double firstLine_;
  /// The same marks stand on all pages across for a block of rows, and on all pages down for a
  /// block of columns.
  std::string labels_;
  std::optional<std::size_t> labelsOf_;
  /// What `marks` draws into.
  std::string drawn_;
  TextOutput drawnOutput_ = TextOutput::toMemory(drawn_);
  std::vector<std::string> headings_;
  std::size_t keptBytes_ = 0;
  /// The left edges of the label columns, and the right one of the last.
  std::vector<double> labelEdges_;
  /// The left edges of the present page's data columns, and the right one of the last.
  std::vector<double> edges_;
  std::vector<double> widths_;
  /// The present row's.
  std::array<std::vector<RowCell>, kRowsAtOnce> cells_;
};

/// Writes everything behind the prolog. False when cancelled.
bool writePages(const PrintTask& task, PrintLayout& layout, Furniture& furniture,
                PostScriptPen& pen, CoordinateTexts& coordinates) {
  const std::size_t count = task.pages.count();
  std::int64_t pageNumber = task.job.firstPageNumber;
  for (std::size_t page = 0; page < count; ++page) {
    const MeasuredPage* const measured = recallPage(task, layout, page, count + page);
    if (measured == nullptr) {
      return false;
    }
    furniture.header = headerOf(task, page);
    PageWriter writer(task, layout, *measured, task.pages.layOut(page), pen, coordinates);
    const Outcome outcome = writer.write(furniture, count + page, pageNumber);
    if (outcome != Outcome::Done) {
      return outcome == Outcome::TooWide;
    }
  }
  return true;
}

}  // namespace

bool writePostScript(const PrintJob& job, ReportPages& pages, const FormatSettings& settings,
                     TextOutput& output, TaskProgress& progress) {
  progress.setParts(2 * pages.count());
  const PrintTask task{job, pages, settings, progress};
  PrintLayout layout;
  if (!layOutPrint(task, layout)) {
    return false;
  }
  Furniture furniture = furnitureOf(job);
  CoordinateTexts coordinates;
  PostScriptPen pen(output, coordinates);
  writeProlog(job,
              {.totalPages = layout.totalPages,
               .fontSize = layout.fontSize,
               .isBeyondAscii = isBeyondAscii(task, layout, furniture)},
              pen);
  return writePages(task, layout, furniture, pen, coordinates);
}

}  // namespace vrel
