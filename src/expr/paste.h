// Pasting copied texts into the report.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "expr/report_edit.h"
#include "model/paste_plan.h"

namespace vrel {

/// A text that a cell did not take.
struct RefusedText {
  CellRef cell;
  std::string text;
  CellEdit edit;
};

struct PasteOutcome {
  EditOutcome edit;
  /// A cell that was to get a text cannot be edited.
  bool skippedCells = false;
  /// How many cells did not take their text, and the first of them.
  std::size_t refusedTexts = 0;
  std::optional<RefusedText> firstRefused;
};

/// Sets the cells of a plan's area to the texts that they get, as one edit. Each text is taken as
/// if it were typed. Shows progress; what was set when the user stops it stays and is sent.
PasteOutcome pasteTexts(ReportEditor& editor, const ReportGrid& grid, const PastePlan& plan,
                        const CopiedBlock& copied);

}  // namespace vrel
