#include "output/html_headings.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/words.h"

namespace vrel {
namespace {

/// The lines of one heading, the topmost first; none when all of them are empty.
using HeadingLines = std::vector<std::string>;

/// The line feeds of a group tell on which level each value stands, so that its empty lines keep
/// their places. Those of other columns only pad the heading to the common height.
HeadingLines headingOf(const ReportGrid& grid, const FormatSettings& settings, std::size_t column) {
  const std::string heading = columnHeading(grid, settings, column);
  const std::vector<std::string_view> parts = linesOf(heading);
  HeadingLines lines(parts.begin(), parts.end());
  const auto isEmpty = [](const std::string& line) { return line.empty(); };
  const bool isGroup =
      column >= grid.labelColumns && columnLineAt(grid, column).kind == LineKind::Group;
  if (!isGroup || std::all_of(lines.begin(), lines.end(), isEmpty)) {
    std::erase_if(lines, isEmpty);
  }
  return lines;
}

class HeadingWriter {
 public:
  HeadingWriter(const ReportGrid& grid, const FormatSettings& settings, TextPen& pen) : pen_(pen) {
    headings_.reserve(grid.columns);
    for (std::size_t column = 0; column < grid.columns; ++column) {
      headings_.push_back(headingOf(grid, settings, column));
      height_ = std::max(height_, headings_.back().size());
    }
    const auto labelsEnd = headings_.begin() + static_cast<std::ptrdiff_t>(grid.labelColumns);
    const auto first = std::find_if(labelsEnd, headings_.end(),
                                    [](const HeadingLines& lines) { return !lines.empty(); });
    cornerWidth_ = static_cast<std::size_t>(first - headings_.begin());
  }

  void write() {
    for (std::size_t row = 0; row < height_; ++row) {
      pen_.write("<tr align=left>\n");
      // A cell of no columns would push the headings out of their places.
      if (row == 0 && cornerWidth_ > 0) {
        pen_.write(fmt::format("<th rowspan={} colspan={}></th>\n", height_, cornerWidth_));
      }
      writeRow(row);
      pen_.write("</tr>\n");
    }
  }

 private:
  /// A first column without a line in this row has nothing to its left that could span it: it has
  /// an empty cell, so that the others stay in their places.
  void writeRow(std::size_t row) {
    std::size_t column = cornerWidth_;
    while (column < headings_.size()) {
      std::size_t end = column + 1;
      while (end < headings_.size() && lineAt(end, row).empty()) {
        ++end;
      }
      writeCell(end - column, lineAt(column, row));
      column = end;
    }
  }

  void writeCell(std::size_t width, std::string_view line) {
    pen_.write(width > 1 ? fmt::format("<th colspan={}>", width) : "<th>");
    pen_.write(line);
    pen_.write("</th>\n");
  }

  std::string_view lineAt(std::size_t column, std::size_t row) const {
    const HeadingLines& lines = headings_[column];
    const std::size_t above = height_ - lines.size();
    return row < above ? std::string_view() : lines[row - above];
  }

  TextPen& pen_;
  std::vector<HeadingLines> headings_;
  std::size_t height_ = 0;
  std::size_t cornerWidth_ = 0;
};

}  // namespace

void writeHtmlHeadings(const ReportGrid& grid, const FormatSettings& settings, TextPen& pen) {
  HeadingWriter(grid, settings, pen).write();
}

}  // namespace vrel
