// View files: reading, checking against a table, applying, writing.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/notice.h"
#include "base/paths.h"
#include "base/text_input.h"
#include "base/text_output.h"
#include "model/report_view.h"

namespace vrel {

/// The field definitions of a view file, from its `numberoffields` and `addfield` lines alone.
/// Errors go to `errors`, one line each; an error in a record ends the reading.
std::vector<FieldDef> readFieldRecords(std::string_view file, TextOutput& errors);

/// What a view file holds, before it is applied: its fields and a view over them.
struct ParsedView {
  /// Holds the field definitions only; `view.table` points here.
  std::unique_ptr<Table> fields;
  ReportView view;
};

/// Reads a whole view file. Nothing when it has an unknown command or a bad record.
std::optional<ParsedView> parseViewFile(std::string_view file, Notice& notice, TextOutput& errors);

/// Whether a view over `viewFields` fits a table with `tableFields`: fields that are no formulas
/// agree in name and order; formula fields may differ freely.
bool viewFitsTable(const std::vector<FieldDef>& viewFields,
                   const std::vector<FieldDef>& tableFields);

/// The same for a view file that is to be put over a table; nothing when it does not fit.
std::optional<ParsedView> parseFittingView(std::string_view file, const Table& table,
                                           Notice& notice, TextOutput& errors);

/// Makes a view that fits a view's table the view; see `readViewFile`. False, with nothing changed,
/// when memory runs out.
bool applyView(ReportView& view, ParsedView parsed, FormatSettings& settings,
               const EnvironmentLookup& environment, Notice& notice);

/// Reads a view file and, when it fits the view's table, makes it the view: its settings, lists,
/// breaks and print options, and its fields merged into the table. Its precision and date format
/// are in force then, also for the values that are read anew because their field changes its type,
/// and the table is sorted with one tuple for each combination of the view's keys. The period file
/// that the view names is read; its faults go to `notice`. Returns whether the view fitted; when
/// not, nothing has changed. Formulas are not recalculated here.
bool readViewFile(ReportView& view, std::string_view file, FormatSettings& settings,
                  const EnvironmentLookup& environment, Notice& notice, TextOutput& errors);

/// Whether a view file fits a table; changes nothing.
bool viewFileFits(const Table& table, std::string_view file, Notice& notice, TextOutput& errors);

void writeViewFile(const ReportView& view, TextOutput& output);

}  // namespace vrel
