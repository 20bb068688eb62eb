#include "expr/paste.h"

namespace vrel {
namespace {

constexpr std::string_view kPasting = translatable("vrel", "Pasting...");

bool canEdit(const Table& table, const std::optional<CellRef>& cell) {
  return cell && table.field(cell->field).classification == Classification::DataReadWrite;
}

void pasteRow(EditBatch& batch, const ReportGrid& grid, const PastePlan& plan,
              const CopiedBlock& copied, std::size_t row, PasteOutcome& outcome) {
  for (std::size_t column = plan.area.firstColumn; column < plan.area.endColumn(); ++column) {
    const auto text = pastedText(plan, copied, {row, column});
    if (!text) {
      continue;
    }
    const std::optional<CellRef> cell = cellAt(grid, row, column);
    if (!canEdit(*grid.table, cell)) {
      outcome.skippedCells = true;
      continue;
    }
    const CellEdit edit = batch.set(*cell, *text);
    if (!edit.accepted() && outcome.refusedTexts++ == 0) {
      outcome.firstRefused = {.cell = *cell, .text = std::string(*text), .edit = edit};
    }
  }
}

}  // namespace

PasteOutcome pasteTexts(ReportEditor& editor, const ReportGrid& grid, const PastePlan& plan,
                        const CopiedBlock& copied) {
  PasteOutcome outcome;
  EditBatch batch(editor);
  Notice& notice = *editor.notice;
  const std::string task = notice.translate(kPasting);
  for (std::size_t row = 0; row < plan.area.rows && notice.progress(task, row, plan.area.rows);
       ++row) {
    pasteRow(batch, grid, plan, copied, plan.area.firstRow + row, outcome);
  }
  notice.progress(task, plan.area.rows, plan.area.rows);
  outcome.edit = batch.finish();
  return outcome;
}

}  // namespace vrel
