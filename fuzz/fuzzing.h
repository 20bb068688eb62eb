// What the fuzz targets share.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text_input.h"
#include "model/report_grid.h"
#include "model/table_reader.h"

namespace vrel::fuzz {

/// The made-up file of one run.
inline std::string_view madeUpFile(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Ends the run as a crash when something that must hold does not.
inline void require(bool holds, std::string_view what) {
  if (!holds) {
    std::fprintf(stderr, "Broken: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
  }
}

/// Reads a table file that is one.
inline Table tableFrom(const char* text) {
  Table table;
  TextInput input = TextInput::fromMemory(text);
  require(loadFromFile(table, input), "the target's table is a table");
  return table;
}

/// Looks at every cell and heading of a report, as the window would.
inline void showReport(const ReportGrid& grid, const FormatSettings& settings) {
  for (std::size_t column = 0; column < grid.columns; ++column) {
    columnHeading(grid, settings, column);
    for (std::size_t row = 0; row < grid.rows; ++row) {
      cellText(grid, settings, row, column);
    }
  }
}

}  // namespace vrel::fuzz
