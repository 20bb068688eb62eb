#include "expr/ui/functions_dialog.h"

#include <gtest/gtest.h>

#include <QMimeData>

#include "expr/ui/function_list.h"
#include "ui/fitting.h"
#include "ui/formula_window.h"

namespace vrel {
namespace {

using test::Lines;

struct Functions : test::FormulaWindow {
  Functions() { open("&List Functions..."); }
  QDialog* functions() { return dialog("FunctionsDialog"); }
  FunctionList* list() { return in<FunctionList>(functions(), "functionList"); }
  QLineEdit* filter() { return in<QLineEdit>(functions(), "filterEdit"); }
  Lines shown() {
    Lines rows;
    for (int row = 0; row < list()->topLevelItemCount(); ++row) {
      const QTreeWidgetItem* item = list()->topLevelItem(row);
      if (!item->isHidden()) {
        rows.push_back((item->text(0) + item->text(1)).toStdString());
      }
    }
    return rows;
  }
  FormulaEdit* openFormula() {
    open("&Expressions...");
    act(dialog("ExpressionsDialog"), "&New");
    auto* formula = in<FormulaEdit>(dialog("ExprEdtrViewBase"), "formulaEdit");
    formula->setFocus();
    QCoreApplication::processEvents();
    return formula;
  }
};

TEST_F(Functions, AreListedInTheRegistrysOrder) {
  EXPECT_EQ(functions()->windowTitle(), "Expression Functions");
  EXPECT_EQ(list()->headerItem()->text(0), "Name");
  EXPECT_EQ(list()->headerItem()->text(1), "Usage");
  EXPECT_EQ(in<QLabel>(functions(), "listLabel")->text().remove(u'&'), "Functions");
  EXPECT_EQ(in<QLabel>(functions(), "hintLabel")->text(),
            "(drag and drop into field or highlight expressions)");
  Lines expected;
  for (const FunctionRecord& each : desk.functions.records()) {
    expected.push_back(each.name + each.usage);
  }
  EXPECT_EQ(shown(), expected);
  EXPECT_FALSE(functions()->isModal());
}

TEST_F(Functions, AreShownInOneAndTheSameDialog) {
  QDialog* first = functions();
  open("&List Functions...");
  EXPECT_EQ(window->findChildren<FunctionsDialog*>(), QList{static_cast<FunctionsDialog*>(first)});
}

TEST_F(Functions, AreFilteredByTheirNamesAndUsages) {
  QTest::keyClicks(filter(), "cover");
  EXPECT_EQ(shown(), (Lines{"Cover(#timeUnit, #demand, #storage, [#last/avg])",
                            "InvCover(#timeUnit, #demand, #cover, [#last/avg])",
                            "InverseDepletion(#depletor, depletorOffset, #unitOfCover, #timeUnit, "
                            "[#f/b], [#last/avg])"}));
  QTest::keyClick(filter(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(filter(), "no such");
  EXPECT_EQ(shown(), Lines());
}

TEST_F(Functions, AreDraggedAsText) {
  QTreeWidgetItem* item = list()->findItems("POWER", Qt::MatchExactly).first();
  ASSERT_NE(dynamic_cast<DragItem*>(item), nullptr);
  list()->setCurrentItem(item);
  const std::unique_ptr<QMimeData> data(
      list()->model()->mimeData(list()->selectionModel()->selectedIndexes()));
  EXPECT_EQ(data->text(), "POWER()");
  EXPECT_EQ(data->data(FormulaEdit::kFunctionFormat), "POWER");
  EXPECT_TRUE(list()->dragEnabled());
}

TEST_F(Functions, GoIntoTheFormulaThatTheUserWasInLast) {
  FormulaEdit* formula = openFormula();
  formula->setFormula("Plan + ");
  open("&List Functions...");
  QTest::keyClicks(filter(), "power");
  QTest::keyClick(filter(), Qt::Key_Return);
  EXPECT_EQ(formula->formula(), "Plan + POWER()");
  EXPECT_EQ(formula->textCursor().position(), 13);
  QCoreApplication::processEvents();
  EXPECT_TRUE(formula->hasFocus());
}

TEST_F(Functions, AreInsertedByDoubleClick) {
  FormulaEdit* formula = openFormula();
  const QPoint place = list()->visualItemRect(list()->topLevelItem(0)).center();
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(formula->formula(), "ABS()");
}

TEST_F(Functions, AreInsertedNowhereWithoutAFormula) {
  list()->setCurrentItem(list()->topLevelItem(0));
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_TRUE(functions()->isVisible());
  FormulaEdit* formula = openFormula();
  dialog("ExprEdtrViewBase")->reject();
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_EQ(formula->formula(), "");
}

TEST_F(Functions, AreReachedFromTheFilterByTheArrows) {
  QTest::keyClicks(filter(), "power");
  QTest::keyClick(filter(), Qt::Key_Down);
  EXPECT_TRUE(list()->hasFocus());
  EXPECT_EQ(list()->currentItem()->text(0), "POWER");
}

TEST_F(Functions, CanBeReadAndReached) {
  EXPECT_EQ(test::clippedTexts(*functions()), QStringList());
  EXPECT_EQ(test::sharedMnemonics(*functions()), QStringList());
}

TEST_F(Functions, AreClosedByEscape) {
  QTest::keyClick(functions(), Qt::Key_Escape);
  EXPECT_FALSE(functions()->isVisible());
}

}  // namespace
}  // namespace vrel
