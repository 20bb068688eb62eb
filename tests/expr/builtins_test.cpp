#include "expr/builtins.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "expr/parser.h"
#include "support/formulas.h"

namespace vrel {
namespace {

using test::evaluated;

struct Row {
  std::string_view name;
  int minimum;
  int maximum;
  std::string_view usage;
  bool constant = false;
};

constexpr std::array kRows = {
    Row{"POWER", 2, 2, "(x,y)"},
    Row{"PERCENT", 2, 2, "(x,y)"},
    Row{"SQRT", 1, 1, "(x)"},
    Row{"EXP", 1, 1, "(x)"},
    Row{"LOG", 1, 1, "(x)"},
    Row{"LN", 1, 1, "(x)"},
    Row{"ABS", 1, 1, "(x)"},
    Row{"SIGN", 1, 1, "(x)"},
    Row{"POS", 1, 1, "(x)"},
    Row{"NEG", 1, 1, "(x)"},
    Row{"ZERO", 1, 1, "(x)"},
    Row{"ROUND", 1, 2, "(x, [num decimal places])"},
    Row{"OVERUNDER", 3, 3, "(lb,x,ub)"},
    Row{"ISMULTIPLE", 2, 2, "(value,multiple)"},
    Row{"NOT", 1, 1, "(x)"},
    Row{"IF", 3, 3, "(x,y,z)"},
    Row{"BETWEEN", 3, 3, "(lb,x,ub)"},
    Row{"SUM", 2, 32, "(a,b...)"},
    Row{"PRODUCT", 2, 32, "(a,b...)"},
    Row{"LTTOL", 3, 3, "(x,y,tol)"},
    Row{"LETOL", 3, 3, "(x,y,tol)"},
    Row{"EQTOL", 3, 3, "(x,y,tol)"},
    Row{"NETOL", 3, 3, "(x,y,tol)"},
    Row{"GETOL", 3, 3, "(x,y,tol)"},
    Row{"GTTOL", 3, 3, "(x,y,tol)"},
    Row{"SEQUENCE", 1, 32, "(a,b...)"},
    Row{"MAX", 2, 32, "(a,b...)"},
    Row{"MIN", 2, 32, "(a,b...)"},
    Row{"AVG", 2, 32, "(a,b...)"},
    Row{"RAND", 0, 0, "()"},
    Row{"SIN", 1, 1, "(x)"},
    Row{"COS", 1, 1, "(x)"},
    Row{"TAN", 1, 1, "(x)"},
    Row{"ATAN2", 2, 2, "(x,y)"},
    Row{"RadToDeg", 1, 1, "(x)"},
    Row{"DegToRad", 1, 1, "(x)"},
    Row{"PI", 0, 0, "()", true},
    Row{"TRUE", 0, 0, "()", true},
    Row{"FALSE", 0, 0, "()", true},
    Row{"DEFAULT", 0, 0, "()"},
    Row{"SELECT", 0, 0, "()"},
    Row{"RED", 0, 0, "()"},
    Row{"BLUE", 0, 0, "()"},
    Row{"GREEN", 0, 0, "()"},
    Row{"YELLOW", 0, 0, "()"},
    Row{"GRAY", 0, 0, "()"},
    Row{"BLACK", 0, 0, "()"},
    Row{"PINK", 0, 0, "()"},
    Row{"VIOLET", 0, 0, "()"},
    Row{"ORANGE", 0, 0, "()"},
    Row{"WHITE", 0, 0, "()"},
    Row{"RANGEMAP", 2, 32, "(a...)"},
    Row{"AvgUtil", 0, 0, "()"},
    Row{"MaxUtil", 0, 0, "()"},
    Row{"AvgMachineUtil", 0, 0, "()"},
    Row{"MaxMachineUtil", 0, 0, "()"},
    Row{"AvgStorageUtil", 0, 0, "()"},
    Row{"MaxStorageUtil", 0, 0, "()"},
    Row{"AvgSupplyUtil", 0, 0, "()"},
    Row{"MaxSupplyUtil", 0, 0, "()"},
    Row{"AvgDemandSat", 0, 0, "()"},
    Row{"MaxDemandSat", 0, 0, "()"},
};

std::string lineOf(std::string_view name, int minimum, int maximum, std::string_view usage,
                   bool constant) {
  return fmt::format("{} {} {} {} {}", name, minimum, maximum, usage, constant);
}

TEST(Builtins, AreTheseAndNoOthers) {
  FunctionRegistry functions;
  addBuiltins(functions);
  std::vector<std::string> registered;
  for (const FunctionRecord& record : functions.records()) {
    registered.push_back(
        lineOf(record.name, record.minimum, record.maximum, record.usage, record.constant));
  }
  std::vector<std::string> expected;
  for (const Row& row : kRows) {
    expected.push_back(lineOf(row.name, row.minimum, row.maximum, row.usage, row.constant));
  }
  std::sort(expected.begin(), expected.end());
  std::sort(registered.begin(), registered.end());
  EXPECT_EQ(registered, expected);
}

std::string callOf(std::string_view name, int count) {
  std::string text(name);
  for (int i = 0; i < count; ++i) {
    text += i == 0 ? "(1" : ",1";
  }
  return text + (count == 0 ? "()" : ")");
}

TEST(Builtins, TakeNoFewerAndNoMoreArgumentsThanTheyShould) {
  for (const Row& row : kRows) {
    EXPECT_NE(evaluated(callOf(row.name, row.minimum)).substr(0, 7), "error 3") << row.name;
    EXPECT_NE(evaluated(callOf(row.name, row.maximum)).substr(0, 7), "error 3") << row.name;
    if (row.minimum > 0) {
      EXPECT_EQ(evaluated(callOf(row.name, row.minimum - 1)), "error 3 at 0") << row.name;
    }
    if (row.maximum < 32) {
      EXPECT_EQ(evaluated(callOf(row.name, row.maximum + 1)), "error 3 at 0") << row.name;
    }
  }
}

// The call with a text in the place of one argument.
std::string withTextAt(std::string_view name, int count, int place) {
  std::string text(name);
  for (int i = 0; i < count; ++i) {
    text += i == 0 ? "(" : ",";
    text += i == place ? "#x" : "1";
  }
  return text + ")";
}

TEST(Builtins, FailWhenAnyOfTheirArgumentsIsAText) {
  for (const Row& row : kRows) {
    for (const int count : {row.minimum, std::min(row.maximum, 4)}) {
      for (int place = 0; place < count; ++place) {
        EXPECT_EQ(evaluated(withTextAt(row.name, count, place)), "error 104")
            << row.name << " " << count << " " << place;
      }
    }
  }
}

TEST(Builtins, EvaluateTheirArgumentsBeforeTheyLookForTexts) {
  EXPECT_EQ(evaluated("SUM(1/0, #x)"), "error 102");
  EXPECT_EQ(evaluated("MAX(#x, 1/0)"), "error 102");
  EXPECT_EQ(evaluated("ABS(Demand)"), "error 103");
}

TEST(Builtins, FailForTheFirstArgumentThatFails) {
  EXPECT_EQ(evaluated("POWER(1/0, SQRT(-1))"), "error 102");
  EXPECT_EQ(evaluated("POWER(SQRT(-1), 1/0)"), "error 104");
  EXPECT_EQ(evaluated("SUM(1, 2, Demand, 1/0)"), "error 103");
  EXPECT_EQ(evaluated("AVG(Demand, 1/0)"), "error 103");
}

TEST(Builtins, Power) {
  EXPECT_EQ(evaluated("POWER(2, 10)"), "1024");
  EXPECT_EQ(evaluated("POWER(9, 0.5)"), "3");
  EXPECT_EQ(evaluated("POWER(2, -1)"), "0.5");
  EXPECT_EQ(evaluated("POWER(0, 0)"), "1");
  EXPECT_EQ(evaluated("POWER(*, 2)"), "1e+40");
}

TEST(Builtins, PowerFailsOnARangeError) {
  EXPECT_EQ(evaluated("POWER(10, 400)"), "error 104");
  EXPECT_EQ(evaluated("POWER(10, -400)"), "error 104");
}

TEST(Builtins, PowerOfANegativeNumberToAFractionIsNoNumber) {
  EXPECT_EQ(evaluated("ABS(POWER(-8, 1/3))"), "nan");
}

TEST(Builtins, Percent) {
  EXPECT_EQ(evaluated("PERCENT(1, 4)"), "25");
  EXPECT_EQ(evaluated("PERCENT(-3, 2)"), "-150");
  EXPECT_EQ(evaluated("PERCENT(0, 0)"), "0");
  EXPECT_EQ(evaluated("PERCENT(1, 0)"), "error 104");
  EXPECT_EQ(evaluated("PERCENT(0, 5)"), "0");
}

TEST(Builtins, RootsAndLogarithms) {
  EXPECT_EQ(evaluated("SQRT(6.25)"), "2.5");
  EXPECT_EQ(evaluated("SQRT(0)"), "0");
  EXPECT_EQ(evaluated("SQRT(-0.0001)"), "error 104");
  EXPECT_EQ(evaluated("EXP(0)"), "1");
  EXPECT_EQ(evaluated("EXP(1)"), "2.718281828459045");
  EXPECT_EQ(evaluated("EXP(1000)"), "inf");
  EXPECT_EQ(evaluated("LOG(1000)"), "3");
  EXPECT_EQ(evaluated("LOG(0)"), "-inf");
  EXPECT_EQ(evaluated("LOG(-1)"), "error 104");
  EXPECT_EQ(evaluated("LN(1)"), "0");
  EXPECT_EQ(evaluated("LN(EXP(2))"), "2");
  EXPECT_EQ(evaluated("LN(0)"), "-inf");
  EXPECT_EQ(evaluated("LN(-1)"), "error 104");
}

TEST(Builtins, SignsAndAbsolutes) {
  EXPECT_EQ(evaluated("ABS(-2.5)"), "2.5");
  EXPECT_EQ(evaluated("ABS(2.5)"), "2.5");
  EXPECT_EQ(evaluated("SIGN(-7)"), "-1");
  EXPECT_EQ(evaluated("SIGN(0)"), "0");
  EXPECT_EQ(evaluated("SIGN(0.1)"), "1");
  EXPECT_EQ(evaluated("POS(0.1)"), "1");
  EXPECT_EQ(evaluated("POS(0)"), "0");
  EXPECT_EQ(evaluated("POS(-1)"), "0");
  EXPECT_EQ(evaluated("NEG(-0.1)"), "1");
  EXPECT_EQ(evaluated("NEG(0)"), "0");
  EXPECT_EQ(evaluated("NEG(1)"), "0");
  EXPECT_EQ(evaluated("ZERO(0)"), "1");
  EXPECT_EQ(evaluated("ZERO(-0)"), "1");
  EXPECT_EQ(evaluated("ZERO(0.1)"), "0");
  EXPECT_EQ(evaluated("NOT(0)"), "1");
  EXPECT_EQ(evaluated("NOT(-5)"), "0");
}

TEST(Builtins, RoundHalvesAwayFromZero) {
  EXPECT_EQ(evaluated("ROUND(2.5)"), "3");
  EXPECT_EQ(evaluated("ROUND(-2.5)"), "-3");
  EXPECT_EQ(evaluated("ROUND(2.4)"), "2");
  EXPECT_EQ(evaluated("ROUND(-2.4)"), "-2");
  EXPECT_EQ(evaluated("ROUND(0)"), "0");
}

TEST(Builtins, RoundToNothingHasNoSign) {
  EXPECT_EQ(evaluated("ROUND(-0.4)"), "0");
  EXPECT_EQ(evaluated("ROUND(-0.004, 2)"), "0");
}

TEST(Builtins, RoundToDecimalPlaces) {
  EXPECT_EQ(evaluated("ROUND(1.234, 2)"), "1.23");
  EXPECT_EQ(evaluated("ROUND(-1.235, 2)"), "-1.24");
  EXPECT_EQ(evaluated("ROUND(1.26, 1.9)"), "1.3");
  EXPECT_EQ(evaluated("ROUND(1.5, 0)"), "2");
  EXPECT_EQ(evaluated("ROUND(1, -1)"), "error 104");
  EXPECT_EQ(evaluated("ROUND(1, -0.5)"), "error 104");
}

TEST(Builtins, RoundLeavesTheRangeOf32Bits) {
  EXPECT_EQ(evaluated("ROUND(3e9)"), "-2147483648");
  EXPECT_EQ(evaluated("ROUND(-3e9)"), "-2147483648");
  EXPECT_EQ(evaluated("ROUND(2147483647)"), "2147483647");
  EXPECT_EQ(evaluated("ROUND(2147483647.4)"), "2147483647");
  EXPECT_EQ(evaluated("ROUND(2147483647.5)"), "-2147483648");
  EXPECT_EQ(evaluated("ROUND(-2147483648)"), "-2147483648");
  EXPECT_EQ(evaluated("ROUND(1.5, 10)"), "-0.2147483648");
  EXPECT_EQ(evaluated("ROUND(SQRT(*) - *)"), "-2147483648");
  EXPECT_EQ(evaluated("ROUND(POWER(-8, 0.5))"), "-2147483648");
}

TEST(Builtins, RoundToMorePlacesThanNumbersHaveEnds) {
  EXPECT_EQ(evaluated("ROUND(1, 2000000000)"), "-0");
  EXPECT_EQ(evaluated("ROUND(1.5, 3e9)"), "2");
}

TEST(Builtins, OverUnder) {
  EXPECT_EQ(evaluated("OVERUNDER(10, 7, 20)"), "-3");
  EXPECT_EQ(evaluated("OVERUNDER(10, 25, 20)"), "5");
  EXPECT_EQ(evaluated("OVERUNDER(10, 10, 20)"), "0");
  EXPECT_EQ(evaluated("OVERUNDER(10, 20, 20)"), "0");
  EXPECT_EQ(evaluated("OVERUNDER(5, 7, 5)"), "2");
  EXPECT_EQ(evaluated("OVERUNDER(20, 15, 10)"), "error 104");
}

TEST(Builtins, IsMultiple) {
  EXPECT_EQ(evaluated("ISMULTIPLE(12, 4)"), "1");
  EXPECT_EQ(evaluated("ISMULTIPLE(13, 4)"), "0");
  EXPECT_EQ(evaluated("ISMULTIPLE(0, 4)"), "1");
  EXPECT_EQ(evaluated("ISMULTIPLE(12.0000005, 4)"), "1");
  EXPECT_EQ(evaluated("ISMULTIPLE(11.9999995, 4)"), "1");
  EXPECT_EQ(evaluated("ISMULTIPLE(12.000002, 4)"), "0");
  EXPECT_EQ(evaluated("ISMULTIPLE(11.999998, 4)"), "0");
  EXPECT_EQ(evaluated("ISMULTIPLE(-11.9999995, 4)"), "0");
  EXPECT_EQ(evaluated("ISMULTIPLE(0.3, 0.1)"), "1");
  EXPECT_EQ(evaluated("ISMULTIPLE(5, 0)"), "0");
  EXPECT_EQ(evaluated("ISMULTIPLE(0, 0)"), "0");
}

TEST(Builtins, Between) {
  EXPECT_EQ(evaluated("BETWEEN(1, 2, 3)"), "1");
  EXPECT_EQ(evaluated("BETWEEN(1, 1, 3)"), "1");
  EXPECT_EQ(evaluated("BETWEEN(1, 3, 3)"), "1");
  EXPECT_EQ(evaluated("BETWEEN(1, 0.9, 3)"), "0");
  EXPECT_EQ(evaluated("BETWEEN(1, 3.1, 3)"), "0");
  EXPECT_EQ(evaluated("BETWEEN(3, 2, 1)"), "0");
}

TEST(Builtins, SumsProductsAndAverages) {
  EXPECT_EQ(evaluated("SUM(1, 2)"), "3");
  EXPECT_EQ(evaluated("SUM(1, 2, 3, 4)"), "10");
  EXPECT_EQ(evaluated("SUM(*, *)"), "2e+20");
  EXPECT_EQ(evaluated("PRODUCT(2, 3)"), "6");
  EXPECT_EQ(evaluated("PRODUCT(2, 3, -4)"), "-24");
  EXPECT_EQ(evaluated("PRODUCT(*, 3)"), "3e+20");
  EXPECT_EQ(evaluated("AVG(2, 4)"), "3");
  EXPECT_EQ(evaluated("AVG(1, 2, 6)"), "3");
  EXPECT_EQ(evaluated("SUM(" + callOf("", 32).substr(1)), "32");
}

TEST(Builtins, LargestAndSmallest) {
  EXPECT_EQ(evaluated("MAX(1, 2)"), "2");
  EXPECT_EQ(evaluated("MAX(3, -5, 2)"), "3");
  EXPECT_EQ(evaluated("MIN(1, 2)"), "1");
  EXPECT_EQ(evaluated("MIN(3, -5, 2)"), "-5");
  EXPECT_EQ(evaluated("MAX(-2, -1)"), "-1");
}

TEST(Builtins, TolerancesAreLenientInTheirDirection) {
  EXPECT_EQ(evaluated("LTTOL(5, 4, 2)"), "1");
  EXPECT_EQ(evaluated("LTTOL(5, 4, 1)"), "0");
  EXPECT_EQ(evaluated("LTTOL(4, 5, 0)"), "1");
  EXPECT_EQ(evaluated("LETOL(5, 4, 1)"), "1");
  EXPECT_EQ(evaluated("LETOL(5, 4, 0.5)"), "0");
  EXPECT_EQ(evaluated("LETOL(4, 5, 0)"), "1");
  EXPECT_EQ(evaluated("EQTOL(1, 1.5, 0.5)"), "1");
  EXPECT_EQ(evaluated("EQTOL(1, 1.5, 0.4)"), "0");
  EXPECT_EQ(evaluated("NETOL(1, 1.5, 0.5)"), "0");
  EXPECT_EQ(evaluated("NETOL(1, 1.5, 0.4)"), "1");
}

TEST(Builtins, GreaterWithToleranceHoldsOnEitherSideOnceTheDistanceIsReached) {
  EXPECT_EQ(evaluated("GETOL(0, 100, 1)"), "1");
  EXPECT_EQ(evaluated("GETOL(0, 1, 1)"), "1");
  EXPECT_EQ(evaluated("GETOL(0, 0.5, 1)"), "0");
  EXPECT_EQ(evaluated("GETOL(0.5, 0.5, 1)"), "1");
  EXPECT_EQ(evaluated("GTTOL(0, 100, 1)"), "1");
  EXPECT_EQ(evaluated("GTTOL(0, 1, 1)"), "0");
  EXPECT_EQ(evaluated("GTTOL(1, 0.5, 1)"), "1");
  EXPECT_EQ(evaluated("GTTOL(0.5, 0.5, 1)"), "0");
}

TEST(Builtins, TolerancesHaveNoSign) {
  EXPECT_EQ(evaluated("LTTOL(5, 4, -2)"), "1");
  EXPECT_EQ(evaluated("LETOL(5, 4, -1)"), "1");
  EXPECT_EQ(evaluated("EQTOL(1, 1.5, -0.5)"), "1");
  EXPECT_EQ(evaluated("NETOL(1, 1.5, -0.5)"), "0");
  EXPECT_EQ(evaluated("GETOL(0, 0.5, -1)"), "0");
  EXPECT_EQ(evaluated("GTTOL(0, 1, -1)"), "0");
}

TEST(Builtins, SequenceIsOne) {
  EXPECT_EQ(evaluated("SEQUENCE(5)"), "1");
  EXPECT_EQ(evaluated("SEQUENCE(5, 6, 7)"), "1");
  EXPECT_EQ(evaluated("SEQUENCE(5, 1/0)"), "error 102");
}

TEST(Builtins, RandDrawsFromTheLibrarysGenerator) {
  std::srand(7);
  std::vector<std::string> expected;
  for (int i = 0; i < 5; ++i) {
    expected.push_back(std::to_string(std::rand() % 1000));
  }
  std::srand(7);
  std::vector<std::string> drawn;
  for (int i = 0; i < 5; ++i) {
    drawn.push_back(evaluated("RAND()"));
  }
  EXPECT_EQ(drawn, expected);
}

TEST(Builtins, Angles) {
  EXPECT_EQ(evaluated("SIN(0)"), "0");
  EXPECT_EQ(evaluated("ROUND(SIN(PI() / 6), 6)"), "0.5");
  EXPECT_EQ(evaluated("COS(0)"), "1");
  EXPECT_EQ(evaluated("COS(PI())"), "-1");
  EXPECT_EQ(evaluated("ROUND(TAN(PI() / 4), 6)"), "1");
  EXPECT_EQ(evaluated("TAN(0)"), "0");
  EXPECT_EQ(evaluated("ATAN2(0, 1)"), "0");
  EXPECT_EQ(evaluated("ATAN2(1, 0)"), "1.5707963267948966");
  EXPECT_EQ(evaluated("RadToDeg(PI())"), "180");
  EXPECT_EQ(evaluated("RadToDeg(PI() * 2)"), "360");
  EXPECT_EQ(evaluated("DegToRad(180)"), "3.141592653589793");
  EXPECT_EQ(evaluated("DegToRad(360)"), "6.283185307179586");
}

TEST(Builtins, Constants) {
  EXPECT_EQ(evaluated("PI()"), "3.141592653589793");
  EXPECT_EQ(evaluated("TRUE()"), "1");
  EXPECT_EQ(evaluated("FALSE()"), "0");
}

TEST(Builtins, UtilisationStatisticsAreZero) {
  for (const char* name :
       {"AvgUtil", "MaxUtil", "AvgMachineUtil", "MaxMachineUtil", "AvgStorageUtil",
        "MaxStorageUtil", "AvgSupplyUtil", "MaxSupplyUtil", "AvgDemandSat", "MaxDemandSat"}) {
    EXPECT_EQ(evaluated(std::string(name) + "()"), "0") << name;
  }
}

}  // namespace
}  // namespace vrel
