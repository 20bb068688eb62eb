#include "model/table_dump.h"

#include <gtest/gtest.h>

#include "support/tables.h"

namespace vrel {
namespace {

std::string dumped(const Table& table, const FormatSettings& settings = {}) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  dumpTable(table, settings, output);
  output.flush();
  return text;
}

FormatSettings withPrecision(int precision) {
  FormatSettings settings;
  settings.precision = precision;
  return settings;
}

TEST(DumpTable, WritesQuotedNamesAndATupleALineInTableOrder) {
  const Table table = test::tableOf("Item:String Month:Period Demand:Number Active:Boolean",
                                    "Jan Feb", {"Nut Feb 1234.5 y", "Bolt Jan -7 n"});
  EXPECT_EQ(dumped(table, withPrecision(2)),
            "\"Item\"\t\"Month\"\t\"Demand\"\t\"Active\"\n"
            "\"Nut\"\tFeb\t1,234.50\tYes\n"
            "\"Bolt\"\tJan\t-7.00\tNo\n");
}

TEST(DumpTable, NumbersFollowTheSettings) {
  const Table table = test::tableOf("Demand:Number", "x", {"0", "1234567", "*", "undefined"});
  EXPECT_EQ(dumped(table), "\"Demand\"\n0.0000000000\n1,234,567.0000000000\n*\nundefined\n");
  FormatSettings settings = withPrecision(0);
  settings.thousandsSeparators = false;
  settings.largeNumberStar = false;
  settings.zeroUnderscore = true;
  EXPECT_EQ(dumped(table, settings), "\"Demand\"\n_\n1234567\n100000000000000000000\nundefined\n");
}

TEST(DumpTable, DatesStandInQuotes) {
  Table table = test::tableOf("Day:Date", "x", {"5-Aug-2014", "6-Aug-2014"});
  settleTypes(table);
  ASSERT_EQ(table.fields[0].type, FieldType::Date);
  FormatSettings settings;
  settings.dateFormat = "%D";
  EXPECT_EQ(dumped(table, settings), "\"Day\"\n\"08/05/14\"\n\"08/06/14\"\n");
  settings.dateFormat = "%d-%b-%Y";
  EXPECT_EQ(dumped(table, settings), "\"Day\"\n\"05-Aug-2014\"\n\"06-Aug-2014\"\n");
}

TEST(DumpTable, EmptyStringsAreAPairOfQuotes) {
  const Table table = test::tableOf("Item:String Code:String", "x", {"\"\"", "Nut \"\""});
  EXPECT_EQ(dumped(table), "\"Item\"\t\"Code\"\n\"\"\t\"\"\n\"Nut\"\t\"\"\n");
}

TEST(DumpTable, ATableWithoutTuplesIsItsNames) {
  EXPECT_EQ(dumped(test::tableOf("Item:String Demand:Number", "x", {})), "\"Item\"\t\"Demand\"\n");
}

TEST(DumpTable, ATableWithoutFieldsIsAnEmptyLine) {
  EXPECT_EQ(dumped(Table{}), "\n");
}

TEST(DumpTable, ManyTuplesAreWrittenWhole) {
  std::vector<std::string> lines;
  std::string expected = "\"Item\"\t\"Demand\"\n";
  for (int i = 0; i < 30000; ++i) {
    lines.push_back("Item" + std::to_string(i) + " " + std::to_string(i % 1000));
    expected += "\"Item" + std::to_string(i) + "\"\t" + std::to_string(i % 1000) + ".0\n";
  }
  EXPECT_EQ(dumped(test::tableOf("Item:String Demand:Number", "x", lines), withPrecision(1)),
            expected);
}

}  // namespace
}  // namespace vrel
