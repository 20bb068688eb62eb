#include "expr/colours.h"

#include <gtest/gtest.h>

#include "expr/builtins.h"
#include "support/formulas.h"

namespace vrel {
namespace {

using test::evaluated;
using test::parsed;
using test::textOf;
using test::treeOf;

TEST(Colours, StandInAFixedOrder) {
  std::vector<std::string> rows;
  for (const Colour& colour : kColours) {
    rows.push_back(std::string(colour.formulaName) + " " + std::string(colour.name));
  }
  EXPECT_EQ(rows,
            (std::vector<std::string>{"BLACK Black", "RED Red", "PINK hot pink", "ORANGE Orange",
                                      "GREEN SpringGreen", "BLUE Blue", "YELLOW yellow",
                                      "VIOLET Violet", "BACKGROUND Background"}));
}

TEST(Colours, FoldToTheirPlaces) {
  EXPECT_EQ(parsed("BLACK()"), "0");
  EXPECT_EQ(parsed("RED()"), "1");
  EXPECT_EQ(parsed("PINK()"), "2");
  EXPECT_EQ(parsed("ORANGE()"), "3");
  EXPECT_EQ(parsed("GREEN()"), "4");
  EXPECT_EQ(parsed("BLUE()"), "5");
  EXPECT_EQ(parsed("YELLOW()"), "6");
  EXPECT_EQ(parsed("VIOLET()"), "7");
  EXPECT_EQ(parsed("BACKGROUND()"), "8");
}

TEST(Colours, TakeNoArguments) {
  EXPECT_EQ(parsed("BLUE(1)"), "error 3 at 0");
  EXPECT_EQ(test::allFunctions().find("BACKGROUND")->usage, "()");
}

TEST(Colours, LeaveTheOtherColourNumbersAsTheyAre) {
  EXPECT_EQ(parsed("GRAY()"), "(GRAY)");
  EXPECT_EQ(evaluated("GRAY()"), "1");
  EXPECT_EQ(evaluated("WHITE()"), "11");
  EXPECT_EQ(evaluated("SELECT()"), "2");
  EXPECT_EQ(evaluated("DEFAULT()"), "0");
}

std::string withoutColours(std::string_view text) {
  FunctionRegistry functions;
  addBuiltins(functions);
  const ParseResult result = parseExpression(text, functions);
  return result.expression ? treeOf(*result.expression) + " " + textOf(evaluate(*result.expression))
                           : "error";
}

TEST(Colours, ReplaceTheNumbersThatTheirNamesHaveWithoutThem) {
  EXPECT_EQ(withoutColours("BLACK()"), "(BLACK) 7");
  EXPECT_EQ(withoutColours("RED()"), "(RED) 4");
  EXPECT_EQ(withoutColours("PINK()"), "(PINK) 9");
  EXPECT_EQ(withoutColours("ORANGE()"), "(ORANGE) 8");
  EXPECT_EQ(withoutColours("GREEN()"), "(GREEN) 6");
  EXPECT_EQ(withoutColours("BLUE()"), "(BLUE) 5");
  EXPECT_EQ(withoutColours("YELLOW()"), "(YELLOW) 3");
  EXPECT_EQ(withoutColours("VIOLET()"), "(VIOLET) 10");
  EXPECT_EQ(withoutColours("GRAY()"), "(GRAY) 1");
  EXPECT_EQ(withoutColours("WHITE()"), "(WHITE) 11");
  EXPECT_EQ(withoutColours("BACKGROUND()"), "error");
}

}  // namespace
}  // namespace vrel
