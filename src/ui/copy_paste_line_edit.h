// The editor that opens in a cell. It tells how the user ended the editing; what follows from that
// is the table's business.
#pragma once

#include <QLineEdit>

namespace vrel {

enum class EditEnd { Down, Up, Left, Right, ArrowDown, ArrowUp, Cancel, FocusLost };

class CopyPasteLineEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit CopyPasteLineEdit(QWidget* parent = nullptr);

  /// Shows a text with which editing begins.
  void begin(const QString& text);
  /// The text with which editing began.
  const QString& begunWith() const { return begunWith_; }
  /// Nothing has been typed since editing began.
  bool isUntouched() const { return !isUndoAvailable() && !isRedoAvailable(); }
  /// Covers the cell, and as much at its right as the text needs and the parent has.
  void coverCell(const QRect& cell);

 signals:
  /// `EditEnd::Down` and `EditEnd::Up` are those of the Enter key.
  void ended(EditEnd end);

 protected:
  bool event(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void grow();
  void followKeyboard(const QWidget* now);

  QString begunWith_;
  QRect cell_;
  // The menu bar has taken the keyboard and is to give it back.
  bool lentToMenus_ = false;
};

}  // namespace vrel
