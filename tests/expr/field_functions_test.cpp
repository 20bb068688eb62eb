#include "expr/field_functions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "expr/colours.h"
#include "expr/evaluation_error.h"
#include "expr/parser.h"
#include "model/table_sort.h"
#include "support/formula_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::FormulaTable;
using test::tuplesOf;
using testing::ElementsAre;

constexpr double kFailed = -kFunctionFailed;

FormulaTable stock(const std::vector<test::FormulaOf>& formulas = {}) {
  return FormulaTable("Item:String Period:Period Qty:Number Active:Boolean", "P1 P2 P3",
                      {"A P1 1 Yes", "A P2 2 No", "A P3 3 Yes", "B P1 10 No"}, formulas);
}

TEST(AllFunctions, AreRegisteredWithTheirUsage) {
  FunctionRegistry functions;
  addAllFunctions(functions);
  const auto usage = [&functions](std::string_view name) {
    const FunctionRecord* const record = functions.find(name);
    return record == nullptr ? "none"
                             : std::to_string(record->minimum) + "-" +
                                   std::to_string(record->maximum) + " " + record->usage;
  };
  EXPECT_EQ(usage("Assign"), "2-2 (#tofield, expr)");
  EXPECT_EQ(usage("RelOffset"), "2-3 (#field, offset, outOfRangeValue)");
  EXPECT_EQ(usage("Prev"), "1-2 (#field, outOfRangeValue)");
  EXPECT_EQ(usage("Next"), "1-2 (#field, outOfRangeValue)");
  EXPECT_EQ(usage("ERROR"), "1-1 (#errorMessage)");
  EXPECT_EQ(usage("Cover"), "3-4 (#timeUnit, #demand, #storage, [#last/avg])");
  EXPECT_EQ(usage("InvCover"), "3-4 (#timeUnit, #demand, #cover, [#last/avg])");
  EXPECT_EQ(usage("Depletion"),
            "4-6 (#depletor, depletorOffset, #depletee, #timeUnit, [#f/b], [#last/avg])");
  EXPECT_EQ(usage("InverseDepletion"),
            "4-6 (#depletor, depletorOffset, #unitOfCover, #timeUnit, [#f/b], [#last/avg])");
  EXPECT_EQ(usage("BLUE"), "0-0 ()");
  EXPECT_EQ(usage("POWER"), "2-2 (x,y)");
}

TEST(AllFunctions, NumberTheColoursInTheirOrderAndKeepTheOthers) {
  FormulaTable table = stock();
  const std::vector<std::pair<std::string, double>> numbers = {
      {"BLACK", 0},  {"RED", 1},    {"PINK", 2},   {"ORANGE", 3},     {"GREEN", 4},
      {"BLUE", 5},   {"YELLOW", 6}, {"VIOLET", 7}, {"BACKGROUND", 8}, {"GRAY", 1},
      {"WHITE", 11}, {"SELECT", 2}, {"DEFAULT", 0}};
  for (const auto& [name, number] : numbers) {
    EXPECT_EQ(table.value(name + "()"), number) << name;
  }
}

TEST(AllFunctions, FoldColoursWhenAFormulaIsParsed) {
  FunctionRegistry functions;
  addAllFunctions(functions);
  EXPECT_TRUE(functions.find("BLUE")->constant);
  EXPECT_TRUE(functions.find("BACKGROUND")->constant);
  EXPECT_FALSE(functions.find("GRAY")->constant);
  const ParseResult parsed = parseExpression("BLUE()", functions);
  ASSERT_TRUE(parsed.expression);
  EXPECT_EQ(evaluate(*parsed.expression).value, 5);
}

TEST(Colours, HaveTheNamesThatTheWindowKnows) {
  std::vector<std::string_view> names;
  for (const Colour& colour : kColours) {
    names.push_back(colour.name);
  }
  EXPECT_THAT(names, ElementsAre("Black", "Red", "hot pink", "Orange", "SpringGreen", "Blue",
                                 "yellow", "Violet", "Background"));
}

TEST(RelOffset, IsTheFieldsValueSoManyTuplesOn) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("RelOffset(#Qty, 2)", 0), 3);
  EXPECT_EQ(table.value("RelOffset(#Qty, -1)", 2), 2);
  EXPECT_EQ(table.value("RelOffset(#Qty, 0, 99)", 2), 3);
  EXPECT_EQ(table.value("RelOffset(#Active, 2)", 0), 1);
  EXPECT_EQ(table.value("RelOffset(#Active, 1)", 0), 0);
}

TEST(RelOffset, TakesAComputedOffsetAndTruncatesIt) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("RelOffset(#Qty, Qty)", 0), 2);
  EXPECT_EQ(table.value("RelOffset(#Qty, 1.99)", 0), 2);
  EXPECT_EQ(table.value("RelOffset(#Qty, -0.99)", 2), 3);
}

TEST(RelOffset, IsTheOtherValueBeyondTheSeries) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("RelOffset(#Qty, 3, 99)", 0), 99);
  EXPECT_EQ(table.value("RelOffset(#Qty, -1, Qty + 7)", 0), 8);
  EXPECT_EQ(table.value("RelOffset(#Qty, 1, 99)", 2), 99) << "the next tuple is another item's";
  EXPECT_EQ(table.value("RelOffset(#Qty, 3)", 0), 0);
  EXPECT_EQ(table.value("RelOffset(#Qty, 1e300, 99)", 0), 99);
  EXPECT_EQ(table.value("RelOffset(#Qty, -1e300, 99)", 0), 99);
  EXPECT_EQ(table.value("RelOffset(#Qty, *, 99)", 0), 99);
}

TEST(RelOffset, IsTheOtherValueForAFieldThatHoldsNoNumbers) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("RelOffset(#None, 0, 99)"), 99);
  EXPECT_EQ(table.value("RelOffset(#Item, 0, 99)"), 99);
  EXPECT_EQ(table.value("RelOffset(#Period, 0)"), 0);
  EXPECT_EQ(table.value("RelOffset(#Qty:1, 0, 99)"), 99) << "the whole text is the name";
}

TEST(RelOffset, TakesAFormulaFieldAsItStands) {
  FormulaTable table = stock({{"Twice", "2 * Qty"}});
  table.table.cell(1, table.field("Twice")) = numberCell(44);
  EXPECT_EQ(table.value("RelOffset(#Twice, 1)", 0), 44);
}

TEST(RelOffset, FailsForArgumentsOfTheWrongKind) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("RelOffset(Qty, 1)"), kFailed);
  EXPECT_EQ(table.value("RelOffset(#Qty, #1)"), kFailed);
  EXPECT_EQ(table.value("RelOffset(#Qty, 1, #2)"), kFailed);
  EXPECT_EQ(table.value("Prev(Qty)"), kFailed);
  EXPECT_EQ(table.value("Prev(#Qty, #0)"), kFailed);
  EXPECT_EQ(table.value("Next(1)"), kFailed);
  EXPECT_EQ(table.value("Next(#Qty, #0)"), kFailed);
}

TEST(PrevAndNext, AreTheNeighboursInTheSeries) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Prev(#Qty)", 1), 1);
  EXPECT_EQ(table.value("Next(#Qty)", 1), 3);
}

TEST(PrevAndNext, AreTheSecondArgumentOrZeroBeyondTheSeries) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Prev(#Qty, 5)", 0), 5);
  EXPECT_EQ(table.value("Prev(#Qty)", 0), 0);
  EXPECT_EQ(table.value("Prev(#Qty, 5)", 3), 5);
  EXPECT_EQ(table.value("Next(#Qty, 5)", 2), 5);
  EXPECT_EQ(table.value("Next(#Qty)", 2), 0);
}

TEST(FieldFunctions, FailWithoutATable) {
  FunctionRegistry functions;
  addAllFunctions(functions);
  for (const std::string_view text :
       {"Prev(#Qty)", "Next(#Qty)", "RelOffset(#Qty, 0, 1)", "Assign(#Qty, 1)", "ERROR(#stop)"}) {
    const ParseResult parsed = parseExpression(text, functions);
    ASSERT_TRUE(parsed.expression) << text;
    EXPECT_EQ(evaluate(*parsed.expression).error, kFunctionFailed) << text;
  }
}

TEST(Assign, StoresTheValueInTheTuplesFieldAndIsOne) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Assign(#Qty, 2 * Qty + 40)", 1), 1);
  EXPECT_THAT(tuplesOf(table.table),
              ElementsAre("A P1 1 Yes", "A P2 44 No", "A P3 3 Yes", "B P1 10 No"));
}

TEST(Assign, StoresWhetherTheValueIsZeroInABoolean) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Assign(#Active, 0)", 0), 1);
  EXPECT_EQ(table.value("Assign(#Active, -0.5)", 1), 1);
  EXPECT_THAT(tuplesOf(table.table),
              ElementsAre("A P1 1 No", "A P2 2 Yes", "A P3 3 Yes", "B P1 10 No"));
}

TEST(Assign, KeepsANumberForLaterInTheScratchField) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Assign('# ', 6) + ' ' * 2"), 13);
  EXPECT_EQ(table.value("' '", 3), 6);
}

TEST(Assign, FailsForFieldsThatItCannotSet) {
  FormulaTable table = stock({{"Twice", "2 * Qty"}});
  EXPECT_EQ(table.value("Assign(#None, 1)"), kFailed);
  EXPECT_EQ(table.value("Assign(#Item, 1)"), kFailed);
  EXPECT_EQ(table.value("Assign(#Period, 1)"), kFailed);
  EXPECT_EQ(table.value("Assign(#Twice, 1)"), kFailed);
  EXPECT_EQ(table.column("Twice"), std::vector<double>(4, 0));
}

TEST(Assign, FailsForArgumentsOfTheWrongKind) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Assign(Qty, 1)"), kFailed);
  EXPECT_EQ(table.value("Assign(#Qty, #1)"), kFailed);
  EXPECT_EQ(table.value("Qty"), 1);
}

TEST(Assign, FailsWhileFormulasAreRecalculated) {
  FormulaTable table = stock();
  table.context.recalculating = true;
  EXPECT_EQ(table.value("Assign(#Qty, 50)"), kFailed);
  EXPECT_EQ(table.value("Qty"), 1);
}

TEST(Assign, OfAValueThatCannotBeComputedChangesNothing) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Assign(#Qty, 1 / 0)"), -kDivisionByZero);
  EXPECT_EQ(table.value("Qty"), 1);
}

TEST(Assign, ToAKeyPutsTheTableOutOfOrder) {
  FormulaTable table("Year:Number Qty:Number", "-", {"1 10", "2 20", "3 30"});
  table.table.fields[0].classification = Classification::Key;
  table.table.sortedBy.clear();
  sortTuples(table.table);
  ASSERT_FALSE(table.table.sortedBy.empty());
  EXPECT_EQ(table.value("Assign(#Qty, 11)", 0), 1);
  EXPECT_FALSE(table.table.sortedBy.empty()) << "no key has changed";
  EXPECT_EQ(table.value("Assign(#Year, 9)", 0), 1);
  sortTuples(table.table);
  EXPECT_THAT(tuplesOf(table.table), ElementsAre("2 20", "3 30", "9 11"));
}

TEST(Assign, ToAKeyMovesTheTupleToAnotherSeries) {
  FormulaTable table("Group:Number Period:Period Qty:Number", "P1 P2", {"1 P1 10", "1 P2 20"});
  table.table.fields[0].classification = Classification::Key;
  table.table.sortedBy.clear();
  sortTuples(table.table);
  EXPECT_EQ(table.value("Next(#Qty, 99) + Assign(#Group, 7) * 0 + Next(#Qty, 99)"), 20 + 99);
}

TEST(ErrorFunction, AlwaysFailsAndIsSilentWithoutAWindow) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("ERROR(#stop)"), kFailed);
  EXPECT_EQ(table.value("IF(Qty < 0, 1, 2)"), 2);
  EXPECT_EQ(table.value("IF(Qty < 5, ERROR(#stop), 2)"), kFailed);
  EXPECT_THAT(table.notice.told, ElementsAre());
  EXPECT_EQ(table.notice.beeps, 0);
}

TEST(ErrorFunction, ShowsItsMessageAndBeepsInAWindow) {
  FormulaTable table = stock();
  table.notice.window = true;
  EXPECT_EQ(table.value("ERROR('#No more than 5, please')"), kFailed);
  EXPECT_THAT(table.notice.told, ElementsAre("[Data Editor]: No more than 5, please"));
  EXPECT_EQ(table.notice.beeps, 1);
}

TEST(ErrorFunction, ShowsEachMessageOnceInARun) {
  FormulaTable table = stock();
  table.notice.window = true;
  for (std::size_t tuple = 0; tuple < 4; ++tuple) {
    EXPECT_EQ(table.value("IF(Qty > 2, ERROR(#much), ERROR(#little))", tuple), kFailed);
  }
  EXPECT_THAT(table.notice.told, ElementsAre("[Data Editor]: little", "[Data Editor]: much"));
  EXPECT_EQ(table.notice.beeps, 2);
}

TEST(ErrorFunction, HasNothingToShowForANumber) {
  FormulaTable table = stock();
  table.notice.window = true;
  EXPECT_EQ(table.value("ERROR(1)"), kFailed);
  EXPECT_THAT(table.notice.told, ElementsAre());
}

}  // namespace
}  // namespace vrel
