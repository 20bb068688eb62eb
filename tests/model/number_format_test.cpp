#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "model/field_value.h"

namespace vrel {
namespace {

FormatSettings withPrecision(int precision) {
  FormatSettings settings;
  settings.precision = precision;
  return settings;
}

FormatSettings plain(int precision) {
  FormatSettings settings = withPrecision(precision);
  settings.thousandsSeparators = false;
  settings.largeNumberStar = false;
  return settings;
}

TEST(FormatNumber, ZeroHasTenDecimalsByDefault) {
  EXPECT_EQ(formatNumber(0, FormatSettings{}), "0.0000000000");
}

TEST(FormatNumber, ZeroIsAnUnderscoreWhenSwitchedOn) {
  FormatSettings settings;
  settings.zeroUnderscore = true;
  EXPECT_EQ(formatNumber(0.0, settings), "_");
  EXPECT_EQ(formatNumber(-0.0, settings), "_");
  EXPECT_EQ(formatNumber(1e-300, settings), "0.0000000000");
}

TEST(FormatNumber, IntegerPartsAreSeparatedByThousands) {
  EXPECT_EQ(formatNumber(1234567.891, withPrecision(2)), "1,234,567.89");
  EXPECT_EQ(formatNumber(-1234567.891, withPrecision(2)), "-1,234,567.89");
  EXPECT_EQ(formatNumber(-999, withPrecision(0)), "-999");
  EXPECT_EQ(formatNumber(999, withPrecision(2)), "999.00");
  EXPECT_EQ(formatNumber(1000, withPrecision(0)), "1,000");
  EXPECT_EQ(formatNumber(100000, withPrecision(1)), "100,000.0");
  EXPECT_EQ(formatNumber(1000000, withPrecision(0)), "1,000,000");
  EXPECT_EQ(formatNumber(999.999, withPrecision(2)), "1,000.00");
  EXPECT_EQ(formatNumber(1234567.891, plain(2)), "1234567.89");
}

TEST(FormatNumber, LargeNumbersAreStars) {
  EXPECT_EQ(formatNumber(1e20, withPrecision(2)), "*");
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::max(), withPrecision(2)), "*");
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::infinity(), withPrecision(2)), "*");
  EXPECT_EQ(formatNumber(std::nextafter(1e20, 0), withPrecision(1)),
            "99,999,999,999,999,983,616.0");
}

TEST(FormatNumber, LargeNegativeNumbersAreNeverStars) {
  EXPECT_EQ(formatNumber(-1e20, withPrecision(1)), "-100,000,000,000,000,000,000.0");
}

TEST(FormatNumber, WithTheStarOffLargeNumbersStandInFull) {
  FormatSettings settings;
  settings.largeNumberStar = false;
  EXPECT_EQ(formatNumber(1e20, settings), "100,000,000,000,000,000,000.0000000000");
}

TEST(FormatNumber, TiesGoToTheEvenDigit) {
  EXPECT_EQ(formatNumber(0.5, plain(0)), "0");
  EXPECT_EQ(formatNumber(1.5, plain(0)), "2");
  EXPECT_EQ(formatNumber(2.5, plain(0)), "2");
  EXPECT_EQ(formatNumber(0.125, plain(2)), "0.12");
  EXPECT_EQ(formatNumber(0.375, plain(2)), "0.38");
  EXPECT_EQ(formatNumber(2.675, plain(2)), "2.67");
}

TEST(FormatNumber, NegativeZeroAndTinyNegativesKeepTheirSign) {
  EXPECT_EQ(formatNumber(-0.0, plain(2)), "-0.00");
  EXPECT_EQ(formatNumber(-1e-9, plain(2)), "-0.00");
  EXPECT_EQ(formatNumber(-5e-324, plain(3)), "-0.000");
}

TEST(FormatNumber, ANegativePrecisionCountsAsSix) {
  EXPECT_EQ(formatNumber(1.5, plain(-1)), "1.500000");
}

TEST(FormatNumber, APrecisionAbove512CountsAs512) {
  const std::string text = formatNumber(1.5, plain(1000000));
  EXPECT_EQ(text, "1.5" + std::string(511, '0'));
}

TEST(FormatNumber, TheLongestTextFitsTheBuffer) {
  FormatSettings settings = withPrecision(512);
  settings.largeNumberStar = false;
  const std::string text = formatNumber(-std::numeric_limits<double>::max(), settings);
  EXPECT_EQ(text.size(), 1u + 309u + 102u + 1u + 512u);
  EXPECT_LE(text.size(), kMaxNumberLength);
  EXPECT_EQ(text.substr(0, 12), "-179,769,313");
}

TEST(FormatNumber, WhatIsNoNumberIsNamed) {
  EXPECT_EQ(formatNumber(-std::numeric_limits<double>::infinity(), FormatSettings{}), "-inf");
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::quiet_NaN(), FormatSettings{}), "nan");
}

/// The text by the C library, with separators put in by counting from the right.
std::string expectedText(double number, int precision, bool separators) {
  std::array<char, 1024> buffer;
  std::snprintf(buffer.data(), buffer.size(), "%.*f", precision, number);
  std::string text = buffer.data();
  if (!separators) {
    return text;
  }
  const std::size_t first = text[0] == '-' ? 1 : 0;
  for (std::size_t at = std::min(text.find('.'), text.size()); at > first + 3;) {
    at -= 3;
    text.insert(at, ",");
  }
  return text;
}

void expectLikePrintf(double number, int precision) {
  FormatSettings settings = plain(precision);
  std::array<char, kMaxNumberLength> buffer;
  for (const bool separators : {false, true}) {
    settings.thousandsSeparators = separators;
    const std::string_view text(buffer.data(), formatNumber(buffer.data(), number, settings));
    ASSERT_EQ(text, expectedText(number, precision, separators)) << precision;
  }
}

class FormatNumberLikePrintf : public testing::Test {
 protected:
  std::uint64_t next() { return random_(); }
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

 private:
  std::mt19937_64 random_{20260101};
};

TEST_F(FormatNumberLikePrintf, ForAnyBitPattern) {
  for (int i = 0; i < 150000; ++i) {
    const auto number = std::bit_cast<double>(next());
    if (std::isfinite(number)) {
      expectLikePrintf(number, below(21));
    }
  }
}

TEST_F(FormatNumberLikePrintf, ForAnyFractionLength) {
  for (int i = 0; i < 600000; ++i) {
    const double mantissa = static_cast<double>(next() >> (11 + below(52)));
    const double number = std::ldexp(mantissa, -below(140));
    expectLikePrintf(below(2) != 0 ? number : -number, below(21));
  }
}

TEST_F(FormatNumberLikePrintf, ForDecimals) {
  const std::array<double, 7> scales = {1, 10, 100, 1e3, 1e4, 1e5, 1e6};
  for (int i = 0; i < 600000; ++i) {
    const auto digits = static_cast<double>(below(2000000000));
    const double number = digits / scales[static_cast<std::size_t>(below(7))];
    expectLikePrintf(below(2) != 0 ? number : -number, below(13));
  }
}

TEST_F(FormatNumberLikePrintf, ForTies) {
  for (int i = 0; i < 400000; ++i) {
    const int places = below(20);
    const double number = std::ldexp(static_cast<double>(2 * below(1000000) + 1), -places - 1);
    expectLikePrintf(below(2) != 0 ? number : -number, places);
  }
}

TEST_F(FormatNumberLikePrintf, ForNinesThatCarry) {
  for (int i = 0; i < 200000; ++i) {
    const int places = below(12);
    const double edge = std::pow(10.0, below(16)) - std::pow(10.0, -places) / 2;
    expectLikePrintf(std::nextafter(edge, below(2) != 0 ? 0 : 1e300), places);
  }
}

TEST_F(FormatNumberLikePrintf, AroundTheLimitsOfTheIntegerPart) {
  for (const double limit : {std::ldexp(1, 52), std::ldexp(1, 53), std::ldexp(1, 62),
                             std::ldexp(1, 63), std::ldexp(1, 64), 1e18, 1e19}) {
    for (int precision = 0; precision < 25; ++precision) {
      expectLikePrintf(std::nextafter(limit, 0), precision);
      expectLikePrintf(limit, precision);
      expectLikePrintf(-std::nextafter(limit, 1e300), precision);
    }
  }
}

TEST_F(FormatNumberLikePrintf, ForShortDecimalsOfAnySize) {
  for (int i = 0; i < 400000; ++i) {
    const auto digits = static_cast<double>(next() >> (11 + below(40)));
    const double number = digits / std::pow(10.0, below(6));
    expectLikePrintf(number, below(17));
    expectLikePrintf(std::nextafter(number, below(2) != 0 ? 0 : 1e300), below(17));
  }
}

TEST_F(FormatNumberLikePrintf, NextToHalfAUnit) {
  for (int i = 0; i < 200000; ++i) {
    const int places = below(5);
    const double unit = std::pow(10.0, -places);
    const double middle = (static_cast<double>(next() >> (20 + below(40))) + 0.5) * unit;
    const double aside = unit * 1e-3 * (static_cast<double>(below(2001)) / 1000 - 1);
    expectLikePrintf(middle, places);
    expectLikePrintf(middle + aside, places);
  }
}

TEST_F(FormatNumberLikePrintf, ForManyDecimals) {
  for (int i = 0; i < 20000; ++i) {
    const auto number = std::bit_cast<double>(next());
    if (std::isfinite(number)) {
      expectLikePrintf(number, 20 + below(493));
    }
  }
}

}  // namespace
}  // namespace vrel
