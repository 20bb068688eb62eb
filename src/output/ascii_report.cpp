#include "output/ascii_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "base/utf8.h"
#include "base/words.h"
#include "model/cell_texts.h"
#include "output/text_measuring.h"

namespace vrel {
namespace {

constexpr char kFormFeed = '\f';

// What stands between two columns, and between their dashes under the headings.
struct Furniture {
  std::string_view gap;
  std::string_view crossing;
};
constexpr Furniture kLined = {" | ", "-+-"};
constexpr Furniture kPlain = {"  ", {}};

enum class Side { Left, Centre, Right };

void appendPadded(std::string& line, std::string_view text, std::size_t width, Side side) {
  const std::size_t spare = width - std::min(characterCount(text), width);
  std::size_t before = 0;
  if (side != Side::Left) {
    before = side == Side::Right ? spare : spare / 2;
  }
  const std::size_t start = line.size() + before;
  line.append(before, ' ');
  line += text;
  // A control character would break the page.
  std::replace_if(
      line.begin() + static_cast<std::ptrdiff_t>(start), line.end(),
      [](char byte) { return static_cast<unsigned char>(byte) < ' '; }, ' ');
  line.append(spare - before, ' ');
}

std::string padded(std::string_view text, std::size_t width, Side side) {
  std::string line;
  appendPadded(line, text, width, side);
  return line;
}

// The columns that stand on one page: the label columns or none of them, then a range of data
// columns.
struct ColumnBlock {
  std::size_t labels = 0;
  ColumnRange data;
};

// How wide and how high everything is, in characters and lines.
struct Measures {
  std::vector<std::size_t> widths;
  // Lines of the highest heading.
  std::size_t headingHeight = 0;

  void add(std::size_t column, std::string_view text) {
    widths[column] = std::max(widths[column], characterCount(text));
  }
  void addCell(CellTexts& texts, const RowCell& cell) { add(cell.column, texts.text(cell)); }
};

// The progress is that of one part of the task. Nothing when cancelled.
std::optional<Measures> measure(const ReportGrid& grid, const FormatSettings& settings,
                                TaskProgress& progress, std::size_t part) {
  Measures measures;
  measures.widths.assign(grid.columns, 0);
  const auto headingLines = measureTexts(grid, settings, progress, part, measures);
  if (!headingLines) {
    return std::nullopt;
  }
  measures.headingHeight = *headingLines;
  return measures;
}

// Cuts the columns into blocks that are no wider than a page. Each block behind the first has one
// data column at least; so has the first, unless the labels leave no room for it.
class ColumnCutter {
 public:
  ColumnCutter(const AsciiJob& job, const ReportGrid& grid, const Measures& measures)
      : job_(job),
        grid_(grid),
        widths_(measures.widths),
        gap_((job.gridLines ? kLined : kPlain).gap.size()) {
    for (std::size_t column = 0; column < grid_.labelColumns; ++column) {
      labelWidth_ += widths_[column] + gap_;
    }
  }

  std::vector<ColumnBlock> cut() const {
    std::vector<ColumnBlock> blocks;
    std::size_t column = grid_.labelColumns;
    if (!hasRoomBesideLabels(column)) {
      blocks.push_back({grid_.labelColumns, {column, column}});
    }
    while (column < grid_.columns || blocks.empty()) {
      const bool labels = (job_.repeatLabels || blocks.empty()) && hasRoomBesideLabels(column);
      const std::size_t end = endOfBlock(column, labels ? labelWidth_ : 0);
      blocks.push_back({labels ? grid_.labelColumns : 0, {column, end}});
      column = end;
    }
    return blocks;
  }

 private:
  // A column that is wider than any page takes the labels along.
  bool hasRoomBesideLabels(std::size_t column) const {
    const std::size_t width = column < grid_.columns ? widths_[column] : 0;
    return labelWidth_ + width <= job_.pageWidth ||
           (labelWidth_ < job_.pageWidth && width > job_.pageWidth);
  }

  std::size_t endOfBlock(std::size_t first, std::size_t taken) const {
    std::size_t end = first;
    while (end < grid_.columns && (end == first || taken + widths_[end] <= job_.pageWidth)) {
      taken += widths_[end] + gap_;
      ++end;
    }
    return end;
  }

  const AsciiJob& job_;
  const ReportGrid& grid_;
  const std::vector<std::size_t>& widths_;
  const std::size_t gap_;
  // Their gaps included.
  std::size_t labelWidth_ = 0;
};

// Writes the pages of one z page.
class PageWriter {
 public:
  // The progress is that of one part of the task.
  PageWriter(const AsciiJob& job, const ReportGrid& grid, const FormatSettings& settings,
             const Measures& measures, TextOutput& output, TaskProgress& progress, std::size_t part)
      : job_(job),
        furniture_(job.gridLines ? kLined : kPlain),
        grid_(grid),
        settings_(settings),
        measures_(measures),
        texts_(grid, settings),
        output_(output),
        progress_(progress),
        part_(part) {}

  // The page's name stands under the title. `isFirst` is whether the document begins here. False
  // when cancelled.
  bool write(std::string_view name, bool isFirst) {
    const std::vector<ColumnBlock> blocks = ColumnCutter(job_, grid_, measures_).cut();
    rowsToWrite_ = grid_.rows * blocks.size();
    std::size_t row = 0;
    std::size_t rowBlock = 0;
    do {
      const std::size_t end = std::min(row + rowsOfPage(name, rowBlock == 0), grid_.rows);
      for (std::size_t i = 0; i < blocks.size(); ++i) {
        if (!isFirst || rowBlock > 0 || i > 0) {
          output_.put(kFormFeed);
        }
        writeHead(headOf(name, fmt::format("{}", rowBlock + 1), fmt::format("{}", i + 1)));
        if (!writeBody(blocks[i], row, end, rowBlock == 0)) {
          return false;
        }
      }
      row = end;
      ++rowBlock;
    } while (row < grid_.rows);
    return true;
  }

 private:
  // The lines above the headings: the title with the page's number beside it, the page's name, and
  // an empty line.
  std::vector<std::string> headOf(std::string_view name, std::string_view rowBlock,
                                  std::string_view columnBlock) const {
    std::vector<std::string> lines;
    if (!job_.title.empty()) {
      for (const std::string_view line : linesOf(job_.title)) {
        lines.push_back(padded(line, job_.pageWidth, Side::Centre));
      }
    }
    if (!trimBlanks(name).empty()) {
      lines.push_back(padded(name, job_.pageWidth, Side::Centre));
    }
    const std::string number = pageNumber(rowBlock, columnBlock);
    const std::size_t numberAt = job_.pageWidth - std::min(characterCount(number), job_.pageWidth);
    std::string first = lines.empty() ? std::string() : lines.front();
    first.resize(first.find_last_not_of(' ') + 1);
    if (lines.empty() || characterCount(first) >= numberAt) {
      lines.insert(lines.begin(), padded(number, job_.pageWidth, Side::Right));
    } else {
      appendPadded(first, number, job_.pageWidth - characterCount(first), Side::Right);
      lines.front() = first;
    }
    lines.emplace_back();
    return lines;
  }

  std::string pageNumber(std::string_view rowBlock, std::string_view columnBlock) const {
    std::string text = job_.pageHeading;
    for (const auto& [mark, number] : {std::pair("%1", rowBlock), std::pair("%2", columnBlock)}) {
      const std::size_t place = text.find(mark);
      if (place != std::string::npos) {
        text.replace(place, 2, number);
      }
    }
    return text;
  }

  bool hasHeadings(bool firstRows) const { return firstRows || job_.repeatHeadings; }

  std::size_t headingLines(bool firstRows) const {
    const std::size_t rule = job_.gridLines ? 1 : 0;
    return hasHeadings(firstRows) ? measures_.headingHeight + rule : 0;
  }

  // The footer and the empty line above it.
  std::size_t footerLines() const { return job_.footer.empty() ? 0 : 2; }

  std::size_t rowsOfPage(std::string_view name, bool firstRows) const {
    const std::size_t other =
        headOf(name, "1", "1").size() + headingLines(firstRows) + footerLines();
    return std::max(job_.pageHeight, other + 1) - other;
  }

  void writeHead(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
      line_ = line;
      endLine();
    }
    linesWritten_ = lines.size();
  }

  // False when cancelled.
  bool writeBody(const ColumnBlock& block, std::size_t first, std::size_t end, bool firstRows) {
    if (hasHeadings(firstRows)) {
      writeHeadings(block);
    }
    for (std::size_t row = first; row < end; ++row) {
      if (!progress_.at(part_, rowsWritten_++, rowsToWrite_)) {
        return false;
      }
      writeRow(row, block);
    }
    linesWritten_ += headingLines(firstRows) + (end - first);
    writeFooter();
    return true;
  }

  void writeFooter() {
    if (job_.footer.empty()) {
      return;
    }
    for (; linesWritten_ + 1 < job_.pageHeight; ++linesWritten_) {
      endLine();
    }
    appendPadded(line_, job_.footer, job_.pageWidth, Side::Centre);
    endLine();
  }

  template <typename Action>
  void forEachColumn(const ColumnBlock& block, Action action) const {
    for (std::size_t column = 0; column < block.labels; ++column) {
      action(column);
    }
    for (std::size_t column = block.data.first; column < block.data.end; ++column) {
      action(column);
    }
  }

  // Headings stand at the bottom of their lines, each on its column's side.
  void writeHeadings(const ColumnBlock& block) {
    std::vector<std::string> headings;
    forEachColumn(block, [&](std::size_t column) {
      headings.push_back(columnHeading(grid_, settings_, column));
    });
    for (std::size_t line = measures_.headingHeight; line > 0; --line) {
      auto heading = headings.begin();
      forEachColumn(block, [&](std::size_t column) {
        const std::vector<std::string_view> lines = linesOf(*heading++);
        beginColumn(furniture_.gap);
        appendPadded(line_, line <= lines.size() ? lines[lines.size() - line] : std::string_view(),
                     measures_.widths[column], sideOf(column));
      });
      endLine();
    }
    if (job_.gridLines) {
      writeRule(block);
    }
  }

  void writeRule(const ColumnBlock& block) {
    forEachColumn(block, [this](std::size_t column) {
      beginColumn(furniture_.crossing);
      line_.append(measures_.widths[column], '-');
    });
    endLine();
  }

  Side sideOf(std::size_t column) const {
    return column < grid_.labelColumns ? Side::Left : Side::Right;
  }

  void writeRow(std::size_t row, const ColumnBlock& block) {
    findRowCells(grid_, row, block.data, cells_);
    auto cell = cells_.begin();
    forEachColumn(block, [&](std::size_t column) {
      beginColumn(furniture_.gap);
      std::string_view text;
      Side side = sideOf(column);
      if (column < grid_.labelColumns) {
        text = texts_.label(row, column);
      } else if (cell != cells_.end() && cell->column == column) {
        side = isNumber(*cell) ? Side::Right : Side::Left;
        text = texts_.text(*cell++);
      }
      appendPadded(line_, text, measures_.widths[column], side);
    });
    endLine();
  }

  bool isNumber(const RowCell& cell) const {
    return cell.tuple == RowCell::kSummary ||
           grid_.table->field(grid_.dataFields[cell.data]).hasNumbers();
  }

  void beginColumn(std::string_view gap) {
    line_ += atFirstColumn_ ? std::string_view() : gap;
    atFirstColumn_ = false;
  }

  // Writes the line without the blanks at its end.
  void endLine() {
    line_.resize(line_.find_last_not_of(' ') + 1);
    line_ += '\n';
    output_.write(line_);
    line_.clear();
    atFirstColumn_ = true;
  }

  const AsciiJob& job_;
  const Furniture furniture_;
  const ReportGrid& grid_;
  const FormatSettings& settings_;
  const Measures& measures_;
  CellTexts texts_;
  TextOutput& output_;
  std::vector<RowCell> cells_;
  // The line in hand, and whether it has no column yet.
  std::string line_;
  bool atFirstColumn_ = true;
  // On the page in hand.
  std::size_t linesWritten_ = 0;
  TaskProgress& progress_;
  const std::size_t part_;
  // Each row counts once for every block of columns.
  std::size_t rowsWritten_ = 0;
  std::size_t rowsToWrite_ = 0;
};

}  // namespace

bool writeAsciiReport(const AsciiJob& job, ReportPages& pages, const FormatSettings& settings,
                      TextOutput& output, TaskProgress& progress) {
  // Every page is passed over twice: to measure its columns and to write it.
  progress.setParts(2 * pages.count());
  for (std::size_t page = 0; page < pages.count(); ++page) {
    const ReportGrid& grid = pages.layOut(page);
    const std::optional<Measures> measures = measure(grid, settings, progress, 2 * page);
    if (!measures || !PageWriter(job, grid, settings, *measures, output, progress, 2 * page + 1)
                          .write(pages.name(page, settings), page == 0)) {
      return false;
    }
  }
  if (job.target == PageTarget::Printer) {
    output.put(kFormFeed);
  }
  return true;
}

}  // namespace vrel
