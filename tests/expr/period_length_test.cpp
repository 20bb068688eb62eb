#include "expr/period_length.h"

#include <gtest/gtest.h>

#include "support/formula_table.h"

namespace vrel {
namespace {

using test::FormulaTable;

// Tuples of one item, dated in this order.
FormulaTable dated(const std::vector<std::string>& dates) {
  std::vector<std::string> lines;
  for (const std::string& date : dates) {
    lines.push_back("A " + date);
  }
  return FormulaTable("Item:String Start:Date", "-", lines);
}

double length(FormulaTable& table, std::size_t tuple, std::string_view unit) {
  const TimeUnit* const known = findTimeUnit(table.table, unit);
  return known == nullptr ? -1 : periodLength(table.context, tuple, *known);
}

void state(FormulaTable& table, std::string_view period, std::string_view unit, double length) {
  addStatedLength(table.table.periodLengths, period, unit, length);
}

TEST(TimeUnit, IsKnownByItsFirstLetter) {
  const FormulaTable table = dated({"1/5/2026"});
  EXPECT_EQ(findTimeUnit(table.table, "d")->name, "days");
  EXPECT_EQ(findTimeUnit(table.table, "dozen")->name, "days");
  EXPECT_EQ(findTimeUnit(table.table, "weeks")->name, "weeks");
  EXPECT_EQ(findTimeUnit(table.table, "m")->name, "months");
  EXPECT_EQ(findTimeUnit(table.table, "hours")->name, "hours");
}

TEST(TimeUnit, IsNoOtherWord) {
  const FormulaTable table = dated({"1/5/2026"});
  for (const std::string_view word : {"", "D", "Weeks", "M", "y", " days", "#d"}) {
    EXPECT_EQ(findTimeUnit(table.table, word), nullptr) << word;
  }
}

TEST(TimeUnit, IsNotHoursForPeriodsThatAreNoDates) {
  const FormulaTable named("Item:String Period:Period", "P1", {"A P1"});
  EXPECT_EQ(findTimeUnit(named.table, "h"), nullptr);
  EXPECT_NE(findTimeUnit(named.table, "d"), nullptr);
  const FormulaTable texts("Item:String Qty:Number", "-", {"A 1"});
  EXPECT_EQ(findTimeUnit(texts.table, "h"), nullptr);
}

TEST(PeriodLength, OfANamedPeriodIsTheUsualOne) {
  FormulaTable table("Item:String Period:Period", "P1 P2", {"A P1", "A P2"});
  state(table, "P2", "days", 7);
  EXPECT_EQ(length(table, 1, "d"), 20);
  EXPECT_EQ(length(table, 1, "w"), 4);
  EXPECT_EQ(length(table, 1, "m"), 1);
}

TEST(PeriodLength, OfATextIsTheStatedOneElseTheUsualOne) {
  FormulaTable table("Item:String Qty:Number", "-", {"W1 1", "W2 1"});
  ASSERT_EQ(table.table.dateColumn, 0);
  state(table, "W2", "days", 7);
  state(table, "W2", "weeks", 1.5);
  EXPECT_EQ(length(table, 0, "d"), 20);
  EXPECT_EQ(length(table, 1, "d"), 7);
  EXPECT_EQ(length(table, 1, "w"), 1.5);
  EXPECT_EQ(length(table, 1, "m"), 1) << "nothing is stated in months";
}

TEST(PeriodLength, OfANumberIsTheUsualOne) {
  FormulaTable table("Qty:Number", "-", {"7"});
  state(table, "7", "days", 3);
  EXPECT_EQ(length(table, 0, "d"), 20);
  EXPECT_EQ(length(table, 0, "w"), 4);
}

TEST(PeriodLength, OfADateIsTheTimeSinceTheTupleBefore) {
  FormulaTable table = dated({"1/5/2026", "1/12/2026", "1/26/2026:12:00"});
  EXPECT_EQ(length(table, 1, "d"), 7);
  EXPECT_EQ(length(table, 1, "h"), 168);
  EXPECT_EQ(length(table, 1, "w"), 1);
  EXPECT_EQ(length(table, 2, "d"), 14.5);
  EXPECT_EQ(length(table, 2, "h"), 348);
  EXPECT_DOUBLE_EQ(length(table, 2, "w"), 14.5 / 7);
}

TEST(PeriodLength, OfTheTablesFirstDateIsTheUsualOne) {
  FormulaTable table = dated({"1/5/2026", "1/12/2026"});
  EXPECT_EQ(length(table, 0, "d"), 20);
  EXPECT_EQ(length(table, 0, "h"), 20);
  EXPECT_EQ(length(table, 0, "w"), 4);
  EXPECT_EQ(length(table, 0, "m"), 1);
}

TEST(PeriodLength, OfADateThatIsNotLaterThanTheTupleBeforeIsTheUsualOne) {
  FormulaTable table("Item:String Start:Date", "-",
                     {"A 1/5/2026", "A 1/12/2026", "B 1/5/2026", "C 1/5/2026"});
  EXPECT_EQ(length(table, 2, "d"), 20) << "the date lies before that of the other item";
  EXPECT_EQ(length(table, 3, "w"), 4) << "the dates are the same";
}

TEST(PeriodLength, OfASeriesFirstDateIsTheTimeSinceALastDateBeforeIt) {
  FormulaTable table("Item:String Start:Date", "-", {"A 1/5/2026", "B 1/15/2026"});
  EXPECT_EQ(length(table, 1, "d"), 10);
}

TEST(PeriodLength, InMonthsIsACalendarMonthBetweenEqualDaysOfTheMonth) {
  FormulaTable table = dated({"1/31/2026", "3/31/2026", "3/31/2027"});
  EXPECT_EQ(length(table, 1, "m"), 2);
  EXPECT_EQ(length(table, 2, "m"), 12);
}

TEST(PeriodLength, InMonthsIsNothingBetweenTwoTimesOfOneDay) {
  FormulaTable table = dated({"1/5/2026", "1/5/2026:18:00"});
  EXPECT_EQ(length(table, 1, "m"), 0);
  EXPECT_EQ(length(table, 1, "d"), 0.75);
}

TEST(PeriodLength, InMonthsCountsTwentyEightDaysOtherwise) {
  FormulaTable table = dated({"1/5/2026", "1/12/2026", "2/9/2026"});
  EXPECT_EQ(length(table, 1, "m"), 0.25);
  EXPECT_EQ(length(table, 2, "m"), 1);
}

TEST(PeriodLength, OfADateIsTheStatedOneFirst) {
  FormulaTable table = dated({"1/5/2026", "1/12/2026"});
  state(table, "5-Jan-2026", "weeks", 2);
  state(table, "12-Jan-2026", "days", 5);
  EXPECT_EQ(length(table, 0, "w"), 2);
  EXPECT_EQ(length(table, 0, "d"), 20) << "nothing is stated in days";
  EXPECT_EQ(length(table, 1, "d"), 5);
  EXPECT_EQ(length(table, 1, "w"), 1) << "nothing is stated in weeks";
  EXPECT_EQ(length(table, 1, "h"), 168) << "no file states hours";
}

TEST(PeriodLength, OfADateMayBeStatedAsNothing) {
  FormulaTable table = dated({"1/5/2026", "1/12/2026"});
  state(table, "12-Jan-2026", "days", 0);
  EXPECT_EQ(length(table, 1, "d"), 0);
}

}  // namespace
}  // namespace vrel
