// What is measured must be what is meant: tables as announced, and a floor that reads all of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "floor_reader.h"
#include "model/table_reader.h"
#include "table_generator.h"

namespace vrel::bench {
namespace {

std::string plan(const PlanShape& shape) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  writePlan(shape, output);
  output.flush();
  return text;
}

std::string sparse(const SparseShape& shape) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  writeSparse(shape, output);
  output.flush();
  return text;
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> result;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    result.push_back(line);
  }
  return result;
}

Table loaded(const std::string& text) {
  Table table;
  TextInput input = TextInput::fromMemory(text);
  EXPECT_TRUE(loadFromFile(table, input));
  return table;
}

// The library's answer to the floor's checksum.
double checksumOf(const Table& table) {
  double sum = 0;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    for (int field = 3; field < 7; ++field) {
      sum += numberOf(table.cell(tuple, field));
    }
    sum += table.cell(tuple, 7).boolean ? 1 : 0;
  }
  for (int field = 0; field < 2; ++field) {
    sum += table.field(field).texts.size() - 1;
  }
  return sum + table.field(2).periodNames.size();
}

PlanShape smallShape() {
  PlanShape shape;
  shape.items = 3;
  shape.locations = 2;
  shape.periods = 2;
  return shape;
}

TEST(GeneratedPlan, HasHeadersThatEndWithATab) {
  const std::vector<std::string> text = lines(plan(smallShape()));
  EXPECT_EQ(text[0], "FieldNames:Item\tLocation\tPeriod\tDemand\tSupply\tStock\tPrice\tActive\t");
  EXPECT_EQ(text[1],
            "FieldTypes:String\tString\tPeriod\tNumber\tNumber\tNumber\tNumber\tBoolean\t");
  EXPECT_EQ(text[2], "PeriodValues:2024-W01\t2024-W02\t");
}

TEST(GeneratedPlan, HasOneLineForEveryItemLocationAndPeriodInShuffledOrder) {
  std::vector<std::string> text = lines(plan(smallShape()));
  std::vector<std::string> keys;
  for (std::size_t i = 3; i < text.size(); ++i) {
    keys.push_back(text[i].substr(0, 20));
  }
  EXPECT_FALSE(std::is_sorted(keys.begin(), keys.end()));
  std::sort(keys.begin(), keys.end());
  EXPECT_EQ(keys,
            (std::vector<std::string>{
                "I000001\tL01\t2024-W01", "I000001\tL01\t2024-W02", "I000001\tL02\t2024-W01",
                "I000001\tL02\t2024-W02", "I000002\tL01\t2024-W01", "I000002\tL01\t2024-W02",
                "I000002\tL02\t2024-W01", "I000002\tL02\t2024-W02", "I000003\tL01\t2024-W01",
                "I000003\tL01\t2024-W02", "I000003\tL02\t2024-W01", "I000003\tL02\t2024-W02"}));
}

TEST(GeneratedPlan, IsTheSameEveryTimeAndAnotherOneForAnotherSeed) {
  PlanShape other = smallShape();
  other.seed = 2;
  EXPECT_EQ(plan(smallShape()), plan(smallShape()));
  EXPECT_NE(plan(smallShape()), plan(other));
}

TEST(GeneratedPlan, TakesAbout54BytesATuple) {
  PlanShape shape;
  shape.items = itemsForTuples(24'000);
  const std::size_t size = plan(shape).size();
  EXPECT_EQ(shape.items, 100U);
  EXPECT_GT(size, 53U * 24'000U);
  EXPECT_LT(size, 56U * 24'000U);
}

TEST(GeneratedPlan, GivesEveryValueANoteWhenAsked) {
  PlanShape shape = smallShape();
  shape.notes = true;
  const Table table = loaded(plan(shape));
  std::set<std::string> notes;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    for (int field = 0; field < 8; ++field) {
      notes.insert(std::string(noteOf(table, tuple, field)));
    }
  }
  EXPECT_EQ(notes.size(), 12U * 8U);
  EXPECT_TRUE(notes.contains("r0.0"));
  EXPECT_TRUE(notes.contains("r11.7"));
}

TEST(GeneratedSparseTable, HasItsTuplesInDistinctCells) {
  SparseShape shape;
  shape.rows = 50;
  shape.columns = 30;
  shape.tuples = 200;
  const std::vector<std::string> text = lines(sparse(shape));
  std::set<std::string> items;
  std::set<std::string> columns;
  std::set<std::string> cells;
  for (std::size_t i = 3; i < text.size(); ++i) {
    items.insert(text[i].substr(0, 7));
    columns.insert(text[i].substr(12, 6));
    cells.insert(text[i].substr(0, 18));
  }
  EXPECT_EQ(items.size(), 50U);
  EXPECT_EQ(columns.size(), 30U);
  EXPECT_EQ(cells.size(), 200U);
}

TEST(Floor, ReadsTheSameTableAsTheLibrary) {
  PlanShape shape;
  shape.items = 40;
  const std::string text = plan(shape);
  const FloorTable table = readFloor(text);
  EXPECT_EQ(table.rows, 40U * 10U * 24U);
  EXPECT_DOUBLE_EQ(checksum(table), checksumOf(loaded(text)));
}

TEST(Floor, SkipsNotes) {
  PlanShape shape = smallShape();
  const double plain = checksum(readFloor(plan(shape)));
  shape.notes = true;
  EXPECT_EQ(readFloor(plan(shape)).rows, 12U);
  EXPECT_DOUBLE_EQ(checksum(readFloor(plan(shape))), plain);
}

}  // namespace
}  // namespace vrel::bench
