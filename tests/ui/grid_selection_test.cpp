#include <QSignalSpy>

#include "ui/tables_desk.h"

namespace vrel {
namespace {

using test::supplyPlan;
using test::tableOf;
using test::TablesDesk;

constexpr Qt::KeyboardModifiers kShift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers kControl = Qt::ControlModifier;

// Four rows; two label columns and six of data.
struct Selection : TablesDesk {
  void SetUp() override { open(supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true); }

  static void clickHeading(const DataTable* table, int column, Qt::KeyboardModifiers keys = {}) {
    const QPoint at(table->heading()->sectionViewportPosition(column) + 10, 8);
    QTest::mouseClick(table->heading()->viewport(), Qt::LeftButton, keys, at);
  }
  void clickRowNumber(int row, Qt::KeyboardModifiers keys = {}) const {
    const QHeaderView* numbers = frozen->verticalHeader();
    const QPoint at(5, numbers->sectionViewportPosition(row) + 8);
    QTest::mouseClick(numbers->viewport(), Qt::LeftButton, keys, at);
  }
  void drag(const DataTable* table, GridPlace from, GridPlace to) const {
    const auto at = [&](GridPlace place) {
      return middle(table, static_cast<int>(place.row), static_cast<int>(place.column));
    };
    QTest::mousePress(table->viewport(), Qt::LeftButton, {}, at(from));
    moveHeld(table, at(to));
    QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, at(to));
  }
  static void moveHeld(const QTableView* table, QPoint to) {
    QMouseEvent move(QEvent::MouseMove, to, table->viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(table->viewport(), &move);
  }
};

TEST_F(Selection, BeginsWithTheFirstDataCell) {
  EXPECT_EQ(place(), "0/2");
  EXPECT_EQ(selection(), "0/2+1/1");
  EXPECT_EQ(shownSelection(regular), "0/0+1/1");
  EXPECT_EQ(shownSelection(frozen), "");
}

TEST_F(Selection, AClickGoesToTheCell) {
  click(regular, 2, 3);
  EXPECT_EQ(place(), "2/5");
  EXPECT_EQ(selection(), "2/5+1/1");
  EXPECT_EQ(shownSelection(regular), "2/3+1/1");
}

TEST_F(Selection, ADragSelectsABlock) {
  drag(regular, {2, 3}, {1, 1});
  EXPECT_EQ(selection(), "1/3+2/3");
  EXPECT_EQ(place(), "1/3");
  EXPECT_EQ(shownSelection(regular), "1/1+2/3");
}

TEST_F(Selection, AShiftClickExtendsFromWhereTheBlockBegan) {
  click(regular, 1, 1);
  click(regular, 3, 3, kShift);
  EXPECT_EQ(selection(), "1/3+3/3");
  click(regular, 0, 0, kShift);
  EXPECT_EQ(selection(), "0/2+2/2");
}

TEST_F(Selection, AShiftClickExtendsWhatKeysBegan) {
  press(Qt::Key_Down);
  press(Qt::Key_Right);
  click(regular, 3, 3, kShift);
  EXPECT_EQ(selection(), "1/3+3/3");
}

TEST_F(Selection, KeysExtendWhatAShiftClickBegan) {
  click(regular, 1, 1);
  click(regular, 2, 2, kShift);
  press(Qt::Key_Down, kShift);
  EXPECT_EQ(selection(), "1/3+3/2");
  press(Qt::Key_Left, kShift);
  press(Qt::Key_Left, kShift);
  EXPECT_EQ(selection(), "1/2+3/2");
}

TEST_F(Selection, OneBlockAtATime) {
  drag(regular, {0, 0}, {1, 1});
  click(regular, 3, 3, kControl);
  EXPECT_EQ(selection(), "3/5+1/1");
  EXPECT_EQ(shownSelection(regular), "3/3+1/1");
}

TEST_F(Selection, SelectingInOneTableClearsTheOther) {
  drag(frozen, {0, 0}, {2, 1});
  EXPECT_EQ(selection(), "0/0+3/2");
  EXPECT_EQ(shownSelection(frozen), "0/0+3/2");
  EXPECT_EQ(shownSelection(regular), "");
  EXPECT_FALSE(regular->currentIndex().isValid());
  click(regular, 1, 0);
  EXPECT_EQ(shownSelection(frozen), "");
  EXPECT_FALSE(frozen->currentIndex().isValid());
}

TEST_F(Selection, ARowNumberSelectsTheRowInBothTables) {
  clickRowNumber(1);
  EXPECT_EQ(selection(), "1/0+1/8");
  EXPECT_EQ(place(), "1/2");
  EXPECT_EQ(shownSelection(frozen), "1/0+1/2");
  EXPECT_EQ(shownSelection(regular), "1/0+1/6");
  EXPECT_TRUE(tables->selectsWholeRows());
  EXPECT_FALSE(tables->selectsWholeColumns());
}

TEST_F(Selection, AShiftClickOnARowNumberSelectsTheRowsBetween) {
  clickRowNumber(3);
  clickRowNumber(1, kShift);
  EXPECT_EQ(selection(), "1/0+3/8");
  EXPECT_EQ(shownSelection(frozen), "1/0+3/2");
  EXPECT_EQ(shownSelection(regular), "1/0+3/6");
}

TEST_F(Selection, ShiftArrowsExtendWholeRows) {
  clickRowNumber(1);
  press(Qt::Key_Down, kShift);
  EXPECT_EQ(selection(), "1/0+2/8");
  EXPECT_TRUE(tables->selectsWholeRows());
  press(Qt::Key_Down);
  EXPECT_EQ(selection(), "3/2+1/1");
  EXPECT_FALSE(tables->selectsWholeRows());
}

TEST_F(Selection, AHeadingSelectsTheWholeColumn) {
  clickHeading(regular, 2);
  EXPECT_EQ(selection(), "0/4+4/1");
  EXPECT_TRUE(tables->selectsWholeColumns());
  EXPECT_FALSE(tables->selectsWholeRows());
  EXPECT_EQ(shownSelection(regular), "0/2+4/1");
  clickHeading(regular, 0, kShift);
  EXPECT_EQ(selection(), "0/2+4/3");
}

TEST_F(Selection, AHeadingOfALabelColumnSelectsItAndClearsTheData) {
  clickHeading(frozen, 1);
  EXPECT_EQ(selection(), "0/1+4/1");
  EXPECT_EQ(shownSelection(frozen), "0/1+4/1");
  EXPECT_EQ(shownSelection(regular), "");
  clickHeading(regular, 3, kShift);
  EXPECT_EQ(selection(), "0/2+4/4") << "from the first column of the data";
}

TEST_F(Selection, ControlASelectsEverything) {
  press(Qt::Key_A, kControl);
  EXPECT_EQ(selection(), "0/0+4/8");
  EXPECT_TRUE(tables->selectsWholeRows());
  EXPECT_TRUE(tables->selectsWholeColumns());
  EXPECT_EQ(shownSelection(frozen), "0/0+4/2");
  EXPECT_EQ(shownSelection(regular), "0/0+4/6");
  EXPECT_EQ(place(), "0/2");
  click(regular, 0, 1);
  EXPECT_EQ(selection(), "0/3+1/1");
  EXPECT_EQ(shownSelection(frozen), "");
}

TEST_F(Selection, SpaceWithShiftOrControlSelectsRowsOrColumns) {
  tables->setCurrentPlace({1, 3});
  press(Qt::Key_Down, kShift);
  press(Qt::Key_Space, kShift);
  EXPECT_EQ(selection(), "1/0+2/8");
  tables->setCurrentPlace({1, 3});
  press(Qt::Key_Space, kControl);
  EXPECT_EQ(selection(), "0/3+4/1");
  EXPECT_EQ(regular->cellEditor(), nullptr);
}

TEST_F(Selection, ArrowsCrossTheBorderAndTheKeyboardFollows) {
  press(Qt::Key_Left);
  EXPECT_EQ(place(), "0/1");
  EXPECT_TRUE(frozen->hasFocus());
  EXPECT_EQ(shownSelection(regular), "");
  EXPECT_EQ(tables->activeTable(), frozen);
  press(Qt::Key_Right);
  EXPECT_EQ(place(), "0/2");
  EXPECT_TRUE(regular->hasFocus());
  EXPECT_EQ(tables->activeTable(), regular);
}

TEST_F(Selection, ShiftArrowsStayInTheTable) {
  press(Qt::Key_Left, kShift);
  EXPECT_EQ(selection(), "0/2+1/1");
  EXPECT_TRUE(regular->hasFocus());
}

TEST_F(Selection, KeysMoveAsInSpreadsheets) {
  press(Qt::Key_End);
  EXPECT_EQ(place(), "0/7");
  press(Qt::Key_End, kControl);
  EXPECT_EQ(place(), "3/7");
  press(Qt::Key_Home);
  EXPECT_EQ(place(), "3/2");
  press(Qt::Key_Right, kControl);
  EXPECT_EQ(place(), "3/3") << "the next two cells are empty";
  press(Qt::Key_Right, kControl);
  EXPECT_EQ(place(), "3/6");
  press(Qt::Key_Up, kControl | kShift);
  EXPECT_EQ(selection(), "0/6+4/1");
  press(Qt::Key_Home, kControl);
  EXPECT_EQ(place(), "0/2");
  press(Qt::Key_End, kControl | kShift);
  EXPECT_EQ(selection(), "0/2+4/6");
}

TEST_F(Selection, TabGoesThroughTheCellsAndWrapsRows) {
  tables->setCurrentPlace({0, 7});
  press(Qt::Key_Tab);
  EXPECT_EQ(place(), "1/2");
  press(Qt::Key_Backtab, kShift);
  EXPECT_EQ(place(), "0/7");
}

TEST_F(Selection, ControlTabLeavesTheReport) {
  auto* before = new QLineEdit(window.get());
  auto* after = new QLineEdit(window.get());
  before->show();
  after->show();
  QWidget::setTabOrder(before, frozen);
  QWidget::setTabOrder(regular, after);
  press(Qt::Key_Tab, kControl);
  EXPECT_TRUE(after->hasFocus());
  tables->setFocus();
  press(Qt::Key_Backtab, kControl | kShift);
  EXPECT_TRUE(before->hasFocus());
  EXPECT_EQ(place(), "0/2");
}

TEST_F(Selection, TabFromOutsideEntersWhereTheCursorIs) {
  auto* before = new QLineEdit(window.get());
  before->show();
  QWidget::setTabOrder(before, frozen);
  before->setFocus();
  press(Qt::Key_Tab);
  EXPECT_TRUE(regular->hasFocus());
  EXPECT_EQ(place(), "0/2");
}

TEST_F(Selection, SaysWhenItChanges) {
  const QSignalSpy changes(tables, &FrozenColumnTablesImpl::selectionChanged);
  press(Qt::Key_Right);
  EXPECT_EQ(changes.count(), 1);
  press(Qt::Key_Up);
  EXPECT_EQ(changes.count(), 1) << "it is the first row";
  press(Qt::Key_Down, kShift);
  EXPECT_EQ(changes.count(), 2);
  clickRowNumber(2);
  EXPECT_EQ(changes.count(), 3);
}

TEST_F(Selection, GoesToTheNearestCellThatThereIs) {
  tables->setCurrentPlace({100, 100});
  EXPECT_EQ(place(), "3/7");
}

TEST_F(Selection, FollowsWhatIsSelectedByOtherMeans) {
  frozen->setCurrentIndex(frozen->model()->index(2, 1));
  EXPECT_EQ(place(), "2/1");
  EXPECT_EQ(shownSelection(regular), "");
}

TEST_F(Selection, OfAReportWithoutCellsThereIsNone) {
  desk->view.axis(Axis::Data).clear();
  desk->view.dataInColumns = false;
  layOutAgain();
  EXPECT_EQ(tables->selection(), std::nullopt);
  EXPECT_EQ(tables->currentPlace(), std::nullopt);
  press(Qt::Key_Right);
  press(Qt::Key_A, kControl);
  tables->setCurrentPlace({1, 1});
  EXPECT_EQ(tables->selection(), std::nullopt);
}

TEST_F(Selection, StaysWhenTheReportIsLaidOutAgainWithTheSameColumns) {
  tables->setCurrentPlace({1, 3});
  press(Qt::Key_Down, kShift);
  layOutAgain();
  EXPECT_EQ(place(), "2/3");
  EXPECT_EQ(selection(), "1/3+2/1");
  EXPECT_EQ(shownSelection(regular), "1/1+2/1");
  press(Qt::Key_Down, kShift);
  EXPECT_EQ(selection(), "1/3+3/1") << "and can be extended further";
}

TEST_F(Selection, BeginsAnewWhenTheColumnsAreOthers) {
  tables->setCurrentPlace({1, 3});
  desk->view.dataInColumns = false;
  layOutAgain();
  EXPECT_EQ(place(), "0/3");
  EXPECT_EQ(selection(), "0/3+1/1");
}

TEST_F(Selection, ClicksAreTold) {
  const QSignalSpy clicks(regular, qOverload<int, int, int, const QPoint&>(&DataTable::clicked));
  const QSignalSpy moves(regular, qOverload<int, int>(&DataTable::currentChanged));
  click(regular, 2, 3);
  ASSERT_EQ(clicks.count(), 1);
  EXPECT_EQ(clicks[0].mid(0, 3), (QVariantList{2, 3, int{Qt::LeftButton}}));
  EXPECT_EQ(clicks[0][3].toPoint(), middle(regular, 2, 3));
  ASSERT_EQ(moves.count(), 1);
  EXPECT_EQ(moves[0], (QVariantList{2, 3}));
}

TEST_F(Selection, AClickBringsTheWholeCellIntoSight) {
  window->resize(350, 300);
  QCoreApplication::processEvents();
  regular->horizontalScrollBar()->setValue(regular->columnWidth(0) / 2);
  ASSERT_GT(regular->horizontalScrollBar()->value(), 0);
  const QRect cell = regular->visualRect(regular->model()->index(1, 0));
  QTest::mouseClick(regular->viewport(), Qt::LeftButton, {},
                    QPoint(cell.right() - 3, cell.center().y()));
  EXPECT_EQ(regular->horizontalScrollBar()->value(), 0);
  EXPECT_EQ(place(), "1/2");
}

TEST_F(Selection, ARightClickAsksForTheMenuOfTheCell) {
  const QSignalSpy menus(regular, &DataTable::contextMenuRequested);
  const QPoint at = middle(regular, 2, 3);
  QTest::mouseClick(regular->viewport(), Qt::RightButton, {}, at);
  QContextMenuEvent wish(QContextMenuEvent::Mouse, at, regular->viewport()->mapToGlobal(at));
  QApplication::sendEvent(regular->viewport(), &wish);
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus[0], (QVariantList{2, 3, regular->viewport()->mapToGlobal(at)}));
  EXPECT_EQ(place(), "2/5");
}

TEST_F(Selection, ARightClickWithinTheBlockKeepsIt) {
  drag(regular, {1, 1}, {2, 2});
  QTest::mouseClick(regular->viewport(), Qt::RightButton, {}, middle(regular, 1, 2));
  EXPECT_EQ(selection(), "1/3+2/2");
  QTest::mouseClick(regular->viewport(), Qt::RightButton, {}, middle(regular, 3, 0));
  EXPECT_EQ(selection(), "3/2+1/1");
}

TEST_F(Selection, ARightClickOnTheLabelsOfWholeRowsKeepsThem) {
  for (const int row : {0, 2}) {
    clickRowNumber(row);
    QTest::mouseClick(frozen->viewport(), Qt::RightButton, {}, middle(frozen, row, 1));
    EXPECT_EQ(selection(), QStringLiteral("%1/0+1/8").arg(row));
    EXPECT_TRUE(tables->selectsWholeRows());
    EXPECT_TRUE(regular->hasFocus()) << "the cursor is there";
  }
}

TEST_F(Selection, TheTableWithTheCursorHasTheKeyboard) {
  tables->setCurrentPlace({2, 3});
  frozen->setFocus();
  EXPECT_EQ(place(), "2/3");
  EXPECT_TRUE(regular->hasFocus());
  const QPoint below(10, frozen->viewport()->height() - 2);
  QTest::mouseClick(frozen->viewport(), Qt::LeftButton, {}, below);
  EXPECT_EQ(place(), "2/3");
  EXPECT_TRUE(regular->hasFocus());
  press(Qt::Key_Down);
  EXPECT_EQ(place(), "3/3");
}

TEST_F(Selection, TheMenuKeyAsksForTheMenuOfTheCurrentCell) {
  const QSignalSpy menus(regular, &DataTable::contextMenuRequested);
  tables->setCurrentPlace({1, 3});
  QContextMenuEvent wish(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(regular->viewport(), &wish);
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus[0],
            (QVariantList{1, 1, regular->viewport()->mapToGlobal(middle(regular, 1, 1))}));
}

TEST_F(Selection, BesideTheCellsThereIsNoMenu) {
  const QSignalSpy menus(regular, &DataTable::contextMenuRequested);
  const QPoint below(10, regular->viewport()->height() - 2);
  QContextMenuEvent wish(QContextMenuEvent::Mouse, below, regular->mapToGlobal(below));
  QApplication::sendEvent(regular->viewport(), &wish);
  EXPECT_EQ(menus.count(), 0);
}

// Opens the menu of a column's heading; nothing where there is none.
QMenu* columnMenu(DataTable* table, int column) {
  const QPoint at(table->heading()->sectionViewportPosition(column) + 10, 8);
  emit table->heading()->customContextMenuRequested(at);
  return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

TEST_F(Selection, TheMenuKeyOverAWholeLabelColumnOpensTheMenuOfItsHeading) {
  const auto pressMenuKey = [](DataTable* table) {
    QContextMenuEvent wish(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(table->viewport(), &wish);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  };
  tables->setCurrentPlace({1, 1});
  QMenu* menu = pressMenuKey(frozen);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->objectName(), "copyPasteMenu") << "that of the cell";
  menu->close();
  press(Qt::Key_Space, Qt::ControlModifier);
  menu = pressMenuKey(frozen);
  EXPECT_NE(qobject_cast<ColumnPopupMenu*>(menu), nullptr);
  menu->close();
  tables->setCurrentPlace({1, 3});
  press(Qt::Key_Space, Qt::ControlModifier);
  menu = pressMenuKey(regular);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->objectName(), "copyPasteMenu") << "a data column has no other";
  menu->close();
}

TEST_F(Selection, ALabelColumnsHeadingOffersToHideItsField) {
  const QSignalSpy hidden(tables, &FrozenColumnTablesImpl::hideToggled);
  QMenu* menu = columnMenu(frozen, 1);
  ASSERT_NE(menu, nullptr);
  EXPECT_NE(qobject_cast<ColumnPopupMenu*>(menu), nullptr);
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_EQ(menu->actions()[0]->text(), "Hide Data");
  menu->actions()[0]->trigger();
  menu->close();
  ASSERT_EQ(hidden.count(), 1);
  EXPECT_EQ(hidden[0], QVariantList{1}) << "the field of the second label column";
}

TEST_F(Selection, AHiddenFieldCanBeShownAgain) {
  desk->table.field(0).hidden = true;
  QMenu* menu = columnMenu(frozen, 0);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions()[0]->text(), "Show Data");
  menu->close();
}

TEST_F(Selection, DataColumnsAndDataNamesHaveNoSuchMenu) {
  EXPECT_EQ(columnMenu(regular, 0), nullptr);
  desk->view.dataInColumns = false;
  layOutAgain();
  EXPECT_EQ(columnMenu(frozen, 2), nullptr);
}

}  // namespace
}  // namespace vrel
