#include "expr/ui/expression_error_dialog.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace vrel {
namespace {

QStringList labelsOf(const QDialog& dialog) {
  QStringList texts;
  for (const QLabel* label : dialog.findChildren<QLabel*>()) {
    texts << label->text();
  }
  return texts;
}

const MarkedFormula& formulaOf(const QDialog& dialog) {
  return *dialog.findChild<MarkedFormula*>("formulaText");
}

TEST(ExpressionErrorDialog, TellsOfASyntaxErrorAndMarksItsPlace) {
  const ExpressionErrorDialog dialog("Cannot compute value", FormulaError::Syntax, "2 * (3", 6);
  EXPECT_EQ(dialog.windowTitle(), "Expression Error");
  EXPECT_EQ(labelsOf(dialog), (QStringList{"Cannot compute value", "Syntax error in expression:"}));
  const MarkedFormula& formula = formulaOf(dialog);
  EXPECT_EQ(formula.text(), "2 * (3");
  EXPECT_EQ(formula.markerPosition(), formula.fontMetrics().horizontalAdvance("2 * (3"));
}

TEST(ExpressionErrorDialog, MarksTheCharacterWhateverItsBytes) {
  const ExpressionErrorDialog dialog("", FormulaError::Syntax, "Größe + )", 10);
  const MarkedFormula& formula = formulaOf(dialog);
  EXPECT_EQ(formula.markerPosition(),
            formula.fontMetrics().horizontalAdvance(QString::fromUtf8("Größe + ")));
}

TEST(ExpressionErrorDialog, AnErrorWithoutAPlaceHasNoMarker) {
  const ExpressionErrorDialog dialog("", FormulaError::Syntax, "", std::nullopt);
  EXPECT_EQ(formulaOf(dialog).markerPosition(), std::nullopt);
}

TEST(ExpressionErrorDialog, TellsOfAnEvaluationErrorWithoutAMarker) {
  const ExpressionErrorDialog dialog("Cannot compute value", FormulaError::Evaluation,
                                     "Nowhere + 1", 3);
  EXPECT_EQ(labelsOf(dialog),
            (QStringList{"Cannot compute value", "Evaluation error in expression:"}));
  EXPECT_EQ(formulaOf(dialog).markerPosition(), std::nullopt);
}

TEST(ExpressionErrorDialog, TextsThatLookLikeMarkupAreShownAsTheyAre) {
  const ExpressionErrorDialog dialog("<b>no</b>", FormulaError::Syntax, "<i>", 1);
  EXPECT_EQ(dialog.findChild<QLabel*>("message")->textFormat(), Qt::PlainText);
  EXPECT_EQ(formulaOf(dialog).text(), "<i>");
}

TEST(ExpressionErrorDialog, EnterClosesIt) {
  ExpressionErrorDialog dialog("Cannot compute value", FormulaError::Syntax, "2*", 2);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  const auto buttons = dialog.findChildren<QPushButton*>();
  ASSERT_EQ(buttons.size(), 1);
  EXPECT_EQ(buttons.front()->text().remove('&'), "OK");
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(ExpressionErrorDialog, ALongFormulaIsScrolledToItsError) {
  const std::string longText = std::string(2000, 'x') + " +";
  ExpressionErrorDialog dialog("", FormulaError::Syntax, longText, longText.size());
  dialog.show();
  EXPECT_LT(dialog.width(), formulaOf(dialog).sizeHint().width() / 4);
  const MarkedFormula& formula = formulaOf(dialog);
  const int marker = formula.mapTo(&dialog, QPoint(*formula.markerPosition(), 0)).x();
  EXPECT_GT(marker, 0);
  EXPECT_LT(marker, dialog.width());
}

}  // namespace
}  // namespace vrel
