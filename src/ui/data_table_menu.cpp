// The context menus of a table: copying and pasting over a cell, hiding over a heading.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <algorithm>

#include "ui/column_popup_menu.h"
#include "ui/data_table.h"

namespace vrel {

namespace {

// A report of one row has no other sign of it: its cells have their own menu.
bool selectsWholeColumn(const QItemSelectionModel& model, const QModelIndex& index) {
  const int rows = index.model()->rowCount();
  const QItemSelection selection = model.selection();
  return rows > 1 && std::any_of(selection.begin(), selection.end(),
                                 [&index, rows](const QItemSelectionRange& range) {
                                   return range.contains(index) && range.height() == rows;
                                 });
}

}  // namespace

void DataTable::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
  if (!index.isValid()) {
    return;
  }
  const QPoint below(heading_->sectionViewportPosition(index.column()), heading_->height());
  if (byKey && selectsWholeColumn(*selectionModel(), index) &&
      openColumnMenu(index.column(), below)) {
    event->accept();
    return;
  }
  const QPoint place =
      byKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos();
  emit contextMenuRequested(index.row(), index.column(), place);
  event->accept();
}

void DataTable::requestColumnMenu(const QPoint& place) {
  openColumnMenu(heading_->logicalIndexAt(place), place);
}

bool DataTable::openColumnMenu(int column, const QPoint& place) {
  const auto& grid = part_->report().grid();
  // Only the label columns of the x fields can be hidden.
  if (column < 0 || part_->reportColumn(column) >= grid.xFields.size()) {
    return false;
  }
  menuField_ = grid.xFields[part_->reportColumn(column)];
  auto* menu = new ColumnPopupMenu(grid.table->field(menuField_).hidden, this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  connect(menu, &ColumnPopupMenu::toggled, this, &DataTable::slot_ToggleState);
  menu->popup(heading_->viewport()->mapToGlobal(place));
  return true;
}

void DataTable::slot_ToggleState() {
  if (menuField_ >= 0) {
    emit hideToggled(menuField_);
  }
}

void DataTable::slot_CopyPasteMenuRequested(int row, int column, QPoint place) {
  const QModelIndex index = model()->index(row, column);
  if (!selectionModel()->isSelected(index)) {
    setCurrentIndex(index);
  }
  auto* menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("copyPasteMenu"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(tr("(Copy)"), this, &DataTable::tableCellsCopy);
  QAction* const paste = menu->addAction(tr("(Paste)"), this, &DataTable::tableCellsPaste);
  paste->setEnabled(canPaste_ && item(row, column).role == 1);
  menu->popup(place);
}

void DataTable::tableCellsCopy() {
  emit copyRequested();
}

void DataTable::tableCellsPaste() {
  emit pasteRequested();
}

void DataTable::clipboardChanged() {
  const QMimeData* const held = QGuiApplication::clipboard()->mimeData();
  canPaste_ = held != nullptr && held->hasText();
}

}  // namespace vrel
