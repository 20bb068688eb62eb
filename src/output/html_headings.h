// The column headings of an HTML table.
//
// A heading of several lines stands in as many heading rows, its last line in the lowest one. Where
// a heading has nothing to say in a row, the cell to the left spans its column: an outer value that
// is shown once covers all the columns that it holds for.
#pragma once

#include "base/text_pen.h"
#include "model/report_grid.h"

namespace vrel {

/// Writes the heading rows. A corner cell covers the label columns, whose own headings are not
/// written, and the data columns up to the first one with a heading; every row covers all columns
/// exactly once.
void writeHtmlHeadings(const ReportGrid& grid, const FormatSettings& settings, TextPen& pen);

}  // namespace vrel
