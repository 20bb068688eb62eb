// The list that functions are dragged from into formulas.
#pragma once

#include <QTreeWidget>
#include <string>

#include "expr/function_registry.h"

namespace vrel {

/// A function in the list.
class DragItem : public QTreeWidgetItem {
 public:
  DragItem(QTreeWidget* list, const FunctionRecord& function);

  const std::string& function() const { return function_; }
  /// What is dragged into other programs: the name with parentheses.
  QString dragText() const;

 private:
  std::string function_;
};

class FunctionList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit FunctionList(QWidget* parent = nullptr);

 protected:
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;
};

}  // namespace vrel
