// A window with the formula dialogs, opened and used as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "expr/formula_fields.h"
#include "expr/recalculation.h"
#include "expr/ui/formula_edit.h"
#include "support/views.h"
#include "ui/desk.h"

namespace vrel::test {

using Lines = std::vector<std::string>;

/// One item over two weeks: "Plan" can be edited, "Seen" only read.
inline Table weekTable() {
  Table table = tableOf("Item:String Week:Period Plan:Number Seen:Number", "W1 W2",
                        {"Bolt W1 10 1", "Bolt W2 20 2"});
  table.field(2).classification = Classification::DataReadWrite;
  return table;
}

struct FormulaWindow : testing::Test {
  FormulaWindow() {
    desk.view.repeatLabels = true;
    window = desk.openWindow();
  }
  /// Adds a formula field before the dialogs are opened.
  void given(const FormulaFieldText& text) {
    addFormulaField(desk.view, text);
    recalculateTable(desk.table, desk.notice, desk.formulaScratch, desk.functions);
    window->layOutReport();
  }
  void open(const QString& entry) {
    menuEntry(*window, "&Configure", entry)->trigger();
    QCoreApplication::processEvents();
  }
  QDialog* dialog(const char* name) const {
    auto* found = window->findChild<QDialog*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  template <typename Control>
  static Control* in(QDialog* dialog, const char* name) {
    auto* control = dialog->findChild<Control*>(QLatin1String(name));
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  static void click(QDialog* dialog, const char* button) {
    QTest::mouseClick(in<QPushButton>(dialog, button), Qt::LeftButton);
  }
  static void type(QWidget* edit, const QString& text) {
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) {
      QTest::keyClick(edit, Qt::Key_Delete);
    }
    QTest::keyClicks(edit, text);
    if (QWidget* popup = QApplication::activePopupWidget()) {
      popup->hide();
    }
  }
  /// Takes an entry of the dialog's "&Actions" menu.
  static void act(QDialog* dialog, const QString& entry) {
    for (QAction* action : in<QPushButton>(dialog, "actionsButton")->menu()->actions()) {
      if (action->text() == entry) {
        action->trigger();
        QCoreApplication::processEvents();
        return;
      }
    }
    FAIL() << entry.toStdString();
  }
  static void selectRow(QTreeWidget* list, int row) {
    const QRect place = list->visualItemRect(list->topLevelItem(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place.center());
  }
  /// "name|formula" of each row; the selected one in front of " <".
  static Lines rowsOf(const QTreeWidget* list) {
    Lines rows;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
      const QTreeWidgetItem* item = list->topLevelItem(row);
      rows.push_back(
          (item->text(0) + u'|' + item->text(1) + (item->isSelected() ? " <" : "")).toStdString());
    }
    return rows;
  }
  /// The texts of the report's rows, cells separated by "|".
  Lines grid() const {
    Lines rows;
    const ReportTableModel& model = window->model();
    for (int row = 0; row < model.rowCount({}); ++row) {
      QStringList cells;
      for (int column = 0; column < model.columnCount({}); ++column) {
        cells << model.index(row, column).data().toString();
      }
      rows.push_back(cells.join(u'|').toStdString());
    }
    return rows;
  }
  /// The view as it would be saved.
  std::string saved() const { return savedText(desk.view); }

  Desk desk{weekTable(), {"Item", "Week", "", "Plan Seen"}, false};
  std::unique_ptr<VrelMainWindow> window;
};

}  // namespace vrel::test
