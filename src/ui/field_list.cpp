#include "ui/field_list.h"

#include <QDropEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <algorithm>

namespace vrel {

FieldList::FieldList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setDragDropMode(QAbstractItemView::DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setUniformItemSizes(true);
}

void FieldList::addField(int field, const QString& name) {
  auto* entry = new QListWidgetItem(name);
  entry->setData(Qt::UserRole, field);
  // Drops go between entries.
  entry->setFlags(entry->flags() & ~Qt::ItemIsDropEnabled);
  addItem(entry);
}

std::vector<int> FieldList::fields() const {
  std::vector<int> fields;
  fields.reserve(static_cast<std::size_t>(count()));
  for (int row = 0; row < count(); ++row) {
    fields.push_back(item(row)->data(Qt::UserRole).toInt());
  }
  return fields;
}

QList<QListWidgetItem*> FieldList::takeSelected() {
  QList<QListWidgetItem*> entries;
  int next = count();
  for (int row = count() - 1; row >= 0; --row) {
    if (item(row)->isSelected()) {
      entries.prepend(takeItem(row));
      next = row;
    }
  }
  if (count() > 0) {
    setCurrentRow(std::min(next, count() - 1), QItemSelectionModel::ClearAndSelect);
  }
  return entries;
}

void FieldList::insertSelected(int row, const QList<QListWidgetItem*>& entries) {
  clearSelection();
  for (QListWidgetItem* entry : entries) {
    insertItem(row++, entry);
    entry->setSelected(true);
    setCurrentItem(entry, QItemSelectionModel::NoUpdate);
  }
}

// Entries are taken out and put back one by one. Nobody is to see what is selected in between: a
// button that was disabled for a moment would have lost the keyboard.
void FieldList::change(const std::function<void()>& step) {
  {
    const QSignalBlocker silent(this);
    const QSignalBlocker sisterSilent(sister_);
    step();
  }
  for (FieldList* list : {this, sister_}) {
    list->scrollToItem(list->currentItem());
  }
  emit changed();
}

void FieldList::moveToSister() {
  change([this] { sister_->insertSelected(sister_->count(), takeSelected()); });
}

void FieldList::moveUp() {
  change([this] {
    for (int row = 1; row < count(); ++row) {
      swapSelected(row, row - 1);
    }
  });
}

void FieldList::moveDown() {
  change([this] {
    for (int row = count() - 2; row >= 0; --row) {
      swapSelected(row, row + 1);
    }
  });
}

// Only a selected entry changes places, and only with one that is not.
void FieldList::swapSelected(int row, int with) {
  if (!item(row)->isSelected() || item(with)->isSelected()) {
    return;
  }
  const bool isCurrent = currentRow() == row;
  QListWidgetItem* const entry = takeItem(row);
  insertItem(with, entry);
  entry->setSelected(true);
  if (isCurrent) {
    setCurrentItem(entry, QItemSelectionModel::NoUpdate);
  }
}

void FieldList::startDrag(Qt::DropActions /*actions*/) {
  const QModelIndexList entries = selectedIndexes();
  if (entries.isEmpty()) {
    return;
  }
  // The dialog may be gone by the time of the drop, and the drag with it.
  const QPointer<QDrag> drag = new QDrag(this);
  drag->setMimeData(model()->mimeData(entries));
  drag->setPixmap(viewport()->grab(visualItemRect(currentItem())));
  const QPointer<FieldList> list = this;
  dragging_ = true;
  runDrag_(*drag);
  if (list) {
    dragging_ = false;
  }
  if (drag) {
    drag->deleteLater();
  }
}

// Other lists, also those of other programs, carry entries in the same form; only what is dragged
// in this dialog is taken.
FieldList* FieldList::dragSource() {
  if (dragging_) {
    return this;
  }
  return sister_ != nullptr && sister_->dragging_ ? sister_ : nullptr;
}

bool FieldList::acceptDrag(QDropEvent& event) {
  if (dragSource() == nullptr) {
    event.ignore();
    return false;
  }
  event.setDropAction(Qt::MoveAction);
  event.accept();
  return true;
}

void FieldList::dragEnterEvent(QDragEnterEvent* event) {
  if (acceptDrag(*event)) {
    QListWidget::dragEnterEvent(event);
  }
}

void FieldList::dragMoveEvent(QDragMoveEvent* event) {
  if (acceptDrag(*event)) {
    QListWidget::dragMoveEvent(event);
  }
}

void FieldList::dropEvent(QDropEvent* event) {
  if (!acceptDrag(*event)) {
    return;
  }
  int row = dropRow(event->position().toPoint());
  FieldList* const source = dragSource();
  if (source == this) {
    // The place is counted without what is dragged.
    for (int above = row - 1; above >= 0; --above) {
      row -= item(above)->isSelected() ? 1 : 0;
    }
  }
  change([&] { insertSelected(row, source->takeSelected()); });
  setState(QAbstractItemView::NoState);
  viewport()->update();
}

// In front of the entry in whose upper half the drop is, behind that in whose lower half it is.
int FieldList::dropRow(QPoint position) const {
  const QModelIndex entry = indexAt(position);
  if (!entry.isValid()) {
    return count();
  }
  return position.y() > visualRect(entry).center().y() ? entry.row() + 1 : entry.row();
}

}  // namespace vrel
