// A list of fields from which fields are dragged within it and into its sister list.
#pragma once

#include <QListWidget>
#include <functional>
#include <utility>
#include <vector>

#include "ui/run_drag.h"

namespace vrel {

class FieldList : public QListWidget {
  Q_OBJECT

 public:
  explicit FieldList(QWidget* parent = nullptr);

  /// Fields are dragged between these two and from nowhere else.
  void setSister(FieldList* sister) { sister_ = sister; }
  /// Tests drag in their own way.
  void setRunDrag(RunDrag runDrag) { runDrag_ = std::move(runDrag); }

  void addField(int field, const QString& name);
  /// From the top down.
  std::vector<int> fields() const;

  /// Takes the selected entries to the end of the sister list, where they are selected then. An
  /// entry near them is selected here.
  void moveToSister();
  /// Takes the selected entries one place up or down; those at the edge stay.
  void moveUp();
  void moveDown();

 signals:
  /// The user has moved entries within this list, or between it and its sister.
  void changed();

 protected:
  void startDrag(Qt::DropActions actions) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  FieldList* dragSource();
  bool acceptDrag(QDropEvent& event);
  void change(const std::function<void()>& step);
  QList<QListWidgetItem*> takeSelected();
  void insertSelected(int row, const QList<QListWidgetItem*>& entries);
  int dropRow(QPoint position) const;
  void swapSelected(int row, int with);

  FieldList* sister_ = nullptr;
  RunDrag runDrag_ = dragByMouse;
  // The selected entries of this list are being dragged.
  bool dragging_ = false;
};

}  // namespace vrel
