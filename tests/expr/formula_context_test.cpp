#include "expr/formula_context.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "expr/evaluation_error.h"
#include "support/formula_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::FormulaTable;

constexpr double kUnresolved = -kUnresolvedField;

// Two series: item A in three periods, item B in two.
FormulaTable stock() {
  return FormulaTable("Item:String Period:Period Qty:Number Active:Boolean", "P1 P2 P3",
                      {"A P1 1 Yes", "A P2 2 No", "A P3 3 Yes", "B P1 10 No", "B P2 20 Yes"});
}

TEST(FieldLookup, FindsNumbersAndBooleansOfTheTuple) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Qty", 1), 2);
  EXPECT_EQ(table.value("Active", 0), 1);
  EXPECT_EQ(table.value("Active", 1), 0);
}

TEST(FieldLookup, FindsTheStoredNumberOfAFormulaField) {
  FormulaTable table("Qty:Number", "P1", {"5"}, {{"Twice", "2 * Qty"}});
  table.table.cell(0, 1) = numberCell(7);
  EXPECT_EQ(table.value("Twice"), 7);
}

TEST(FieldLookup, FindsNoTextsPeriodsOrDates) {
  FormulaTable texts = stock();
  EXPECT_EQ(texts.value("Item"), kUnresolved);
  EXPECT_EQ(texts.value("Period"), kUnresolved);
  FormulaTable dates("Item:String Week:Date", "P1", {"A 1/5/2026"});
  ASSERT_EQ(dates.table.field(1).type, FieldType::Date);
  EXPECT_EQ(dates.value("Week"), kUnresolved);
}

TEST(FieldLookup, NeedsTheNameToTheLetter) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("qty"), kUnresolved);
  EXPECT_EQ(table.value("Qt"), kUnresolved);
  EXPECT_EQ(table.value("Qty2"), kUnresolved);
}

TEST(FieldLookup, TakesTheFirstOfSeveralFieldsOfANameThatHoldsNumbers) {
  FormulaTable table("Qty:String Qty:Number Qty:Number Qty:Boolean", "P1", {"text 4 5 Yes"});
  EXPECT_EQ(table.value("Qty"), 4);
}

TEST(FieldLookup, CountsTheUndefinedNumberAsZero) {
  FormulaTable table("Qty:Number", "P1", {"undefined"});
  EXPECT_EQ(table.value("Qty + 1"), 1);
  EXPECT_EQ(table.value("Prev(#Qty, 3) + RelOffset(#Qty, 0)"), 3);
}

TEST(FieldLookup, KnowsTheScratchField) {
  FormulaTable table = stock();
  table.context.scratch = numberCell(12);
  EXPECT_EQ(table.value("' ' + 1"), 13);
  EXPECT_EQ(table.value("' :5' + 1"), 13);
}

TEST(FieldLookup, PrefersAColumnToTheScratchFieldOfTheSameName) {
  FormulaTable table("' :Number'", "P1", {"4"});
  ASSERT_EQ(table.table.field(0).name, " ");
  table.context.scratch = numberCell(12);
  EXPECT_EQ(table.value("' '"), 4);
}

TEST(FieldLookup, GoesAsManyTuplesAlongTheSeriesAsTheOffsetSays) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Qty:1", 0), 2);
  EXPECT_EQ(table.value("Qty:+2", 0), 3);
  EXPECT_EQ(table.value("Qty:-1", 2), 2);
  EXPECT_EQ(table.value("Active:-2", 2), 1);
  EXPECT_EQ(table.value("Qty:0", 1), 2);
  EXPECT_EQ(table.value("Qty:", 1), 2);
}

TEST(FieldLookup, CountsAnAbsoluteOffsetFromTheSeriesFirstTuple) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Qty:#1", 2), 1);
  EXPECT_EQ(table.value("Qty:#3", 0), 3);
  EXPECT_EQ(table.value("Qty:#2", 3), 20);
  EXPECT_EQ(table.value("Qty:#+2", 3), 20);
}

TEST(FieldLookup, StaysAtTheTupleWhenTheOffsetLeavesTheSeries) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("Qty:-1", 0), 1);
  EXPECT_EQ(table.value("Qty:1", 2), 3) << "the next tuple is another item's";
  EXPECT_EQ(table.value("Qty:-1", 3), 10) << "the tuple before is another item's";
  EXPECT_EQ(table.value("Qty:1", 4), 20);
  EXPECT_EQ(table.value("Qty:#3", 4), 20);
  EXPECT_EQ(table.value("Qty:#0", 1), 2);
  EXPECT_EQ(table.value("Qty:#", 1), 2);
  EXPECT_EQ(table.value("Qty:#-1", 1), 2);
  EXPECT_EQ(table.value("Qty:99999999999999999999", 1), 2);
  EXPECT_EQ(table.value("Qty:-99999999999999999999", 1), 2);
}

TEST(FieldLookup, FailsForAnOffsetOfAFieldThatIsNotThere) {
  FormulaTable table = stock();
  EXPECT_EQ(table.value("None:0"), kUnresolved);
  EXPECT_EQ(table.value("None:-1"), kUnresolved);
  EXPECT_EQ(table.value("Item:1"), kUnresolved);
}

TEST(FieldLookup, TakesTheOffsetOfAQuotedNameInsideTheQuotes) {
  FormulaTable table("'Net Demand:Number'", "P1", {"4", "5"});
  EXPECT_EQ(table.value("'Net Demand:1' * \"Net Demand:#1\""), 20);
}

TEST(Series, OfATableWithoutGroupKeysIsTheWholeTable) {
  FormulaTable table("Period:Period Qty:Number", "P1 P2 P3", {"P1 1", "P2 2", "P3 3"});
  EXPECT_EQ(table.value("Qty:2", 0), 3);
  const Series series = seriesOf(table.context, 1);
  EXPECT_EQ(series.first, 0U);
  EXPECT_EQ(series.last, 2U);
}

TEST(Series, OfOneTupleIsThatTuple) {
  FormulaTable table("Item:String Period:Period Qty:Number", "P1", {"A P1 1", "B P1 2", "C P1 3"});
  EXPECT_EQ(seriesOf(table.context, 1).first, 1U);
  EXPECT_EQ(seriesOf(table.context, 1).last, 1U);
}

TEST(Series, ResolvesOffsetsOfAnySizeWithoutOverflow) {
  FormulaTable table = stock();
  using Limits = std::numeric_limits<std::int64_t>;
  const auto resolved = [&table](std::int64_t offset, bool absolute) {
    return resolveTuple(table.context, 1, {.place = {}, .offset = offset, .absolute = absolute});
  };
  EXPECT_EQ(resolved(Limits::max(), false), std::nullopt);
  EXPECT_EQ(resolved(Limits::min(), false), std::nullopt);
  EXPECT_EQ(resolved(Limits::max(), true), std::nullopt);
  EXPECT_EQ(resolved(Limits::min() + 1, true), std::nullopt);
  EXPECT_EQ(resolved(-1, false), 0U);
  EXPECT_EQ(resolved(3, true), 2U);
}

// The first and last tuple of a series, by looking at one neighbour after the other.
Series walkedSeries(const Table& table, std::size_t tuple) {
  Series series = {.first = tuple, .last = tuple};
  const auto belongs = [&table, tuple](std::size_t other) {
    return compareTuples(table, table.tuple(tuple), table.tuple(other), table.groupKeys) == 0;
  };
  while (series.first > 0 && belongs(series.first - 1)) {
    --series.first;
  }
  while (series.last + 1 < table.tupleCount && belongs(series.last + 1)) {
    ++series.last;
  }
  return series;
}

TEST(Series, IsThatOfATupleByTupleWalkWhateverWasAskedBefore) {
  std::mt19937 random(7);
  for (int round = 0; round < 50; ++round) {
    std::vector<std::string> lines;
    for (char item = 'A'; item < 'F'; ++item) {
      for (auto period = 1 + random() % 9; period > 0; --period) {
        lines.push_back(std::string(1, item) + " P" + std::to_string(period));
      }
    }
    FormulaTable table("Item:String Period:Period", "P1 P2 P3 P4 P5 P6 P7 P8 P9", lines);
    for (int question = 0; question < 30; ++question) {
      const std::size_t tuple = random() % lines.size();
      const Series expected = walkedSeries(table.table, tuple);
      const Series series = seriesOf(table.context, tuple);
      ASSERT_EQ(series.first, expected.first);
      ASSERT_EQ(series.last, expected.last);
    }
  }
}

}  // namespace
}  // namespace vrel
