// The context menu of a label column's heading.
#pragma once

#include <QMenu>

namespace vrel {

class ColumnPopupMenu : public QMenu {
  Q_OBJECT

 public:
  /// For a column whose data are hidden now, or are not.
  explicit ColumnPopupMenu(bool hidden, QWidget* parent = nullptr);

 signals:
  /// The user wants the other of the two.
  void toggled();
};

}  // namespace vrel
