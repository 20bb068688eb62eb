#include "model/table_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "model/key_ranks.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::tableOf;
using test::tuplesOf;
using Lines = std::vector<std::string>;

TEST(SortTuples, KeysInColumnOrderDecideAndTheDateColumnComesLast) {
  Table table = tableOf("P:Period Item:String Place:String N:Number", "W2 W1",
                        {"W1 b x 1", "W2 b x 2", "W1 a y 3", "W2 a y 4", "W1 a x 5"});
  sortTuples(table);
  EXPECT_EQ(tuplesOf(table), (Lines{"W1 a x 5", "W2 a y 4", "W1 a y 3", "W2 b x 2", "W1 b x 1"}));
  EXPECT_EQ(table.groupKeys, (std::vector<int>{1, 2}));
  EXPECT_EQ(table.sortKeys, (std::vector<int>{1, 2, 0}));
}

TEST(SortTuples, TextsSortByUnsignedBytes) {
  Table table = tableOf("A:String N:Number", "p", {"\xc3\xa4 1", "a 2", "Z 3", "aa 4", "a! 5"});
  sortTuples(table);
  EXPECT_EQ(tuplesOf(table), (Lines{"Z 3", "a 2", "a! 5", "aa 4", "\xc3\xa4 1"}));
}

TEST(SortTuples, LongTextsThatDifferLateSortRight) {
  Table table = tableOf("A:String", "p", {"commonprefix9", "commonprefix10", "commonprefi", "b"});
  sortTuples(table);
  EXPECT_EQ(tuplesOf(table), (Lines{"b", "commonprefi", "commonprefix10", "commonprefix9"}));
}

TEST(SortTuples, WithoutADateColumnTheFirstFieldTakesItsPlace) {
  Table table = tableOf("A:String B:String", "p", {"a 2", "b 1"});
  EXPECT_EQ(table.dateColumn, -1);
  sortTuples(table);
  EXPECT_EQ(table.dateColumn, 0);
  EXPECT_EQ(table.sortKeys, (std::vector<int>{1, 0}));
  EXPECT_EQ(tuplesOf(table), (Lines{"b 1", "a 2"}));
}

TEST(SortTuples, AFieldOfTypeDateBecomesTheDateColumn) {
  Table table = tableOf("Day:String Item:String P:Period", "W1 W2",
                        {"1/2/2014 a W2", "1/1/2014 a W1", "1/1/2014 b W1"});
  settleTypes(table);
  ASSERT_EQ(table.fields[0].type, FieldType::Date);
  sortTuples(table);
  EXPECT_EQ(table.dateColumn, 0);
  EXPECT_EQ(table.sortKeys, (std::vector<int>{1, 2, 0}));
}

TEST(SortTuples, NotesMoveWithTheirTuples) {
  Table table = tableOf("A:String N:Number", "p", {});
  table = test::tableFrom(
      "FieldNames:\tA\tN\t\nFieldTypes:\tString\tNumber\t\nPeriodValues:\tp\t\n"
      "b\t1\nc\t2\t### nc,n2\na\t3\t### na,n3\n");
  sortTuples(table);
  EXPECT_EQ(tuplesOf(table), (Lines{"a 3", "b 1", "c 2"}));
  EXPECT_EQ(noteOf(table, 0, 1), "n3");
  EXPECT_EQ(noteOf(table, 1, 0), "");
  EXPECT_EQ(noteOf(table, 2, 0), "nc");
}

TEST(SortTuples, AMissingTextSortsLikeTheEmptyText) {
  Table table = tableOf("A:String B:String", "p", {"x b", "x", "x a"});
  sortTuples(table);
  EXPECT_EQ(tuplesOf(table), (Lines{"x ", "x a", "x b"}));
}

TEST(SortTuples, ComputesTheLengthsOfPeriodsWithinEachSeries) {
  Table table = tableOf("Item:String Day:String", "p",
                        {"a 1/1/2014", "a 1/8/2014", "a 1/22/2014", "b 1/1/2014", "b 3/1/2014"});
  settleTypes(table);
  sortTuples(table);
  const std::int64_t first = table.cell(0, 1).time;
  const std::int64_t week2 = table.cell(1, 1).time;
  EXPECT_EQ(computedLength(table.periodLengths, first, "days"), 7.0) << "the first one stays";
  EXPECT_EQ(computedLength(table.periodLengths, week2, "weeks"), 2.0);
  EXPECT_EQ(computedLength(table.periodLengths, week2, "months"), 2.0 / 4.3);
  EXPECT_EQ(computedLength(table.periodLengths, week2, "years"), std::nullopt);
  EXPECT_EQ(computedLength(table.periodLengths, table.cell(2, 1).time, "days"), std::nullopt)
      << "the last period of a series has no length";
}

TEST(SortTuples, ComputesTheLengthsAnewWhenTuplesWereDropped) {
  Table table = tableOf("Item:String Day:String N:Number", "p",
                        {"a 1/1/2014 1", "a 1/8/2014 2", "a 1/8/2014 3", "a 1/22/2014 4"});
  settleTypes(table);
  sortTuples(table);
  const std::int64_t second = table.cell(1, 1).time;
  EXPECT_EQ(computedLength(table.periodLengths, second, "days"), 0.0);
  removeDuplicateKeys(table, table.sortKeys);
  sortTuples(table);
  EXPECT_EQ(computedLength(table.periodLengths, second, "days"), 14.0);
}

TEST(SortByKeys, OnlyTheGivenFieldsDecideAndEqualTuplesKeepTheirOrder) {
  Table table = tableOf("A:String B:String N:Number", "p", {"b y 1", "a y 2", "b x 3", "a x 4"});
  const std::vector<int> keys = {kNoField, 1};
  sortByKeys(table, keys);
  EXPECT_EQ(tuplesOf(table), (Lines{"b x 3", "a x 4", "b y 1", "a y 2"}));
}

TEST(SortByKeys, NumbersBooleansAndDatesSortByValue) {
  Table table =
      tableOf("N:Number B:Boolean D:String", "p",
              {"-5 yes 1/1/2014", "1e20 no 2/1/2013", "-0 yes 1/1/1960", "0 no 1/1/2014"});
  settleTypes(table);
  sortByKeys(table, std::vector<int>{0, 1});
  EXPECT_EQ(tuplesOf(table)[0].substr(0, 6), "-5 Yes");
  EXPECT_EQ(tuplesOf(table)[1].substr(0, 4), "0 No") << "both zeros are one value";
  sortByKeys(table, std::vector<int>{2});
  EXPECT_EQ(tuplesOf(table)[0].substr(0, 6), "-0 Yes");
  sortByKeys(table, std::vector<int>{1, 0});
  EXPECT_EQ(tuplesOf(table)[0].substr(0, 4), "0 No");
}

TEST(SortByKeys, AgreesWithComparingValues) {
  std::mt19937 random(1);
  std::vector<std::string> lines;
  for (int i = 0; i < 3000; ++i) {
    std::string line;
    for (int k = 0; k < 5; ++k) {
      line += "t" + std::to_string(random() % 700) + " ";
    }
    lines.push_back(line + std::to_string(random() % 5000));
  }
  Table table = tableOf("A:String B:String C:String D:String E:String N:Number", "p", lines);
  const std::vector<int> keys = {4, 1, 5, 0, 2, 3};
  sortByKeys(table, keys);
  for (std::size_t i = 0; i + 1 < table.tupleCount; ++i) {
    ASSERT_LE(compareTuples(table, table.tuple(i), table.tuple(i + 1), keys), 0) << i;
  }
  EXPECT_EQ(table.tupleCount, lines.size());
}

TEST(FindTuple, FindsEveryTupleByItsKeysAndNothingElse) {
  Table table = tableOf("A:String N:Number P:Period", "W1 W2 W3",
                        {"c 1 W1", "a 2 W3", "a 3 W1", "b 4 W2", "c 5 W3"});
  sortTuples(table);
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    EXPECT_EQ(findTuple(table, table.tuple(i), table.sortKeys), i);
  }
  std::vector<Cell> wanted(table.tuple(0), table.tuple(0) + 3);
  wanted[2].period = 1;
  EXPECT_EQ(findTuple(table, wanted.data(), table.sortKeys), std::nullopt);
  wanted[0].text = table.fields[0].texts.intern("zz");
  EXPECT_EQ(findTuple(table, wanted.data(), table.sortKeys), std::nullopt);
}

TEST(FindTuple, AnEmptyTableHasNoTuple) {
  Table table = tableOf("A:String", "p", {});
  sortTuples(table);
  const Cell wanted = emptyCell();
  EXPECT_EQ(findTuple(table, &wanted, table.sortKeys), std::nullopt);
}

TEST(RemoveDuplicateKeys, KeepsTheFirstTupleOfEachRun) {
  Table table =
      tableOf("A:String B:String N:Number", "p", {"b x 1", "a x 2", "b x 3", "a y 4", "a x 5"});
  EXPECT_FALSE(removeDuplicateKeys(table, std::vector<int>{0, 1}));
  EXPECT_EQ(tuplesOf(table), (Lines{"a x 2", "a y 4", "b x 1"}));
  EXPECT_TRUE(table.aggregated);
}

TEST(RemoveDuplicateKeys, WithoutDuplicatesOnlySorts) {
  Table table = tableOf("A:String N:Number", "p", {"b 1", "a 2"});
  EXPECT_TRUE(removeDuplicateKeys(table, std::vector<int>{0}));
  EXPECT_EQ(tuplesOf(table), (Lines{"a 2", "b 1"}));
  EXPECT_FALSE(table.aggregated);
}

TEST(RemoveDuplicateKeys, WithoutKeysOneTupleStays) {
  Table table = tableOf("A:String N:Number", "p", {"b 1", "a 2"});
  EXPECT_FALSE(removeDuplicateKeys(table, std::vector<int>{}));
  EXPECT_EQ(tuplesOf(table), Lines{"b 1"});
}

TEST(GroupTuples, GroupsAreTheDistinctCombinationsInOrder) {
  const Table table = tableOf("A:String B:String", "p", {"b x", "a y", "b x", "a x"});
  const KeyGroups groups = groupTuples(table, std::vector<int>{0, 1});
  EXPECT_EQ(groups.groupOf, (std::vector<std::uint32_t>{2, 1, 2, 0}));
  ASSERT_EQ(groups.size(), 3U);
  EXPECT_EQ(groups.representative[0], 3U);
  EXPECT_EQ(groups.representative[1], 1U);
}

TEST(GroupTuples, TuplesThatAreLeftOutHaveNoGroup) {
  const Table table = tableOf("A:String", "p", {"c", "a", "b"});
  const KeyGroups groups = groupTuples(table, std::vector<int>{0}, {true, false, true});
  EXPECT_EQ(groups.groupOf, (std::vector<std::uint32_t>{1, kNoGroup, 0}));
}

TEST(GroupTuples, WithoutFieldsThereIsOneGroup) {
  const Table table = tableOf("A:String", "p", {"c", "a"});
  EXPECT_EQ(groupTuples(table, {}).size(), 1U);
  EXPECT_EQ(groupTuples(table, {}, {false, false}).size(), 0U);
  EXPECT_EQ(groupTuples(tableOf("A:String", "p", {}), {}).size(), 0U);
}

TEST(GroupTuples, ManyWideKeysAreStillToldApart) {
  std::vector<std::string> lines;
  std::string fields;
  for (int k = 0; k < 6; ++k) {
    fields += "K" + std::to_string(k) + ":String ";
  }
  for (int i = 0; i < 2000; ++i) {
    std::string line;
    for (int k = 0; k < 6; ++k) {
      line += "v" + std::to_string((i * (k + 3)) % 1999) + " ";
    }
    lines.push_back(line);
  }
  const Table table = tableOf(fields, "p", lines);
  EXPECT_EQ(groupTuples(table, std::vector<int>{0, 1, 2, 3, 4, 5}).size(), 1999U);
}

}  // namespace
}  // namespace vrel
