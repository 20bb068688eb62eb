#include "expr/ui/formula_edit.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QVBoxLayout>

#include "expr/field_functions.h"
#include "ui/formula_window.h"

namespace vrel {
namespace {

using test::Lines;

struct Formulas : testing::Test {
  Formulas() {
    addAllFunctions(functions);
    table.field(3).name = "Net Demand";
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(edit);
    layout->addWidget(message);
    layout->addWidget(next);
    edit->setMessageLabel(message);
    edit->setLanguage(functions, table);
    dialog.show();
    dialog.activateWindow();
    edit->setFocus();
    QCoreApplication::processEvents();
  }

  QAbstractItemView* popup() const {
    return dynamic_cast<QAbstractItemView*>(QApplication::activePopupWidget());
  }
  Lines offered() const {
    Lines texts;
    for (int row = 0; popup() != nullptr && row < popup()->model()->rowCount(); ++row) {
      texts.push_back(popup()->model()->index(row, 0).data().toString().toStdString());
    }
    return texts;
  }
  // The formula with a bar where the cursor stands.
  std::string written() const {
    QString text = edit->toPlainText();
    return text.insert(edit->textCursor().position(), u'|').toStdString();
  }
  void press(int key) {
    QTest::keyClick(popup() == nullptr ? static_cast<QWidget*>(edit) : popup(), Qt::Key(key));
  }
  // The underlined parts.
  Lines marked() const {
    Lines texts;
    for (const QTextEdit::ExtraSelection& each : edit->extraSelections()) {
      EXPECT_EQ(each.format.underlineStyle(), QTextCharFormat::WaveUnderline);
      texts.push_back(each.cursor.selectedText().toStdString());
    }
    return texts;
  }
  void drop(QMimeData& data, QPoint place) {
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit->viewport(), &event);
  }
  QPoint placeOf(int position) const {
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(position);
    return edit->cursorRect(cursor).center();
  }

  Table table = test::weekTable();
  FunctionRegistry functions;
  QDialog dialog;
  FormulaEdit* edit = new FormulaEdit;
  QLabel* message = new QLabel;
  QLineEdit* next = new QLineEdit;
};

TEST_F(Formulas, KeepNoBreakBlanks) {
  edit->setFormula("Net\u00a0price * 2");
  EXPECT_EQ(edit->formula(), "Net\u00a0price * 2");
}

TEST_F(Formulas, OfferFieldsAndFunctionsWhileAWordIsWritten) {
  QTest::keyClicks(edit, "po");
  EXPECT_EQ(offered(), (Lines{"POS (x)", "POWER (x,y)"}));
  QTest::keyClicks(popup(), "w");
  EXPECT_EQ(offered(), (Lines{"POWER (x,y)"}));
  press(Qt::Key_Return);
  EXPECT_EQ(written(), "POWER(|)");
  EXPECT_EQ(popup(), nullptr);
}

TEST_F(Formulas, TakeTheOfferedFieldWithTheTabKey) {
  QTest::keyClicks(edit, "2*net");
  EXPECT_EQ(offered(), (Lines{"Net Demand", "NETOL (x,y,tol)"}));
  press(Qt::Key_Tab);
  EXPECT_EQ(written(), "2*'Net Demand'|");
  EXPECT_TRUE(edit->hasFocus());
}

TEST_F(Formulas, TakeAnotherOfferWithTheArrows) {
  QTest::keyClicks(edit, "P");
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(written(), "PI()|");
}

TEST_F(Formulas, OfferEverythingOnDemand) {
  QTest::keyClicks(edit, "Plan + ");
  EXPECT_EQ(popup(), nullptr);
  QTest::keyClick(edit, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(offered().size(), 2 + functions.records().size());
  EXPECT_EQ(offered().front(), "Plan");
  press(Qt::Key_Escape);
  EXPECT_EQ(popup(), nullptr);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(written(), "Plan + |");
}

TEST_F(Formulas, OfferNothingForAWordThatIsWritten) {
  QTest::keyClicks(edit, "Plan");
  EXPECT_EQ(popup(), nullptr);
  QTest::keyClicks(edit, "+12");
  EXPECT_EQ(popup(), nullptr);
}

TEST_F(Formulas, OfferFewerWhileTheWordIsShortened) {
  QTest::keyClicks(edit, "Pla");
  EXPECT_EQ(offered(), (Lines{"Plan"}));
  press(Qt::Key_Backspace);
  press(Qt::Key_Backspace);
  EXPECT_EQ(offered().size(), 8U);
  press(Qt::Key_Backspace);
  EXPECT_EQ(popup(), nullptr);
}

TEST_F(Formulas, KeepTheParenthesesThatAreThere) {
  edit->setFormula("PO(1)");
  edit->moveCursor(QTextCursor::Start);
  edit->moveCursor(QTextCursor::Right);
  edit->moveCursor(QTextCursor::Right);
  QTest::keyClicks(edit, "W");
  press(Qt::Key_Return);
  EXPECT_EQ(written(), "POWER|(1)");
}

TEST_F(Formulas, KeepTheClosingQuoteThatIsThere) {
  edit->setFormula("'' + 1");
  edit->moveCursor(QTextCursor::Start);
  edit->moveCursor(QTextCursor::Right);
  QTest::keyClicks(edit, "Ne");
  press(Qt::Key_Return);
  EXPECT_EQ(written(), "'Net Demand'| + 1");
}

TEST_F(Formulas, LeaveTheTabKeyToTheDialog) {
  edit->setFormula("Plan");
  QTest::keyClick(edit, Qt::Key_Tab);
  EXPECT_TRUE(next->hasFocus());
  EXPECT_EQ(edit->formula(), "Plan");
}

TEST_F(Formulas, AreOneLine) {
  QTest::keyClick(edit, Qt::Key_Return);
  QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(written(), "|");
  QGuiApplication::clipboard()->setText("Plan\r\n+\nSeen");
  edit->paste();
  EXPECT_EQ(written(), "Plan + Seen|");
}

TEST_F(Formulas, ShowWhereAnErrorStandsAndTellIt) {
  edit->setFormula("1 + Foo(2)");
  EXPECT_EQ(marked(), Lines{"Foo"});
  EXPECT_EQ(message->text(), "There is no function \"Foo\".");
  EXPECT_EQ(edit->accessibleDescription(), "There is no function \"Foo\".");
  edit->setFormula("ROUND()");
  EXPECT_EQ(message->text(), "Wrong number of arguments: ROUND(x, [num decimal places])");
  edit->setFormula("Plan / / 2");
  EXPECT_EQ(marked(), Lines{"/"});
  EXPECT_EQ(message->text(), "Syntax error.");
  edit->setFormula("Plan *");
  EXPECT_EQ(marked(), Lines{"*"});
  EXPECT_EQ(message->text(), "The formula is not complete.");
  edit->setFormula("Plan * 2");
  EXPECT_EQ(marked(), Lines());
  EXPECT_EQ(message->text(), "");
  edit->setFormula("");
  EXPECT_EQ(marked(), Lines());
  EXPECT_EQ(message->text(), "");
}

TEST_F(Formulas, WarnOfNamesWithoutANumber) {
  edit->setFormula("Plam + Item");
  EXPECT_EQ(marked(), (Lines{"Plam", "Item"}));
  EXPECT_EQ(message->text(), "There is no field \"Plam\".");
  edit->setFormula("Item");
  EXPECT_EQ(message->text(), "The field \"Item\" holds no numbers.");
  edit->setFormula("TRUE");
  EXPECT_EQ(message->text(), "\"TRUE\" is a function; write \"TRUE()\".");
}

TEST_F(Formulas, MarkErrorsBehindOtherLetters) {
  table.field(3).name = "Größe";
  edit->setFormula("Größe + Foo(1)");
  EXPECT_EQ(marked(), Lines{"Foo"});
  edit->setFormula("");
  QTest::keyClicks(edit, "1 + gr");
  press(Qt::Key_Return);
  EXPECT_EQ(written(), "1 + Größe|");
}

TEST_F(Formulas, TakeDroppedFunctionsWhereTheyAreDropped) {
  edit->setFormula("Plan + Seen");
  QMimeData data;
  data.setText("ABS()");
  data.setData(FormulaEdit::kFunctionFormat, "ABS");
  drop(data, placeOf(7));
  EXPECT_EQ(written(), "Plan + ABS(|)Seen");
  EXPECT_TRUE(edit->hasFocus());
}

TEST_F(Formulas, TakeDroppedTexts) {
  edit->setFormula("Plan");
  QMimeData data;
  data.setText("2\n*");
  drop(data, placeOf(0));
  EXPECT_EQ(edit->formula(), "2 *Plan");
}

}  // namespace
}  // namespace vrel
