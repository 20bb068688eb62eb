// The report as tab-separated text.
#pragma once

#include <string_view>

#include "base/log.h"
#include "base/text_output.h"
#include "base/text_pen.h"
#include "model/format_settings.h"
#include "model/report_grid.h"
#include "model/report_view.h"

namespace vrel {

/// Switches of the exports, one set per session.
struct ExportSwitches {
  /// Texts stand in double quotes.
  bool quoting = false;
  /// Set by the first CSV export and never cleared.
  bool csvMode = false;
  /// `translate` appends to its output file.
  bool appendTranslate = false;
};

/// Whether a shown text counts as a number: digits, ".", "-" and "," with at most one "." and one
/// "-"; from nine characters on it needs the ".".
bool isNumericText(std::string_view text);

/// In which part of the grid a cell stands.
enum class CellPlace { Label, Data };

/// Writes the text that the grid shows in a cell without a value of its own: "_" is "0.00"; a
/// number among the data loses its "_" and ","; any other text is kept, in quotes when that is
/// asked for, and an empty one stays empty.
void writeShownText(TextPen& pen, std::string_view shown, CellPlace place, Quoting quoting);

/// Writes the report as the grid shows it to `view.exportFileName`; a failure is one line on
/// `errors` and leaves an existing file as it was.
void ExportViewData(const ReportView& view, const ReportGrid& grid, const ExportSwitches& switches,
                    FormatSettings& settings, Log& log, TextOutput& errors);

/// The same into an open stream. `settings` are those by which the grid is shown; values among the
/// data are written without separators, star and underscore all the same.
void writeReportText(const ReportView& view, const ReportGrid& grid, Quoting quoting,
                     const FormatSettings& settings, Log& log, TextOutput& output);

/// What is written when an export file cannot be opened or finished.
void reportExportFailure(const ReportView& view, TextOutput& errors);

}  // namespace vrel
