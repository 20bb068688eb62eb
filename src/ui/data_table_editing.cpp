// How cells of a table are edited, and what its keys do.
#include <QKeyEvent>
#include <array>

#include "ui/data_table.h"

namespace vrel {

namespace {

// Where the keys that end editing lead; nothing for those that do not move.
std::optional<GridMove> moveAfter(EditEnd end) {
  switch (end) {
    case EditEnd::Down:
    case EditEnd::ArrowDown:
      return GridMove::Down;
    case EditEnd::Up:
    case EditEnd::ArrowUp:
      return GridMove::Up;
    case EditEnd::Left:
      return GridMove::Previous;
    case EditEnd::Right:
      return GridMove::Next;
    case EditEnd::Cancel:
    case EditEnd::FocusLost:
      break;
  }
  return std::nullopt;
}

// Enter keeps the cell until its text is left as it is.
bool staysAfterChange(EditEnd end) {
  return end == EditEnd::Down || end == EditEnd::Up;
}

bool isTyping(const QKeyEvent& event) {
  const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const bool commanded = (event.modifiers() & commands) != 0 &&
                         event.modifiers() != (Qt::ControlModifier | Qt::AltModifier);
  return !commanded && !event.text().isEmpty() && event.text().at(0).isPrint();
}

struct ZoomKey {
  Qt::Key key;
  // 0 is back to the usual size.
  int steps;
};

constexpr std::array<ZoomKey, 4> kZoomKeys = {
    {{Qt::Key_Plus, 1}, {Qt::Key_Equal, 1}, {Qt::Key_Minus, -1}, {Qt::Key_0, 0}}};

}  // namespace

void DataTable::keyPressEvent(QKeyEvent* event) {
  const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (tab && event->modifiers().testFlag(Qt::ControlModifier)) {
    emit leaveRequested(event->key() == Qt::Key_Tab &&
                        !event->modifiers().testFlag(Qt::ShiftModifier));
    return;
  }
  if (editor_ != nullptr) {
    // A key that the editor has no use for.
    event->ignore();
    return;
  }
  if (handleShortcut(*event) || typeInto(*event)) {
    return;
  }
  if (const auto key = gridKeyOf(event->key(), event->modifiers())) {
    emit moveRequested(key->move, key->extends);
    return;
  }
  event->ignore();
}

bool DataTable::handleShortcut(const QKeyEvent& event) {
  if (event.matches(QKeySequence::SelectAll)) {
    selectAll();
    return true;
  }
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (event.key() == Qt::Key_F2 && modifiers == Qt::NoModifier) {
    editCurrentCell();
    return true;
  }
  if (event.key() == Qt::Key_Space &&
      (modifiers == Qt::ShiftModifier || modifiers == Qt::ControlModifier)) {
    emit lineSelectionRequested(modifiers == Qt::ShiftModifier ? Qt::Horizontal : Qt::Vertical);
    return true;
  }
  if (!modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::AltModifier)) {
    return false;
  }
  for (const ZoomKey& zoom : kZoomKeys) {
    if (zoom.key == event.key()) {
      if (zoom.steps == 0) {
        emit zoomResetRequested();
      } else {
        emit zoomRequested(zoom.steps);
      }
      return true;
    }
  }
  return false;
}

bool DataTable::typeInto(const QKeyEvent& event) {
  const bool erases = event.key() == Qt::Key_Backspace && event.modifiers() == Qt::NoModifier;
  const QModelIndex index = currentIndex();
  if ((!erases && !isTyping(event)) || !index.flags().testFlag(Qt::ItemIsEditable)) {
    return false;
  }
  openEditor(index);
  if (editor_ != nullptr) {
    editor_->selectAll();
    editor_->insert(erases ? QString() : event.text());
  }
  return true;
}

void DataTable::editCurrentCell() {
  const QModelIndex index = currentIndex();
  if (index.flags().testFlag(Qt::ItemIsEditable)) {
    openEditor(index);
    if (editor_ != nullptr) {
      editor_->deselect();
      editor_->end(false);
    }
  }
}

void DataTable::openEditor(const QModelIndex& index) {
  scrollTo(index);
  edit(index);
}

bool DataTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const bool opened = QTableView::edit(index, trigger, event);
  auto* editor = qobject_cast<CopyPasteLineEdit*>(indexWidget(index));
  if (editor != nullptr && editor != editor_) {
    editor_ = editor;
    edited_ = TablePlace{index.row(), index.column()};
    connect(editor, &CopyPasteLineEdit::ended, this, qOverload<EditEnd>(&DataTable::endEditing));
  }
  return opened;
}

bool DataTable::endEditing() {
  refused_.reset();
  endEditing(EditEnd::FocusLost);
  return !refused_;
}

void DataTable::endEditing(EditEnd end) {
  if (editor_ == nullptr || !edited_ || committing_) {
    return;
  }
  const TablePlace cell = *edited_;
  const Outcome outcome = end == EditEnd::Cancel ? Outcome::Unchanged : commitText();
  const bool moves =
      outcome == Outcome::Unchanged || (outcome == Outcome::Accepted && !staysAfterChange(end));
  if (moves || end == EditEnd::FocusLost) {
    leaveEditor();
  }
  const auto move = moveAfter(end);
  if (moves && move) {
    emit moveRequested(*move, false);
  }
  if (outcome != Outcome::Unchanged) {
    emit valueChanged(cell.row, cell.column);
  }
}

bool DataTable::shows(TablePlace place, std::optional<CellRef> value) const {
  return model()->index(place.row, place.column).isValid() &&
         item(place.row, place.column).value == value;
}

DataTable::Outcome DataTable::commitText() {
  const QString text = editor_->text();
  const QModelIndex cell = model()->index(edited_->row, edited_->column);
  refused_.reset();
  if (!cell.isValid() || text == editor_->begunWith() ||
      text == cell.data(Qt::EditRole).toString()) {
    return Outcome::Unchanged;
  }
  const TablePlace place = *edited_;
  const std::optional<CellRef> value = item(place.row, place.column).value;
  const Table& table = *part_->report().grid().table;
  const std::uint64_t arrangement = table.arrangement;
  committing_ = true;
  const bool taken = model()->setData(cell, text, Qt::EditRole);
  committing_ = false;
  if (table.arrangement != arrangement || !shows(place, value)) {
    // With other keys, or laid out by what a formula says now, the place may show another value,
    // which is not to be typed over.
    leaveEditor();
  }
  if (taken) {
    return Outcome::Accepted;
  }
  refused_ = text;
  return Outcome::Refused;
}

void DataTable::slot_ValueChanged(int row, int column) {
  const QModelIndex index = model()->index(row, column);
  if (edited_ != TablePlace{row, column} || currentIndex() != index) {
    return;
  }
  const DataTableItem shown = item(row, column);
  const bool boolean =
      shown.value &&
      part_->report().grid().table->field(shown.value->field).type == FieldType::Boolean;
  if (shown.role != 1 || boolean) {
    leaveEditor();
    return;
  }
  if (editor_ == nullptr) {
    openEditor(index);
  }
  if (editor_ != nullptr) {
    editor_->begin(refused_.value_or(index.data(Qt::EditRole).toString()));
    editor_->selectAll();
    editor_->setFocus();
  }
}

void DataTable::leaveEditor() {
  edited_.reset();
  if (editor_ != nullptr) {
    closeEditor(editor_, QAbstractItemDelegate::NoHint);
  }
}

void DataTable::commitData(QWidget* editor) {
  // The toolkit is about to close the editor because another cell is the current one now.
  if (editor == editor_) {
    endEditing(EditEnd::FocusLost);
  }
}

void DataTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  // The toolkit also asks for editors that are closed already.
  if (editor != nullptr && editor == editor_) {
    // It is gone as soon as the focus is taken away from it.
    editor_ = nullptr;
    QTableView::closeEditor(editor, hint);
  }
}

}  // namespace vrel
