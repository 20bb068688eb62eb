// Opens a report as the window does, without the window: reads a table and a view, lays the report
// out and asks for the texts of one screen at the grid's corners and in its middle.
//
//   open_report TABLE VIEW
#include <algorithm>
#include <cstdio>
#include <string>

#include "model/report_grid.h"
#include "model/report_layout.h"
#include "model/table_reader.h"
#include "model/view_file.h"
#include "silent_notice.h"

namespace {

using namespace vrel;

std::string readWhole(const char* path) {
  std::string text;
  if (std::optional<TextInput> input = TextInput::open(path)) {
    while (const auto line = input->readLine(2048)) {
      text += *line;
    }
  }
  return text;
}

// The length of all texts of one screen.
std::size_t showScreen(const ReportGrid& grid, const FormatSettings& settings, std::size_t top,
                       std::size_t left) {
  constexpr std::size_t kScreenRows = 60;
  constexpr std::size_t kScreenColumns = 30;
  std::size_t length = 0;
  for (std::size_t column = left; column < std::min(grid.columns, left + kScreenColumns);
       ++column) {
    length += columnHeading(grid, settings, column).size();
    for (std::size_t row = top; row < std::min(grid.rows, top + kScreenRows); ++row) {
      length += cellText(grid, settings, row, column).size();
    }
  }
  return length;
}

}  // namespace

int main(int argc, char** argv) {
  std::optional<TextInput> input = argc == 3 ? TextInput::open(argv[1]) : std::nullopt;
  Table table;
  if (!input || !loadFromFile(table, *input)) {
    std::fputs("usage: open_report TABLE VIEW\n", stderr);
    return 2;
  }
  settleTypes(table);
  bench::SilentNotice notice;
  FormatSettings settings;
  TextOutput errors = standardErrorOutput();
  ReportView view = makeReportView(table, notice);
  if (!readViewFile(view, readWhole(argv[2]), settings, processEnvironment(), notice, errors)) {
    return 1;
  }
  const ReportGrid grid = layOut(view);
  std::size_t length = 0;
  for (const std::size_t top : {std::size_t{0}, grid.rows / 2, grid.rows - 1}) {
    for (const std::size_t left : {std::size_t{0}, grid.columns / 2, grid.columns - 1}) {
      length += showScreen(grid, settings, top, left);
    }
  }
  std::printf("%zu rows, %zu columns, %zu characters shown\n", grid.rows, grid.columns, length);
  return 0;
}
