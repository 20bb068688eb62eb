#include "expr/evaluator.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "expr/recalculation.h"
#include "model/table_sort.h"
#include "support/formulas.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::evaluated;
using test::FormulaBench;
using test::setFormula;
using test::tableOf;

TEST(Evaluate, Arithmetic) {
  EXPECT_EQ(evaluated("1 + 2 * 3 - 4 / 8"), "6.5");
  EXPECT_EQ(evaluated("-2 * -(3)"), "6");
  EXPECT_EQ(evaluated("7 % 4"), "3");
  EXPECT_EQ(evaluated("-7 % 4"), "-3");
  EXPECT_EQ(evaluated("7 % -4"), "3");
  EXPECT_EQ(evaluated("7.5 % 2"), "1.5");
}

TEST(Evaluate, DivisionByZeroFails) {
  EXPECT_EQ(evaluated("7 / 0"), "error 102");
  EXPECT_EQ(evaluated("7 % 0"), "error 102");
  EXPECT_EQ(evaluated("7 / -0"), "error 102");
  EXPECT_EQ(evaluated("0 / 0"), "error 102");
  EXPECT_EQ(evaluated("7 / (1 - 1)"), "error 102");
  EXPECT_EQ(evaluated("(3 + 4) % (1 - 1)"), "error 102");
}

TEST(Evaluate, TheDivisorIsLookedAtBeforeTheDividend) {
  EXPECT_EQ(evaluated("1e21 / 0"), "error 102");
  EXPECT_EQ(evaluated("1e21 % 0"), "error 102");
  EXPECT_EQ(evaluated("Demand / 0"), "error 102");
  EXPECT_EQ(evaluated("SQRT(-1) % (2 - 2)"), "error 102");
  EXPECT_EQ(evaluated("(1 / 0) / Demand"), "error 103");
  EXPECT_EQ(evaluated("SQRT(-1) / Demand"), "error 103");
  EXPECT_EQ(evaluated("Demand / SQRT(-1)"), "error 104");
}

TEST(Evaluate, AllOtherOperatorsComputeTheLeftOperandFirst) {
  for (const std::string_view operation :
       {"+", "-", "*", "<", ">", "<=", ">=", "=", "<>", " AND ", " OR ", " XOR "}) {
    const std::string text(operation);
    EXPECT_EQ(evaluated("Demand" + text + "(1/0)"), "error 103") << text;
    EXPECT_EQ(evaluated("(1/0)" + text + "Demand"), "error 102") << text;
    EXPECT_EQ(evaluated("SQRT(-1)" + text + "(1/0)"), "error 104") << text;
    EXPECT_EQ(evaluated("1" + text + "(1/0)"), "error 102") << text;
    EXPECT_EQ(evaluated("(1/0)" + text + "1"), "error 102") << text;
  }
}

TEST(Evaluate, UnboundedQuantitiesDoNotGrowByMultiplying) {
  EXPECT_EQ(evaluated("* * 3"), "1e+20");
  EXPECT_EQ(evaluated("3 * *"), "1e+20");
  EXPECT_EQ(evaluated("1e20 * 1"), "1e+20");
  EXPECT_EQ(evaluated("1e20 * 0"), "0");
  EXPECT_EQ(evaluated("0 * 1e20"), "0");
  EXPECT_EQ(evaluated("2e20 * 1"), "2e+20");
  EXPECT_EQ(evaluated("1 * 2e20"), "2e+20");
  EXPECT_EQ(evaluated("2e20 * 0.5"), "1e+20");
  EXPECT_EQ(evaluated("2e20 * -1"), "1e+20");
  EXPECT_EQ(evaluated("-2 * 1e20"), "1e+20");
  EXPECT_EQ(evaluated("-1e21 * 3"), "-3e+21");
  EXPECT_EQ(evaluated("1e19 * 100"), "1e+21");
}

TEST(Evaluate, UnboundedQuantitiesDoNotShrinkByDividing) {
  EXPECT_EQ(evaluated("1e21 / 2"), "1e+20");
  EXPECT_EQ(evaluated("* / -4"), "1e+20");
  EXPECT_EQ(evaluated("* / *"), "1e+20");
  EXPECT_EQ(evaluated("1e21 % 7"), "1e+20");
  EXPECT_EQ(evaluated("-1e21 / 2"), "-5e+20");
  EXPECT_EQ(evaluated("1 / *"), "1e-20");
  EXPECT_EQ(evaluated("5 % *"), "5");
}

TEST(Evaluate, SumsAndDifferencesOfUnboundedQuantitiesAreNotCapped) {
  EXPECT_EQ(evaluated("* + *"), "2e+20");
  EXPECT_EQ(evaluated("* - *"), "0");
  EXPECT_EQ(evaluated("-*"), "-1e+20");
}

TEST(Evaluate, ComparisonsAreOneOrZero) {
  EXPECT_EQ(evaluated("SUM(1<2, 10*(2<1), 100*(2<2))"), "1");
  EXPECT_EQ(evaluated("SUM(1>2, 10*(2>1), 100*(2>2))"), "10");
  EXPECT_EQ(evaluated("SUM(1<=2, 10*(2<=1), 100*(2<=2))"), "101");
  EXPECT_EQ(evaluated("SUM(1>=2, 10*(2>=1), 100*(2>=2))"), "110");
  EXPECT_EQ(evaluated("SUM(1=2, 10*(2=1), 100*(2=2))"), "100");
  EXPECT_EQ(evaluated("SUM(1<>2, 10*(2!=1), 100*(2<>2))"), "11");
  EXPECT_EQ(evaluated("0 = -0"), "1");
}

// What is no number: the root of a negative number by its logarithm's rule.
const std::string kNan = "POWER(-8, 0.5)";

TEST(Evaluate, ComparisonsWithNoNumberAreZeroButForUnequal) {
  for (const std::string_view operation : {"<", ">", "<=", ">=", "="}) {
    const std::string text(operation);
    EXPECT_EQ(evaluated(kNan + text + "1"), "0") << text;
    EXPECT_EQ(evaluated("1" + text + kNan), "0") << text;
    EXPECT_EQ(evaluated(kNan + text + kNan), "0") << text;
  }
  EXPECT_EQ(evaluated(kNan + "<>1"), "1");
  EXPECT_EQ(evaluated(kNan + "<>" + kNan), "1");
}

TEST(Evaluate, NoNumberIsTrue) {
  EXPECT_EQ(evaluated("IF(" + kNan + ", 1, 2)"), "1");
  EXPECT_EQ(evaluated(kNan + " AND 1"), "1");
  EXPECT_EQ(evaluated("0 OR " + kNan), "1");
  EXPECT_EQ(evaluated(kNan + " XOR 1"), "0");
}

TEST(Evaluate, NoNumberTimesANumberIsUnbounded) {
  EXPECT_EQ(evaluated(kNan + " * 2"), "1e+20");
  EXPECT_EQ(evaluated("2 * " + kNan), "1e+20");
  EXPECT_EQ(evaluated("ABS(" + kNan + " * 1)"), "nan");
  EXPECT_EQ(evaluated("ABS(0 * " + kNan + ")"), "nan");
  EXPECT_EQ(evaluated("ABS(" + kNan + " / 2)"), "nan");
  EXPECT_EQ(evaluated("ABS(" + kNan + " + 2)"), "nan");
}

TEST(Evaluate, LogicIsOneOrZero) {
  EXPECT_EQ(evaluated("SUM(0 AND 0, 10*(0 AND 5), 100*(5 AND 0), 1000*(5 AND -2))"), "1000");
  EXPECT_EQ(evaluated("SUM(0 OR 0, 10*(0 OR 5), 100*(5 OR 0), 1000*(5 OR -2))"), "1110");
  EXPECT_EQ(evaluated("SUM(0 XOR 0, 10*(0 XOR 5), 100*(5 XOR 0), 1000*(5 XOR -2))"), "110");
}

TEST(Evaluate, LogicEvaluatesBothSides) {
  EXPECT_EQ(evaluated("0 AND 1/0"), "error 102");
  EXPECT_EQ(evaluated("1 OR 1/0"), "error 102");
  EXPECT_EQ(evaluated("1 OR Demand"), "error 103");
  EXPECT_EQ(evaluated("(1 < 0) AND SQRT(-1)"), "error 104");
}

TEST(Evaluate, FieldNamesFailWithoutATable) {
  EXPECT_EQ(evaluated("Demand"), "error 103");
  EXPECT_EQ(evaluated("Demand:-1"), "error 103");
  EXPECT_EQ(evaluated("' '"), "error 103");
  EXPECT_EQ(evaluated("' :1'"), "error 103");
  EXPECT_EQ(evaluated("TRUE"), "error 103");
}

TEST(Evaluate, FunctionsOverTablesFailWithoutATable) {
  for (const std::string_view call :
       {"Prev(#a)", "Next(#a)", "RelOffset(#a, 1)", "Assign(#a, 1)", "Assign('# ', 1)",
        "ERROR(#text)", "Cover(#d, #a, #b)", "InvCover(#d, #a, #b)", "Depletion(#a, 1, #b, #d)",
        "InverseDepletion(#a, 1, #b, #d)"}) {
    EXPECT_EQ(evaluated(call), "error 104") << call;
  }
}

TEST(Evaluate, TheVariableIsWhatIsGiven) {
  const ParseResult result = parseExpression("x * x + 1", test::allFunctions(), {.variable = true});
  EXPECT_EQ(evaluate(*result.expression, 3).value, 10);
  EXPECT_EQ(evaluate(*result.expression).value, 1);
}

TEST(Evaluate, IfTakesOneOfTwoAndLeavesTheOtherAlone) {
  EXPECT_EQ(evaluated("IF(1, 2, 3)"), "2");
  EXPECT_EQ(evaluated("IF(0, 2, 3)"), "3");
  EXPECT_EQ(evaluated("IF(-0.5, 2, 3)"), "2");
  EXPECT_EQ(evaluated("IF(1, 2, 1/0)"), "2");
  EXPECT_EQ(evaluated("IF(0, 1/0, 3)"), "3");
  EXPECT_EQ(evaluated("IF(1/0, 2, 3)"), "error 102");
  EXPECT_EQ(evaluated("IF(0, 2, Demand)"), "error 103");
  EXPECT_EQ(evaluated("1 + IF(1, IF(0, 5, 6), 7) * 2"), "13");
}

TEST(Evaluate, IfRefusesTextsEvenWhereTheyWouldNotBeUsed) {
  EXPECT_EQ(evaluated("IF(1, 2, #x)"), "error 104");
  EXPECT_EQ(evaluated("IF(0, #x, 3)"), "error 104");
  EXPECT_EQ(evaluated("IF(#x, 2, 3)"), "error 104");
  EXPECT_EQ(evaluated("IF(1/0, 2, #x)"), "error 104");
}

TEST(RangeMap, OfTwoIsTheSecond) {
  EXPECT_EQ(evaluated("RANGEMAP(7, 5)"), "5");
  EXPECT_EQ(evaluated("RANGEMAP(7, -5)"), "-5");
  EXPECT_EQ(evaluated("RANGEMAP(1/0, 5)"), "5");
}

TEST(RangeMap, OfMoreIsTheFirstBandsResult) {
  EXPECT_EQ(evaluated("RANGEMAP(7, 5, 100)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(7, 5, 100, 200)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(7, 5, 100, 10, 200)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(7, 5, 100, 10, 200, 300)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(7, 0, 100, 10, 200, 300)"), "100");
}

TEST(RangeMap, ComputesItsFirstArgumentButDoesNotUseIt) {
  EXPECT_EQ(evaluated("RANGEMAP(1/0, 5, 100)"), "error 102");
  EXPECT_EQ(evaluated("RANGEMAP(Demand, 5, 100)"), "error 103");
  EXPECT_EQ(evaluated("RANGEMAP(1000, 5, 100, 10, 200)"), "100");
}

TEST(RangeMap, WantsAscendingBounds) {
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 4, 200)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 5, 200)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 6, 200, 5.9, 300)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 4)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 6, 200, 1)"), "100");
}

TEST(RangeMap, WantsBoundsThatAreNotNegative) {
  EXPECT_EQ(evaluated("RANGEMAP(0, -1, 100)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(0, -1, 100, 5, 200)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(0, -0, 100)"), "100");
}

TEST(RangeMap, FallsThroughBoundsThatAreNoNumbers) {
  EXPECT_EQ(evaluated("RANGEMAP(0, " + kNan + ", 100)"), "0");
  EXPECT_EQ(evaluated("RANGEMAP(0, " + kNan + ", 100, 300)"), "300");
  EXPECT_EQ(evaluated("RANGEMAP(0, " + kNan + ", 100, 5, 200)"), "0");
  EXPECT_EQ(evaluated("RANGEMAP(0, " + kNan + ", 100, 5, 200, 300)"), "300");
  EXPECT_EQ(evaluated("RANGEMAP(0, " + kNan + ", 100, -5, 200, 300)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(0, 1, 100, " + kNan + ", 200)"), "100");
}

TEST(RangeMap, ComputesOnlyTheResultThatItTakes) {
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 10, 1/0, Demand)"), "100");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 1/0, 10, 200)"), "error 102");
}

TEST(RangeMap, ComputesAllBoundsInTheirOrder) {
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 1/0, 200)"), "error 102");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 1/0, 200, Demand, 300)"), "error 102");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 100, 4, 200, 1/0, 300)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(Demand, 1/0, 100, 4, 200)"), "error 103");
  EXPECT_EQ(evaluated("RANGEMAP(0, -1, 100, 1/0, 200)"), "error 102");
  EXPECT_EQ(evaluated("RANGEMAP(0, 5, 1/0, 4, 200)"), "error 104");
}

TEST(RangeMap, RefusesTexts) {
  EXPECT_EQ(evaluated("RANGEMAP(0, #x)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(#x, 5, 100)"), "error 104");
  EXPECT_EQ(evaluated("RANGEMAP(1/0, 5, 100, #x)"), "error 104");
}

TEST(RangeMap, TakesPartInLargerFormulas) {
  EXPECT_EQ(evaluated("2 * RANGEMAP(7, 5, 100, 10, 200) + 1"), "201");
  EXPECT_EQ(evaluated("RANGEMAP(7, RANGEMAP(1, 2, 3), RANGEMAP(4, 5, 6)) + 1/4"), "6.25");
  EXPECT_EQ(evaluated("SUM(1, RANGEMAP(7, 5, 100, 10, 200, 300), 3)"), "104");
}

// Two items over three periods.
Table plan() {
  Table table = tableOf(
      "Item:String Period:Period Demand:Number Stock:Number Active:Boolean "
      "F:Number G:Number H:Number",
      "W1 W2 W3",
      {"Bolt W1 10 100 Yes 0 0 0", "Bolt W2 20 undefined No 0 0 0", "Bolt W3 30 * Yes 0 0 0",
       "Nut W1 40 7 No 0 0 0", "Nut W2 50 8 Yes 0 0 0"});
  sortTuples(table);
  return table;
}

class OverTable : public testing::Test {
 protected:
  // Numbers of one column after all formulas have been computed.
  std::vector<double> column(int field) {
    test::SilentNotice notice;
    FormulaContext context{.table = table_, .notice = notice};
    recalculateTable(context, test::allFunctions());
    std::vector<double> numbers;
    for (std::size_t tuple = 0; tuple < table_.tupleCount; ++tuple) {
      numbers.push_back(numberOf(table_.cell(tuple, field)));
    }
    return numbers;
  }

  Table table_ = plan();
};

constexpr int kDemand = 2;
constexpr int kF = 5;
constexpr int kG = 6;
constexpr int kH = 7;
using Numbers = std::vector<double>;
const Numbers kAllErrors = Numbers(5, kErrorValue);

TEST_F(OverTable, NamesStandForTheTuplesOwnValues) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Demand + Stock", 0), "110");
  EXPECT_EQ(bench.evaluated("Demand + Stock", 3), "47");
}

TEST_F(OverTable, UndefinedNumbersCountAsZero) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Stock", 1), "0");
  EXPECT_EQ(bench.evaluated("Stock + Demand", 1), "20");
  EXPECT_EQ(bench.evaluated("1 / Stock", 1), "error 102");
  EXPECT_EQ(bench.evaluated("Stock:1", 0), "0");
}

TEST_F(OverTable, BooleansAreZeroOrOne) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Active", 0), "1");
  EXPECT_EQ(bench.evaluated("Active * 5", 1), "0");
  EXPECT_EQ(bench.evaluated("Active:1 + 3", 1), "4");
  EXPECT_EQ(bench.evaluated("IF(Active, Demand, -Demand)", 1), "-20");
}

TEST_F(OverTable, NamesOfOtherTypesAndUnknownNamesFail) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Item"), "error 103");
  EXPECT_EQ(bench.evaluated("Period"), "error 103");
  EXPECT_EQ(bench.evaluated("Period:1"), "error 103");
  EXPECT_EQ(bench.evaluated("demand"), "error 103");
  EXPECT_EQ(bench.evaluated("Nothing:1"), "error 103");
  EXPECT_EQ(bench.evaluated("' Demand'"), "error 103");
}

TEST_F(OverTable, TheFirstFieldOfANameAndOfAFittingTypeCounts) {
  table_.field(kG).name = "Demand";
  table_.cell(0, kG) = numberCell(5);
  EXPECT_EQ(FormulaBench(table_).evaluated("Demand"), "10");
  table_.field(kDemand).type = FieldType::String;
  EXPECT_EQ(FormulaBench(table_).evaluated("Demand"), "5");
}

TEST_F(OverTable, TheScratchFieldBelongsToNoTuple) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("' '"), "0");
  EXPECT_EQ(bench.evaluated("Assign('# ', 5) + ' '", 2), "6");
  EXPECT_EQ(bench.evaluated("' ' * 2", 0), "10");
  EXPECT_EQ(bench.evaluated("' :-1' + 1", 3), "6");
}

TEST_F(OverTable, AFieldOfTheTableHidesTheScratchField) {
  table_.field(kG).name = " ";
  table_.cell(0, kG) = numberCell(7);
  EXPECT_EQ(FormulaBench(table_).evaluated("' '"), "7");
}

TEST_F(OverTable, OffsetsCountWithinTheSeries) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Demand:1", 0), "20");
  EXPECT_EQ(bench.evaluated("Demand:+2", 0), "30");
  EXPECT_EQ(bench.evaluated("Demand:-1", 2), "20");
  EXPECT_EQ(bench.evaluated("Demand:", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:0", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:-", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:#1", 2), "10");
  EXPECT_EQ(bench.evaluated("Demand:#+3", 0), "30");
  EXPECT_EQ(bench.evaluated("Demand:#2", 3), "50");
}

TEST_F(OverTable, BeyondTheSeriesTheOwnTupleCounts) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Demand:1", 2), "30");
  EXPECT_EQ(bench.evaluated("Demand:-1", 3), "40");
  EXPECT_EQ(bench.evaluated("Demand:-1", 0), "10");
  EXPECT_EQ(bench.evaluated("Demand:#3", 4), "50");
  EXPECT_EQ(bench.evaluated("Demand:#0", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:#", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:#-1", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:99999999999999999999", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:-99999999999999999999", 1), "20");
  EXPECT_EQ(bench.evaluated("Demand:#-99999999999999999999", 1), "20");
}

TEST_F(OverTable, DivisionsByFieldsLookAtTheFieldFirst) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Stock:9 / F", 0), "error 102");
  EXPECT_EQ(bench.evaluated("Nothing / F", 0), "error 102");
  EXPECT_EQ(bench.evaluated("(1/0) % Nothing", 0), "error 103");
  EXPECT_EQ(bench.evaluated("Stock / Demand", 2), "1e+20");
  EXPECT_EQ(bench.evaluated("Demand / Stock", 3), fmt::format("{}", 40.0 / 7.0));
  EXPECT_EQ(bench.evaluated("(Demand + 2) % Stock", 3), "0");
  EXPECT_EQ(bench.evaluated("Demand % (Stock - 1)", 3), "4");
}

TEST_F(OverTable, AnAssignmentCountsForWhatStandsBehindItOnly) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Demand + Assign(#Demand, 5)"), "11");
  EXPECT_EQ(bench.evaluated("Demand"), "5");
  EXPECT_EQ(bench.evaluated("Assign(#Demand, 6) + Demand"), "7");
  EXPECT_EQ(bench.evaluated("MAX(Demand, Assign(#Demand, 3))"), "6");
  EXPECT_EQ(bench.evaluated("SUM(Demand, 0, Assign(#Demand, 9), Demand)"), "13");
  EXPECT_EQ(bench.evaluated("IF(Demand < Assign(#Demand, 1) + 9, 7, 8)"), "7");
}

TEST_F(OverTable, AnAssignmentInADividendComesBehindTheDivisor) {
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("Assign(#Demand, 0) / Demand"), "0.1");
  EXPECT_EQ(bench.evaluated("Demand"), "0");
  EXPECT_EQ(bench.evaluated("Demand / (Assign(#Demand, 8) + 1)"), "4");
}

TEST_F(OverTable, FormulaFieldsHandOnTheirStoredValues) {
  setFormula(table_, kF, "Demand * 2");
  table_.cell(0, kF) = numberCell(5);
  table_.cell(1, kF) = numberCell(kErrorValue);
  FormulaBench bench(table_);
  EXPECT_EQ(bench.evaluated("F + 1", 0), "6");
  EXPECT_EQ(bench.evaluated("F", 1), "1.7976931348623157e+308");
  EXPECT_EQ(bench.evaluated("F:1 / 2", 0), "1e+20");
}

TEST_F(OverTable, FormulasAreComputedBeforeTheyAreUsed) {
  setFormula(table_, kF, "G + 1");
  setFormula(table_, kG, "H * 2");
  setFormula(table_, kH, "Demand");
  EXPECT_EQ(column(kF), (Numbers{21, 41, 61, 81, 101}));
  EXPECT_EQ(column(kG), (Numbers{20, 40, 60, 80, 100}));
  EXPECT_EQ(column(kH), (Numbers{10, 20, 30, 40, 50}));
}

TEST_F(OverTable, FormulasMayBeUsedInEveryPlaceOfAFormula) {
  setFormula(table_, kG, "Demand");
  setFormula(table_, kH, "Demand + 1");
  for (const std::string_view formula :
       {"G * H", "G * (H + 0)", "(G + 0) * H", "(G + 0) * (H + 0)", "H * G", "PRODUCT(G, H)",
        "IF(H > G, G * H, 0)", "0 + G * H", "G / (1 / H)", "G * H / 1", "SUM(G * G, G)",
        "IF(G, H * G, H)", "MAX(G * H, G, H)", "RANGEMAP(H, G, G * H, H, 0)"}) {
    setFormula(table_, kF, formula);
    EXPECT_EQ(column(kF), (Numbers{110, 420, 930, 1640, 2550})) << formula;
  }
}

TEST_F(OverTable, AFormulaThatRefersToItselfFails) {
  setFormula(table_, kF, "F + 1");
  EXPECT_EQ(column(kF), kAllErrors);
}

TEST_F(OverTable, FormulasThatReferToEachOtherFail) {
  setFormula(table_, kF, "G + 1");
  setFormula(table_, kG, "H");
  setFormula(table_, kH, "IF(Demand > 15, F, 7)");
  EXPECT_EQ(column(kF), (Numbers{8, kErrorValue, kErrorValue, kErrorValue, kErrorValue}));
}

TEST_F(OverTable, AFormulaFailsWithTheOneThatItNeeds) {
  setFormula(table_, kF, "G + 1");
  setFormula(table_, kG, "1 / (Demand - 20)");
  EXPECT_EQ(column(kF)[0], 0.9);
  EXPECT_EQ(column(kF)[1], kErrorValue);
  EXPECT_EQ(column(kG)[1], kErrorValue);
}

TEST_F(OverTable, AFormulaFailsWithAFieldWhoseTextIsNoFormula) {
  setFormula(table_, kF, "G + 1");
  setFormula(table_, kG, "1 +");
  EXPECT_EQ(column(kF), kAllErrors);
  EXPECT_EQ(column(kG), kAllErrors);
}

TEST_F(OverTable, WhatFailsForNeedOfAnotherIsAnUnresolvedField) {
  setFormula(table_, kF, "SQRT(-1)");
  FormulaBench bench(table_);
  bench.context().recalculating = true;
  bench.evaluator().states()[kF] = FieldState::Pending;
  EXPECT_EQ(bench.evaluated("F"), "error 103");
  EXPECT_EQ(bench.evaluator().states()[kF], FieldState::Idle);
  EXPECT_EQ(table_.cell(0, kF).number, kErrorValue);
}

TEST_F(OverTable, AFieldThatIsBeingComputedCannotBeAskedFor) {
  setFormula(table_, kF, "Demand");
  FormulaBench bench(table_);
  bench.evaluator().states()[kF] = FieldState::InProgress;
  EXPECT_EQ(bench.evaluated("F"), "error 103");
  EXPECT_EQ(bench.evaluated("1 + F:1"), "error 103");
}

void makePending(Evaluator& evaluator) {
  std::fill(evaluator.states().begin(), evaluator.states().end(), FieldState::Pending);
}

// What H is computed for first is the tuple of the operand that comes first.
TEST_F(OverTable, FormulaFieldsAreComputedFromTheLeft) {
  setFormula(table_, kH, "Demand");
  setFormula(table_, kF, "H:1");
  setFormula(table_, kG, "H");
  for (const std::string_view formula : {"F + G", "(F + 0) + G", "F + (G + 0)", "SUM(F, G)"}) {
    for (std::size_t tuple = 0; tuple < 2; ++tuple) {
      table_.cell(tuple, kH) = numberCell(1000);
    }
    FormulaBench bench(table_);
    makePending(bench.evaluator());
    EXPECT_EQ(bench.evaluated(formula), "1020") << formula;
  }
}

TEST_F(OverTable, FormulaFieldsInDivisorsAreComputedFirst) {
  setFormula(table_, kH, "Demand");
  setFormula(table_, kF, "H:1");
  setFormula(table_, kG, "H");
  for (const std::string_view formula : {"F / G", "(F + 0) / G", "F / (G + 0)"}) {
    for (std::size_t tuple = 0; tuple < 2; ++tuple) {
      table_.cell(tuple, kH) = numberCell(1000);
    }
    FormulaBench bench(table_);
    makePending(bench.evaluator());
    EXPECT_EQ(bench.evaluated(formula), "100") << formula;
  }
}

TEST_F(OverTable, AFormulaThatNeedsALargeStackMayBeComputedForOneThatWaits) {
  std::string deep = "1";
  for (int i = 0; i < 10000; ++i) {
    deep = "ABS(F)+(" + deep + ")";
  }
  setFormula(table_, kH, deep);
  FormulaBench bench(table_);
  bench.evaluator().states()[kH] = FieldState::Pending;
  EXPECT_EQ(bench.evaluated("SUM(1, (Demand + 2) * (3 + ABS(H)), 5)"), "54");
}

TEST_F(OverTable, ThousandsOfFormulasMayWaitForEachOther) {
  constexpr int kFields = 20000;
  table_ = Table();
  table_.fields.resize(kFields);
  *appendTuple(table_) = emptyCell();
  for (int i = 0; i < kFields; ++i) {
    table_.field(i).name = "f" + std::to_string(i);
    setFormula(table_, i, i + 1 < kFields ? "f" + std::to_string(i + 1) + " + 1" : "1");
  }
  EXPECT_EQ(column(0), Numbers{kFields});
}

}  // namespace
}  // namespace vrel
