// Both tables of a report, shown, and a person who edits in them.
#pragma once

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <memory>

#include "model/report_layout.h"
#include "ui/column_popup_menu.h"
#include "ui/desk.h"
#include "ui/frozen_column_tables.h"

namespace vrel::test {

struct TablesDesk : testing::Test {
  /// Shows a report in tables of 600 by 300 pixels that have the keyboard.
  void open(Table table, const Axes& axes, bool dataInColumns) {
    desk = std::make_unique<Desk>(std::move(table), axes, dataInColumns);
    model = std::make_unique<ReportTableModel>(desk->format);
    window = std::make_unique<QWidget>();
    tables = new FrozenColumnTablesImpl(*model, window.get());
    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(tables);
    window->resize(600, 300);
    layOutAgain();
    window->show();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    frozen = tables->frozenColumnTable();
    regular = tables->regularTable();
    tables->setFocus();
  }

  void TearDown() override { window.reset(); }

  void layOutAgain() {
    model->setGrid(layOut(desk->view));
    tables->fitToReport();
    QCoreApplication::processEvents();
  }

  /// The widget that has the keyboard gets a key.
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void type(const QString& text) {
    for (const QChar character : text) {
      QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
  }
  static QPoint middle(const DataTable* table, int row, int column) {
    return table->visualRect(table->model()->index(row, column)).center();
  }
  static void click(const DataTable* table, int row, int column,
                    Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, middle(table, row, column));
  }
  /// The current cell as "row/column" of the report.
  QString place() const {
    const auto at = tables->currentPlace();
    return at ? QStringLiteral("%1/%2").arg(at->row).arg(at->column) : QString();
  }
  /// The selection as "row/column+rows/columns" of the report.
  QString selection() const {
    const auto area = tables->selection();
    return area ? QStringLiteral("%1/%2+%3/%4")
                      .arg(area->firstRow)
                      .arg(area->firstColumn)
                      .arg(area->rows)
                      .arg(area->columns)
                : QString();
  }
  /// The cells that a table shows as selected, as "row/column+rows/columns" of its own.
  static QString shownSelection(const DataTable* table) {
    const QItemSelection chosen = table->selectionModel()->selection();
    QStringList ranges;
    for (const QItemSelectionRange& range : chosen) {
      ranges << QStringLiteral("%1/%2+%3/%4")
                    .arg(range.top())
                    .arg(range.left())
                    .arg(range.height())
                    .arg(range.width());
    }
    return ranges.join(' ');
  }

  std::unique_ptr<Desk> desk;
  std::unique_ptr<ReportTableModel> model;
  std::unique_ptr<QWidget> window;
  FrozenColumnTablesImpl* tables = nullptr;
  DataTable* frozen = nullptr;
  DataTable* regular = nullptr;
};

}  // namespace vrel::test
