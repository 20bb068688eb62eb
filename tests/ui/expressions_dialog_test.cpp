#include "expr/ui/expressions_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSignalSpy>

#include "model/view_file.h"
#include "ui/fitting.h"
#include "ui/formula_window.h"

namespace vrel {
namespace {

using test::Lines;
using testing::ElementsAre;
using testing::MatchesRegex;

struct Expressions : test::FormulaWindow {
  void open() { FormulaWindow::open("&Expressions..."); }
  QDialog* dialog() { return FormulaWindow::dialog("ExpressionsDialog"); }
  QDialog* editor() { return FormulaWindow::dialog("ExprEdtrViewBase"); }
  QTreeWidget* list() { return in<QTreeWidget>(dialog(), "expressionList"); }
  Lines rows() { return rowsOf(list()); }
  QLineEdit* name() { return in<QLineEdit>(editor(), "nameEdit"); }
  FormulaEdit* formula() { return in<FormulaEdit>(editor(), "formulaEdit"); }
  FormulaEdit* inverse() { return in<FormulaEdit>(editor(), "inverseEdit"); }

  void edit(int row) {
    selectRow(list(), row);
    act(dialog(), "&Edit...");
  }
  void add(const QString& fieldName, const QString& text, const QString& inverseText = "") {
    act(dialog(), "&New");
    type(name(), fieldName);
    type(formula(), text);
    type(inverse(), inverseText);
    click(editor(), "applyButton");
  }
};

TEST_F(Expressions, AreListedWithTheirFormulas) {
  given({"Sum", "Plan+Seen", ""});
  given({"Twice", "Plan*2", "Assign(#Plan, Twice/2)"});
  open();
  EXPECT_EQ(dialog()->windowTitle(), "Expressions");
  EXPECT_EQ(list()->headerItem()->text(0), "Field Name");
  EXPECT_EQ(list()->headerItem()->text(1), "Formula");
  EXPECT_EQ(rows(), (Lines{"Sum|Plan+Seen", "Twice|Plan*2"}));
  EXPECT_FALSE(dialog()->isModal());
}

TEST_F(Expressions, HaveButtonsAndActionsAsUsersKnowThem) {
  open();
  QStringList actions;
  for (const QAction* action : in<QPushButton>(dialog(), "actionsButton")->menu()->actions()) {
    actions << action->text();
  }
  EXPECT_EQ(actions.join(u' ').toStdString(), "&New &Edit... &Delete");
  EXPECT_EQ(in<QPushButton>(dialog(), "actionsButton")->text(), "&Actions");
  EXPECT_EQ(in<QPushButton>(dialog(), "applyButton")->text(), "&Apply");
  EXPECT_EQ(in<QPushButton>(dialog(), "cancelButton")->text(), "&Cancel");
}

TEST_F(Expressions, AreShownInOneAndTheSameDialog) {
  open();
  QDialog* first = dialog();
  click(first, "cancelButton");
  EXPECT_FALSE(first->isVisible());
  open();
  EXPECT_TRUE(first->isVisible());
  EXPECT_EQ(window->findChildren<ExpressionsDialogImpl*>().size(), 1);
}

TEST_F(Expressions, AskForASelectionBeforeAnythingIsDoneWithIt) {
  given({"Sum", "Plan+Seen", ""});
  open();
  act(dialog(), "&Edit...");
  act(dialog(), "&Delete");
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor: missing selection|Please select an expression to edit.",
                   "warning|Data Editor: missing selection|Please select an expression to "
                   "delete."}));
}

TEST_F(Expressions, AreAddedAndComputedAtOnce) {
  EXPECT_EQ(grid(), (Lines{"Bolt|Plan|10|20", "Bolt|Seen|1|2"}));
  open();
  add("Sum", "Plan + Seen");
  EXPECT_EQ(rows(), (Lines{"Sum|Plan + Seen <"}));
  EXPECT_EQ(grid(), (Lines{"Bolt|Plan|10|20", "Bolt|Seen|1|2", "Bolt|Sum|11|22"}));
  EXPECT_FALSE(editor()->isVisible());
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(desk.table.field(4).inverseExpression.text, "_undefined_");
  EXPECT_EQ(desk.table.field(4).classification, Classification::DataReadOnly);
}

TEST_F(Expressions, WithAnInverseFormulaCanBeEditedInTheReport) {
  open();
  add("Twice", "Plan*2", "Assign(#Plan, Twice/2)");
  ASSERT_EQ(grid()[2], "Bolt|Twice|20|40");
  DataTable* table = window->tables().regularTable();
  window->activateWindow();
  window->tables().setCurrentPlace({2, 2});
  table->setFocus();
  QTest::keyClicks(table, "5");
  ASSERT_NE(table->cellEditor(), nullptr);
  QTest::keyClicks(table->cellEditor(), "0");
  QTest::keyClick(table->cellEditor(), Qt::Key_Tab);
  EXPECT_EQ(grid()[0], "Bolt|Plan|25|20");
  EXPECT_EQ(grid()[2], "Bolt|Twice|50|40");
}

TEST_F(Expressions, AreShownInTheEditorAsTheyAre) {
  given({"Twice", "Plan*2", "Assign(#Plan, Twice/2)"});
  given({"Sum", "Plan+Seen", ""});
  open();
  edit(0);
  EXPECT_EQ(editor()->windowTitle(), "Expression Editor");
  EXPECT_FALSE(editor()->isModal());
  QStringList labels;
  for (const char* label : {"nameLabel", "formulaLabel", "inverseLabel"}) {
    labels << in<QLabel>(editor(), label)->text().remove(u'&');
  }
  EXPECT_EQ(labels.join(u'|').toStdString(),
            "Field Name:|Formula:|Inverse Formula (applied only when field is edited):");
  EXPECT_EQ(name()->text(), "Twice");
  EXPECT_EQ(formula()->formula(), "Plan*2");
  EXPECT_EQ(inverse()->formula(), "Assign(#Plan, Twice/2)");
  edit(1);
  EXPECT_EQ(inverse()->formula(), "");
}

TEST_F(Expressions, AreEditedByDoubleClickAndByEnter) {
  given({"Sum", "Plan+Seen", ""});
  open();
  const QPoint place = list()->visualItemRect(list()->topLevelItem(0)).center();
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(editor()->isVisible());
  QTest::keyClick(editor(), Qt::Key_Escape);
  EXPECT_FALSE(editor()->isVisible());
  list()->setFocus();
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_TRUE(dialog()->isVisible());
}

TEST_F(Expressions, AreAddedAndDeletedByKeys) {
  given({"Sum", "Plan+Seen", ""});
  open();
  selectRow(list(), 0);
  dialog()->activateWindow();
  list()->setFocus();
  QTest::keyClick(list(), Qt::Key_Insert);
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(name()->text(), "");
  QTest::keyClick(editor(), Qt::Key_Escape);
  dialog()->activateWindow();
  list()->setFocus();
  QTest::keyClick(list(), Qt::Key_Delete);
  EXPECT_EQ(rows(), Lines());
  EXPECT_EQ(desk.table.fieldCount(), 4U);
}

TEST_F(Expressions, TakeFormulasThatNameThemAlongWhenTheyGetAnotherName) {
  given({"Sum", "Plan+Seen", ""});
  given({"Share", "Plan/Sum:0*100", ""});
  setHighlightFormula(desk.view, 2, "IF(Sum>20,RED(),BLACK())");
  open();
  edit(0);
  type(name(), "All in all");
  click(editor(), "applyButton");
  EXPECT_EQ(rows(), (Lines{"All in all|Plan+Seen <", "Share|Plan/'All in all:0'*100"}));
  EXPECT_EQ(desk.table.field(2).highlightExpression.text, "IF('All in all'>20,RED(),BLACK())");
  EXPECT_EQ(grid()[3], "Bolt|Share|91|91");
  EXPECT_EQ(highlightOf(desk.table, 1, 2), 1);
}

TEST_F(Expressions, GetAnotherNameWhereAFieldHasItAlready) {
  open();
  add("Plan", "5");
  EXPECT_THAT(rows(), ElementsAre(MatchesRegex("Plan_[0-9]+.5 <")));
}

TEST_F(Expressions, CheckTheInverseFormulaFirst) {
  given({"Sum", "Plan+Seen", ""});
  open();
  edit(0);
  type(name(), "");
  type(formula(), "Plan +");
  type(inverse(), "Assign(#Plan");
  const std::string before = saved();
  click(editor(), "applyButton");
  EXPECT_EQ(desk.dialogs.join(u'\n').toStdString(),
            "Expression Error|Cannot apply the inverse formula|Syntax error in expression:");
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(saved(), before);
  type(inverse(), "_undefined_");
  click(editor(), "applyButton");
  EXPECT_EQ(desk.dialogs.last().toStdString(),
            "Expression Error|Cannot apply the formula|Syntax error in expression:");
  EXPECT_EQ(saved(), before);
}

TEST_F(Expressions, ShowTheTextWhoseErrorIsTold) {
  open();
  QString shown;
  desk.inDialog = [&](QDialog& error) {
    shown = error.findChild<QWidget*>("formulaText")->accessibleName();
  };
  add("Sum", "Plan + / Seen");
  EXPECT_EQ(shown, "Plan + / Seen");
}

TEST_F(Expressions, WantANameAndAFormula) {
  open();
  add(" ", "5");
  add("Sum", " ");
  add("a:b", "5");
  add("Sum", "1 + \"Bob's plan\"");
  EXPECT_EQ(
      desk.notice.shown,
      (Lines{"warning|Data Editor|Please enter a field name.",
             // The editor that stands open keeps what is written.
             "warning|Data Editor|Please enter a formula.",
             "warning|Data Editor|\"a:b\" cannot be the name of a field: formulas could not refer "
             "to it. A name must not hold colons or quotes, begin with \"#\" or be longer than 127 "
             "bytes.",
             "warning|Data Editor|Cannot apply the formula\nA name with an apostrophe and blanks "
             "or operators in it cannot be used in formulas: view files keep no double quotes "
             "around it."}));
  EXPECT_EQ(desk.table.fieldCount(), 4U);
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(formula()->formula(), "1 + \"Bob's plan\"");
}

TEST_F(Expressions, KeepANameThatTheyAlreadyHave) {
  given({"Sum", "5", ""});
  desk.table.field(4).name = "a:b";
  open();
  edit(0);
  type(formula(), "6");
  click(editor(), "applyButton");
  EXPECT_EQ(rows(), (Lines{"a:b|6 <"}));
}

TEST_F(Expressions, AreDeletedWithAllThatBelongsToThem) {
  given({"Sum", "Plan+Seen", ""});
  given({"Share", "Plan/2", ""});
  open();
  selectRow(list(), 0);
  act(dialog(), "&Delete");
  EXPECT_EQ(rows(), (Lines{"Share|Plan/2 <"}));
  EXPECT_EQ(grid(), (Lines{"Bolt|Plan|10|20", "Bolt|Seen|1|2", "Bolt|Share|5|10"}));
  EXPECT_EQ(desk.view.breaks.size(), 5U);
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(Expressions, AreDeletedFromUnderOthersOnlyWhenTheUserSaysSo) {
  given({"Sum", "Plan+Seen", ""});
  given({"Share", "Plan/Sum", ""});
  setHighlightFormula(desk.view, 2, "IF(Sum>20,RED(),BLACK())");
  open();
  selectRow(list(), 0);
  act(dialog(), "&Delete");
  EXPECT_EQ(desk.notice.shown,
            Lines{"confirm|Data Editor: Delete Expression|The formulas of these fields refer to "
                  "\"Sum\" and will have no value without it:\nPlan, Share\nDelete \"Sum\"?"});
  EXPECT_EQ(desk.table.fieldCount(), 6U);
  desk.notice.confirms = true;
  act(dialog(), "&Delete");
  EXPECT_EQ(rows(), (Lines{"Share|Plan/Sum <"}));
}

TEST_F(Expressions, ThatManyReferToAreDeletedAfterAQuestionThatFitsOnTheScreen) {
  given({"Sum", "Plan+Seen", ""});
  std::string named;
  for (int i = 1; i <= 21; ++i) {
    addFormulaField(desk.view, {"U" + std::to_string(i), "Sum+1", ""});
    named += i <= 20 ? "U" + std::to_string(i) + ", " : "\u2026";
  }
  open();
  selectRow(list(), 0);
  act(dialog(), "&Delete");
  EXPECT_EQ(desk.notice.shown,
            Lines{"confirm|Data Editor: Delete Expression|The formulas of these fields refer to "
                  "\"Sum\" and will have no value without it:\n" +
                  named + "\nDelete \"Sum\"?"});
}

TEST_F(Expressions, OfTheTableStay) {
  given({"Sum", "Plan+Seen", ""});
  desk.table.notedFields = 5;
  open();
  selectRow(list(), 0);
  act(dialog(), "&Delete");
  EXPECT_EQ(desk.notice.shown, Lines{"warning|Data Editor|\"Sum\" cannot be deleted: it stands "
                                     "among the fields of the table."});
  EXPECT_EQ(desk.table.fieldCount(), 5U);
}

TEST_F(Expressions, TellWhatIsWrongWithTheSelectedOne) {
  given({"Wrong", "Foo(Plan)", ""});
  given({"Sum", "Plan+Seen", ""});
  open();
  selectRow(list(), 0);
  EXPECT_EQ(in<QLabel>(dialog(), "statusLabel")->text(), "There is no function \"Foo\".");
  selectRow(list(), 1);
  EXPECT_EQ(in<QLabel>(dialog(), "statusLabel")->text(), "");
}

TEST_F(Expressions, AreAsTheyWereAfterCancelling) {
  given({"Sum", "Plan+Seen", "Assign(#Plan, Sum-Seen)"});
  given({"Share", "Plan/Sum", ""});
  desk.view.breaks[4].frequency = 7;
  const std::string before = saved();
  const Lines shown = grid();
  desk.notice.confirms = true;
  for (const bool byKey : {false, true}) {
    open();
    edit(0);
    type(name(), "Total");
    type(inverse(), "");
    click(editor(), "applyButton");
    selectRow(list(), 1);
    act(dialog(), "&Delete");
    add("New", "Total*3");
    EXPECT_EQ(rows(), (Lines{"Total|Plan+Seen", "New|Total*3 <"}));
    if (byKey) {
      QTest::keyClick(dialog(), Qt::Key_Escape);
    } else {
      click(dialog(), "cancelButton");
    }
    EXPECT_FALSE(dialog()->isVisible());
    EXPECT_EQ(saved(), before);
    EXPECT_EQ(grid(), shown);
  }
}

TEST_F(Expressions, StayAfterApplying) {
  open();
  QSignalSpy applied(dialog(), SIGNAL(apply()));
  QSignalSpy refreshed(dialog(), SIGNAL(refresh()));
  add("Sum", "Plan+Seen");
  EXPECT_EQ(applied.count(), 1);
  EXPECT_EQ(refreshed.count(), 1);
  click(dialog(), "applyButton");
  EXPECT_FALSE(dialog()->isVisible());
  open();
  click(dialog(), "cancelButton");
  EXPECT_EQ(desk.table.fieldCount(), 5U);
}

TEST_F(Expressions, ChangeNothingWhenNothingIsChanged) {
  open();
  click(dialog(), "cancelButton");
  open();
  click(dialog(), "applyButton");
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(Expressions, InAnOpenEditorAreAppliedWithTheList) {
  given({"Sum", "Plan+Seen", ""});
  open();
  edit(0);
  type(formula(), "Plan+");
  click(dialog(), "applyButton");
  EXPECT_TRUE(dialog()->isVisible());
  EXPECT_EQ(desk.dialogs.size(), 1);
  type(formula(), "Plan+1");
  click(dialog(), "applyButton");
  EXPECT_FALSE(dialog()->isVisible());
  EXPECT_FALSE(editor()->isVisible());
  EXPECT_EQ(desk.table.field(4).expression.text, "Plan+1");
}

TEST_F(Expressions, InAnOpenEditorAreNotDroppedForAnotherWithoutAsking) {
  given({"Sum", "Plan+Seen", ""});
  given({"Share", "Plan/Sum", ""});
  open();
  edit(0);
  type(formula(), "Plan+1");
  edit(1);
  EXPECT_EQ(desk.notice.shown, Lines{"confirm|Data Editor|The formula that is being edited is not "
                                     "applied yet. Discard it?"});
  EXPECT_EQ(name()->text(), "Sum");
  desk.notice.confirms = true;
  edit(1);
  EXPECT_EQ(name()->text(), "Share");
}

TEST_F(Expressions, FollowWhatOthersDoToTheView) {
  given({"Sum", "Plan+Seen", ""});
  open();
  add("New", "7");
  addFormulaField(desk.view, {"Elsewhere", "8", ""});
  window->layOutReport();
  EXPECT_EQ(rows(), (Lines{"Sum|Plan+Seen", "New|7 <", "Elsewhere|8"}));
  edit(1);
  type(formula(), "9");
  click(editor(), "applyButton");
  // Only what came after the other change is taken back.
  click(dialog(), "cancelButton");
  EXPECT_EQ(desk.table.fieldCount(), 7U);
  EXPECT_EQ(desk.table.field(5).expression.text, "7");
}

TEST_F(Expressions, AreTakenBackThoughTheReportWasLaidOutMeanwhile) {
  open();
  add("New", "7");
  test::menuEntry(*window, "&Configure", "&Swap Data Row/Column")->trigger();
  click(dialog(), "cancelButton");
  EXPECT_EQ(desk.table.fieldCount(), 4U);
}

TEST_F(Expressions, OfOneNameAreEditedEachForItself) {
  given({"Sum", "1", ""});
  given({"Other", "2", ""});
  desk.table.field(4).name = " Sum";
  desk.table.field(5).name = " Sum";
  open();
  edit(1);
  test::menuEntry(*window, "&Configure", "&Swap Data Row/Column")->trigger();
  type(formula(), "3");
  click(editor(), "applyButton");
  EXPECT_EQ(rows(), (Lines{" Sum|1", "Sum|3 <"}));
}

TEST_F(Expressions, OfOneNameStaySelectedWhileOthersChangeTheView) {
  given({"Sum", "1", ""});
  given({"Other", "2", ""});
  desk.table.field(5).name = "Sum";
  open();
  selectRow(list(), 1);
  setHighlightFormula(desk.view, 2, "RED()");
  window->layOutReport();
  EXPECT_EQ(rows(), (Lines{"Sum|1", "Sum|2 <"}));
}

TEST_F(Expressions, ThatOthersChangeAreShownInTheEditorUnlessTheUserHasWrittenSomething) {
  given({"Sum", "Plan+Seen", ""});
  open();
  edit(0);
  const auto changeElsewhere = [this](const std::string& expression) {
    changeFormulaField(desk.view, 4, {"Sum", expression, ""}, desk.functions);
    window->layOutReport();
  };
  changeElsewhere("Plan*3");
  EXPECT_EQ(formula()->formula(), "Plan*3");
  type(formula(), "Plan*5");
  changeElsewhere("Plan*4");
  EXPECT_EQ(formula()->formula(), "Plan*5");
}

TEST_F(Expressions, ThatAreGoneUnderTheEditorAreAddedAnew) {
  given({"Sum", "Plan+Seen", ""});
  open();
  edit(0);
  type(formula(), "Plan+1");
  deleteFormulaField(desk.view, 4);
  window->layOutReport();
  click(editor(), "applyButton");
  EXPECT_EQ(rows(), (Lines{"Sum|Plan+1 <"}));
}

TEST_F(Expressions, ReadBackFromTheSavedView) {
  open();
  add("All in all", "\"Plan\" + Seen", "Assign(#Plan, 'All in all' - Seen)");
  add("Share", "Plan / 'All in all:-1'");
  Table table = test::weekTable();
  ReportView view = makeReportView(table, desk.notice);
  EXPECT_TRUE(readViewFile(view, saved(), desk.format, desk.environment, desk.notice, desk.errors));
  EXPECT_EQ(test::savedText(view), saved());
  EXPECT_EQ(desk.errorText, "");
}

TEST_F(Expressions, LeaveTheUserAtTheSamePlace) {
  open();
  window->tables().setCurrentPlace({1, 3});
  add("Sum", "Plan+Seen");
  EXPECT_EQ(window->tables().currentPlace()->row, 1U);
  EXPECT_EQ(window->tables().currentPlace()->column, 3U);
}

TEST_F(Expressions, LeaveNoCellHalfTyped) {
  open();
  DataTable* table = window->tables().regularTable();
  window->activateWindow();
  window->tables().setCurrentPlace({0, 2});
  table->setFocus();
  QTest::keyClicks(table, "7");
  ASSERT_NE(table->cellEditor(), nullptr);
  add("Sum", "Plan+Seen");
  EXPECT_EQ(grid(), (Lines{"Bolt|Plan|7|20", "Bolt|Seen|1|2", "Bolt|Sum|8|22"}));
}

TEST_F(Expressions, CanBeReadAndReachedInTheirDialogs) {
  open();
  act(dialog(), "&New");
  EXPECT_EQ(test::clippedTexts(*dialog()), QStringList());
  EXPECT_EQ(test::clippedTexts(*editor()), QStringList());
  EXPECT_EQ(test::sharedMnemonics(*editor()), QStringList());
}

TEST_F(Expressions, AreReachedByTheKeyboardAlone) {
  open();
  list()->setFocus();
  QStringList order;
  for (int i = 0; i < 4; ++i) {
    order << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(u' ').toStdString(),
            "expressionList actionsButton applyButton cancelButton");
  act(dialog(), "&New");
  order.clear();
  for (int i = 0; i < 5; ++i) {
    order << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(u' ').toStdString(),
            "nameEdit formulaEdit inverseEdit applyButton cancelButton");
}

TEST_F(Expressions, AreNotAppliedByEnterInTheListBesideTheEditor) {
  given({"Sum", "Plan+Seen", ""});
  open();
  edit(0);
  type(formula(), "Plan+1");
  list()->setFocus();
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_TRUE(editor()->isVisible());
  EXPECT_EQ(rows(), (Lines{"Sum|Plan+Seen <"}));
  in<QPushButton>(dialog(), "cancelButton")->setFocus();
  QTest::keyClick(in<QPushButton>(dialog(), "cancelButton"), Qt::Key_Return);
  EXPECT_TRUE(dialog()->isVisible()) << "what is written is not given up";
  EXPECT_EQ(desk.notice.shown, (Lines{"confirm|Data Editor|The formula that is being edited is not "
                                      "applied yet. Discard it?"}));
  desk.notice.confirms = true;
  QTest::keyClick(in<QPushButton>(dialog(), "cancelButton"), Qt::Key_Return);
  EXPECT_FALSE(dialog()->isVisible());
}

TEST_F(Expressions, AreAppliedByEnter) {
  open();
  act(dialog(), "&New");
  type(name(), "Sum");
  type(formula(), "Plan+Seen");
  QTest::keyClick(formula(), Qt::Key_Return);
  EXPECT_EQ(rows(), (Lines{"Sum|Plan+Seen <"}));
}

}  // namespace
}  // namespace vrel
