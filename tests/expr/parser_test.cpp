#include "expr/parser.h"

#include <gtest/gtest.h>

#include "support/formulas.h"

namespace vrel {
namespace {

using test::parsed;

TEST(Parser, MakesNodesOfAllKinds) {
  EXPECT_EQ(parsed("1.5"), "1.5");
  EXPECT_EQ(parsed("Demand"), "'Demand'");
  EXPECT_EQ(parsed("ROUND(1)"), "(ROUND 1)");
  EXPECT_EQ(parsed("x + 1", {.variable = true}), "(+ x 1)");
  EXPECT_EQ(parsed("x + 1"), "(+ 'x' 1)");
  EXPECT_EQ(parsed("1+2"), "(+ 1 2)");
  EXPECT_EQ(parsed("1-2"), "(- 1 2)");
  EXPECT_EQ(parsed("1*2"), "(* 1 2)");
  EXPECT_EQ(parsed("1/2"), "(/ 1 2)");
  EXPECT_EQ(parsed("1%2"), "(% 1 2)");
  EXPECT_EQ(parsed("1<2"), "(< 1 2)");
  EXPECT_EQ(parsed("1>2"), "(> 1 2)");
  EXPECT_EQ(parsed("1=2"), "(= 1 2)");
  EXPECT_EQ(parsed("1<=2"), "(L 1 2)");
  EXPECT_EQ(parsed("1>=2"), "(G 1 2)");
  EXPECT_EQ(parsed("1<>2"), "(N 1 2)");
  EXPECT_EQ(parsed("1!=2"), "(N 1 2)");
  EXPECT_EQ(parsed("1 AND 2"), "(& 1 2)");
  EXPECT_EQ(parsed("1 OR 2"), "(| 1 2)");
  EXPECT_EQ(parsed("1 XOR 2"), "(^ 1 2)");
}

TEST(Parser, ReadsOperatorsOfOneLevelFromTheLeft) {
  EXPECT_EQ(parsed("a - b + c - d"), "(- (+ (- 'a' 'b') 'c') 'd')");
  EXPECT_EQ(parsed("a / b * c % d"), "(% (* (/ 'a' 'b') 'c') 'd')");
  EXPECT_EQ(parsed("a OR b AND c"), "(& (| 'a' 'b') 'c')");
  EXPECT_EQ(parsed("a AND b OR c XOR d"), "(^ (| (& 'a' 'b') 'c') 'd')");
}

TEST(Parser, BindsTighterByLevel) {
  EXPECT_EQ(parsed("a + b * c"), "(+ 'a' (* 'b' 'c'))");
  EXPECT_EQ(parsed("a * b + c"), "(+ (* 'a' 'b') 'c')");
  EXPECT_EQ(parsed("a + b < c - d"), "(< (+ 'a' 'b') (- 'c' 'd'))");
  EXPECT_EQ(parsed("a AND b < c"), "(& 'a' (< 'b' 'c'))");
  EXPECT_EQ(parsed("a < b AND c >= d + e * f"), "(& (< 'a' 'b') (G 'c' (+ 'd' (* 'e' 'f'))))");
  EXPECT_EQ(parsed("-a * -b - -c"), "(- (* (- 0 'a') (- 0 'b')) (- 0 'c'))");
}

TEST(Parser, LetsParenthesesGroup) {
  EXPECT_EQ(parsed("(a + b) * c"), "(* (+ 'a' 'b') 'c')");
  EXPECT_EQ(parsed("a - (b - c)"), "(- 'a' (- 'b' 'c'))");
  EXPECT_EQ(parsed("(a < b) < c"), "(< (< 'a' 'b') 'c')");
  EXPECT_EQ(parsed("((3))"), "3");
}

TEST(Parser, NegatesLiteralsInPlaceAndSubtractsAllElseFromZero) {
  EXPECT_EQ(parsed("-3"), "-3");
  EXPECT_EQ(parsed("- 3"), "-3");
  EXPECT_EQ(parsed("--3"), "3");
  EXPECT_EQ(parsed("-(3)"), "(- 0 3)");
  EXPECT_EQ(parsed("-(-3)"), "(- 0 -3)");
  EXPECT_EQ(parsed("-a"), "(- 0 'a')");
  EXPECT_EQ(parsed("--a"), "(- 0 (- 0 'a'))");
  EXPECT_EQ(parsed("-TRUE()"), "(- 0 1)");
  EXPECT_EQ(parsed("-ABS(3)"), "(- 0 (ABS 3))");
  EXPECT_EQ(parsed("-*"), "(- 0 1e+20)");
  EXPECT_EQ(parsed("2-3"), "(- 2 3)");
  EXPECT_EQ(parsed("2--3"), "(- 2 -3)");
  EXPECT_EQ(parsed("-2-3"), "(- -2 3)");
  EXPECT_EQ(parsed("-3*4"), "(* -3 4)");
}

TEST(Parser, DropsAPlusSign) {
  EXPECT_EQ(parsed("+3"), "3");
  EXPECT_EQ(parsed("+a"), "'a'");
  EXPECT_EQ(parsed("++a"), "'a'");
  EXPECT_EQ(parsed("2++3"), "(+ 2 3)");
  EXPECT_EQ(parsed("-+3"), "-3");
}

TEST(Parser, ReadsAStarInAnOperandsPlaceAsUnbounded) {
  EXPECT_EQ(parsed("*"), "1e+20");
  EXPECT_EQ(parsed("***"), "(* 1e+20 1e+20)");
  EXPECT_EQ(parsed("2 * *"), "(* 2 1e+20)");
  EXPECT_EQ(parsed("IF(a, *, b)"), "(IF 'a' 1e+20 'b')");
  EXPECT_EQ(parsed("*<a"), "(< 1e+20 'a')");
}

TEST(Parser, KeepsOffsetsInFieldReferences) {
  EXPECT_EQ(parsed("Demand:-1"), "'Demand:-1'");
  EXPECT_EQ(parsed("'Net Demand:#2' + Demand:"), "(+ 'Net Demand:#2' 'Demand:')");
  EXPECT_EQ(parsed("Demand:-1-1"), "(- 'Demand:-1' 1)");
}

TEST(Parser, TakesBareNamesOfFunctionsForFields) {
  EXPECT_EQ(parsed("TRUE"), "'TRUE'");
  EXPECT_EQ(parsed("BLUE + ROUND"), "(+ 'BLUE' 'ROUND')");
  EXPECT_EQ(parsed("'ROUND'"), "'ROUND'");
}

TEST(Parser, FoldsConstants) {
  EXPECT_EQ(parsed("TRUE() + 1"), "(+ 1 1)");
  EXPECT_EQ(parsed("FALSE()"), "0");
  EXPECT_EQ(parsed("PI( )"), "3.141592653589793");
  EXPECT_EQ(parsed("IF(Demand < 0, RED(), BLUE())"), "(IF (< 'Demand' 0) 1 5)");
}

TEST(Parser, FoldsNoFunctionThatIsNoConstant) {
  EXPECT_EQ(parsed("GRAY()"), "(GRAY)");
  EXPECT_EQ(parsed("RAND()"), "(RAND)");
  EXPECT_EQ(parsed("1 + 2"), "(+ 1 2)");
}

TEST(Parser, ReadsCalls) {
  EXPECT_EQ(parsed("ROUND(a + 1, 2)"), "(ROUND (+ 'a' 1) 2)");
  EXPECT_EQ(parsed("ROUND (a)"), "(ROUND 'a')");
  EXPECT_EQ(parsed("'ROUND'(a)"), "(ROUND 'a')");
  EXPECT_EQ(parsed("SUM(a < b, b AND c, (d))"), "(SUM (< 'a' 'b') (& 'b' 'c') 'd')");
  EXPECT_EQ(parsed("MAX(MIN(1, 2), ABS(ABS(3))) + 4"), "(+ (MAX (MIN 1 2) (ABS (ABS 3))) 4)");
}

TEST(Parser, ReadsTextArguments) {
  EXPECT_EQ(parsed("Prev(#Demand)"), "(Prev #Demand)");
  EXPECT_EQ(parsed("Prev('#Net Demand', 0)"), "(Prev #Net Demand 0)");
  EXPECT_EQ(parsed("SUM(1, #x)"), "(SUM 1 #x)");
  EXPECT_EQ(parsed("SUM(#a, #b, 3)"), "(SUM #a #b 3)");
  EXPECT_EQ(parsed("Assign(#a, b * 2)"), "(Assign #a (* 'b' 2))");
  EXPECT_EQ(parsed("Cover(#m, #a, #b) + 1"), "(+ (Cover #m #a #b) 1)");
}

TEST(Parser, CountsArguments) {
  EXPECT_EQ(parsed("ROUND()"), "error 3 at 0");
  EXPECT_EQ(parsed("1 + ROUND(1, 2, 3)"), "error 3 at 4");
  EXPECT_EQ(parsed("TRUE(1)"), "error 3 at 0");
  EXPECT_EQ(parsed("RAND(#x)"), "error 3 at 0");
  EXPECT_EQ(parsed("SUM(1)"), "error 3 at 0");
  EXPECT_EQ(parsed("SUM(1, Cover(#d, #a))"), "error 3 at 7");
}

// "1, 1, 1" and so on.
std::string arguments(int count, const std::string& each = "1") {
  std::string text = each;
  for (int i = 1; i < count; ++i) {
    text += ", " + each;
  }
  return text;
}

TEST(Parser, TakesAtMost32ExpressionArguments) {
  EXPECT_EQ(parsed("SUM(" + arguments(32) + ")").substr(0, 8), "(SUM 1 1");
  EXPECT_EQ(parsed("SUM(" + arguments(33) + ")"), "error 1 at 101");
  EXPECT_EQ(parsed("SUM(" + arguments(40) + ")"), "error 1 at 101");
  EXPECT_EQ(parsed("ROUND(" + arguments(33) + ")"), "error 1 at 103");
}

TEST(Parser, CountsTextArgumentsForTheFunctionOnly) {
  EXPECT_EQ(parsed("SUM(" + arguments(33, "#a") + ")"), "error 3 at 0");
}

TEST(Parser, RefusesUnknownFunctions) {
  EXPECT_EQ(parsed("Frobnicate(1)"), "error 2 at 0");
  EXPECT_EQ(parsed("1 + round(1)"), "error 2 at 4");
  EXPECT_EQ(parsed("ROUND:1(2)"), "error 2 at 0");
  EXPECT_EQ(parsed("''(1)"), "error 2 at 0");
  EXPECT_EQ(parsed("Frobnicate("), "error 2 at 0");
}

TEST(Parser, RefusesTextArgumentsOutsideOfArgumentLists) {
  EXPECT_EQ(parsed("#Demand"), "error 1 at 0");
  EXPECT_EQ(parsed("1 + '#Demand'"), "error 1 at 4");
  EXPECT_EQ(parsed("ROUND(1 + #x)"), "error 1 at 10");
  EXPECT_EQ(parsed("ROUND((#x))"), "error 1 at 7");
}

struct Malformed {
  std::string_view text;
  std::size_t position;
};

class MalformedFormula : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedFormula, IsASyntaxErrorWhereItGoesWrong) {
  EXPECT_EQ(parsed(GetParam().text), "error 1 at " + std::to_string(GetParam().position));
}

INSTANTIATE_TEST_SUITE_P(Inside, MalformedFormula,
                         testing::Values(Malformed{"", 0},                                      //
                                         Malformed{"  ", 2},                                    //
                                         Malformed{"1 +", 3},                                   //
                                         Malformed{"1 + ", 4},                                  //
                                         Malformed{"+", 1},                                     //
                                         Malformed{"-", 1},                                     //
                                         Malformed{"/ 2", 0},                                   //
                                         Malformed{"1 + / 2", 4},                               //
                                         Malformed{"a AND AND b", 6},                           //
                                         Malformed{"a AND", 5},                                 //
                                         Malformed{"AND", 0},                                   //
                                         Malformed{"a == b", 3},                                //
                                         Malformed{"a =< b", 3},                                //
                                         Malformed{"a => b", 3},                                //
                                         Malformed{"a < = b", 4},                               //
                                         Malformed{"()", 1},                                    //
                                         Malformed{"(1", 2},                                    //
                                         Malformed{"(1 2)", 3},                                 //
                                         Malformed{"(a < b < c)", 7},                           //
                                         Malformed{"ROUND(a < b < c)", 12}, Malformed{")", 0},  //
                                         Malformed{",", 0},                                     //
                                         Malformed{"1.2.3", 3},                                 //
                                         Malformed{"1 + 1.2.3", 7},                             //
                                         Malformed{"!", 0},                                     //
                                         Malformed{"1 + !a", 4},                                //
                                         Malformed{"'a", 0},                                    //
                                         Malformed{"1 + \"a", 4},                               //
                                         Malformed{"ROUND(1", 7},                               //
                                         Malformed{"ROUND(", 6},                                //
                                         Malformed{"ROUND(1,", 8},                              //
                                         Malformed{"ROUND(1,)", 8},                             //
                                         Malformed{"ROUND(,1)", 6},                             //
                                         Malformed{"ROUND(1,,2)", 8},                           //
                                         Malformed{"ROUND(1 2)", 8},                            //
                                         Malformed{"Prev(#a", 7},                               //
                                         Malformed{"Prev(#a,)", 8},                             //
                                         Malformed{"Prev(#a + 1)", 8},                          //
                                         Malformed{"Prev(#a b)", 8},                            //
                                         Malformed{"Prev(1, #a 2)", 11},                        //
                                         Malformed{"(1,2)", 2},                                 //
                                         Malformed{"IF(a, b, c", 10}));

// A complete formula that something follows: the error is the last byte read.
INSTANTIATE_TEST_SUITE_P(Behind, MalformedFormula,
                         testing::Values(Malformed{"12abc", 4},             //
                                         Malformed{"1 2", 2},               //
                                         Malformed{"1 23 + 4", 3},          //
                                         Malformed{"a b", 2},               //
                                         Malformed{"a < b < c", 6},         //
                                         Malformed{"a < b <= c", 7},        //
                                         Malformed{"1)", 1},                //
                                         Malformed{"(1))", 3},              //
                                         Malformed{"1, 2", 1},              //
                                         Malformed{"a:1 b:2", 6},           //
                                         Malformed{"'Net Demand':#2", 14},  //
                                         Malformed{"a: 1", 3},              //
                                         Malformed{"ROUND(1) ROUND", 13},   //
                                         Malformed{"a !b", 2},              //
                                         Malformed{"0x10", 3}));

TEST(Parser, ReadsNoMoreThanLongNames) {
  const std::string longest(128, 'a');
  EXPECT_EQ(parsed(longest), "'" + longest + "'");
  EXPECT_EQ(parsed(longest + "b"), "error 1 at 128");
  EXPECT_EQ(parsed("Prev(#" + longest + ")"), "error 1 at 133");
  EXPECT_EQ(parsed("Prev('#" + longest + "')"), "error 1 at 5");
}

TEST(Parser, KeepsNothingOfAFormulaThatFails) {
  const ParseResult result = parseExpression("SUM(a, 'b c', #d", test::allFunctions());
  EXPECT_FALSE(result.expression.has_value());
  EXPECT_EQ(result.error, ParseError::Syntax);
}

TEST(Parser, FailsWithinEveryBeginningOfAFormula) {
  const std::string_view formula =
      "-IF('Net Demand:-1' < .5e1 AND NOT(a%b != *), -ROUND(Stock:#2, 2), Cover(#m, '#a b', #c))";
  EXPECT_EQ(parsed(formula).substr(0, 7), "(- 0 (I");
  for (std::size_t length = 0; length < formula.size(); ++length) {
    const bool isName = length == 2 || length == 3;
    const ParseResult result = parseExpression(formula.substr(0, length), test::allFunctions());
    EXPECT_EQ(result.expression.has_value(), isName) << length;
    EXPECT_EQ(result.error, isName ? ParseError::None : ParseError::Syntax) << length;
    EXPECT_LE(result.errorPosition, length);
  }
}

}  // namespace
}  // namespace vrel
