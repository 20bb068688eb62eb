// Formulas that nest deeply or go on for long: each is parsed, compiled and evaluated, which must
// cost time by its length and no more of the process's stack than a short one.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/formulas.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::evaluated;
using test::FormulaBench;

std::string repeated(std::string_view text, int times) {
  std::string all;
  all.reserve(text.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; ++i) {
    all += text;
  }
  return all;
}

// The innermost text between so many beginnings and as many ends.
std::string nested(std::string_view begin, std::string_view innermost, std::string_view end,
                   int depth) {
  return repeated(begin, depth) + std::string(innermost) + repeated(end, depth);
}

constexpr int kNesting = 50'000;

TEST(DeepFormula, OfParentheses) {
  EXPECT_EQ(evaluated(nested("(", "7", ")", 200'000)), "7");
}

TEST(DeepFormula, OfMinuses) {
  EXPECT_EQ(evaluated(repeated("-", 200'000) + "3"), "3");
  EXPECT_EQ(evaluated(repeated("-", 200'001) + "3"), "-3");
  EXPECT_EQ(evaluated(repeated("-", 200'001) + "(3)"), "-3");
  EXPECT_EQ(evaluated(repeated("-+", 200'001) + "(3)"), "-3");
  EXPECT_EQ(evaluated(nested("-(", "3", ")", 200'001)), "-3");
}

TEST(DeepFormula, OfOperatorsOnTheLeft) {
  EXPECT_EQ(evaluated("0" + repeated("+1", 1'000'000)), "1000000");
  EXPECT_EQ(evaluated(nested("(", "0", "+1)*1", 200'000)), "200000");
}

TEST(DeepFormula, OfOperatorsOnTheRight) {
  EXPECT_EQ(evaluated(nested("1+(", "0", ")", 200'000)), "200000");
  EXPECT_EQ(evaluated(nested("ABS(1)+(", "0", ")", 200'000)), "200000");
  EXPECT_EQ(evaluated(nested("1/(", "2", ")", 200'000)), "2");
  EXPECT_EQ(evaluated(nested("ABS(1)/(", "2", ")", 200'000)), "2");
}

TEST(DeepFormula, OfLogic) {
  EXPECT_EQ(evaluated("1" + repeated(" AND 1", 200'000) + " XOR 1"), "0");
  EXPECT_EQ(evaluated(nested("(", "1", "<2)", 200'000)), "1");
}

TEST(DeepFormula, OfCalls) {
  EXPECT_EQ(evaluated(nested("ABS(", "-3", ")", kNesting)), "3");
  EXPECT_EQ(evaluated(nested("POWER(", "3", ",1)", kNesting)), "3");
  EXPECT_EQ(evaluated(nested("POWER(1,", "3", ")", kNesting)), "1");
}

TEST(DeepFormula, OfFolds) {
  EXPECT_EQ(evaluated(nested("SUM(", "0", ",1)", kNesting)), "50000");
  EXPECT_EQ(evaluated(nested("SUM(1,", "0", ",1)", kNesting)), "100000");
  EXPECT_EQ(evaluated(nested("MAX(1,2,", "3", ")", kNesting)), "3");
  EXPECT_EQ(evaluated(nested("AVG(4,", "4", ")", kNesting)), "4");
}

TEST(DeepFormula, OfIfInEachOfItsPlaces) {
  EXPECT_EQ(evaluated(nested("IF(", "5", ",1,0)", kNesting)), "1");
  EXPECT_EQ(evaluated(nested("IF(1,", "5", ",0)", kNesting)), "5");
  EXPECT_EQ(evaluated(nested("IF(0,0,", "5", ")", kNesting)), "5");
}

TEST(DeepFormula, OfRangeMapInEachOfItsPlaces) {
  EXPECT_EQ(evaluated(nested("RANGEMAP(", "5", ",1,2)", kNesting)), "2");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,", "5", ")", kNesting)), "5");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,", "5", ",2)", kNesting)), "2");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,1,", "5", ")", kNesting)), "5");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,1,2,", "5", ")", kNesting)), "2");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,1,2,", "5", ",3)", kNesting)), "2");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,1,2,3,", "5", ")", kNesting)), "2");
  EXPECT_EQ(evaluated(nested("RANGEMAP(0,1,2,3,4,", "5", ")", kNesting)), "2");
}

TEST(DeepFormula, OverFields) {
  Table table = test::tableOf("Item:String F:Number G:Number Open:Boolean", "W1", {"Bolt 2 3 Yes"});
  FormulaBench bench(table);
  EXPECT_EQ(bench.evaluated("0" + repeated("+F", 200'000)), "400000");
  EXPECT_EQ(bench.evaluated("0" + repeated("+F:1*Open", 100'000)), "200000");
  EXPECT_EQ(bench.evaluated(nested("F+(", "G", ")", 200'000)), "400003");
  EXPECT_EQ(bench.evaluated(nested("Prev(#F,", "G", ")", kNesting)), "3");
}

TEST(DeepFormula, FailsWhereItIsNotComplete) {
  EXPECT_EQ(evaluated(repeated("(", 200'000)), "error 1 at 200000");
  EXPECT_EQ(evaluated(repeated("-", 200'000)), "error 1 at 200000");
  EXPECT_EQ(evaluated(repeated("ABS(", kNesting)), "error 1 at 200000");
  EXPECT_EQ(evaluated(nested("(", "1", ")", 200'000) + ")"), "error 1 at 400001");
}

TEST(DeepFormula, FailsFromItsInnermostPart) {
  EXPECT_EQ(evaluated(nested("1+(", "1/0", ")", 200'000)), "error 102");
  EXPECT_EQ(evaluated(nested("ABS(", "SQRT(-1)", ")", kNesting)), "error 104");
}

}  // namespace
}  // namespace vrel
