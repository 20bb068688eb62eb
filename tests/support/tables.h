// Tables and grids for tests, written and compared as plain text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text_input.h"
#include "model/report_grid.h"
#include "model/table.h"
#include "model/table_reader.h"

namespace vrel::test {

/// Reads a table file from text; the table is not loaded when the text is no table file.
Table tableFrom(std::string_view text);

/// A table with the header lines made from "Name:Type" words and the given data lines, in which
/// blanks stand for tabs up to the notes. Period names are words of `periods`.
Table tableOf(std::string_view fields, std::string_view periods,
              const std::vector<std::string>& lines);

/// The values of all tuples, separated by blanks, a line each.
std::vector<std::string> tuplesOf(const Table& table);

/// Headings (line feeds as "/") and rows of a grid, cells separated by "|".
std::vector<std::string> gridLines(const ReportGrid& grid);

}  // namespace vrel::test
