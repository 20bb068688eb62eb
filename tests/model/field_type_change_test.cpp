#include "model/field_type_change.h"

#include <gtest/gtest.h>

#include "model/date.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::tableFrom;
using test::tuplesOf;
using Lines = std::vector<std::string>;

// A table with one field of texts.
Table texts(const std::vector<std::string>& values) {
  std::string file = "FieldNames:\tA\t\nFieldTypes:\tString\t\nPeriodValues:\t\n";
  for (const std::string& value : values) {
    file += value + "\n";
  }
  return tableFrom(file);
}

FormatSettings settings(int precision, const std::string& dates = "%Y-%m-%d") {
  FormatSettings format;
  format.precision = precision;
  format.dateFormat = dates;
  return format;
}

// Which of some texts would not be kept, one table for each.
Lines lostAs(FieldType type, const Lines& values) {
  Lines lost;
  for (const std::string& value : values) {
    Table table = texts({"x"});
    table.cell(0, 0) = parseValue(table.field(0), value);
    if (lostValues(table, 0, type, settings(2)).count > 0) {
      lost.push_back(value);
    }
  }
  return lost;
}

Table numbers(const std::vector<double>& values) {
  Table table = texts(Lines(values.size(), "x"));
  table.field(0).type = FieldType::Number;
  for (std::size_t i = 0; i < values.size(); ++i) {
    table.cell(i, 0) = numberCell(values[i]);
  }
  return table;
}

TEST(LostValues, OfTextsAreThoseThatAreNoNumbers) {
  EXPECT_EQ(lostAs(FieldType::Number, {"1200", "1,200", "1,200.50", "-3.25", "0.00001", "0", "0.0",
                                       "*", "undefined", " 5 ", "100000000000000000000"}),
            Lines());
  const Lines wrong = {"abc", "12abc", "", "007", "1,5", "12345678901234567", "inf", "1 2", "Yes"};
  EXPECT_EQ(lostAs(FieldType::Number, wrong), wrong);
}

TEST(LostValues, OfTextsAreThoseThatAreNoYesOrNo) {
  EXPECT_EQ(lostAs(FieldType::Boolean, {"Yes", "no", "TRUE", "f", "N"}), Lines());
  const Lines wrong = {"1", "", "tomato", "0"};
  EXPECT_EQ(lostAs(FieldType::Boolean, wrong), wrong);
}

TEST(LostValues, OfTextsAreThoseThatAreNoDates) {
  EXPECT_EQ(lostAs(FieldType::Date, {"8/5/2014", "5-Aug-2014"}), Lines());
  const Lines wrong = {"soon", "", "13/13/2014"};
  EXPECT_EQ(lostAs(FieldType::Date, wrong), wrong);
}

TEST(LostValues, AreCountedByTupleAndTheFirstIsNamed) {
  const Table table = texts({"7", "abc", "x", "abc", "8"});
  const LostValues lost = lostValues(table, 0, FieldType::Number, settings(0));
  EXPECT_EQ(lost.count, 3U);
  EXPECT_EQ(lost.first, "abc");
  EXPECT_EQ(tuplesOf(table), (Lines{"7", "abc", "x", "abc", "8"})) << "nothing has changed";
  EXPECT_EQ(table.field(0).type, FieldType::String);
}

TEST(LostValues, OfNumbersAreThoseThatShowTooFewDigits) {
  const Table table = numbers({1234.5, 1.25, -3, kUnbounded, 5e20});
  const LostValues lost = lostValues(table, 0, FieldType::String, settings(1));
  EXPECT_EQ(lost.count, 2U) << "1.25 is shown as 1.2, and 5e20 as *";
  EXPECT_EQ(lost.first, "1.2");
  EXPECT_EQ(lostValues(table, 0, FieldType::String, settings(2)).count, 1U);
}

TEST(LostValues, OfUndefinedNumbersAreNoneAsTexts) {
  Table table = numbers({0});
  table.cell(0, 0) = undefinedCell();
  EXPECT_EQ(lostValues(table, 0, FieldType::String, settings(2)).count, 0U);
  EXPECT_EQ(lostValues(table, 0, FieldType::Boolean, settings(2)).count, 1U);
}

TEST(LostValues, OfNumbersAsBooleansAreAllButZero) {
  const LostValues lost = lostValues(numbers({0, 1, 2}), 0, FieldType::Boolean, settings(0));
  EXPECT_EQ(lost.count, 2U);
  EXPECT_EQ(lost.first, "1");
}

TEST(LostValues, OfNumbersAsDatesAreThoseThatAreNoDates) {
  EXPECT_EQ(lostValues(numbers({1200, 0}), 0, FieldType::Date, settings(0)).count, 2U);
}

TEST(LostValues, OfDatesAreTimesThatTheFormatLeavesOut) {
  Table table = texts({"8/5/2014", "8/5/2014 12:30:00"});
  changeType(table, 0, FieldType::Date, settings(0));
  EXPECT_EQ(lostValues(table, 0, FieldType::String, settings(0, "%d-%b-%Y")).count, 1U);
  EXPECT_EQ(lostValues(table, 0, FieldType::String, settings(0, "%m/%d/%Y %H:%M:%S")).count, 0U);
  EXPECT_EQ(lostValues(table, 0, FieldType::String, settings(0, "%Y-%m-%d")).count, 2U)
      << "the year in front is not read as a date again";
  EXPECT_EQ(lostValues(table, 0, FieldType::Number, settings(0)).count, 2U);
}

TEST(LostValues, OfBooleansAreNoneAsTexts) {
  Table table = texts({"Yes", "No"});
  changeType(table, 0, FieldType::Boolean, settings(0));
  EXPECT_EQ(lostValues(table, 0, FieldType::String, settings(0)).count, 0U);
  EXPECT_EQ(lostValues(table, 0, FieldType::Number, settings(0)).count, 1U) << "Yes would be 0";
}

TEST(LostValues, OfTextsAsPeriodsAreThoseThatNameNone) {
  Table table = texts({"W1", "W2", "W3", "W3"});
  table.field(0).periodNames.add("W1");
  table.field(0).periodNames.add("W2");
  const LostValues lost = lostValues(table, 0, FieldType::Period, settings(0));
  EXPECT_EQ(lost.count, 2U);
  EXPECT_EQ(lost.first, "W3");
}

TEST(LostValues, OfDatesAsPeriodsAreThoseWithoutAName) {
  Table table = texts({"8/5/2014", "8/6/2014"});
  changeType(table, 0, FieldType::Date, settings(0));
  table.field(0).periodNames.add("5-Aug-2014");
  EXPECT_EQ(lostValues(table, 0, FieldType::Period, settings(0)).count, 1U);
}

TEST(LostValues, OfPeriodsAreNoneAsTexts) {
  const Table table = test::tableOf("A:String P:Period", "W1 12", {"a W1", "b 12"});
  EXPECT_EQ(lostValues(table, 1, FieldType::String, settings(0)).count, 0U);
  EXPECT_EQ(lostValues(table, 1, FieldType::Number, settings(0)).count, 1U);
}

TEST(ChangeType, ReadsEachValueFromItsText) {
  Table table = texts({"7", "abc", "1,200"});
  const std::uint64_t arrangement = table.arrangement;
  changeType(table, 0, FieldType::Number, settings(0));
  EXPECT_EQ(table.field(0).type, FieldType::Number);
  EXPECT_EQ(tuplesOf(table), (Lines{"7", "0", "1,200"}));
  EXPECT_NE(table.arrangement, arrangement) << "values that were noted are void";
  EXPECT_TRUE(table.sortedBy.empty());
}

TEST(TakesType, IsForPlainTypesOtherThanItsOwn) {
  FieldDef field;
  field.type = FieldType::String;
  EXPECT_FALSE(takesType(field, FieldType::String));
  EXPECT_FALSE(takesType(field, FieldType::Unset));
  EXPECT_TRUE(takesType(field, FieldType::Date));
  EXPECT_FALSE(takesType(field, FieldType::Period));
  field.periodNames.add("W1");
  EXPECT_TRUE(takesType(field, FieldType::Period));
}

}  // namespace
}  // namespace vrel
