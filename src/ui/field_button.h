// The button that stands for a field in the layout dialog.
#pragma once

#include <QPoint>
#include <QPushButton>
#include <optional>

#include "model/field_order.h"

namespace vrel {

/// Tells what the user wants to do with its field; the dialog sees to it. A click wants the menu
/// of moves.
class FieldButton : public QPushButton {
  Q_OBJECT

 public:
  FieldButton(int field, const QString& name, QWidget* parent);

  int field() const { return field_; }
  QString name() const { return name_; }
  void setName(const QString& name);

  /// What tells the button from all others of this process: eight bytes.
  QByteArray identity() const;

 signals:
  void dragWanted();
  void stepWanted(vrel::FieldStep step);
  /// The focus is to go to a neighbour.
  void neighbourWanted(vrel::FieldStep direction);
  void menuWanted(QPoint globalPosition);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  int field_;
  QString name_;
  // Where the left mouse button went down, until it drags or comes up.
  std::optional<QPoint> pressed_;
};

}  // namespace vrel
