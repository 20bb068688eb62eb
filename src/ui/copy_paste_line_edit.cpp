#include "ui/copy_paste_line_edit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <algorithm>
#include <array>
#include <optional>

namespace vrel {

namespace {

struct EndKey {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  EditEnd end;
};

constexpr std::array<EndKey, 9> kEndKeys = {{
    {Qt::Key_Return, Qt::NoModifier, EditEnd::Down},
    {Qt::Key_Enter, Qt::NoModifier, EditEnd::Down},
    {Qt::Key_Return, Qt::ShiftModifier, EditEnd::Up},
    {Qt::Key_Enter, Qt::ShiftModifier, EditEnd::Up},
    {Qt::Key_Tab, Qt::NoModifier, EditEnd::Right},
    {Qt::Key_Backtab, Qt::ShiftModifier, EditEnd::Left},
    {Qt::Key_Up, Qt::NoModifier, EditEnd::ArrowUp},
    {Qt::Key_Down, Qt::NoModifier, EditEnd::ArrowDown},
    {Qt::Key_Escape, Qt::NoModifier, EditEnd::Cancel},
}};

std::optional<EditEnd> endOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  for (const EndKey& key : kEndKeys) {
    if (key.key == event.key() && key.modifiers == modifiers) {
      return key.end;
    }
  }
  return std::nullopt;
}

bool isStep(const QKeyEvent& event) {
  return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

}  // namespace

CopyPasteLineEdit::CopyPasteLineEdit(QWidget* parent) : QLineEdit(parent) {
  setObjectName(QStringLiteral("qt_tableeditor"));
  setAccessibleName(tr("Cell value"));
  setFrame(false);
  setAutoFillBackground(true);
  connect(this, &QLineEdit::textChanged, this, &CopyPasteLineEdit::grow);
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget*, const QWidget* now) { followKeyboard(now); });
}

void CopyPasteLineEdit::begin(const QString& text) {
  begunWith_ = text;
  setText(text);
}

void CopyPasteLineEdit::coverCell(const QRect& cell) {
  cell_ = cell;
  grow();
}

bool CopyPasteLineEdit::event(QEvent* event) {
  // Before the toolkit takes the Tab key for going to the next widget.
  if (event->type() == QEvent::KeyPress) {
    if (const auto end = endOf(*static_cast<QKeyEvent*>(event))) {
      event->accept();
      emit ended(*end);
      return true;
    }
  }
  // Escape ends the editing, even where a shortcut of the window takes it otherwise.
  if (event->type() == QEvent::ShortcutOverride && endOf(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  // Behind Enter the editor stands open again, and it is the edit that is to be taken back.
  if (event->type() == QEvent::ShortcutOverride && isUntouched() &&
      isStep(*static_cast<QKeyEvent*>(event))) {
    event->ignore();
    return false;
  }
  return QLineEdit::event(event);
}

void CopyPasteLineEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::MenuBarFocusReason) {
    // The menu bar gives the keyboard back to the very widget that it took it from: were that gone,
    // the keyboard would stay with the menu bar.
    lentToMenus_ = true;
    return;
  }
  const QWidget* popup = QApplication::activePopupWidget();
  const bool ownMenu = popup != nullptr && popup->parentWidget() == this;
  if (!ownMenu) {
    emit ended(EditEnd::FocusLost);
  }
}

// The keyboard may go from the menus to another place than this.
void CopyPasteLineEdit::followKeyboard(const QWidget* now) {
  const bool inMenus =
      qobject_cast<const QMenuBar*>(now) != nullptr || qobject_cast<const QMenu*>(now) != nullptr;
  if (!lentToMenus_ || now == nullptr || inMenus) {
    return;
  }
  lentToMenus_ = false;
  if (now != this) {
    emit ended(EditEnd::FocusLost);
  }
}

void CopyPasteLineEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  // Shows how far it reaches over the cells beside it.
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CopyPasteLineEdit::grow() {
  if (!cell_.isValid()) {
    return;
  }
  const int room = fontMetrics().averageCharWidth() * 2;
  const int wanted = fontMetrics().horizontalAdvance(text()) + room;
  const int most = parentWidget() == nullptr ? wanted : parentWidget()->width() - cell_.left();
  const int width = std::max(cell_.width(), std::min(wanted, most));
  setGeometry(QRect(cell_.topLeft(), QSize(width, cell_.height())));
}

}  // namespace vrel
