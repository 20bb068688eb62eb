#include "ui/frozen_column_tables.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "model/report_layout.h"
#include "ui/desk.h"

namespace vrel {
namespace {

using test::Axes;
using test::Desk;
using test::supplyPlan;
using test::tableOf;

// Counts the cell texts that are made.
class CountingModel : public ReportTableModel {
 public:
  using ReportTableModel::ReportTableModel;

  QVariant data(const QModelIndex& index, int role) const override {
    texts += role == Qt::DisplayRole ? 1 : 0;
    return ReportTableModel::data(index, role);
  }

  mutable int texts = 0;
};

// `items` rows and `weeks` columns with one tuple in each row.
Table sparsePlan(int items, int weeks) {
  std::vector<std::string> lines;
  for (int item = 0; item < items; ++item) {
    lines.push_back("I" + std::to_string(100'000 + item) + " W" +
                    std::to_string(1000 + item % weeks) + " " + std::to_string(item));
  }
  return tableOf("Item:String Week:String Plan:Number", "", lines);
}

struct Tables : testing::Test {
  void open(Table table, const Axes& axes, bool dataInColumns) {
    desk = std::make_unique<Desk>(std::move(table), axes, dataInColumns);
    model = std::make_unique<CountingModel>(desk->format);
    tables = std::make_unique<FrozenColumnTablesImpl>(*model);
    model->setGrid(layOut(desk->view));
    tables->fitToReport();
    tables->resize(600, 300);
    tables->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(tables.get()));
    frozen = tables->frozenColumnTable();
    regular = tables->regularTable();
  }

  void openLarge() { open(sparsePlan(1000, 50), {"Item", "Week", "", "Plan"}, true); }

  void turnWheel(QTableView* table, int notches) {
    QWidget* viewport = table->viewport();
    const QPointF place(viewport->rect().center());
    QWheelEvent event(place, viewport->mapToGlobal(place), {}, QPoint(0, 120 * notches),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &event);
  }

  static int firstRow(const QTableView* table) { return table->rowAt(0); }
  static int lastRow(const QTableView* table) {
    return table->rowAt(table->viewport()->height() - 1);
  }
  static QPoint place(const QWidget* widget, const QWidget* window) {
    return widget->mapTo(window, QPoint(0, 0));
  }

  std::unique_ptr<Desk> desk;
  std::unique_ptr<CountingModel> model;
  std::unique_ptr<FrozenColumnTablesImpl> tables;
  DataTable* frozen = nullptr;
  DataTable* regular = nullptr;
};

TEST_F(Tables, HaveTheEstablishedNames) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan"}, true);
  EXPECT_EQ(tables->layout()->objectName(), "_topLayout");
  auto* frame = tables->findChild<FrozenColumnTableFrame*>("Frozen COlumn Frame");
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->layout()->objectName(), "_tableLayout");
  EXPECT_NE(frame->findChild<QVBoxLayout*>("_lTableLayout"), nullptr);
  EXPECT_EQ(tables->findChild<DataTable*>("_frozenColumnTable"), frozen);
  EXPECT_EQ(tables->findChild<DataTable*>("_regularTable"), regular);
}

TEST_F(Tables, HaveNamesForAssistiveTools) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan"}, true);
  EXPECT_EQ(frozen->accessibleName(), "Row labels");
  EXPECT_EQ(regular->accessibleName(), "Report data");
}

TEST_F(Tables, ThatReportColumnWhoseNumberIsTheLabelCountIsTheFirstOfTheRegularTable) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true);
  EXPECT_EQ(tables->cellText(0, 1), "Lyon");
  EXPECT_EQ(tables->cellText(0, 2), "1,200");
  EXPECT_EQ(regular->model()->index(0, 0).data().toString(), "1,200");
  EXPECT_EQ(tables->cellText(3, 7), "43");
}

TEST_F(Tables, WithoutLabelColumnsThereIsOnlyTheRegularTable) {
  open(supplyPlan(), {"", "Item Place Week", "", "Plan"}, true);
  EXPECT_FALSE(tables->hasFrozenTable());
  EXPECT_FALSE(frozen->isVisible());
  EXPECT_TRUE(regular->verticalHeader()->isVisible());
  EXPECT_EQ(tables->cellText(0, 0), "1,200");
}

TEST_F(Tables, RowNumbersStandOnceAtTheLeft) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan"}, true);
  EXPECT_TRUE(tables->hasFrozenTable());
  EXPECT_TRUE(frozen->verticalHeader()->isVisible());
  EXPECT_FALSE(regular->verticalHeader()->isVisible());
}

TEST_F(Tables, TheirHeadingsAndRowsStandSideBySide) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true);
  EXPECT_EQ(frozen->heading()->height(), regular->heading()->height());
  EXPECT_GE(regular->heading()->height(), 2 * regular->fontMetrics().lineSpacing());
  EXPECT_EQ(place(frozen->viewport(), tables.get()).y(),
            place(regular->viewport(), tables.get()).y());
  EXPECT_EQ(frozen->viewport()->height(), regular->viewport()->height());
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(frozen->rowViewportPosition(row), regular->rowViewportPosition(row));
  }
}

TEST_F(Tables, TheWheelOverEitherScrollsBoth) {
  openLarge();
  turnWheel(regular, -2);
  const int down = firstRow(regular);
  EXPECT_GT(down, 0);
  EXPECT_EQ(firstRow(frozen), down);
  turnWheel(frozen, -1);
  EXPECT_GT(firstRow(frozen), down);
  EXPECT_EQ(firstRow(regular), firstRow(frozen));
  turnWheel(frozen, 20);
  EXPECT_EQ(firstRow(regular), 0);
}

TEST_F(Tables, KeysInEitherScrollBoth) {
  openLarge();
  regular->setCurrentIndex(regular->model()->index(0, 0));
  QTest::keyClick(regular, Qt::Key_PageDown);
  QTest::keyClick(regular, Qt::Key_PageDown);
  EXPECT_GT(firstRow(regular), 0);
  EXPECT_EQ(firstRow(frozen), firstRow(regular));
  frozen->setCurrentIndex(frozen->model()->index(999, 0));
  EXPECT_EQ(lastRow(regular), 999);
  EXPECT_EQ(firstRow(frozen), firstRow(regular));
}

TEST_F(Tables, ReachTheSameLastRowWithTheScrollBar) {
  openLarge();
  regular->verticalScrollBar()->setValue(regular->verticalScrollBar()->maximum());
  EXPECT_EQ(frozen->verticalScrollBar()->maximum(), regular->verticalScrollBar()->maximum());
  EXPECT_EQ(lastRow(frozen), 999);
  EXPECT_EQ(lastRow(regular), 999);
  EXPECT_EQ(firstRow(frozen), firstRow(regular));
  EXPECT_FALSE(frozen->verticalScrollBar()->isVisible());
}

TEST_F(Tables, SidewaysOnlyTheDataScroll) {
  openLarge();
  EXPECT_GT(regular->horizontalScrollBar()->maximum(), 0);
  regular->horizontalScrollBar()->setValue(100);
  EXPECT_EQ(frozen->horizontalScrollBar()->value(), 0);
  EXPECT_EQ(frozen->columnViewportPosition(0), 0);
}

TEST_F(Tables, ARowDraggedTallerInOneIsTallerInBoth) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan"}, true);
  QHeaderView* numbers = frozen->verticalHeader();
  const int before = frozen->rowHeight(1);
  const QPoint edge(numbers->width() / 2, numbers->sectionViewportPosition(2) - 1);
  QTest::mousePress(numbers->viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseMove(numbers->viewport(), edge + QPoint(0, 15));
  QTest::mouseRelease(numbers->viewport(), Qt::LeftButton, {}, edge + QPoint(0, 15));
  EXPECT_EQ(frozen->rowHeight(1), before + 15);
  EXPECT_EQ(regular->rowHeight(1), before + 15);
  regular->setRowHeight(2, 50);
  EXPECT_EQ(frozen->rowHeight(2), 50);
}

TEST_F(Tables, TheLabelsAreAsWideAsTheyNeedToBeAndNoWider) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan"}, true);
  EXPECT_EQ(frozen->viewport()->width(), frozen->heading()->length());
  frozen->setColumnWidth(0, 150);
  QCoreApplication::processEvents();
  EXPECT_EQ(frozen->viewport()->width(), frozen->heading()->length());
}

TEST_F(Tables, WideLabelsLeaveRoomForTheData) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan"}, true);
  frozen->setColumnWidth(0, 2000);
  QCoreApplication::processEvents();
  EXPECT_LE(frozen->width(), 360);
  EXPECT_GE(regular->width(), 230);
  EXPECT_GT(frozen->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(frozen->viewport()->height(), regular->viewport()->height());
}

TEST_F(Tables, LabelsWithoutRowsNeedNoScrollBar) {
  open(tableOf("Item:String Place:String Plan:Number", "", {}), {"Item Place", "", "", "Plan"},
       true);
  model->setGrid(layOut(desk->view));
  tables->fitToReport();
  QCoreApplication::processEvents();
  EXPECT_EQ(frozen->width(), frozen->heading()->length());
  EXPECT_EQ(frozen->horizontalScrollBar()->maximum(), 0);
}

TEST_F(Tables, FollowANewLayout) {
  open(supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true);
  desk->view.dataInColumns = false;
  model->setGrid(layOut(desk->view));
  tables->fitToReport();
  QCoreApplication::processEvents();
  EXPECT_EQ(tables->cellText(1, 2), "Seen");
  EXPECT_EQ(tables->cellText(1, 3), "11");
  EXPECT_EQ(frozen->viewport()->width(), frozen->heading()->length());
  EXPECT_EQ(frozen->heading()->height(), regular->heading()->height());
}

TEST_F(Tables, ALargeReportOpensWithoutMakingEveryText) {
  open(sparsePlan(100'000, 500), {"Item", "Week", "", "Plan"}, true);
  EXPECT_EQ(model->rowCount(), 100'000);
  EXPECT_EQ(model->columnCount(), 501);
  tables->grab();
  EXPECT_GT(model->texts, 0);
  EXPECT_LT(model->texts, 5'000);
  model->texts = 0;
  regular->setCurrentIndex(regular->model()->index(0, 0));
  QTest::keyClick(regular, Qt::Key_X);
  EXPECT_LT(model->texts, 5'000);
}

}  // namespace
}  // namespace vrel
