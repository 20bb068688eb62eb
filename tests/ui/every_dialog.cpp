#include "ui/every_dialog.h"

#include <QAbstractItemView>
#include <QMenuBar>
#include <QTest>

#include "expr/formula.h"

namespace vrel::test {

Table EveryDialog::plan() {
  Table table = tableOf("Item:String Week:Period Plan:Number Stock:Number", "W1 W2",
                        {"Bolt W1 1 2", "Gear W2 3 4"});
  table.field(2).classification = Classification::DataReadWrite;
  FieldDef& stock = table.field(3);
  stock.type = FieldType::Expression;
  stock.classification = Classification::DataReadOnly;
  setText(stock.expression, "Plan + 1");
  setText(stock.highlightExpression, "RED()");
  return table;
}

void EveryDialog::openWindow() {
  desk.view.breaks[1].fieldIndex = 1;
  desk.inDialog = [this](QDialog& dialog) { lookAt(dialog); };
  window = desk.openWindow();
}

void EveryDialog::openAll() {
  for (const QAction* title : window->menuBar()->actions()) {
    openAll(*title->menu());
  }
}

// Triggers the entries whose text says that a dialog follows.
void EveryDialog::openAll(const QMenu& menu) {
  for (QAction* entry : menu.actions()) {
    if (entry->text().contains(QLatin1String("..."))) {
      entry->trigger();
      lookAtOpenDialogs();
    }
  }
}

void EveryDialog::lookAtOpenDialogs() {
  for (auto* dialog : window->findChildren<QDialog*>()) {
    if (dialog->isVisible()) {
      lookAt(*dialog);
    }
  }
}

void EveryDialog::lookAt(QDialog& dialog) {
  dialog.show();
  QCoreApplication::processEvents();
  seen << dialog.objectName();
  look(dialog);
  openFurther(dialog);
  dialog.close();
}

// What opens from a dialog: the definition of a break, the editor of a formula.
void EveryDialog::openFurther(QDialog& dialog) {
  auto* list = dialog.findChild<QAbstractItemView*>();
  const bool leadsOn =
      dialog.inherits("vrel::BreaksDialogImpl") || dialog.inherits("vrel::FormulaListDialog");
  if (!leadsOn || list == nullptr) {
    return;
  }
  list->setCurrentIndex(list->model()->index(0, 0));
  QTest::keyClick(list, Qt::Key_Return);
  QCoreApplication::processEvents();
  for (auto* further : window->findChildren<QDialog*>()) {
    if (further->isVisible() && further != &dialog) {
      lookAt(*further);
    }
  }
}

}  // namespace vrel::test
