#include <QSignalSpy>
#include <QWheelEvent>

#include "ui/tables_desk.h"

namespace vrel {
namespace {

using test::supplyPlan;
using test::tableOf;
using test::TablesDesk;

void turnWheel(const QTableView* table, QPoint turn, Qt::KeyboardModifiers keys) {
  QWidget* viewport = table->viewport();
  const QPointF place(viewport->rect().center());
  QWheelEvent event(place, viewport->mapToGlobal(place), {}, turn, Qt::NoButton, keys,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(viewport, &event);
}

void dragEdge(const QHeaderView* header, QPoint edge, QPoint by) {
  QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseMove(header->viewport(), edge + by);
  QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + by);
}

QPoint rightEdge(const QHeaderView* header, int section) {
  return {header->sectionViewportPosition(section) + header->sectionSize(section) - 2,
          header->height() / 2};
}

// Many rows and columns with one value each, on two pages of equal columns.
Table pagedPlan() {
  std::vector<std::string> lines;
  for (int item = 100; item < 160; ++item) {
    for (const char* region : {"East", "West"}) {
      lines.push_back("I" + std::to_string(item) + " W" + std::to_string(item) + " " + region +
                      " " + std::to_string(item));
    }
  }
  return tableOf("Item:String Week:String Region:String Plan:Number", "", lines);
}

struct Sizes : TablesDesk {
  void openPages() { open(pagedPlan(), {"Item", "Week", "Region", "Plan"}, true); }
  void openSmall() { open(supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true); }
  void showPage(int page) {
    desk->view.zIndex = page;
    layOutAgain();
  }
};

TEST_F(Sizes, ShiftAndTheWheelScrollSidewaysWhatIsUnderTheMouse) {
  openPages();
  turnWheel(regular, {0, -240}, Qt::ShiftModifier);
  EXPECT_GT(regular->horizontalScrollBar()->value(), 0);
  EXPECT_EQ(frozen->horizontalScrollBar()->value(), 0);
  EXPECT_EQ(regular->verticalScrollBar()->value(), 0);
  const int there = regular->horizontalScrollBar()->value();
  turnWheel(frozen, {0, -240}, Qt::ShiftModifier);
  EXPECT_EQ(regular->horizontalScrollBar()->value(), there);
  turnWheel(regular, {0, 2400}, Qt::ShiftModifier);
  EXPECT_EQ(regular->horizontalScrollBar()->value(), 0);
}

TEST_F(Sizes, AWheelThatTurnsSidewaysScrollsSideways) {
  openPages();
  turnWheel(regular, {-240, 0}, {});
  EXPECT_GT(regular->horizontalScrollBar()->value(), 0);
  EXPECT_EQ(regular->verticalScrollBar()->value(), 0);
}

TEST_F(Sizes, ControlAndTheWheelZoomInStepsAndDoNotScroll) {
  openPages();
  EXPECT_EQ(tables->zoom(), 100);
  const QSignalSpy zooms(tables, &FrozenColumnTablesImpl::zoomChanged);
  turnWheel(regular, {0, 120}, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 110);
  turnWheel(frozen, {0, -120}, Qt::ControlModifier);
  turnWheel(frozen, {0, -120}, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 90);
  EXPECT_EQ(zooms.count(), 3);
  EXPECT_EQ(regular->verticalScrollBar()->value(), 0);
}

TEST_F(Sizes, ManySmallTurnsOfTheWheelAreOneStep) {
  openSmall();
  for (int turn = 0; turn < 7; ++turn) {
    turnWheel(regular, {0, 15}, Qt::ControlModifier);
  }
  EXPECT_EQ(tables->zoom(), 100);
  turnWheel(regular, {0, 15}, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 110);
  turnWheel(regular, {0, 60}, Qt::ControlModifier);
  turnWheel(regular, {0, -120}, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 100) << "turning back does not first take back the rest";
  turnWheel(regular, {0, 240}, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 120);
}

TEST_F(Sizes, KeysZoomToo) {
  openSmall();
  press(Qt::Key_Plus, Qt::ControlModifier);
  press(Qt::Key_Equal, Qt::ControlModifier);
  press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
  EXPECT_EQ(tables->zoom(), 130);
  press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 120);
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(tables->zoom(), 100);
  EXPECT_EQ(regular->cellEditor(), nullptr);
}

TEST_F(Sizes, ZoomGoesFromAHalfToThreeTimes) {
  openSmall();
  tables->setZoom(10);
  EXPECT_EQ(tables->zoom(), 50);
  tables->setZoom(1000);
  EXPECT_EQ(tables->zoom(), 300);
}

TEST_F(Sizes, ZoomScalesFontsRowsAndColumnsOfBothTables) {
  openSmall();
  const double points = regular->font().pointSizeF();
  const int row = regular->rowHeight(0);
  const int label = frozen->columnWidth(0);
  const int data = regular->columnWidth(0);
  const int heading = regular->heading()->height();
  tables->setZoom(200);
  QCoreApplication::processEvents();
  for (const QWidget* part : {static_cast<QWidget*>(regular), static_cast<QWidget*>(frozen),
                              static_cast<QWidget*>(regular->heading()),
                              static_cast<QWidget*>(frozen->verticalHeader())}) {
    EXPECT_DOUBLE_EQ(part->font().pointSizeF(), 2 * points);
  }
  EXPECT_NEAR(regular->rowHeight(0), 2 * row, 3);
  EXPECT_EQ(frozen->rowHeight(3), regular->rowHeight(3));
  EXPECT_NEAR(frozen->columnWidth(0), 2 * label, label / 5);
  EXPECT_NEAR(regular->columnWidth(0), 2 * data, data / 5);
  EXPECT_GT(regular->heading()->height(), heading * 3 / 2);
  EXPECT_EQ(regular->heading()->height(), frozen->heading()->height());
  tables->setZoom(100);
  QCoreApplication::processEvents();
  EXPECT_EQ(regular->rowHeight(0), row);
  EXPECT_EQ(regular->columnWidth(0), data);
  EXPECT_DOUBLE_EQ(regular->font().pointSizeF(), points);
}

TEST_F(Sizes, ZoomScalesTheSizesThatTheUserGave) {
  openSmall();
  dragEdge(regular->heading(), rightEdge(regular->heading(), 1), {50, 0});
  const int width = regular->columnWidth(1);
  regular->setRowHeight(2, 40);
  tables->setZoom(150);
  EXPECT_NEAR(regular->columnWidth(1), width * 3 / 2, 1);
  EXPECT_EQ(regular->rowHeight(2), 60);
  EXPECT_EQ(frozen->rowHeight(2), 60);
  tables->setZoom(100);
  EXPECT_EQ(regular->columnWidth(1), width);
  EXPECT_EQ(regular->rowHeight(2), 40);
}

TEST_F(Sizes, ZoomKeepsTheFirstRowInSight) {
  openPages();
  regular->verticalScrollBar()->setValue(20);
  tables->setZoom(120);
  EXPECT_EQ(regular->rowAt(0), 20);
  EXPECT_EQ(frozen->rowAt(0), 20);
}

TEST_F(Sizes, ZoomFollowsTheFontOfTheReport) {
  openSmall();
  tables->setZoom(200);
  QFont font = tables->font();
  font.setPointSizeF(20);
  tables->setFont(font);
  EXPECT_DOUBLE_EQ(regular->font().pointSizeF(), 40);
}

TEST_F(Sizes, ADoubleClickOnAHeadingsEdgeFitsTheColumnToItsLongestText) {
  Table table = supplyPlan();
  table.cell(7, 3).number = 123456789012;
  open(std::move(table), {"Item Place", "Week", "", "Plan Seen"}, true);
  regular->setColumnWidth(2, 10);
  const int column = 2;
  QTest::mouseDClick(regular->heading()->viewport(), Qt::LeftButton, {},
                     rightEdge(regular->heading(), column));
  const QFontMetrics metrics(regular->font());
  EXPECT_GE(regular->columnWidth(column),
            metrics.horizontalAdvance(regular->model()->index(2, column).data().toString()));
  EXPECT_LT(regular->columnWidth(column),
            metrics.horizontalAdvance("123,456,789,012") + 4 * metrics.averageCharWidth());
}

TEST_F(Sizes, TheFittedColumnHasRoomForItsHeading) {
  const QString name = "ANameThatIsWiderThanEveryNumber";
  Table table = supplyPlan();
  table.fields[3].name = name.toStdString();
  open(std::move(table), {"Item Place", "Week", "", name.toStdString() + " Seen"}, true);
  regular->setColumnWidth(0, 10);
  QTest::mouseDClick(regular->heading()->viewport(), Qt::LeftButton, {},
                     rightEdge(regular->heading(), 0));
  EXPECT_GE(regular->columnWidth(0), QFontMetrics(regular->font()).horizontalAdvance(name));
}

TEST_F(Sizes, LabelColumnsCanBeFittedToo) {
  openSmall();
  frozen->setColumnWidth(1, 300);
  QTest::mouseDClick(frozen->heading()->viewport(), Qt::LeftButton, {},
                     rightEdge(frozen->heading(), 1));
  EXPECT_LT(frozen->columnWidth(1), 100);
}

TEST_F(Sizes, DraggedWidthsAndTheScrollPositionStayOnAnotherPageOfTheSameColumns) {
  openPages();
  dragEdge(regular->heading(), rightEdge(regular->heading(), 1), {33, 0});
  dragEdge(frozen->heading(), rightEdge(frozen->heading(), 0), {21, 0});
  const int data = regular->columnWidth(1);
  const int label = frozen->columnWidth(0);
  tables->setCurrentPlace({3, 4});
  regular->verticalScrollBar()->setValue(25);
  regular->horizontalScrollBar()->setValue(140);
  showPage(1);
  EXPECT_EQ(regular->columnWidth(1), data);
  EXPECT_EQ(frozen->columnWidth(0), label);
  EXPECT_EQ(regular->verticalScrollBar()->value(), 25);
  EXPECT_EQ(frozen->verticalScrollBar()->value(), 25);
  EXPECT_EQ(regular->horizontalScrollBar()->value(), 140);
  EXPECT_EQ(place(), "3/4");
}

TEST_F(Sizes, OtherColumnsBeginAnew) {
  openPages();
  const int usual = regular->columnWidth(1);
  const int row = regular->rowHeight(2);
  dragEdge(regular->heading(), rightEdge(regular->heading(), 1), {33, 0});
  regular->setRowHeight(2, 90);
  regular->verticalScrollBar()->setValue(25);
  regular->horizontalScrollBar()->setValue(140);
  desk->view.dataInColumns = false;
  layOutAgain();
  EXPECT_NE(regular->columnWidth(1), usual + 33);
  EXPECT_EQ(regular->rowHeight(2), row);
  EXPECT_EQ(frozen->rowHeight(2), row);
  EXPECT_EQ(regular->verticalScrollBar()->value(), 0);
  EXPECT_EQ(regular->horizontalScrollBar()->value(), 0);
  EXPECT_EQ(place(), "0/1");
}

TEST_F(Sizes, APageWithFewerRowsTakesTheCursorToItsLast) {
  open(tableOf("Item:String Region:String Plan:Number", "",
               {"Bolt East 1", "Gear East 2", "Nut East 3", "Bolt West 4", "Gear West 5"}),
       {"Item", "", "Region", "Plan"}, true);
  tables->setCurrentPlace({2, 1});
  showPage(1);
  EXPECT_EQ(place(), "1/1");
  EXPECT_EQ(selection(), "1/1+1/1");
}

}  // namespace
}  // namespace vrel
