#include "expr/ui/function_list.h"

#include <QMimeData>

#include "expr/ui/formula_edit.h"
#include "expr/ui/to_text.h"

namespace vrel {

DragItem::DragItem(QTreeWidget* list, const FunctionRecord& function)
    : QTreeWidgetItem(list, {toText(function.name), toText(function.usage)}),
      function_(function.name) {
  const int height = list->fontMetrics().lineSpacing();
  setSizeHint(0, {list->fontMetrics().horizontalAdvance(text(0)) + height, height * 5 / 4});
}

QString DragItem::dragText() const {
  return toText(function_) + QLatin1String("()");
}

FunctionList::FunctionList(QWidget* parent) : QTreeWidget(parent) {
  setDragEnabled(true);
  setDragDropMode(QAbstractItemView::DragOnly);
}

QStringList FunctionList::mimeTypes() const {
  return {QStringLiteral("text/plain"), QLatin1String(FormulaEdit::kFunctionFormat)};
}

QMimeData* FunctionList::mimeData(const QList<QTreeWidgetItem*>& items) const {
  const auto* item = items.isEmpty() ? nullptr : dynamic_cast<const DragItem*>(items.first());
  if (item == nullptr) {
    return nullptr;
  }
  auto* dragged = new QMimeData;
  dragged->setText(item->dragText());
  dragged->setData(QLatin1String(FormulaEdit::kFunctionFormat),
                   QByteArray::fromStdString(item->function()));
  return dragged;
}

}  // namespace vrel
