#include "expr/formula.h"

#include <gtest/gtest.h>

#include "support/formulas.h"
#include "support/tables.h"

namespace vrel {
namespace {

using Position = std::optional<std::size_t>;

Formula formulaOf(std::string_view text) {
  Formula formula;
  setText(formula, text);
  return formula;
}

TEST(Formula, HasBlanksForLineFeeds) {
  EXPECT_EQ(formulaOf("a\n+\n\nb").text, "a +  b");
  EXPECT_EQ(formulaOf("a\r+\tb").text, "a\r+\tb");
  EXPECT_EQ(formulaOf("").text, "");
}

TEST(Formula, IsDefinedUnlessBlankOrUndefined) {
  EXPECT_TRUE(isDefined(formulaOf("0")));
  EXPECT_TRUE(isDefined(formulaOf(" _undefined_")));
  EXPECT_TRUE(isDefined(formulaOf("Demand +")));
  EXPECT_FALSE(isDefined(formulaOf("_undefined_")));
  EXPECT_FALSE(isDefined(formulaOf("")));
  EXPECT_FALSE(isDefined(formulaOf(" \t\n")));
}

bool check(Formula& formula) {
  return checkFormula(formula, test::allFunctions());
}

TEST(FormulaCheck, PassesWhatIsAFormula) {
  Formula formula = formulaOf("  Demand:-1 / Nothing");
  EXPECT_TRUE(check(formula));
  EXPECT_EQ(formula.error, FormulaError::None);
  EXPECT_EQ(formula.compiled, nullptr);
}

TEST(FormulaCheck, NotesWhereTheErrorStands) {
  Formula formula = formulaOf("Demand + ) 1");
  EXPECT_FALSE(check(formula));
  EXPECT_EQ(formula.error, FormulaError::Syntax);
  EXPECT_EQ(formula.errorPosition, Position(9));
}

TEST(FormulaCheck, CountsThePositionFromTheBeginningOfTheText) {
  Formula formula = formulaOf(" \n Demand + ) 1");
  EXPECT_FALSE(check(formula));
  EXPECT_EQ(formula.errorPosition, Position(12));
}

TEST(FormulaCheck, NotesUnknownFunctionsAndWrongCountsAsSyntaxErrors) {
  Formula unknown = formulaOf("1 + Frob()");
  EXPECT_FALSE(check(unknown));
  EXPECT_EQ(unknown.error, FormulaError::Syntax);
  EXPECT_EQ(unknown.errorPosition, Position(4));
  Formula count = formulaOf("ROUND()");
  EXPECT_FALSE(check(count));
  EXPECT_EQ(count.error, FormulaError::Syntax);
}

TEST(FormulaCheck, AnEmptyTextHasNoPositionForItsError) {
  for (const std::string_view text : {"", "  ", "\n\t"}) {
    Formula formula = formulaOf(text);
    formula.errorPosition = 5;
    EXPECT_FALSE(check(formula));
    EXPECT_EQ(formula.error, FormulaError::Syntax);
    EXPECT_EQ(formula.errorPosition, Position());
  }
}

class FormulaEvaluation : public testing::Test {
 protected:
  std::string evaluate(Formula& formula, std::size_t tuple = 0) {
    return test::textOf(evaluateFormula(bench_.evaluator(), formula, tuple));
  }

  Table table_ = test::tableOf("Item:String Demand:Number", "W1", {"Bolt 10", "Nut 0"});
  test::FormulaBench bench_{table_};
};

TEST_F(FormulaEvaluation, YieldsAValue) {
  Formula formula = formulaOf(" Demand * 2 ");
  EXPECT_EQ(evaluate(formula), "20");
  EXPECT_EQ(formula.error, FormulaError::None);
}

TEST_F(FormulaEvaluation, ReadsFormulasOverSeveralLines) {
  Formula formula = formulaOf("\nDemand\n+1");
  EXPECT_EQ(evaluate(formula), "11");
}

TEST_F(FormulaEvaluation, KeepsWhatItCompiled) {
  Formula formula = formulaOf("Demand * 2");
  evaluate(formula);
  const std::shared_ptr<const CompiledFormula> compiled = formula.compiled;
  ASSERT_NE(compiled, nullptr);
  evaluate(formula, 1);
  EXPECT_EQ(formula.compiled, compiled);
}

TEST_F(FormulaEvaluation, ForgetsAllWhenTheTextChanges) {
  Formula formula = formulaOf("Demand / 0");
  evaluate(formula);
  setText(formula, "Demand + 3");
  EXPECT_EQ(formula.compiled, nullptr);
  EXPECT_EQ(formula.error, FormulaError::None);
  EXPECT_EQ(formula.errorPosition, Position());
  EXPECT_EQ(evaluate(formula), "13");
}

TEST_F(FormulaEvaluation, AFailureStandsAtTheBeginningOfTheText) {
  Formula formula = formulaOf("  1 / Demand");
  EXPECT_EQ(evaluate(formula, 0), "0.1");
  EXPECT_EQ(formula.error, FormulaError::None);
  EXPECT_EQ(evaluate(formula, 1), "error 102");
  EXPECT_EQ(formula.error, FormulaError::Evaluation);
  EXPECT_EQ(formula.errorPosition, Position(0));
}

TEST_F(FormulaEvaluation, AFailureHasTheValueZero) {
  Formula formula = formulaOf("5 + Nothing");
  const Evaluation result = evaluateFormula(bench_.evaluator(), formula, 0);
  EXPECT_FALSE(result.ok());
  EXPECT_EQ(result.value, 0);
}

TEST_F(FormulaEvaluation, ATextThatIsNoFormulaFailsWhereItGoesWrong) {
  Formula formula = formulaOf("  Demand + * 2 )");
  EXPECT_FALSE(evaluateFormula(bench_.evaluator(), formula, 0).ok());
  EXPECT_EQ(formula.error, FormulaError::Syntax);
  EXPECT_EQ(formula.errorPosition, Position(13));
}

TEST_F(FormulaEvaluation, AnEmptyTextFailsNowhere) {
  Formula formula = formulaOf(" \n ");
  const Evaluation result = evaluateFormula(bench_.evaluator(), formula, 0);
  EXPECT_FALSE(result.ok());
  EXPECT_EQ(result.value, 0);
  EXPECT_EQ(formula.error, FormulaError::Syntax);
  EXPECT_EQ(formula.errorPosition, Position());
}

TEST_F(FormulaEvaluation, OneFailureDoesNotSpoilTheNextEvaluation) {
  Formula failing = formulaOf("SUM(1, 2, ABS(1/0))");
  Formula formula = formulaOf("SUM(1, 2, ABS(3))");
  EXPECT_EQ(evaluate(failing), "error 102");
  EXPECT_EQ(evaluate(formula), "6");
}

}  // namespace
}  // namespace vrel
