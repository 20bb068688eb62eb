#include "model/number_parse.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <random>

#include "model/field_value.h"

namespace vrel {
namespace {

double parsed(std::string_view text) {
  return parseNumber(text).number;
}

TEST(ParseNumber, DecimalNumbersAreReadAsWholes) {
  EXPECT_EQ(parsed("0"), 0.0);
  EXPECT_EQ(parsed("12"), 12.0);
  EXPECT_EQ(parsed("-12.5"), -12.5);
  EXPECT_EQ(parsed("0.1"), 0.1);
  EXPECT_EQ(parsed(".5"), 0.5);
  EXPECT_EQ(parsed("5."), 5.0);
  EXPECT_EQ(parsed("1e3"), 1000.0);
  EXPECT_EQ(parsed("1.5E-3"), 0.0015);
  EXPECT_EQ(parsed("12345678901234567890.5"), 12345678901234567890.5);
}

TEST(ParseNumber, ASignMayStandOnceInFront) {
  EXPECT_EQ(parsed("+7"), 7.0);
  EXPECT_EQ(parsed("-7"), -7.0);
  EXPECT_EQ(parsed("++7"), 0.0);
  EXPECT_EQ(parsed("+-7"), 0.0);
  EXPECT_EQ(parsed("--7"), 0.0);
  EXPECT_EQ(parsed("-+7"), 0.0);
  EXPECT_TRUE(std::signbit(parsed("-0")));
}

TEST(ParseNumber, BlanksAroundAreAllowed) {
  EXPECT_EQ(parsed("  12"), 12.0);
  EXPECT_EQ(parsed("12 \t\n"), 12.0);
  EXPECT_EQ(parsed("\t+1e2 "), 100.0);
  EXPECT_EQ(parsed("1 2"), 0.0);
  EXPECT_EQ(parsed("+ 2"), 0.0);
  EXPECT_EQ(parsed("\xa0"
                   "12"),
            0.0);
}

TEST(ParseNumber, UnderscoresAndCommasAreLeftOut) {
  EXPECT_EQ(parsed("1,234_5"), 12345.0);
  EXPECT_EQ(parsed("_"), 0.0);
  EXPECT_EQ(parsed("-1,234,567.25"), -1234567.25);
  EXPECT_EQ(parsed(" ,1_ "), 1.0);
  EXPECT_EQ(parsed("+,5"), 5.0);
}

TEST(ParseNumber, WhatIsNoNumberIsZero) {
  for (const char* text :
       {"",   " ",    "abc", "12abc", "12 abc",   "1.2.3", ".",   "-",     "+",      "-.",  "e5",
        "1e", "0x10", "inf", "-inf",  "infinity", "nan",   "NaN", "1e400", "-1e400", "1;2", "$5"}) {
    EXPECT_EQ(parsed(text), 0.0) << text;
    EXPECT_FALSE(isUndefined(parseNumber(text))) << text;
  }
}

TEST(ParseNumber, AStarIsTheUnboundedValueWhateverFollows) {
  EXPECT_EQ(parsed("*"), 1e20);
  EXPECT_EQ(parsed("  *"), 1e20);
  EXPECT_EQ(parsed("\t*abc"), 1e20);
  EXPECT_EQ(parsed("-*"), 0.0);
  EXPECT_EQ(parsed("_*"), 0.0);
}

TEST(ParseNumber, TheWordUndefinedInSmallLettersIsTheUndefinedNumber) {
  EXPECT_TRUE(isUndefined(parseNumber("undefined")));
  EXPECT_TRUE(isUndefined(parseNumber("undefined behaviour")));
  EXPECT_TRUE(isUndefined(parseNumber("  undefinedX")));
  EXPECT_FALSE(isUndefined(parseNumber("Undefined")));
  EXPECT_EQ(parsed("Undefined"), 0.0);
  EXPECT_EQ(parsed("undefine"), 0.0);
  EXPECT_EQ(numberOf(parseNumber("undefined")), 0.0);
}

TEST(ParseNumber, TinyNumbersKeepTheirValue) {
  EXPECT_EQ(parsed("4.9e-324"), 4.9e-324);
  EXPECT_EQ(parsed("1e-400"), 0.0);
}

/// What is left of the text after its plain decimal; nothing when it does not begin with one.
std::optional<std::string> restAfterDecimal(std::string_view text, double& value) {
  const char* at = text.data();
  const char* const end = at + text.size();
  if (!parsePlainDecimal(at, end, value)) {
    EXPECT_EQ(at, text.data());
    return std::nullopt;
  }
  return std::string(at, end);
}

TEST(ParsePlainDecimal, StopsBehindTheNumber) {
  double value = 0;
  EXPECT_EQ(restAfterDecimal("12.25\t7", value), "\t7");
  EXPECT_EQ(value, 12.25);
  EXPECT_EQ(restAfterDecimal("-3", value), "");
  EXPECT_EQ(value, -3.0);
  EXPECT_EQ(restAfterDecimal("1.2.3", value), ".3");
  EXPECT_EQ(value, 1.2);
  EXPECT_EQ(restAfterDecimal("1e5", value), "e5");
}

TEST(ParsePlainDecimal, RefusesWhatItCannotConvertExactly) {
  double value = 1;
  EXPECT_EQ(restAfterDecimal("", value), std::nullopt);
  EXPECT_EQ(restAfterDecimal("-", value), std::nullopt);
  EXPECT_EQ(restAfterDecimal(".", value), std::nullopt);
  EXPECT_EQ(restAfterDecimal("+1", value), std::nullopt);
  EXPECT_EQ(restAfterDecimal("9007199254740992", value), std::nullopt);
  EXPECT_EQ(restAfterDecimal("00000000000000000001", value), std::nullopt);
  EXPECT_EQ(restAfterDecimal("36893488147419103232", value), std::nullopt);
  EXPECT_EQ(value, 1.0);
  EXPECT_EQ(restAfterDecimal("9007199254740991", value), "");
  EXPECT_EQ(value, 9007199254740991.0);
}

TEST(ParsePlainDecimal, AgreesWithTheGeneralConversion) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 1000000; ++i) {
    const auto digits = static_cast<std::int64_t>(random() >> (random() % 64));
    std::string text = std::to_string(digits);
    text.insert(random() % (text.size() + 1), ".");
    double expected = 0;
    std::from_chars(text.data(), text.data() + text.size(), expected);
    double value = 0;
    const char* at = text.data();
    if (parsePlainDecimal(at, at + text.size(), value)) {
      ASSERT_EQ(value, expected) << text;
      ASSERT_EQ(at, text.data() + text.size()) << text;
    }
    ASSERT_EQ(parsed(text), expected) << text;
  }
}

}  // namespace
}  // namespace vrel
