#include "ui/configure_desk.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "expr/recalculation.h"
#include "expr/ui/bring_to_front.h"
#include "expr/ui/to_text.h"
#include "model/edit_text.h"
#include "ui/breaks_dialog.h"
#include "ui/configure_display_dialog.h"
#include "ui/field_dialog.h"

namespace vrel {

ConfigureDesk::ConfigureDesk(EditorContext& context, ReportPanel& panel, RunDialog runDialog,
                             AskForFile chooseOpenFile, ViewChanger changer, QWidget* window)
    : QObject(window),
      context_(context),
      panel_(panel),
      runDialog_(std::move(runDialog)),
      chooseOpenFile_(std::move(chooseOpenFile)),
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
  bringToFront(dialog);
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

void ConfigureDesk::configureDisplay() {
  ConfigureDisplayDialogImpl dialog(
      context_.view,
      [this](QWidget* parent, const QString& present) { return choosePeriodFile(parent, present); },
      window_);
  connect(&dialog, &ConfigureDisplayDialogImpl::applied, this,
          [this, &dialog] { takeDisplay(dialog.settings()); });
  runDialog_(dialog);
}

void ConfigureDesk::takeDisplay(const DisplaySettings& chosen) {
  const DisplaySettings before = displaySettings(context_.view);
  if (chosen == before) {
    readPeriodsAgain();
    return;
  }
  changer_.changeView([this, &chosen, &before] {
    applyDisplaySettings(context_.view, chosen, context_.format);
    if (chosen.periodFile != before.periodFile &&
        rereadPeriodFile(context_.view, *context_.notice)) {
      recalculate();
    }
  });
}

// Another file may stand there by now, above all one without the errors that were told before.
void ConfigureDesk::readPeriodsAgain() {
  if (!rereadPeriodFile(context_.view, *context_.notice)) {
    return;
  }
  const bool modified = context_.view.modified;
  changer_.changeView([this] { recalculate(); });
  // The view names the same file as before.
  context_.view.modified = modified;
}

void ConfigureDesk::recalculate() {
  recalculateTable(*context_.view.table, *context_.notice, context_.formulaScratch,
                   context_.functions);
}

QString ConfigureDesk::choosePeriodFile(QWidget* parent, const QString& present) {
  const QFileInfo file(present);
  const bool isThere = !present.isEmpty() && file.dir().exists();
  return chooseOpenFile_(parent, {.caption = tr("Period File"),
                                  .filter = tr("All files (*)"),
                                  .extensions = {},
                                  .folder = isThere ? file.absolutePath() : QDir::currentPath(),
                                  .file = {}})
      .path;
}

void ConfigureDesk::configureLayout() {
  bringToFront(layoutDialog());
}

ConfigureLayoutDialog& ConfigureDesk::layoutDialog() {
  if (layoutDialog_ == nullptr) {
    layoutDialog_ = new ConfigureLayoutDialog(
        context_.view, [this](int field, LayoutPlace before) { takeField(field, before); },
        window_);
  }
  return *layoutDialog_;
}

void ConfigureDesk::takeField(int field, LayoutPlace before) {
  // A text that was refused is first to be corrected, and a drop that changes nothing is none.
  if (!placeAfterMove(context_.view, field, before) || !panel_.tables().endEditing()) {
    return;
  }
  changer_.changeView([this, field, before] { moveField(context_.view, field, before); });
}

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
  if (classes == fieldClasses(*context_.view.table)) {
    return;
  }
  // What was edited may not be editable any more.
  panel_.edits().forgetEdits();
  changer_.changeFields([&] {
    applyFieldClasses(context_.view, classes, context_.format);
    recalculate();
  });
}

void ConfigureDesk::reportShown() {
  if (fillDialog_ != nullptr) {
    fitFillDialog();
  }
  if (layoutDialog_ != nullptr) {
    layoutDialog_->showView();
  }
}

}  // namespace vrel
