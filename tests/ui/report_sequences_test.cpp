// What users do one after the other: edits behind Enter, taken back from elsewhere, or moving their
// own cell away.
#include "ui/report_panel_desk.h"

namespace vrel {
namespace {

using ReportSequences = test::ReportPanelDesk;

TEST_F(ReportSequences, TheStatusBarTellsTheFirstCellOfAReportTurned) {
  open("Plan");
  goTo(0, 1);
  window->slotConfigSwapData();
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{0, 1}));
  EXPECT_EQ(window->findChild<SelectionStatus*>()->text(), "1200");
}

TEST_F(ReportSequences, TheStatusBarTellsTheFirstCellFromTheBeginning) {
  open("Plan", false, "Item");
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{0, 0}));
  EXPECT_EQ(window->findChild<SelectionStatus*>()->text(), "1200");
}

TEST_F(ReportSequences, BehindEnterTheEditIsTakenBackAndDoneAgain) {
  open();
  goTo(0, 2);
  type("5");
  press(Qt::Key_Return);
  ASSERT_NE(regular->cellEditor(), nullptr);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
  EXPECT_EQ(regular->cellEditor(), nullptr);
  EXPECT_TRUE(regular->hasFocus());
  press(Qt::Key_F2);
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(row(0), "Bolt|Plan|5|1,300|1,400|1,500");
  EXPECT_EQ(regular->cellEditor(), nullptr);
  EXPECT_EQ(desk->announced.size(), 3U);
}

TEST_F(ReportSequences, WhatIsBeingTypedIsTakenBackInTheEditorOnly) {
  open();
  goTo(0, 2);
  type("5");
  press(Qt::Key_Return);
  type("67");
  press(Qt::Key_Z, Qt::ControlModifier);
  press(Qt::Key_Z, Qt::ControlModifier);
  press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_NE(regular->cellEditor(), nullptr);
  EXPECT_EQ(regular->cellEditor()->text(), "5");
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(regular->cellEditor()->text(), "67");
  EXPECT_EQ(desk->announced.size(), 1U);
}

TEST_F(ReportSequences, TakingARefusedTextBackLeavesTheEditBeforeIt) {
  open();
  goTo(0, 2);
  type("5");
  press(Qt::Key_Return);
  type("2*(");
  press(Qt::Key_Return);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(regular->cellEditor(), nullptr);
  EXPECT_EQ(row(0), "Bolt|Plan|5|1,300|1,400|1,500");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(row(0), "Bolt|Plan|1,200|1,300|1,400|1,500");
}

TEST_F(ReportSequences, WhereARowMovedAwayByItsFormulaNothingIsOpened) {
  open();
  desk->view.axis(Axis::X) = {6, 0, 1};
  desk->view.axis(Axis::Y) = {};
  desk->view.axis(Axis::Data) = {2};
  window->layOutReport();
  EXPECT_EQ(row(0), "1,200|Bolt|W1|1,200");
  goTo(0, 3);
  type("9000");
  press(Qt::Key_Return);
  EXPECT_NE(row(0), "9,000|Bolt|W1|9,000");
  EXPECT_EQ(regular->cellEditor(), nullptr) << "another value stands there now";
}

TEST_F(ReportSequences, TheKeyboardStaysInTheReportWhenAnEditTakesAColumnAway) {
  openWithPagesByFormula();
  EXPECT_EQ(row(0), "Bolt|1,200|1,300|1,400|1,500");
  goTo(0, 1);
  type("5000");
  press(Qt::Key_Return);
  EXPECT_EQ(row(0), "Bolt|1,300|1,400|1,500") << "the value went to the other page";
  EXPECT_TRUE(regular->hasFocus());
}

TEST_F(ReportSequences, UndoGoesToThePageToWhichTheValueComesBack) {
  openWithPagesByFormula();
  goTo(0, 1);
  type("5000");
  press(Qt::Key_Tab);
  window->findChild<ZTabs*>()->incrementZIndex();
  EXPECT_EQ(row(0), "Bolt|5,000|||");
  goTo(1, 3);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(desk->view.zIndex, 0);
  EXPECT_EQ(row(0), "Bolt|1,200|1,300|1,400|1,500");
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{0, 1}));
}

}  // namespace
}  // namespace vrel
