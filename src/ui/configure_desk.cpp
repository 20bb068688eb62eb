#include "ui/configure_desk.h"

#include <utility>

#include "expr/recalculation.h"
#include "expr/ui/to_text.h"
#include "model/edit_text.h"
#include "ui/breaks_dialog.h"
#include "ui/field_dialog.h"

namespace vrel {

ConfigureDesk::ConfigureDesk(EditorContext& context, ReportPanel& panel, RunDialog runDialog,
                             ViewChanger changer, QWidget* window)
    : QObject(window),
      context_(context),
      panel_(panel),
      runDialog_(std::move(runDialog)),
      changer_(std::move(changer)),
      window_(window) {}

FillCellsDialogImpl& ConfigureDesk::fillDialog() {
  if (fillDialog_ == nullptr) {
    fillDialog_ =
        new FillCellsDialogImpl([this](const FillRequest& request) { fill(request); }, window_);
    connect(&panel_.tables(), &FrozenColumnTablesImpl::selectionChanged, this,
            &ConfigureDesk::followCursor);
  }
  return *fillDialog_;
}

void ConfigureDesk::fillCells() {
  FillCellsDialogImpl& dialog = fillDialog();
  fitFillDialog();
  fillPlace_.reset();
  followCursor();
  const ReportGrid& grid = panel_.grid();
  const std::optional<GridPlace> place = panel_.tables().currentPlace();
  const std::optional<CellRef> cell =
      place ? cellAt(grid, place->row, place->column) : std::nullopt;
  dialog.setText(
      cell ? toText(editText(grid.table->value(cell->tuple, cell->field), context_.format))
           : QString());
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
}

// A refused text in a cell is first to be corrected.
void ConfigureDesk::fill(const FillRequest& request) {
  if (panel_.tables().endEditing()) {
    panel_.edits().fill(request);
  }
}

void ConfigureDesk::fitFillDialog() {
  const ReportGrid& grid = panel_.grid();
  fillDialog().setSize(static_cast<int>(grid.rows),
                       static_cast<int>(grid.columns - grid.labelColumns));
}

// The user points in the report at what is to be filled.
void ConfigureDesk::followCursor() {
  const std::optional<GridPlace> place = panel_.tables().currentPlace();
  if (place == fillPlace_) {
    return;
  }
  fillPlace_ = place;
  if (place) {
    const std::size_t labels = panel_.grid().labelColumns;
    const std::size_t column = place->column < labels ? 0 : place->column - labels;
    fillDialog().setPlace(static_cast<int>(place->row) + 1, static_cast<int>(column) + 1);
  }
}

void ConfigureDesk::configureDisplay() {}

void ConfigureDesk::configureLayout() {}

void ConfigureDesk::configureBreaks() {
  BreaksDialogImpl dialog(context_.view, changer_.changeView, runDialog_, context_.notice, window_);
  runDialog_(dialog);
}

void ConfigureDesk::configureFields() {
  FieldDialogImpl dialog(*context_.view.table, context_.format, context_.notice, window_);
  runDialog_(dialog);
  if (dialog.result() == QDialog::Accepted) {
    takeFieldClasses(dialog.classes());
  }
}

void ConfigureDesk::takeFieldClasses(const std::vector<FieldClass>& classes) {
  Table& table = *context_.view.table;
  if (classes == fieldClasses(table)) {
    return;
  }
  // What was edited may not be editable any more.
  panel_.edits().forgetEdits();
  changer_.changeFields([&] {
    applyFieldClasses(context_.view, classes, context_.format);
    recalculateTable(table, *context_.notice, context_.formulaScratch, context_.functions);
  });
}

void ConfigureDesk::reportShown() {
  if (fillDialog_ != nullptr) {
    fitFillDialog();
  }
}

}  // namespace vrel
