#include "ui/field_list.h"

#include <QDropEvent>
#include <algorithm>

namespace vrel {

FieldList::FieldList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setDragDropMode(QAbstractItemView::DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setUniformItemSizes(true);
  connect(model(), &QAbstractItemModel::rowsRemoved, this, &FieldList::changed);
  connect(model(), &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex&, int first, int last) { takeIn(first, last); });
}

void FieldList::addField(int field, const QString& name) {
  auto* entry = new QListWidgetItem(name, this);
  entry->setData(Qt::UserRole, field);
}

void FieldList::takeIn(int first, int last) {
  for (int row = first; row <= last; ++row) {
    // A drop on an entry would overwrite it; one between entries does not.
    item(row)->setFlags(item(row)->flags() & ~Qt::ItemIsDropEnabled);
  }
  emit changed();
}

std::vector<int> FieldList::fields() const {
  std::vector<int> fields;
  for (int row = 0; row < count(); ++row) {
    fields.push_back(item(row)->data(Qt::UserRole).toInt());
  }
  return fields;
}

void FieldList::moveToSister() {
  int next = count();
  sister_->clearSelection();
  for (int row = count() - 1; row >= 0; --row) {
    if (item(row)->isSelected()) {
      next = row;
    }
  }
  for (int row = next; row < count();) {
    if (!item(row)->isSelected()) {
      ++row;
      continue;
    }
    QListWidgetItem* const entry = takeItem(row);
    sister_->addItem(entry);
    entry->setSelected(true);
    sister_->setCurrentItem(entry, QItemSelectionModel::NoUpdate);
    sister_->scrollToItem(entry);
  }
  if (count() > 0) {
    setCurrentRow(std::min(next, count() - 1), QItemSelectionModel::ClearAndSelect);
  }
}

void FieldList::moveUp() {
  for (int row = 1; row < count(); ++row) {
    swapSelected(row, row - 1);
  }
}

void FieldList::moveDown() {
  for (int row = count() - 2; row >= 0; --row) {
    swapSelected(row, row + 1);
  }
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
  scrollToItem(entry);
}

// Other lists, also those of other programs, carry entries in the same form.
bool FieldList::takesFrom(const QDropEvent& event) const {
  return event.source() == this || (sister_ != nullptr && event.source() == sister_);
}

void FieldList::dragEnterEvent(QDragEnterEvent* event) {
  takesFrom(*event) ? QListWidget::dragEnterEvent(event) : event->ignore();
}

void FieldList::dragMoveEvent(QDragMoveEvent* event) {
  takesFrom(*event) ? QListWidget::dragMoveEvent(event) : event->ignore();
}

void FieldList::dropEvent(QDropEvent* event) {
  takesFrom(*event) ? QListWidget::dropEvent(event) : event->ignore();
}

}  // namespace vrel
