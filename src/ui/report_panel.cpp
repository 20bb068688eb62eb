#include "ui/report_panel.h"

#include <QAction>
#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

#include "model/grid_search.h"

namespace vrel {

namespace {

CopiedRegion regionOf(const FrozenColumnTablesImpl& tables, const GridArea& area) {
  CopiedRegion region{.firstRow = static_cast<std::int64_t>(area.firstRow),
                      .firstColumn = static_cast<std::int64_t>(area.firstColumn),
                      .rows = static_cast<std::int64_t>(area.rows),
                      .columns = static_cast<std::int64_t>(area.columns)};
  if (tables.selectsWholeRows()) {
    region.firstColumn = 0;
    region.columns = CopiedRegion::kWhole;
  } else if (tables.selectsWholeColumns()) {
    region.rows = CopiedRegion::kWhole;
  }
  return region;
}

}  // namespace

ReportPanel::ReportPanel(EditorContext& context, ReportTableModel& model, RunDialog runDialog,
                         QWidget* window)
    : QWidget(window),
      context_(context),
      model_(model),
      tables_(new FrozenColumnTablesImpl(model, this)),
      edits_(new EditDesk(context, model, std::move(runDialog), window)),
      findBar_(new FindBar(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(tables_, 1);
  layout->addWidget(findBar_);
  setFocusProxy(tables_);
  model_.setEdit([this](CellRef cell, const QString& text) { return edits_->type(cell, text); });
  connect(edits_, &EditDesk::layoutNeeded, this, &ReportPanel::layoutNeeded);
  connect(edits_, &EditDesk::stepped, this, &ReportPanel::goTo);
  connectTables();
  addShortcuts();
}

void ReportPanel::connectTables() {
  connect(tables_, &FrozenColumnTablesImpl::hideToggled, this, &ReportPanel::toggleHidden);
  for (DataTable* table : {tables_->frozenColumnTable(), tables_->regularTable()}) {
    connect(table, &DataTable::copyRequested, this, &ReportPanel::copySelection);
    connect(table, &DataTable::pasteRequested, this, &ReportPanel::pasteClipboard);
  }
  connect(findBar_, &FindBar::findNext, this, [this](const QString& text) { find(text, true); });
  connect(findBar_, &FindBar::findPrevious, this,
          [this](const QString& text) { find(text, false); });
}

void ReportPanel::addShortcuts() {
  const auto add = [this](const QList<QKeySequence>& keys, Qt::ShortcutContext context,
                          auto action) {
    auto* shortcut = new QAction(this);
    shortcut->setShortcuts(keys);
    shortcut->setShortcutContext(context);
    connect(shortcut, &QAction::triggered, this, action);
    addAction(shortcut);
  };
  const auto keys = [](QKeySequence::StandardKey key) { return QKeySequence::keyBindings(key); };
  // In the find bar and in a cell's editor the same keys belong to the text, which the toolkit sees
  // to as far as it knows them there.
  add(keys(QKeySequence::Copy), Qt::WidgetWithChildrenShortcut, [this] { copySelection(); });
  add(keys(QKeySequence::Paste), Qt::WidgetWithChildrenShortcut, [this] { pasteClipboard(); });
  add(keys(QKeySequence::Undo), Qt::WidgetWithChildrenShortcut, [this] { undo(); });
  add({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
      Qt::WidgetWithChildrenShortcut, [this] { redo(); });
}

// Closes the editor that stands open behind Enter. Returns false when that took a refused text
// away, which is step enough.
bool ReportPanel::leaveUntouchedEditor() {
  const CopyPasteLineEdit* editor = tables_->regularTable()->cellEditor();
  if (editor == nullptr) {
    return true;
  }
  const QModelIndex cell = tables_->regularTable()->currentIndex();
  const bool showsValue = editor->text() == cell.data(Qt::EditRole).toString();
  tables_->endEditing();
  return showsValue;
}

void ReportPanel::undo() {
  if (leaveUntouchedEditor()) {
    edits_->undo();
  }
}

void ReportPanel::redo() {
  auto* text = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  const auto* editor = qobject_cast<CopyPasteLineEdit*>(text);
  if (text != nullptr && (editor == nullptr || !editor->isUntouched())) {
    text->redo();
  } else if (leaveUntouchedEditor()) {
    edits_->redo();
  }
}

void ReportPanel::copySelection() {
  if (const auto selection = tables_->selection()) {
    edits_->copy(regionOf(*tables_, *selection));
  }
}

void ReportPanel::pasteClipboard() {
  const auto current = tables_->currentPlace();
  if (!current) {
    return;
  }
  tables_->endEditing();
  PasteTarget target{.dataCells = dataCellsOf(model_.grid()),
                     .selection = tables_->selection(),
                     .current = *current};
  if (target.selection && tables_->selectsWholeRows()) {
    // The labels take part only to be seen.
    target.selection->firstColumn = target.dataCells.firstColumn;
    target.selection->columns = target.dataCells.columns;
  }
  edits_->paste(target);
}

void ReportPanel::find(const QString& text, bool forth) {
  Notice& notice = *context_.notice;
  const std::string task = notice.translate(translatable("vrel", "Searching..."));
  const auto progress = [&notice, &task](std::size_t done, std::size_t rows) {
    return notice.progress(task, done, rows);
  };
  const std::string wanted = text.toStdString();
  const auto from = tables_->currentPlace();
  const SearchResult result =
      forth ? findNext(model_.grid(), context_.format, wanted, from, progress)
            : findPrevious(model_.grid(), context_.format, wanted, from, progress);
  notice.progress(task, 1, 1);
  if (result.outcome == SearchOutcome::Found) {
    tables_->setCurrentPlace(result.place);
  }
  findBar_->showResult(result);
}

// Shows a cell of the table wherever it stands.
void ReportPanel::goTo(CellRef cell) {
  if (const auto page = pageOf(model_.grid(), cell.tuple); page && *page != model_.grid().zIndex) {
    emit pageNeeded(*page);
  }
  if (const auto place = placeOfCell(model_.grid(), cell)) {
    tables_->setCurrentPlace(*place);
  }
}

std::optional<CellRef> ReportPanel::valueAt(const std::optional<GridPlace>& place) const {
  return place ? cellAt(model_.grid(), place->row, place->column) : std::nullopt;
}

KeptPlace ReportPanel::keptPlace() const {
  const std::optional<GridPlace> place = tables_->currentPlace();
  return {.place = place,
          .cell = valueAt(place),
          .labelColumns = model_.grid().labelColumns,
          .firstRow = tables_->regularTable()->verticalScrollBar()->value(),
          .arrangement = context_.view.table->arrangement};
}

void ReportPanel::returnTo(const KeptPlace& kept) {
  if (!kept.place) {
    return;
  }
  const bool sameCells = kept.cell && kept.arrangement == context_.view.table->arrangement;
  const auto isThere = [&] { return sameCells && valueAt(tables_->currentPlace()) == kept.cell; };
  if (sameCells && !isThere()) {
    goTo(*kept.cell);
  }
  GridPlace place = *kept.place;
  if (place.column >= kept.labelColumns) {
    place.column = place.column - kept.labelColumns + model_.grid().labelColumns;
  }
  if (!isThere() && tables_->currentPlace() != place) {
    tables_->setCurrentPlace(place);
  }
  if (const std::optional<GridPlace> now = tables_->currentPlace()) {
    const auto moved = static_cast<int>(now->row) - static_cast<int>(kept.place->row);
    tables_->regularTable()->verticalScrollBar()->setValue(kept.firstRow + moved);
  }
}

void ReportPanel::toggleHidden(int field) {
  FieldDef& definition = context_.view.table->field(field);
  definition.hidden = !definition.hidden;
  context_.view.modified = true;
  emit layoutNeeded();
}

}  // namespace vrel
