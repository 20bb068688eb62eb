#include "expr/cell_edit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <random>

#include "expr/formula.h"
#include "expr/recalculation.h"
#include "model/date.h"
#include "support/formula_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::FormulaOf;
using test::FormulaTable;
using test::tuplesOf;
using testing::ElementsAre;

FormulaTable stock(const std::vector<FormulaOf>& formulas = {}) {
  return FormulaTable("Item:String Period:Period Qty:Number Active:Boolean", "P1 P2",
                      {"A P1 1 Yes", "A P2 2 No"}, formulas);
}

CellEdit type(FormulaTable& made, std::string_view field, std::optional<std::string_view> text,
              std::size_t tuple = 0) {
  Evaluator evaluator(made.context, made.functions);
  return setCell(evaluator, tuple, made.field(field), text);
}

TEST(CellEdit, OfANumberEvaluatesTheText) {
  FormulaTable made = stock();
  EXPECT_TRUE(type(made, "Qty", "1+1").accepted());
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 2 Yes", "A P2 2 No"));
  EXPECT_TRUE(type(made, "Qty", " 2*3 ").accepted());
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{6, 2}));
}

TEST(CellEdit, OfANumberMayNameOtherFieldsAndTuples) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  EXPECT_TRUE(type(made, "Qty", "Qty + 10 * Active + Qty:1 + Next(#Qty)").accepted());
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{15, 2}));
  EXPECT_TRUE(type(made, "Qty", "Twice").accepted());
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{30, 2})) << "the formula field as it stood";
}

TEST(CellEdit, OfANumberTakesTheUnboundedOne) {
  FormulaTable made = stock();
  EXPECT_TRUE(type(made, "Qty", "*").accepted());
  EXPECT_EQ(made.table.cell(0, 2).number, 1e20);
}

TEST(CellEdit, OfABooleanStoresWhetherTheValueIsNotZero) {
  FormulaTable made = stock();
  EXPECT_TRUE(type(made, "Active", "Qty - 1").accepted());
  EXPECT_TRUE(type(made, "Active", "TRUE()", 1).accepted());
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 No", "A P2 2 Yes"));
}

TEST(CellEdit, RefusesATextThatIsNoFormulaAndChangesNothing) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  const CellEdit edit = type(made, "Qty", "1 + + * 2");
  EXPECT_EQ(edit.refusal, EditRefusal::Syntax);
  EXPECT_EQ(edit.errorPosition, 8U);
  EXPECT_EQ(edit.inverse, InverseOutcome::None);
  EXPECT_EQ(type(made, "Active", "Yes No").refusal, EditRefusal::Syntax);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes 0", "A P2 2 No 0"))
      << "the tuple is not recalculated either";
}

TEST(CellEdit, RefusesABlankTextForANumber) {
  FormulaTable made = stock();
  const CellEdit edit = type(made, "Qty", "  ");
  EXPECT_EQ(edit.refusal, EditRefusal::Syntax);
  EXPECT_EQ(edit.errorPosition, std::nullopt);
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{1, 2}));
}

TEST(CellEdit, RefusesAFormulaWithoutAValueAndChangesNothing) {
  FormulaTable made = stock();
  for (const std::string_view text : {"1 / 0", "None", "Item", "SQRT(-1)", "ERROR(#stop)"}) {
    EXPECT_EQ(type(made, "Qty", text).refusal, EditRefusal::Evaluation) << text;
  }
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{1, 2}));
}

TEST(CellEdit, LetsNoTypedFormulaAssign) {
  FormulaTable made = stock();
  EXPECT_EQ(type(made, "Qty", "Assign(#Active, 0)").refusal, EditRefusal::Evaluation);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes", "A P2 2 No"));
  EXPECT_FALSE(made.context.recalculating);
}

TEST(CellEdit, RefusesFieldsThatMayNotBeEdited) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  made.table.fields[3].classification = Classification::DataReadOnly;
  made.table.fields[4].classification = Classification::DataReadOnly;
  EXPECT_EQ(type(made, "Item", "B").refusal, EditRefusal::ReadOnly);
  EXPECT_EQ(type(made, "Period", "P2").refusal, EditRefusal::ReadOnly);
  EXPECT_EQ(type(made, "Active", "0").refusal, EditRefusal::ReadOnly);
  EXPECT_EQ(type(made, "Twice", "5").refusal, EditRefusal::ReadOnly);
  made.table.fields[2].classification = Classification::Unset;
  EXPECT_EQ(type(made, "Qty", "5").refusal, EditRefusal::ReadOnly);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes 0", "A P2 2 No 0"));
}

TEST(CellEdit, ComputesTheFormulaFieldsOfTheTuple) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}, {"More", "Twice + 1"}});
  type(made, "Qty", "21");
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 21 Yes 42 43", "A P2 2 No 0 0"));
}

// A table with a field of each type that is not computed, all of which may be edited.
FormulaTable texts() {
  FormulaTable made("Name:String Start:Date Slot:Period", "S1 S2", {"A 1/5/2026 S1"});
  for (FieldDef& field : made.table.fields) {
    field.classification = Classification::DataReadWrite;
  }
  return made;
}

TEST(CellEdit, OfATextTakesItAsItIs) {
  FormulaTable made = texts();
  EXPECT_TRUE(type(made, "Name", "1+1 or more").accepted());
  EXPECT_EQ(stringText(made.table.field(0), made.table.cell(0, 0)), "1+1 or more");
  EXPECT_TRUE(type(made, "Name", "").accepted());
  EXPECT_EQ(stringText(made.table.field(0), made.table.cell(0, 0)), "");
}

TEST(CellEdit, OfADateTakesADate) {
  FormulaTable made = texts();
  ASSERT_EQ(made.table.field(1).type, FieldType::Date);
  EXPECT_TRUE(type(made, "Start", "12-Jan-2026").accepted());
  EXPECT_EQ(made.table.cell(0, 1).time, parseDate("1/12/2026").seconds);
}

TEST(CellEdit, RefusesWhatIsNoDateAndChangesNothing) {
  FormulaTable made = texts();
  for (const std::string_view text : {"soon", "", "13/45/2026"}) {
    const CellEdit edit = type(made, "Start", text);
    EXPECT_EQ(edit.refusal, EditRefusal::NoDate) << text;
    EXPECT_FALSE(edit.accepted());
  }
  EXPECT_EQ(made.table.cell(0, 1).time, parseDate("1/5/2026").seconds);
}

TEST(CellEdit, OfAPeriodTakesAPeriodsName) {
  FormulaTable made = texts();
  EXPECT_TRUE(type(made, "Slot", "S2").accepted());
  EXPECT_EQ(made.table.cell(0, 2).period, 1);
}

// What a text typed into a formula field stores.
double typedIntoFormula(std::string_view text) {
  FormulaTable made = stock({{"Free", "Qty * 0 + Free:0", "Assign(#Qty, Free)"}});
  type(made, "Free", text);
  return made.column("Qty")[0];
}

TEST(CellEdit, OfAFormulaFieldTakesTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(typedIntoFormula("12.5"), 12.5);
  EXPECT_EQ(typedIntoFormula(" -3 "), -3);
  EXPECT_EQ(typedIntoFormula("+4"), 4);
  EXPECT_EQ(typedIntoFormula("1e3"), 1000);
  EXPECT_EQ(typedIntoFormula(".5"), 0.5);
  EXPECT_EQ(typedIntoFormula("12abc"), 12);
  EXPECT_EQ(typedIntoFormula("2*3"), 2);
  EXPECT_EQ(typedIntoFormula("1,234.50"), 1234.5);
  EXPECT_EQ(typedIntoFormula("*"), 1e20);
}

TEST(CellEdit, OfAFormulaFieldTakesWhatBeginsWithNoNumberAsZero) {
  for (const std::string_view text :
       {"", "abc", "-", "+", ".", "+-5", "--5", "inf", "-inf", "nan", "infinity"}) {
    EXPECT_EQ(typedIntoFormula(text), 0) << text;
  }
}

TEST(InverseFormula, TurnsAnEditedFormulaFieldBackIntoWhatItIsMadeOf) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, Twice / 2)"}});
  const CellEdit edit = type(made, "Twice", "50");
  EXPECT_TRUE(edit.accepted());
  EXPECT_EQ(edit.inverse, InverseOutcome::Applied);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 25 Yes 50", "A P2 2 No 0"));
}

TEST(InverseFormula, MayRoundWhatWasTyped) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, ROUND(Twice / 2))"}});
  type(made, "Twice", "51");
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 26 Yes 52", "A P2 2 No 0"))
      << "the field is computed anew afterwards";
}

TEST(InverseFormula, MayAssignSeveralFields) {
  FormulaTable made = stock(
      {{"Twice", "2 * Qty", "SEQUENCE(Assign(#Qty, Twice / 2), Assign(#Active, Twice > 9))"}});
  type(made, "Twice", "8");
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 4 No 8", "A P2 2 No 0"));
}

TEST(InverseFormula, ThatIsUndefinedOrBlankIsNone) {
  for (const char* inverse : {"_undefined_", "", "   "}) {
    FormulaTable made = stock({{"Twice", "2 * Qty", inverse}});
    const CellEdit edit = type(made, "Twice", "50");
    EXPECT_TRUE(edit.accepted());
    EXPECT_EQ(edit.inverse, InverseOutcome::None);
    EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes 2", "A P2 2 No 0"))
        << "the typed value gives way to the formula's";
  }
}

TEST(InverseFormula, OfAFieldThatIsNoFormulaFieldDoesNotRun) {
  FormulaTable made = stock();
  setText(made.table.fields[2].inverseExpression, "Assign(#Active, 0)");
  EXPECT_EQ(type(made, "Qty", "5").inverse, InverseOutcome::None);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 5 Yes", "A P2 2 No"));
}

TEST(InverseFormula, ThatFailsSaysWhyAndTheEditStays) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, Twice / 0)"},
                             {"Thrice", "3 * Qty", "Assign(#Qty Thrice)"}});
  CellEdit edit = type(made, "Twice", "50");
  EXPECT_TRUE(edit.accepted());
  EXPECT_EQ(edit.inverse, InverseOutcome::Failed);
  EXPECT_EQ(made.table.field(4).inverseExpression.error, FormulaError::Evaluation);
  EXPECT_EQ(made.table.field(4).inverseExpression.errorPosition, 0U);
  edit = type(made, "Thrice", "50");
  EXPECT_EQ(edit.inverse, InverseOutcome::Failed);
  EXPECT_EQ(made.table.field(5).inverseExpression.error, FormulaError::Syntax);
  EXPECT_EQ(made.table.field(5).inverseExpression.errorPosition, 12U);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes 2 3", "A P2 2 No 0 0"));
}

TEST(InverseFormula, RunsWithoutATextForTheValueThatStands) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, Twice + 7)"}});
  EXPECT_EQ(type(made, "Twice", std::nullopt).inverse, InverseOutcome::Applied);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 7 Yes 14", "A P2 2 No 0"));
}

TEST(InverseFormula, RunsWithoutATextInAFieldThatMayNotBeEdited) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, Twice + 7)"}});
  made.table.fields[4].classification = Classification::DataReadOnly;
  EXPECT_TRUE(type(made, "Twice", std::nullopt).accepted());
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{7, 2}));
}

bool applyAll(FormulaTable& made) {
  Evaluator evaluator(made.context, made.functions);
  return applyInverseFormulas(evaluator);
}

TEST(InverseFormulas, RunForEveryTupleInColumnOrder) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, Qty + 10)"},
                             {"Thrice", "3 * Qty", "Assign(#Qty, Qty * 2)"},
                             {"None", "Qty", "_undefined_"},
                             {"Blank", "Qty", " "}});
  EXPECT_TRUE(applyAll(made));
  EXPECT_THAT(tuplesOf(made.table),
              ElementsAre("A P1 22 Yes 44 66 22 22", "A P2 24 No 48 72 24 24"));
}

TEST(InverseFormulas, SeeTheTupleRecalculatedAfterEachOther) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, 50)"},
                             {"Thrice", "3 * Qty", "Assign(#Active, Thrice <> 150)"}});
  applyAll(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 50 No 100 150", "A P2 50 No 100 150"));
}

TEST(InverseFormulas, GoOnBehindOneThatFails) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, 1 / (Qty - 1))"},
                             {"Thrice", "3 * Qty", "Assign(#Active, 1)"}});
  EXPECT_TRUE(applyAll(made));
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes 2 3", "A P2 1 Yes 2 3"));
}

TEST(InverseFormulas, ChangeNothingWhereThereAreNone) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  EXPECT_TRUE(applyAll(made));
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1 Yes 0", "A P2 2 No 0"));
  EXPECT_THAT(made.notice.tasks, ElementsAre());
}

TEST(InverseFormulas, CanBeStopped) {
  FormulaTable made = stock({{"Twice", "2 * Qty", "Assign(#Qty, Qty + 10)"}});
  made.notice.stopped = "[Applying inverse formulas...]";
  EXPECT_FALSE(applyAll(made));
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{1, 2}));
}

TEST(InverseFormulas, UndoAForwardFormulaWhateverIsTyped) {
  std::mt19937 random(11);
  std::uniform_int_distribution<int> any(-100000, 100000);
  FormulaTable made =
      stock({{"Twice", "2 * Qty + 5", "Assign(#Qty, (Twice - 5) / 2)"}, {"Next", "Twice + 1"}});
  for (int round = 0; round < 200; ++round) {
    const int number = any(random);
    type(made, "Twice", std::to_string(number), 1);
    ASSERT_EQ(made.column("Twice")[1], number);
    ASSERT_EQ(made.column("Qty")[1], (number - 5) / 2.0);
    ASSERT_EQ(made.column("Next")[1], number + 1);
  }
}

TEST(Separators, AreLeftOutOfANumber) {
  EXPECT_EQ(withoutSeparators("1,234.50"), "1234.50");
  EXPECT_EQ(withoutSeparators(" 1_000,000 "), "1000000");
  EXPECT_EQ(withoutSeparators("-1,000"), "-1000");
  EXPECT_EQ(withoutSeparators("+1,000"), "+1000");
  EXPECT_EQ(withoutSeparators("12"), "12");
}

TEST(Separators, StayInAnyOtherText) {
  EXPECT_EQ(withoutSeparators("MAX(1,2)"), "MAX(1,2)");
  EXPECT_EQ(withoutSeparators("nuts, bolts"), "nuts, bolts");
  EXPECT_EQ(withoutSeparators("1,2 3"), "1,2 3");
  EXPECT_EQ(withoutSeparators(","), ",");
  EXPECT_EQ(withoutSeparators("_"), "_");
  EXPECT_EQ(withoutSeparators("i,nf"), "i,nf");
  EXPECT_EQ(withoutSeparators(""), "");
}

}  // namespace
}  // namespace vrel
