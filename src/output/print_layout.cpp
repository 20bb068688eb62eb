#include "output/print_layout.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>

#include "model/cell_texts.h"
#include "output/font_metrics.h"
#include "output/text_measuring.h"

namespace vrel {
namespace {

constexpr std::uint64_t kGapUnits = 1500;

constexpr double kSmallestSize = 0.001;
constexpr double kLargestFitSize = 50;
constexpr double kLargestFixedSize = 30;
constexpr double kLargestSize = 500;
constexpr double kLeastSize = 3;
/// The bounds of the search for a size are this close in the end.
constexpr double kSizeAccuracy = 0.0001;
/// No size may give the number of pages exactly; by then the bounds are as close as numbers get.
constexpr int kMostProbes = 200;
/// A fit keeps off the margin by this much.
constexpr double kFitReserve = 2;

/// The numbers of a column that were measured so far. As all digits are equally wide, numbers
/// between the least and the most of them are no wider than these.
struct NumberRange {
  double least = std::numeric_limits<double>::infinity();
  double most = -std::numeric_limits<double>::infinity();

  bool holds(double number) const {
    const bool isMinusZero = number == 0 && std::signbit(number);
    return number >= least && number <= most && !isMinusZero;
  }
  void add(double number) {
    // What is larger may show as a star.
    if (std::abs(number) < kUnbounded) {
      least = std::min(least, number);
      most = std::max(most, number);
    }
  }
};

class Measurer {
 public:
  explicit Measurer(MeasuredPage& measured)
      : measured_(measured), font_(findFontMetrics(kBodyFont)), numbers_(measured.units.size()) {}

  void addCell(CellTexts& texts, const RowCell& cell) {
    if (const std::optional<double> number = texts.number(cell)) {
      NumberRange& range = numbers_[cell.column];
      if (range.holds(*number)) {
        return;
      }
      range.add(*number);
    }
    add(cell.column, texts.text(cell));
  }

  void add(std::size_t column, std::string_view text) {
    const TextMeasure measure = measureText(font_, text);
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    const auto units = static_cast<std::uint32_t>(std::min(measure.units + kGapUnits, kMost));
    measured_.units[column] = std::max(measured_.units[column], units);
    measured_.isBeyondAscii |= measure.isBeyondAscii;
  }

 private:
  MeasuredPage& measured_;
  const FontMetrics& font_;
  std::vector<NumberRange> numbers_;
};

double clampedSize(double size) {
  return size > 0 ? std::min(size, kLargestSize) : kLeastSize;
}

bool hasFit(const PrintJob& job) {
  return job.bestOnePageFit || job.fitToWidth || job.fitToHeight;
}

/// The largest size that gives at most the wanted number of pages, as far as a bisection finds it.
double findSize(std::size_t wanted, const std::function<std::size_t(double)>& pagesAt) {
  double low = kSmallestSize;
  double high = kLargestFitSize;
  for (int probe = 0; probe < kMostProbes; ++probe) {
    const double size = (low + high) / 2;
    const std::size_t pages = pagesAt(size);
    (pages <= wanted ? low : high) = size;
    if (high - low < kSizeAccuracy && pages == wanted) {
      break;
    }
  }
  return low;
}

/// The same size or the next smaller one, in steps, that gives a single page. A smaller size never
/// gives more pages, so that the number of steps is searched for by halving.
double lowerToOnePage(double size, const std::function<std::size_t(double)>& pagesAt) {
  const auto lowered = [size](std::int64_t steps) {
    return size - static_cast<double>(steps) * kSmallestSize;
  };
  std::int64_t steps = 0;
  auto most = std::max<std::int64_t>(static_cast<std::int64_t>(size / kSmallestSize) - 1, 0);
  while (steps < most) {
    const std::int64_t middle = steps + (most - steps) / 2;
    if (pagesAt(lowered(middle)) == 1) {
      most = middle;
    } else {
      steps = middle + 1;
    }
  }
  return lowered(steps);
}

std::size_t atLeastOne(int pages) {
  return static_cast<std::size_t>(std::max(pages, 1));
}

/// Whether the report is longer than the paper, by their shapes.
bool isLongerThanPaper(const PrintJob& job, const MeasuredPage& measured) {
  const PageFrame frame = frameOf(job);
  double width = 0;
  for (std::size_t column = 0; column < measured.units.size(); ++column) {
    width += columnWidth(measured, column, 1);
  }
  const double height = static_cast<double>(measured.rows) * kLineSpacing;
  return frame.height / frame.width <= height / width;
}

/// The end of the data columns that fit between `x` and `right`, beginning with `first`.
std::size_t endOfBlock(const MeasuredPage& measured, double fontSize, std::size_t first, double x,
                       double right) {
  std::size_t end = first;
  while (end < measured.units.size()) {
    const double next = x + columnWidth(measured, end, fontSize);
    if (next > right) {
      break;
    }
    x = next;
    ++end;
  }
  return end;
}

/// Whether all headings of the document find room on its pages, and a row below them.
bool headingsFit(const PrintJob& job, const PrintLayout& layout) {
  const PageFrame frame = frameOf(job);
  const double lineHeight = layout.lineHeight();
  return std::all_of(layout.pages.begin(), layout.pages.end(), [&](const MeasuredPage& page) {
    return rowsOnPage(frame, page.headingLines, lineHeight, 1) > 0;
  });
}

/// Measures all z pages and finds the font size. False when cancelled.
bool measureAll(const PrintTask& task, std::size_t mostKeptColumns, PrintLayout& layout) {
  const bool fits = hasFit(task.job);
  layout.fontSize = fits ? kLargestSize : fixedFontSize(task.job);
  std::size_t columns = 0;
  for (std::size_t page = 0; page < task.pages.count(); ++page) {
    MeasuredPage& measured = layout.pages.emplace_back();
    if (!measurePage(task.pages.layOut(page), task.settings, task.progress, page, measured)) {
      return false;
    }
    if (fits) {
      layout.fontSize = std::min(layout.fontSize, fitFontSize(task.job, measured));
    }
    layout.isBeyondAscii |= measured.isBeyondAscii;
    columns += measured.units.size();
    if (columns > mostKeptColumns) {
      measured.units = {};
    }
  }
  return true;
}

/// Counts the pages of the document. False when cancelled.
bool countPages(const PrintTask& task, PrintLayout& layout) {
  for (std::size_t page = 0; page < task.pages.count(); ++page) {
    const MeasuredPage* const measured = recallPage(task, layout, page, page);
    if (measured == nullptr) {
      return false;
    }
    const std::vector<ColumnBlock> blocks = cutColumns(task.job, *measured, layout.fontSize);
    if (blocks.back().isTooWide) {
      layout.totalPages += blocks.size();
      return true;
    }
    const std::size_t down = pagesFor(measured->rows, rowsPerPage(task.job, layout, *measured));
    layout.totalPages += blocks.size() * down;
  }
  return true;
}

}  // namespace

bool measurePage(const ReportGrid& grid, const FormatSettings& settings, TaskProgress& progress,
                 std::size_t part, MeasuredPage& measured) {
  measured = {.units = std::vector<std::uint32_t>(grid.columns),
              .labelColumns = grid.labelColumns,
              .rows = grid.rows};
  Measurer measurer(measured);
  const auto headingLines = measureTexts(grid, settings, progress, part, measurer);
  measured.headingLines = headingLines.value_or(0);
  return headingLines.has_value();
}

PageFrame frameOf(const PrintJob& job) {
  return {.width = job.landscape ? job.pageHeight : job.pageWidth,
          .height = job.landscape ? job.pageWidth : job.pageHeight,
          .sideMargin = job.sideMargin,
          .endMargin = job.endMargin};
}

std::size_t pagesFor(std::size_t rows, std::size_t rowsOnEach) {
  return std::max<std::size_t>((rows + rowsOnEach - 1) / rowsOnEach, 1);
}

double labelWidth(const MeasuredPage& measured, double fontSize) {
  double width = 0;
  for (std::size_t column = 0; column < measured.labelColumns; ++column) {
    width += columnWidth(measured, column, fontSize);
  }
  return width;
}

std::size_t pagesAcross(const PrintJob& job, const MeasuredPage& measured, double fontSize) {
  const PageFrame frame = frameOf(job);
  const double labels = labelWidth(measured, fontSize);
  std::size_t pages = 0;
  std::size_t first = measured.labelColumns;
  while (first < measured.units.size()) {
    const double x = frame.sideMargin + (pages == 0 || job.repeatLabels ? labels : 0);
    const std::size_t end = endOfBlock(measured, fontSize, first, x, frame.right() - kFitReserve);
    if (end == first) {
      return kNeverFits;
    }
    first = end;
    ++pages;
  }
  return std::max<std::size_t>(pages, 1);
}

std::size_t pagesDown(const PrintJob& job, const MeasuredPage& measured, double fontSize) {
  const std::size_t rows = rowsOnPage(frameOf(job), measured.headingLines, kLineSpacing * fontSize,
                                      std::max<std::size_t>(measured.rows, 1));
  return rows == 0 ? kNeverFits : pagesFor(measured.rows, rows);
}

double fixedFontSize(const PrintJob& job) {
  return std::min(clampedSize(job.fontSize), kLargestFixedSize);
}

double fitFontSize(const PrintJob& job, const MeasuredPage& measured) {
  const auto across = [&](double size) { return pagesAcross(job, measured, size); };
  const auto down = [&](double size) { return pagesDown(job, measured, size); };
  const bool best = job.bestOnePageFit;
  const bool bestIsHeight = best && isLongerThanPaper(job, measured);
  const bool bestIsWidth = best && !bestIsHeight;
  double found = kLargestSize;
  if (job.fitToWidth || bestIsWidth) {
    const double size = findSize(bestIsWidth ? 1 : atLeastOne(job.widthPages), across);
    found = std::min(found, best ? lowerToOnePage(size, down) : size);
  }
  if (job.fitToHeight || bestIsHeight) {
    const double size = findSize(bestIsHeight ? 1 : atLeastOne(job.heightPages), down);
    found = std::min(found, best ? lowerToOnePage(size, across) : size);
  }
  return clampedSize(found);
}

std::size_t rowsOnPage(const PageFrame& frame, std::size_t headingLines, double lineHeight,
                       std::size_t rows) {
  const double height = frame.height - frame.endMargin -
                        static_cast<double>(headingLines + 3) * lineHeight - frame.endMargin -
                        3 * lineHeight + 0.5 * lineHeight;
  const auto startsWithin = [&](std::size_t row) {
    return static_cast<double>(row) * lineHeight < height;
  };
  if (!startsWithin(0)) {
    return 0;
  }
  if (startsWithin(rows)) {
    return rows;
  }
  // The division may be off by its rounding.
  auto count = static_cast<std::size_t>(height / lineHeight);
  while (startsWithin(count)) {
    ++count;
  }
  while (!startsWithin(count - 1)) {
    --count;
  }
  return std::min(count, rows);
}

std::vector<ColumnBlock> cutColumns(const PrintJob& job, const MeasuredPage& measured,
                                    double fontSize) {
  const PageFrame frame = frameOf(job);
  const double labels = labelWidth(measured, fontSize);
  const bool labelsFit = labels <= frame.width - 2 * frame.sideMargin;
  const std::size_t columns = measured.units.size();
  std::size_t first = measured.labelColumns;
  std::vector<ColumnBlock> blocks;
  if (!labelsFit) {
    blocks.push_back({.hasLabels = true, .first = first, .end = first, .isTooWide = false});
  }
  while (first < columns || blocks.empty()) {
    const bool hasLabels = labelsFit && (blocks.empty() || job.repeatLabels);
    const double x = frame.sideMargin + (hasLabels ? labels : 0);
    const std::size_t end = endOfBlock(measured, fontSize, first, x, frame.right());
    const bool isTooWide = end == first && first < columns;
    blocks.push_back({hasLabels, first, end, isTooWide});
    if (isTooWide) {
      break;
    }
    first = end;
  }
  return blocks;
}

bool layOutPrint(const PrintTask& task, PrintLayout& layout, std::size_t mostKeptColumns) {
  if (!measureAll(task, mostKeptColumns, layout)) {
    return false;
  }
  layout.hasHeadings = headingsFit(task.job, layout);
  return countPages(task, layout);
}

const MeasuredPage* recallPage(const PrintTask& task, PrintLayout& layout, std::size_t page,
                               std::size_t part) {
  MeasuredPage& kept = layout.pages[page];
  if (!kept.units.empty()) {
    return &kept;
  }
  const ReportGrid& grid = task.pages.layOut(page);
  const bool done = measurePage(grid, task.settings, task.progress, part, layout.recalled);
  return done ? &layout.recalled : nullptr;
}

std::size_t rowsPerPage(const PrintJob& job, const PrintLayout& layout, const MeasuredPage& page) {
  const std::size_t rows = rowsOnPage(frameOf(job), layout.headingLines(page), layout.lineHeight(),
                                      std::max<std::size_t>(page.rows, 1));
  return std::max<std::size_t>(rows, 1);
}

}  // namespace vrel
