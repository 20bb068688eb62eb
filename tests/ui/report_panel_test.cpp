// The road of edits through the window: typed, refused, copied, pasted, taken back; real keys and
// mouse events on the real widgets.
#include "ui/report_panel.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include "expr/formula.h"
#include "ui/report_panel_desk.h"

namespace vrel {
namespace {

using Lines = std::vector<std::string>;
using ReportPanelTest = test::ReportPanelDesk;

TEST_F(ReportPanelTest, ATypedNumberIsStoredShownAndSentWithAllThatFollows) {
  open();
  goTo(0, 3);
  type("1,000");
  press(Qt::Key_Return);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,000|1,400|1,500");
  EXPECT_EQ(row(2), "|Stock|1,200|2,200|3,600|5,100") << "later weeks continue from the edited one";
  EXPECT_EQ(desk->lastMessage(), "p2 \"1000.00000000000\"\n");
  ASSERT_EQ(desk->announced.size(), 1U);
  EXPECT_EQ(desk->announced[0].substr(0, 3), "DEI");
  EXPECT_TRUE(desk->view.modified);
  EXPECT_EQ(boxes(), Lines());
}

TEST_F(ReportPanelTest, AfterEnterTheCellIsOpenAgain) {
  open();
  goTo(0, 2);
  type("2*3");
  press(Qt::Key_Return);
  ASSERT_NE(regular->cellEditor(), nullptr);
  EXPECT_EQ(regular->cellEditor()->text(), "6");
  EXPECT_EQ(regular->cellEditor()->selectedText(), "6");
  type("7");
  press(Qt::Key_Down);
  EXPECT_EQ(row(0), "Bolt|Plan|7|1,300|1,400|1,500");
}

TEST_F(ReportPanelTest, ATextThatDoesNotParseIsRefusedWithItsReason) {
  open();
  goTo(0, 2);
  type("2*(");
  press(Qt::Key_Return);
  EXPECT_EQ(desk->dialogs,
            QStringList{"Expression Error|Cannot compute value|Syntax error in expression:"});
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
  EXPECT_TRUE(desk->announced.empty());
  EXPECT_FALSE(desk->view.modified);
  ASSERT_NE(regular->cellEditor(), nullptr);
  EXPECT_EQ(regular->cellEditor()->text(), "2*(") << "to be corrected";
}

TEST_F(ReportPanelTest, ATextWithoutAValueIsRefusedWithItsReason) {
  open();
  goTo(0, 2);
  type("Nowhere");
  press(Qt::Key_Return);
  EXPECT_EQ(desk->dialogs,
            QStringList{"Expression Error|Cannot compute value|Evaluation error in expression:"});
  press(Qt::Key_Escape);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
}

TEST_F(ReportPanelTest, ADecimalCommaIsNotTakenForASeparator) {
  open();
  goTo(0, 2);
  type("1,5");
  press(Qt::Key_Return);
  EXPECT_EQ(desk->dialogs.size(), 1);
  EXPECT_EQ(desk->table.cell(0, 2).number, 1200);
}

TEST_F(ReportPanelTest, ATextThatIsNoDateIsRefused) {
  open("Due");
  desk->table.field(5).classification = Classification::DataReadWrite;
  desk->table.field(5).type = FieldType::Date;
  goTo(0, 1);
  type("someday");
  press(Qt::Key_Return);
  EXPECT_EQ(boxes(), Lines{"warning|Data Editor|\"someday\" is not a date."});
  EXPECT_TRUE(desk->announced.empty());
}

TEST_F(ReportPanelTest, ReadOnlyCellsDoNotOpen) {
  open();
  goTo(1, 2);
  type("5");
  press(Qt::Key_F2);
  EXPECT_EQ(regular->cellEditor(), nullptr);
  EXPECT_EQ(row(1), "|Seen|11|12|13|14");
}

TEST_F(ReportPanelTest, ABooleanTakesItsWordsAndIsNotOpenedAgain) {
  open("On");
  goTo(0, 1);
  type("No");
  press(Qt::Key_Return);
  EXPECT_EQ(row(0), "Bolt|No|Yes|Yes|Yes");
  EXPECT_EQ(desk->lastMessage(), "o1 \"No\"\n");
  EXPECT_EQ(regular->cellEditor(), nullptr);
}

TEST_F(ReportPanelTest, AnInverseFormulaCarriesTheEditOfAFormulaField) {
  open();
  goTo(2, 3);
  type("2000");
  press(Qt::Key_Return);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|800|1,400|1,500");
  EXPECT_EQ(row(2), "|Stock|1,200|2,000|3,400|4,900");
  EXPECT_EQ(desk->lastMessage(), "p2 \"800.00000000000\"\n");
}

TEST_F(ReportPanelTest, AFailingInverseFormulaIsShown) {
  open();
  setText(desk->table.field(6).inverseExpression, "Nowhere + 1");
  goTo(2, 3);
  type("2000");
  press(Qt::Key_Tab);
  EXPECT_EQ(desk->dialogs,
            QStringList{"Expression Error|Cannot compute value|Evaluation error in expression:"});
}

TEST_F(ReportPanelTest, ALostMessageIsToldToTheUser) {
  open();
  desk->environment = [](const char*) { return std::string("/nowhere/at/all"); };
  goTo(0, 2);
  type("5");
  press(Qt::Key_Tab);
  EXPECT_EQ(boxes(), Lines{"warning|Data Editor|The change could not be sent to the host "
                           "application: its message file cannot be written."});
  EXPECT_EQ(desk->table.cell(0, 2).number, 5) << "the edit stays";
}

TEST_F(ReportPanelTest, SummariesFollowAnEdit) {
  open();
  desk->view.breaks[0] = test::breakOf(0, kBreakAtEnd, {{2, BreakOperation::Sum}});
  window->layOutReport();
  goTo(0, 2);
  type("200");
  press(Qt::Key_Tab);
  EXPECT_EQ(row(6), "Total|Plan|3,400|4,600|4,800|5,000");
}

TEST_F(ReportPanelTest, ColoursFollowAnEdit) {
  open();
  setText(desk->table.field(2).highlightExpression, "IF(Stock < 1000, RED(), BLACK())");
  goTo(0, 2);
  type("5");
  press(Qt::Key_Tab);
  const QModelIndex cell = window->model().index(0, 2);
  EXPECT_EQ(cell.data(ReportTableModel::kHighlightRole), 1);
}

TEST_F(ReportPanelTest, CopyPutsTheShownTextsOnTheClipboard) {
  open();
  select(0, 2, 2, 3);
  copy();
  EXPECT_EQ(clipboard(), "1,200\t1,300\t1,400\n11\t12\t13\n");
}

TEST_F(ReportPanelTest, CopiedRowsHaveTheirLabelsInFront) {
  open();
  goTo(0, 2);
  press(Qt::Key_Space, Qt::ShiftModifier);
  copy();
  EXPECT_EQ(clipboard(), "Bolt\tPlan\t1,200\t1,300\t1,400\t1,500\n");
  goTo(3, 4);
  press(Qt::Key_Space, Qt::ShiftModifier);
  paste();
  EXPECT_EQ(row(3), "Gear|Plan|1,200|1,300|1,400|1,500") << "pasted without the labels";
  EXPECT_EQ(boxes(), Lines());
}

TEST_F(ReportPanelTest, OneCellGoesToAnother) {
  open();
  goTo(0, 2);
  copy();
  EXPECT_EQ(clipboard(), "1,200");
  goTo(3, 5);
  paste();
  EXPECT_EQ(row(3), "Gear|Plan|3,200|3,300|3,400|1,200");
  EXPECT_EQ(desk->lastMessage(), "p8 \"1200.00000000000\"\n");
}

TEST_F(ReportPanelTest, OneReadOnlyCellIsRefused) {
  open();
  goTo(0, 2);
  copy();
  goTo(1, 2);
  paste();
  EXPECT_EQ(boxes(), Lines{"warning|QNT Error|Selected cell in paste area is read only and has not "
                           "been changed."});
  EXPECT_TRUE(desk->announced.empty());
}

TEST_F(ReportPanelTest, ABlockIsTiledOverAMultipleOfItsSize) {
  open("Plan Stock", true);
  goTo(0, 1);
  QGuiApplication::clipboard()->setText("5\t6\n");
  select(0, 1, 2, 4);
  paste();
  EXPECT_EQ(row(0), "Bolt|6|6|0|6|1,400|1,406|1,500|2,906")
      << "the plans that the stocks' inverse formulas assign";
  EXPECT_EQ(desk->announced.size(), 1U) << "one message for all";
  EXPECT_EQ(boxes(), Lines());
}

TEST_F(ReportPanelTest, ABlockThatDoesNotMatchTheSelectionIsRefused) {
  open("Plan");
  select(0, 1, 1, 2);
  copy();
  select(0, 1, 2, 3);
  paste();
  EXPECT_EQ(boxes(), Lines{"warning|QNT Error|Region for pasting does match copied data region."});
  EXPECT_TRUE(desk->announced.empty());
}

TEST_F(ReportPanelTest, ASelectionWithReadOnlyCellsTakesTheOthersAndWarnsOnce) {
  open();
  goTo(0, 2);
  QGuiApplication::clipboard()->setText("7");
  select(0, 2, 2, 2);
  paste();
  EXPECT_EQ(row(0), "Bolt|Plan|7|7|1,400|1,500");
  EXPECT_EQ(row(1), "|Seen|11|12|13|14");
  EXPECT_EQ(boxes(), Lines{"warning|QNT Error|At least one cell in paste area is read only and has "
                           "not been changed."});
}

TEST_F(ReportPanelTest, ABlockWithoutASelectionGoesToTheCurrentCell) {
  open();
  QGuiApplication::clipboard()->setText("7\t8\r\n9\t10\r\n");
  goTo(0, 4);
  paste();
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|7|8");
  EXPECT_EQ(boxes(), Lines{"warning|QNT Error|One or more cells in paste area are read only and "
                           "have not been changed."});
  EXPECT_EQ(desk->lastMessage(), "p3 \"7.00000000000\"\np4 \"8.00000000000\"\n");
}

TEST_F(ReportPanelTest, ABlockMustFitIntoTheReport) {
  open();
  QGuiApplication::clipboard()->setText("7\t8\n9\t10\n");
  goTo(0, 5);
  paste();
  goTo(5, 2);
  paste();
  EXPECT_EQ(boxes(), (Lines{"warning|QNT Error|Column range is outside of table size.",
                            "warning|QNT Error|Row range is outside of table size."}));
  EXPECT_TRUE(desk->announced.empty());
}

TEST_F(ReportPanelTest, PastedTextsThatAreNoValuesAreTold) {
  open();
  QGuiApplication::clipboard()->setText("x x\ty y\n");
  goTo(0, 2);
  paste();
  EXPECT_EQ(boxes(), Lines{"warning|QNT Error|Some of the pasted texts are no values and have not "
                           "been set; the first is \"x x\"."});
  QGuiApplication::clipboard()->setText("z z");
  paste();
  EXPECT_EQ(desk->dialogs.size(), 1) << "a single one says what is wrong with it";
}

TEST_F(ReportPanelTest, AnEmptyClipboardPastesNothing) {
  open();
  goTo(0, 2);
  paste();
  EXPECT_EQ(boxes(), Lines());
  EXPECT_TRUE(desk->announced.empty());
}

TEST_F(ReportPanelTest, InTheEditorTheKeysBelongToItsText) {
  open();
  goTo(0, 2);
  type("12");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  copy();
  EXPECT_EQ(clipboard(), "12");
  press(Qt::Key_End);
  paste();
  ASSERT_NE(regular->cellEditor(), nullptr);
  EXPECT_EQ(regular->cellEditor()->text(), "1212");
  EXPECT_TRUE(desk->announced.empty());
}

// The menu that a right click opened; closed again by the test.
QMenu* openMenu(const QWidget& window) {
  QMenu* menu = window.findChild<QMenu*>("copyPasteMenu");
  EXPECT_NE(menu, nullptr);
  return menu;
}

void rightClick(DataTable* table, int row, int column) {
  const QPoint place = table->visualRect(table->model()->index(row, column)).center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, table->viewport()->mapToGlobal(place));
  QApplication::sendEvent(table->viewport(), &event);
}

TEST_F(ReportPanelTest, TheMenuOfACellCopiesAndPastes) {
  open();
  rightClick(regular, 0, 0);
  QMenu* menu = openMenu(*window);
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions()[0]->text(), "(Copy)");
  EXPECT_EQ(menu->actions()[1]->text(), "(Paste)");
  menu->actions()[0]->trigger();
  EXPECT_EQ(clipboard(), "1,200");
  menu->close();
  QTest::qWait(1);
  rightClick(regular, 3, 0);
  menu = openMenu(*window);
  EXPECT_TRUE(menu->actions()[1]->isEnabled());
  menu->actions()[1]->trigger();
  menu->close();
  EXPECT_EQ(row(3), "Gear|Plan|1,200|3,300|3,400|3,500");
}

TEST_F(ReportPanelTest, TheMenuPastesOverEditableCellsOnly) {
  open();
  QGuiApplication::clipboard()->setText("1");
  rightClick(regular, 1, 0);
  QMenu* menu = openMenu(*window);
  EXPECT_FALSE(menu->actions()[1]->isEnabled());
  menu->close();
  QTest::qWait(1);
  rightClick(window->tables().frozenColumnTable(), 0, 0);
  menu = openMenu(*window);
  EXPECT_FALSE(menu->actions()[1]->isEnabled());
  menu->close();
}

TEST_F(ReportPanelTest, UndoAndRedoGoToTheHostAsEdits) {
  open();
  goTo(0, 3);
  type("1000");
  press(Qt::Key_Tab);
  goTo(5, 5);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
  EXPECT_EQ(row(2), "|Stock|1,200|2,500|3,900|5,400");
  EXPECT_EQ(desk->lastMessage(), "p2 \"1300.00000000000\"\n");
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{0, 3})) << "shows what it changed";
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,000|1,400|1,500");
  EXPECT_EQ(desk->lastMessage(), "p2 \"1000.00000000000\"\n");
  press(Qt::Key_Z, Qt::ControlModifier);
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(desk->announced.size(), 5U);
  EXPECT_EQ(desk->table.cell(1, 2).number, 1000);
}

TEST_F(ReportPanelTest, UndoGoesToThePageOfTheEdit) {
  open("Plan", false, "Item");
  goTo(0, 0);
  type("5");
  press(Qt::Key_Tab);
  window->findChild<ZTabs*>()->incrementZIndex();
  EXPECT_EQ(row(0), "3,200|3,300|3,400|3,500");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(row(0), "1,200|1,300|1,400|1,500");
  EXPECT_EQ(desk->view.zIndex, 0);
}

TEST_F(ReportPanelTest, AllInverseFormulasRunFromTheMenuAndCanBeTakenBack) {
  open();
  goTo(0, 2);
  setText(desk->table.field(6).inverseExpression, "Assign(#Plan, Plan * 2)");
  for (QAction* action : window->menuBar()->findChildren<QAction*>()) {
    if (action->text() == "&All Inverse Formulas") {
      action->trigger();
    }
  }
  EXPECT_EQ(row(0), "Bolt|Plan|2,400|2,600|2,800|3,000");
  EXPECT_EQ(row(2), "|Stock|2,400|5,000|7,800|10,800");
  EXPECT_TRUE(desk->view.modified);
  EXPECT_EQ(desk->announced.size(), 1U);
  EXPECT_TRUE(QString::fromStdString(desk->lastMessage()).contains("s1 \"11.00000000000\"\n"))
      << "the whole table is sent";
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
}

TEST_F(ReportPanelTest, ALostMessageOfTheWholeTableIsToldToTheUser) {
  open();
  desk->environment = [](const char*) { return std::string("/nowhere/at/all"); };
  window->slotEditRecalculateAllInverse();
  EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(ReportPanelTest, HidingAFieldEmptiesItsColumnUntilItIsShownAgain) {
  open("Plan Seen");
  const DataTable* frozen = window->tables().frozenColumnTable();
  emit const_cast<DataTable*>(frozen)->hideToggled(0);
  EXPECT_EQ(row(0), "|Plan|1,200|1,300|1,400|1,500");
  EXPECT_EQ(frozen->model()->headerData(0, Qt::Horizontal).toString().trimmed(), "");
  EXPECT_TRUE(desk->view.modified);
  emit const_cast<DataTable*>(frozen)->hideToggled(0);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
}

TEST_F(ReportPanelTest, WhatIsBeingTypedIsTakenBeforeTheWindowCloses) {
  open();
  desk->notice.answer = Answer::No;
  goTo(0, 2);
  type("2*");
  window->slotFileClose();
  EXPECT_EQ(desk->dialogs.size(), 1);
  EXPECT_EQ(desk->endings, 0) << "a refused text is not lost without a word";
  press(Qt::Key_Escape);
  goTo(0, 2);
  type("77");
  window->slotFileClose();
  EXPECT_EQ(desk->lastMessage(), "p1 \"77.00000000000\"\n");
  EXPECT_EQ(desk->endings, 1);
}

TEST_F(ReportPanelTest, WhatIsBeingTypedIsTakenBeforeAnotherPageIsShown) {
  open("Plan", false, "Item");
  goTo(0, 0);
  type("77");
  window->findChild<ZTabs*>()->incrementZIndex();
  EXPECT_EQ(desk->table.cell(0, 2).number, 77);
  EXPECT_EQ(desk->table.cell(4, 2).number, 3200);
}

TEST_F(ReportPanelTest, FindGoesFromPlaceToPlace) {
  open();
  goTo(0, 2);
  QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
  type("3,300");
  press(Qt::Key_Return);
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{3, 3}));
  type("gear");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  type("gear");
  press(Qt::Key_Return);
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{3, 0}));
  press(Qt::Key_Escape);
  EXPECT_TRUE(regular->hasFocus() || window->tables().frozenColumnTable()->hasFocus());
}

TEST_F(ReportPanelTest, TheStatusBarTellsWhatIsSelected) {
  open();
  select(0, 2, 1, 4);
  auto* status = window->findChild<SelectionStatus*>();
  ASSERT_NE(status, nullptr);
  EXPECT_TRUE(QTest::qWaitFor([status] { return !status->isCounting(); }));
  EXPECT_TRUE(status->text().contains("5,400")) << status->text().toStdString();
  goTo(0, 2);
  type("200");
  press(Qt::Key_Tab);
  select(0, 2, 1, 4);
  EXPECT_TRUE(QTest::qWaitFor([status] { return !status->isCounting(); }));
  EXPECT_TRUE(status->text().contains("4,400")) << status->text().toStdString();
}

}  // namespace
}  // namespace vrel
