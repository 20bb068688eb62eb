// A list of fields from which fields are dragged within it and into its sister list.
#pragma once

#include <QListWidget>
#include <vector>

namespace vrel {

class FieldList : public QListWidget {
  Q_OBJECT

 public:
  explicit FieldList(QWidget* parent = nullptr);

  /// Fields are dragged between these two and from nowhere else.
  void setSister(FieldList* sister) { sister_ = sister; }

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
  /// Entries have come, gone or moved.
  void changed();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void takeIn(int first, int last);
  bool takesFrom(const QDropEvent& event) const;
  void swapSelected(int row, int with);

  FieldList* sister_ = nullptr;
};

}  // namespace vrel
