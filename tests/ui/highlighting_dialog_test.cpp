#include "expr/ui/highlighting_dialog.h"

#include <gtest/gtest.h>

#include "ui/fitting.h"
#include "ui/formula_window.h"

namespace vrel {
namespace {

using test::Lines;

struct Highlighting : test::FormulaWindow {
  void open() { FormulaWindow::open("&Highlighting..."); }
  QDialog* dialog() { return FormulaWindow::dialog("HighlightingDialog"); }
  QDialog* editor() { return FormulaWindow::dialog("HighlightEdtrViewBase"); }
  QTreeWidget* list() { return in<QTreeWidget>(dialog(), "highlightList"); }
  Lines rows() { return rowsOf(list()); }
  FormulaEdit* formula() { return in<FormulaEdit>(editor(), "formulaEdit"); }
  QPushButton* source() { return in<QPushButton>(editor(), "sourceButton"); }

  void edit(int row) {
    selectRow(list(), row);
    act(dialog(), "&Edit...");
  }
  void highlight(int row, const QString& text) {
    edit(row);
    type(formula(), text);
    click(editor(), "applyButton");
  }
};

TEST_F(Highlighting, IsListedForEveryField) {
  setHighlightFormula(desk.view, 3, "RED()");
  desk.table.field(1).highlightExpression.text = "";
  open();
  EXPECT_EQ(dialog()->windowTitle(), "Highlighting");
  EXPECT_EQ(list()->headerItem()->text(0), "Field Name");
  EXPECT_EQ(list()->headerItem()->text(1), "Formula");
  EXPECT_EQ(rows(), (Lines{"Item|BLACK()", "Week|BLACK()", "Plan|BLACK()", "Seen|RED()"}));
  EXPECT_EQ(in<QPushButton>(dialog(), "actionsButton")->menu()->actions().size(), 1);
}

TEST_F(Highlighting, ShowsTheColourOfAConstantFormula) {
  setHighlightFormula(desk.view, 2, "IF(Plan>1,RED(),BLACK())");
  setHighlightFormula(desk.view, 3, "RED()");
  open();
  EXPECT_TRUE(list()->topLevelItem(0)->icon(1).isNull());
  EXPECT_TRUE(list()->topLevelItem(2)->icon(1).isNull());
  const QImage sample = list()->topLevelItem(3)->icon(1).pixmap(list()->iconSize()).toImage();
  EXPECT_EQ(sample.pixelColor(sample.width() / 2, sample.height() / 2), QColor(Qt::red));
}

TEST_F(Highlighting, AsksForASelectionBeforeEditing) {
  open();
  act(dialog(), "&Edit...");
  EXPECT_EQ(desk.notice.shown, Lines{"warning|Data Editor: missing highlight|Please select an "
                                     "highlight expression to edit"});
}

TEST_F(Highlighting, IsEditedByDoubleClick) {
  setHighlightFormula(desk.view, 3, "RED()");
  open();
  const QPoint place = list()->visualItemRect(list()->topLevelItem(3)).center();
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(editor()->windowTitle(), "Highlight Editor");
  EXPECT_EQ(in<QLabel>(editor(), "nameLabel")->text(), "Field Name:");
  EXPECT_EQ(in<QLabel>(editor(), "nameText")->text(), "Seen");
  EXPECT_EQ(in<QLabel>(editor(), "formulaLabel")->text().remove(u'&'), "Highlight Formula:");
  EXPECT_EQ(source()->text().remove(u'&'), "Set from source");
  EXPECT_EQ(formula()->formula(), "RED()");
}

TEST_F(Highlighting, IsSeenInTheReportAtOnce) {
  open();
  highlight(2, "IF(Plan>10,RED(),BLACK())");
  EXPECT_EQ(rows()[2], "Plan|IF(Plan>10,RED(),BLACK()) <");
  EXPECT_EQ(highlightOf(desk.table, 0, 2), 0);
  EXPECT_EQ(highlightOf(desk.table, 1, 2), 1);
  EXPECT_TRUE(desk.view.modified);
  EXPECT_FALSE(editor()->isVisible());
}

TEST_F(Highlighting, IsCheckedBeforeItIsTaken) {
  open();
  highlight(2, "RED(");
  EXPECT_EQ(desk.dialogs.join(u'\n').toStdString(),
            "Expression Error|Cannot apply the highlight formula|Syntax error in expression:");
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(desk.table.field(2).highlightExpression.text, "BLACK()");
}

TEST_F(Highlighting, IsNoneWithoutAFormula) {
  setHighlightFormula(desk.view, 2, "RED()");
  open();
  highlight(2, "");
  EXPECT_EQ(rows()[2], "Plan|BLACK() <");
}

TEST_F(Highlighting, IsTakenOverFromAnotherField) {
  setHighlightFormula(desk.view, 0, "PINK()");
  setHighlightFormula(desk.view, 2, "BLUE()");
  setHighlightFormula(desk.view, 3, "RED()");
  desk.table.field(0).name = "R&D";
  open();
  edit(2);
  QStringList sources;
  for (const QAction* action : source()->menu()->actions()) {
    sources << action->text();
  }
  EXPECT_EQ(sources.join(u' ').toStdString(), "R&&D Seen");
  source()->menu()->actions().last()->trigger();
  EXPECT_EQ(formula()->formula(), "RED()");
  click(editor(), "applyButton");
  EXPECT_EQ(rows()[2], "Plan|RED() <");
}

TEST_F(Highlighting, HasNoSourceAmongBlackFields) {
  open();
  edit(2);
  EXPECT_FALSE(source()->isEnabled());
  EXPECT_EQ(source()->toolTip(), "No other field has a highlight formula.");
}

TEST_F(Highlighting, IsAsItWasAfterCancelling) {
  setHighlightFormula(desk.view, 2, "RED()");
  const std::string before = saved();
  open();
  highlight(2, "BLUE()");
  highlight(3, "PINK()");
  EXPECT_NE(saved(), before);
  click(dialog(), "cancelButton");
  EXPECT_EQ(saved(), before);
  EXPECT_EQ(highlightOf(desk.table, 0, 2), 1);
  open();
  highlight(2, "BLUE()");
  click(dialog(), "applyButton");
  EXPECT_FALSE(dialog()->isVisible());
  EXPECT_EQ(desk.table.field(2).highlightExpression.text, "BLUE()");
}

TEST_F(Highlighting, CanBeReadAndReachedInItsDialogs) {
  setHighlightFormula(desk.view, 2, "RED()");
  open();
  edit(3);
  EXPECT_EQ(test::clippedTexts(*dialog()), QStringList());
  EXPECT_EQ(test::clippedTexts(*editor()), QStringList());
  EXPECT_EQ(test::sharedMnemonics(*editor()), QStringList());
}

TEST_F(Highlighting, StaysInTheEditorWhileItsFieldGetsAnotherName) {
  given({"Sum", "Plan+Seen", ""});
  setHighlightFormula(desk.view, 4, "IF(Sum>20,RED(),BLACK())");
  open();
  edit(4);
  changeFormulaField(desk.view, 4, {"Total", "Plan+Seen", ""}, desk.functions);
  window->layOutReport();
  EXPECT_EQ(formula()->formula(), "IF(Total>20,RED(),BLACK())");
  type(formula(), "BLUE()");
  changeFormulaField(desk.view, 4, {"All", "Plan+Seen", ""}, desk.functions);
  window->layOutReport();
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(in<QLabel>(editor(), "nameText")->text(), "All");
  EXPECT_EQ(formula()->formula(), "BLUE()");
  click(editor(), "applyButton");
  EXPECT_EQ(rows().back(), "All|BLUE() <");
}

TEST_F(Highlighting, FollowsTheExpressions) {
  open();
  FormulaWindow::open("&Expressions...");
  QDialog* expressions = FormulaWindow::dialog("ExpressionsDialog");
  act(expressions, "&New");
  QDialog* newField = FormulaWindow::dialog("ExprEdtrViewBase");
  type(in<QLineEdit>(newField, "nameEdit"), "Sum");
  type(in<FormulaEdit>(newField, "formulaEdit"), "Plan+Seen");
  click(newField, "applyButton");
  EXPECT_EQ(rows().back(), "Sum|BLACK()");
  edit(4);
  click(expressions, "cancelButton");
  EXPECT_FALSE(editor()->isVisible());
  EXPECT_EQ(rows().size(), 4U);
}

}  // namespace
}  // namespace vrel
