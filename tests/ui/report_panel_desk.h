// A window over a small plan, and a person who works in it with keys.
#pragma once

#include <gtest/gtest.h>

#include <QClipboard>
#include <QTest>

#include "expr/formula.h"
#include "expr/recalculation.h"
#include "support/formula_table.h"
#include "ui/desk.h"

namespace vrel::test {

// Two items over four weeks. "Plan" can be edited, "Seen" only read; "Stock" continues from week to
// week and can be edited by way of the plan; "On" is a boolean, "Due" a date.
inline Table stockPlan() {
  FormulaTable made(
      "Item:String Week:Period Plan:Number Seen:Number On:Boolean Due:String", "W1 W2 W3 W4",
      {"Bolt W1 1200 11 Yes none ### ,,p1,s1,o1,d1", "Bolt W2 1300 12 Yes none ### ,,p2,s2",
       "Bolt W3 1400 13 Yes none ### ,,p3", "Bolt W4 1500 14 Yes none ### ,,p4",
       "Gear W1 3200 31 No none ### ,,p5", "Gear W2 3300 32 No none ### ,,p6",
       "Gear W3 3400 33 No none ### ,,p7", "Gear W4 3500 34 No none ### ,,p8"},
      {{"Stock", "Prev(#Stock, 0) + Plan", "Assign(#Plan, Stock - Prev(#Stock, 0))"}});
  made.table.field(3).classification = Classification::DataReadOnly;
  return std::move(made.table);
}

struct ReportPanelDesk : testing::Test {
  void open(const std::string& data = "Plan Seen Stock", bool dataInColumns = false,
            const std::string& pages = "") {
    desk = std::make_unique<Desk>(
        stockPlan(), Axes{pages.empty() ? "Item" : "", "Week", pages, data}, dataInColumns);
    FormulaContext context{.table = desk->table, .notice = desk->notice};
    recalculateTable(context, desk->functions);
    window = desk->openWindow();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    regular = window->tables().regularTable();
    regular->setFocus();
    QGuiApplication::clipboard()->clear();
  }

  // Small plans on the first page, large ones on the second.
  void openWithPagesByFormula() {
    open("Plan");
    setText(desk->table.field(6).expression, "IF(Plan < 2000, 0, 1)");
    FormulaContext context{.table = desk->table, .notice = desk->notice};
    recalculateTable(context, desk->functions);
    desk->view.axis(Axis::Z) = {6};
    window->layOutReport();
  }

  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  // The first character may open an editor, which gets the others.
  static void type(const std::string& text) {
    for (const char character : text) {
      QTest::keyClick(QApplication::focusWidget(), character);
    }
  }
  void goTo(std::size_t row, std::size_t column) {
    window->tables().setCurrentPlace({row, column});
  }
  // Selects from the current cell on.
  void select(std::size_t row, std::size_t column, int rows, int columns) {
    goTo(row, column);
    for (int i = 1; i < rows; ++i) {
      press(Qt::Key_Down, Qt::ShiftModifier);
    }
    for (int i = 1; i < columns; ++i) {
      press(Qt::Key_Right, Qt::ShiftModifier);
    }
  }
  void copy() { press(Qt::Key_C, Qt::ControlModifier); }
  void paste() { press(Qt::Key_V, Qt::ControlModifier); }
  static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }

  // A row of the report as it is shown.
  std::string row(int wanted) const {
    QStringList texts;
    for (int column = 0; column < window->model().columnCount(); ++column) {
      texts << window->tables().cellText(wanted, column);
    }
    return texts.join(u'|').toStdString();
  }
  const std::vector<std::string>& boxes() const { return desk->notice.shown; }

  std::unique_ptr<Desk> desk;
  std::unique_ptr<VrelMainWindow> window;
  DataTable* regular = nullptr;
};

}  // namespace vrel::test
